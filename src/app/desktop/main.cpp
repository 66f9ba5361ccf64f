#include "app/desktop/desktop_program.h"
#include "ui/qt/application_font.h"

#include <QApplication>

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    tarnwell::view::useOwnFont();
    return tarnwell::DesktopProgram().run();
}
