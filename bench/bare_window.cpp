/// The least that a Qt program can do: one window with a label and a button. It tells of its first painting
/// and ends, unless it is told to stay.

#include "first_paint.h"

#include <QApplication>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include <optional>

int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    QWidget window;
    auto* layout = new QVBoxLayout(&window);
    layout->addWidget(new QLabel("A label"));
    layout->addWidget(new QPushButton("A button"));
    std::optional<tarnwell::bench::FirstPaint> firstPaint;
    if (!QApplication::arguments().contains("--stay"))
        firstPaint.emplace(window);
    window.show();
    return QApplication::exec();
}
