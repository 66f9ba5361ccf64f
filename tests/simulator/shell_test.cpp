// What takes a shell, and programs that are not ours.
#include "simulator/tool_runner.h"

namespace {

class WithAShell : public SimulatedTool {
protected:
    Result shell(const std::string& line) const { return runProgram("/bin/sh", {"-c", line}, folder()); }
};

TEST_F(WithAShell, AFullDiskOfThePcLeavesNoHalfImage) {
    makeImage("a.iso");
    run({"inject_cd", "hdd1:", "Game", "a.iso"});
    const Result result = shell("trap '' XFSZ; ulimit -f 64; exec ./tarnwell.exe extract hdd1: Game x.iso");
    EXPECT_NE(result.text.find("x.iso: There is not enough space on the disk.\r\n"), std::string::npos)
        << result.text;
    EXPECT_EQ(result.text.find("100%"), std::string::npos);
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_FALSE(std::filesystem::exists(folder() / "x.iso"));
}

class AgainstXorriso : public WithAShell {
protected:
    void SetUp() override {
        makeImage("good.iso");
        if (std::system("command -v xorriso >/dev/null 2>&1") != 0) // NOLINT(bugprone-command-processor)
            GTEST_SKIP() << "xorriso is not installed";
    }
};

TEST_F(AgainstXorriso, ItReadsTheImagesThatAreWrittenHere) {
    const std::string listing = shell("xorriso -indev good.iso -pvd_info -lsl 2>/dev/null").text;
    EXPECT_NE(listing.find("'SYSTEM.CNF'"), std::string::npos) << listing;
    EXPECT_NE(listing.find("65536 Mar  4  2004 'SLUS_123.45'"), std::string::npos) << listing;
    EXPECT_NE(listing.find("LABEL"), std::string::npos) << listing;
    shell("xorriso -osirrox on -indev good.iso -extract /SYSTEM.CNF system.cnf 2>/dev/null");
    EXPECT_EQ(read(folder() / "system.cnf").substr(0, 30), "BOOT2 = cdrom0:\\SLUS_123.45;1\r");
}

TEST_F(AgainstXorriso, ItsImagesAreReadHere) {
    const Result made =
        shell("mkdir -p tree/MOVIES && echo 'BOOT2 = cdrom0:\\SCES_990.77;1' > tree/SYSTEM.CNF && "
              "i=0; while [ $i -lt 200 ]; do echo x > tree/FILE$i.BIN; i=$((i+1)); done; "
              "xorriso -as mkisofs -quiet -V 'XO GAME' -J -R -o xo.iso tree 2>&1");
    ASSERT_EQ(made.exitCode, 0) << made.text;
    EXPECT_NE(text({"cdvd_info2", "xo.iso"}).find("KB \"XO GAME\" \"SCES_990.77\"\r\n"), std::string::npos)
        << text({"cdvd_info2", "xo.iso"});
}

} // namespace
