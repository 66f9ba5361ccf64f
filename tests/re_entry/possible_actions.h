#pragma once

#include "base/shared.h"
#include "re_entry/random.h"
#include "support/fake_ports.h"

#include <string>
#include <vector>

namespace tarnwell::test {

/// Something that the user can do right now.
struct Action {
    std::string name;
    std::function<void()> perform;
};

/// The user's view of the windows: what is shown and enabled can be used, a menu that was opened stays open
/// until something else is clicked.
class PossibleActions {
public:
    PossibleActions(Shared& shared, FakePorts& ports, Random& random);

    /// All that can be done to the windows, the tray and the open menu. While a box is open only the tray and
    /// its menu are in reach.
    std::vector<Action> all(bool boxIsOpen);
    /// The ways to end the program that are in reach.
    std::vector<Action> exits();

private:
    void addForm(ui::Form& form);
    QString imageIn(const QString& name) const;
    void addDrop(const QString& name, const QStringList& files);
    void addControl(ui::Control& control);
    void addTextBox(ui::TextBox& box);
    void addList(ui::ListView& list);
    void addOpenMenu();
    void addTray();
    void add(const QString& name, std::function<void()> perform);

    std::vector<ui::Form*> forms() const;

    Shared& shared_;
    FakePorts& ports_;
    FakeTray& tray_ = ports_.tray;
    Random& random_;
    ui::PopupMenu* openMenu_ = nullptr;
    std::vector<Action> actions_;
};

} // namespace tarnwell::test
