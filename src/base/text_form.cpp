#include "base/text_form.h"

#include <QtEndian>

namespace tarnwell {

TextForm::TextForm(const QByteArray& file) {
    constexpr struct {
        Kind kind;
        const char* mark;
    } kMarked[] = {{Kind::Utf8, "\xEF\xBB\xBF"},
                   {Kind::Utf16LittleEndian, "\xFF\xFE"},
                   {Kind::Utf16BigEndian, "\xFE\xFF"}};
    for (const auto& [kind, mark] : kMarked) {
        if (file.startsWith(mark)) {
            kind_ = kind;
            mark_ = mark;
        }
    }
}

QString TextForm::units(const QByteArray& file) const {
    const QByteArray bytes = file.mid(mark_.size());
    if (!wide())
        return QString::fromLatin1(bytes);
    QString units(bytes.size() / 2, Qt::Uninitialized);
    if (kind_ == Kind::Utf16LittleEndian)
        qFromLittleEndian<char16_t>(bytes.constData(), units.size(), units.data());
    else
        qFromBigEndian<char16_t>(bytes.constData(), units.size(), units.data());
    return units;
}

QByteArray TextForm::rest(const QByteArray& file) const {
    return wide() ? file.right((file.size() - mark_.size()) % 2) : QByteArray();
}

QByteArray TextForm::bytes(const QString& units) const {
    if (!wide())
        return mark_ + units.toLatin1();
    QByteArray bytes(units.size() * 2, Qt::Uninitialized);
    const auto* source = reinterpret_cast<const char16_t*>(units.constData());
    if (kind_ == Kind::Utf16LittleEndian)
        qToLittleEndian<char16_t>(source, units.size(), bytes.data());
    else
        qToBigEndian<char16_t>(source, units.size(), bytes.data());
    return mark_ + bytes;
}

QString TextForm::decoded(const QString& units) const {
    if (wide())
        return units;
    const QByteArray bytes = units.toLatin1();
    return kind_ == Kind::Utf8 ? QString::fromUtf8(bytes) : QString::fromLocal8Bit(bytes);
}

QString TextForm::encoded(const QString& text) const {
    if (wide())
        return text;
    return QString::fromLatin1(kind_ == Kind::Utf8 ? text.toUtf8() : text.toLocal8Bit());
}

} // namespace tarnwell
