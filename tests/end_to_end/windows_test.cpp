#include "end_to_end/whole_program.h"

#include <QApplication>
#include <QMenu>

namespace tarnwell::test {
namespace {

class Windows : public WholeProgram {
protected:
    void startSlowInstall(User& user) const {
        openDisk(user);
        pickImage(user, "game.iso");
        user.waitUntilIdle();
        bench.behave("[inject_cd]\ndelay_ms_per_step = 25\n");
        startInstall(user);
        waitForPercent(user, 20);
    }

    static QWidget& window(const QString& form) {
        for (QWidget* candidate : QApplication::topLevelWidgets()) {
            if (candidate->objectName() == form)
                return *candidate;
        }
        throw std::runtime_error("no " + form.toStdString());
    }

    const QString image = makeImage();
};

TEST_F(Windows, TheStatusWindowOpensWithTheFocusWhereAStrayBlankDoesNoHarm) {
    play([&](User& user) {
        startSlowInstall(user);
        EXPECT_EQ(user.look([] { return window("frmStatus").focusWidget()->objectName(); }), "cmdMinimize");
        user.waitUntilIdle();
    });
}

TEST_F(Windows, BelongToTheEntryInTheMenuOfTheDesktop) {
    play([](User& user) {
        EXPECT_EQ(user.look([] { return QGuiApplication::desktopFileName(); }), "tarnwell-gui");
    });
}

TEST_F(Windows, BroughtBackDuringAnInstallTheMainWindowLeavesCancelInSight) {
    play([&](User& user) {
        startSlowInstall(user);
        user.bringBack("frmMain");
        user.waitFor("the main window", [] { return window("frmMain").isVisible(); });
        EXPECT_TRUE(user.windowUp("frmMain"));
        user.waitFor("the status window in front", [] { return window("frmStatus").isActiveWindow(); });
        user.click("frmStatus.cmdStop");
        user.waitUntilIdle();
    });
}

TEST_F(Windows, OwnColoursReachTheStatusWindowThatOpensInALaterRun) {
    constexpr QRgb kNavy = 0xff000080;
    write(bench.path("config.cfg"),
          "[tarnwell]\r\nUseColor=1\r\nForecolor=16777215\r\nBackcolor=8388608\r\n");
    play([&](User& user) {
        startSlowInstall(user);
        const QImage picture = user.look([] { return window("frmStatus").grab().toImage(); });
        EXPECT_EQ(picture.pixel(1, 1), kNavy);
        EXPECT_EQ(picture.pixel(picture.width() - 2, picture.height() - 2), kNavy);
        user.waitUntilIdle();
    });
}

TEST_F(Windows, TheSoundsMenuOpensUnderItsButtonWhereverTheSettingsStand) {
    play([&](User& user) {
        user.click("cmdSettings");
        user.waitUntilIdle();
        user.selectTab("TabStrip", ui::FrmSettings::kGuiTab);
        user.waitUntilIdle();
        for (const QPoint& place : {QPoint(20, 10), QPoint(110, 60)}) {
            user.look([&] { window("frmSettings").move(place); });
            user.click("cmdSounds");
            user.waitFor("the menu", [] { return QApplication::activePopupWidget() != nullptr; });
            user.look([] {
                QWidget* const menu = QApplication::activePopupWidget();
                const auto* button = window("frmSettings").findChild<QWidget*>("cmdSounds");
                EXPECT_EQ(menu->objectName(), "mnuSounds");
                EXPECT_EQ(menu->pos(), button->mapToGlobal(button->rect().bottomLeft() + QPoint(0, 1)));
                menu->close();
            });
        }
    });
}

TEST_F(Windows, ClosingTheMainWindowDuringAnInstallEndsTheProgramAndTheToolFinishesTheGame) {
    play([&](User& user) {
        startSlowInstall(user);
        user.bringBack("frmMain");
        user.closeWindow("frmMain");
        user.waitFor("the program to end", [&] { return user.program().ports().pump.ended(); });
        EXPECT_FALSE(user.windowUp("frmStatus"));
        EXPECT_FALSE(bench.log().contains("< failed"));
    });
    ASSERT_TRUE(comesTrue([&] { return bench.log().count("< done") > bench.log().count("> query") + 2; }))
        << bench.log().toStdString();
    EXPECT_TRUE(extract("hdd1:", "HARVEST") == contents(image));
}

TEST_F(Windows, TheStatusWindowCannotBeClosedDuringAnInstallButMinimises) {
    play([&](User& user) {
        startSlowInstall(user);
        user.closeWindow("frmStatus");
        user.waitFor("the status window to minimise", [&] { return !user.windowUp("frmStatus"); });
        user.waitFor("progress in its title",
                     [&] { return user.text("frmStatus").contains("% Complete ["); });
        user.bringBack("frmStatus");
        EXPECT_TRUE(user.windowUp("frmStatus"));
        user.waitUntilIdle();
        EXPECT_TRUE(user.rows("lstHD").last().startsWith("HARVEST"));
    });
}

TEST_F(Windows, HidingWithoutATrayMinimises) {
    play([&](User& user) {
        if (user.program().ports().tray.available())
            GTEST_SKIP() << "there is a tray here";
        user.click("cmdMinimize");
        user.waitUntilIdle();
        EXPECT_TRUE(user.look([&] { return user.program().mainWindow().isMinimized(); }));
        user.bringBack("frmMain");
        EXPECT_TRUE(user.windowUp("frmMain"));
        user.click("optBrowse");
        user.waitUntilIdle();
        EXPECT_TRUE(user.shown("lstHD"));
    });
}

TEST_F(Windows, HidingLeavesTheTrayIconToComeBackBy) {
    play([&](User& user) {
        if (!user.program().ports().tray.available())
            GTEST_SKIP() << "there is no tray here";
        user.click("cmdMinimize");
        user.waitUntilIdle();
        EXPECT_TRUE(user.look([&] { return user.program().mainWindow().isHidden(); }));
        user.bringBack("frmMain");
        user.waitUntilIdle();
        EXPECT_TRUE(user.windowUp("frmMain"));
    });
}

TEST_F(Windows, ExitEndsTheProgram) {
    play([&](User& user) {
        user.click("cmdExit");
        user.waitFor("the program to end", [&] { return user.program().ports().pump.ended(); });
    });
}

} // namespace
} // namespace tarnwell::test
