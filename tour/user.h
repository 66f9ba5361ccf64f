#pragma once

#include "app/desktop/desktop_program.h"

#include <QCoreApplication>
#include <QString>
#include <QStringList>
#include <QThread>

#include <chrono>
#include <functional>
#include <future>
#include <memory>
#include <stdexcept>

namespace tarnwell::tour {

/// What keeps a user from going on, in plain words.
struct Stuck : std::runtime_error {
    explicit Stuck(const QString& why) : std::runtime_error(why.toStdString()) {}
};

/// Someone in front of the real windows, who clicks, types and looks. The program serves its events while its
/// handlers wait; so the user lives on a thread of its own, and all that it does and sees goes through the
/// queue of window events, as it would with real hands. Controls are called by their names, with the window's
/// in front if two windows have one ("frmStatus.cmdMinimize"); one that cannot be reached makes the user
/// `Stuck`.
class User {
public:
    explicit User(DesktopProgram& program) : program_(program) {}

    /// The click is on its way when this returns; what it starts may take long.
    void click(const QString& name);
    void clickMenuEntry(const QString& entry);
    /// Replaces what stands in a box.
    void type(const QString& name, const QString& text);
    void pressKey(const QString& name, Qt::Key key);
    /// Presses a key wherever the focus is; the window's shortcuts have the first say, as on a desktop.
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {});
    /// Presses Alt and the letter that is marked in the caption of a button.
    void pressAccessKey(const QString& name);
    /// The name of the control that has the focus.
    QString focused();
    void choose(const QString& comboBox, int index);
    void selectTab(const QString& strip, int tab);
    void waitForFileDialog();
    /// Types a path into the open dialog for files and presses Enter.
    void pickFile(const QString& path);
    /// Presses Enter on the file that the open dialog proposes, and returns its name.
    QString acceptFile();
    /// Picks in the open dialog and presses OK.
    void pickColor(const QColor& color);
    void pickFont(const QFont& font);
    /// Waits for a message box, presses its OK and returns its text.
    QString confirmMessage();
    /// The same with the Yes of a question.
    QString agree();
    /// Writes into the box that asks for a line, and presses Enter.
    void answer(const QString& line);
    /// Clicks the first row that has `text` in one of its columns.
    void selectRow(const QString& list, const QString& text);
    /// The same with the key held that leaves the other rows selected.
    void alsoSelectRow(const QString& list, const QString& text);
    /// Clicks the heading of a column.
    void clickHeading(const QString& list, const QString& title);
    /// Presses the right button below the rows of a list.
    void rightClickBelowRows(const QString& list);
    /// Edits the label of the selected row.
    void editLabel(const QString& list, const QString& text);
    /// Drags files from the desktop onto the middle of a control and lets them go. Returns whether the window
    /// took them.
    bool drop(const QString& name, const QStringList& files);
    /// Presses the close box of a window.
    void closeWindow(const QString& form);
    /// Presses the box of a window that makes it as large as the screen, or as it was.
    void maximise(const QString& form);
    void unmaximise(const QString& form);
    /// As with a click in the desktop's list of windows, or on the tray icon if only that is left.
    void bringBack(const QString& form);
    /// Drags a window to the lower right corner of another, so that both can be seen.
    void moveAside(const QString& form, const QString& otherForm);

    bool shown(const QString& name);
    bool enabled(const QString& name);
    /// What a control shows: its caption, its text, its chosen entry, the words in its bar.
    QString text(const QString& name);
    QStringList entries(const QString& comboBox);
    /// The rows of a list, their columns joined by " | ".
    QStringList rows(const QString& list);
    /// How far a bar is filled.
    int percent(const QString& bar);
    bool windowUp(const QString& form);
    bool messageUp();

    /// Looks again and again. What does not come in time makes the user Stuck.
    void waitFor(const QString& what, const std::function<bool()>& seen);
    void waitForText(const QString& name, const QString& text);
    /// Until all that the clicks and keys so far have started has ended.
    void waitUntilIdle();

    /// Calls a function among the program's events, also in the middle of a waiting handler, and returns what
    /// it returns. To be used where the functions above do not tell enough.
    template <class Function>
    auto look(Function function) -> decltype(function()) {
        if (QThread::currentThread() == qApp->thread())
            return function();
        auto task = std::make_shared<std::packaged_task<decltype(function())()>>(std::move(function));
        auto answer = task->get_future();
        post([task] { (*task)(); });
        if (answer.wait_for(kPatience) != std::future_status::ready)
            throw Stuck("The window does not answer.");
        return answer.get();
    }

    DesktopProgram& program() { return program_; }

private:
    static constexpr std::chrono::seconds kPatience{60};

    /// To be called by `look`.
    static QWidget& widget(const QString& name);
    static QWidget& reachable(const QString& name);
    QString closeMessage(int button);
    static void post(std::function<void()> function);
    void act(std::function<void()> gesture);
    void clickRow(const QString& list, const QString& text, Qt::KeyboardModifiers modifiers);

    DesktopProgram& program_;
    int handlersRunning_ = 0;
};

/// Runs the program while `scenario` plays its user, and ends it when the scenario has come to its end.
/// Returns what went wrong, or nothing.
QString runWithUser(DesktopProgram& program, const std::function<void(User&)>& scenario);

} // namespace tarnwell::tour
