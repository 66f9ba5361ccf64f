#include "screen.h"

#include <QDeadlineTimer>

#include <cstdlib>
#include <memory>
#include <poll.h>
#include <xcb/xcb.h>

namespace tarnwell::bench {

namespace {

constexpr int kPatienceMs = 10'000;
constexpr int kSmallestMainWindow = 40; ///< pixels

template <class T>
std::unique_ptr<T, decltype(&std::free)> owned(T* reply) {
    return {reply, &std::free};
}

bool isMainWindow(xcb_connection_t* connection, const xcb_map_notify_event_t& event) {
    const auto size =
        owned(xcb_get_geometry_reply(connection, xcb_get_geometry(connection, event.window), nullptr));
    return !event.override_redirect && size && size->width >= kSmallestMainWindow &&
           size->height >= kSmallestMainWindow;
}

} // namespace

Screen::Screen() {
    server_.start("Xvfb", {"-displayfd", "1", "-screen", "0", "1280x1024x24", "-nolisten", "tcp"});
    if (!server_.waitForReadyRead(kPatienceMs))
        return;
    name_ = ':' + server_.readLine().trimmed();
    connection_ = xcb_connect(name_.toLatin1(), nullptr);
    if (xcb_connection_has_error(connection_)) {
        xcb_disconnect(connection_);
        connection_ = nullptr;
        return;
    }
    const xcb_window_t root = xcb_setup_roots_iterator(xcb_get_setup(connection_)).data->root;
    const std::uint32_t events = XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY;
    xcb_change_window_attributes(connection_, root, XCB_CW_EVENT_MASK, &events);
    xcb_flush(connection_);
}

Screen::~Screen() {
    if (connection_)
        xcb_disconnect(connection_);
    server_.terminate();
    server_.waitForFinished(kPatienceMs);
}

bool Screen::waitForWindow(int milliseconds) {
    const QDeadlineTimer deadline(milliseconds);
    while (!deadline.hasExpired() && !xcb_connection_has_error(connection_)) {
        while (const auto event = owned(xcb_poll_for_event(connection_))) {
            constexpr int kSentByOther = 0x80;
            if ((event->response_type & ~kSentByOther) == XCB_MAP_NOTIFY &&
                isMainWindow(connection_, *reinterpret_cast<xcb_map_notify_event_t*>(event.get())))
                return true;
        }
        pollfd connection{xcb_get_file_descriptor(connection_), POLLIN, 0};
        poll(&connection, 1, static_cast<int>(deadline.remainingTime()));
    }
    return false;
}

} // namespace tarnwell::bench
