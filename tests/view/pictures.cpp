// Writes pictures of the windows into the folder that is named as the argument. QT_SCALE_FACTOR chooses the
// scale.

#include "ui/qt/about_window_view.h"
#include "ui/qt/application_icon.h"
#include "ui/qt/main_window_view.h"
#include "ui/qt/settings_window_view.h"
#include "ui/qt/status_window_view.h"
#include "view/sample_states.h"

#include <QApplication>
#include <QDir>
#include <QFontDatabase>

#include <cstdio>

using namespace tarnwell;

namespace {

void save(QWidget& window, const QDir& folder, const QString& name) {
    QApplication::processEvents();
    QApplication::processEvents();
    window.grab().save(folder.filePath(name + ".png"));
}

void mainWindow(const QDir& folder, const QString& look) {
    const auto picture = [&](const QString& name, auto... states) {
        ui::FrmMain form;
        view::MainWindowView window(form);
        view::samples::start(form);
        (states(form), ...);
        save(window, folder, look + "-" + name);
    };
    const auto games = [](ui::FrmMain& form) { view::samples::games(form, 12); };
    picture("start");
    picture("disc", view::samples::discRead);
    picture("local", view::samples::localDisk);
    picture("browse", view::samples::localDisk, games);
    picture("jobs", view::samples::jobs);
    picture("own-look", view::samples::discRead, view::samples::ownLook);
    picture("activity", view::samples::localDisk, games, view::samples::activity);
}

void statusWindow(const QDir& folder, const QString& look) {
    ui::FrmStatus form;
    const view::StatusWindowView view(form);
    view::samples::jobRunning(form);
    save(*view.window(), folder, look + "-status");

    ui::FrmStatus closed;
    const view::StatusWindowView late(closed);
    view::samples::ownLook(closed);
    view::samples::jobRunning(closed);
    save(*late.window(), folder, look + "-status-own-look");
}

void settingsWindow(const QDir& folder, const QString& look) {
    const auto picture = [&](const QString& name, ui::FrmSettings::Tab tab, auto... states) {
        ui::FrmSettings form;
        const view::SettingsWindowView view(form);
        view::samples::settings(form, tab);
        (states(form), ...);
        save(*view.window(), folder, look + "-settings-" + name);
    };
    picture("tarnwell", ui::FrmSettings::kTarnwellTab);
    picture("gui", ui::FrmSettings::kGuiTab);
    picture("tools", ui::FrmSettings::kToolsTab);
    picture("own-look", ui::FrmSettings::kGuiTab, view::samples::ownLook);
}

void aboutWindow(const QDir& folder, const QString& look) {
    ui::FrmAbout form;
    const view::AboutWindowView view(form);
    view::samples::thanks(form);
    save(*view.window(), folder, look + "-about");
}

void allWindows(const QDir& folder, const QString& look) {
    mainWindow(folder, look);
    settingsWindow(folder, look);
    statusWindow(folder, look);
    aboutWindow(folder, look);
}

} // namespace

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    if (argc != 2) {
        std::fputs("usage: view_pictures FOLDER\n", stderr);
        return 2;
    }
    const QDir folder(QString::fromLocal8Bit(argv[1]));
    folder.mkpath(".");
    QApplication::setStyle("Fusion");
    QApplication::setFont(QFont("DejaVu Sans", 9));
    allWindows(folder, "light");
    const QPalette light = QApplication::palette();
    QApplication::setPalette(view::samples::darkPalette());
    allWindows(folder, "dark");
    QApplication::setPalette(view::samples::blackPalette());
    allWindows(folder, "black");
    QApplication::setPalette(light);
    QApplication::setFont(QFont("Tahoma", 8));
    allWindows(folder, "tahoma");
    QApplication::setFont(QFont("DejaVu Sans", 16));
    allWindows(folder, "large");
    QApplication::setFont(QFont("DejaVu Sans", 9));
    QApplication::setLayoutDirection(Qt::RightToLeft);
    allWindows(folder, "mirrored");
    view::applicationIcon().pixmap(64).save(folder.filePath("icon.png"));
}
