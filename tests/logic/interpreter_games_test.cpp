#include "interpreter_fixture.h"

#include <QElapsedTimer>

namespace tarnwell {
namespace {

const char kSummary[] = "total 114473MB, used 26712MB, available 87761MB\r\n";

QString gameLine(const QString& type, const QString& size, const QString& flags, const QString& startup,
                 const QString& name) {
    return type.leftJustified(4) + size.leftJustified(10) + flags.leftJustified(15) +
           startup.leftJustified(14) + name + "\r\n";
}

QString table(const QString& games) {
    return "type     size flags          dma startup      name\r\n" + games + kSummary;
}

class GameListStage : public InterpreterTest {
protected:
    void list(const QString& answer) {
        shared.blnReadTOC = true;
        read(answer);
    }
    QString name(int row) const { return form.lstHD.row(row).text; }
    QStringList columns(int row) const { return form.lstHD.row(row).subItems; }
};

TEST_F(GameListStage, ListsEveryGameOfTheTable) {
    list(table(gameLine("DVD", "4193280KB", "+1+3", "SLUS_123.45", "First Game") +
               gameLine("CD", " 716800KB", "", "SLES_990.01", "Second")));
    ASSERT_EQ(form.lstHD.count(), 2);
    EXPECT_EQ(name(0), "First Game");
    EXPECT_EQ(columns(0), (QStringList{"SLUS_123.45", "4.00GB", "DVD", "+1+3"}));
    EXPECT_EQ(name(1), "Second");
    EXPECT_EQ(columns(1), (QStringList{"SLES_990.01", "0.68GB", "CD", ""}));
    EXPECT_EQ(form.fmBrowse.caption.get(), "Browse, Backup, and Delete - 2 Games");
    EXPECT_FALSE(shared.blnReadTOC);
}

TEST_F(GameListStage, CutsEveryColumnAtItsPlace) {
    const QStringList withGaps{"DVD",         "9",   "1048576", "999", "flags of a game",
                               "SLUS_990.71", "999", "Lantern"};
    list("type\r\n" + withGaps.join("") + "\r\n");
    ASSERT_EQ(form.lstHD.count(), 1);
    EXPECT_EQ(name(0), "Lantern");
    EXPECT_EQ(columns(0), (QStringList{"SLUS_990.71", "1.00GB", "DVD", "flags of a game"}));
}

TEST_F(GameListStage, ListsOnlyLinesThatBeginWithAType) {
    list("type\r\nSACD   1KB\r\n DVD  1KB\r\nCDDA1048576KB\r\n");
    ASSERT_EQ(form.lstHD.count(), 1);
    EXPECT_EQ(columns(0), (QStringList{"", "1.00GB", "CDD", ""}));
}

TEST_F(GameListStage, EmptiesTheListWhenTheBarHasLetEventsIn) {
    form.lstHD.append({"Lantern", {}, {}});
    form.lblDiskSpace.caption = "1.00GB Total";
    int games = 0;
    QString space;
    outside.pump.queue([&] {
        games = form.lstHD.count();
        space = form.lblDiskSpace.caption;
    });
    list(table(""));
    EXPECT_EQ(games, 1);
    EXPECT_EQ(space, "1.00GB Total");
    EXPECT_EQ(form.lstHD.count(), 0);
}

TEST_F(GameListStage, ReplacesTheListBefore) {
    list(table(gameLine("CD", "1KB", "", "", "Old")));
    list(table(gameLine("CD", "1KB", "", "", "New")));
    ASSERT_EQ(form.lstHD.count(), 1);
    EXPECT_EQ(name(0), "New");
}

TEST_F(GameListStage, EnablesWhatAListWithGamesAllows) {
    list(table(gameLine("CD", "1KB", "", "", "Game")));
    for (const ui::Button* button : {&form.cmdBackupPC, &form.cmdBackupPS2, &form.cmdDelete,
                                     &form.cmdSaveList, &form.cmdAddGame, &form.cmdInstall})
        EXPECT_TRUE(button->enabled) << button->name.toStdString();
    EXPECT_FALSE(form.cmdBackupHDD.enabled);
}

TEST_F(GameListStage, AllowsCopiesToADiskThatIsNotTheSource) {
    const QString answer = table(gameLine("CD", "1KB", "", "", "Game"));
    form.cmbHD.addItem("hdd1:  [1.0 GB]");
    form.optLocal.value = true;
    list(answer);
    EXPECT_FALSE(form.cmdBackupHDD.enabled);
    form.optLAN.value = true;
    list(answer);
    EXPECT_TRUE(form.cmdBackupHDD.enabled);

    form.cmdBackupHDD.enabled = false;
    form.cmbHD.addItem("hdd2:  [1.0 GB]");
    form.optLocal.value = true;
    list(answer);
    EXPECT_TRUE(form.cmdBackupHDD.enabled);
}

TEST_F(GameListStage, LeavesCopiesToADiskAsTheyAreWhereThereIsNone) {
    form.cmdBackupHDD.enabled = true;
    list(table(gameLine("CD", "1KB", "", "", "Game")));
    EXPECT_TRUE(form.cmdBackupHDD.enabled);
}

TEST_F(GameListStage, OpensAnEmptyDiskForGames) {
    list(table(""));
    EXPECT_EQ(form.fmBrowse.caption.get(), "Browse, Backup, and Delete - 0 Games");
    EXPECT_TRUE(form.cmdAddGame.enabled);
    EXPECT_TRUE(form.cmdInstall.enabled);
    EXPECT_FALSE(form.cmdBackupPC.enabled);
    EXPECT_FALSE(form.cmdDelete.enabled);
}

TEST_F(GameListStage, KeepsTheButtonsOfAListThatHasBecomeEmpty) {
    list(table(gameLine("CD", "1KB", "", "", "Game")));
    list(table(""));
    EXPECT_EQ(form.lstHD.count(), 0);
    EXPECT_TRUE(form.cmdBackupPC.enabled);
}

TEST_F(GameListStage, ReadsAGameNamedLikeASummaryAsOneToo) {
    list("type\r\n" + gameLine("DVD", "4193280KB", "", "SLUS_123.45", "total 5MB used 3MB available"));
    ASSERT_EQ(form.lstHD.count(), 1);
    EXPECT_EQ(name(0), "total 5MB used 3MB available");
    EXPECT_TRUE(form.cmdInstall.enabled);
    EXPECT_EQ(form.picDiskSpace.tag.get(), "93277"); // 93280 is what stands where a summary has its total
}

TEST_F(GameListStage, TrimsTheName) {
    list(table(gameLine("CD", "1KB", "", "", "  Game   ")));
    EXPECT_EQ(name(0), "Game");
}

TEST_F(GameListStage, CutsFlagsThatRunIntoTheNextColumn) {
    list(table(gameLine("CD", "1KB", "+1+2+3+4+5+6+7+8", "SLUS_123.45", "Game")));
    EXPECT_EQ(columns(0)[3], "+1+2+3+4+5+6+7+");
    EXPECT_EQ(columns(0)[0], "8SLUS_123.4");
}

TEST_F(GameListStage, KeepsNamesOfAnyLanguageAndLength) {
    const QString longName = QString(300, 'x');
    list(table(gameLine("CD", "1KB", "", "", QString::fromUtf8("Pok\u00e9mon \u6771\u4eac")) +
               gameLine("CD", "1KB", "", "", longName)));
    EXPECT_EQ(name(0), QString::fromUtf8("Pok\u00e9mon \u6771\u4eac"));
    EXPECT_EQ(name(1), longName);
}

TEST_F(GameListStage, ListsAGameLineThatIsTooShortWithEmptyColumns) {
    list(table("DVD\r\nCD 5\r\n"));
    ASSERT_EQ(form.lstHD.count(), 2);
    EXPECT_EQ(name(0), "");
    EXPECT_EQ(columns(0), (QStringList{"", "0.00GB", "DVD", ""}));
}

TEST_F(GameListStage, TakesAnOutputWithoutTheHeaderAsNoList) {
    form.fmBrowse.caption = "Browse, Backup, and Delete - 7 Games";
    form.lstHD.append({"Old", {}, {}});
    form.lblDiskSpace.caption = "1.00GB Total";
    list("usage: tarn_toc device\r\n" + gameLine("CD", "1KB", "", "", "Game"));
    EXPECT_EQ(form.lstHD.count(), 0);
    EXPECT_EQ(form.fmBrowse.caption.get(), "Browse, Backup, and Delete - 7 Games");
    EXPECT_EQ(form.lblDiskSpace.caption.get(), "(no active device)");
    EXPECT_EQ(form.picDiskSpace.drawing.get().text, "0%");
    EXPECT_FALSE(shared.blnReadTOC);
}

TEST_F(GameListStage, LooksForTheHeaderAtTheStartOnly) {
    list(" " + table(gameLine("CD", "1KB", "", "", "Game")));
    EXPECT_EQ(form.lstHD.count(), 0);
    EXPECT_FALSE(form.cmdInstall.enabled);
}

TEST_F(GameListStage, ReadsNoSpaceFromTheHeader) {
    list("type total 1000MB, used 400MB, available 600MB\r\n");
    EXPECT_FALSE(form.cmdInstall.enabled);
}

TEST_F(GameListStage, ReportsAConsoleThatCannotBeFoundAndKeepsTheList) {
    form.lstHD.append({"Old", {}, {}});
    list("A connection attempt failed because the connected party did not respond.\r\n");
    ASSERT_EQ(messages().size(), 1);
    EXPECT_EQ(messages().first(),
              "The PS2 console could not be found at the IP address entered. Make sure that the "
              "console has tarnd_svr.elf running and the IP address is configured properly in "
              "IPCONFIG.DAT.");
    EXPECT_EQ(outside.dialogs.messages.front().icon, MessageIcon::Stop);
    EXPECT_EQ(form.lstHD.count(), 1);
    EXPECT_FALSE(shared.blnReadTOC);
}

TEST_F(GameListStage, ReportsADiskThatIsNoPs2Disk) {
    list("hdd1: not a PlayStation 2 HDD.\r\n");
    EXPECT_EQ(messages(), QStringList{"This drive is not a PlayStation 2 HDD."});
    EXPECT_EQ(outside.dialogs.messages.front().icon, MessageIcon::Exclamation);
    EXPECT_FALSE(shared.blnReadTOC);
}

TEST_F(GameListStage, IsStillReadWhileItReportsAFailure) {
    for (const char* failure : {"A connection attempt failed", "not a PlayStation 2 HDD."}) {
        bool stillRead = false;
        outside.dialogs.whileOpen = [&] { stillRead = shared.blnReadTOC; };
        list(failure);
        EXPECT_TRUE(stillRead) << failure;
    }
}

TEST_F(GameListStage, ReportsAConnectionThatDiesAndGoesOnWaiting) {
    list("An existing connection was forcibly closed by the remote host.\r\n");
    EXPECT_EQ(messages(),
              QStringList{"An error has occurred and you may need to restart tarnd_svr.elf if this error "
                          "message persists."});
    EXPECT_EQ(outside.dialogs.messages.front().icon, MessageIcon::Stop);
    EXPECT_TRUE(shared.blnReadTOC);
}

TEST_F(GameListStage, ReadsTenThousandGamesInNoTime) {
    QString games;
    for (int i = 0; i < 10'000; ++i)
        games += gameLine("DVD", "4193280KB", "+1", "SLUS_123.45", QStringLiteral("Game %1").arg(i));
    QElapsedTimer watch;
    watch.start();
    list(table(games));
    EXPECT_EQ(form.lstHD.count(), 10'000);
    EXPECT_EQ(name(9'999), "Game 9999");
    EXPECT_LT(watch.elapsed(), 2'000);
}

class FreeSpaceStage : public GameListStage {};

TEST_F(FreeSpaceStage, ShowsTheSpaceOfTheDisk) {
    list(table(""));
    EXPECT_EQ(form.lblDiskSpace.caption.get(), "111.79GB Total - 26.09GB Used - 85.70GB Available");
    EXPECT_EQ(form.picDiskSpace.tag.get(), "87761");
    EXPECT_EQ(form.picDiskSpace.drawing.get().text, "23%");
    EXPECT_EQ(form.picDiskSpace.drawing.get().filledTo, 23);
}

TEST_F(FreeSpaceStage, NeverReadsTheToolsOwnFigureOfWhatIsAvailable) {
    list("type\r\ntotal 1000MB, used 400MB, available 7MB\r\n");
    EXPECT_EQ(form.picDiskSpace.tag.get(), "600");
    EXPECT_EQ(form.lblDiskSpace.caption.get(), "0.98GB Total - 0.39GB Used - 0.59GB Available");
}

TEST_F(FreeSpaceStage, TakesALineForTheSummaryOnlyIfItNamesAllThreeFigures) {
    for (const char* line :
         {"used 400MB, available 600MB", "total 1000MB, available 600MB", "total 1000MB, used 400MB"}) {
        list(QStringLiteral("type\r\n%1\r\n").arg(line));
        EXPECT_FALSE(form.cmdAddGame.enabled) << line;
        EXPECT_FALSE(form.cmdInstall.enabled) << line;
        EXPECT_EQ(form.lblDiskSpace.caption.get(), "(no active device)") << line;
    }
}

TEST_F(FreeSpaceStage, DrawsTheBarInPercentWhetherTheSpaceIsKnownOrNot) {
    list("no list");
    EXPECT_EQ(form.picDiskSpace.scaleWidth, 100);
    list(table(""));
    EXPECT_EQ(form.picDiskSpace.scaleWidth, 100);
    list("type\r\ntotal 1000MB, used 1000MB, available 0MB\r\n");
    EXPECT_EQ(form.picDiskSpace.drawing.get().text, "100%");
    EXPECT_EQ(form.picDiskSpace.drawing.get().filledTo, 100);
}

TEST_F(FreeSpaceStage, KnowsTheSpaceBeforeTheBarLetsEventsInAndTellsItAfterwards) {
    list("no list");
    // The bar is drawn empty first, and once more at the summary.
    QStringList space, told;
    std::vector<bool> installsAllowed;
    outside.pump.whileWaiting = [&] {
        space += form.picDiskSpace.tag;
        told += form.lblDiskSpace.caption;
        installsAllowed.push_back(form.cmdInstall.enabled);
    };
    list(table(""));
    EXPECT_EQ(space, (QStringList{"", "87761"}));
    EXPECT_EQ(told, (QStringList{"(no active device)", "(no active device)"}));
    EXPECT_EQ(installsAllowed, (std::vector{false, true}));
}

TEST_F(FreeSpaceStage, RefusesADiskOfNoSize) {
    EXPECT_THROW(list("type\r\ntotal 0MB, used 0MB, available 0MB\r\n"), Fault);
    EXPECT_FALSE(shared.blnReadTOC);
}

TEST_F(FreeSpaceStage, RefusesASummaryWithoutNumbers) {
    EXPECT_THROW(list("type\r\ntotal used available\r\n"), Fault);
    EXPECT_THROW(list("type\r\ntotal 99999999999MB, used 1MB, available 1MB\r\n"), Fault);
}

TEST_F(FreeSpaceStage, LeavesTheBarWhereMoreIsUsedThanThereIs) {
    list("type\r\ntotal 100MB, used 150MB, available 0MB\r\n");
    EXPECT_EQ(form.picDiskSpace.drawing.get().text, "0%");
    EXPECT_EQ(form.picDiskSpace.tag.get(), "-50");
    EXPECT_EQ(form.lblDiskSpace.caption.get(), "0.10GB Total - 0.15GB Used - -0.05GB Available");
}

} // namespace
} // namespace tarnwell
