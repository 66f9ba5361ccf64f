#pragma once

#include "support/program_test.h"

namespace tarnwell::test {

/// A console or disk whose games are on view.
class GameListTest : public ProgramTest {
protected:
    struct Game {
        QString name;
        QString type{"DVD"}, size{"4193280KB"}, flags{}, startup{"SLUS_990.71"};
    };

    GameListTest() {
        answerQueryWith(kTwoDisks);
        start();
        ui::click(frmMain.optBrowse);
    }

    void list(const QStringList& names) {
        std::vector<Game> games;
        for (const QString& name : names)
            games.push_back({name});
        listGames(games);
    }
    void listGames(const std::vector<Game>& games) {
        QString table = "type   size flags          dma startup      name\r\n";
        for (const Game& game : games)
            table += game.type.leftJustified(4) + game.size.leftJustified(10) + game.flags.leftJustified(15) +
                     game.startup.leftJustified(14) + game.name + "\r\n";
        answerTocWith(table.toLocal8Bit() + "total 114473MB, used 26712MB, available 87761MB\r\n");
        ui::click(frmMain.cmdAttach);
        ports.dialogs.messages.clear();
        commandsBefore_ = commands().size();
    }
    void useLocalDisk(int entry = 0) {
        ui::click(frmMain.optLocal);
        ui::choose(frmMain.cmbHD, entry);
    }
    void select(std::initializer_list<int> rows) {
        for (const int row : rows)
            frmMain.lstHD.select(row);
    }

    QStringList names() const {
        QStringList all;
        for (int i = 0; i < frmMain.lstHD.count(); ++i)
            all += frmMain.lstHD.row(i).text;
        return all;
    }
    /// The commands that reached the tool since the games were listed.
    QStringList commandsSince() const { return commands().mid(commandsBefore_); }
    QStringList commandsOfJobs() const {
        QStringList all;
        for (int i = 0; i < frmMain.lstJob.count(); ++i)
            all += frmMain.lstJob.row(i).tag;
        return all;
    }

    void expectNothingQueued() const {
        EXPECT_EQ(frmMain.lstJob.count(), 0);
        EXPECT_FALSE(frmMain.cmdStart.enabled);
        EXPECT_FALSE(frmMain.cmdRemove.enabled);
        EXPECT_FALSE(frmMain.cmdClear.enabled);
        EXPECT_EQ(balloons(), QStringList());
    }
    /// One job waits, and the user was told.
    void expectQueued(const QStringList& columns, const QString& command) const {
        ASSERT_EQ(frmMain.lstJob.count(), 1);
        EXPECT_EQ(frmMain.lstJob.row(0).text, "Pending");
        EXPECT_EQ(frmMain.lstJob.row(0).subItems, columns + QStringList({"", "", ""}));
        EXPECT_EQ(frmMain.lstJob.row(0).tag, command);
        EXPECT_TRUE(frmMain.cmdStart.enabled);
        EXPECT_TRUE(frmMain.cmdRemove.enabled);
        EXPECT_TRUE(frmMain.cmdClear.enabled);
        EXPECT_EQ(balloons(), QStringList("Job added to job queue"));
    }

    /// As far as the system's 8-bit code page has its letters: no others come from the tool.
    static inline const QString kLongName = QString::fromLocal8Bit(
        (QString::fromUtf8("P\xc3\xa9rg\xc5\x8dla ").repeated(40) + "\"quoted\"").toLocal8Bit());

    qsizetype commandsBefore_ = 0;
};

} // namespace tarnwell::test
