#include "ui/one_line.h"

#include <QStringList>

namespace tarnwell::ui {

QString oneLine(const QString& text) {
    constexpr char16_t kNextLine = 0x85;
    QString lines = text;
    for (const QChar lineBreak : {QChar(u'\r'), QChar(u'\v'), QChar(u'\f'), QChar(kNextLine),
                                  QChar(QChar::LineSeparator), QChar(QChar::ParagraphSeparator)})
        lines.replace(lineBreak, u'\n');
    return lines.split(u'\n', Qt::SkipEmptyParts).join(u' ');
}

} // namespace tarnwell::ui
