#include "base/config_store.h"
#include "platform/posix/ordinary_user.h"
#include "support/fake_ports.h"
#include "support/gtest_qt.h"

#include <QFile>

namespace tarnwell::test {
namespace {

TEST(UnreadableSettings, AreLeftAsTheyStand) {
    const OrdinaryUser user;
    const FakeSystemFolders folders;
    const ConfigStore config(folders);
    config.WriteDefaultConfig();
    QFile file(config.path());
    ASSERT_TRUE(file.setPermissions(QFile::WriteOwner));
    config.write("IP", "1.2.3.4");
    config.WriteDefaultConfig();
    EXPECT_EQ(config.text("IP"), "");
    ASSERT_TRUE(file.setPermissions(QFile::ReadOwner | QFile::WriteOwner));
    EXPECT_EQ(config.text("IP"), "192.168.0.10");
    EXPECT_EQ(config.text("CloseStatus"), "1");
}

} // namespace
} // namespace tarnwell::test
