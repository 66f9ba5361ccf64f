#pragma once

#include "ui/qt/control_binder.h"
#include "ui/qt/popup_menu.h"
#include "ui/qt/window_layout.h"

#include <memory>

namespace tarnwell::view {

/// A real window for a window of the model. It must not outlive the form, and lives until the program's event
/// loop has ended: closing it asks the model, and the model hides it.
class FormView : public QWidget {
public:
    explicit FormView(ui::Form& form);

    const TwipScale& currentScale() const { return binder_.scale(); }

    /// A menu of the form, for someone else to show.
    QMenu& menu(ui::PopupMenu& model) { return menuOf(binding(), model, *this); }

    /// For a desktop without a tray, where nobody would find a hidden window again: hiding minimises it
    /// instead. When the user brings it back, `restored` is called through the form's dispatcher.
    bool hideMinimises = false;
    std::function<void()> restored;

protected:
    ControlBinder& controls() { return binder_; }
    /// To be called at the end of the constructor of each window: from here on it follows its form.
    void start(std::unique_ptr<WindowLayout> layout);

    bool event(QEvent* event) override;
    void changeEvent(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void moveEvent(QMoveEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    Binding& binding() { return binder_.binding(); }
    void followForm();
    TwipScale neededScale() const;
    void applyScale(const TwipScale& scale);
    void showSize();
    void showPlace();
    void showVisibility();
    void showState();
    void showTopmost();
    void showColor();
    void showPointer();
    void reportState();

    ui::Form& form_;
    const int declaredWidth_;
    ControlBinder binder_;
    std::unique_ptr<WindowLayout> layout_;
};

} // namespace tarnwell::view
