#include "tour/workbench.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QProcess>

#include <stdexcept>

namespace tarnwell::tour {

namespace {

constexpr int kPatienceMs = 60'000;

[[noreturn]] void fail(const QString& why) {
    throw std::runtime_error(why.toStdString());
}

} // namespace

Workbench::Workbench(const QString& name)
    : scratch_(QDir::tempPath() + "/tarnwell-XXXXXX"), folder_(scratch_.filePath(name)) {
    const QString original = builtProgram("tarnwell.exe");
    if (!QDir().mkpath(folder_) || !QFile::copy(original, tool()))
        fail("Could not copy " + original + " into " + folder_ + '.');
    run({"query"}); // makes the world
}

QString Workbench::path(const QString& file) const {
    return QDir::toNativeSeparators(folder_ + '/' + file);
}

void Workbench::behave(const QString& lines) const {
    QFile file(path("tarnwell-simulator/behaviour.txt"));
    if (!file.open(QFile::WriteOnly) || file.write(lines.toLocal8Bit()) < 0)
        fail("Could not write " + file.fileName() + '.');
}

QString Workbench::log() const {
    QFile file(path("tarnwell-simulator/log.txt"));
    return file.open(QFile::ReadOnly) ? QString::fromLocal8Bit(file.readAll()) : QString();
}

QString Workbench::run(const QStringList& arguments) const {
    return runToEnd(tool(), arguments, folder_);
}

QString Workbench::makeSamples() const {
    QString samples = path("samples");
    runToEnd(builtProgram("tarnwell-samples"), {samples});
    return samples;
}

QString builtProgram(const QString& name) {
    return QCoreApplication::applicationDirPath() + '/' + name;
}

QString runToEnd(const QString& program, const QStringList& arguments, const QString& folder) {
    QProcess process;
    process.setWorkingDirectory(folder);
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(program, arguments);
    const bool ended = process.waitForFinished(kPatienceMs);
    if (!ended || process.exitStatus() != QProcess::NormalExit || process.exitCode() != 0)
        fail(QString("%1 %2 failed: %3 (%4, exit code %5)")
                 .arg(program, arguments.join(' '), QString::fromLocal8Bit(process.readAll()),
                      ended ? "ended" : process.errorString(), QString::number(process.exitCode())));
    return QString::fromLocal8Bit(process.readAll());
}

} // namespace tarnwell::tour
