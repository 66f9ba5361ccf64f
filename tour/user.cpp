#include "tour/user.h"

#include "tour/gestures.h"
#include "tour/seen_widgets.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QHeaderView>
#include <QLineEdit>
#include <QMenu>
#include <QPointer>
#include <QTabBar>
#include <QTest>
#include <QTreeView>
#include <QWindow>

#include <thread>

namespace tarnwell::tour {

void User::post(std::function<void()> function) {
    QMetaObject::invokeMethod(qApp, std::move(function), Qt::QueuedConnection);
}

void User::act(std::function<void()> gesture) {
    post([this, gesture = std::move(gesture)] {
        ++handlersRunning_;
        gesture();
        --handlersRunning_;
    });
}

QWidget& User::widget(const QString& name) {
    const QString form = name.section('.', 0, -2), control = name.section('.', -1);
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (!form.isEmpty() && window->objectName() != form)
            continue;
        if (window->objectName() == control)
            return *window;
        if (auto* found = window->findChild<QWidget*>(control))
            return *found;
    }
    throw Stuck("There is no " + name + '.');
}

QWidget& User::reachable(const QString& name) {
    QWidget& target = widget(name);
    const QWidget* const dialog = QApplication::activeModalWidget();
    if (dialog && dialog != target.window())
        throw Stuck(name + " lies behind the dialog: " + captionOf(*dialog));
    if (!target.isVisible() || target.window()->isMinimized())
        throw Stuck(name + " is not to be seen.");
    if (!target.isEnabled())
        throw Stuck(name + " is greyed out.");
    const QPoint place = target.mapTo(target.window(), whereToClick(target));
    const QWidget* const onTop = target.window()->childAt(place);
    if (onTop != &target && !target.isAncestorOf(onTop))
        throw Stuck(name + " is covered.");
    return target;
}

void User::click(const QString& name) {
    auto* const target = look([&] { return &reachable(name); });
    act([target] { sendClick(*target, whereToClick(*target)); });
}

void User::clickMenuEntry(const QString& entry) {
    waitFor("an open menu with " + entry, [&] {
        const QWidget* const menu = QApplication::activePopupWidget();
        return menu && menu->findChild<QAction*>(entry);
    });
    act([entry] {
        if (auto* const menu = qobject_cast<QMenu*>(QApplication::activePopupWidget()))
            sendClick(*menu, menu->actionGeometry(menu->findChild<QAction*>(entry)).center());
    });
}

void User::type(const QString& name, const QString& text) {
    click(name);
    look([&] { typeInto(reachable(name), text); });
}

void User::pressKey(const QString& name, Qt::Key key) {
    auto* const target = look([&] { return &reachable(name); });
    act([target, key] { sendKey(*target, key, {}, key == Qt::Key_Return ? "\r" : QString()); });
}

void User::press(Qt::Key key, Qt::KeyboardModifiers modifiers) {
    QWidget* target = nullptr;
    waitFor("a window that takes keys", [&] { return (target = windowForKeys()) != nullptr; });
    act([target, key, modifiers] { QTest::keyClick(target->windowHandle(), key, modifiers); });
}

void User::pressAccessKey(const QString& name) {
    const auto* const button = look([&] { return qobject_cast<QAbstractButton*>(&widget(name)); });
    if (!button)
        throw Stuck(name + " is no button.");
    const QString keys = QKeySequence::mnemonic(look([&] { return button->text(); })).toString();
    if (keys.isEmpty())
        throw Stuck(name + " has no access key.");
    press(static_cast<Qt::Key>(keys.back().unicode()), Qt::AltModifier);
    // It is pressed before the eyes of the user, and clicked when it comes up again.
    waitFor(name + " to come up", [button = QPointer(button)] { return !button || !button->isDown(); });
}

QString User::focused() {
    const QWidget* window = nullptr;
    waitFor("a window that takes keys", [&] { return (window = windowForKeys()) != nullptr; });
    return look([&] { return window->focusWidget() ? window->focusWidget()->objectName() : QString(); });
}

void User::choose(const QString& comboBox, int index) {
    click(comboBox);
    const auto popup = [] { return QApplication::activePopupWidget(); };
    waitFor("the open list of " + comboBox, [&] { return popup() && popup()->isVisible(); });
    auto* const list = look([&] { return static_cast<QComboBox&>(widget(comboBox)).view(); });
    look([&] {
        sendKey(*list, Qt::Key_Home);
        for (int i = 0; i < index; ++i)
            sendKey(*list, Qt::Key_Down);
    });
    act([list] { sendKey(*list, Qt::Key_Return); });
}

void User::selectTab(const QString& strip, int tab) {
    auto* const tabs = look([&] { return qobject_cast<QTabBar*>(&reachable(strip)); });
    if (!tabs)
        throw Stuck(strip + " has no tabs.");
    act([tabs, tab] { sendClick(*tabs, tabs->tabRect(tab).center()); });
}

void User::selectRow(const QString& list, const QString& text) {
    clickRow(list, text, {});
}

void User::alsoSelectRow(const QString& list, const QString& text) {
    clickRow(list, text, Qt::ControlModifier);
}

void User::clickRow(const QString& list, const QString& text, Qt::KeyboardModifiers modifiers) {
    look([&] {
        auto& view = static_cast<QTreeView&>(reachable(list));
        const QModelIndex row = rowWith(*view.model(), text);
        if (!row.isValid())
            throw Stuck("There is no " + text + " in " + list + '.');
        view.scrollTo(row);
        view.setFocus(Qt::MouseFocusReason);
        sendClick(*view.viewport(), view.visualRect(row).center(), {Qt::LeftButton, modifiers});
    });
}

void User::clickHeading(const QString& list, const QString& title) {
    look([&] {
        QHeaderView& headings = *static_cast<QTreeView&>(reachable(list)).header();
        int column = 0;
        while (headings.model()->headerData(column, Qt::Horizontal).toString() != title) {
            if (++column == headings.count())
                throw Stuck("There is no column " + title + " in " + list + '.');
        }
        const int middle = headings.sectionViewportPosition(column) + headings.sectionSize(column) / 2;
        sendClick(*headings.viewport(), {middle, headings.height() / 2});
    });
}

void User::rightClickBelowRows(const QString& list) {
    auto* const view = look([&] { return &static_cast<QTreeView&>(reachable(list)); });
    act([view] {
        const QRect area = view->viewport()->rect();
        sendClick(*view->viewport(), {area.center().x(), area.bottom() - 1}, {Qt::RightButton});
        // The press reaches the program by an event of its own.
        QCoreApplication::processEvents();
    });
}

void User::editLabel(const QString& list, const QString& text) {
    look([&] { sendKey(reachable(list), Qt::Key_F2); });
    const auto editor = [&] {
        return static_cast<QTreeView&>(widget(list)).viewport()->findChild<QLineEdit*>();
    };
    waitFor("the label to be edited", [&] { return editor() != nullptr; });
    auto* const edit = look(editor);
    look([&] { typeInto(*edit, text); });
    act([edit] {
        sendKey(*edit, Qt::Key_Return, {}, "\r");
        // The edited text reaches the program by an event of its own.
        QCoreApplication::processEvents();
    });
}

bool User::drop(const QString& name, const QStringList& files) {
    auto* const target = look([&] { return &widget(name); });
    const auto taken = std::make_shared<std::promise<bool>>();
    auto answer = taken->get_future();
    act([target, files, taken] {
        taken->set_value(sendDrop(*target, files));
        // What the drop starts comes with an event of its own.
        QCoreApplication::processEvents();
    });
    if (answer.wait_for(kPatience) != std::future_status::ready)
        throw Stuck("The window does not answer.");
    return answer.get();
}

void User::closeWindow(const QString& form) {
    auto* const window = look([&] { return windowOf(form); });
    act([window] { window->close(); });
}

void User::maximise(const QString& form) {
    look([&] { windowOf(form)->showMaximized(); });
    waitFor("the window to take the screen", [&] { return windowOf(form)->isMaximized(); });
}

void User::unmaximise(const QString& form) {
    look([&] { windowOf(form)->showNormal(); });
    waitFor("the window to be as it was", [&] { return !windowOf(form)->isMaximized(); });
}

void User::bringBack(const QString& form) {
    look([&] {
        QtTray& tray = program_.ports().tray;
        if (!windowOf(form)->isVisible() && tray.available())
            act([&tray] { tray.activated(QSystemTrayIcon::DoubleClick); });
        else
            windowOf(form)->showNormal();
    });
}

void User::moveAside(const QString& form, const QString& otherForm) {
    constexpr QPoint kOverlap(-220, -90);
    look([&] {
        windowOf(form)->move(windowOf(otherForm)->geometry().bottomRight() + kOverlap);
        windowOf(form)->activateWindow();
    });
}

QString runWithUser(DesktopProgram& program, const std::function<void(User&)>& scenario) {
    QString trouble;
    bool done = false;
    User user(program);
    std::thread person([&] {
        try {
            user.waitFor("the main window", [] {
                const QWidget* const window = windowOf("frmMain");
                return window && window->isVisible();
            });
            scenario(user);
        } catch (const std::exception& error) {
            trouble = QString::fromStdString(error.what());
        }
        QMetaObject::invokeMethod(
            qApp,
            [&] {
                done = true;
                if (!program.ports().pump.ended())
                    program.ports().pump.end();
            },
            Qt::QueuedConnection);
    });
    program.run();
    // The program may end before its user has seen enough.
    while (!done)
        QCoreApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents);
    person.join();
    return trouble;
}

} // namespace tarnwell::tour
