#include "ui/qt/form_view.h"

#include "ui/qt/accessible_frames.h"
#include "ui/qt/colors.h"
#include "ui/qt/outlined_style.h"
#include "ui/user_actions.h"

#include <QBoxLayout>
#include <QCloseEvent>
#include <QScreen>
#include <QStyle>
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

FormView::FormView(ui::Form& form)
    : form_(form), declaredWidth_(form.width), face_(*new FormFace(*this)),
      programSize_(form.width, form.height), binder_(form, face_.content()) {
    describeAs<AccessibleWindow>(*this);
    setObjectName(form.name);
    auto* whole = new QVBoxLayout(this);
    whole->setContentsMargins(0, 0, 0, 0);
    whole->addWidget(&face_);
}

void FormView::start(std::unique_ptr<WindowLayout> layout) {
    layout_ = std::move(layout);
    // The window's limits come from the form's size, not from what the layout asks for.
    QWidget::layout()->setSizeConstraint(QLayout::SetNoConstraint);
    content().layout()->setSizeConstraint(QLayout::SetNoConstraint);
    applyScale(neededScale());
    face_.laidOut = [this] {
        const TwipScale scale = neededScale();
        if (scale.pixelsPerTwip() != currentScale().pixelsPerTwip())
            applyScale(scale);
    };
    followForm();
}

void FormView::followForm() {
    binding().follow(form_.caption.changed, *this, [this] { setWindowTitle(form_.caption); });
    binding().follow(form_.mousePointer.changed, *this, [this] { showPointer(); });
    binding().listen(form_.backColor.changed, *this, [this] { showColor(); });
    binding().follow(binding().themeChanged, *this, [this] { showColor(); });
    followSize();
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
    size_.grow(scale.pixelsPerTwip() / currentScale().pixelsPerTwip(), normalSize());
    binding().setScale(scale);
    layout_->scaleTo(scale);
    showSize();
}

void FormView::followSize() {
    // Only what the program sets counts: the other side holds what the user has made of it.
    binding().listen(form_.width.changed, *this, [this] { takeSize({form_.width, programSize_.height()}); });
    binding().listen(form_.height.changed, *this, [this] { takeSize({programSize_.width(), form_.height}); });
    // The user may have brought the window to the very height that the program asks for next.
    form_.height.assigned = [alive = QPointer(this)](bool changes) {
        if (!alive || changes)
            return;
        const Binding::Showing guard(alive->binding());
        alive->takeSize({alive->programSize_.width(), alive->form_.height});
    };
}

void FormView::takeSize(const QSize& program) {
    programSize_ = program;
    showSize();
    if (standsFree())
        reportSize();
}

void FormView::showSize() {
    const TwipScale& scale = currentScale();
    const WindowLayout::Heights heights = layout_->showHeight(programSize_.height());
    const auto inside = [&](int formHeight) { return scale.pixels(formHeight - kTitleBarAndBorders); };
    const QSize least(scale.pixels(declaredWidth_ - kBorders), inside(heights.least));
    const QSize room = roomOnScreen();
    face_.setLeastSize(least);
    const QSize bars = face_.barsIn(room);
    const QSize wanted(scale.pixels(programSize_.width() - kBorders), inside(programSize_.height()));
    const QSize before = normalSize();
    const QSize now = size_.show(wanted + bars, before, room);
    setMinimumSize((least + bars).boundedTo(room));
    // Windows offers to maximise what has no limit at all.
    const bool unlimited = heights.most == WindowLayout::kAnyHeight;
    setMaximumHeight(unlimited ? QWIDGETSIZE_MAX : inside(heights.most) + bars.height());
    if (isMaximized()) {
        sizeAfterMaximised_ = now;
        return;
    }
    resize(now);
    if (now.width() > before.width() || now.height() > before.height())
        keepOnScreen();
}

/// The size that the window has while it is not maximised.
QSize FormView::normalSize() const {
    return isMaximized() ? sizeAfterMaximised_.value_or(normalGeometry().size()) : size();
}

QSize FormView::roomOnScreen() const {
    const QSize border = isVisible() ? frameGeometry().size() - size()
                                     : QSize(0, style()->pixelMetric(QStyle::PM_TitleBarHeight));
    return screen()->availableSize() - border;
}

void FormView::keepOnScreen() {
    if (!standsFree())
        return;
    const QRect room = screen()->availableGeometry(), frame = frameGeometry();
    const auto back = [](int from, int to, int least, int most) {
        return std::max(least - from, std::min(0, most - to));
    };
    const QPoint by(back(frame.left(), frame.right(), room.left(), room.right()),
                    back(frame.top(), frame.bottom(), room.top(), room.bottom()));
    if (by.isNull())
        return;
    move(pos() + by);
    reportPlace();
}

/// The room beside the window's borders is known once they are there.
void FormView::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    QMetaObject::invokeMethod(
        this,
        [this] {
            const QSize room = roomOnScreen();
            if (standsFree() && (width() > room.width() || height() > room.height())) {
                const Binding::Showing guard(binding());
                showSize();
            }
            keepOnScreen();
        },
        Qt::QueuedConnection);
}

/// The desktop gives the window its old size first.
void FormView::leaveMaximised() {
    QMetaObject::invokeMethod(
        this,
        [this] {
            if (!sizeAfterMaximised_ || isMaximized() || isMinimized())
                return;
            resize(*sizeAfterMaximised_);
            sizeAfterMaximised_.reset();
            keepOnScreen();
        },
        Qt::QueuedConnection);
}

void FormView::showPlace() {
    move(currentScale().pixels(form_.left), currentScale().pixels(form_.top));
}

void FormView::showVisibility() {
    if (form_.visible) {
        showState();
    } else if (hideMinimises() && form_.loaded() && isVisible()) {
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
    keepOutlinesOn(palette().color(QPalette::Window));
}

void FormView::showPointer() {
    if (form_.mousePointer == ui::MousePointer::Hourglass)
        setCursor(Qt::WaitCursor);
    else
        unsetCursor();
}

void FormView::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::WindowStateChange) {
        reportState();
        leaveMaximised();
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
    } else if (isVisible() && !isMinimized() && restored) {
        form_.dispatch(restored);
    }
}

void FormView::closeEvent(QCloseEvent* event) {
    event->ignore();
    ui::close(form_);
}

void FormView::moveEvent(QMoveEvent* event) {
    QWidget::moveEvent(event);
    if (!binding().showing() && isVisible() && !isMinimized())
        reportPlace();
}

void FormView::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    if (!binding().showing() && isVisible() && !isMinimized())
        reportSize();
}

void FormView::reportPlace() {
    const TwipScale& scale = currentScale();
    if (scale.pixels(form_.left) != x())
        binding().report(form_.left, scale.twips(x()));
    if (scale.pixels(form_.top) != y())
        binding().report(form_.top, scale.twips(y()));
}

void FormView::reportSize() {
    const TwipScale& scale = currentScale();
    if (scale.pixels(form_.width - kBorders) != width())
        binding().report(form_.width, scale.twips(width()) + kBorders);
    if (scale.pixels(form_.height - kTitleBarAndBorders) != height())
        binding().report(form_.height, scale.twips(height()) + kTitleBarAndBorders);
}

} // namespace tarnwell::view
