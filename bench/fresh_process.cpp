#include "fresh_process.h"

#include "app/desktop/desktop_program.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTimer>

#include <cstdio>

namespace tarnwell::bench {

namespace {
constexpr int kLongestRunMs = 60'000;
constexpr char kListener[] = "plugins/libtarnwell_http.so";
} // namespace

FreshProcesses::FreshProcesses() {
    const QString here = QCoreApplication::applicationDirPath() + '/';
    QFile::copy(QCoreApplication::applicationFilePath(), folder_.filePath("bench"));
    QFile::copy(here + "tarnwell-gui", program());
    QDir(folder_.path()).mkdir("plugins");
    QFile::copy(here + kListener, folder_.filePath(kListener));
    QFile::copy(here + "bench_first_window", folder_.filePath("first-window"));
    QFile::copy(here + "bench_bare_window", folder_.filePath("bare-window"));
    QFile::copy(here + "bench_scripted_tool", folder_.filePath("tarnwell.exe"));
}

std::vector<double> FreshProcesses::child(const QString& act, const QStringList& arguments) const {
    return run("bench", QStringList{"--child", act} + arguments);
}

QProcessEnvironment FreshProcesses::environmentOn(const QString& display) const {
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("DISPLAY", display);
    environment.insert("QT_QPA_PLATFORM", "xcb");
    environment.insert("XDG_CONFIG_HOME", folder_.filePath("settings"));
    environment.remove("WAYLAND_DISPLAY");
    return environment;
}

std::vector<double> FreshProcesses::run(const QString& program, const QStringList& arguments) const {
    return numbersPrintedBy(folder_.filePath(program), arguments, QProcessEnvironment::systemEnvironment());
}

std::vector<double> numbersPrintedBy(const QString& program, const QStringList& arguments,
                                     const QProcessEnvironment& environment) {
    QProcess process;
    process.setProcessEnvironment(environment);
    process.start(program, arguments);
    if (!process.waitForFinished(kLongestRunMs) || process.exitStatus() != QProcess::NormalExit ||
        process.exitCode() != 0) {
        std::fputs(process.readAllStandardError().constData(), stderr);
        return {};
    }
    std::vector<double> figures;
    for (const QByteArray& word : process.readAllStandardOutput().simplified().split(' '))
        figures.push_back(word.toDouble());
    return figures;
}

void inProgram(const std::function<void(DesktopProgram&)>& work) {
    const QString folder = QCoreApplication::applicationDirPath();
    DesktopProgram program{QtSystemFolders(folder, folder)};
    program.program().start();
    QTimer::singleShot(0, [&] {
        work(program);
        program.ports().pump.end();
    });
    program.ports().pump.run();
}

void tell(const std::vector<double>& figures) {
    for (const double figure : figures)
        std::printf("%.0f ", figure);
    std::printf("\n");
}

} // namespace tarnwell::bench
