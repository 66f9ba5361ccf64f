#include "ui/qt/application_font.h"

#include <QApplication>
#include <QFont>

void tarnwell::view::useOwnFont() {
    constexpr int kPoints = 8;
    QApplication::setFont(QFont(QStringLiteral("Tahoma"), kPoints));
}
