#include "app/config_store.h"
#include "support/fake_ports.h"
#include "support/gtest_qt.h"

#include <QFile>

#include <gtest/gtest.h>
#include <unistd.h>

namespace tarnwell::test {
namespace {

/// Nothing is forbidden to the system's administrator: while this lives the test is an ordinary user.
class OrdinaryUser {
public:
    OrdinaryUser() {
        constexpr uid_t kNobody = 65534;
        if (before_ == 0) {
            EXPECT_EQ(seteuid(kNobody), 0);
        }
    }
    ~OrdinaryUser() { EXPECT_EQ(seteuid(before_), 0); }
    OrdinaryUser(const OrdinaryUser&) = delete;
    OrdinaryUser& operator=(const OrdinaryUser&) = delete;

private:
    const uid_t before_ = geteuid();
};

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
