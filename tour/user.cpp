#include "tour/user.h"

#include "ui/qt/captions.h"

#include <QAbstractButton>
#include <QApplication>
#include <QColorDialog>
#include <QComboBox>
#include <QFileDialog>
#include <QFontDialog>
#include <QGroupBox>
#include <QInputDialog>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QMimeData>
#include <QMouseEvent>
#include <QPlainTextEdit>
#include <QPointer>
#include <QProgressBar>
#include <QPushButton>
#include <QTabBar>
#include <QTest>
#include <QTreeView>
#include <QUrl>
#include <QWindow>

#include <thread>

namespace tarnwell::tour {

namespace {

constexpr std::chrono::milliseconds kGlanceEvery{10};

QWidget* windowOf(const QString& form) {
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (window->objectName() == form)
            return window;
    }
    return nullptr;
}

template <class Dialog>
Dialog* openDialog() {
    return qobject_cast<Dialog*>(QApplication::activeModalWidget());
}

/// The window that a key goes to: the box that is up, else the one with the focus. Without a desktop nobody
/// gives the focus back when a dialog closes, so the latest window takes it. Null for now, perhaps.
QWidget* windowForKeys() {
    if (QWidget* const box = QApplication::activeModalWidget())
        return box->isActiveWindow() ? box : nullptr;
    QWidget* const active = QApplication::activeWindow();
    if (active && active->isVisible() && active->objectName().startsWith("frm"))
        return active;
    for (const char* form : {"frmSettings", "frmStatus", "frmMain"}) {
        if (QWidget* const window = windowOf(form); window && window->isVisible()) {
            window->activateWindow();
            break;
        }
    }
    return nullptr;
}

/// Of the open dialog for files.
QLineEdit& fileNameEdit() {
    return *openDialog<QFileDialog>()->findChild<QLineEdit*>("fileNameEdit");
}

/// Option buttons and check boxes take clicks on their left part only.
QPoint whereToClick(const QWidget& widget) {
    const bool button = qobject_cast<const QPushButton*>(&widget) != nullptr;
    const bool marked = qobject_cast<const QAbstractButton*>(&widget) != nullptr && !button;
    const QPoint centre = widget.rect().center();
    return marked ? QStyle::visualPos(widget.layoutDirection(), widget.rect(), {centre.y(), centre.y()})
                  : centre;
}

/// A button of the mouse, and the keys that are held with it.
struct Press {
    Qt::MouseButton button = Qt::LeftButton;
    Qt::KeyboardModifiers modifiers{};
};

void sendMouse(QWidget& widget, QEvent::Type type, const QPoint& place, const Press& press) {
    const bool moves = type == QEvent::MouseMove;
    const bool down = type == QEvent::MouseButtonPress;
    QMouseEvent event(type, place, widget.mapToGlobal(place), moves ? Qt::NoButton : press.button,
                      down ? press.button : Qt::NoButton, press.modifiers);
    QApplication::sendEvent(&widget, &event);
}

void sendClick(QWidget& widget, const QPoint& place, const Press& press = {}) {
    const QPointer<QWidget> alive = &widget;
    if (widget.focusPolicy() & Qt::ClickFocus)
        widget.setFocus(Qt::MouseFocusReason);
    for (const auto type : {QEvent::MouseMove, QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
        if (alive)
            sendMouse(widget, type, place, press);
    }
}

void sendKey(QWidget& widget, int key, Qt::KeyboardModifiers modifiers = {}, const QString& text = {}) {
    const QPointer<QWidget> alive = &widget;
    for (const auto type : {QEvent::KeyPress, QEvent::KeyRelease}) {
        QKeyEvent event(type, key, modifiers, text);
        if (alive)
            QApplication::sendEvent(&widget, &event);
    }
}

void typeInto(QWidget& widget, const QString& text) {
    sendKey(widget, Qt::Key_A, Qt::ControlModifier);
    sendKey(widget, Qt::Key_Delete);
    for (const QChar letter : text)
        sendKey(widget, Qt::Key_unknown, {}, letter);
}

bool sendDrop(const QWidget& widget, const QStringList& files) {
    QMimeData dragged;
    QList<QUrl> urls;
    for (const QString& file : files)
        urls += QUrl::fromLocalFile(file);
    dragged.setUrls(urls);
    constexpr auto kAllowed = Qt::CopyAction | Qt::MoveAction | Qt::LinkAction;
    const QPoint place = widget.mapTo(widget.window(), widget.rect().center());
    QWindow* const window = widget.window()->windowHandle();
    QDragEnterEvent enter(place, kAllowed, &dragged, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(window, &enter);
    if (enter.isAccepted()) {
        QDropEvent drop(place, kAllowed, &dragged, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(window, &drop);
        return drop.isAccepted();
    }
    QDragLeaveEvent leave;
    QApplication::sendEvent(window, &leave);
    return false;
}

QModelIndex rowWith(const QAbstractItemModel& model, const QString& text) {
    for (int row = 0; row < model.rowCount(); ++row) {
        for (int column = 0; column < model.columnCount(); ++column) {
            if (model.index(row, column).data().toString() == text)
                return model.index(row, 0);
        }
    }
    return {};
}

QString captionOf(const QWidget& widget) {
    if (const auto* button = qobject_cast<const QAbstractButton*>(&widget))
        return view::readCaption(button->text());
    if (const auto* label = qobject_cast<const QLabel*>(&widget))
        return label->buddy() ? view::readCaption(label->text()) : label->text();
    if (const auto* edit = qobject_cast<const QLineEdit*>(&widget))
        return edit->text();
    if (const auto* edit = qobject_cast<const QPlainTextEdit*>(&widget))
        return edit->toPlainText();
    if (const auto* list = qobject_cast<const QComboBox*>(&widget))
        return list->currentText();
    if (const auto* frame = qobject_cast<const QGroupBox*>(&widget))
        return frame->title();
    if (const auto* bar = qobject_cast<const QProgressBar*>(&widget))
        return bar->text();
    return widget.windowTitle();
}

} // namespace

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

void User::waitForFileDialog() {
    waitFor("the dialog for files", [] { return openDialog<QFileDialog>() != nullptr; });
}

void User::pickFile(const QString& path) {
    waitForFileDialog();
    look([&] { typeInto(fileNameEdit(), path); });
    acceptFile();
}

QString User::acceptFile() {
    waitForFileDialog();
    QString name = look([] { return fileNameEdit().text(); });
    act([] { sendKey(fileNameEdit(), Qt::Key_Return, {}, "\r"); });
    waitFor("the dialog for files to close", [] { return openDialog<QFileDialog>() == nullptr; });
    return name;
}

void User::selectTab(const QString& strip, int tab) {
    auto* const tabs = look([&] { return qobject_cast<QTabBar*>(&reachable(strip)); });
    if (!tabs)
        throw Stuck(strip + " has no tabs.");
    act([tabs, tab] { sendClick(*tabs, tabs->tabRect(tab).center()); });
}

void User::pickColor(const QColor& color) {
    waitFor("the dialog for colours", [] { return openDialog<QColorDialog>() != nullptr; });
    act([color] {
        auto* const dialog = openDialog<QColorDialog>();
        dialog->setCurrentColor(color);
        dialog->accept();
    });
    waitFor("the dialog for colours to close", [] { return openDialog<QColorDialog>() == nullptr; });
}

void User::pickFont(const QFont& font) {
    waitFor("the dialog for fonts", [] { return openDialog<QFontDialog>() != nullptr; });
    act([font] {
        auto* const dialog = openDialog<QFontDialog>();
        dialog->setCurrentFont(font);
        dialog->accept();
    });
    waitFor("the dialog for fonts to close", [] { return openDialog<QFontDialog>() == nullptr; });
}

QString User::confirmMessage() {
    return closeMessage(QMessageBox::Ok);
}

QString User::agree() {
    return closeMessage(QMessageBox::Yes);
}

QString User::closeMessage(int button) {
    waitFor("a message", [] { return openDialog<QMessageBox>() != nullptr; });
    auto* const box = look([] { return openDialog<QMessageBox>(); });
    QString text = look([&] { return box->text().remove(QChar(0x200B)); });
    look([&] {
        QAbstractButton* const pressed = box->button(static_cast<QMessageBox::StandardButton>(button));
        if (!pressed)
            throw Stuck("The message has no such button: " + text);
        sendClick(*pressed, pressed->rect().center());
    });
    waitFor("the message to close", [&] { return openDialog<QMessageBox>() != box; });
    return text;
}

void User::answer(const QString& line) {
    waitFor("a box that asks for a line", [] { return openDialog<QInputDialog>() != nullptr; });
    look([&] {
        auto* const edit = openDialog<QInputDialog>()->findChild<QLineEdit*>();
        typeInto(*edit, line);
        sendKey(*edit, Qt::Key_Return, {}, "\r");
    });
    waitFor("the box to close", [] { return openDialog<QInputDialog>() == nullptr; });
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

bool User::shown(const QString& name) {
    return look([&] { return widget(name).isVisible() && !widget(name).window()->isMinimized(); });
}

bool User::enabled(const QString& name) {
    return look([&] { return widget(name).isEnabled(); });
}

QString User::text(const QString& name) {
    return look([&] { return captionOf(widget(name)); });
}

QStringList User::entries(const QString& comboBox) {
    return look([&] {
        const auto& list = static_cast<QComboBox&>(widget(comboBox));
        QStringList texts;
        for (int i = 0; i < list.count(); ++i)
            texts += list.itemText(i);
        return texts;
    });
}

QStringList User::rows(const QString& list) {
    return look([&] {
        const QAbstractItemModel& model = *static_cast<QTreeView&>(widget(list)).model();
        QStringList texts;
        for (int row = 0; row < model.rowCount(); ++row) {
            QStringList columns;
            for (int column = 0; column < model.columnCount(); ++column)
                columns += model.index(row, column).data().toString();
            texts += columns.join(" | ");
        }
        return texts;
    });
}

int User::percent(const QString& bar) {
    return look([&] { return static_cast<QProgressBar&>(widget(bar)).value(); });
}

bool User::windowUp(const QString& form) {
    return look([&] {
        const QWidget* const window = windowOf(form);
        return window && window->isVisible() && !window->isMinimized();
    });
}

bool User::messageUp() {
    return look([] { return openDialog<QMessageBox>() != nullptr; });
}

void User::waitFor(const QString& what, const std::function<bool()>& seen) {
    const auto giveUp = std::chrono::steady_clock::now() + kPatience;
    while (!look(seen)) {
        if (std::chrono::steady_clock::now() > giveUp)
            throw Stuck("Waited in vain for " + what + '.');
        std::this_thread::sleep_for(kGlanceEvery);
    }
}

void User::waitForText(const QString& name, const QString& text) {
    waitFor(name + " to show \"" + text + '"', [&] { return captionOf(widget(name)) == text; });
}

void User::waitUntilIdle() {
    waitFor("the program to be done", [this] {
        if (const auto* const message = openDialog<QMessageBox>())
            throw Stuck("A message is in the way: " + message->text());
        return handlersRunning_ == 0;
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
