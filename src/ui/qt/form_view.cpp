#include "ui/qt/form_view.h"

#include "ui/qt/colors.h"
#include "ui/user_actions.h"

#include <QCloseEvent>
#include <QLayout>
#include <QWindow>

#include <cmath>

namespace tarnwell::view {

namespace {

// What a form's size holds beside the inside of the window, in twips.
constexpr int kBorders = 90;
constexpr int kTitleBarAndBorders = 375;

/// Scales are multiples of this part of the normal one, so that rounding cannot make a window fit itself for
/// ever.
constexpr double kScaleSteps = 32;

/// Beyond this no screen could show the window; fonts that are larger still are clipped.
constexpr double kLargestScale = 8;

} // namespace

FormView::FormView(ui::Form& form) : form_(form), declaredWidth_(form.width), binder_(form, *this) {
    setObjectName(form.name);
}

void FormView::start(std::unique_ptr<WindowLayout> layout) {
    layout_ = std::move(layout);
    // The window's limits come from the form's size, not from what the layout asks for.
    QWidget::layout()->setSizeConstraint(QLayout::SetNoConstraint);
    applyScale(neededScale());
    followForm();
}

void FormView::followForm() {
    binding().follow(form_.caption.changed, *this, [this] { setWindowTitle(form_.caption); });
    binding().follow(form_.mousePointer.changed, *this, [this] { showPointer(); });
    binding().listen(form_.backColor.changed, *this, [this] { showColor(); });
    // A window that opens late has had its colour for a while.
    if (form_.backColor.get())
        showColor();
    binding().listen(binding().themeChanged, *this, [this] { showColor(); });
    binding().listen(form_.width.changed, *this, [this] { showSize(); });
    binding().listen(form_.height.changed, *this, [this] { showSize(); });
    binding().listen(form_.left.changed, *this, [this] { showPlace(); });
    binding().listen(form_.top.changed, *this, [this] { showPlace(); });
    // A window that nobody has placed yet is left to the desktop.
    if (form_.left || form_.top)
        showPlace();
    binding().listen(form_.windowState.changed, *this, [this] { showState(); });
    binding().follow(form_.topmost.changed, *this, [this] { showTopmost(); });
    binding().follow(form_.visible.changed, *this, [this] { showVisibility(); });
    // Showing a window that is up already brings it before the others.
    form_.visible.assigned = [alive = QPointer(this)](bool changes) {
        if (alive && !changes)
            alive->showState();
    };
}

TwipScale FormView::neededScale() const {
    constexpr double kNormal = 1.0 / ui::kTwipsPerPixel;
    const double times = std::clamp(layout_->neededPixelsPerTwip() / kNormal, 1.0, kLargestScale);
    return TwipScale(kNormal * std::ceil(times * kScaleSteps) / kScaleSteps);
}

void FormView::applyScale(const TwipScale& scale) {
    const Binding::Showing guard(binding());
    binding().setScale(scale);
    layout_->scaleTo(scale);
    showSize();
}

void FormView::showSize() {
    const TwipScale& scale = currentScale();
    const WindowLayout::Heights heights = layout_->showHeight(form_.height);
    const auto inside = [&](int formHeight) { return scale.pixels(formHeight - kTitleBarAndBorders); };
    setMinimumSize(scale.pixels(declaredWidth_ - kBorders), inside(heights.least));
    setMaximumHeight(std::min(inside(heights.most), QWIDGETSIZE_MAX));
    resize(scale.pixels(form_.width - kBorders), inside(form_.height));
}

void FormView::showPlace() {
    move(currentScale().pixels(form_.left), currentScale().pixels(form_.top));
}

void FormView::showVisibility() {
    if (form_.visible) {
        showState();
    } else if (hideMinimises && form_.loaded() && isVisible()) {
        showMinimized();
    } else {
        hide();
    }
}

void FormView::showState() {
    if (!form_.visible)
        return;
    if (form_.windowState == ui::WindowState::Minimised) {
        showMinimized();
        return;
    }
    setWindowState(windowState() & ~Qt::WindowMinimized);
    show();
    raise();
    activateWindow();
}

void FormView::showTopmost() {
    // setWindowFlag would hide and remake the window before the user's eyes.
    overrideWindowFlags(windowFlags().setFlag(Qt::WindowStaysOnTopHint, form_.topmost));
    if (QWindow* const window = windowHandle())
        window->setFlag(Qt::WindowStaysOnTopHint, form_.topmost);
}

void FormView::showColor() {
    QPalette colors;
    if (const auto& back = form_.backColor.get()) {
        const QColor ground = toColor(*back);
        colors.setColor(QPalette::Window, ground);
        // What takes no colour of its own, such as a tab, must stay readable on it.
        for (const auto group : {QPalette::Active, QPalette::Inactive})
            colors.setColor(group, QPalette::WindowText, contrasting(ground));
    }
    setPalette(colors);
}

void FormView::showPointer() {
    if (form_.mousePointer == ui::MousePointer::Hourglass)
        setCursor(Qt::WaitCursor);
    else
        unsetCursor();
}

bool FormView::event(QEvent* event) {
    const bool handled = QWidget::event(event);
    if (event->type() == QEvent::LayoutRequest && layout_) {
        const TwipScale scale = neededScale();
        if (scale.pixelsPerTwip() != currentScale().pixelsPerTwip())
            applyScale(scale);
    }
    return handled;
}

void FormView::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::WindowStateChange) {
        reportState();
    } else if (event->type() == QEvent::PaletteChange && !binding().showing()) {
        const Binding::Showing guard(binding());
        binding().themeChanged.emitNow();
    }
}

void FormView::reportState() {
    if (binding().showing())
        return;
    if (form_.visible) {
        binding().report(form_.windowState,
                         isMinimized() ? ui::WindowState::Minimised : ui::WindowState::Normal);
    } else if (hideMinimises && !isMinimized() && restored) {
        form_.dispatch(restored);
    }
}

void FormView::closeEvent(QCloseEvent* event) {
    event->ignore();
    ui::close(form_);
}

void FormView::moveEvent(QMoveEvent* event) {
    QWidget::moveEvent(event);
    if (binding().showing() || !isVisible() || isMinimized())
        return;
    const TwipScale& scale = currentScale();
    if (scale.pixels(form_.left) != x())
        binding().report(form_.left, scale.twips(x()));
    if (scale.pixels(form_.top) != y())
        binding().report(form_.top, scale.twips(y()));
}

void FormView::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    if (binding().showing() || !isVisible() || isMinimized())
        return;
    const TwipScale& scale = currentScale();
    if (scale.pixels(form_.width - kBorders) != width())
        binding().report(form_.width, scale.twips(width()) + kBorders);
    if (scale.pixels(form_.height - kTitleBarAndBorders) != height())
        binding().report(form_.height, scale.twips(height()) + kTitleBarAndBorders);
}

} // namespace tarnwell::view
