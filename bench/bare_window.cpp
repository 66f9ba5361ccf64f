/// The least that a Qt program can do: one window with a label and a button.

#include "first_paint.h"

#include <QApplication>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    QWidget window;
    auto* layout = new QVBoxLayout(&window);
    layout->addWidget(new QLabel("A label"));
    layout->addWidget(new QPushButton("A button"));
    const tarnwell::bench::FirstPaint firstPaint(window);
    window.show();
    return QApplication::exec();
}
