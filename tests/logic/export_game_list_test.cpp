#include "logic/game_list_fixture.h"

#include <QDir>

namespace tarnwell::test {

namespace {

struct ExportGameList : GameListTest {
    ExportGameList() { list(numbered(2)); }

    static QStringList numbered(int count) {
        QStringList games;
        for (int i = 0; i < count; ++i)
            games += "Game";
        return games;
    }
    QByteArray exported(const std::optional<QString>& format, const QString& file = "games.txt") {
        ports.dialogs.saveFileAnswers.push_back(path(file));
        ports.dialogs.inputAnswers.push_back(format);
        ui::click(frmMain.cmdSaveList);
        return contents(file);
    }
    QByteArray contents(const QString& file) const {
        QFile written(path(file));
        return written.open(QIODevice::ReadOnly) ? written.readAll() : QByteArray("(no file)");
    }
};

} // namespace

TEST_F(ExportGameList, AsksForTheFileAndForTheFormat) {
    exported("");
    ASSERT_EQ(ports.dialogs.saveFileRequests.size(), 1u);
    const SaveFileRequest& request = ports.dialogs.saveFileRequests[0];
    EXPECT_EQ(request.title, "Save List of Games As");
    EXPECT_EQ(request.fileName, "games.txt");
    EXPECT_EQ(request.extension, "*.txt");
    EXPECT_EQ(request.filter, "Text Files (*.txt)|*.txt|All Files (*.*)|*.*|");
    EXPECT_EQ(request.folder, program.shared().config.AppFolder());
    EXPECT_TRUE(request.askBeforeOverwriting);
    ASSERT_EQ(ports.dialogs.inputs.size(), 1u);
    EXPECT_EQ(ports.dialogs.inputs[0].title, "Export Game List");
    EXPECT_EQ(ports.dialogs.inputs[0].text, "");
    EXPECT_EQ(ports.dialogs.inputs[0].prompt,
              "Select the format in which you would like to save your game list.\r\n\r\n"
              "The below items are optional and will be added on after the game title.\r\n\r\n"
              "%startup = Startup file\r\n%size = Size of the game\r\n%type = Type (CD\\DVD)\r\n"
              "%flags = Compatibility flags for the game\r\n%tab = Tab");
}

TEST_F(ExportGameList, TheFormatGoesBehindThePaddedName) {
    listGames(
        {{.name = "Lantern", .flags = "+1+3"}, {.name = "Fen", .type = "CD", .startup = "SCUS_990.13"}});
    EXPECT_EQ(exported(" %size%tab%type"), "1. Lantern  4.00GB\tDVD\r\n2. Fen      4.00GB\tCD\r\n");
    EXPECT_EQ(exported("|%startup|%flags|%startup"),
              "1. Lantern |SLUS_990.71|+1+3|SLUS_990.71\r\n2. Fen     |SCUS_990.13||SCUS_990.13\r\n");
}

TEST_F(ExportGameList, WordsAreKnownByTheirCaseAndOthersStay) {
    list({"Fen"});
    EXPECT_EQ(exported("%Size %name %"), "1. Fen %Size %name %\r\n");
}

TEST_F(ExportGameList, AWordInTheNameOfAGameIsReplacedToo) {
    list({"Fen %startup"});
    EXPECT_EQ(exported("%type"), "1. Fen SLUS_990.71 DVD\r\n");
}

TEST_F(ExportGameList, WhatReplacesAWordMayHoldALaterWordButNoEarlierOne) {
    frmMain.lstHD.clear();
    frmMain.lstHD.append({.text = "Fen", .subItems = {"%size", "%type", "%flags", "%tab"}});
    EXPECT_EQ(exported("|%startup|"), "1. Fen |\t|\r\n");
    frmMain.lstHD.clear();
    frmMain.lstHD.append({.text = "Fen", .subItems = {"S", "%startup", "%size", "%type"}});
    EXPECT_EQ(exported("%size %type %flags"), "1. Fen %startup %size %type\r\n");
}

TEST_F(ExportGameList, NumbersHaveAsManyDigitsAsTheLast) {
    list(numbered(9));
    EXPECT_TRUE(exported("").startsWith("1. Game"));
    EXPECT_TRUE(contents("games.txt").endsWith("\r\n9. Game \r\n"));
    list(numbered(10));
    EXPECT_TRUE(exported("").startsWith("01. Game"));
    EXPECT_TRUE(contents("games.txt").endsWith("\r\n10. Game \r\n"));
    list(numbered(120));
    EXPECT_TRUE(exported("").contains("\r\n007. Game \r\n"));
    EXPECT_TRUE(contents("games.txt").endsWith("\r\n120. Game \r\n"));
}

TEST_F(ExportGameList, ANameOneCharacterLongerThanTheLongestSoFarGetsNoBlank) {
    list({"Five5", "Sixsix"});
    EXPECT_EQ(exported("|"), "1. Five5 |\r\n2. Sixsix|\r\n");
    list({"Sixsix", "Five5"});
    EXPECT_EQ(exported("|"), "1. Sixsix |\r\n2. Five5  |\r\n");
}

TEST_F(ExportGameList, ANameOfOneLetterIsLongerThanNone) {
    list({"A"});
    EXPECT_EQ(exported("|"), "1. A |\r\n");
}

TEST_F(ExportGameList, ACancelledFormatLeavesNumbersAndNames) {
    list({"Lantern", "Fen"});
    EXPECT_EQ(exported(std::nullopt), "1. Lantern \r\n2. Fen     \r\n");
}

TEST_F(ExportGameList, ACancelledFileDialogChangesNothing) {
    writeFile("games.txt", "old");
    ui::click(frmMain.cmdSaveList);
    ports.dialogs.saveFileAnswers.push_back("");
    ui::click(frmMain.cmdSaveList);
    EXPECT_TRUE(ports.dialogs.inputs.empty());
    EXPECT_EQ(contents("games.txt"), "old");
}

TEST_F(ExportGameList, AnOldFileIsGoneBeforeTheFormatIsAskedFor) {
    writeFile("games.txt", "an old list that is longer than the new one by quite a bit");
    writeFile("games2.txt", "another");
    bool gone = false;
    ports.dialogs.whileOpen = [&] {
        if (!ports.dialogs.inputs.empty())
            gone = !QFile::exists(path("games.txt"));
    };
    EXPECT_EQ(exported(""), "1. Game \r\n2. Game \r\n");
    EXPECT_TRUE(gone);
    EXPECT_EQ(contents("games2.txt"), "another");
}

TEST_F(ExportGameList, AnOldFileIsBackIfTheProgramEndsBeforeTheNewOneIsWritten) {
    writeFile("games.txt", "old");
    ports.dialogs.whileOpen = [&] {
        if (!ports.dialogs.inputs.empty())
            ports.pump.end();
    };
    EXPECT_EQ(exported(""), "old");
    EXPECT_EQ(QDir(ports.folders.folder).entryList({"games*"}), QStringList("games.txt"));
}

TEST_F(ExportGameList, NothingIsLeftOfAnOldFile) {
    writeFile("games.txt", "old");
    exported("");
    EXPECT_EQ(QDir(ports.folders.folder).entryList({"games*"}), QStringList("games.txt"));
}

TEST_F(ExportGameList, AnEmptyListGivesAnEmptyFile) {
    writeFile("games.txt", "old");
    frmMain.lstHD.clear();
    EXPECT_EQ(exported("%size"), "");
}

TEST_F(ExportGameList, AFileThatCannotBeWrittenGoesUnnoticed) {
    EXPECT_EQ(exported("", "tarnwell.exe/games.txt"), "(no file)");
    ASSERT_TRUE(QDir(ports.folders.folder).mkdir("folder"));
    exported("", "folder");
    EXPECT_TRUE(QDir(path("folder")).isEmpty());
    EXPECT_TRUE(ports.dialogs.messages.empty());
    EXPECT_EQ(contents("tarnwell.exe"), "the simulated tool");
}

TEST_F(ExportGameList, TheTextIsInTheCodePageOfTheSystem) {
    const QString name = QString::fromUtf8("P\xc3\xa9rgola");
    list({name});
    EXPECT_EQ(exported(""), ("1. " + name + " \r\n").toLocal8Bit());
}

TEST_F(ExportGameList, LongNamesWithQuotesArePaddedLikeAnyOther) {
    list({"Fen", kLongName});
    EXPECT_EQ(exported("|"),
              ("1. Fen" + QString(kLongName.size() + 1 - 3, ' ') + "|\r\n2. " + kLongName + " |\r\n")
                  .toLocal8Bit());
}

TEST_F(ExportGameList, TheListIsWrittenAsItStandsWhenTheFormatIsGiven) {
    ports.dialogs.whileOpen = [&] { frmMain.lstHD.setText(0, "Renamed"); };
    EXPECT_EQ(exported(""), "1. Renamed \r\n2. Game    \r\n");
}

} // namespace tarnwell::test
