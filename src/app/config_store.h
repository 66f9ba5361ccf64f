#pragma once

#include <QString>

namespace tarnwell {

class SystemFolders;

/// The program's own settings, in `config.cfg` beside the program: an INI file with the one section `tarnwell`. Every
/// reader goes to the file each time and every change is written at once, so a flag that is read in the middle of a
/// run has its latest value. Failures are not reported: a store that cannot be written keeps its old values.
class ConfigStore {
public:
    explicit ConfigStore(const SystemFolders& folders) : folders_(folders) {}

    /// The program's folder with a separator at its end.
    QString AppFolder() const;
    QString ToolPath() const;
    QString path() const; ///< of config.cfg

    /// Missing key, section or file read as the empty text.
    QString text(const QString& key) const;
    int number(const QString& key) const; ///< leading digits count, anything else is 0
    void write(const QString& key, const QString& value) const;
    void writeNumber(const QString& key, int value) const { write(key, QString::number(value)); }
    bool exists() const;
    bool toolExists() const;
    /// Writes the default of every key but the application data folder, in the file's own order.
    void WriteDefaultConfig() const;

private:
    const SystemFolders& folders_;
};

/// True if the file system has a match for `path`, which may hold wild cards in its last element; folders do not
/// count.
bool FileExists(const QString& path);

/// The INI file calls of the platform: section and key without regard to case, blanks round both and one pair of
/// quotes round the value do not count, the first match wins, at most 254 characters are read.
QString ConfigRead(const QString& section, const QString& key, const QString& path);
/// Replaces the whole file; what it does not change survives to the byte. Nothing happens if it cannot be written.
void ConfigWrite(const QString& section, const QString& key, const QString& value, const QString& path);

} // namespace tarnwell
