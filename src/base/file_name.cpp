#include "base/file_name.h"

#include <QRegularExpression>

namespace tarnwell {

namespace {

constexpr QChar kStandIn = u'-';

bool isForbidden(QChar character) {
    return character < u' ' || QLatin1String("<>:\"/\\|?*").contains(character);
}

/// Windows takes these for devices, whatever stands behind a point.
bool namesDevice(const QString& name) {
    static const QRegularExpression device("^(con|prn|aux|nul|conin\\$|conout\\$|(com|lpt)[0-9]) *(\\.|$)",
                                           QRegularExpression::CaseInsensitiveOption);
    return device.match(name).hasMatch();
}

} // namespace

QString PermittedFileName(QString name) {
    for (QChar& character : name) {
        if (isForbidden(character))
            character = kStandIn;
    }
    // Windows drops them in silence.
    while (name.endsWith(u' ') || name.endsWith(u'.'))
        name.chop(1);
    return namesDevice(name) ? kStandIn + name : name;
}

} // namespace tarnwell
