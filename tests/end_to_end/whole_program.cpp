#include "end_to_end/whole_program.h"

#include "end_to_end/game_image.h"

#include <QDeadlineTimer>
#include <QRandomGenerator>
#include <QThread>

namespace tarnwell::test {

namespace {

constexpr int kGameBytes = 3'000'000;
constexpr quint32 kSeed = 7;

QByteArray allKindsOfBytes(qsizetype count) {
    QRandomGenerator random(kSeed);
    QByteArray bytes(count, Qt::Uninitialized);
    for (char& byte : bytes)
        byte = static_cast<char>(random.bounded(256));
    return bytes;
}

} // namespace

void WholeProgram::play(const std::function<void(User&)>& scenario) const {
    DesktopProgram program{QtSystemFolders(bench.folder(), bench.folder())};
    EXPECT_EQ(tour::runWithUser(program, scenario), "");
}

void WholeProgram::openDisk(User& user) {
    user.click("optLocal");
    user.waitUntilIdle();
    user.choose("cmbHD", 0);
    user.click("cmdAttach");
    user.waitUntilIdle();
}

void WholeProgram::openConsole(User& user) {
    user.type("txtIP", "127.0.0.1");
    user.click("cmdAttach");
    user.waitUntilIdle();
}

void WholeProgram::pickImage(User& user, const QString& image) const {
    user.click("cmdISO");
    user.pickFile(bench.path(image));
}

void WholeProgram::startInstall(User& user) {
    user.click("cmdInstall");
    user.waitFor("the status window", [&] { return user.windowUp("frmStatus"); });
}

void WholeProgram::waitForPercent(User& user, int percent) {
    user.waitFor(QString::number(percent) + " percent",
                 [&user, percent] { return user.percent("picOverall") >= percent; });
}

QString WholeProgram::makeImage(const QString& file, const QString& label) const {
    makeGameImage(bench.path(file), label, "SLUS_999.99", allKindsOfBytes(kGameBytes));
    return bench.path(file);
}

QByteArray WholeProgram::extract(const QString& device, const QString& game) const {
    const QString file = bench.path("extracted.iso");
    QFile::remove(file);
    bench.behave({});
    bench.run({"extract", device, game, file});
    return contents(file);
}

QString WholeProgram::logged(const QString& command) const {
    QStringList lines = bench.log().split('\n').filter("> " + command);
    return lines.join('\n');
}

void WholeProgram::replaceTool(const QByteArray& command, const QByteArray& script) const {
    QFile::rename(bench.tool(), bench.path("real-tool"));
    write(bench.tool(), "#!/bin/sh\ncase $1 in\n" + command + ") " + script +
                            " ;;\n*) exec \"$(dirname \"$0\")/real-tool\" \"$@\" ;;\nesac\n");
    QFile::setPermissions(bench.tool(), QFile::ReadOwner | QFile::ExeOwner);
}

QByteArray WholeProgram::contents(const QString& file) {
    QFile opened(file);
    EXPECT_TRUE(opened.open(QFile::ReadOnly)) << file.toStdString();
    return opened.readAll();
}

void WholeProgram::write(const QString& file, const QByteArray& bytes) {
    QFile opened(file);
    ASSERT_TRUE(opened.open(QFile::WriteOnly)) << file.toStdString();
    opened.write(bytes);
}

bool comesTrue(const std::function<bool()>& condition) {
    constexpr int kPatienceMs = 30'000, kPauseMs = 20;
    const QDeadlineTimer deadline(kPatienceMs);
    while (!condition()) {
        if (deadline.hasExpired())
            return false;
        QThread::msleep(kPauseMs);
    }
    return true;
}

} // namespace tarnwell::test
