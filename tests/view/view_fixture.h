#pragma once

#include "support/gtest_qt.h"
#include "ui/qt/about_window_view.h"
#include "ui/qt/main_window_view.h"
#include "ui/qt/settings_window_view.h"
#include "ui/qt/status_window_view.h"
#include "view/sample_states.h"

#include <QApplication>
#include <QTest>

#include <gtest/gtest.h>

namespace tarnwell::view {

/// The main window as it stands after the start, with its real widgets.
class MainWindow : public testing::Test {
protected:
    MainWindow() {
        samples::start(form);
        serveEvents();
    }

    static void serveEvents() {
        // What was posted while the first round ran is served by the second.
        QApplication::processEvents();
        QApplication::processEvents();
    }

    template <class Widget>
    Widget& widget(const ui::Control& control) {
        auto* found = window.findChild<Widget*>(control.name);
        if (!found)
            throw std::runtime_error("no widget for " + control.name.toStdString());
        return *found;
    }

    ui::FrmMain form;
    MainWindowView window{form};
};

} // namespace tarnwell::view
