#include "end_to_end/queue_user.h"

namespace tarnwell::test {
namespace {

/// How far the tool comes before it vanishes like a crashed program, in percent.
class DyingTool : public QueueUser, public testing::WithParamInterface<int> {};

TEST_P(DyingTool, LeavesEveryKindOfJobToBeDoneOnceMore) {
    const QString death = QString("notice = Ready.\nexit_at_percent = %1\n").arg(GetParam());
    play([&](User& user) {
        openGames(user);
        queueCopyToPc(user, "my backup.iso");
        queueCopyToConsole(user);
        queueCopyToSecondDisk(user);
        queueInstall(user, "Second Harvest");
        queueMakeIso(user, "from disc.iso");
        bench.behave("[inject_cd]\n" + death + "[extract]\n" + death + "[dump]\n" + death);
        start(user);
        user.waitUntilIdle();
        EXPECT_EQ(results(user).count("Complete"), 0) << results(user).join(", ").toStdString();
        EXPECT_EQ(bench.log().count("> inject_cd"), 4) << "three jobs and the game that was there before";

        bench.behave({});
        user.bringBack("frmMain");
        EXPECT_TRUE(user.enabled("cmdStart"));
        for (const char* left : {"my backup.iso", "from disc.iso"})
            QFile::remove(bench.path(left));
        user.click("cmdStart");
        user.waitUntilIdle();
        EXPECT_EQ(results(user), QStringList(5, "Complete"));
    });
    const QByteArray game = contents(image);
    EXPECT_TRUE(contents(bench.path("my backup.iso")) == game);
    EXPECT_TRUE(contents(bench.path("from disc.iso")) == game);
    EXPECT_TRUE(extract("127.0.0.1", "HARVEST") == game);
    EXPECT_TRUE(extract("hdd2:", "HARVEST") == game);
    EXPECT_TRUE(extract("hdd1:", "Second Harvest") == game);
}

INSTANTIATE_TEST_SUITE_P(AtPercent, DyingTool, testing::Values(0, 1, 50, 99));

} // namespace
} // namespace tarnwell::test
