#pragma once

#include "platform/qt/qt_dialogs.h"

#include <QApplication>
#include <QColor>
#include <QTimer>

#include <functional>
#include <gtest/gtest.h>

namespace tarnwell::test {

template <typename Dialog>
Dialog* openDialog() {
    return qobject_cast<Dialog*>(QApplication::activeModalWidget());
}

/// Does something to the dialog that comes up next, while the context lives.
template <typename Dialog>
void whenOpen(std::function<void(Dialog&)> act, QObject* context = qApp) {
    QTimer::singleShot(1, context, [act = std::move(act), context] {
        auto* const dialog = openDialog<Dialog>();
        dialog != nullptr ? act(*dialog) : whenOpen<Dialog>(act, context);
    });
}

constexpr std::int32_t kCoral = -7; ///< known to the windows alone

inline QColor colorOfTheWindows(std::int32_t color) {
    return color == kCoral ? QColor(255, 127, 80) : QColor();
}

class DialogsTest : public testing::Test {
protected:
    QtEventPump pump_;
    QtDialogs dialogs_{pump_, colorOfTheWindows};
};

} // namespace tarnwell::test
