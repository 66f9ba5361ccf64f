#pragma once

#include <QByteArray>
#include <QList>

#include <optional>

namespace tarnwell {

/// The text of an INI file, in the system's 8-bit code page. Sections and keys are found without regard to
/// case, and the first match wins; a line that is not changed keeps every byte, its line end too.
class IniText {
public:
    explicit IniText(const QByteArray& bytes);

    /// The value without blanks and one pair of quotes round it.
    std::optional<QByteArray> value(const QByteArray& section, const QByteArray& key) const;
    /// Replaces the value where the key stands, else adds the key at the end of its section, else adds both.
    void setValue(const QByteArray& section, const QByteArray& key, const QByteArray& value);
    QByteArray bytes() const;

private:
    struct Line {
        QByteArray text;
        QByteArray end; ///< empty only at the end of a file without a last line end
    };

    qsizetype sectionStart(const QByteArray& section) const;
    qsizetype keyLine(qsizetype sectionStart, const QByteArray& key) const;
    qsizetype lastLineOf(qsizetype sectionStart) const;
    void insertLine(qsizetype at, const QByteArray& text);
    QByteArray lineEnd() const;

    QList<Line> lines_;
};

} // namespace tarnwell
