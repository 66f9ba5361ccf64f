#include "end_to_end/ticker.h"
#include "end_to_end/whole_program.h"

#include <QProcess>

#include <chrono>
#include <csignal>
#include <iostream>
#include <sys/resource.h>
#include <thread>

namespace tarnwell::test {
namespace {

#if defined(__SANITIZE_ADDRESS__)
constexpr double kMostWorkAtATimeMs = 1000; // ten to twenty times slower
#else
constexpr double kMostWorkAtATimeMs = 50;
#endif

class Faults : public WholeProgram {
protected:
    /// One job of every kind, as the program makes them, without a dialog for each.
    void queueJobs(User& user) const {
        const QString copy = bench.path("copy.iso"), disc = bench.path("disc.iso");
        user.look([&] {
            ui::FrmMain& frmMain = user.program().program().shared().frmMain;
            frmMain.lstJob.clear();
            for (const QString& command : {"inject_cd hdd1: FRESH " + image, "extract hdd1: HARVEST " + copy,
                                           "dump cd4: " + disc, QString("delete hdd1: FRESH")})
                frmMain.lstJob.append(
                    {.text = "Pending", .subItems = {"Install", "", "", "", "", "", ""}, .tag = command});
            frmMain.cmdStart.enabled = true;
        });
    }
    QStringList runQueue(User& user) const {
        user.bringBack("frmMain");
        if (!user.shown("cmdStart"))
            user.click("optJobQueue");
        user.click("cmdStart");
        user.waitUntilIdle();
        QStringList results;
        for (const QString& row : user.rows("lstJob"))
            results += row.section(" | ", 0, 0);
        return results;
    }
    void makeTool(const char* script) const {
        QFile::rename(bench.tool(), bench.path("real-tool"));
        write(bench.tool(), script);
        QFile::setPermissions(bench.tool(), QFile::ReadOwner | QFile::ExeOwner);
    }

    const QString image = makeImage();
};

TEST_F(Faults, AToolThatDiesAtAnyPointOfAnyJobStopsNoQueue) {
    bench.run({"inject_cd", "hdd1:", "HARVEST", image});
    play([&](User& user) {
        openDisk(user);
        for (const char* point : {"1", "50", "99"}) {
            queueJobs(user);
            bench.behave("[inject_cd]\nexit_at_percent = " + QString(point) +
                         "\n[extract]\nexit_at_percent = " + point + "\n[dump]\nexit_at_percent = " + point +
                         "\n[delete]\nexit_at_percent = 0\n");
            EXPECT_EQ(runQueue(user), QStringList({"Active", "Active", "Active", "Complete"})) << point;
            EXPECT_FALSE(user.messageUp());

            bench.behave({});
            for (const char* half : {"copy.iso", "disc.iso"})
                EXPECT_TRUE(QFile::remove(bench.path(half)));
            EXPECT_EQ(runQueue(user).first(3), QStringList({"Complete", "Complete", "Complete"}));
            EXPECT_EQ(contents(bench.path("copy.iso")).left(3'000'000), contents(image).left(3'000'000));
            for (const char* whole : {"copy.iso", "disc.iso"})
                EXPECT_TRUE(QFile::remove(bench.path(whole)));
            bench.run(
                {"delete", "hdd1:", "FRESH"}); // the job that should have is done, as far as the queue knows
        }
    });
}

/// It goes on without a word for a second, and holds neither the windows nor the run.
TEST_F(Faults, AToolThatClosesItsOutputIsWaitedForUntilItHasGone) {
    makeTool(R"(#!/bin/sh
case $1 in
inject_cd) printf '50%%, 1 min remaining, 9.00 MB/sec\r'; exec >&- 2>&-; sleep 1; touch "$(dirname "$0")/gone" ;;
*) exec "$(dirname "$0")/real-tool" "$@" ;;
esac
)");
    Ticker ticker;
    play([&](User& user) {
        openDisk(user);
        pickImage(user, "game.iso");
        user.waitUntilIdle();
        user.look([&] { ticker.start(); });
        startInstall(user);
        user.waitUntilIdle();
        EXPECT_TRUE(QFile::exists(bench.path("gone")));
        EXPECT_GT(ticker.ticks(), 50);
    });
}

TEST_F(Faults, AToolThatHangsInAQueryKeepsNobodyFromLeaving) {
    play([&](User& user) {
        openDisk(user);
        bench.behave("[tarn_toc]\nstart_delay_ms = 3000\n");
        user.click("cmdAttach");
        user.waitFor("the tool to start", [&] { return bench.log().count("> tarn_toc") == 2; });
        user.click("cmdSettings");
        user.waitFor("the settings", [&] { return user.windowUp("frmSettings"); });
        user.closeWindow("frmMain");
        user.waitFor("the program to end", [&] { return user.program().ports().pump.ended(); });
    });
}

TEST_F(Faults, TheWindowsLiveWhileCancelWaitsForAStubbornTool) {
    Ticker ticker;
    play([&](User& user) {
        openDisk(user);
        pickImage(user, "game.iso");
        user.waitUntilIdle();
        bench.behave("[inject_cd]\ndelay_ms_per_step = 20\nignore_interrupt = yes\n");
        startInstall(user);
        waitForPercent(user, 5);
        user.click("frmStatus.cmdStop");
        user.look([&] { ticker.start(); });
        user.click("frmStatus.chkShutdown");
        user.waitFor("the tick", [&] {
            return user.look(
                [&] { return user.program().program().shared().frmStatus->chkShutdown.value == 1; });
        });
        EXPECT_TRUE(user.windowUp("frmStatus"));
        user.waitUntilIdle();
        EXPECT_TRUE(bench.log().contains("< done")) << "the tool had not ended";
        EXPECT_GT(ticker.ticks(), 50);
        EXPECT_LT(ticker.longestWorkMs(), kMostWorkAtATimeMs);
    });
}

TEST_F(Faults, WindowEventsAreAnsweredWhileTheToolPrintsAsFastAsItCan) {
    Ticker ticker;
    play([&](User& user) {
        openDisk(user);
        pickImage(user, "game.iso");
        user.waitUntilIdle();
        bench.behave("[inject_cd]\nflood_lines = 200000\n");
        startInstall(user);
        user.look([&] { ticker.start(); });
        user.waitFor("the end", [&] { return user.messageUp() || !user.windowUp("frmStatus"); });
        const int ticks = user.look([&] { return ticker.ticks(); });
        const double wait = user.look([&] { return ticker.longestWaitMs(); });
        const double work = user.look([&] { return ticker.longestWorkMs(); });
        std::cout << ticks << " ticks; longest wait of a window event " << wait
                  << " ms, longest work between two " << work << " ms\n";
        EXPECT_GT(ticks, 50);
        EXPECT_LT(work, kMostWorkAtATimeMs);
        if (user.messageUp())
            user.confirmMessage(); // a line was torn where a read ended
        user.waitUntilIdle();
    });
}

/// No file can grow beyond a few bytes, as on a disk that has filled up.
class FullDisk {
public:
    FullDisk() {
        std::signal(SIGXFSZ, SIG_IGN);
        getrlimit(RLIMIT_FSIZE, &usual_);
        const rlimit full{kBytesLeft, usual_.rlim_max};
        setrlimit(RLIMIT_FSIZE, &full);
    }
    ~FullDisk() { setrlimit(RLIMIT_FSIZE, &usual_); }
    FullDisk(const FullDisk&) = delete;
    FullDisk& operator=(const FullDisk&) = delete;

private:
    static constexpr rlim_t kBytesLeft = 20;
    rlimit usual_{};
};

TEST_F(Faults, OnAFullDiskTheOldSettingsStayAndTheUserIsToldOfTheToolsOwn) {
    play([&](User& user) {
        user.click("cmdSettings");
        user.waitFor("the settings window", [&] { return user.windowUp("frmSettings"); });
        user.click("frmSettings.cmdExit");
        user.waitUntilIdle();
        const QByteArray settings = contents(bench.path("config.cfg"));
        const QByteArray conf = contents(bench.path("tarnwell.conf"));
        EXPECT_TRUE(conf.contains("target_kbps"));

        std::optional<FullDisk> full(std::in_place);
        user.type("txtIP", "10.9.8.7");
        user.waitUntilIdle();
        user.click("cmdSettings");
        user.waitFor("the settings window", [&] { return user.windowUp("frmSettings"); });
        user.type("txtTargetkbps", "9999");
        user.click("frmSettings.cmdExit");
        const QString told = user.confirmMessage();
        full.reset();
        EXPECT_TRUE(told.contains("tarnwell.conf could not be written")) << told.toStdString();
        EXPECT_EQ(contents(bench.path("config.cfg")), settings);
        EXPECT_EQ(contents(bench.path("tarnwell.conf")), conf);

        user.click("frmSettings.cmdExit");
        user.waitUntilIdle();
        EXPECT_TRUE(contents(bench.path("tarnwell.conf")).contains("9999")) << "there is room again";
    });
}

/// Set in the copy of this program that is to be killed.
constexpr char kFolderOfVictim[] = "TARNWELL_VICTIM_FOLDER";

TEST(Victim, InstallsUntilItIsKilled) {
    const QString folder = qEnvironmentVariable(kFolderOfVictim);
    if (folder.isEmpty())
        GTEST_SKIP() << "runs in a process of its own";
    DesktopProgram program{QtSystemFolders(folder, folder)};
    tour::runWithUser(program, [&](User& user) {
        user.type("txtIP", "127.0.0.1");
        user.click("cmdAttach");
        user.waitUntilIdle();
        user.click("cmdISO");
        user.pickFile(folder + "/game.iso");
        user.waitUntilIdle();
        user.click("cmdInstall");
        std::this_thread::sleep_for(std::chrono::seconds(60));
    });
}

TEST_F(Faults, KilledDuringAnInstallTheProgramStartsAgainWithItsSettings) {
    constexpr int kPatienceMs = 30'000;
    write(bench.path("tarnwell.conf"), "\"target_kbps\" = \"1234\"\n");
    bench.behave("[inject_cd]\ndelay_ms_per_step = 20\n"); // the tool ends by itself
    QProcess victim;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(kFolderOfVictim, bench.folder());
    victim.setProcessEnvironment(environment);
    victim.start(QCoreApplication::applicationFilePath(), {"--gtest_filter=Victim.*"});
    ASSERT_TRUE(victim.waitForStarted());
    QElapsedTimer waited;
    waited.start();
    while (!bench.log().contains("> inject_cd 127.0.0.1") && waited.elapsed() < kPatienceMs)
        victim.waitForFinished(20);
    ASSERT_TRUE(bench.log().contains("> inject_cd 127.0.0.1"));
    victim.kill();
    ASSERT_TRUE(victim.waitForFinished(kPatienceMs));

    EXPECT_TRUE(contents(bench.path("config.cfg")).contains("IP=127.0.0.1"));
    EXPECT_TRUE(contents(bench.path("config.cfg")).contains("TasksSound=")) << "no key is lost";
    EXPECT_EQ(contents(bench.path("tarnwell.conf")), "\"target_kbps\" = \"1234\"\n");
    play([&](User& user) {
        EXPECT_EQ(user.text("txtIP"), "127.0.0.1");
        EXPECT_FALSE(user.windowUp("frmStatus"));
        EXPECT_FALSE(user.enabled("cmdInstall")) << "no device is in use yet";
        user.waitFor("the tool to end",
                     [&] { return logged("inject_cd 127.0.0.1") != "" && bench.log().endsWith("< done\n"); });
        user.click("cmdAttach");
        user.waitUntilIdle();
        EXPECT_TRUE(user.rows("lstHD").join('\n').contains("HARVEST")) << "the tool was not disturbed";
        EXPECT_TRUE(user.enabled("cmdInstall"));
    });
}

} // namespace
} // namespace tarnwell::test
