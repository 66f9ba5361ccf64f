#include "base/event_dispatcher.h"

#include "base/fault.h"

namespace tarnwell {

void EventDispatcher::dispatch(const std::function<void()>& handler) {
    try {
        handler();
    } catch (const ProgramEnded&) {
    } catch (const Fault& fault) {
        report(fault.text());
    } catch (const std::exception& error) {
        report("Something went wrong inside the program, and what you asked for was not done (" +
               QString::fromLocal8Bit(error.what()) + ").");
    }
}

void EventDispatcher::report(const QString& text) {
    try {
        shared_.message(text);
    } catch (const ProgramEnded&) {
    }
}

} // namespace tarnwell
