#include "re_entry/possible_actions.h"

#include "ui/user_actions.h"

namespace tarnwell::test {

namespace {

constexpr int kLeftButton = 1, kRightButton = 2;
const char* const kTexts[] = {"", " ", "192.168.0.10", "10.0.0.9", "Some Game", "\"quoted\" name", "+1"};

} // namespace

PossibleActions::PossibleActions(Shared& shared, FakePorts& ports, Random& random)
    : shared_(shared), ports_(ports), random_(random) {
    for (ui::Form* form : forms()) {
        form->menuWanted.connect([this](ui::PopupMenu& menu, const ui::Control&) { openMenu_ = &menu; });
        for (ui::PopupMenu* menu : form->menus()) {
            menu->poppedUpAtPointer.connect([this, menu] { openMenu_ = menu; });
            menu->closed.connect([this] { openMenu_ = nullptr; });
        }
    }
}

std::vector<Action> PossibleActions::all(bool boxIsOpen) {
    actions_.clear();
    if (!boxIsOpen) {
        for (ui::Form* form : forms())
            addForm(*form);
    }
    if (ports_.dialogs.cancelProgress)
        add("cancel the reading", [this] { ports_.dialogs.cancelProgress(); });
    addTray();
    addOpenMenu();
    return std::move(actions_);
}

std::vector<Action> PossibleActions::exits() {
    actions_.clear();
    ui::FrmMain& frmMain = shared_.frmMain;
    if (frmMain.cmdExit.usable())
        add("cmdExit", [&frmMain] { ui::click(frmMain.cmdExit); });
    if (!tray_.shown)
        return std::move(actions_); // the window is closing already
    if (frmMain.shown())
        add("close frmMain", [&frmMain] { ui::close(frmMain); });
    add("tray, mnuExit", [this, &frmMain] {
        tray_.rightClicked();
        ui::click(frmMain.mnuExit);
    });
    return std::move(actions_);
}

void PossibleActions::addForm(ui::Form& form) {
    if (!form.shown())
        return;
    add("close " + form.name, [&form] { ui::close(form); });
    if (form.windowState == ui::WindowState::Minimised) {
        add("restore " + form.name, [&form] { form.windowState = ui::WindowState::Normal; });
        return;
    }
    for (ui::Control* control : form.controls()) {
        if (control->usable())
            addControl(*control);
    }
    if (&form == &shared_.frmMain) {
        addDrop("an image", {imageIn("chosen.iso")});
        addDrop("images", {imageIn("chosen.iso"), imageIn("lantern.iso")});
    }
}

QString PossibleActions::imageIn(const QString& name) const {
    return ports_.folders.folder + '/' + name;
}

void PossibleActions::addDrop(const QString& name, const QStringList& files) {
    if (ui::takesFiles(shared_.frmMain, files))
        add("drop " + name, [this, files] { ui::dropFiles(shared_.frmMain, files); });
}

void PossibleActions::addControl(ui::Control& control) {
    switch (control.kind) {
    case ui::Kind::Button:
        add(control.name, [&control] { ui::click(static_cast<ui::Button&>(control)); });
        break;
    case ui::Kind::OptionButton:
        add(control.name, [&control] { ui::click(static_cast<ui::OptionButton&>(control)); });
        break;
    case ui::Kind::CheckBox:
        add(control.name, [&control] { ui::click(static_cast<ui::CheckBox&>(control)); });
        break;
    case ui::Kind::TextBox:
        addTextBox(static_cast<ui::TextBox&>(control));
        break;
    case ui::Kind::ComboBox:
        if (auto& list = static_cast<ui::ComboBox&>(control); list.listCount() > 0) {
            const int index = random_.below(list.listCount());
            add(list.name + " entry " + QString::number(index), [&list, index] { ui::choose(list, index); });
        }
        break;
    case ui::Kind::TabStrip:
        if (auto& tabs = static_cast<ui::TabStrip&>(control); true) {
            const int index = random_.below(static_cast<int>(tabs.captions.size()));
            add("tab " + tabs.captions[index], [&tabs, index] { ui::selectTab(tabs, index); });
        }
        break;
    case ui::Kind::ListView:
        addList(static_cast<ui::ListView&>(control));
        break;
    case ui::Kind::Timer:
        add(control.name, [&control] { ui::tick(static_cast<ui::Timer&>(control)); });
        break;
    case ui::Kind::Frame:
    case ui::Kind::Label:
    case ui::Kind::Line:
    case ui::Kind::PictureBox:
    case ui::Kind::CommonDialog:
        break;
    }
}

void PossibleActions::addTextBox(ui::TextBox& box) {
    // One of them is enough: most boxes answer to nothing, and buttons are to have their turn.
    const QString text = random_.of(kTexts);
    if (!box.readOnly && random_.oneIn(2))
        add("type \"" + text + "\" into " + box.name, [&box, text] { ui::type(box, text); });
    else if (!box.readOnly)
        add("Enter in " + box.name, [&box] { ui::pressKey(box, ui::TextBox::kEnterKey); });
    else if (random_.oneIn(4))
        add("focus and click " + box.name, [&box] { ui::focus(box), ui::click(box); });
}

void PossibleActions::addList(ui::ListView& list) {
    const int button = random_.oneIn(2) ? kRightButton : kLeftButton;
    add("mouse button " + QString::number(button) + " on " + list.name,
        [&list, button] { ui::pressMouse(list, button); });
    if (list.count() == 0)
        return;
    const int row = random_.below(list.count());
    const bool select = !random_.oneIn(4);
    add((select ? "select row " : "deselect row ") + QString::number(row) + " of " + list.name,
        [&list, row, select] { select ? list.select(row) : list.setSelected(row, false); });
    const QString text = random_.of(kTexts);
    if (list.editableLabels)
        add("rename row " + QString::number(row) + " of " + list.name + " to \"" + text + '"',
            [&list, row, text] { ui::editLabel(list, row, text); });
}

void PossibleActions::addOpenMenu() {
    if (!openMenu_)
        return;
    for (ui::MenuEntry* entry : openMenu_->entries()) {
        if (!entry->enabled || !entry->visible || entry->separator())
            continue;
        actions_.push_back({entry->name.toStdString(), [this, entry] {
                                if (!entry->checkable)
                                    openMenu_ = nullptr;
                                ui::click(*entry);
                            }});
    }
}

void PossibleActions::addTray() {
    if (!tray_.shown)
        return;
    add("double click on the tray", [this] { tray_.doubleClicked(); });
    add("right click on the tray", [this] { tray_.rightClicked(); });
}

/// Whatever is done elsewhere closes a menu first.
void PossibleActions::add(const QString& name, std::function<void()> perform) {
    actions_.push_back({name.toStdString(), [this, perform = std::move(perform)] {
                            openMenu_ = nullptr;
                            perform();
                        }});
}

std::vector<ui::Form*> PossibleActions::forms() const {
    return {&shared_.frmMain, &shared_.frmSettings.untouched(), &shared_.frmStatus.untouched()};
}

} // namespace tarnwell::test
