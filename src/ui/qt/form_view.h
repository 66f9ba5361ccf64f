#pragma once

#include "ui/qt/control_binder.h"
#include "ui/qt/form_face.h"
#include "ui/qt/popup_menu.h"
#include "ui/qt/window_layout.h"
#include "ui/qt/window_size.h"

#include <memory>
#include <optional>

namespace tarnwell::view {

/// A real window for a window of the model. It must not outlive the form, and lives until the program's event
/// loop has ended: closing it asks the model, and the model hides it.
///
/// What the user adds to its size stays when the program gives it another. It grows no larger than its
/// screen, and moves up where it would reach below it; what finds no room even so is scrolled.
class FormView : public QWidget {
public:
    explicit FormView(ui::Form& form);

    const TwipScale& currentScale() const { return binder_.scale(); }

    /// A menu of the form, for someone else to show.
    QMenu& menu(ui::PopupMenu& model) { return menuOf(binding(), model, *this); }

    /// Asked at each hiding. On a desktop without a tray nobody would find a hidden window again, so it is
    /// minimised instead. When the user brings it back, `restored` is called through the form's dispatcher.
    std::function<bool()> hideMinimises = [] { return false; };
    std::function<void()> restored;

protected:
    ControlBinder& controls() { return binder_; }
    /// The widget to lay the controls out in.
    QWidget& content() const { return face_.content(); }
    /// To be called at the end of the constructor of each window: from here on it follows its form.
    void start(std::unique_ptr<WindowLayout> layout);

    void changeEvent(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void moveEvent(QMoveEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    Binding& binding() { return binder_.binding(); }
    void followForm();
    TwipScale neededScale() const;
    void applyScale(const TwipScale& scale);
    void followSize();
    void takeSize(const QSize& program);
    void showSize();
    QSize normalSize() const;
    QSize roomOnScreen() const;
    void keepOnScreen();
    void leaveMaximised();
    bool standsFree() const { return isVisible() && !isMaximized() && !isMinimized(); }
    void reportPlace();
    void reportSize();
    void showPlace();
    void showVisibility();
    void showState();
    void showTopmost();
    void showColor();
    void showPointer();
    void reportState();

    ui::Form& form_;
    const int declaredWidth_;
    FormFace& face_;
    QSize programSize_; ///< twips
    WindowSize size_;
    std::optional<QSize> sizeAfterMaximised_;
    ControlBinder binder_;
    std::unique_ptr<WindowLayout> layout_;
};

} // namespace tarnwell::view
