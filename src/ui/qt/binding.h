#pragma once

#include "ui/form.h"
#include "ui/qt/twip_scale.h"

#include <QPointer>
#include <QWidget>

namespace tarnwell::view {

/// What all bound widgets of one window share: the way from the model to a widget, and the knowledge of
/// whether a widget's signal is the user's doing or only the echo of the model.
class Binding {
public:
    /// While one of these lives, the window is being told about its model; what its widgets report is an
    /// echo.
    class Showing {
    public:
        explicit Showing(Binding& binding) : depth_(binding.depth_) { ++depth_; }
        ~Showing() { --depth_; }
        Showing(const Showing&) = delete;
        Showing& operator=(const Showing&) = delete;

    private:
        int& depth_;
    };

    bool showing() const { return depth_ > 0; }

    /// Runs `show` now, and again whenever `changed` tells of a change, for as long as the widget lives.
    template <class Show>
    void follow(ui::Signal<>& changed, QObject& widget, Show show) {
        listen(changed, widget, show);
        const Showing guard(*this);
        show();
    }

    /// As `follow`, but not at once; `changed` may carry arguments.
    template <class Show, class... Arguments>
    void listen(ui::Signal<Arguments...>& changed, QObject& widget, Show show) {
        changed.connect([this, alive = QPointer<QObject>(&widget), show](Arguments... arguments) {
            if (!alive || reporting_)
                return;
            const Showing guard(*this);
            show(arguments...);
        });
    }

    /// Tells the model where a widget stands; nobody may take that for an order to move it.
    template <class T>
    void report(ui::Property<T>& property, const T& value) {
        const Showing guard(*this);
        reporting_ = true;
        property.setQuietly(value);
        reporting_ = false;
    }

    const TwipScale& scale() const { return scale_; }
    void setScale(const TwipScale& scale) {
        scale_ = scale;
        scaleChanged.emitNow();
    }

    ui::Signal<> scaleChanged;
    ui::Signal<> themeChanged; ///< the desktop has changed its colours

private:
    int depth_ = 0;
    bool reporting_ = false;
    TwipScale scale_{1.0 / ui::kTwipsPerPixel};
};

} // namespace tarnwell::view
