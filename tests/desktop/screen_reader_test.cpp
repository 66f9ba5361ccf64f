#include "desktop/desktop_test.h"
#include "desktop/screen_reader.h"
#include "tour/workbench.h"

namespace tarnwell::test {

namespace {

/// The same roads that others go by mouse or by keys.
class ByScreenReader : public DesktopTest {
protected:
    ByScreenReader() {
        environment.remove("XDG_CURRENT_DESKTOP");
        start(bench.folder());
    }

    void waitFor(const char* what, const std::function<bool()>& seen) const {
        if (!pumpUntil(seen))
            throw std::runtime_error(std::string(what) + " did not come" + reader.everything());
    }
    void press(const QString& button) const {
        waitFor("a button that is on", [&] { return reader.enabled("push button", button); });
        reader.act("push button", button);
    }
    void openDisk() const {
        reader.act("radio button", "Locally connected PS2 HDD");
        waitFor("the disks", [&] { return reader.textOf("combo box", "Local PS2 disk").startsWith("hdd"); });
        reader.choose("Local PS2 disk", "hdd2:");
        waitFor("the choice",
                [&] { return reader.textOf("combo box", "Local PS2 disk").startsWith("hdd2:"); });
        reader.choose("Local PS2 disk", "hdd1:");
        waitFor("the choice",
                [&] { return reader.textOf("combo box", "Local PS2 disk").startsWith("hdd1:"); });
        press("Refresh HDD");
        waitFor("the free space", [&] { return !reader.shown("label", "(no active device)"); });
    }
    void pickImage(const QString& image) const {
        press("Browse");
        reader.write("text", "File name:", image);
        press("Open");
        waitFor("the game", [&] { return !reader.textOf("text", "Game name").isEmpty(); });
    }
    void pickSample() const { pickImage(bench.makeSamples() + "/cd-game.iso"); }
    void tick(const QString& flag) const {
        press("Compatibility Flags");
        reader.act("menu item", flag);
        reader.act("menu item", "Done");
        waitFor("the flags to close", [&] { return !reader.shown("menu item", "Done"); });
    }
    void waitForResult(const QString& result) const {
        waitFor("the result", [&] { return reader.namesOf("tree item").contains(result); });
    }
    void hear(const QString& text) const {
        waitFor("the announcement", [&] { return reader.heard.contains(text); });
    }
    QString logged(const QString& command) const {
        return bench.log().split('\n').filter("> " + command).join('\n');
    }

    const tour::Workbench bench;
    ScreenReader reader{bus.address(), display.name()};
};

} // namespace

TEST_F(ByScreenReader, EverythingIsWhatItIsCalled) {
    EXPECT_EQ(reader.namesOf("frame").size(), 1) << "windows and nothing else";
    EXPECT_EQ(reader.namesOf("panel"),
              QStringList({"Playstation 2 Device", "HDD Space Information", "Navigation", "Install"}));
    EXPECT_EQ(reader.namesOf("radio button"),
              QStringList({"LAN - Networked PS2", "Locally connected PS2 HDD", "Install",
                           "Browse, Backup, Delete", "Job Queue", "ISO File", "Optical Drive"}));
    EXPECT_EQ(reader.namesOf("separator"), QStringList({"", "", "", ""}));
    EXPECT_EQ(reader.namesOf("combo box"), QStringList({"Optical drive", "Type of the disc"}));
    EXPECT_EQ(reader.textOf("combo box", "Type of the disc"), "DVD-ROM");
    EXPECT_EQ(reader.valueOf("progress bar", "Used disk space"), 0);
}

TEST_F(ByScreenReader, AGameIsInstalledWithAFlagThroughTheQueue) {
    openDisk();
    pickSample();
    tick("1: Slow HDD Access");
    press("Add to Job Queue");
    reader.act("radio button", "Job Queue");
    waitForResult("Pending");
    bench.behave("delay_ms_per_step = 10\n");
    press("Start Job Queue");
    hear("The work has ended.");
    waitForResult("Complete");
    EXPECT_EQ(reader.heard.first(), "Installing [SALT_AND_SAND] onto Device [hdd1:]");
    EXPECT_EQ(reader.heard.last(), "The work has ended.");
    const QStringList tenths = reader.heard.mid(1, reader.heard.size() - 2);
    EXPECT_EQ(tenths.last(), "100%");
    EXPECT_GE(tenths.size(), 5) << "a busy machine may pass one unseen";
    EXPECT_LE(tenths.size(), 10) << tenths.join(' ').toStdString();
    EXPECT_GT(reader.barsPassed.size(), 20U) << "bars tell how they go";
    EXPECT_TRUE(logged("inject_cd").contains("+1")) << logged("inject_cd").toStdString();
}

TEST_F(ByScreenReader, AnInstallIsCancelled) {
    openDisk();
    pickSample();
    bench.behave("[inject_cd]\nhang_at_percent = 51\n");
    press("Install Now");
    hear("50%");
    EXPECT_EQ(reader.valueOf("progress bar", "Overall completion"), 50);
    press("Cancel");
    hear("The work has ended at 50%.");
    waitFor("the end", [&] { return reader.enabled("push button", "Install Now"); });
}

TEST_F(ByScreenReader, ADiskIsFormatted) {
    press("Settings & Tools");
    reader.act("page tab", "Tools");
    press("Refresh");
    waitFor("the disks", [&] { return reader.textOf("combo box", "Device").startsWith("hdd"); });
    reader.choose("Device", "hdd3:");
    press("Format Drive");
    waitFor("the question", [&] { return reader.shown("push button", "Yes"); });
    press("Yes");
    hear("The work has ended.");
    EXPECT_TRUE(bench.run({"tarn_toc", "hdd3:"}).startsWith("type"));
}

} // namespace tarnwell::test
