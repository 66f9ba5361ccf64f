#include "desktop/background_program.h"

#include "platform/helpers.h"

#include <QFile>

#include <csignal>
#include <stdexcept>
#include <sys/prctl.h>

namespace tarnwell::test {

BackgroundProgram::BackgroundProgram(const QString& program, const QStringList& arguments,
                                     const QProcessEnvironment& environment, Complaints complaints) {
    process_.setProcessEnvironment(environment);
    if (complaints == Complaints::Shown)
        process_.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    // A test that is killed takes its desktop with it.
    process_.setChildProcessModifier([] { ::prctl(PR_SET_PDEATHSIG, SIGTERM); });
    process_.start(program, arguments);
    if (!process_.waitForStarted())
        throw std::runtime_error("cannot start " + program.toStdString());
}

QByteArray BackgroundProgram::line() {
    if (!pumpUntil([this] { return process_.canReadLine() || !running(); }) || !process_.canReadLine())
        throw std::runtime_error(process_.program().toStdString() + " is silent");
    return process_.readLine().trimmed();
}

void BackgroundProgram::end() {
    process_.closeWriteChannel();
    process_.terminate();
    if (!process_.waitForFinished(kPatienceMs))
        process_.kill();
    process_.waitForFinished();
}

MessageBus::MessageBus()
    : daemon_("dbus-daemon", {"--config-file=" + writeConfiguration(), "--nofork", "--print-address=1"},
              QProcessEnvironment::systemEnvironment(), BackgroundProgram::Complaints::Dropped),
      address_(daemon_.line()) {}

QString MessageBus::writeConfiguration() const {
    // No folder of services: a name that nobody of the test has is nobody's.
    QFile file(folder_.filePath("bus.conf"));
    if (!file.open(QFile::WriteOnly))
        throw std::runtime_error("cannot write the configuration of a bus");
    file.write("<busconfig><type>session</type><listen>unix:tmpdir=" + folder_.path().toLocal8Bit() +
               "</listen><policy context=\"default\"><allow send_destination=\"*\" "
               "eavesdrop=\"true\"/><allow eavesdrop=\"true\"/><allow own=\"*\"/>"
               "</policy></busconfig>");
    return file.fileName();
}

Display::Display()
    : server_("Xvfb", {"-displayfd", "1", "-screen", "0", "800x600x24", "-nolisten", "tcp", "-noreset"},
              QProcessEnvironment::systemEnvironment(), BackgroundProgram::Complaints::Dropped),
      name_(':' + QString::fromLatin1(server_.line())) {}

} // namespace tarnwell::test
