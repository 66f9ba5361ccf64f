#include "end_to_end/whole_program.h"

#include <QApplication>
#include <QDialog>
#include <QDir>
#include <QDirIterator>
#include <QLabel>
#include <QPushButton>

namespace tarnwell::test {
namespace {

class DroppedImages : public WholeProgram {
protected:
    /// With the box of progress up, its text; empty without.
    static QString progressText(User& user) {
        return user.look([] {
            const QWidget* const box = QApplication::activeModalWidget();
            const auto* const label = box ? box->findChild<QLabel*>() : nullptr;
            return box && box->windowTitle() == "Add to Job Queue" && label ? label->text() : QString();
        });
    }
    static void pressCancel(User& user) {
        user.look([] { QApplication::activeModalWidget()->findChild<QPushButton*>()->click(); });
    }
};

TEST_F(DroppedImages, OneIsReadOntoTheInstallPage) {
    const QString image = makeImage();
    play([&](User& user) {
        openDisk(user);
        EXPECT_TRUE(user.drop("txtGameName", {image}));
        user.waitUntilIdle();
        EXPECT_EQ(user.text("txtGameName"), "HARVEST");
        EXPECT_EQ(user.text("txtGameStartup"), "SLUS_999.99");
        EXPECT_EQ(user.text("txtISO"), QDir::toNativeSeparators(image));
    });
    EXPECT_EQ(logged("inject"), "");
}

TEST_F(DroppedImages, AFolderOfImagesFillsTheQueueWhichThenInstallsThem) {
    QDir().mkpath(bench.path("games/more"));
    makeImage("games/a.iso", "HARVEST");
    makeImage("games/more/b.ISO", "SOWING");
    makeImage("games/more/c.iso", "HARVEST");
    write(bench.path("games/broken.iso"), QByteArray(100'000, 'x'));
    play([&](User& user) {
        openDisk(user);
        EXPECT_TRUE(user.drop("fmDevice", {bench.path("games")}));
        const QString told = user.confirmMessage();
        EXPECT_TRUE(told.startsWith("3 of 4 images added to the job queue.")) << told.toStdString();
        EXPECT_TRUE(told.contains("broken.iso: tarnwell.exe cannot read a game from it"))
            << told.toStdString();
        EXPECT_TRUE(told.contains("HARVEST (2) (c.iso)")) << told.toStdString();
        user.waitUntilIdle();
        EXPECT_EQ(logged("inject"), "") << "nothing starts by itself";
        user.click("optJobQueue");
        user.waitUntilIdle();
        EXPECT_EQ(user.rows("lstJob").size(), 3);
        user.click("cmdStart");
        user.waitUntilIdle();
        for (const QString& job : user.rows("lstJob"))
            EXPECT_TRUE(job.startsWith("Complete | Install")) << job.toStdString();
    });
    const QString games = bench.run({"tarn_toc", "hdd1:"});
    for (const char* name : {"HARVEST\n", "SOWING", "HARVEST (2)"})
        EXPECT_TRUE(QString(games).remove('\r').contains(name)) << name << " in " << games.toStdString();
}

TEST_F(DroppedImages, CancelStopsTheToolAndTheProgramIsUsableAgain) {
    const QString first = makeImage("a.iso"), second = makeImage("b.iso");
    play([&](User& user) {
        openDisk(user);
        bench.behave("[cdvd_info2]\nstart_delay_ms = 600000\n");
        EXPECT_TRUE(user.drop("fmInstall", {first, second}));
        user.waitFor("the first image to be read", [&] { return progressText(user) == "Reading a.iso"; });
        EXPECT_FALSE(user.drop("fmInstall", {first})) << "no second drop meanwhile";
        EXPECT_FALSE(user.enabled("cmdInstall"));
        pressCancel(user);
        EXPECT_EQ(user.confirmMessage(), "You cancelled before all images were read. Nothing was added.");
        user.waitUntilIdle();
        bench.behave({});
        EXPECT_TRUE(user.drop("fmInstall", {first}));
        user.waitUntilIdle();
        EXPECT_EQ(user.text("txtGameName"), "HARVEST");
        EXPECT_TRUE(user.enabled("cmdInstall"));
    });
}

TEST_F(DroppedImages, NoneAreTakenDuringAnInstall) {
    const QString image = makeImage();
    bench.behave("delay_ms_per_step = 50\n");
    play([&](User& user) {
        openDisk(user);
        EXPECT_TRUE(user.drop("lblSource", {image}));
        user.waitUntilIdle();
        startInstall(user);
        user.bringBack("frmMain");
        EXPECT_FALSE(user.drop("fmInstall", {image}));
        EXPECT_FALSE(user.drop("fmInstall", {image, bench.path("program")}));
        user.click("frmStatus.cmdStop");
        user.waitUntilIdle();
    });
}

} // namespace
} // namespace tarnwell::test
