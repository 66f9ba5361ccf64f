#include "end_to_end/whole_program.h"

namespace tarnwell::test {
namespace {

/// A game of the same name lies on both disks. The first disk's games are on view, and the second is chosen.
class WrongDisk : public WholeProgram {
protected:
    WrongDisk() { bench.run({"inject_cd", "hdd2:", "Lantern", makeImage()}); }

    static void chooseOtherDisk(User& user) {
        openDisk(user);
        user.click("optBrowse");
        user.selectRow("lstHD", "Lantern");
        user.choose("cmbHD", 1);
        user.waitUntilIdle();
    }
    static void expectRefused(User& user) {
        const QString text = user.confirmMessage();
        EXPECT_TRUE(text.contains("the games of hdd1:")) << text.toStdString();
        EXPECT_TRUE(text.contains("but hdd2:")) << text.toStdString();
        user.waitUntilIdle();
        EXPECT_EQ(user.look([&] { return user.program().program().shared().frmMain.lstJob.count(); }), 0);
    }
    void expectNothingSent() const {
        for (const char* command : {"delete", "modify", "extract", "inject_cd hdd1", "inject_cd 127"})
            EXPECT_EQ(logged(command), "");
        for (const char* disk : {"hdd1:", "hdd2:"})
            EXPECT_TRUE(bench.run({"tarn_toc", disk}).contains("Lantern")) << disk;
    }
};

TEST_F(WrongDisk, IsNotDeletedFrom) {
    play([&](User& user) {
        chooseOtherDisk(user);
        for (const char* way : {"mnuDeleteNow", "mnuDeleteQueue"}) {
            user.click("cmdDelete");
            user.clickMenuEntry(way);
            expectRefused(user);
        }
    });
    expectNothingSent();
}

TEST_F(WrongDisk, IsNotRenamedOn) {
    play([&](User& user) {
        chooseOtherDisk(user);
        user.editLabel("lstHD", "Beacon");
        expectRefused(user);
        EXPECT_TRUE(user.rows("lstHD").last().startsWith("Lantern | "));
    });
    expectNothingSent();
}

TEST_F(WrongDisk, IsNotCopiedFrom) {
    play([&](User& user) {
        chooseOtherDisk(user);
        user.click("cmdBackupPC");
        expectRefused(user);
        user.click("cmdBackupPS2");
        expectRefused(user);
        user.click("cmdBackupHDD");
        user.clickMenuEntry("mnuHDD(0)");
        expectRefused(user);
    });
    expectNothingSent();
}

TEST_F(WrongDisk, IsNotInstalledOnAsItsFreeSpaceIsNotKnown) {
    play([&](User& user) {
        chooseOtherDisk(user);
        user.click("optInstall");
        pickImage(user, "game.iso");
        user.waitUntilIdle();
        for (const char* button : {"cmdInstall", "cmdAddGame"}) {
            user.click(button);
            expectRefused(user);
        }
        EXPECT_EQ(user.text("txtGameName"), "HARVEST");
    });
    expectNothingSent();
}

TEST_F(WrongDisk, IsTheRightOneAfterARefresh) {
    play([&](User& user) {
        chooseOtherDisk(user);
        user.click("cmdAttach");
        user.waitUntilIdle();
        user.selectRow("lstHD", "Lantern");
        user.click("cmdDelete");
        user.clickMenuEntry("mnuDeleteNow");
        EXPECT_TRUE(user.agree().contains("Lantern"));
        user.waitUntilIdle();
    });
    EXPECT_TRUE(bench.run({"tarn_toc", "hdd1:"}).contains("Lantern"));
    EXPECT_FALSE(bench.run({"tarn_toc", "hdd2:"}).contains("Lantern"));
}

} // namespace
} // namespace tarnwell::test
