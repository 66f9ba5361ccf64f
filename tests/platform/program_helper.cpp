/// Small programs on the real ports, for what cannot be seen from inside one program: which command switches
/// the machine off, what goes over the network.

#include "platform/helpers.h"
#include "platform/network_namespace.h"
#include "platform/posix/echo_socket.h"
#include "platform/posix/posix_ping.h"
#include "platform/posix/posix_power.h"
#include "services/mod_ping.h"

#include <QCoreApplication>
#include <QFile>

#include <cstdio>

namespace tarnwell {
namespace {

constexpr int kWrongUse = 2;

/// Runs the default command only if nothing but the given folder can provide it.
int power(const QString& act, const QString& onlyFolder) {
    if (qgetenv("PATH") != onlyFolder.toLocal8Bit() || !QFile::exists(onlyFolder + "/systemctl")) {
        return kWrongUse;
    }
    PosixPower power;
    act == "stand-by" ? power.standBy() : power.shutDown();
    return 0;
}

/// Pings in a network of its own, and tells what came back and what went out. With a peer that is `lateMs`
/// late the system itself answers nobody.
int ping(const QString& address, const QString& datagrams, const QString& lateMs) {
    if (!test::enterNetworkNamespace()) {
        return test::kNoNamespace;
    }
    if (datagrams == "datagrams" && !test::allowDatagramEchoes()) {
        return test::kNoNamespace;
    }
    if (!lateMs.isEmpty()) {
        test::answerEchoesLate(lateMs.toInt());
    }
    const test::EchoListener listener;
    PosixPing port;
    QElapsedTimer sinceStart;
    sinceStart.start();
    const qint32 result = PingConsole(address, port);
    const auto elapsed = static_cast<int>(sinceStart.elapsed());
    std::printf("%d %d %d %s\n", result, elapsed, test::echoesSent(), listener.payloads().constData());
    return 0;
}

int status(const QString& address) {
    if (!test::enterNetworkNamespace()) {
        return test::kNoNamespace;
    }
    std::printf("%d\n", PosixPing().sendEcho(address.toUInt(), "hello", 500).status);
    return 0;
}

int run(const QStringList& arguments) {
    const QString act = arguments.value(1);
    if (act == "stand-by" || act == "shut-down") {
        return power(act, arguments.value(2));
    }
    if (act == "ping") {
        return ping(arguments.value(2), arguments.value(3), arguments.value(4));
    }
    if (act == "status") {
        return status(arguments.value(2));
    }
    return kWrongUse;
}

} // namespace
} // namespace tarnwell

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    return tarnwell::run(QCoreApplication::arguments());
}
