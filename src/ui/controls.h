#pragma once

#include "ui/control.h"

namespace tarnwell::ui {

class Frame : public Control {
public:
    Frame(Form& form, const QString& name, const Declared& declared = {});
    Property<QString> caption;
};

class Label : public Control {
public:
    Label(Form& form, const QString& name, const Declared& declared = {});
    Property<QString> caption;
    const bool link; ///< shown with the hand as pointer, and reached by the keyboard, too
    Event<> Click;   ///< of a link
};

class Line : public Control {
public:
    Line(Form& form, const QString& name, const Declared& declared = {});
};

class Button : public Control {
public:
    Button(Form& form, const QString& name, const Declared& declared = {});
    Property<QString> caption;
    Event<> Click;
};

/// One of a group of choices; the group is all option buttons of one container.
class OptionButton : public Control {
public:
    OptionButton(Form& form, const QString& name, const Declared& declared = {});
    Property<QString> caption;
    /// Assigning true clears the others of the group, and fires Click if it was not set.
    Property<bool> value;
    Event<> Click;

private:
    void clearOthers();
};

class CheckBox : public Control {
public:
    CheckBox(Form& form, const QString& name, const Declared& declared = {});
    Property<QString> caption;
    Property<int> value; ///< 0, 1, or 2 for greyed; Click fires whenever it changes, by hand or by code
    Event<> Click;
};

class TextBox : public Control {
public:
    TextBox(Form& form, const QString& name, const Declared& declared = {});
    Property<QString> text; ///< Change fires when it differs
    Property<int> selectionStart, selectionLength;
    Property<bool> caretVisible; ///< false makes the box look read-only
    const bool readOnly, multiLine, centred;
    Event<> Change;
    Event<> Click;
    Event<> GotFocus;
    static constexpr int kEnterKey = 13;
    /// The character code of the key; a handler that sets it to 0 swallows the key.
    Event<int&> KeyPress;
    /// From here on what the user types goes to this box.
    void setFocus() { focusWanted.emitNow(); }
    Signal<> focusWanted;
};

/// A drop-down list: the user can choose an entry, not type one.
class ComboBox : public Control {
public:
    ComboBox(Form& form, const QString& name, const Declared& declared = {});
    /// -1 is no choice. Every assignment fires Click, also of the same index. An index past the end chooses
    /// nothing.
    Property<int> listIndex;
    Event<> Click;
    Signal<> itemsChanged; ///< one more has come, or all have gone

    const QStringList& items() const { return items_; }
    int listCount() const { return static_cast<int>(items_.size()); }
    QString text() const; ///< the chosen entry, or nothing
    void addItem(const QString& text);
    void clear(); ///< leaves no choice, fires nothing
    void reset() override;

private:
    const QStringList declaredItems_;
    QStringList items_;
};

class PictureBox : public Control {
public:
    /// A drawing in a picture: a text in its centre and a box that is filled from the left edge up to
    /// `filledTo`, in units of the picture's scale.
    struct Drawing {
        QString text{};
        double filledTo = 0;
        bool operator==(const Drawing&) const = default;
    };

    PictureBox(Form& form, const QString& name, const Declared& declared = {});
    Property<double> scaleWidth; ///< units across the whole width; stays between drawings
    Property<Drawing> drawing;
};

/// The tabs over the pages of a window. Which page goes with which tab is the handler's business.
class TabStrip : public Control {
public:
    TabStrip(Form& form, const QString& name, const Declared& declared); ///< `items` are the tabs
    const QStringList captions;
    Property<int> selectedTab; ///< counted from 0; Click fires whenever it changes, by hand or by code
    Event<> Click;

    QString caption() const { return captions.value(selectedTab); } ///< of the selected tab
};

class Timer : public Control {
public:
    Timer(Form& form, const QString& name, const Declared& declared = {});
    Property<int> interval; ///< milliseconds; 0 never ticks
    Event<> Tick;
};

/// The window's one dialog for files; it shows nothing by itself.
class CommonDialog : public Control {
public:
    CommonDialog(Form& form, const QString& name);
};

} // namespace tarnwell::ui
