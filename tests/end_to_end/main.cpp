#include "ui/qt/application_font.h"

#include <QApplication>

#include <gtest/gtest.h>

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    QApplication application(argc, argv);
    tarnwell::view::useOwnFont();
    return RUN_ALL_TESTS();
}
