#include "end_to_end/queue_user.h"

namespace tarnwell::test {
namespace {

/// What the windows say of work that went wrong, or was not done at all.
class TrueReports : public QueueUser {
protected:
    static constexpr unsigned long kPatienceMs = 10'000;

    void openWithImage(User& user) const {
        openDisk(user);
        pickImage(user, "game.iso");
        user.waitUntilIdle();
        user.type("txtGameName", "MEADOW");
    }
};

TEST_F(TrueReports, AFailedInstallIsToldInTheWordsOfTheTool) {
    play([&](User& user) {
        openWithImage(user);
        bench.behave("[inject_cd]\nfail = no_space\nfail_at_percent = 45\n");
        startInstall(user);
        const QString told = user.confirmMessage();
        EXPECT_TRUE(told.startsWith("MEADOW was not installed completely. The last words of tarnwell.exe: "))
            << told.toStdString();
        EXPECT_TRUE(told.endsWith("not enough free space.")) << told.toStdString();
        user.waitUntilIdle();
    });
}

TEST_F(TrueReports, AToolThatDoesNotStopIsWaitedForAndCanBeEndedByForce) {
    play([&](User& user) {
        openWithImage(user);
        bench.behave("[inject_cd]\ndelay_ms_per_step = 1000\nignore_interrupt = yes\n");
        startInstall(user);
        waitForPercent(user, 1);
        user.click("frmStatus.cmdStop");
        user.waitForText("lblRemaining", "Waiting for tarnwell.exe to end");
        QThread::msleep(kPatienceMs);
        user.click("frmStatus.cmdStop");
        EXPECT_TRUE(user.agree().contains("end it by force"));
        user.waitUntilIdle();
        EXPECT_FALSE(user.windowUp("frmStatus"));
        EXPECT_TRUE(user.enabled("cmdAttach"));
        const QString install = bench.log().section("> inject_cd hdd1: MEADOW", 1).section('>', 0, 0);
        EXPECT_FALSE(install.contains('<')) << "it was not ended by force: " << bench.log().toStdString();
    });
}

TEST_F(TrueReports, NothingIsStartedBesideAToolAtWork) {
    play([&](User& user) {
        openDisk(user);
        queueInstall(user, "MEADOW");
        bench.behave("[tarn_toc]\nstart_delay_ms = 3000\n");
        user.click("cmdAttach");
        user.waitFor("the tool to start", [&] { return bench.log().count("> tarn_toc") == 2; });
        start(user);
        EXPECT_TRUE(user.confirmMessage().startsWith("tarnwell.exe is still at work"));
        user.waitUntilIdle();
        EXPECT_EQ(results(user), QStringList("Pending"));
        EXPECT_FALSE(bench.log().contains("MEADOW"));
    });
}

TEST_F(TrueReports, AQueueAfterALostConnectionShowsItsProgress) {
    play([&](User& user) {
        openConsole(user);
        queueInstall(user, "MEADOW");
        bench.behave("[tarn_toc]\nfail = connection_closed\n");
        user.click("cmdAttach");
        EXPECT_TRUE(user.confirmMessage().contains("restart tarnd_svr.elf"));
        user.waitUntilIdle();
        bench.behave("");
        start(user);
        user.waitUntilIdle();
        user.bringBack("frmMain");
        EXPECT_EQ(results(user), QStringList("Complete"));
    });
}

} // namespace
} // namespace tarnwell::test
