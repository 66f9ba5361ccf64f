#include "platform/native.h"

#include <QAbstractNativeEventFilter>
#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusServiceWatcher>
#include <QGuiApplication>

#include <cstdlib>
#include <utility>
#include <xcb/xcb.h>

namespace tarnwell {

namespace {

const QString kNotifierWatcher = QStringLiteral("org.kde.StatusNotifierWatcher");

/// Of a panel that draws the icons itself and hears of them over the bus.
bool notifierWatcherIsUp() {
    const QDBusConnection bus = QDBusConnection::sessionBus();
    return bus.isConnected() && bus.interface()->isServiceRegistered(kNotifierWatcher);
}

struct Free {
    void operator()(void* answer) const { std::free(answer); }
};
template <class Reply>
using Answer = std::unique_ptr<Reply, Free>;

/// Other platforms tell of a display as well, without a connection to it.
bool onDisplay() {
    return QGuiApplication::platformName() == QStringLiteral("xcb");
}

/// A panel into which programs put small windows of their own holds this selection of the display.
bool embeddingTrayIsUp() {
    if (!onDisplay())
        return false;
    const auto* x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    xcb_connection_t* const display = x11->connection();
    constexpr char kSelection[] = "_NET_SYSTEM_TRAY_S0";
    const Answer<xcb_intern_atom_reply_t> name(xcb_intern_atom_reply(
        display, xcb_intern_atom(display, 0, sizeof kSelection - 1, kSelection), nullptr));
    if (!name)
        return false;
    const Answer<xcb_get_selection_owner_reply_t> owner(
        xcb_get_selection_owner_reply(display, xcb_get_selection_owner(display, name->atom), nullptr));
    return owner && owner->owner != XCB_NONE;
}

/// Sleeps until something happens on the bus or the display.
class TrayWait final : public QObject, QAbstractNativeEventFilter {
public:
    explicit TrayWait(std::function<void()> appears)
        : appears_(std::move(appears)), notifier_(kNotifierWatcher, QDBusConnection::sessionBus(),
                                                  QDBusServiceWatcher::WatchForRegistration) {
        connect(&notifier_, &QDBusServiceWatcher::serviceRegistered, this, [this] { end(); });
        if (onDisplay())
            qApp->installNativeEventFilter(this);
    }

    /// Who takes a selection over sends such a message to all.
    bool nativeEventFilter(const QByteArray&, void* message, qintptr*) override {
        constexpr std::uint8_t kSentByProgram = 0x80;
        const auto type = static_cast<const xcb_generic_event_t*>(message)->response_type;
        if ((type & ~kSentByProgram) == XCB_CLIENT_MESSAGE && embeddingTrayIsUp())
            end();
        return false;
    }

private:
    void end() {
        if (const auto appears = std::exchange(appears_, nullptr)) {
            qApp->removeNativeEventFilter(this);
            notifier_.setWatchedServices({});
            appears();
        }
    }

    std::function<void()> appears_;
    QDBusServiceWatcher notifier_;
};

} // namespace

std::unique_ptr<QObject> native::whenTrayAppears(const std::function<void()>& appears) {
    if (!notifierWatcherIsUp() && !embeddingTrayIsUp())
        return std::make_unique<TrayWait>(appears);
    appears();
    return nullptr;
}

} // namespace tarnwell
