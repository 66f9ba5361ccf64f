#pragma once

#include "base/text_form.h"

#include <QList>

#include <optional>

namespace tarnwell {

/// The text of an INI file. Sections and keys are found without regard to case, and the first match wins; a
/// line that is not changed keeps every byte, its line end too, and the file the form that it has.
class IniText {
public:
    explicit IniText(const QByteArray& bytes);

    /// The value without blanks and one pair of quotes round it.
    std::optional<QString> value(const QString& section, const QString& key) const;
    /// Replaces the value where the key stands, else adds the key at the end of its section, else adds both.
    void setValue(const QString& section, const QString& key, const QString& value);
    QByteArray bytes() const;

private:
    struct Line {
        QString text; ///< the units of its form
        QString end;  ///< empty only at the end of a file without a last line end
    };

    qsizetype sectionStart(const QString& section) const;
    qsizetype keyLine(qsizetype sectionStart, const QString& key) const;
    qsizetype lastLineOf(qsizetype sectionStart) const;
    void insertLine(qsizetype at, const QString& text);
    QString lineEnd() const;

    TextForm form_;
    QByteArray rest_; ///< half a character at the end of the file
    QList<Line> lines_;
};

} // namespace tarnwell
