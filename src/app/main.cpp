#include "app/desktop_program.h"

#include <QApplication>

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    return tarnwell::DesktopProgram().run();
}
