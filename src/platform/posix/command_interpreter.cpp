#include "platform/native.h"

namespace tarnwell {

QString native::commandInterpreter() {
    return QStringLiteral("/bin/sh");
}

} // namespace tarnwell
