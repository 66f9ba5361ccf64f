#include "end_to_end/queue_user.h"

#include <QApplication>

namespace tarnwell::test {
namespace {

/// A user who looks which row is marked and trusts it.
class ChosenRows : public QueueUser {
protected:
    void queueTwoDeletes(User& user) const {
        openDisk(user);
        user.click("optBrowse");
        user.selectRow("lstHD", "Lantern");
        user.alsoSelectRow("lstHD", "Marsh Runner");
        queueDelete(user);
        user.click("optJobQueue");
        user.waitUntilIdle();
    }
    void queueOneInstall(User& user, const QString& name) const {
        queueInstall(user, name);
        user.click("optJobQueue");
        user.waitUntilIdle();
    }
    static void remove(User& user) {
        user.click("cmdRemove");
        user.waitUntilIdle();
    }
    static bool asked(User& user) {
        return user.look([] { return QApplication::activeModalWidget() != nullptr; });
    }
};

TEST_F(ChosenRows, TheOnlyJobCanBeEditedAndRemovedAfterOneClick) {
    play([&](User& user) {
        openDisk(user);
        queueOneInstall(user, "Copper Run");
        user.rightClickBelowRows("lstJob");
        user.waitUntilIdle();
        EXPECT_FALSE(asked(user)) << "nothing is marked yet";
        user.selectRow("lstJob", "Copper Run");
        user.rightClickBelowRows("lstJob");
        user.answer("query");
        user.waitUntilIdle();
        remove(user);
        EXPECT_EQ(user.rows("lstJob"), QStringList());
        EXPECT_FALSE(user.enabled("cmdRemove"));
    });
}

TEST_F(ChosenRows, AfterARemovalNothingIsChosenUntilTheNextClick) {
    play([&](User& user) {
        queueTwoDeletes(user);
        user.selectRow("lstJob", "Marsh Runner");
        remove(user);
        ASSERT_EQ(user.rows("lstJob").size(), 1);
        user.rightClickBelowRows("lstJob");
        user.waitUntilIdle();
        EXPECT_FALSE(asked(user));
        remove(user);
        ASSERT_EQ(user.rows("lstJob").size(), 1);
        user.selectRow("lstJob", "Lantern");
        remove(user);
        EXPECT_EQ(user.rows("lstJob"), QStringList());
    });
}

TEST_F(ChosenRows, AJobThatCameAfterClearJobsCanBeChosen) {
    play([&](User& user) {
        queueTwoDeletes(user);
        user.selectRow("lstJob", "Lantern");
        user.click("cmdClear");
        user.waitUntilIdle();
        user.click("cmdControls");
        queueOneInstall(user, "Copper Run");
        user.selectRow("lstJob", "Copper Run");
        remove(user);
        EXPECT_EQ(user.rows("lstJob"), QStringList());
    });
}

TEST_F(ChosenRows, TheOnlyGameIsCopiedAfterOneClickAlsoWhenTheListWasReadAgain) {
    for (const char* game : {"Lantern", "Marsh Runner", "Copper Valley"})
        bench.run({"delete", "hdd1:", game});
    play([&](User& user) {
        openDisk(user);
        user.click("optBrowse");
        for (const char* copy : {"one.iso", "two.iso"}) {
            user.click("cmdAttach");
            user.waitUntilIdle();
            ASSERT_EQ(user.rows("lstHD").size(), 1);
            user.selectRow("lstHD", "HARVEST");
            queueCopyToPc(user, copy);
        }
        EXPECT_EQ(user.rows("lstJob").size(), 2);
    });
}

TEST_F(ChosenRows, AClickOnOneOfSeveralGamesDeletesThatOneAlone) {
    play([&](User& user) {
        openDisk(user);
        user.click("optBrowse");
        user.selectRow("lstHD", "Lantern");
        user.alsoSelectRow("lstHD", "Marsh Runner");
        user.alsoSelectRow("lstHD", "Copper Valley");
        user.selectRow("lstHD", "Copper Valley");
        queueDelete(user);
        ASSERT_EQ(user.rows("lstJob").size(), 1);
        EXPECT_TRUE(user.rows("lstJob").first().contains("Copper Valley"));
    });
}

} // namespace
} // namespace tarnwell::test
