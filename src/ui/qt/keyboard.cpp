#include "ui/qt/keyboard.h"

#include "ui/qt/access_keys.h"
#include "ui/qt/event_watcher.h"
#include "ui/qt/focus_keeper.h"
#include "ui/user_actions.h"

#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QShortcut>
#include <QTreeView>

namespace tarnwell::view {

namespace {

/// The key acts wherever in the window the focus is.
template <class Act>
void onKey(QWidget& window, Qt::Key key, Act act) {
    auto* shortcut = new QShortcut(key, &window);
    shortcut->setAutoRepeat(false);
    QObject::connect(shortcut, &QShortcut::activated, shortcut, act);
}

/// The key acts in the list alone, and not in the editor of a name in it.
template <class Act>
void onKeyInList(QWidget& list, Qt::Key key, Act act) {
    auto* shortcut = new QShortcut(key, &list);
    shortcut->setContext(Qt::WidgetShortcut);
    shortcut->setAutoRepeat(false);
    QObject::connect(shortcut, &QShortcut::activated, shortcut, act);
}

bool movesInList(int key) {
    switch (key) {
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_Home:
    case Qt::Key_End:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
        return true;
    default:
        return false;
    }
}

/// The first of these keys chooses the row that has the focus. Where there is but one row, none of them
/// would.
void chooseByFirstKey(QWidget& list) {
    auto& view = static_cast<QTreeView&>(list);
    new EventWatcher(view, [&view](QEvent& event) {
        const QModelIndex row = view.currentIndex();
        if (event.type() != QEvent::KeyPress || !movesInList(static_cast<QKeyEvent&>(event).key()) ||
            !row.isValid() || view.selectionModel()->isSelected(row))
            return false;
        view.selectionModel()->select(row, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
        return true;
    });
}

void editJobsByKeys(ui::ListView& jobs, QWidget& view) {
    constexpr int kRightButton = 2;
    const auto edit = [&jobs] { ui::pressMouse(jobs, kRightButton); };
    onKeyInList(view, Qt::Key_Return, edit);
    onKeyInList(view, Qt::Key_Enter, edit);
    new EventWatcher(view, [edit](QEvent& event) {
        const bool menuKey = event.type() == QEvent::ContextMenu &&
                             static_cast<QContextMenuEvent&>(event).reason() == QContextMenuEvent::Keyboard;
        if (menuKey)
            edit();
        return menuKey;
    });
}

} // namespace

// Of letters that stand in several captions each went to the one that has the least choice.

void bindKeyboard(ui::FrmMain& form, ControlBinder& controls, QWidget& window) {
    giveAccessKeys(controls,
                   {// always to be seen, but behind the jobs
                    {form.optLAN, "L"},
                    {form.optLocal, "H"},
                    {form.lblIP, "I"},
                    {form.cmdAttach, "R"},
                    {form.cmdShutdownPS2, "P"},
                    {form.optInstall, "N"},
                    {form.optBrowse, "K"},
                    {form.optJobQueue, "J"},
                    {form.chkOutput, "V"},
                    {form.cmdSettings, "E"},
                    {form.cmdAbout, "A"},
                    {form.cmdMinimize, "Z"},
                    {form.cmdExit, "X"},
                    {form.lblCommand, "O"},
                    // the install page
                    {form.optISO, "F"},
                    {form.optOptical, "D"},
                    {form.cmdISO, "B"},
                    {form.lblGameName, "G"},
                    {form.lblStartup, "U"},
                    {form.lblType, "T"},
                    {form.lblSize, "S"},
                    {form.cmdCompat, "C"},
                    {form.cmdInstall, "W"},
                    {form.cmdAddGame, "Q"},
                    {form.cmdMakeISO, "M"},
                    // the games
                    {form.cmdDelete, "D"},
                    {form.cmdSaveList, "S"},
                    {form.cmdBackupPC, "C"},
                    {form.cmdBackupPS2, "Y"},
                    {form.cmdBackupHDD, "T"},
                    // the jobs
                    {form.cmdStart, "S"},
                    {form.cmdRemove, "R"},
                    {form.cmdClear, "C"},
                    {form.cmdControls, "G"}});
    new FocusKeeper(controls.binding(), window);
    onKey(window, Qt::Key_F5, [&form] { ui::click(form.cmdAttach); });
    for (const ui::ListView* list : {&form.lstHD, &form.lstJob})
        chooseByFirstKey(*controls.widget(*list));
    onKeyInList(*controls.widget(form.lstHD), Qt::Key_Delete, [&form] { ui::click(form.cmdDelete); });
    onKeyInList(*controls.widget(form.lstJob), Qt::Key_Delete, [&form] { ui::click(form.cmdRemove); });
    editJobsByKeys(form.lstJob, *controls.widget(form.lstJob));
}

void bindKeyboard(ui::FrmSettings& form, ControlBinder& controls, QWidget& window) {
    giveAccessKeys(controls, {{form.TabStrip, "LGO"},
                              {form.cmdExit, "A"},
                              {form.cmdExitNoSave, "X"},
                              {form.cmdDefaults, "U"},
                              // the tool
                              {form.lblApplicationData, "D"},
                              {form.lblDiscDatabase, "F"},
                              {form.chkToxicOS, "P"},
                              {form.chkLimit28bit, "H"},
                              {form.chkEnableASPI, "E"},
                              {form.chkAutoThrottle, "T"},
                              {form.chkUseCompression, "C"},
                              {form.lblTargetKBPS, "K"},
                              // this program
                              {form.chkStayOnTop, "K"},
                              {form.chkClosePS2, "W"},
                              {form.chkShutdownPS2, "P"},
                              {form.chkShutdownPC, "J"},
                              {form.chkStandby, "I"},
                              {form.chkBalloonTips, "S"},
                              {form.chkCloseStatus, "C"},
                              {form.chkStatusServer, "H"},
                              {form.cmdTest, "T"},
                              {form.lblGameISO, "D"},
                              {form.chkColors, "E"},
                              {form.cmdForecolor, "R"},
                              {form.cmdBackcolor, "B"},
                              {form.cmdFont, "F"},
                              {form.cmdSounds, "N"},
                              // the disk tools
                              {form.lblSelectDevice, "S"},
                              {form.cmdRefresh, "R"},
                              {form.cmdFormat, "F"},
                              {form.cmdBackupTOC, "B"},
                              {form.cmdRestoreTOC, "T"}});
    new FocusKeeper(controls.binding(), window);
    onKey(window, Qt::Key_Escape, [&form] { ui::click(form.cmdExitNoSave); });
    onKey(window, Qt::Key_F5, [&form] { ui::click(form.cmdRefresh); });
}

void bindKeyboard(ui::FrmStatus& form, ControlBinder& controls, QWidget&) {
    giveAccessKeys(controls, {{form.cmdStop, "C"},
                              {form.cmdMinimize, "M"},
                              {form.chkShutdown, "S"},
                              {form.chkStandby, "B"},
                              {form.chkShutdownPS2, "P"}});
}

void bindKeyboard(ui::FrmAbout& form, ControlBinder&, QWidget& window) {
    onKey(window, Qt::Key_Escape, [&form] { ui::close(form); });
}

} // namespace tarnwell::view
