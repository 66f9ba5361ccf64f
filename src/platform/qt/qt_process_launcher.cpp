#include "platform/qt/qt_process_launcher.h"

#include "platform/native.h"
#include "platform/qt/command_line.h"
#include "platform/qt/process_keeper.h"

#include <QProcess>

namespace tarnwell {

namespace {

/// A program on a slow network drive may take a while; one that has not come up by then is given up.
constexpr int kStartLimitMs = 10'000;

class QtChildProcess : public ChildProcess {
public:
    QtChildProcess(std::unique_ptr<QProcess> process, std::unique_ptr<native::OutputPipe> output)
        : process_(std::move(process)), output_(std::move(output)) {}
    ~QtChildProcess() override { keepUntilFinished(std::move(process_)); }

    bool running() override {
        // The state alone is as old as the last pump; a wait of no time looks at the process.
        return process_->state() != QProcess::NotRunning && !process_->waitForFinished(0);
    }

    QByteArray read(qsizetype maximum) override { return output_->read(maximum); }

    qint64 write(const QByteArray& bytes) override {
        if (!running()) {
            return -1;
        }
        const qint64 taken = process_->write(bytes);
        process_->waitForBytesWritten(0);
        return taken;
    }

    qint64 processId() const override { return processId_; }

    bool interrupt() override { return !running() || native::interruptProcess(processId_); }

    void endByForce() override { process_->kill(); }

private:
    std::unique_ptr<QProcess> process_;
    const std::unique_ptr<native::OutputPipe> output_;
    const qint64 processId_ = process_->processId(); // QProcess forgets it when the process has gone
};

QString sentence(const QString& program, const QString& reason) {
    return program + " could not be started: " + reason + (reason.endsWith(u'.') ? "" : ".");
}

QString wordsOfSystem(const QProcess& process) {
    QString words = process.errorString();
    const QString separator = QStringLiteral(": "); // what stands in front is the step that failed
    const qsizetype step = words.indexOf(separator);
    if (step >= 0)
        words = words.mid(step + separator.size());
    return native::wordsOfError(words).replace("%1", process.program());
}

} // namespace

std::unique_ptr<ChildProcess> QtProcessLauncher::start(const QString& commandLine, QString& whyNot) {
    const auto command = splitCommandLine(commandLine);
    if (!command) {
        whyNot = "There is no such program: " + commandLine;
        return nullptr;
    }
    auto process = std::make_unique<QProcess>();
    auto output = native::prepareProcess(*process, command->program, command->arguments);
    if (!output) {
        whyNot = sentence(command->program, QStringLiteral("the system has no pipe left for what it prints"));
        return nullptr;
    }
    process->start();
    if (!process->waitForStarted(kStartLimitMs)) {
        whyNot = sentence(command->program, wordsOfSystem(*process));
        if (const QString hint = native::hintAtStart(command->program); !hint.isEmpty())
            whyNot += "\r\n" + hint;
        return nullptr;
    }
    output->processHasStarted();
    return std::make_unique<QtChildProcess>(std::move(process), std::move(output));
}

} // namespace tarnwell
