#pragma once

#include <functional>
#include <memory>
#include <utility>
#include <vector>

namespace tarnwell::ui {

/// Tells any number of listeners that something changed. Listeners are called in the order of connection; one
/// that connects during an emission is first called by the next one. Connections last as long as the signal.
template <class... Arguments>
class Signal {
public:
    using Listener = std::function<void(Arguments...)>;

    void connect(Listener listener) { listeners_.push_back(std::make_shared<Listener>(std::move(listener))); }

    void emitNow(Arguments... arguments) const {
        // Indexed and held by a copy of the pointer: a listener may pump events that connect another.
        for (std::size_t i = 0, count = listeners_.size(); i < count; ++i) {
            const auto listener = listeners_[i];
            (*listener)(arguments...);
        }
    }

private:
    std::vector<std::shared_ptr<Listener>> listeners_;
};

/// A slot to which one handler is attached: `cmdAttach.Click = [this] { ... };`. Raising it without a handler
/// does nothing.
template <class... Arguments>
class Event {
public:
    using Handler = std::function<void(Arguments...)>;

    Event& operator=(Handler handler) {
        handler_ = std::make_shared<Handler>(std::move(handler));
        return *this;
    }

    void operator()(Arguments... arguments) const {
        if (const auto handler = handler_; handler && *handler)
            (*handler)(arguments...);
    }

private:
    std::shared_ptr<Handler> handler_;
};

} // namespace tarnwell::ui
