#include "app/fault.h"
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

TEST_F(ToolCommands, TakeTheDeviceFromTheChosenMode) {
    form.txtIP.text = " 10.0.0.1 ";
    form.cmbHD.addItem("hdd10:  [1.0 GB]");
    form.cmbHD.listIndex = 0;
    EXPECT_EQ(ActiveDeviceLong(form), " 10.0.0.1 ");
    EXPECT_EQ(ActiveDeviceShort(form), " 10.0.0.1 ");
    form.optLocal.value = true;
    EXPECT_EQ(ActiveDeviceLong(form), "hdd10:");
    EXPECT_EQ(ActiveDeviceShort(form), "hdd10");
}

TEST_F(ToolCommands, NameTheTickedFlags) {
    EXPECT_EQ(FlagsWord(form), "");
    for (const std::size_t i : {0u, 2u, 7u})
        form.mnuFlags[i].checked = true;
    EXPECT_EQ(FlagsWord(form), "+1+3+8");
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
    for (const char* type : {"CD-ROM", "DVD", ""}) {
        game.type = type;
        EXPECT_TRUE(InstallCommand(game).startsWith("inject_cd ")) << type;
    }
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

TEST_F(ToolCommands, GiveTheSystemsDriveWhereItIsKnown) {
    form.cmbOptical.tag = "D:,0,F:,";
    EXPECT_EQ(ResolveOpticalDrive(form, "cd0:  [4.38GB]"), "D:");
    EXPECT_EQ(ResolveOpticalDrive(form, "cd1:  [4.38GB]"), "cd1:");
    EXPECT_EQ(ResolveOpticalDrive(form, "cd2:  [4.38GB]"), "F:");
}

TEST_F(ToolCommands, RefuseADriveThatTheLastQueryDoesNotKnow) {
    EXPECT_THROW(ResolveOpticalDrive(form, "cd0:  [4.38GB]"), Fault);
    form.cmbOptical.tag = "D:,";
    EXPECT_THROW(ResolveOpticalDrive(form, "cd5:  [4.38GB]"), Fault);
}

} // namespace
} // namespace tarnwell
