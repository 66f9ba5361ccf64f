/// tarnwell-run-tests REPORT_FOLDER [PROGRAM...]: runs the tests that are listed in tests.txt beside this
/// program, or those that are named, and writes report.txt. Ends with 0 if all have passed.

#include "kit/machine.h"
#include "kit/report.h"

#include <QCoreApplication>
#include <QDateTime>

#include <cstdio>
#include <stdexcept>

namespace tarnwell::kit {
namespace {

QStringList linesBeside(const QString& name) {
    QFile file(QCoreApplication::applicationDirPath() + '/' + name);
    if (!file.open(QFile::ReadOnly | QFile::Text))
        throw std::runtime_error(file.fileName().toStdString() + " is missing");
    return QString::fromUtf8(file.readAll()).split('\n', Qt::SkipEmptyParts);
}

QStringList head() {
    return linesBeside("build.txt") + QStringList(QString("Qt ") + qVersion()) + describeMachine() +
           QStringList({QDateTime::currentDateTimeUtc().toString("yyyy-MM-dd hh:mm 'UTC'"), ""});
}

bool runAll(const QDir& folder, const QStringList& chosen) {
    folder.mkpath(".");
    Report report(head());
    const QString file = folder.filePath("report.txt");
    for (const QString& line : linesBeside("tests.txt")) {
        const ListedTest test = listedTest(line);
        if (!chosen.isEmpty() && !chosen.contains(test.program))
            continue;
        std::printf("%s ...\n", test.program.toLocal8Bit().constData());
        std::fflush(stdout);
        std::printf("%s\n", report.add(test, run(test, folder)).toLocal8Bit().constData());
        report.save(file); // whatever happens to the rest
    }
    std::printf("\n%s\n", report.result().toLocal8Bit().constData());
    return report.allPassed();
}

} // namespace
} // namespace tarnwell::kit

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() < 2) {
        std::fputs("usage: tarnwell-run-tests REPORT_FOLDER [PROGRAM...]\n", stderr);
        return 2;
    }
    try {
        return tarnwell::kit::runAll(QDir(arguments[1]).absolutePath(), arguments.mid(2)) ? 0 : 1;
    } catch (const std::exception& error) {
        std::fprintf(stderr, "%s\n", error.what());
        return 2;
    }
}
