#include "ui/qt/captions.h"

#include <QTextDocument>

namespace tarnwell::view {

QString shownCaption(const QString& caption) {
    return QString(caption).replace(QLatin1String("&&"), QLatin1String("&"));
}

QString escapedCaption(const QString& caption) {
    return shownCaption(caption).replace(QLatin1Char('&'), QLatin1String("&&"));
}

QString readCaption(QString widgetText) {
    for (qsizetype at = widgetText.indexOf(u'&'); at >= 0; at = widgetText.indexOf(u'&', at + 1))
        widgetText.remove(at, 1); // of two the second stays
    return widgetText;
}

QString plainToolTip(const QString& text) {
    return Qt::mightBeRichText(text) ? Qt::convertFromPlainText(text) : text;
}

} // namespace tarnwell::view
