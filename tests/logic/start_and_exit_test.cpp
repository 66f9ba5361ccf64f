#include "base/fault.h"
#include "support/program_test.h"
#include "ui/version.h"

#include <QDir>

namespace tarnwell::test {
namespace {

struct StartUp : ProgramTest {
    /// Notes a step, and whether the icon stood in the tray by then.
    void note(const QString& step) { steps += ports.tray.shown ? step + ", icon" : step; }
    void noteLoad(ui::Form& form) {
        form.Load = [this, name = form.name, load = form.Load] {
            note(name + " loads");
            load();
        };
    }
    void noteChange(ui::Signal<>& changed, const QString& step) {
        changed.connect([this, step] { note(step); });
    }

    QStringList steps;
};

struct WayOut : ProgramTest {
    WayOut() { start(); }
};

} // namespace

TEST_F(StartUp, WritesTheDefaultsIfThereIsNoStore) {
    start();
    EXPECT_EQ(stored("Font"), "Tahoma,8,False,False,");
    EXPECT_EQ(frmMain.txtIP.text.get(), "192.168.0.10");
}

TEST_F(StartUp, LeavesAnExistingStoreAlone) {
    writeFile("config.cfg", "[tarnwell]\r\nViewOutput=0\r\n");
    start();
    EXPECT_EQ(frmMain.txtIP.text.get(), "192.168.0.10");
    EXPECT_EQ(stored("IP"), "") << "the key stays missing until the text is changed";
    ui::type(frmMain.txtIP, "10.0.0.1");
    EXPECT_EQ(stored("IP"), "10.0.0.1");
}

TEST_F(StartUp, ShowsTheStoredAddress) {
    writeFile("config.cfg", "[tarnwell]\r\nIP=10.1.2.3\r\n");
    start();
    EXPECT_EQ(frmMain.txtIP.text.get(), "10.1.2.3");
}

TEST_F(StartUp, OpensTallIfTheActivityIsToBeSeen) {
    writeFile("config.cfg", "[tarnwell]\r\nViewOutput=01\r\n");
    start();
    EXPECT_EQ(frmMain.height, 6365);
    EXPECT_EQ(frmMain.chkOutput.value, 1);
    EXPECT_EQ(stored("ViewOutput"), "1") << "the value is stored again, as a number";
}

TEST_F(StartUp, TheActivityBoxTakesItsNumberAsOtherBoxesDo) {
    writeFile("config.cfg", "[tarnwell]\r\nViewOutput=2\r\n");
    start();
    EXPECT_EQ(frmMain.chkOutput.value, 2);
    EXPECT_EQ(frmMain.height, 3740);
    EXPECT_EQ(stored("ViewOutput"), "2");
}

TEST_F(StartUp, AFractionOfANumberIsRounded) {
    writeFile("config.cfg", "[tarnwell]\r\nViewOutput=0.6\r\n");
    start();
    EXPECT_EQ(frmMain.height, 6365);
    EXPECT_EQ(stored("ViewOutput"), "1");
}

TEST_F(StartUp, AnErrorBeforeTheWindowIsShownIsToldAndEndsTheProgram) {
    frmMain.Load = [] { throw Fault("The window cannot be made."); };
    start();
    EXPECT_EQ(lastMessage(), "The window cannot be made.");
    EXPECT_FALSE(frmMain.shown());
    EXPECT_FALSE(ports.tray.shown);
    EXPECT_TRUE(ports.pump.ended());
}

TEST_F(StartUp, AnErrorThatNobodyForesawEndsItToo) {
    writeFile("config.cfg", "[tarnwell]\r\nIP=10.0.0.9\r\n");
    frmMain.txtIP.Change = [] { throw std::runtime_error("no memory"); };
    start();
    EXPECT_TRUE(lastMessage().contains("no memory"));
    EXPECT_FALSE(ports.tray.shown);
    EXPECT_TRUE(ports.pump.ended());
}

TEST_F(StartUp, StandsInTheMiddleOfTheScreen) {
    start();
    EXPECT_TRUE(frmMain.shown());
    EXPECT_EQ(frmMain.height, 3740);
    EXPECT_EQ(frmMain.left, ports.windows.screen.width / 2 - frmMain.width / 2);
    EXPECT_EQ(frmMain.top, ports.windows.screen.height / 2 - frmMain.height / 2);
    EXPECT_EQ(frmMain.fmJob.left, 120);
    EXPECT_EQ(frmMain.fmJob.top, 0);
}

TEST_F(StartUp, GoesFromTheWindowsOverTheIconToTheShownMainWindow) {
    writeFile("config.cfg", "[tarnwell]\r\nIP=10.1.2.3\r\nViewOutput=1\r\n");
    noteLoad(frmMain);
    noteLoad(program.shared().frmSettings.untouched());
    noteChange(frmMain.txtOutput.caretVisible.changed, "caret");
    noteChange(frmMain.fmJob.left.changed, "job page");
    noteChange(frmMain.left.changed, "left");
    noteChange(frmMain.top.changed, "top");
    noteChange(frmMain.height.changed, "height");
    noteChange(frmMain.txtIP.text.changed, "address");
    noteChange(frmMain.picDiskSpace.drawing.changed, "bar");
    noteChange(frmMain.lstHD.columns.changed, "games");
    noteChange(frmMain.lstJob.columns.changed, "jobs");
    noteChange(frmMain.visible.changed, "shown");
    start();
    EXPECT_EQ(steps, QStringList({"frmMain loads", "frmSettings loads", "caret, icon", "job page, icon",
                                  "left, icon", "top, icon", "height, icon", "address, icon", "bar, icon",
                                  "games, icon", "jobs, icon", "shown, icon"}));
}

TEST_F(StartUp, WritesTheDefaultsBeforeAWindowLoads) {
    bool stored = false;
    frmMain.Load = [&] { stored = program.shared().config.exists(); };
    start();
    EXPECT_TRUE(stored);
}

TEST_F(StartUp, ABoxOfTheStartCarriesTheTitle) {
    ports.folders.data.clear();
    writeFile("tarnwell.conf", "");
    ports.dialogs.chooseFolderAnswers.push_back(ports.folders.folder);
    start();
    ASSERT_EQ(ports.dialogs.messages.size(), 1u) << "the user is asked where the tool's settings are";
    EXPECT_EQ(ports.dialogs.messages[0].title, " Tarnwell GUI v" TARNWELL_VERSION " by mirelane");
}

TEST_F(StartUp, ATallWindowHangsWhereAShortOneWouldStandInTheMiddle) {
    writeFile("config.cfg", "[tarnwell]\r\nViewOutput=1\r\n");
    ports.windows.screen.height = 15360;
    start();
    EXPECT_EQ(frmMain.height, 6365);
    EXPECT_EQ(frmMain.top, 15360 / 2 - 3740 / 2);
}

TEST_F(StartUp, ShowsNoCaretInTheOutput) {
    EXPECT_TRUE(frmMain.txtOutput.caretVisible);
    start();
    EXPECT_FALSE(frmMain.txtOutput.caretVisible);
}

TEST_F(StartUp, GivesTheToolsRunnerTheCommandInterpreterAsAPlaceholder) {
    EXPECT_EQ(program.StdIO().CommandLine(), "");
    start();
    EXPECT_EQ(program.StdIO().CommandLine(), "C:\\WINDOWS\\system32\\cmd.exe");
    EXPECT_TRUE(ports.launcher.children.empty());
}

TEST_F(StartUp, SetsTheWidthsOfTheColumns) {
    start();
    std::vector<int> games, jobs;
    for (const ui::Column& column : frmMain.lstHD.columns.get())
        games.push_back(column.width);
    for (const ui::Column& column : frmMain.lstJob.columns.get())
        jobs.push_back(column.width);
    EXPECT_EQ(games, (std::vector{1400, 1070, 720, 540, 560}));
    EXPECT_EQ(jobs, (std::vector{1000, 1125, 1100, 1375, 1700, 1200, 900, 1000}));
}

TEST_F(StartUp, PutsTheTitleIntoTheTray) {
    start();
    EXPECT_TRUE(ports.tray.shown);
    EXPECT_EQ(ports.tray.tip(), " Tarnwell GUI v" TARNWELL_VERSION " by mirelane");
    EXPECT_EQ(frmMain.picDiskSpace.drawing.get().text, "0%");
}

TEST_F(StartUp, WorksWhereNothingCanBeWritten) {
    ports.folders.folder += "/missing";
    start();
    EXPECT_TRUE(frmMain.shown());
    EXPECT_EQ(frmMain.txtIP.text.get(), "192.168.0.10");
    ui::type(frmMain.txtIP, "10.0.0.1");
    EXPECT_EQ(ports.dialogs.messages.size(), 1u) << "that it is so";
}

TEST_F(WayOut, RemovesTheTrayIconAndEnds) {
    ui::click(frmMain.cmdExit);
    EXPECT_FALSE(ports.tray.shown);
    EXPECT_TRUE(ports.pump.ended());
    EXPECT_TRUE(ports.launcher.children.empty());
}

TEST_F(WayOut, ExitLeavesTheConsoleOnUnlessTheSettingIsExactlyOne) {
    store("ClosePS2", "1.9");
    ui::click(frmMain.cmdExit);
    EXPECT_EQ(commands(), QStringList());
    EXPECT_TRUE(ports.pump.ended());
}

TEST_F(WayOut, TurnsTheConsoleOffInBothPassesIfSet) {
    store("ClosePS2", "1");
    ui::click(frmMain.cmdExit);
    EXPECT_EQ(ports.launcher.commandLines(), QStringList(2, path("tarnwell.exe") + " poweroff 192.168.0.10"));
}

TEST_F(WayOut, SkipsAConsoleThatDoesNotAnswerWithoutAWord) {
    store("ClosePS2", "1");
    ports.ping.reply = {.status = FakePing::kTimedOut};
    ui::click(frmMain.mnuExit);
    EXPECT_TRUE(ports.launcher.children.empty());
    EXPECT_TRUE(ports.dialogs.messages.empty());
    EXPECT_TRUE(ports.pump.ended());
}

TEST_F(WayOut, LeavesTheConsoleOnInLocalMode) {
    store("ClosePS2", "1");
    answerQueryWith(kTwoDisks);
    ui::click(frmMain.optLocal);
    ui::click(frmMain.cmdExit);
    EXPECT_EQ(commands(), QStringList("query"));
}

TEST_F(WayOut, TheCloseBoxGoesTheSameWayOut) {
    ui::close(frmMain);
    EXPECT_TRUE(ports.pump.ended());
    EXPECT_FALSE(ports.tray.shown);
}

TEST_F(WayOut, LeadsOverTheConsoleTheIconAndTheOtherWindows) {
    store("ClosePS2", "1");
    QStringList steps;
    const auto note = [&](const QString& step) { steps += ports.tray.shown ? step + ", icon" : step; };
    ports.launcher.script = [&](const QString& line) {
        note(line.section("tarnwell.exe ", 1));
        return silent();
    };
    for (ui::Form* form : std::initializer_list<ui::Form*>{&program.shared().frmAbout.untouched(),
                                                           &program.shared().frmSettings.untouched(),
                                                           &frmStatus.untouched(), &frmMain}) {
        form->load();
        form->QueryUnload = [&note, form](bool&) { note(form->name); };
    }
    ui::click(frmMain.cmdExit);
    EXPECT_EQ(steps, QStringList({"poweroff 192.168.0.10, icon", "frmAbout", "frmSettings", "frmStatus",
                                  "frmMain", "poweroff 192.168.0.10", "frmSettings"}))
        << "the main window's end goes the same way once more, and meets the settings, which only hide";
}

} // namespace tarnwell::test
