#include "platform/native.h"

#include <QObject>

namespace tarnwell {

/// The toolkit brings the icon back by itself whenever the task bar is started anew.
std::unique_ptr<QObject> native::whenTrayAppears(const std::function<void()>& appears) {
    appears();
    return nullptr;
}

} // namespace tarnwell
