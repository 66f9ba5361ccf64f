#pragma once

#include "ui/controls.h"
#include "ui/menu.h"

namespace tarnwell::ui {

enum class WindowState { Normal, Minimised };
enum class MousePointer { Default, Hourglass };

/// Runs an event handler and stops whatever it throws, so that nothing passes through the toolkit.
using Dispatcher = std::function<void(const std::function<void()>& handler)>;

/// A window as data. It is not loaded, loaded and hidden, or shown.
class Form : public PropertyOwner {
public:
    Form(const QString& name, const Declared& declared);
    virtual ~Form() = default;

    const QString name;
    Property<QString> caption;
    Property<int> left, top, width, height; ///< twips; left and top are of the screen
    Property<WindowState> windowState;
    Property<MousePointer> mousePointer;
    Property<bool> topmost; ///< stays before the windows of other programs
    Property<bool> visible; ///< follows show and hide
    Property<std::optional<std::int32_t>> backColor;

    /// A menu, which need not be this window's own, is to open below a control of this window.
    Signal<PopupMenu&, const Control&> menuWanted;

    Event<> Load;
    /// Asked in this order before the window closes; a handler that sets `cancel` keeps it open.
    Event<bool& /*cancel*/> QueryUnload, Unload;
    /// Files or folders are held over the window, as full paths: a handler that would take them sets `takes`.
    Event<const QStringList& /*paths*/, bool& /*takes*/> FilesOffered;
    /// They were dropped onto the window, which would take them.
    Event<const QStringList& /*paths*/> FilesDropped;
    /// The user asks to close the window while its Unload handler is at it already.
    Event<> CloseAgain;

    bool loaded() const { return loaded_; }
    bool shown() const { return visible; }
    bool unloading() const { return unloading_; }

    void load();         ///< runs Load unless the window is loaded
    void show();         ///< loads it if need be
    void showRestored(); ///< the same, and not minimised any more
    void hide();
    void centreOver(const Form& other); ///< may be called before the window is shown
    /// Closes the window: every control goes back to its declared start state. Returns false if a handler
    /// refused. A call from inside its own Unload handler does nothing.
    bool unload();

    /// The control collection, in the order of declaration.
    const std::vector<Control*>& controls() const { return controls_; }
    const std::vector<PopupMenu*>& menus() const { return menus_; }

    using PropertyOwner::add;
    void add(Control& control) { controls_.push_back(&control); }
    void add(PopupMenu& menu) { menus_.push_back(&menu); }

    /// Runs the handler of something that the user or the desktop did.
    void dispatch(const std::function<void()>& handler) const;
    Dispatcher dispatcher;

private:
    void reset();

    std::vector<Control*> controls_;
    std::vector<PopupMenu*> menus_;
    bool loaded_ = false;
    bool unloading_ = false;
};

/// A window that is loaded when it is touched: every use goes through `->` or `*`.
template <class FormType>
class LoadedOnTouch {
public:
    FormType* operator->() {
        form_.load();
        return &form_;
    }

    FormType& operator*() { return *operator->(); }

    /// The window as it is, without loading it.
    FormType& untouched() { return form_; }
    const FormType& untouched() const { return form_; }

private:
    FormType form_;
};

} // namespace tarnwell::ui
