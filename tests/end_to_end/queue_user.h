#pragma once

#include "end_to_end/whole_program.h"

namespace tarnwell::test {

/// A user who fills the job queue with jobs of every kind and runs it.
class QueueUser : public WholeProgram {
protected:
    /// HARVEST, a small game with known bytes, lies on the disk beside the others.
    void SetUp() override { bench.run({"inject_cd", "hdd1:", "HARVEST", image}); }

    void openGames(User& user) const {
        openDisk(user);
        user.click("optBrowse");
        user.selectRow("lstHD", "HARVEST");
    }
    void queueInstall(User& user, const QString& name) const {
        user.click("optInstall");
        pickImage(user, "game.iso");
        user.waitUntilIdle();
        user.type("txtGameName", name);
        user.click("cmdAddGame");
        user.waitUntilIdle();
    }
    void queueMakeIso(User& user, const QString& file) const {
        write(bench.path("tarnwell-simulator/drives/cd0.ini"), "image = " + image.toLocal8Bit() + "\n");
        user.click("optInstall");
        user.click("optOptical");
        user.waitUntilIdle();
        user.choose("cmbOptical", 0);
        user.waitUntilIdle();
        user.click("cmdMakeISO");
        user.pickFile(bench.path(file));
        user.waitUntilIdle();
    }
    void queueCopyToPc(User& user, const QString& file) const {
        user.click("cmdBackupPC");
        user.pickFile(bench.path(file));
        user.waitUntilIdle();
    }
    static void queueCopyToConsole(User& user) {
        user.click("cmdBackupPS2");
        user.answer("127.0.0.1");
        user.waitUntilIdle();
    }
    static void queueCopyToSecondDisk(User& user) {
        user.click("cmdBackupHDD");
        user.clickMenuEntry("mnuHDD(1)");
        user.waitUntilIdle();
    }
    static void queueDelete(User& user) {
        user.click("cmdDelete");
        user.clickMenuEntry("mnuDeleteQueue");
        user.agree();
        user.waitUntilIdle();
    }

    static void start(User& user) {
        user.click("optJobQueue");
        user.click("cmdStart");
    }
    /// The first columns of the job list: what became of each job.
    static QStringList results(User& user) {
        QStringList words;
        for (const QString& row : user.rows("lstJob"))
            words += row.section(" | ", 0, 0);
        return words;
    }

    const QString image = makeImage();
};

} // namespace tarnwell::test
