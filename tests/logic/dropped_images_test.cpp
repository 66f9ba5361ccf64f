#include "support/program_test.h"

#include <QDir>

namespace tarnwell::test {

namespace {

QByteArray dvd(const QByteArray& name, int megabytes = 4095) {
    return "DVD " + QByteArray::number(megabytes * 1024) + "KB \"" + name + "\" \"SLUS_990.71\"\r\n";
}

/// A console with 87761 MB of free space and two games is listed.
struct DroppedImages : ProgramTest {
    DroppedImages() {
        answerQueryWith(kTwoDisks);
        answerTocWith(kTwoGames);
        start();
        ui::click(frmMain.cmdAttach);
        before_ = static_cast<int>(commands().size());
    }

    /// A file, and what the tool says of it.
    QString image(const QString& name, const ChildScript& answer) {
        QDir(ports.folders.folder).mkpath(QFileInfo(path(name)).path());
        writeFile(name, "image");
        ports.launcher.on("cdvd_info2 \"" + whole(name), answer);
        return whole(name);
    }
    QString image(const QString& name, const QByteArray& answer) {
        return image(name, ChildScript{.output = {{answer}}});
    }
    QString whole(const QString& name) const { return QDir::toNativeSeparators(path(name)); }
    bool drop(const QStringList& paths) { return ui::dropFiles(frmMain, paths); }

    QStringList commandsOfDrop() const { return commands().mid(before_); }
    QStringList namesOfJobs() const {
        QStringList names;
        for (int i = 0; i < frmMain.lstJob.count(); ++i)
            names += frmMain.lstJob.row(i).subItems[3];
        return names;
    }
    /// The commands that reach the tool while a box is up or an image is read.
    void whenToolRuns(const QString& part, const std::function<void()>& act) {
        const auto usual = ports.launcher.script;
        ports.launcher.script = [=, this](const QString& line) {
            if (line.contains(part))
                ports.pump.after(10, act);
            return usual(line);
        };
    }

    int before_ = 0;
};

} // namespace

TEST_F(DroppedImages, OneImageIsPickedAsWithBrowse) {
    const QString lantern = image("Lantern.ISO", dvd("LANTERN"));
    EXPECT_TRUE(drop({lantern}));
    EXPECT_EQ(commandsOfDrop(), QStringList("cdvd_info2 \"" + lantern + '"'));
    EXPECT_EQ(frmMain.txtISO.text.get(), lantern);
    EXPECT_EQ(frmMain.txtGameName.text.get(), "LANTERN");
    EXPECT_TRUE(frmMain.cmdCompat.enabled);
    EXPECT_EQ(frmMain.lstJob.count(), 0);
    EXPECT_TRUE(ports.dialogs.messages.empty());
    EXPECT_TRUE(ports.dialogs.progressSteps.empty());
}

TEST_F(DroppedImages, OneImageIsShownOnItsPageWhateverTheUserWasAt) {
    const QString lantern = image("lantern.nrg", dvd("LANTERN"));
    answerQueryWith("\tcd0:  4482 MB\r\n\tcd1: 700 MB\r\nvia SPTI:\r\n\tD: disc\r\n\tE: disc\r\n");
    ui::click(frmMain.optOptical);
    ui::click(frmMain.optBrowse);
    ui::click(frmMain.optJobQueue);
    EXPECT_TRUE(drop({lantern}));
    EXPECT_TRUE(frmMain.optISO.value);
    EXPECT_TRUE(frmMain.txtISO.usable());
    EXPECT_EQ(frmMain.txtISO.text.get(), lantern);
    EXPECT_EQ(frmMain.txtGameName.text.get(), "LANTERN");
}

TEST_F(DroppedImages, SeveralAreReadInTurnAndQueuedAsWithAddToJobQueue) {
    const QString lantern = image("lantern.iso", dvd("LANTERN")),
                  beacon = image("my beacon.gi", dvd("BEACON"));
    EXPECT_TRUE(drop({lantern, beacon}));
    EXPECT_EQ(commandsOfDrop(),
              QStringList({"cdvd_info2 \"" + lantern + '"', "cdvd_info2 \"" + beacon + '"'}));
    ASSERT_EQ(frmMain.lstJob.count(), 2);
    EXPECT_EQ(frmMain.lstJob.row(0).text, "Pending");
    EXPECT_EQ(frmMain.lstJob.row(1).subItems,
              QStringList({"Install", beacon, "192.168.0.10", "BEACON", "SLUS_990.71", "DVD-ROM", ""}));
    EXPECT_EQ(frmMain.lstJob.row(1).tag, "inject_dvd 192.168.0.10 BEACON \"" + beacon + "\" SLUS_990.71");
    EXPECT_TRUE(frmMain.cmdStart.enabled);
    EXPECT_EQ(frmMain.txtISO.text.get(), "");
    EXPECT_FALSE(frmMain.cmdCompat.enabled);
    EXPECT_TRUE(frmMain.cmdAddGame.enabled);
    EXPECT_EQ(frmMain.mousePointer, ui::MousePointer::Default);
    EXPECT_EQ(balloons(), QStringList());
    EXPECT_EQ(ports.dialogs.messageTexts(),
              QStringList("2 of 2 images added to the job queue.\r\n\r\n"
                          "Added:\r\nLANTERN (lantern.iso)\r\nBEACON (my beacon.gi)"));
}

TEST_F(DroppedImages, ABoxShowsHowFarItHasCome) {
    drop({image("a.iso", dvd("A")), image("b.iso", dvd("B"))});
    const auto& steps = ports.dialogs.progressSteps;
    ASSERT_EQ(steps.size(), 2u);
    EXPECT_EQ(steps[0].title, "Add to Job Queue");
    EXPECT_EQ(steps[1].text, "Reading b.iso");
    EXPECT_EQ(steps[1].done, 1);
    EXPECT_EQ(steps[1].steps, 2);
    EXPECT_FALSE(ports.dialogs.cancelProgress) << "it is gone before the last box";
}

TEST_F(DroppedImages, AFolderIsSearchedToTheGroundAndEachImageIsFoundOnce) {
    image("games/lantern.iso", dvd("LANTERN"));
    image("games/more/BEACON.ISO", dvd("BEACON"));
    image("games/readme.txt", QByteArray());
    EXPECT_TRUE(drop({path("games"), path("games/lantern.iso"), path("games/more")}));
    QStringList names = namesOfJobs();
    names.sort();
    EXPECT_EQ(names, QStringList({"BEACON", "LANTERN"}));
    EXPECT_EQ(ports.dialogs.progressSteps.front().steps, 0);
}

TEST_F(DroppedImages, WhatCannotBeAddedIsToldWithItsReason) {
    const QString odd = image("odd.iso", dvd("ODD"));
    ports.folders.namesInCodePage = {{odd, ""}};
    writeFile("readme.txt", "no image");
    EXPECT_TRUE(drop({image("lantern.iso", dvd("LANTERN")), image("broken.iso", "bad ISOFS.\r\n"),
                      image("huge.iso", dvd("HUGE", 100'000)), image(".iso", dvd("")), odd,
                      path("readme.txt"), image("mute.iso", QByteArray()),
                      image("beyond.iso", "DVD 2199023206400KB \"BEYOND\" \"SLUS_990.71\"\r\n")}));
    EXPECT_EQ(namesOfJobs(), QStringList("LANTERN"));
    EXPECT_EQ(ports.dialogs.messages.size(), 1u);
    const QString told = lastMessage();
    EXPECT_TRUE(told.startsWith("1 of 8 images added to the job queue.\r\n\r\nNot added:\r\n" +
                                whole("readme.txt") + ": no image that can be read\r\n"))
        << told.toStdString();
    for (const char* line :
         {"broken.iso: tarnwell.exe cannot read a game from it",
          "huge.iso: it needs 100096MB, and 87761MB are available", "\n.iso: the game has no name",
          "odd.iso: its name has letters that tarnwell.exe cannot hold",
          "mute.iso: tarnwell.exe did not answer", "beyond.iso: The size of the game, "})
        EXPECT_TRUE(told.contains(line)) << line << "\nin " << told.toStdString();
    EXPECT_FALSE(program.shared().blnDiscInfo);
}

TEST_F(DroppedImages, NothingIsInstalledAndTheQueueIsNotStarted) {
    drop({image("a.iso", dvd("A")), image("b.iso", dvd("B"))});
    ports.pump.pumpFor(60'000);
    EXPECT_EQ(commandsOfDrop().filter("inject").size(), 0);
    EXPECT_FALSE(program.shared().runUnderWay);
}

TEST_F(DroppedImages, GamesOfOneNameAreToldApart) {
    const QString listed = frmMain.lstHD.row(0).text;
    drop({image("a.iso", dvd(listed.toUtf8())), image("b.iso", dvd("NEW")), image("c.iso", dvd("NEW")),
          image("d.iso", dvd("NEW"))});
    EXPECT_EQ(namesOfJobs(), QStringList({listed + " (2)", "NEW", "NEW (2)", "NEW (3)"}));
    EXPECT_TRUE(frmMain.lstJob.row(0).tag.startsWith("inject_dvd 192.168.0.10 \"" + listed + " (2)\" "));
    drop({path("b.iso"), path("a.iso")});
    EXPECT_EQ(namesOfJobs().mid(4), QStringList({"NEW (4)", listed + " (3)"}));
}

TEST_F(DroppedImages, AJobForAnotherDeviceTakesNoName) {
    drop({image("a.iso", dvd("NEW")), image("b.iso", dvd("OTHER"))});
    ui::type(frmMain.txtIP, "10.0.0.9");
    ui::click(frmMain.cmdAttach);
    drop({path("a.iso"), path("b.iso")});
    EXPECT_EQ(namesOfJobs(), QStringList({"NEW", "OTHER", "NEW", "OTHER"}));
}

TEST_F(DroppedImages, WithoutAListedDeviceSeveralAreNotEvenRead) {
    ui::type(frmMain.txtIP, "10.0.0.9");
    ASSERT_FALSE(frmMain.cmdAddGame.enabled);
    EXPECT_TRUE(drop({image("a.iso", dvd("A")), image("b.iso", dvd("B"))}));
    EXPECT_EQ(commandsOfDrop(), QStringList());
    EXPECT_EQ(
        ports.dialogs.messageTexts(),
        QStringList("Nothing was added to the job queue, because the free space of the PS2 hard-drive is "
                    "not known yet. Press \"Refresh PS2\" and drop the images again."));
}

TEST_F(DroppedImages, ADiskWhoseFreeSpaceWasNotReadTakesNoGame) {
    answerQueryWith(kTwoDisks);
    ui::click(frmMain.optLocal);
    ui::choose(frmMain.cmbHD, 0);
    ui::click(frmMain.cmdAttach);
    ui::choose(frmMain.cmbHD, 1);
    ASSERT_TRUE(frmMain.cmdAddGame.enabled);
    drop({image("a.iso", dvd("A")), image("b.iso", dvd("B"))});
    EXPECT_EQ(frmMain.lstJob.count(), 0);
    EXPECT_TRUE(lastMessage().contains("a.iso: the free space of the chosen disk is not known"));
}

TEST_F(DroppedImages, WithoutTheToolTheUserIsTold) {
    const QString a = image("a.iso", dvd("A")), b = image("b.iso", dvd("B"));
    removeTool();
    EXPECT_TRUE(drop({a}));
    EXPECT_TRUE(drop({a, b}));
    EXPECT_EQ(ports.dialogs.messages.size(), 2u);
    EXPECT_TRUE(lastMessage().startsWith("tarnwell.exe was not found."));
}

TEST_F(DroppedImages, CancelKeepsWhatWasReadAndReadsNoMore) {
    const QString a = image("a.iso", dvd("A")), c = image("c.iso", dvd("C"));
    const QString b = image("b.iso", ChildScript{.output = {{dvd("B"), 60'000}}, .endsAtMs = 60'000});
    whenToolRuns("b.iso", [this] { ports.dialogs.cancelProgress(); });
    const qint64 start = ports.clock.now;
    drop({a, b, c});
    EXPECT_LT(ports.clock.now - start, 1000) << "the tool gets its interrupt";
    EXPECT_EQ(ports.launcher.children.back()->interrupts, 1);
    EXPECT_EQ(commandsOfDrop().size(), 2);
    EXPECT_EQ(namesOfJobs(), QStringList("A"));
    EXPECT_EQ(lastMessage(), "You cancelled before all images were read. 1 of 1 images added to the job "
                             "queue.\r\n\r\nAdded:\r\nA (a.iso)");
    EXPECT_TRUE(frmMain.cmdStart.enabled);
    EXPECT_TRUE(frmMain.cmdInstall.enabled);
}

TEST_F(DroppedImages, CancelEndsTheWaitForAToolThatStaysSilent) {
    image("a.iso", QByteArray());
    whenToolRuns("a.iso", [this] { ports.pump.after(500, [this] { ports.dialogs.cancelProgress(); }); });
    const qint64 start = ports.clock.now;
    drop({path("a.iso"), image("b.iso", dvd("B"))});
    EXPECT_LT(ports.clock.now - start, 1000);
    EXPECT_EQ(commandsOfDrop().size(), 1);
    EXPECT_EQ(lastMessage(), "You cancelled before all images were read. Nothing was added.");
}

TEST_F(DroppedImages, CancelEndsTheSearchOfFolders) {
    image("games/deep/a.iso", dvd("A"));
    ports.pump.queue([this] { ports.dialogs.cancelProgress(); });
    drop({path("games")});
    EXPECT_EQ(commandsOfDrop(), QStringList());
    EXPECT_EQ(lastMessage(), "You cancelled before all images were read. Nothing was added.");
}

TEST_F(DroppedImages, MeanwhileTheWindowIsPausedAndTakesNoSecondDrop) {
    const QString a = image("a.iso", dvd("A")), b = image("b.iso", dvd("B"));
    bool paused = false, second = true;
    whenToolRuns("a.iso", [&] {
        paused = !frmMain.cmdAddGame.enabled && !frmMain.cmdInstall.enabled && !frmMain.cmdStart.enabled;
        second = drop({b});
    });
    const bool started = [&] {
        whenToolRuns("b.iso", [&] { EXPECT_FALSE(ui::click(frmMain.cmdStart)) << "a is no job yet"; });
        return drop({a, b});
    }();
    EXPECT_TRUE(started);
    EXPECT_TRUE(paused);
    EXPECT_FALSE(second);
    EXPECT_EQ(namesOfJobs(), QStringList({"A", "B"}));
}

TEST_F(DroppedImages, NoDropIsTakenWhileWorkRuns) {
    const QString a = image("a.iso", dvd("A"));
    drop({a});
    ports.launcher.on("inject_dvd", ChildScript{.endsAtMs = 5000});
    bool taken = true;
    whenToolRuns("inject_dvd", [&] {
        ports.tray.doubleClicked();
        EXPECT_TRUE(frmMain.shown());
        taken = drop({a});
    });
    ui::click(frmMain.cmdInstall);
    EXPECT_FALSE(taken);
}

TEST_F(DroppedImages, NoDropIsTakenWhileTheToolAnswersAQuestion) {
    const QString a = image("a.iso", dvd("A"));
    bool taken = true;
    whenToolRuns("tarn_toc", [&] { taken = drop({a}); });
    ui::click(frmMain.cmdAttach);
    EXPECT_FALSE(taken);
}

TEST_F(DroppedImages, WhatHoldsNoImageIsNotTaken) {
    writeFile("readme.txt", "no image");
    EXPECT_FALSE(drop({path("readme.txt")}));
    EXPECT_FALSE(drop({path("missing.iso")}));
    EXPECT_FALSE(drop({}));
    EXPECT_TRUE(ui::takesFiles(frmMain, {ports.folders.folder}));
}

TEST_F(DroppedImages, AFolderWithoutImagesIsToldToBeSo) {
    QDir(ports.folders.folder).mkpath("empty");
    drop({path("empty")});
    EXPECT_EQ(ports.dialogs.messageTexts(), QStringList("There was no game image in what you dropped."));
}

TEST_F(DroppedImages, TheEndOfTheProgramEndsTheReading) {
    whenToolRuns("a.iso", [this] { ports.pump.end(); });
    drop({image("a.iso", dvd("A")), image("b.iso", dvd("B"))});
    EXPECT_EQ(commandsOfDrop().size(), 1);
    EXPECT_EQ(frmMain.lstJob.count(), 0);
    EXPECT_TRUE(ports.dialogs.messages.empty());
}

} // namespace tarnwell::test
