// Failures that come from the state of things, not from the behaviour file.
#include "simulator/failure.h"
#include "simulator/tool_runner.h"

namespace {

namespace fs = std::filesystem;

using simulator::kMb;

class Failures : public SimulatedTool {
protected:
    Failures() {
        makeImage("a.iso");
        run({"inject_cd", "hdd1:", "Game", "a.iso"});
    }

    void expectFailure(const Words& words, const std::string& line) const {
        const Result result = run(words);
        EXPECT_EQ(result.text, line + "\r\n");
        EXPECT_EQ(result.exitCode, 1);
    }
};

TEST_F(Failures, WhatDoesNotFitIsRefusedAndLeavesNothingBehind) {
    makeImage("big.iso", "A", 897 * kMb); // 1024 MB in units of 128
    expectFailure({"inject_dvd", "hdd1:", "Big", "big.iso"}, "hdd1: not enough free space.");
    EXPECT_EQ(filesIn(gamesFolder()), 2u);
}

TEST_F(Failures, ANameThatIsTakenIsRefused) {
    expectFailure({"inject_cd", "hdd1:", "Game", "a.iso"}, "Game: The file exists.");
    EXPECT_EQ(run({"inject_cd", "hdd1:", "game", "a.iso"}).exitCode, 0);
}

TEST_F(Failures, AnExistingFileIsNeverOverwritten) {
    write(folder() / "there.iso", "mine");
    expectFailure({"extract", "hdd1:", "Game", "there.iso"}, "there.iso: The file exists.");
    expectFailure({"dump", "E:", "there.iso"}, "there.iso: The file exists.");
    EXPECT_EQ(read(folder() / "there.iso"), "mine");
}

TEST_F(Failures, MissingThingsAreNamed) {
    expectFailure({"inject_cd", "hdd1:", "New", "none.iso"},
                  "none.iso: The system cannot find the file specified.");
    expectFailure({"cdvd_info2", "none.iso"}, "none.iso: The system cannot find the file specified.");
    expectFailure({"tarn_toc", "hdd9:"}, "hdd9: The system cannot find the file specified.");
    expectFailure({"extract", "hdd1:", "None", "x.iso"}, "None: not found.");
    expectFailure({"inject_cd", "hdd2:", "None", "None@hdd1:"}, "None: not found.");
    expectFailure({"extract", "hdd1:", "Game", "no-folder/x.iso"},
                  "no-folder/x.iso: The system cannot find the file specified.");
}

TEST_F(Failures, ABlankDiskTakesNothing) {
    expectFailure({"tarn_toc", "hdd3:"}, "hdd3: not a PlayStation 2 HDD.");
    expectFailure({"inject_cd", "hdd3:", "New", "a.iso"}, "hdd3: not a PlayStation 2 HDD.");
}

TEST_F(Failures, AnEmptyDriveIsNotReady) {
    expectFailure({"cdvd_info2", "D:"}, "cd0: The device is not ready.");
    expectFailure({"dump", "cd0:", "x.iso"}, "cd0: The device is not ready.");
    expectFailure({"inject_cd", "hdd1:", "New", "D:"}, "cd0: The device is not ready.");
    EXPECT_FALSE(fs::exists(folder() / "x.iso"));
}

TEST_F(Failures, ADiscWhoseImageHasGoneIsNotReady) {
    fs::remove(worldFolder() / "discs" / "game.iso");
    expectFailure({"cdvd_info2", "E:"}, "cd1: The device is not ready.");
}

TEST_F(Failures, DiscsThatAreNoGamesAreTold) {
    makeImage("photos.iso", "");
    write(folder() / "text.txt", "no image");
    expectFailure({"cdvd_info2", "photos.iso"}, "photos.iso: not a Playstation CD-ROM/DVD-ROM.");
    expectFailure({"cdvd_info2", "text.txt"}, "text.txt: bad ISOFS.");
    expectFailure({"inject_cd", "hdd1:", "New", "text.txt"}, "text.txt: bad ISOFS.");
}

TEST_F(Failures, ConsolesThatDoNotAnswerLookLikeRealOnes) {
    const std::string noAnswer = simulator::words::kNoAnswer;
    expectFailure({"tarn_toc", "192.168.0.10"}, "192.168.0.10: " + noAnswer);
    expectFailure({"tarn_toc", "../../disks/hdd1"}, "../../disks/hdd1: " + noAnswer);
    const fs::path settings = worldFolder() / "console" / "127.0.0.1" / "console.ini";
    write(settings, "answers = refuses\n");
    expectFailure({"tarn_toc", "127.0.0.1"},
                  "127.0.0.1: No connection could be made because the target machine actively refused it.");
    write(settings, "answers = no\n");
    expectFailure({"poweroff", "127.0.0.1"}, "127.0.0.1: " + noAnswer);
}

TEST_F(Failures, WrongArgumentsAreRefused) {
    const std::string incorrect = "The parameter is incorrect.";
    expectFailure({"inject_cd", "hdd1:", "New"}, incorrect);
    expectFailure({"inject_cd", "hdd1:", "", "a.iso"}, incorrect);
    expectFailure({"inject_cd", "hdd1:", "two\nlines", "a.iso"}, incorrect);
    for (const char* flags : {"1", "+", "+9", "+0", "++1", "+1+", "+1 "})
        expectFailure({"inject_cd", "hdd1:", "New", "a.iso", "SLUS_123.45", flags}, incorrect);
    expectFailure({"inject_cd", "hdd1:", "New", "a.iso", "a", "startup", "+1"}, incorrect);
    expectFailure({"modify", "old", "new"}, incorrect);
    expectFailure({"modify", "hdd1:", "Game", ""}, incorrect);
    expectFailure({"query", "hdd1:"}, incorrect);
    expectFailure({"tarn_toc"}, incorrect);
}

TEST_F(Failures, WhatNoTableOrDriveCanHoldIsUnsupported) {
    write(folder() / "empty.iso", "");
    makeImage("huge.iso", "A", 10000 * kMb);
    simulator::Disk::create(worldFolder() / "disks" / "hdd4", "hdd4:", 100000, true);
    expectFailure({"inject_cd", "hdd4:", "New", "empty.iso", "SLUS_123.45"},
                  "Input or output is unsupported.");
    expectFailure({"inject_dvd", "hdd4:", "New", "huge.iso"}, "Input or output is unsupported.");
    expectFailure({"dump", "hdd1:", "x.iso"}, "Input or output is unsupported.");
}

} // namespace
