#include "platform/posix/ping_program.h"

#include "platform/posix/ping_status.h"

#include <QElapsedTimer>
#include <QProcess>
#include <QProcessEnvironment>

#include <algorithm>
#include <arpa/inet.h>

namespace tarnwell {

namespace {

/// The program keeps the time-out itself; one that hangs is given this much more for its start, then it is
/// ended.
constexpr int kGraceMs = 60;

/// The program repeats a pattern of at most so many bytes.
constexpr qsizetype kLongestPattern = 16;

/// As in 192.168.0.10, from the byte order of this machine.
QString dotted(quint32 address) {
    const in_addr inNetworkOrder{htonl(address)};
    char text[INET_ADDRSTRLEN];
    return QString::fromLatin1(::inet_ntop(AF_INET, &inNetworkOrder, text, sizeof text));
}

QStringList arguments(quint32 address, const QByteArray& payload, int timeoutMs) {
    return {QStringLiteral("-n"),
            QStringLiteral("-q"),
            QStringLiteral("-c1"),
            QStringLiteral("-W") + QString::number(timeoutMs / 1000.0, 'f', 3),
            QStringLiteral("-s") + QString::number(payload.size()),
            QStringLiteral("-p"),
            QString::fromLatin1(payload.left(kLongestPattern).toHex()),
            dotted(address)};
}

/// Numbers are written with a point, whatever the user's language.
QProcessEnvironment plainEnvironment() {
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("LC_ALL"), QStringLiteral("C"));
    return environment;
}

Ping::Reply outcome(const QProcess& ping, int elapsedMs, int timeoutMs) {
    constexpr int kAnswered = 0;
    constexpr int kNotAnswered =
        1; // the end of the wait, or at once if a router says that there is no such host
    if (ping.exitStatus() == QProcess::NormalExit && ping.exitCode() == kAnswered) {
        return {ping_status::kSuccess, std::min(elapsedMs, timeoutMs)};
    }
    if (ping.exitStatus() == QProcess::NormalExit && ping.exitCode() == kNotAnswered) {
        return {elapsedMs < timeoutMs ? ping_status::kHostUnreachable : ping_status::kTimedOut};
    }
    return {ping_status::kGeneralFailure};
}

} // namespace

Ping::Reply echoByProgram(const QString& program, quint32 address, const QByteArray& payload, int timeoutMs) {
    QElapsedTimer sinceStart;
    sinceStart.start();
    QProcess ping;
    ping.setProcessEnvironment(plainEnvironment());
    ping.setStandardInputFile(QProcess::nullDevice());
    ping.setStandardOutputFile(QProcess::nullDevice());
    ping.setStandardErrorFile(QProcess::nullDevice());
    ping.start(program, arguments(address, payload, timeoutMs));
    if (!ping.waitForFinished(timeoutMs + kGraceMs)) {
        const bool started = ping.state() != QProcess::NotRunning;
        ping.kill();
        ping.waitForFinished();
        return {started ? ping_status::kTimedOut : ping_status::kGeneralFailure};
    }
    return outcome(ping, static_cast<int>(sinceStart.elapsed()), timeoutMs);
}

} // namespace tarnwell
