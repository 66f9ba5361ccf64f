#include "support/program_test.h"
#include "ui/version.h"

namespace tarnwell::test {

namespace {

const QString kToolMissing =
    "tarnwell.exe was not found. Place it in the same directory as this program and try again.";

QString consoleNotFound(const QString& address) {
    return "A PS2 console could not be found at IP address: " + address +
           "\r\n\r\nVerify the following:\r\n\r\n"
           "1. The PS2 console is currently running tarnd_svr.elf and it is fully initialized.\r\n"
           "2. The IP address you entered matches the IP address configured in mc0:SYS-CONF/IPCONFIG.DAT\r\n";
}

struct DeviceSelection : ProgramTest {
    DeviceSelection() {
        answerQueryWith(kTwoDisks);
        answerTocWith(kTwoGames);
        start();
    }

    QStringList deviceGroup() const {
        QStringList on;
        for (const ui::Button* button :
             {&frmMain.cmdAddGame, &frmMain.cmdInstall, &frmMain.cmdBackupPC, &frmMain.cmdBackupPS2,
              &frmMain.cmdBackupHDD, &frmMain.cmdDelete, &frmMain.cmdSaveList}) {
            if (button->enabled)
                on += button->name;
        }
        return on;
    }

    void noConsole() { ports.ping.reply = {.status = FakePing::kTimedOut}; }
};

} // namespace

TEST_F(DeviceSelection, RefreshingAConsoleListsItsGamesAndSpace) {
    ui::click(frmMain.cmdAttach);
    EXPECT_EQ(commands(), QStringList({"query", "tarn_toc 192.168.0.10"}));
    EXPECT_EQ(frmMain.lstHD.count(), 2);
    EXPECT_EQ(frmMain.fmBrowse.caption.get(), "Browse, Backup, and Delete - 2 Games");
    EXPECT_EQ(frmMain.lblDiskSpace.caption.get(), "111.79GB Total - 26.09GB Used - 85.70GB Available");
    EXPECT_EQ(deviceGroup().size(), 7);
    EXPECT_EQ(frmMain.cmbHD.listCount(), 2) << "the local disks are targets of a copy";
    EXPECT_EQ(frmMain.mousePointer, ui::MousePointer::Default);
    EXPECT_FALSE(program.shared().blnReadTOC);
}

TEST_F(DeviceSelection, ThePointerIsTheHourglassWhileTheToolAnswers) {
    ui::MousePointer during = ui::MousePointer::Default;
    ports.pump.after(10, [&] { during = frmMain.mousePointer; });
    ui::click(frmMain.cmdAttach);
    EXPECT_EQ(during, ui::MousePointer::Hourglass);
}

TEST_F(DeviceSelection, AConsoleThatDoesNotAnswerIsToldAndInstallsStayOff) {
    ui::click(frmMain.cmdAttach);
    noConsole();
    ui::click(frmMain.cmdAttach);
    EXPECT_EQ(lastMessage(), consoleNotFound("192.168.0.10"));
    EXPECT_EQ(commands(), QStringList({"query", "tarn_toc 192.168.0.10", "query"}));
    EXPECT_FALSE(frmMain.cmdInstall.enabled);
    EXPECT_FALSE(frmMain.cmdAddGame.enabled);
    EXPECT_FALSE(program.shared().blnReadTOC);
    EXPECT_EQ(frmMain.mousePointer, ui::MousePointer::Default);
}

TEST_F(DeviceSelection, RefreshingALocalDiskUsesTheNameUpToItsColon) {
    ui::click(frmMain.optLocal);
    ui::choose(frmMain.cmbHD, 1);
    ui::click(frmMain.cmdAttach);
    EXPECT_EQ(commands(), QStringList({"query", "tarn_toc hdd2:"}));
    EXPECT_EQ(frmMain.lstHD.count(), 2);
    EXPECT_TRUE(ports.ping.echoes.empty());
}

TEST_F(DeviceSelection, ADiskWithoutAColonGivesACommandWithoutADevice) {
    ui::click(frmMain.optLocal);
    frmMain.cmbHD.clear();
    frmMain.cmbHD.addItem("odd disk");
    frmMain.cmbHD.listIndex = 0;
    ui::click(frmMain.cmdAttach);
    EXPECT_EQ(commands().last(), "tarn_toc ");
}

TEST_F(DeviceSelection, WithoutLocalDisksAConsoleIsListedAllTheSame) {
    answerQueryWith("\thdd1:  114473MB, unknown\r\n");
    ui::click(frmMain.cmdAttach);
    EXPECT_EQ(frmMain.cmbHD.listCount(), 0);
    EXPECT_EQ(frmMain.lstHD.count(), 2);
    EXPECT_FALSE(frmMain.cmdBackupHDD.enabled);
}

TEST_F(DeviceSelection, ChoosingLocalShowsTheDisksInPlaceOfTheAddress) {
    ui::click(frmMain.optLocal);
    EXPECT_TRUE(frmMain.cmbHD.visible);
    EXPECT_EQ(frmMain.cmbHD.items(), QStringList({"hdd1:  [111.8 GB]", "hdd2:  [37.3 GB]"}));
    EXPECT_EQ(frmMain.cmbHD.listIndex, 0);
    EXPECT_FALSE(frmMain.txtIP.visible);
    EXPECT_FALSE(frmMain.lblIP.visible);
    EXPECT_FALSE(frmMain.cmdShutdownPS2.visible);
    EXPECT_FALSE(ui::click(frmMain.cmdShutdownPS2)) << "out of reach in local mode";
    EXPECT_EQ(frmMain.cmdAttach.caption.get(), "Refresh HDD");
    EXPECT_EQ(frmMain.cmdAttach.width, 2175);
    EXPECT_FALSE(frmMain.mnuHDD[0].enabled);
    EXPECT_TRUE(frmMain.mnuHDD[1].enabled);
}

TEST_F(DeviceSelection, ChoosingLanAgainBringsTheAddressBack) {
    ui::click(frmMain.optLocal);
    ui::click(frmMain.cmdAttach);
    ui::click(frmMain.optLAN);
    EXPECT_FALSE(frmMain.cmbHD.visible);
    EXPECT_EQ(frmMain.cmbHD.listIndex, -1);
    EXPECT_EQ(frmMain.cmbHD.listCount(), 2);
    EXPECT_TRUE(frmMain.lblIP.visible);
    EXPECT_TRUE(frmMain.txtIP.visible);
    EXPECT_TRUE(frmMain.cmdShutdownPS2.visible);
    EXPECT_EQ(frmMain.cmdAttach.caption.get(), "Refresh PS2");
    EXPECT_EQ(frmMain.cmdAttach.width, 1215);
    EXPECT_EQ(frmMain.lstHD.count(), 0);
    EXPECT_EQ(deviceGroup(), QStringList());
    EXPECT_EQ(frmMain.lblDiskSpace.caption.get(), "(no active device)");
}

TEST_F(DeviceSelection, TheChosenDiskStaysChosenWhenLocalIsChosenAgain) {
    ui::click(frmMain.optLocal);
    ui::choose(frmMain.cmbHD, 1);
    frmMain.optLocal.value = false;
    ui::click(frmMain.optLocal);
    EXPECT_EQ(frmMain.cmbHD.listIndex, 1);
    EXPECT_TRUE(frmMain.mnuHDD[0].enabled);
    EXPECT_FALSE(frmMain.mnuHDD[1].enabled);
}

TEST_F(DeviceSelection, TheDiskChosenBehindAConsoleStaysChosenWhenTheConsoleIsRefreshed) {
    ui::click(frmMain.cmdAttach);
    frmMain.cmbHD.listIndex = 1;
    ui::click(frmMain.cmdAttach);
    EXPECT_EQ(frmMain.cmbHD.text(), "hdd2:  [37.3 GB]");
}

TEST_F(DeviceSelection, ChoosingADiskKeepsTheOldGameListOnView) {
    ui::click(frmMain.optLocal);
    ui::click(frmMain.cmdAttach);
    ui::choose(frmMain.cmbHD, 1);
    EXPECT_EQ(frmMain.lstHD.count(), 2);
    EXPECT_EQ(deviceGroup().size(), 7);
}

TEST_F(DeviceSelection, AListThatComesAfterGoingToTheConsoleIsNotTakenForItsGames) {
    ui::click(frmMain.optLocal);
    ports.launcher.on("tarnwell.exe tarn_toc", {.output = {{kTwoGames, 400}}, .endsAtMs = 500});
    ports.pump.after(100, [this] { ui::click(frmMain.optLAN); });
    ui::click(frmMain.cmdAttach);
    EXPECT_EQ(frmMain.lstHD.count(), 0);
    EXPECT_EQ(deviceGroup(), QStringList());
    EXPECT_EQ(frmMain.lblDiskSpace.caption.get(), "(no active device)");
    EXPECT_FALSE(program.shared().blnReadTOC);
}

TEST_F(DeviceSelection, AListThatComesAfterAChangeOfTheAddressIsNotTakenForThatConsoles) {
    ports.launcher.on("tarnwell.exe tarn_toc", {.output = {{kTwoGames, 400}}, .endsAtMs = 500});
    ports.pump.after(100, [this] { ui::type(frmMain.txtIP, "192.168.0.1"); });
    ui::click(frmMain.cmdAttach);
    EXPECT_EQ(commands().last(), "tarn_toc 192.168.0.10");
    EXPECT_EQ(frmMain.lstHD.count(), 0);
    EXPECT_EQ(deviceGroup(), QStringList());
    EXPECT_FALSE(program.shared().blnReadTOC);
}

TEST_F(DeviceSelection, AnAddressThatChangesWhileTheBarIsDrawnLeavesNothingOfTheConsoleBefore) {
    bool typed = false;
    frmMain.picDiskSpace.drawing.changed.connect([&] {
        if (frmMain.lstHD.count() > 0 && !std::exchange(typed, true))
            ui::type(frmMain.txtIP, "192.168.0.1");
    });
    ui::click(frmMain.cmdAttach);
    EXPECT_TRUE(typed);
    EXPECT_EQ(frmMain.lstHD.count(), 0);
    EXPECT_EQ(deviceGroup(), QStringList());
    EXPECT_EQ(frmMain.lblDiskSpace.caption.get(), "(no active device)");
}

TEST_F(DeviceSelection, ChoosingAnotherDiskDuringARefreshShowsTheGamesOfTheFirst) {
    ui::click(frmMain.optLocal);
    ports.launcher.on("tarnwell.exe tarn_toc", {.output = {{kTwoGames, 400}}, .endsAtMs = 500});
    ports.pump.after(100, [this] { ui::choose(frmMain.cmbHD, 1); });
    ui::click(frmMain.cmdAttach);
    EXPECT_EQ(frmMain.lstHD.count(), 2);
    EXPECT_EQ(deviceGroup().size(), 7);
}

TEST_F(DeviceSelection, GoingToTheLocalDisksBeforeAConsoleWasAskedForItsGamesAsksForNone) {
    answerQueryWith({});
    ports.pump.after(1000, [this] {
        answerQueryWith(kTwoDisks);
        ui::click(frmMain.optLocal);
    });
    ui::click(frmMain.cmdAttach);
    EXPECT_TRUE(frmMain.optLocal.value);
    EXPECT_EQ(commands().filter("tarn_toc"), QStringList());
    EXPECT_EQ(deviceGroup(), QStringList());
}

TEST_F(DeviceSelection, LocalWithoutTheToolFallsBackToLan) {
    removeTool();
    ui::click(frmMain.optLocal);
    EXPECT_EQ(ports.dialogs.messageTexts(), QStringList(kToolMissing));
    EXPECT_TRUE(frmMain.optLAN.value);
    EXPECT_TRUE(commands().isEmpty());
}

TEST_F(DeviceSelection, ChoosingLocalGivesTheConsoleUp) {
    ui::click(frmMain.cmdAttach);
    ui::click(frmMain.optLocal);
    EXPECT_EQ(frmMain.lstHD.count(), 0);
    EXPECT_EQ(deviceGroup(), QStringList());
    EXPECT_EQ(frmMain.lblDiskSpace.caption.get(), "(no active device)");
    EXPECT_EQ(frmMain.picDiskSpace.drawing.get().text, "0%");
}

TEST_F(DeviceSelection, GoingBackToTheConsoleWhileTheDisksAreSoughtKeepsItsAddressOnView) {
    ports.launcher.on("tarnwell.exe query", {.output = {{kTwoDisks}}, .endsAtMs = 500});
    ports.pump.after(100, [this] { ui::click(frmMain.optLAN); });
    ui::click(frmMain.optLocal);
    EXPECT_TRUE(frmMain.optLAN.value);
    EXPECT_TRUE(frmMain.txtIP.visible);
    EXPECT_FALSE(frmMain.cmbHD.visible);
    EXPECT_EQ(frmMain.cmdAttach.caption.get(), "Refresh PS2");
}

TEST_F(DeviceSelection, ALostConnectionInPlaceOfTheDisksEndsTheSearch) {
    answerQueryWith("An existing connection was forcibly closed by the remote host\r\n");
    ui::click(frmMain.optLocal);
    EXPECT_TRUE(frmMain.optLAN.value);
    EXPECT_EQ(lastMessage(), "No PS2 formatted HDD's were found on your system.");
    EXPECT_FALSE(program.shared().blnQueryHD);
}

TEST_F(DeviceSelection, LocalWithoutDisksFallsBackToLan) {
    answerQueryWith("\thdd1:  114473MB, unknown\r\n");
    ui::click(frmMain.optLocal);
    EXPECT_EQ(lastMessage(), "No PS2 formatted HDD's were found on your system.");
    EXPECT_TRUE(frmMain.optLAN.value);
    EXPECT_TRUE(frmMain.txtIP.visible);
}

TEST_F(DeviceSelection, LocalWithASilentToolEndsAndFallsBackToLan) {
    ports.launcher.on("query", silent());
    ui::click(frmMain.optLocal);
    EXPECT_EQ(ports.dialogs.messages.size(), 2u);
    EXPECT_TRUE(frmMain.optLAN.value);
    EXPECT_FALSE(program.shared().blnQueryHD);
}

TEST_F(DeviceSelection, AnUnreadableGameListIsToldOnceAndTheProgramGoesOn) {
    answerTocWith("type   size flags\r\ntotal 0MB, used 0MB, available 0MB\r\n");
    ui::click(frmMain.cmdAttach);
    EXPECT_EQ(ports.dialogs.messages.size(), 1u);
    EXPECT_FALSE(program.shared().blnReadTOC);
    EXPECT_EQ(frmMain.mousePointer, ui::MousePointer::Default);
    answerTocWith(kTwoGames);
    ui::click(frmMain.cmdAttach);
    EXPECT_EQ(frmMain.lstHD.count(), 2);
}

TEST_F(DeviceSelection, RefreshWithoutTheToolSaysSo) {
    removeTool();
    ui::click(frmMain.cmdAttach);
    EXPECT_EQ(ports.dialogs.messageTexts(), QStringList(kToolMissing));
    EXPECT_EQ(ports.dialogs.messages[0].title, " Tarnwell GUI v" TARNWELL_VERSION " by mirelane");
}

TEST_F(DeviceSelection, RefreshWithoutADiskSaysSo) {
    ui::click(frmMain.optLocal);
    frmMain.cmbHD.listIndex = -1;
    ui::click(frmMain.cmdAttach);
    EXPECT_EQ(lastMessage(), "No hard-drive selected.");
    EXPECT_EQ(commands(), QStringList("query"));
}

TEST_F(DeviceSelection, RefreshWithoutAnAddressSaysSo) {
    ui::type(frmMain.txtIP, "");
    ui::click(frmMain.cmdAttach);
    EXPECT_EQ(lastMessage(), "Please enter the IP address of your PlayStation2.");
    EXPECT_TRUE(commands().isEmpty());
}

TEST_F(DeviceSelection, TypingInTheAddressEmptiesTheGameList) {
    ui::click(frmMain.cmdAttach);
    const auto before = commands();
    ui::type(frmMain.txtIP, "192.168.0.1");
    EXPECT_EQ(frmMain.lstHD.count(), 0);
    EXPECT_EQ(deviceGroup(), QStringList());
    EXPECT_EQ(frmMain.lblDiskSpace.caption.get(), "(no active device)");
    EXPECT_EQ(frmMain.picDiskSpace.drawing.get().text, "0%");
    EXPECT_EQ(commands(), before);
    EXPECT_EQ(stored("IP"), "192.168.0.1");
}

TEST_F(DeviceSelection, EnterInTheAddressRefreshesWithoutABeep) {
    EXPECT_FALSE(ui::pressKey(frmMain.txtIP, 13)) << "the key is swallowed";
    EXPECT_EQ(commands(), QStringList({"query", "tarn_toc 192.168.0.10"}));
    EXPECT_TRUE(ui::pressKey(frmMain.txtIP, '1'));
}

TEST_F(DeviceSelection, EnterInTheAddressIsSwallowedEvenIfTheRefreshFails) {
    ports.launcher.script = [](const QString&) -> std::optional<ChildScript> {
        throw std::runtime_error("no process");
    };
    EXPECT_FALSE(ui::pressKey(frmMain.txtIP, 13));
    EXPECT_EQ(ports.dialogs.messages.size(), 1u);
}

TEST_F(DeviceSelection, TheAddressIsNotTrimmed) {
    ui::type(frmMain.txtIP, "127.0.0.1 ");
    ui::click(frmMain.cmdAttach);
    EXPECT_EQ(commands().last(), "tarn_toc 127.0.0.1 ");
}

TEST_F(DeviceSelection, AnAddressThatIsNoneIsNeverPinged) {
    for (const char* address : {"playstation.local", "0.0.0.0", "255.255.255.255", "1.2.3.4.5"}) {
        ui::type(frmMain.txtIP, address);
        ui::click(frmMain.cmdAttach);
        EXPECT_EQ(lastMessage(), consoleNotFound(address));
    }
    EXPECT_TRUE(ports.ping.echoes.empty());
}

TEST_F(DeviceSelection, AFailedConnectionIsToldByItsOwnMessage) {
    answerTocWith("A connection attempt failed because the connected party did not properly respond.\r\n");
    ui::click(frmMain.cmdAttach);
    EXPECT_TRUE(lastMessage().startsWith("The PS2 console could not be found at the IP address entered."));
    EXPECT_EQ(ports.dialogs.messages.back().icon, MessageIcon::Stop);
}

TEST_F(DeviceSelection, ShuttingDownTheConsoleResetsTheDevice) {
    ui::click(frmMain.cmdAttach);
    ui::click(frmMain.cmdShutdownPS2);
    EXPECT_EQ(commands().last(), "poweroff 192.168.0.10");
    EXPECT_EQ(commands().count("poweroff 192.168.0.10"), 1) << "a silent tool is not run again";
    EXPECT_EQ(frmMain.txtCommand.text.get(), "poweroff 192.168.0.10");
    EXPECT_EQ(frmMain.lstHD.count(), 0);
    EXPECT_EQ(deviceGroup(), QStringList());
}

TEST_F(DeviceSelection, ShuttingDownAConsoleThatDoesNotAnswerKeepsTheDevice) {
    ui::click(frmMain.cmdAttach);
    noConsole();
    ui::click(frmMain.cmdShutdownPS2);
    EXPECT_EQ(lastMessage(), consoleNotFound("192.168.0.10"));
    EXPECT_EQ(frmMain.lstHD.count(), 2);
    EXPECT_EQ(deviceGroup().size(), 7);
}

TEST_F(DeviceSelection, ShuttingDownWithoutToolOrAddressSaysSo) {
    ui::type(frmMain.txtIP, "");
    ui::click(frmMain.cmdShutdownPS2);
    EXPECT_EQ(lastMessage(), "Please enter the IP address of your PlayStation2.");
    removeTool();
    ui::click(frmMain.cmdShutdownPS2);
    EXPECT_EQ(lastMessage(), kToolMissing);
    EXPECT_TRUE(commands().isEmpty());
}

TEST_F(DeviceSelection, ASecondRefreshDuringTheFirstFindsTheChannelBusy) {
    answerQueryWith(kTwoDisks);
    ports.pump.after(10, [this] { ui::click(frmMain.cmdAttach); });
    ui::click(frmMain.cmdAttach);
    EXPECT_EQ(commands(), QStringList({"query", "tarn_toc 192.168.0.10"})) << "the second ran nothing";
    EXPECT_TRUE(lastMessage().startsWith("An unknown error has occurred."));
    EXPECT_EQ(frmMain.lstHD.count(), 2);
    EXPECT_FALSE(program.shared().blnReadTOC);
    EXPECT_FALSE(program.shared().blnQueryHD);
}

} // namespace tarnwell::test
