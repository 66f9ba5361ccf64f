#include "end_to_end/session_end.h"
#include "end_to_end/whole_program.h"

#include <QApplication>

#include <windows.h>

namespace tarnwell::test {

namespace {

HWND mainWindow() {
    for (const QWidget* const widget : QApplication::topLevelWidgets()) {
        if (widget->objectName() == "frmMain")
            return reinterpret_cast<HWND>(widget->winId());
    }
    return nullptr;
}

bool mayEnd() {
    return SendMessageW(mainWindow(), WM_QUERYENDSESSION, 0, 0) != FALSE;
}

class AskedToEnd : public WholeProgram {};

} // namespace

void endSession() {
    SendMessageW(mainWindow(), WM_ENDSESSION, TRUE, 0);
}

TEST_F(AskedToEnd, TheSystemIsToldToWaitAsLongAsWorkRuns) {
    makeImage();
    play([&](User& user) {
        openDisk(user);
        EXPECT_TRUE(user.look(mayEnd));
        pickImage(user, "game.iso");
        user.waitUntilIdle();
        bench.behave("[inject_cd]\nhang_at_percent = 51\n");
        startInstall(user);
        waitForPercent(user, 50);
        EXPECT_FALSE(user.look(mayEnd));
        user.click("frmStatus.cmdStop");
        user.waitUntilIdle();
        EXPECT_TRUE(user.look(mayEnd));
    });
}

} // namespace tarnwell::test
