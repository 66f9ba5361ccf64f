#include "end_to_end/whole_program.h"

#include <QDir>
#include <QRegularExpression>

namespace tarnwell::test {
namespace {

#if defined(__SANITIZE_ADDRESS__)
constexpr bool kSanitized = true; // slower, and keeps freed memory
#else
constexpr bool kSanitized = false;
#endif

constexpr int kJobs = kSanitized ? 100 : 500;
constexpr int kWarmedUp = kJobs / 5;
constexpr int kGrowthKilobytes = 3 * 1024;
constexpr int kTinyGameBytes = 10'000;

class QueueSoak : public WholeProgram {
protected:
    /// Rows as copies to the PC make them, without a dialog for each.
    void queueJobs(User& user) const {
        user.look([&] {
            ui::FrmMain& frmMain = user.program().program().shared().frmMain;
            for (int i = 0; i < kJobs; ++i) {
                const QString file = bench.path(QString("copy%1.iso").arg(i));
                frmMain.lstJob.append({.text = "Pending",
                                       .subItems = {"Backup to PC", "hdd1:", file, "TINY", "", "", ""},
                                       .tag = "extract hdd1: TINY " + file});
            }
            frmMain.cmdStart.enabled = true;
        });
    }
    static void waitForJob(User& user, int job) {
        user.waitFor("job " + QString::number(job),
                     [&] { return user.program().program().shared().intJobIndex >= job; });
    }
    static qsizetype residentKilobytes() {
        const QByteArray status = contents("/proc/self/status");
        const QByteArray label = "VmRSS:";
        return status.mid(status.indexOf(label) + label.size()).trimmed().split(' ').first().toLongLong();
    }
    /// But for the bells of threads, which Qt starts and ends as it draws.
    static QStringList openFiles() {
        QStringList files;
        for (const QFileInfo& file : QDir("/proc/self/fd").entryInfoList(QDir::Files | QDir::System))
            files += file.fileName() + " is " + file.symLinkTarget();
        return files.filter(QRegularExpression("^(?!.*eventfd)"));
    }
};

TEST_F(QueueSoak, ManyJobsCostNeitherMemoryNorFiles) {
    const QByteArray game(kTinyGameBytes, 'g');
    write(bench.path("tiny.bin"), game);
    bench.run({"inject_cd", "hdd1:", "TINY", bench.path("tiny.bin"), "SLUS_999.98"});
    play([&](User& user) {
        queueJobs(user);
        const QStringList filesBefore = user.look(&openFiles);
        user.click("optJobQueue");
        user.click("cmdStart");
        user.waitFor("the status window", [&] { return user.windowUp("frmStatus"); });
        user.click("frmStatus.cmdMinimize"); // as for a long night
        waitForJob(user, kWarmedUp);
        const qsizetype memoryBefore = residentKilobytes();
        for (int job = kWarmedUp; job <= kJobs; job += kWarmedUp)
            waitForJob(user, job);
        user.waitUntilIdle();
        const qsizetype growth = residentKilobytes() - memoryBefore;

        EXPECT_EQ(user.rows("lstJob").filter("Complete").size(), kJobs);
        EXPECT_EQ(user.look(&openFiles), filesBefore);
        if (!kSanitized) {
            EXPECT_LE(growth, kGrowthKilobytes);
        }
        RecordProperty("growth_kilobytes", static_cast<int>(growth));
    });
    EXPECT_EQ(contents(bench.path(QString("copy%1.iso").arg(kJobs - 1))), game);
}

} // namespace
} // namespace tarnwell::test
