#include "end_to_end/whole_program.h"

#include <csignal>
#include <sys/resource.h>

namespace tarnwell::test {
namespace {

/// While this lives, no file of this process can take in more than a few bytes, as on a disk that is full.
class FullDisk {
public:
    FullDisk() : signal_(std::signal(SIGXFSZ, SIG_IGN)) {
        getrlimit(RLIMIT_FSIZE, &before_);
        const rlimit full{kBytesLeft, before_.rlim_max};
        setrlimit(RLIMIT_FSIZE, &full);
    }
    ~FullDisk() {
        setrlimit(RLIMIT_FSIZE, &before_);
        std::signal(SIGXFSZ, signal_);
    }
    FullDisk(const FullDisk&) = delete;
    FullDisk& operator=(const FullDisk&) = delete;

private:
    static constexpr rlim_t kBytesLeft = 20;
    void (*const signal_)(int);
    rlimit before_{};
};

class SettingsOnAFullDisk : public WholeProgram {
protected:
    static void openSettings(User& user, int tab) {
        user.click("cmdSettings");
        user.waitFor("the settings window", [&] { return user.windowUp("frmSettings"); });
        user.selectTab("TabStrip", tab);
    }
    QByteArray stored(const char* file) const { return contents(bench.path(file)); }
};

TEST_F(SettingsOnAFullDisk, TheProgramsOwnKeepTheirOldValues) {
    play([&](User& user) {
        openSettings(user, ui::FrmSettings::kGuiTab);
        const QByteArray before = stored("config.cfg");
        {
            const FullDisk full;
            user.click("frmSettings.chkStatusServer");
            user.waitUntilIdle();
        }
        EXPECT_TRUE(stored("config.cfg") == before);
        EXPECT_FALSE(before.isEmpty());

        user.click("frmSettings.chkStatusServer");
        user.click("frmSettings.chkStatusServer");
        user.waitUntilIdle();
        EXPECT_TRUE(stored("config.cfg").contains("StatusServer=1")) << "with room again it is stored";
    });
}

TEST_F(SettingsOnAFullDisk, TheToolsFileStandsAsItWasAndTheUserIsTold) {
    write(bench.path("tarnwell.conf"), "[tarnwell]\r\n");
    play([&](User& user) {
        openSettings(user, ui::FrmSettings::kTarnwellTab);
        const QByteArray before = stored("tarnwell.conf");
        {
            const FullDisk full;
            user.click("frmSettings.cmdExit");
            EXPECT_TRUE(user.confirmMessage().contains("could not be written"));
            user.waitUntilIdle();
        }
        EXPECT_TRUE(stored("tarnwell.conf") == before);
    });
}

} // namespace
} // namespace tarnwell::test
