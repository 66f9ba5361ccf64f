#include "logic/game_list_fixture.h"

namespace tarnwell::test {

namespace {

struct DeleteGames : GameListTest {
    DeleteGames() { list({"Ratchet", "Tekken Tag", "Ico"}); }
};

} // namespace

TEST_F(DeleteGames, TheButtonOffersBothWaysBelowItself) {
    std::pair<int, int> place;
    frmMain.mnuDelete.poppedUp.connect([&](int x, int y) { place = {x, y}; });
    frmMain.fmBrowse.top = 30;
    frmMain.cmdDelete.left = 100;
    frmMain.cmdDelete.top = 2000;
    frmMain.cmdDelete.height = 375;
    ui::click(frmMain.cmdDelete);
    EXPECT_EQ(place, std::pair(frmMain.fmBrowse.left + 100, 30 + 2000 + 375));
    EXPECT_TRUE(ports.dialogs.questions.isEmpty());
}

TEST_F(DeleteGames, AsksThenDeletesOneAfterTheOtherAndReadsTheListAnew) {
    select({0, 1});
    answerTocWith("type\r\nDVD 4193280KB                SLUS_200.71   Ico\r\n");
    ui::click(frmMain.mnuDeleteNow);
    EXPECT_EQ(ports.dialogs.questions,
              QStringList("Are you sure you would like to permanently delete the following game(s)?"
                          "\r\n\r\nRatchet\r\nTekken Tag\r\n"));
    EXPECT_EQ(commandsSince(),
              QStringList({"delete 192.168.0.10 Ratchet", "delete 192.168.0.10 \"Tekken Tag\"", "query",
                           "tarn_toc 192.168.0.10"}));
    EXPECT_EQ(names(), QStringList("Ico"));
    EXPECT_EQ(balloons(), QStringList("Tekken Tag deleted from HDD"));
    EXPECT_TRUE(ports.dialogs.messages.empty());
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
              QStringList({"delete 192.168.0.10 Ratchet", "delete 192.168.0.10 \"Tekken Tag\""}));
}

TEST_F(DeleteGames, AListThatIsEmptiedMeanwhileDoesNoHarm) {
    select({0, 1});
    ports.pump.after(500, [this] { ui::type(frmMain.txtIP, "10.0.0.2"); });
    ui::click(frmMain.mnuDeleteNow);
    EXPECT_EQ(commandsSince().filter("delete"),
              QStringList({"delete 192.168.0.10 Ratchet", "delete 192.168.0.10 \"Tekken Tag\""}));
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
    list({"Ratchet"});
    select({0});
    ui::click(frmMain.mnuDeleteNow);
    ui::click(frmMain.mnuDeleteQueue);
    EXPECT_EQ(commandsSince().first(), "delete hdd10 Ratchet");
    select({0});
    ui::click(frmMain.mnuDeleteQueue);
    EXPECT_EQ(commandsOfJobs(), QStringList("delete hdd10 Ratchet"));
}

TEST_F(DeleteGames, AConsoleThatHasGoneIsToldAfterwards) {
    select({0});
    ports.ping.reply = {.status = FakePing::kTimedOut};
    ui::click(frmMain.mnuDeleteNow);
    EXPECT_EQ(commandsSince().first(), "delete 192.168.0.10 Ratchet");
    EXPECT_TRUE(lastMessage().startsWith("A PS2 console could not be found"));
    EXPECT_EQ(frmMain.mousePointer, ui::MousePointer::Default);
}

TEST_F(DeleteGames, ABusyToolIsToldForEachGame) {
    select({0, 1});
    ports.launcher.on("tarnwell.exe tarn_toc", {.output = {{"type\r\n", 10000}}, .endsAtMs = 10100});
    ports.pump.after(100, [this] { ui::click(frmMain.mnuDeleteNow); });
    ui::click(frmMain.cmdAttach);
    EXPECT_EQ(ports.dialogs.messageTexts().filter("Unexpected error.").size(), 2);
    EXPECT_TRUE(commandsSince().filter("delete").isEmpty());
}

TEST_F(DeleteGames, ExitMeanwhileDeletesNoMore) {
    select({0, 1});
    ports.pump.after(500, [this] { ui::click(frmMain.mnuExit); });
    ui::click(frmMain.mnuDeleteNow);
    EXPECT_TRUE(ports.pump.ended());
    EXPECT_EQ(commandsSince(), QStringList("delete 192.168.0.10 Ratchet"));
}

TEST_F(DeleteGames, ByQueueEveryGameBecomesAJob) {
    select({0, 1});
    ui::click(frmMain.mnuDeleteQueue);
    EXPECT_EQ(ports.dialogs.questions,
              QStringList("Are you sure you would like to add the following game(s) to the job queue for "
                          "deletion?\r\n\r\nRatchet\r\nTekken Tag\r\n"));
    EXPECT_EQ(commandsOfJobs(),
              QStringList({"delete 192.168.0.10 Ratchet", "delete 192.168.0.10 \"Tekken Tag\""}));
    EXPECT_EQ(frmMain.lstJob.row(1).text, "Pending");
    EXPECT_EQ(frmMain.lstJob.row(1).subItems,
              QStringList({"Delete", "192.168.0.10", "", "Tekken Tag", "", "", ""}));
    EXPECT_TRUE(frmMain.cmdStart.enabled);
    EXPECT_TRUE(frmMain.cmdRemove.enabled);
    EXPECT_TRUE(frmMain.cmdClear.enabled);
    EXPECT_EQ(balloons(), QStringList("Delete Ratchet, Tekken Tag,  job(s) has been added to the job queue"));
    EXPECT_EQ(commandsSince(), QStringList());
    EXPECT_EQ(frmMain.lstHD.count(), 3);
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
