#include "platform/posix/posix_sound.h"

#include "platform/native.h"

#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>

namespace tarnwell {

namespace {

const QStringList& players() {
    static const QStringList names{"pw-play", "paplay", "aplay"};
    return names;
}

} // namespace

PosixSound::PosixSound() = default;

PosixSound::~PosixSound() {
    if (!running_)
        return;
    running_->disconnect();
    running_->kill();
    running_->waitForFinished();
}

void PosixSound::play(const QString& path) {
    silence();
    if (const QFileInfo file(path); file.isFile())
        playWith(0, file.absoluteFilePath());
}

void PosixSound::playWith(qsizetype player, const QString& file) {
    if (player == players().size())
        return;
    const QString program = QStandardPaths::findExecutable(players()[player]);
    if (program.isEmpty()) {
        playWith(player + 1, file);
        return;
    }
    running_ = std::make_unique<QProcess>();
    running_->setStandardInputFile(QProcess::nullDevice());
    running_->setStandardOutputFile(QProcess::nullDevice());
    running_->setStandardErrorFile(QProcess::nullDevice());
    const auto ended = [this, player, file](bool played) {
        silence();
        if (!played)
            playWith(player + 1, file);
    };
    QObject::connect(running_.get(), &QProcess::finished, running_.get(),
                     [ended](int exitCode, QProcess::ExitStatus status) {
                         ended(status == QProcess::NormalExit && exitCode == 0);
                     });
    QObject::connect(running_.get(), &QProcess::errorOccurred, running_.get(),
                     [ended](QProcess::ProcessError error) {
                         if (error == QProcess::FailedToStart) // which is not followed by `finished`
                             ended(false);
                     });
    running_->start(program, {file});
}

/// Lets go of the player, which may be the one whose signal has led here, and does not wait for its end.
void PosixSound::silence() {
    if (!running_)
        return;
    QProcess* const player = running_.release();
    player->disconnect();
    if (player->state() == QProcess::NotRunning) {
        player->deleteLater();
        return;
    }
    QObject::connect(player, &QProcess::finished, player, &QObject::deleteLater);
    player->kill();
}

std::unique_ptr<Sound> native::makeSound() {
    return std::make_unique<PosixSound>();
}

} // namespace tarnwell
