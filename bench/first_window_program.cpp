/// The program until its main window has been painted: it tells of that and ends.

#include "app/desktop/desktop_program.h"
#include "first_paint.h"
#include "ui/qt/application_font.h"

#include <QApplication>

int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    tarnwell::view::useOwnFont();
    const QString folder = QCoreApplication::applicationDirPath();
    tarnwell::DesktopProgram program{tarnwell::QtSystemFolders(folder, folder)};
    const tarnwell::bench::FirstPaint firstPaint(program.mainWindow());
    return program.run();
}
