#include "end_to_end/whole_program.h"

#include <QDir>

namespace tarnwell::test {
namespace {

/// A folder with letters that the tool cannot be given.
class ShortName : public WholeProgram {
protected:
    void SetUp() override {
        ASSERT_TRUE(QDir().mkdir(folder_));
        if (QtSystemFolders().pathInCodePage(folder_).isEmpty())
            GTEST_SKIP() << "short names are switched off here";
    }

    const QString folder_ = bench.path(QString::fromUtf8("\xe3\x82\xb2\xe3\x83\xbc\xe3\x83\xa0"));
};

TEST_F(ShortName, OfAFolderServesToInstallFromItAndToCopyIntoIt) {
    const QString image = makeImage(), copy = folder_ + "\\copy.iso";
    ASSERT_TRUE(QFile::copy(image, folder_ + "\\game.iso"));
    play([&](User& user) {
        openDisk(user);
        user.click("cmdISO");
        user.pickFile(folder_ + "\\game.iso");
        user.waitUntilIdle();
        EXPECT_EQ(user.text("txtGameStartup"), "SLUS_999.99");
        startInstall(user);
        user.waitUntilIdle();
        user.bringBack("frmMain");
        user.click("optBrowse");
        user.selectRow("lstHD", "HARVEST");
        user.click("cmdBackupPC");
        user.pickFile(copy);
        user.waitUntilIdle();
        user.click("optJobQueue");
        user.click("cmdStart");
        user.waitUntilIdle();
        EXPECT_FALSE(user.messageUp());
    });
    EXPECT_TRUE(contents(copy) == contents(image));
}

} // namespace
} // namespace tarnwell::test
