#pragma once

#include "platform/ports.h"

class QProcess;

namespace tarnwell {

/// Plays by the first of the desktop's usual players that is there and can.
class PosixSound : public Sound {
public:
    PosixSound();
    ~PosixSound() override;

    void play(const QString& path) override;

private:
    void playWith(qsizetype player, const QString& file);
    void silence();

    std::unique_ptr<QProcess> running_;
};

} // namespace tarnwell
