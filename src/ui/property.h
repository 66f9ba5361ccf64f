#pragma once

#include "ui/signal.h"

#include <vector>

namespace tarnwell::ui {

/// Anything that goes back to the state that it was declared with.
class Resettable {
public:
    virtual ~Resettable() = default;
    virtual void reset() = 0;
};

/// Whoever has properties: a control, a window, a menu entry. Each property registers itself.
class PropertyOwner {
public:
    PropertyOwner() = default;
    PropertyOwner(const PropertyOwner&) = delete;
    PropertyOwner& operator=(const PropertyOwner&) = delete;

    void add(Resettable& property) { properties_.push_back(&property); }

protected:
    ~PropertyOwner() = default;
    void resetProperties() {
        for (Resettable* property : properties_)
            property->reset();
    }

private:
    std::vector<Resettable*> properties_;
};

/// A value of a control. Assigning a different value tells the listeners of `changed`; assigning an equal one
/// tells nobody. `reset` goes back to the value that the control was declared with.
template <class T>
class Property final : public Resettable {
public:
    explicit Property(PropertyOwner& owner, T declared = {})
        : declared_(declared), value_(std::move(declared)) {
        owner.add(*this);
    }
    Property(const Property&) = delete;
    Property& operator=(const Property&) = delete;

    const T& get() const { return value_; }
    operator const T&() const { return value_; }

    Property& operator=(T value) {
        set(std::move(value));
        return *this;
    }

    /// Returns whether the value changed. After the listeners, `assigned` is told of every assignment, equal
    /// or not: this is where a control raises the event that goes with the property.
    bool set(T value) {
        const bool changes = setQuietly(std::move(value));
        if (assigned)
            assigned(changes);
        return changes;
    }

    /// Changes the value without the event that goes with it. Returns whether it changed.
    bool setQuietly(T value) {
        if (value == value_)
            return false;
        value_ = std::move(value);
        changed.emitNow();
        return true;
    }

    void reset() override { setQuietly(declared_); }

    Signal<> changed;
    std::function<void(bool changes)> assigned;

private:
    const T declared_;
    T value_;
};

} // namespace tarnwell::ui
