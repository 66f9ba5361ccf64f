#include "platform/qt/qt_url_opener.h"

#include <QDesktopServices>
#include <QUrl>

namespace tarnwell {

void QtUrlOpener::open(const QString& url) {
    QDesktopServices::openUrl(QUrl(url));
}

} // namespace tarnwell
