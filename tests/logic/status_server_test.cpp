#include "logic/queue_test.h"
#include "ui/version.h"

namespace tarnwell::test {
namespace {

const QByteArray kRequest = "GET / HTTP/1.1\r\nHost: pc\r\n\r\n";

/// A list of jobs, and the settings window open at the page with the box and the button of the server.
struct StatusServer : QueueTest {
    StatusServer() {
        startProgram();
        ui::click(frmMain.cmdSettings);
        ui::selectTab(frmSettings->TabStrip, ui::FrmSettings::kGuiTab);
    }

    void wantServer() { EXPECT_TRUE(ui::click(frmSettings->chkStatusServer)); }
    QByteArray fetch() {
        ports.listener.sent.clear();
        ports.listener.request(kRequest);
        return ports.listener.sent.join();
    }
    /// A row of the page as text.
    QString row(const QByteArray& page, const QString& name, int occurrence = 0) {
        QStringList rows;
        for (QString line : QString::fromLatin1(page).split("\r\n", Qt::SkipEmptyParts)) {
            line.remove("<TR> ").remove("<TD>").remove(" </TR>");
            if (line.startsWith(name + "</TD>"))
                rows += line.section("</TD>", 1, 1).trimmed();
        }
        return rows.value(occurrence, "(no such row)");
    }
    bool active() { return program.shared().blnServerActive && ports.listener.port == 80; }
    bool stopped() { return !program.shared().blnServerActive && !ports.listener.port; }
    bool captionTellsOfServer() { return frmMain.caption.get() == kTitle + " - [HTTP Server Active]"; }
    bool captionIsTitle() { return frmMain.caption.get() == kTitle; }

    void installNow() {
        ports.dialogs.openFileAnswers.push_back("/games/lantern.iso");
        ui::click(frmMain.optInstall);
        ui::click(frmMain.cmdISO);
        EXPECT_TRUE(ui::click(frmMain.cmdInstall));
        showMain();
        ui::click(frmMain.optJobQueue);
    }

    static inline const QString kTitle = " Tarnwell GUI v" TARNWELL_VERSION " by mirelane";
    ui::LoadedOnTouch<ui::FrmSettings>& frmSettings = program.shared().frmSettings;
};

TEST_F(StatusServer, RunsFromTheStartOfAQueueToItsEndIfTheBoxIsTicked) {
    wantServer();
    addInstalls(2);
    int looks = 0;
    for (const int moment : {50, 3000, 5000}) {
        ports.pump.after(moment, [&] {
            ++looks;
            EXPECT_TRUE(active());
            EXPECT_TRUE(captionTellsOfServer());
        });
    }
    runQueue();
    EXPECT_EQ(looks, 3);
    EXPECT_TRUE(stopped());
    EXPECT_TRUE(captionIsTitle());
}

TEST_F(StatusServer, RunsFromTheStartOfAnInstallToItsEndIfTheBoxIsTicked) {
    wantServer();
    bool looked = false;
    ports.pump.after(3000, [&] {
        looked = true;
        EXPECT_TRUE(active());
        EXPECT_TRUE(captionTellsOfServer());
    });
    installNow();
    EXPECT_TRUE(looked);
    EXPECT_TRUE(stopped());
    EXPECT_TRUE(captionIsTitle());
}

TEST_F(StatusServer, DoesNotRunUnlessTheBoxIsTicked) {
    addInstalls(1);
    ports.pump.after(3000, [&] {
        EXPECT_TRUE(stopped());
        EXPECT_EQ(fetch(), "");
    });
    runQueue();
    showMain();
    installNow();
    EXPECT_TRUE(captionIsTitle());
}

TEST_F(StatusServer, ABoxTickedDuringWorkCountsForTheNext) {
    addInstalls(1);
    ports.pump.after(2000, [&] { wantServer(); });
    ports.pump.after(3000, [&] { EXPECT_TRUE(stopped()); });
    runQueue();
    addInstalls(1);
    bool looked = false;
    ports.pump.after(3000, [&] { looked = active(); });
    runQueue();
    EXPECT_TRUE(looked);
}

TEST_F(StatusServer, ABoxUntickedDuringWorkLeavesTheServerToItsEnd) {
    wantServer();
    addInstalls(1);
    ports.pump.after(2000, [&] { EXPECT_TRUE(ui::click(frmSettings->chkStatusServer)); });
    ports.pump.after(3000, [&] { EXPECT_TRUE(active()); });
    runQueue();
    EXPECT_TRUE(stopped());
}

TEST_F(StatusServer, IsStoppedBeforeTheEndOfWorkIsShown) {
    wantServer();
    addInstalls(1);
    std::vector<bool> paused;
    frmMain.caption.changed.connect([&] { paused.push_back(!frmMain.cmdAttach.enabled); });
    runQueue();
    EXPECT_EQ(paused, std::vector<bool>(2, true));
    EXPECT_TRUE(frmMain.cmdAttach.enabled);
}

TEST_F(StatusServer, IsStoppedAfterACancel) {
    wantServer();
    addInstalls(2);
    answerWith("inject", endless());
    cancelAfter(1000);
    runQueue();
    EXPECT_EQ(results(), QStringList({"Aborted", "Aborted"}));
    EXPECT_TRUE(stopped());
    showMain();
    cancelAfter(1000);
    installNow();
    EXPECT_TRUE(stopped());
    EXPECT_TRUE(captionIsTitle());
}

TEST_F(StatusServer, IsStoppedAfterAFailure) {
    wantServer();
    answerWith("inject", silent());
    installNow();
    EXPECT_TRUE(stopped());
    addInstalls(1);
    answerWith("inject", failing("Insufficient disk space."));
    runQueue();
    EXPECT_TRUE(stopped());
    EXPECT_TRUE(captionIsTitle());
}

TEST_F(StatusServer, IsStoppedIfTheRunItselfBreaksOff) {
    wantServer();
    addInstalls(1);
    ports.launcher.script = [](const QString&) -> std::optional<ChildScript> {
        throw std::runtime_error("out of memory");
    };
    runQueue();
    EXPECT_EQ(ports.dialogs.messages.size(), 1);
    EXPECT_TRUE(stopped());
    EXPECT_TRUE(captionIsTitle());
    EXPECT_TRUE(frmMain.cmdStart.enabled);
}

TEST_F(StatusServer, IsStoppedWhenTheProgramEndsDuringWork) {
    wantServer();
    addInstalls(1);
    answerWith("inject", endless());
    ports.pump.after(1000, [&] { frmMain.dispatch([&] { frmMain.unload(); }); });
    runQueue();
    EXPECT_TRUE(ports.pump.ended());
    EXPECT_TRUE(stopped());
}

TEST_F(StatusServer, IsStoppedByTheExitOfTheTrayToo) {
    wantServer();
    addInstalls(1);
    answerWith("inject", endless());
    ports.pump.after(1000, [&] { ui::click(frmMain.mnuExit); });
    runQueue();
    EXPECT_TRUE(ports.pump.ended());
    EXPECT_TRUE(stopped());
}

TEST_F(StatusServer, APortThatCannotBeHadIsNotTold) {
    ports.listener.portIsFree = false;
    wantServer();
    addInstalls(1);
    bool looked = false;
    ports.pump.after(3000, [&] {
        looked = true;
        EXPECT_TRUE(captionTellsOfServer());
        EXPECT_EQ(fetch(), "");
    });
    runQueue();
    EXPECT_TRUE(looked);
    EXPECT_TRUE(captionIsTitle());
    EXPECT_TRUE(ports.dialogs.messages.empty());
    EXPECT_EQ(results(), QStringList("Complete"));
}

TEST_F(StatusServer, ThePageFollowsTheQueue) {
    wantServer();
    addInstalls(2);
    QByteArray first, second;
    ports.pump.after(3000, [&] { first = fetch(); });
    ports.pump.after(8000, [&] { second = fetch(); });
    runQueue();
    EXPECT_EQ(row(first, "Current Task"), "Installing [GAME1] onto Device [192.168.0.10]");
    EXPECT_EQ(row(first, "Percent Complete"), "50%");
    EXPECT_EQ(row(first, "Elapsed Time"), "00:00:02");
    EXPECT_EQ(row(first, "Time Remaining"), "6 min remaining");
    EXPECT_EQ(row(first, "Transfer Speed"), "4.00 MB/sec");
    EXPECT_EQ(row(first, "Percent Complete", 1), "25%");
    EXPECT_EQ(row(first, "Job Status"), "Job 1 of 2");
    EXPECT_EQ(row(first, "Elapsed Time", 1), "00:00:02");
    EXPECT_EQ(row(second, "Current Task"), "Installing [GAME2] onto Device [192.168.0.10]");
    EXPECT_EQ(row(second, "Percent Complete", 1), "75%");
    EXPECT_EQ(row(second, "Job Status"), "Job 2 of 2");
}

TEST_F(StatusServer, BeforeTheFirstProgressTheWindowsOwnWordsAreShown) {
    wantServer();
    addInstalls(1);
    QByteArray page;
    ports.pump.after(50, [&] { page = fetch(); });
    runQueue();
    EXPECT_EQ(row(page, "Percent Complete"), "%");
    EXPECT_EQ(row(page, "Time Remaining"), "Time remaining: n/a");
    EXPECT_EQ(row(page, "Transfer Speed"), "n/a");
    EXPECT_EQ(row(page, "Elapsed Time"), "00:00:00");
}

TEST_F(StatusServer, AnInstallShowsTheJobNumbersAsTheyStand) {
    wantServer();
    QByteArray page;
    ports.pump.after(3000, [&] { page = fetch(); });
    installNow();
    EXPECT_EQ(row(page, "Current Task"), "Installing LANTERN");
    EXPECT_EQ(row(page, "Job Status"), "Job 0 of 0");
    EXPECT_EQ(row(page, "Elapsed Time", 1), row(page, "Elapsed Time"));

    addInstalls(2);
    runQueue();
    showMain();
    ports.pump.after(3000, [&] { page = fetch(); });
    installNow();
    EXPECT_EQ(row(page, "Job Status"), "Job 3 of 2") << "where the queue has left it";
}

TEST_F(StatusServer, AHeadRequestGetsNoAnswer) {
    wantServer();
    addInstalls(1);
    ports.pump.after(3000, [&] {
        ports.listener.request("HEAD / HTTP/1.1\r\nHost: pc\r\n\r\n");
        ports.listener.request("");
        EXPECT_EQ(ports.listener.sent.size(), 0);
        ports.listener.request("BUDGET");
        EXPECT_EQ(ports.listener.sent.size(), 1);
        ports.listener.request("GE");
        ports.listener.request("T / HTTP/1.1");
        EXPECT_EQ(ports.listener.sent.size(), 1) << "each piece is judged by itself";
    });
    runQueue();
}

TEST_F(StatusServer, TheDateIsTheSameAtEachRequest) {
    wantServer();
    addInstalls(1);
    const QByteArray date = "\r\nDate: Fri, 31 Dec 1999 23:59:59 GMT\r\n";
    for (const int moment : {1000, 3000}) {
        ports.pump.after(moment, [&] { EXPECT_TRUE(fetch().contains(date)); });
    }
    runQueue();
    EXPECT_FALSE(ports.listener.sent.isEmpty());
}

TEST_F(StatusServer, ATestRunsForTheLengthOfAMessageBox) {
    QByteArray page;
    ports.dialogs.whileOpen = [&] {
        EXPECT_TRUE(active());
        EXPECT_TRUE(captionTellsOfServer());
        page = fetch();
    };
    EXPECT_TRUE(ui::click(frmSettings->cmdTest));
    EXPECT_TRUE(stopped());
    EXPECT_TRUE(captionIsTitle());
    EXPECT_EQ(row(page, "Time Remaining"), "Time Remaining: n/a") << "the window as it is made";
    EXPECT_EQ(row(page, "Transfer Speed"), "n/a");
    ASSERT_EQ(ports.dialogs.messages.size(), 1);
    const auto& message = ports.dialogs.messages.front();
    EXPECT_EQ(message.icon, MessageIcon::Question);
    EXPECT_EQ(message.title, kTitle);
    EXPECT_EQ(message.text,
              "Leave this messagebox open during the test process.\r\n\r\n"
              "1. Open a web browser, type http://127.0.0.1 into the address field and press enter.\r\n"
              "2. Click OK to close this box.\r\n\r\n"
              "If you see the status webpage then it is working. To view it away from your LAN you must "
              "use your internet IP address. Search the web for \"what is my IP address\" to find a web "
              "site that shows it.\r\n\r\n"
              "If your browser fails to connect then you may have to configure your router to allow the "
              "port 80 connection.");
}

TEST_F(StatusServer, IsStoppedIfTheMainWindowIsClosedDuringATest) {
    ports.dialogs.whileOpen = [&] {
        EXPECT_TRUE(active());
        ui::close(frmMain);
    };
    EXPECT_TRUE(ui::click(frmSettings->cmdTest));
    EXPECT_TRUE(ports.pump.ended());
    EXPECT_TRUE(stopped());
}

TEST_F(StatusServer, ATestDuringWorkEndsTheServerAndLeavesTheTitle) {
    wantServer();
    addInstalls(1);
    bool looked = false;
    ports.pump.after(2000, [&] {
        looked = true;
        ports.dialogs.whileOpen = [&] {
            EXPECT_TRUE(active());
            EXPECT_TRUE(captionTellsOfServer()) << "the words stand there once";
            EXPECT_EQ(row(fetch(), "Job Status"), "Job 1 of 1");
        };
        EXPECT_TRUE(ui::click(frmSettings->cmdTest));
        EXPECT_TRUE(stopped());
        EXPECT_TRUE(captionIsTitle());
    });
    runQueue();
    EXPECT_TRUE(looked);
    EXPECT_TRUE(stopped());
    EXPECT_TRUE(captionIsTitle());
    EXPECT_EQ(results(), QStringList("Complete"));
}

TEST_F(StatusServer, WorkThatEndsDuringATestStopsItAndTheTestsEndHarmsNothing) {
    wantServer();
    addInstalls(1);
    ports.dialogs.whileOpen = [&] {
        ports.dialogs.whileOpen = nullptr;
        runQueue();
        EXPECT_TRUE(stopped());
    };
    EXPECT_TRUE(ui::click(frmSettings->cmdTest));
    EXPECT_TRUE(stopped());
    EXPECT_TRUE(captionIsTitle());
}

TEST_F(StatusServer, MessagesDuringWorkCarryTheTitleAlone) {
    wantServer();
    addInstalls(1);
    answerWith("inject", silent());
    runQueue();
    ASSERT_FALSE(ports.dialogs.messages.empty());
    EXPECT_EQ(ports.dialogs.messages.back().title, kTitle);
    EXPECT_EQ(ports.tray.tip(), kTitle);
}

} // namespace
} // namespace tarnwell::test
