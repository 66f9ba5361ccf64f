#include "simulator/tool_runner.h"

namespace {

namespace fs = std::filesystem;

class GameTable : public SimulatedTool {
protected:
    GameTable() {
        makeImage("a.iso");
        run({"inject_dvd", "hdd1:", "First Game", "a.iso", "SLUS_123.45", "+1"});
        run({"inject_cd", "hdd1:", "Second", "a.iso"});
    }

    Words names(const std::string& diskName = "hdd1") const {
        Words found;
        for (const auto& game : disk(diskName).games())
            found.push_back(game.name);
        return found;
    }

    void expectSilence(const Words& words) const {
        const Result result = run(words);
        EXPECT_EQ(result.text, "");
        EXPECT_EQ(result.exitCode, 0);
    }
};

TEST_F(GameTable, DeleteTakesOneGameOut) {
    expectSilence({"delete", "hdd1:", "First Game"});
    EXPECT_EQ(names(), Words{"Second"});
    EXPECT_EQ(disk("hdd1").usedMb(), 128);
}

TEST_F(GameTable, NamesAreFoundByTheirExactText) {
    EXPECT_EQ(text({"delete", "hdd1:", "first game"}), "first game: not found.\r\n");
    EXPECT_EQ(text({"delete", "hdd1:", "Second "}), "Second : not found.\r\n");
    EXPECT_EQ(names().size(), 2u);
}

TEST_F(GameTable, ModifyRenamesAndKeepsAllElse) {
    expectSilence({"modify", "hdd1:", "First Game", "Renamed "});
    EXPECT_EQ(names(), (Words{"Renamed ", "Second"}));
    EXPECT_EQ(disk("hdd1").get("Renamed ").flags, "+1");
    EXPECT_EQ(run({"extract", "hdd1:", "Renamed ", "back.iso"}).exitCode, 0);
}

TEST_F(GameTable, ModifyRefusesANameThatIsTaken) {
    EXPECT_EQ(text({"modify", "hdd1:", "First Game", "Second"}), "Second: The file exists.\r\n");
    EXPECT_EQ(names(), (Words{"First Game", "Second"}));
}

TEST_F(GameTable, ModifyOfAGameThatIsElsewhereFails) {
    EXPECT_EQ(text({"modify", "127.0.0.1", "First Game", "X"}), "First Game: not found.\r\n");
}

TEST_F(GameTable, InitializeEmptiesADiskAndMakesABlankOneUsable) {
    expectSilence({"initialize", "hdd1:"});
    EXPECT_TRUE(names().empty());
    expectSilence({"initialize", "hdd3:"});
    EXPECT_EQ(run({"inject_cd", "hdd3:", "Game", "a.iso"}).exitCode, 0);
}

TEST_F(GameTable, InitializeTakesLocalDisksOnly) {
    EXPECT_EQ(text({"initialize", "127.0.0.1"}), "Input or output is unsupported.\r\n");
    EXPECT_NE(text({"initialize", "127.0"}).find("A connection attempt failed"), std::string::npos);
}

TEST_F(GameTable, ASavedTableBringsDeletedGamesBack) {
    expectSilence({"backup_toc", "hdd1:", "my table.bak"});
    run({"initialize", "hdd1:"});
    expectSilence({"restore_toc", "hdd1:", "my table.bak"});
    EXPECT_EQ(names(), (Words{"First Game", "Second"}));
    EXPECT_EQ(run({"extract", "hdd1:", "First Game", "back.iso"}).exitCode, 0);
    EXPECT_TRUE(read(folder() / "back.iso") == read(folder() / "a.iso"));
}

TEST_F(GameTable, AGameWhoseDataWasOverwrittenDoesNotComeBack) {
    run({"backup_toc", "hdd1:", "t.bak"});
    run({"delete", "hdd1:", "Second"});
    run({"inject_cd", "hdd1:", "Third", "a.iso"});
    EXPECT_EQ(text({"restore_toc", "hdd1:", "t.bak"}), "Second: its data has been overwritten.\r\n");
    EXPECT_EQ(names(), Words{"First Game"});
}

TEST_F(GameTable, TheDataOfADeletedGameGoesWithTheNextInstall) {
    run({"delete", "hdd1:", "First Game"});
    EXPECT_EQ(filesIn(gamesFolder()), 3u);
    run({"inject_cd", "hdd1:", "Third", "a.iso"});
    EXPECT_EQ(filesIn(gamesFolder()), 4u);
}

TEST_F(GameTable, ATableIsNeverSavedOverAFileNorRestoredFromAnyFile) {
    EXPECT_EQ(text({"backup_toc", "hdd1:", "a.iso"}), "a.iso: The file exists.\r\n");
    EXPECT_EQ(text({"restore_toc", "hdd1:", "a.iso"}), "a.iso: The parameter is incorrect.\r\n");
    EXPECT_EQ(text({"restore_toc", "hdd1:", "none.bak"}),
              "none.bak: The system cannot find the file specified.\r\n");
    EXPECT_EQ(names().size(), 2u);
}

TEST_F(GameTable, ABlankDiskHasNoTableToSaveOrRestore) {
    EXPECT_EQ(text({"backup_toc", "hdd3:", "t.bak"}), "hdd3: not a PlayStation 2 HDD.\r\n");
    EXPECT_FALSE(fs::exists(folder() / "t.bak"));
    run({"backup_toc", "hdd1:", "t.bak"});
    EXPECT_EQ(text({"restore_toc", "hdd3:", "t.bak"}), "hdd3: not a PlayStation 2 HDD.\r\n");
}

TEST_F(GameTable, AConsoleThatWasSwitchedOffAnswersAgain) {
    expectSilence({"poweroff", "127.0.0.1"});
    EXPECT_EQ(text({"tarn_toc", "127.0.0.1"}).substr(0, 4), "type");
    EXPECT_NE(log().find("> poweroff 127.0.0.1\n"), std::string::npos);
}

TEST_F(GameTable, AConsoleStaysOffIfSoTold) {
    behave("poweroff_lasts = yes\n");
    expectSilence({"poweroff", "127.0.0.1"});
    EXPECT_NE(text({"tarn_toc", "127.0.0.1"}).find("A connection attempt failed"), std::string::npos);
}

TEST_F(GameTable, OnlyAConsoleCanBeSwitchedOff) {
    EXPECT_EQ(text({"poweroff", "hdd1:"}), "Input or output is unsupported.\r\n");
}

TEST_F(GameTable, AGameAddedByHandIsNeverOverwritten) {
    write(gamesFolder() / "7.ini", "name = By hand\ntype = CD\nsize_bytes = 5\n");
    write(gamesFolder() / "7.image", "bytes");
    run({"inject_cd", "hdd1:", "Next", "a.iso"});
    EXPECT_EQ(disk("hdd1").get("Next").id, 8);
    run({"extract", "hdd1:", "By hand", "by-hand.bin"});
    EXPECT_EQ(read(folder() / "by-hand.bin"), "bytes");
}

} // namespace
