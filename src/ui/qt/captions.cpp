#include "ui/qt/captions.h"

#include <QTextDocument>

namespace tarnwell::view {

QString shownCaption(const QString& caption) {
    return QString(caption).replace(QLatin1String("&&"), QLatin1String("&"));
}

QString escapedCaption(const QString& caption) {
    return shownCaption(caption).replace(QLatin1Char('&'), QLatin1String("&&"));
}

QString plainToolTip(const QString& text) {
    return Qt::mightBeRichText(text) ? Qt::convertFromPlainText(text) : text;
}

} // namespace tarnwell::view
