#include "interpreter/tool_commands.h"
#include "interpreter_fixture.h"

namespace tarnwell {
namespace {

class ToolCommands : public InterpreterTest {};

const Installation kPlain{.type = "DVD-ROM",
                          .device = "hdd1:",
                          .name = "Game",
                          .source = "C:\\Game.iso",
                          .startup = "SLUS_123.45",
                          .flags = "+1+3"};

TEST_F(ToolCommands, QuoteOnlyWhatHoldsABlank) {
    EXPECT_EQ(QuoteArg("Game"), "Game");
    EXPECT_EQ(QuoteArg("My Game"), "\"My Game\"");
    EXPECT_EQ(QuoteArg("a\"b"), "a\"b");
    EXPECT_EQ(QuoteArg("a \"b"), "\"a \"b\"");
    EXPECT_EQ(QuoteArg(""), "");
}

TEST_F(ToolCommands, KeepTheColonOfATwoDigitDiskInTheLongFormOnly) {
    EXPECT_EQ(LocalDeviceLong("hdd1:  [111.8 GB]"), "hdd1:");
    EXPECT_EQ(LocalDeviceShort("hdd1:  [111.8 GB]"), "hdd1:");
    EXPECT_EQ(LocalDeviceLong("hdd10:  [111.8 GB]"), "hdd10:");
    EXPECT_EQ(LocalDeviceShort("hdd10:  [111.8 GB]"), "hdd10");
    EXPECT_EQ(LocalDeviceLong("no colon"), "");
}

TEST_F(ToolCommands, SpellOutAnInstallation) {
    EXPECT_EQ(InstallCommand(kPlain), "inject_dvd hdd1: Game C:\\Game.iso SLUS_123.45 +1+3");
}

TEST_F(ToolCommands, QuoteNamesAndPathsButNotTheStartupFile) {
    Installation game = kPlain;
    game.name = "My Game";
    game.source = "C:\\My Game.iso";
    game.startup = "SLUS 1";
    EXPECT_EQ(InstallCommand(game), "inject_dvd hdd1: \"My Game\" \"C:\\My Game.iso\" SLUS 1 +1+3");
}

TEST_F(ToolCommands, HoldThePlaceOfAMissingStartupFileForTheFlags) {
    Installation game = kPlain;
    game.startup = "";
    EXPECT_EQ(InstallCommand(game), "inject_dvd hdd1: Game C:\\Game.iso \"\" +1+3");
}

TEST_F(ToolCommands, EndWithoutBlanks) {
    Installation game = kPlain;
    game.flags = "";
    EXPECT_EQ(InstallCommand(game), "inject_dvd hdd1: Game C:\\Game.iso SLUS_123.45");
    game.startup = "";
    EXPECT_EQ(InstallCommand(game), "inject_dvd hdd1: Game C:\\Game.iso");
}

TEST_F(ToolCommands, InstallEverythingButADvdAsACd) {
    Installation game = kPlain;
    for (const char* type : {"CD-ROM", "DVD", "DVD-ROM 9", ""}) {
        game.type = type;
        EXPECT_TRUE(InstallCommand(game).startsWith("inject_cd ")) << type;
    }
}

TEST_F(ToolCommands, CopyEverythingButADvdAsACd) {
    EXPECT_TRUE(CopyToDeviceCommand("DVD", "hdd2:", "Game", "hdd1:").startsWith("inject_dvd "));
    for (const char* type : {"CD", "DVD-ROM", "DVD9", "XDVD", "dvd", ""})
        EXPECT_TRUE(CopyToDeviceCommand(type, "hdd2:", "Game", "hdd1:").startsWith("inject_cd ")) << type;
}

TEST_F(ToolCommands, QuoteADeviceWithABlankInInstallationsAndCopies) {
    Installation game = kPlain;
    game.device = "my ps2";
    EXPECT_EQ(InstallCommand(game), "inject_dvd \"my ps2\" Game C:\\Game.iso SLUS_123.45 +1+3");
    EXPECT_EQ(CopyToFileCommand("my ps2", "My Game", "C:\\My Game.iso"),
              "extract \"my ps2\" \"My Game\" \"C:\\My Game.iso\"");
    EXPECT_EQ(CopyToDeviceCommand("CD", "your ps2", "My Game", "hdd1:"),
              "inject_cd \"your ps2\" \"My Game\" \"My Game@hdd1:\"");
    EXPECT_EQ(CopyToDeviceCommand("CD", "hdd2:", "Game", "my ps2"), "inject_cd hdd2: Game \"Game@my ps2\"");
}

TEST_F(ToolCommands, LeaveADeviceOrDriveWithABlankBareElsewhere) {
    EXPECT_EQ(GameListCommand("my ps2"), "tarn_toc my ps2");
    EXPECT_EQ(DriveInfoCommand("my drive"), "cdvd_info2 my drive");
    EXPECT_EQ(MakeImageCommand("my drive", "C:\\My Game.iso"), "dump my drive \"C:\\My Game.iso\"");
    EXPECT_EQ(DeleteCommand("my ps2", "My Game"), "delete my ps2 \"My Game\"");
    EXPECT_EQ(RenameCommand("my ps2", "My Game", "My Other"), "modify my ps2 \"My Game\" \"My Other\"");
    EXPECT_EQ(PowerOffCommand("my ps2"), "poweroff my ps2");
    EXPECT_EQ(FormatCommand("my hdd"), "initialize my hdd");
    EXPECT_EQ(BackupTocCommand("my hdd", "C:\\my toc"), "backup_toc my hdd \"C:\\my toc\"");
    EXPECT_EQ(RestoreTocCommand("my hdd", "C:\\my toc"), "restore_toc my hdd \"C:\\my toc\"");
}

TEST_F(ToolCommands, QuoteEveryImageThatIsAskedAbout) {
    EXPECT_EQ(ImageInfoCommand("C:\\Game.iso"), "cdvd_info2 \"C:\\Game.iso\"");
    EXPECT_EQ(DriveInfoCommand("D:"), "cdvd_info2 D:");
}

TEST_F(ToolCommands, NameTheDeviceAsItIs) {
    EXPECT_EQ(QueryCommand(), "query");
    EXPECT_EQ(GameListCommand("hdd1:"), "tarn_toc hdd1:");
    EXPECT_EQ(PowerOffCommand("10.0.0.1 "), "poweroff 10.0.0.1 ");
}

} // namespace
} // namespace tarnwell
