#pragma once

#include "platform/ports.h"
#include "platform/posix/inhibitor_lock.h"
#include "platform/posix/termination_signals.h"

#include <QObject>

class QSessionManager;

namespace tarnwell {

/// The login manager, as far as one runs, is asked not to shut the machine down, and for some seconds if it
/// does so all the same. A session manager of the X display is told that it must not end the session. Who
/// knows neither ends a program by a signal.
class PosixSession : public QObject, public DesktopSession {
    Q_OBJECT

public:
    PosixSession();

    void holdUp(const QString& reason) override;
    void release() override;

    bool eventFilter(QObject* watched, QEvent* event) override;

private Q_SLOTS:
    void prepareForShutdown(bool begins);

private:
    void refuse(QSessionManager& manager) const;
    void end() const;

    QString reason_; ///< empty while nothing is held up
    InhibitorLock block_{"shutdown", "block"};
    InhibitorLock delay_{"shutdown", "delay"};
    TerminationSignals signals_;
};

} // namespace tarnwell
