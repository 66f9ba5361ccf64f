#pragma once

#include "base/ini_text.h"

namespace tarnwell {

class SystemFolders;

/// The program's own settings, in `config.cfg` beside the program: an INI file with the one section
/// `tarnwell`. Every reader goes to the file each time (but see OneReading) and every change is written at
/// once, so a flag that is read in the middle of a run has its latest value. Failures are not reported: a
/// store that cannot be written keeps its old values.
class ConfigStore {
public:
    explicit ConfigStore(const SystemFolders& folders) : folders_(folders) {}

    QString AppFolder() const; ///< with a separator at its end
    QString ToolPath() const;
    QString path() const; ///< of config.cfg
    bool exists() const;
    bool canBeWritten() const;
    bool toolExists() const;

    /// A missing key, section or file reads as the empty text.
    QString text(const QString& key) const;
    /// What a text begins with, its fraction too; 0 if that is no number.
    double number(const QString& key) const;
    /// The same to the nearest whole number, halves to the even one.
    int wholeNumber(const QString& key) const;
    void write(const QString& key, const QString& value) const;
    void writeNumber(const QString& key, int value) const { write(key, QString::number(value)); }
    /// What WriteDefaultConfig writes for a key.
    static QString defaultText(const QString& key);
    /// Sets every key but the data folder of the tool to its default; a new file has them in this order.
    void WriteDefaultConfig() const;

    /// As long as it lives, values come from the file as it was at its beginning and from what the program
    /// has written since: where all of them are read one after the other, the file is opened once.
    class OneReading {
    public:
        explicit OneReading(const ConfigStore& store);
        ~OneReading() { store_.held_.reset(); }
        OneReading(const OneReading&) = delete;
        OneReading& operator=(const OneReading&) = delete;

    private:
        const ConfigStore& store_;
    };

private:
    const SystemFolders& folders_;
    mutable std::optional<IniText> held_;
};

/// Whether the file system has a file that matches `path`; the last element may hold the wild cards * and ?.
/// Folders do not count.
bool FileExists(const QString& path);

/// Whether there is such a folder.
bool DirExists(const QString& path);

/// The folder with a separator at its end, as the store holds folders.
QString WithSeparator(const QString& folder);

/// Reads as the platform's own calls for INI files do: section and key without regard to case, blanks round
/// both and one pair of quotes round the value do not count, the first match wins, at most 254 characters are
/// read.
QString ConfigRead(const QString& section, const QString& key, const QString& path);
/// Replaces the file as a whole. Nothing happens if it cannot be written.
void ConfigWrite(const QString& section, const QString& key, const QString& value, const QString& path);

} // namespace tarnwell
