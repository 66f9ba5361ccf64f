#include "end_to_end/whole_program.h"

namespace tarnwell::test {
namespace {

class Copy : public WholeProgram {
protected:
    /// The columns of the one job.
    static QString job(User& user) {
        user.waitUntilIdle();
        user.waitFor("the job", [&] { return user.rows("lstJob").size() == 1; });
        return user.rows("lstJob").first();
    }
};

TEST_F(Copy, AfterASearchForDrivesTheDisksAreStillOffered) {
    play([&](User& user) {
        openConsole(user);
        user.click("optOptical");
        user.waitUntilIdle();
        user.click("optBrowse");
        user.selectRow("lstHD", "Paper Kites");
        user.click("cmdBackupHDD");
        user.clickMenuEntry("mnuHDD(0)");
        EXPECT_EQ(job(user), "Pending | Copy to HDD | 127.0.0.1 | hdd1: | Paper Kites |  |  | ");
    });
}

TEST_F(Copy, AGameWhoseNameIsNoFileNameIsProposedUnderOne) {
    bench.run({"modify", "hdd1:", "Lantern", "AC/DC Live"});
    play([&](User& user) {
        openDisk(user);
        user.click("optBrowse");
        user.selectRow("lstHD", "AC/DC Live");
        user.click("cmdBackupPC");
        EXPECT_EQ(user.acceptFile(), "AC-DC Live.iso");
        EXPECT_TRUE(job(user).contains("AC-DC Live.iso | AC/DC Live"));
    });
}

TEST_F(Copy, ADiscWhoseNameIsNoFileNameIsProposedUnderOne) {
    write(bench.path("tarnwell-simulator/drives/cd0.ini"), "image = " + makeImage().toLocal8Bit() + "\n");
    play([&](User& user) {
        user.click("optOptical");
        user.waitUntilIdle();
        user.choose("cmbOptical", 0);
        user.waitUntilIdle();
        user.type("txtGameName", "Foo: Bar");
        user.click("cmdMakeISO");
        EXPECT_EQ(user.acceptFile(), "Foo- Bar.iso");
        EXPECT_TRUE(job(user).contains("Foo- Bar.iso | Foo: Bar"));
    });
}

} // namespace
} // namespace tarnwell::test
