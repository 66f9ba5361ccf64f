#include "logic/game_list_fixture.h"

namespace tarnwell::test {

namespace {

struct DeleteGames : GameListTest {
    DeleteGames() { list({"Lantern", "Copper Run", "Fen"}); }
};

} // namespace

TEST_F(DeleteGames, TheButtonOffersBothWaysBelowItself) {
    QStringList menus;
    frmMain.menuWanted.connect([&](ui::PopupMenu& menu, const ui::Control& control) {
        menus += menu.name + " below " + control.name;
    });
    ui::click(frmMain.cmdDelete);
    EXPECT_EQ(menus, QStringList("mnuDelete below cmdDelete"));
    EXPECT_TRUE(ports.dialogs.questions.isEmpty());
}

TEST_F(DeleteGames, AsksThenDeletesOneAfterTheOtherAndReadsTheListAnew) {
    select({0, 1});
    answerTocWith("type\r\nDVD 4193280KB                SLUS_990.71   Fen\r\n");
    ui::click(frmMain.mnuDeleteNow);
    EXPECT_EQ(ports.dialogs.questions,
              QStringList("Are you sure you would like to permanently delete the following game(s)?"
                          "\r\n\r\nLantern\r\nCopper Run\r\n"));
    EXPECT_EQ(commandsSince(),
              QStringList({"delete 192.168.0.10 Lantern", "delete 192.168.0.10 \"Copper Run\"", "query",
                           "tarn_toc 192.168.0.10"}));
    EXPECT_EQ(names(), QStringList("Fen"));
    EXPECT_EQ(balloons(), QStringList("Copper Run deleted from HDD"));
    EXPECT_TRUE(ports.dialogs.messages.empty());
}

TEST_F(DeleteGames, TheBalloonComesWhenTheListHasBeenReadAnew) {
    select({0});
    ui::click(frmMain.mnuDeleteNow);
    EXPECT_EQ(journal().mid(journal().size() - 4),
              Journal({"run delete 192.168.0.10 Lantern", "run query", "run tarn_toc 192.168.0.10",
                       "balloon Lantern deleted from HDD"}));
}

TEST_F(DeleteGames, EachGameIsFollowedByAPauseOfASecond) {
    select({0, 1, 2});
    const qint64 before = ports.clock.now;
    ui::click(frmMain.mnuDeleteNow);
    EXPECT_GE(ports.clock.now - before, 3000);
    const auto& children = ports.launcher.children;
    const auto first = children.size() - 5; // three deletes, then the list
    EXPECT_GE(children[first + 1]->startedAt - children[first]->startedAt, 1000);
}

TEST_F(DeleteGames, ASilentToolIsNotRunAgain) {
    select({0});
    ports.launcher.on("tarnwell.exe delete", silent());
    ui::click(frmMain.mnuDeleteNow);
    EXPECT_EQ(commandsSince().filter("delete").size(), 1);
}

TEST_F(DeleteGames, NoMeansNo) {
    select({0});
    ports.dialogs.questionAnswer = false;
    ui::click(frmMain.mnuDeleteNow);
    ui::click(frmMain.mnuDeleteQueue);
    EXPECT_EQ(ports.dialogs.questions.size(), 2);
    EXPECT_EQ(commandsSince(), QStringList());
    expectNothingQueued();
}

TEST_F(DeleteGames, NothingSelectedAsksForNothingAndReadsTheListAnew) {
    ui::click(frmMain.mnuDeleteNow);
    EXPECT_EQ(
        ports.dialogs.questions,
        QStringList("Are you sure you would like to permanently delete the following game(s)?\r\n\r\n"));
    EXPECT_EQ(commandsSince(), QStringList({"query", "tarn_toc 192.168.0.10"}));
}

TEST_F(DeleteGames, OnlyTheGamesThatWereAskedAboutAreDeleted) {
    select({0});
    ports.dialogs.whileOpen = [this] {
        ports.pump.after(500, [this] {
            frmMain.lstHD.setSelected(0, false);
            select({2});
        });
    };
    select({1});
    ui::click(frmMain.mnuDeleteNow);
    EXPECT_EQ(commandsSince().filter("delete"),
              QStringList({"delete 192.168.0.10 Lantern", "delete 192.168.0.10 \"Copper Run\""}));
}

TEST_F(DeleteGames, AListThatIsEmptiedMeanwhileDoesNoHarm) {
    select({0, 1});
    ports.pump.after(500, [this] { ui::type(frmMain.txtIP, "10.0.0.2"); });
    ui::click(frmMain.mnuDeleteNow);
    EXPECT_EQ(commandsSince().filter("delete"),
              QStringList({"delete 192.168.0.10 Lantern", "delete 192.168.0.10 \"Copper Run\""}));
    EXPECT_EQ(commandsSince().last(), "tarn_toc 10.0.0.2");
}

TEST_F(DeleteGames, ThePointerIsTheHourglassMeanwhile) {
    select({0});
    ui::MousePointer meanwhile = ui::MousePointer::Default;
    ports.pump.after(500, [&] { meanwhile = frmMain.mousePointer; });
    ui::click(frmMain.mnuDeleteNow);
    EXPECT_EQ(meanwhile, ui::MousePointer::Hourglass);
    EXPECT_EQ(frmMain.mousePointer, ui::MousePointer::Default);
}

TEST_F(DeleteGames, ALocalDiskGoesByItsFirstFiveCharacters) {
    answerQueryWith("\thdd10:  114473MB, formatted Playstation 2 HDD\r\n");
    useLocalDisk();
    list({"Lantern"});
    select({0});
    ui::click(frmMain.mnuDeleteNow);
    ui::click(frmMain.mnuDeleteQueue);
    EXPECT_EQ(commandsSince().first(), "delete hdd10 Lantern");
    select({0});
    ui::click(frmMain.mnuDeleteQueue);
    EXPECT_EQ(commandsOfJobs(), QStringList("delete hdd10 Lantern"));
}

TEST_F(DeleteGames, AConsoleThatHasGoneIsToldAfterwards) {
    select({0});
    ports.ping.reply = {.status = FakePing::kTimedOut};
    ui::click(frmMain.mnuDeleteNow);
    EXPECT_EQ(commandsSince().first(), "delete 192.168.0.10 Lantern");
    EXPECT_TRUE(lastMessage().startsWith("A PS2 console could not be found"));
    EXPECT_EQ(frmMain.mousePointer, ui::MousePointer::Default);
}

TEST_F(DeleteGames, ExitMeanwhileDeletesNoMore) {
    select({0, 1});
    ports.pump.after(500, [this] { ui::click(frmMain.mnuExit); });
    ui::click(frmMain.mnuDeleteNow);
    EXPECT_TRUE(ports.pump.ended());
    EXPECT_EQ(commandsSince(), QStringList("delete 192.168.0.10 Lantern"));
}

TEST_F(DeleteGames, ByQueueEveryGameBecomesAJob) {
    select({0, 1});
    ui::click(frmMain.mnuDeleteQueue);
    EXPECT_EQ(ports.dialogs.questions,
              QStringList("Are you sure you would like to add the following game(s) to the job queue for "
                          "deletion?\r\n\r\nLantern\r\nCopper Run\r\n"));
    EXPECT_EQ(commandsOfJobs(),
              QStringList({"delete 192.168.0.10 Lantern", "delete 192.168.0.10 \"Copper Run\""}));
    EXPECT_EQ(frmMain.lstJob.row(1).text, "Pending");
    EXPECT_EQ(frmMain.lstJob.row(1).subItems,
              QStringList({"Delete", "192.168.0.10", "", "Copper Run", "", "", ""}));
    EXPECT_TRUE(frmMain.cmdStart.enabled);
    EXPECT_TRUE(frmMain.cmdRemove.enabled);
    EXPECT_TRUE(frmMain.cmdClear.enabled);
    EXPECT_EQ(balloons(), QStringList("Delete Lantern, Copper Run,  job(s) has been added to the job queue"));
    EXPECT_EQ(commandsSince(), QStringList());
    EXPECT_EQ(frmMain.lstHD.count(), 3);
}

TEST_F(DeleteGames, ByQueueTheBalloonFollowsTheJobs) {
    frmMain.lstJob.rowAppended.connect([this](int) { ports.journal += "job"; });
    select({0, 2});
    ports.journal.clear();
    ui::click(frmMain.mnuDeleteQueue);
    EXPECT_EQ(journal(), Journal({"job", "job",
                                  "balloon Delete Lantern, Fen,  job(s) has been added to the job queue"}));
}

TEST_F(DeleteGames, ByQueueNothingSelectedLeavesTheQueueEmpty) {
    ui::click(frmMain.mnuDeleteQueue);
    EXPECT_EQ(frmMain.lstJob.count(), 0);
    EXPECT_FALSE(frmMain.cmdStart.enabled);
}

TEST_F(DeleteGames, NoBalloonsIfTheUserWantsNone) {
    store("BalloonTips", "1");
    select({0});
    ui::click(frmMain.mnuDeleteQueue);
    ui::click(frmMain.mnuDeleteNow);
    EXPECT_EQ(balloons(), QStringList());
}

TEST_F(DeleteGames, ManyLongNamesWithQuotesAreAskedForWhole) {
    QStringList games;
    for (int i = 0; i < 100; ++i)
        games += QString::number(i) + kLongName;
    list(games);
    for (int i = 0; i < 100; ++i)
        select({i});
    ui::click(frmMain.mnuDeleteQueue);
    EXPECT_TRUE(ports.dialogs.questions.at(0).endsWith("\r\n\r\n" + games.join("\r\n") + "\r\n"));
    EXPECT_EQ(commandsOfJobs().last(), "delete 192.168.0.10 \"99" + kLongName + '"');
    EXPECT_LE(balloons().at(0).size(), 255) << "the tray has room for no more";
}

} // namespace tarnwell::test
