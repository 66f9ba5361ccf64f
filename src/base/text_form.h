#pragma once

#include <QByteArray>
#include <QString>

namespace tarnwell {

/// The form in which a text lies in a file: the system's 8-bit code page or, if an editor has put a mark in
/// front that says so, UTF-8 or UTF-16. Whatever bytes there are survive: they are looked at as units, a byte
/// each or, in UTF-16, two. The signs of ASCII are the same units in every form.
class TextForm {
public:
    explicit TextForm(const QByteArray& file);

    /// What stands behind the mark. Half a unit at the end of the file is left out; see `rest`.
    QString units(const QByteArray& file) const;
    QByteArray rest(const QByteArray& file) const;
    /// With the mark in front.
    QByteArray bytes(const QString& units) const;

    QString decoded(const QString& units) const;
    QString encoded(const QString& text) const;

private:
    enum class Kind { CodePage, Utf8, Utf16LittleEndian, Utf16BigEndian };

    bool wide() const { return kind_ == Kind::Utf16LittleEndian || kind_ == Kind::Utf16BigEndian; }

    Kind kind_ = Kind::CodePage;
    QByteArray mark_;
};

} // namespace tarnwell
