#include "end_to_end/queue_user.h"

namespace tarnwell::test {
namespace {

using Queue = QueueUser;

TEST_F(Queue, OfAllKindsOfJobsIsWorkedOffAndEveryCopyIsTheGame) {
    play([&](User& user) {
        openGames(user);
        queueCopyToPc(user, "my backup.iso");
        queueCopyToConsole(user);
        queueCopyToSecondDisk(user);
        user.selectRow("lstHD", "Lantern");
        queueDelete(user);
        queueInstall(user, "Second Harvest");
        queueMakeIso(user, "from disc.iso");
        EXPECT_EQ(
            user.rows("lstJob"),
            (QStringList{
                "Pending | Backup to PC | hdd1: | " + bench.path("my backup.iso") + " | HARVEST |  |  | ",
                "Pending | Copy to PS2 | hdd1: | 127.0.0.1 | HARVEST |  |  | ",
                "Pending | Copy to HDD | hdd1: | hdd2: | HARVEST |  |  | ",
                "Pending | Delete | hdd1: |  | Lantern |  |  | ",
                "Pending | Install | " + image + " | hdd1: | Second Harvest | SLUS_999.99 | CD-ROM | ",
                "Pending | Make ISO | D: | " + bench.path("from disc.iso") + " | HARVEST |  |  | "}));
        start(user);
        user.waitUntilIdle();
        EXPECT_EQ(results(user), QStringList(6, "Complete"));
        EXPECT_TRUE(user.enabled("cmdStart"));
        EXPECT_FALSE(user.windowUp("frmStatus"));
    });
    // Not compared as texts: a difference would print millions of bytes.
    const QByteArray game = contents(image);
    EXPECT_TRUE(contents(bench.path("my backup.iso")) == game);
    EXPECT_TRUE(contents(bench.path("from disc.iso")) == game);
    EXPECT_TRUE(extract("127.0.0.1", "HARVEST") == game);
    EXPECT_TRUE(extract("hdd2:", "HARVEST") == game);
    EXPECT_TRUE(extract("hdd1:", "Second Harvest") == game);
    EXPECT_FALSE(bench.run({"tarn_toc", "hdd1:"}).contains("Lantern"));
}

TEST_F(Queue, AFailedJobKeepsItsReasonAndStopsNothing) {
    write(bench.path("old.iso"), "not to be lost");
    play([&](User& user) {
        openGames(user);
        queueCopyToPc(user, "old.iso");
        user.selectRow("lstHD", "Copper Valley");
        queueCopyToSecondDisk(user);
        user.selectRow("lstHD", "HARVEST");
        queueCopyToPc(user, "new.iso");
        start(user);
        user.waitUntilIdle();
        EXPECT_EQ(results(user), (QStringList{"Error (File already exists)",
                                              "Error (Insufficient disk space)", "Complete"}));
    });
    EXPECT_EQ(contents(bench.path("old.iso")), "not to be lost");
    EXPECT_TRUE(contents(bench.path("new.iso")) == contents(image));
}

TEST_F(Queue, CancelledInTheMiddleGoesOnWhereItWas) {
    play([&](User& user) {
        openGames(user);
        queueCopyToPc(user, "first.iso");
        queueCopyToSecondDisk(user);
        queueCopyToPc(user, "third.iso");
        bench.behave("[inject_cd]\nhang_at_percent = 51\n");
        start(user);
        user.waitForText("lblTask", "Currently on Job 2 of 3");
        user.waitFor("half of the job", [&] { return user.percent("picCurrent") == 50; });
        EXPECT_EQ(results(user), (QStringList{"Complete", "Active", "Pending"}));
        EXPECT_EQ(user.percent("picOverall"), 49); // a third of 50, and 33
        user.click("frmStatus.cmdStop");
        user.waitUntilIdle();
        EXPECT_EQ(results(user), (QStringList{"Complete", "Aborted", "Aborted"}));
        EXPECT_EQ(bench.log().count("< failed: Interrupted."), 1) << bench.log().toStdString();
        EXPECT_FALSE(bench.run({"tarn_toc", "hdd2:"}).contains("HARVEST"));
        EXPECT_FALSE(QFile::exists(bench.path("third.iso")));

        bench.behave({});
        user.bringBack("frmMain");
        user.click("cmdStart");
        user.waitUntilIdle();
        EXPECT_EQ(results(user), QStringList(3, "Complete"));
    });
    EXPECT_EQ(logged("extract").count("first.iso"), 1) << "what is complete is not done again";
    EXPECT_TRUE(contents(bench.path("third.iso")) == contents(image));
    EXPECT_TRUE(extract("hdd2:", "HARVEST") == contents(image));
}

} // namespace
} // namespace tarnwell::test
