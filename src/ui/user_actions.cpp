#include "ui/user_actions.h"

#include "ui/one_line.h"

namespace tarnwell::ui {

bool click(Button& button) {
    if (!button.usable())
        return false;
    button.form().dispatch([&] { button.Click(); });
    return true;
}

bool click(Label& link) {
    if (!link.link || !link.usable())
        return false;
    link.form().dispatch([&] { link.Click(); });
    return true;
}

bool click(OptionButton& option) {
    if (!option.usable())
        return false;
    option.form().dispatch([&] { option.value = true; });
    return true;
}

bool click(CheckBox& box) {
    if (!box.usable())
        return false;
    box.form().dispatch([&] { box.value = box.value == 0 ? 1 : 0; });
    return true;
}

bool click(TextBox& box) {
    if (!box.usable())
        return false;
    box.form().dispatch([&] { box.Click(); });
    return true;
}

bool click(MenuEntry& entry) {
    if (!entry.enabled || !entry.visible || entry.separator())
        return false;
    entry.menu().form().dispatch([&] { entry.Click(); });
    return true;
}

bool choose(ComboBox& list, int index) {
    if (!list.usable() || index < 0 || index >= list.listCount())
        return false;
    list.form().dispatch([&] { list.listIndex = index; });
    return true;
}

bool selectTab(TabStrip& tabs, int index) {
    if (!tabs.usable() || index < 0 || index >= tabs.captions.size())
        return false;
    tabs.form().dispatch([&] { tabs.selectedTab = index; });
    return true;
}

bool type(TextBox& box, const QString& text) {
    if (!box.usable() || box.readOnly)
        return false;
    box.form().dispatch([&] { box.text = box.multiLine ? text : oneLine(text); });
    return true;
}

bool pressKey(TextBox& box, int character) {
    if (!box.usable())
        return true;
    int key = character;
    box.form().dispatch([&] { box.KeyPress(key); });
    return key != 0;
}

void focus(TextBox& box) {
    if (box.usable())
        box.form().dispatch([&] { box.GotFocus(); });
}

void tick(Timer& timer) {
    if (timer.enabled && timer.interval > 0)
        timer.form().dispatch([&] { timer.Tick(); });
}

bool editLabel(ListView& list, int row, const QString& text) {
    if (!list.usable() || !list.editableLabels || row < 0 || row >= list.count())
        return false;
    bool cancel = false;
    const QString label = oneLine(text);
    list.form().dispatch([&] { list.AfterLabelEdit(cancel, row, label); });
    // The handler may have refreshed the list: the row can be gone.
    if (!cancel && row < list.count())
        list.setText(row, label);
    return !cancel;
}

void pressMouse(ListView& list, int button) {
    if (list.usable())
        list.form().dispatch([&] { list.MouseDown(button); });
}

bool takesFiles(const Form& form, const QStringList& paths) {
    bool takes = false;
    if (form.shown())
        form.dispatch([&] { form.FilesOffered(paths, takes); });
    return takes;
}

bool dropFiles(const Form& form, const QStringList& paths) {
    if (!takesFiles(form, paths))
        return false;
    form.dispatch([&] { form.FilesDropped(paths); });
    return true;
}

bool close(Form& form) {
    form.dispatch([&] {
        if (form.unloading())
            form.CloseAgain();
        else
            form.unload();
    });
    return !form.loaded();
}

} // namespace tarnwell::ui
