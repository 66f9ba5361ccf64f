#include "kit/test_run.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QProcess>

namespace tarnwell::kit {

namespace {

constexpr int kTimeToGoMs = 10'000;

QProcessEnvironment environmentOf(const ListedTest& test) {
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const QString& setting : test.environment) {
        const qsizetype equals = setting.indexOf('=');
        environment.insert(setting.left(equals), setting.mid(equals + 1));
    }
    return environment;
}

/// What it has started goes with it, or would keep its files.
void endByForce(QProcess& process) {
    QProcess::execute("taskkill", {"/f", "/t", "/pid", QString::number(process.processId())});
    process.kill();
    process.waitForFinished(kTimeToGoMs);
}

QString troubleOf(QProcess& process, const ListedTest& test) {
    if (!process.waitForStarted())
        return "could not be started: " + process.errorString();
    if (!process.waitForFinished(test.seconds * 1000)) {
        endByForce(process);
        return QString("was ended by force after %1 s").arg(test.seconds);
    }
    if (process.exitStatus() != QProcess::NormalExit)
        return "crashed with 0x" + QString::number(static_cast<quint32>(process.exitCode()), 16);
    return process.exitCode() == 0 ? QString() : QString("ended with %1").arg(process.exitCode());
}

QStringList linesOf(const QString& file) {
    QFile opened(file);
    return opened.open(QFile::ReadOnly | QFile::Text) ? QString::fromUtf8(opened.readAll()).split('\n')
                                                      : QStringList();
}

} // namespace

TestRun run(const ListedTest& test, const QDir& folder) {
    const QString output = folder.filePath(test.program + ".txt");
    QProcess process;
    process.setProcessEnvironment(environmentOf(test));
    process.setWorkingDirectory(folder.path());
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.setStandardInputFile(QProcess::nullDevice());
    process.setStandardOutputFile(output);
    QElapsedTimer sinceStart;
    sinceStart.start();
    process.start(QCoreApplication::applicationDirPath() + '/' + test.program, test.arguments);
    const QString trouble = troubleOf(process, test);
    return {trouble, static_cast<double>(sinceStart.elapsed()) / 1000, linesOf(output)};
}

} // namespace tarnwell::kit
