#include "desktop/desktop_test.h"
#include "desktop/status_notifier_host.h"
#include "ui/version.h"

namespace tarnwell::test {

namespace {

class OnStatusNotifierHost : public DesktopTest {
protected:
    OnStatusNotifierHost() {
        start();
        EXPECT_TRUE(pumpUntil([this] { return !host.items.isEmpty(); }));
    }

    bool tipBecomes(const QString& tip) const {
        return pumpUntil([&] { return host.tip() == tip; });
    }
    QStringList labels() const {
        QStringList all;
        for (const auto& entry : host.menu())
            all += entry.label;
        return all;
    }
    int entry(const QString& label) const {
        for (const auto& known : host.menu()) {
            if (known.label == label)
                return known.id;
        }
        return -1;
    }

    StatusNotifierHost host{bus.address()};
};

} // namespace

TEST_F(OnStatusNotifierHost, TheIconIsThereInSeveralSizesWithTheTitleAsItsTip) {
    EXPECT_EQ(tell("tray"), "there");
    EXPECT_EQ(host.items.size(), 1);
    EXPECT_FALSE(host.pictures().isEmpty());
    EXPECT_EQ(host.tip(), " Tarnwell GUI v" TARNWELL_VERSION " by mirelane");
}

TEST_F(OnStatusNotifierHost, TheTipShowsAllItsLines) {
    tell("tip 42%|Speed: 3.50 MB/sec");
    EXPECT_TRUE(tipBecomes("42%\r\nSpeed: 3.50 MB/sec")) << host.tip().toStdString();
    tell("tip Current: 42%|Overall: 21%|Job 1 of 2|Speed: 3.50 MB/sec");
    EXPECT_TRUE(tipBecomes("Current: 42%\r\nOverall: 21%\r\nJob 1 of 2\r\nSpeed: 3.50 MB/sec"))
        << host.tip().toStdString();
}

TEST_F(OnStatusNotifierHost, ALongTipIsCut) {
    tell("tip " + QByteArray(127, 'a') + "b");
    EXPECT_TRUE(tipBecomes(QString(127, 'a')));
}

TEST_F(OnStatusNotifierHost, BalloonsAreShownInTheirOrder) {
    tell("balloon Installing Salt & Sand");
    tell("balloon Installing [Salt & Sand] to [hdd1:]");
    ASSERT_TRUE(pumpUntil([this] { return host.balloons.size() == 2; }));
    EXPECT_EQ(host.balloons[0].title, "Tarnwell GUI");
    EXPECT_EQ(host.balloons[0].text, "Installing Salt & Sand");
    EXPECT_EQ(host.balloons[1].text, "Installing [Salt & Sand] to [hdd1:]");
}

TEST_F(OnStatusNotifierHost, TheTipGoesOnShowingTheProgressWhenABalloonComes) {
    tell("tip 42%|Speed: 3.50 MB/sec");
    EXPECT_TRUE(tipBecomes("42%\r\nSpeed: 3.50 MB/sec"));
    tell("balloon Installing Salt & Sand");
    ASSERT_TRUE(pumpUntil([this] { return host.balloons.size() == 1; }));
    EXPECT_EQ(host.tip(), "42%\r\nSpeed: 3.50 MB/sec");
    tell("tip 43%|Speed: 3.50 MB/sec");
    EXPECT_TRUE(tipBecomes("43%\r\nSpeed: 3.50 MB/sec")) << host.tip().toStdString();
}

TEST_F(OnStatusNotifierHost, BringsAHiddenProgramBack) {
    tell("hide");
    EXPECT_TRUE(becomes("window", "hidden"));
    host.activate();
    EXPECT_TRUE(becomes("window", "shown"));
}

TEST_F(OnStatusNotifierHost, AMiddleClickDoesNothing) {
    tell("hide");
    host.secondaryActivate();
    QtEventPump().pumpFor(200);
    EXPECT_EQ(tell("window"), "hidden");
}

TEST_F(OnStatusNotifierHost, ARightClickThatIsPassedOnOpensTheMenuWhetherTheWindowIsUpOrNot) {
    host.openContextMenu();
    EXPECT_TRUE(becomes("menu", kMenu));
    tell("dismiss");
    EXPECT_EQ(tell("menu"), "");
    tell("hide");
    host.openContextMenu();
    EXPECT_TRUE(becomes("menu", kMenuOverHidden));
}

TEST_F(OnStatusNotifierHost, TheMenuIsThereForAPanelThatDrawsItItself) {
    // An underscore marks the letter that a key chooses.
    EXPECT_EQ(labels(), QStringList({"Settings _& Tools", "Minimize", "Exit"}));
    host.chooseEntry(entry("Minimize"));
    EXPECT_TRUE(becomes("window", "hidden"));
    EXPECT_TRUE(pumpUntil([this] { return entry("Maximize") >= 0; }));
    host.chooseEntry(entry("Maximize"));
    EXPECT_TRUE(becomes("window", "shown"));
}

TEST_F(OnStatusNotifierHost, ExitInTheMenuEndsTheProgram) {
    host.chooseEntry(entry("Exit"));
    EXPECT_TRUE(pumpUntil([this] { return !program->running(); }));
}

TEST_F(OnStatusNotifierHost, ThePageNeedsNothingThatIsNotBesideTheProgram) {
    EXPECT_EQ(tell("serve"), "listening");
}

class CopiedAlone : public DesktopTest {};

TEST_F(CopiedAlone, TheProgramTellsThatThereWillBeNoPage) {
    const StatusNotifierHost host{bus.address()};
    const QString copy = programFolder.filePath("helper");
    ASSERT_TRUE(QFile::copy(builtProgram("desktop_helper"), copy));
    start(programFolder.path(), copy);
    EXPECT_EQ(tell("serve"), "silent");
    ASSERT_TRUE(pumpUntil([&] { return !host.balloons.empty(); }));
    EXPECT_TRUE(host.balloons.front().text.startsWith("There will be no status page"));
}

class BeforeAStatusNotifierHost : public DesktopTest {};

TEST_F(BeforeAStatusNotifierHost, ThePanelThatIsStartedLaterShowsWhatTheIconTellsByThen) {
    start();
    EXPECT_EQ(tell("tray"), "none");
    tell("tip 42%|Speed: 3.50 MB/sec");
    const StatusNotifierHost host{bus.address()};
    EXPECT_TRUE(becomes("tray", "there"));
    ASSERT_TRUE(pumpUntil([&] { return !host.items.isEmpty(); }));
    EXPECT_EQ(host.tip(), "42%\r\nSpeed: 3.50 MB/sec");
    EXPECT_EQ(host.menu().size(), 3u);
    tell("hide");
    EXPECT_TRUE(becomes("window", "hidden"));
    host.activate();
    EXPECT_TRUE(becomes("window", "shown"));
}

} // namespace tarnwell::test
