/// desktop_helper FOLDER: the program of that folder on a desktop of the test's own. It does what the lines
/// on its input say, as a user or the logic would, and answers each with a line.

#include "app/desktop/desktop_program.h"
#include "base/mod_tray_icon.h"
#include "platform/native.h"
#include "ui/user_actions.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QMenu>
#include <QScreen>
#include <QSocketNotifier>

#include <cstdio>
#include <iostream>

namespace tarnwell {
namespace {

/// A line break inside a line of input.
const QString kBreak = QStringLiteral("|");

/// Without a bus: tells how many milliseconds it took to ask for a lock.
int askForWakeLock() {
    const auto lock = native::makeWakeLock();
    QElapsedTimer sinceStart;
    sinceStart.start();
    lock->hold("Work is under way");
    std::printf("%d\n", static_cast<int>(sinceStart.elapsed()));
    QtEventPump().pumpFor(100);
    lock->release();
    return 0;
}

QString openMenu() {
    const auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    QStringList entries;
    for (const QAction* action : menu ? menu->actions() : QList<QAction*>()) {
        if (!action->isSeparator())
            entries += action->text();
    }
    return entries.join(", ");
}

class Servant {
public:
    explicit Servant(DesktopProgram& program) : program_(program) {}

    QString obey(const QString& verb, QString words) {
        Shared& shared = program_.program().shared();
        words.replace(kBreak, "\r\n");
        if (verb == "tip")
            TrayTip(shared.ports.tray, words);
        else if (verb == "balloon")
            shared.balloon(words);
        else if (verb == "hide")
            ui::click(shared.frmMain.cmdMinimize);
        else if (verb == "open")
            shared.ports.browser.open(words);
        else if (verb == "picture")
            return QGuiApplication::primaryScreen()->grabWindow(0).save(words) ? "done" : "failed";
        else if (verb == "menu")
            return openMenu();
        else if (verb == "dismiss")
            QApplication::activePopupWidget()->close();
        else if (verb == "tray")
            return shared.ports.tray.available() ? "there" : "none";
        else if (verb == "serve")
            return shared.ports.listener.listen(0) ? "listening" : "silent";
        else if (verb == "window")
            return window();
        else if (verb == "end")
            shared.ports.pump.end();
        return "done";
    }

private:
    QString window() {
        const QWidget& main = program_.mainWindow();
        return !main.isVisible() ? "hidden" : main.isMinimized() ? "minimised" : "shown";
    }

    DesktopProgram& program_;
};

int runProgram(const QString& folder) {
    DesktopProgram program{QtSystemFolders(folder, folder)};
    Servant servant(program);
    QSocketNotifier input(0, QSocketNotifier::Read);
    QObject::connect(&input, &QSocketNotifier::activated, [&] {
        std::string line;
        if (!std::getline(std::cin, line)) {
            program.ports().pump.end();
            return;
        }
        const QString order = QString::fromStdString(line);
        const QString answer = servant.obey(order.section(' ', 0, 0), order.section(' ', 1));
        std::printf("%s\n", answer.toUtf8().constData());
        std::fflush(stdout);
    });
    return program.run();
}

} // namespace
} // namespace tarnwell

int main(int argc, char** argv) {
    if (argc != 2)
        return 2;
    if (qstrcmp(argv[1], "wake-lock") == 0) {
        const QCoreApplication application(argc, argv);
        return tarnwell::askForWakeLock();
    }
    const QApplication application(argc, argv);
    return tarnwell::runProgram(QString::fromLocal8Bit(argv[1]));
}
