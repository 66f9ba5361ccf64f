#include "end_to_end/whole_program.h"

#include <QApplication>

namespace tarnwell::test {
namespace {

/// Someone without a mouse. What the keys do is looked at; nothing but keys does it.
class KeyboardOnly : public WholeProgram {
protected:
    static void tabTo(User& user, const QString& name) {
        for (int i = 0; user.focused() != name; ++i) {
            ASSERT_LT(i, 40) << name.toStdString() << " is not on the way of the Tab key";
            user.press(Qt::Key_Tab);
            user.waitUntilIdle();
        }
    }
    void openDiskByKeys(User& user) const {
        user.pressAccessKey("optLocal");
        user.waitUntilIdle();
        tabTo(user, "cmbHD");
        user.press(Qt::Key_Home);
        user.waitUntilIdle();
        EXPECT_TRUE(user.text("cmbHD").startsWith("hdd1:"));
        user.press(Qt::Key_F5);
        user.waitUntilIdle();
        EXPECT_NE(user.text("lblDiskSpace"), "(no active device)");
    }
    void pickImageByKeys(User& user) const {
        user.pressAccessKey("cmdISO");
        user.pickFile(bench.path("game.iso")); // the system's own dialog
        user.waitForText("txtGameName", "HARVEST");
        user.waitUntilIdle();
    }
    static void tickFirstFlag(User& user) {
        user.pressAccessKey("cmdCompat");
        user.waitFor("the flags", [] { return QApplication::activePopupWidget() != nullptr; });
        user.press(Qt::Key_Down);
        user.press(Qt::Key_Space);
        user.press(Qt::Key_Escape);
        user.waitFor("the flags to close", [] { return QApplication::activePopupWidget() == nullptr; });
    }
    static void queueGame(User& user) {
        user.pressAccessKey("cmdAddGame");
        user.waitFor("the job", [&] { return user.rows("lstJob").size() == 1; });
        user.pressAccessKey("optJobQueue");
        user.waitFor("the jobs", [&] { return user.shown("fmJob"); });
    }
};

TEST_F(KeyboardOnly, AGameIsInstalledWithAFlagThroughTheQueue) {
    makeImage();
    play([&](User& user) {
        openDiskByKeys(user);
        pickImageByKeys(user);
        tickFirstFlag(user);
        queueGame(user);
        EXPECT_EQ(user.rows("lstJob").size(), 1);
        const QString before = user.focused();
        user.pressAccessKey("cmdStart");
        user.waitFor("the end of the job",
                     [&] { return user.rows("lstJob").value(0).startsWith("Complete"); });
        user.waitFor("the main window", [&] { return user.enabled("cmdStart"); });
        EXPECT_EQ(user.focused(), before) << "the focus is where it was";
    });
    EXPECT_TRUE(bench.run({"tarn_toc", "hdd1:"}).contains("HARVEST"));
    EXPECT_TRUE(logged("inject_cd").contains("+1")) << logged("inject_cd").toStdString();
}

TEST_F(KeyboardOnly, AJobIsCancelledAndRemoved) {
    makeImage();
    play([&](User& user) {
        openDiskByKeys(user);
        pickImageByKeys(user);
        queueGame(user);
        bench.behave("[inject_cd]\nhang_at_percent = 51\n");
        user.pressAccessKey("cmdStart");
        user.waitFor("the status window", [&] { return user.windowUp("frmStatus"); });
        waitForPercent(user, 50);
        user.pressAccessKey("frmStatus.cmdStop");
        user.waitFor("the end", [&] { return user.rows("lstJob").value(0).startsWith("Aborted"); });
        user.waitFor("the main window", [&] { return user.enabled("cmdRemove"); });
        user.bringBack("frmMain");
        user.look([&] { user.program().mainWindow().activateWindow(); });
        tabTo(user, "lstJob");
        user.press(Qt::Key_Home);
        user.press(Qt::Key_Delete);
        user.waitFor("the empty list", [&] { return user.rows("lstJob").isEmpty(); });
    });
    EXPECT_FALSE(bench.run({"tarn_toc", "hdd1:"}).contains("HARVEST"));
}

TEST_F(KeyboardOnly, ADiskIsFormatted) {
    play([&](User& user) {
        user.pressAccessKey("cmdSettings");
        user.waitFor("the settings window", [&] { return user.windowUp("frmSettings"); });
        user.press(Qt::Key_Right); // the tabs have the focus first
        user.press(Qt::Key_Right);
        user.press(Qt::Key_F5);
        user.waitUntilIdle();
        tabTo(user, "cmbHD");
        user.press(Qt::Key_End);
        user.press(Qt::Key_Up);
        user.waitUntilIdle();
        EXPECT_TRUE(user.text("frmSettings.cmbHD").startsWith("hdd3:"));
        user.pressAccessKey("cmdFormat");
        user.waitFor("the question", [&] { return user.messageUp(); });
        user.press(Qt::Key_Y, Qt::AltModifier);
        user.waitFor("the answer", [&] { return !user.messageUp(); });
        user.waitFor("the end", [&] {
            return user.entries("frmSettings.cmbHD").value(2).endsWith(" - Playstation2 Formatted");
        });
        user.waitFor("the tools", [&] { return user.enabled("cmdFormat"); });
        user.press(Qt::Key_Escape);
        user.waitFor("the settings to close", [&] { return !user.windowUp("frmSettings"); });
    });
    EXPECT_TRUE(bench.run({"tarn_toc", "hdd3:"}).startsWith("type"));
}

} // namespace
} // namespace tarnwell::test
