#include "logic/install_fixture.h"

namespace tarnwell::test {
namespace {

/// Both windows are gone while a game is installed: how it went must be told when it has ended.
class FailedInstall : public InstallTest {
protected:
    void install(const ChildScript& tool) {
        answerInstallWith(tool);
        EXPECT_TRUE(ui::click(frmMain.cmdInstall));
    }
};

TEST_F(FailedInstall, IsToldWithTheLastWordsOfTheToolAfterTheLastEndStep) {
    ports.dialogs.whileOpen = [this] { EXPECT_EQ(commands().last(), "tarn_toc 192.168.0.10"); };
    install({.output = {{"1%, 12 min remaining, 3.50 MB/sec\r", 100},
                        {"2%, 12 min remaining, 3.50 MB/sec\rinject: not enough free space.\r\n", 500}},
             .endsAtMs = 600});
    EXPECT_EQ(ports.dialogs.messageTexts(),
              QStringList(
                  "LANTERN was not installed completely. The last words of tarnwell.exe: inject: not enough "
                  "free space."));
    EXPECT_EQ(balloons().last(), "Installation of LANTERN complete!");
}

TEST_F(FailedInstall, OfASilentToolIsToldToo) {
    install({});
    EXPECT_EQ(lastMessage(), "LANTERN was not installed completely. tarnwell.exe did not say why.");
}

TEST_F(FailedInstall, IsNotToldOfOneThatReached100) {
    install({.output = {{"100%, 0 sec remaining, 4.00 MB/sec\r", 100}, {"Some words of farewell\r\n", 200}},
             .endsAtMs = 300});
    EXPECT_EQ(ports.dialogs.messageTexts(), QStringList());
}

TEST_F(FailedInstall, IsNotToldOfOneWhoseLastLinesCameBehindAnUnreadableOne) {
    install(
        {.output = {{"99999999999%\r100%, 0 sec remaining, 4.00 MB/sec\rBye\r\n", 100}}, .endsAtMs = 300});
    EXPECT_EQ(ports.dialogs.messages.size(), 1u);
    EXPECT_FALSE(lastMessage().contains("not installed")) << lastMessage().toStdString();
}

TEST_F(FailedInstall, IsNotToldOfOneThatWasCancelled) {
    ports.pump.after(1000, [this] { ui::click(frmStatus->cmdStop); });
    install({.output = {{"1%, 12 min remaining, 3.50 MB/sec\r", 100}}, .endsAtMs = 100'000});
    EXPECT_EQ(ports.dialogs.messageTexts(), QStringList());
}

} // namespace
} // namespace tarnwell::test
