#include "end_to_end/whole_program.h"

#include <QDir>
#include <QProcess>
#include <QThread>

#include <cstdio>

namespace tarnwell::test {

namespace {

/// How often any thread of a process has gone to sleep so far, and so has woken up before.
qint64 wakeUps(qint64 processId) {
    const QByteArray label = "\nvoluntary_ctxt_switches:";
    const QString tasks = QStringLiteral("/proc/%1/task/").arg(processId);
    qint64 sum = 0;
    for (const QString& task : QDir(tasks).entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
        QFile status(tasks + task + "/status");
        if (!status.open(QIODevice::ReadOnly))
            continue;
        const QByteArray text = status.readAll();
        sum += text.mid(text.indexOf(label) + label.size()).trimmed().split('\n').constFirst().toLongLong();
    }
    return sum;
}

qint64 wakeUpsWithin(qint64 processId, unsigned long milliseconds) {
    const qint64 before = wakeUps(processId);
    QThread::msleep(milliseconds);
    return wakeUps(processId) - before;
}

TEST(AtRest, TheProgramDoesNotWakeUp) {
    const Workbench bench;
    const QString copy = bench.path("tarnwell-gui");
    ASSERT_TRUE(QFile::copy(tour::builtProgram("tarnwell-gui"), copy));
    QProcess program;
    program.start(copy, QStringList());
    ASSERT_TRUE(program.waitForStarted());
    ASSERT_TRUE(comesTrue([&] { return QFile::exists(bench.path("config.cfg")); }));
    EXPECT_TRUE(comesTrue([&] { return wakeUpsWithin(program.processId(), 500) == 0; }))
        << "it did not come to rest";

    const qint64 atRest = wakeUpsWithin(program.processId(), 3000);
    std::printf("Wake-ups in 3 seconds at rest: %lld\n", static_cast<long long>(atRest));
    EXPECT_EQ(atRest, 0);
    EXPECT_GT(wakeUps(program.processId()), 0) << "nothing was counted";

    program.terminate();
    EXPECT_TRUE(program.waitForFinished());
}

} // namespace
} // namespace tarnwell::test
