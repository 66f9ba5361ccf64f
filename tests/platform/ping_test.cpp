#include "platform/helpers.h"
#include "platform/native.h"
#include "platform/network_namespace.h"
#include "platform/posix/icmp_packet.h"
#include "platform/posix/ping_program.h"
#include "platform/posix/ping_status.h"
#include "support/gtest_qt.h"

#include <QFile>
#include <QHostAddress>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>

#include <algorithm>
#include <gtest/gtest.h>
#include <limits>

namespace tarnwell {
namespace {

const icmp::Echo kEcho{0x1234, 7, "hello"};

QByteArray reply(const icmp::Echo& echo) {
    QByteArray message = icmp::request(echo);
    message[0] = 0;
    return message;
}

TEST(IcmpPacket, ARequestCarriesItsFields) {
    const QByteArray message = icmp::request(kEcho);
    EXPECT_EQ(message.left(2), QByteArray("\x08\x00", 2));
    EXPECT_EQ(message.mid(4), QByteArray("\x12\x34\x00\x07hello", 9));
    EXPECT_EQ(icmp::checksum(message), 0);
}

TEST(IcmpPacket, OnlyTheReplyToThisRequestIsOne) {
    EXPECT_TRUE(icmp::isReplyTo(kEcho, reply(kEcho)));
    EXPECT_FALSE(icmp::isReplyTo(kEcho, icmp::request(kEcho)))
        << "our own request, which loopback gives back";
    EXPECT_FALSE(icmp::isReplyTo(kEcho, reply({0x1235, 7, "hello"})));
    EXPECT_FALSE(icmp::isReplyTo(kEcho, reply({0x1234, 6, "hello"}))) << "a late reply to the echo before";
    EXPECT_FALSE(icmp::isReplyTo(kEcho, reply({0x1234, 7, "hullo"})));
    EXPECT_FALSE(icmp::isReplyTo(kEcho, reply(kEcho).chopped(1)));
    EXPECT_FALSE(icmp::isReplyTo(kEcho, reply(kEcho).left(7)));
    EXPECT_FALSE(icmp::isReplyTo(kEcho, ""));
}

TEST(IcmpPacket, TheIpHeaderIsAsLongAsItSays) {
    EXPECT_EQ(icmp::withoutIpHeader(QByteArray(1, '\x45') + QByteArray(19, 'h') + "icmp"), "icmp");
    EXPECT_EQ(icmp::withoutIpHeader(QByteArray(1, '\x46') + QByteArray(23, 'h') + "icmp"), "icmp");
    EXPECT_EQ(icmp::withoutIpHeader("E"), "");
    EXPECT_EQ(icmp::withoutIpHeader(""), "");
}

constexpr quint32 kLoopback = 0x7F000001;

TEST(RealPing, ThisMachineAnswers) {
    const auto ping = native::makePing();
    for (int i = 0; i < 3; ++i) {
        const Ping::Reply answer = ping->sendEcho(kLoopback, "hello", 500);
        EXPECT_EQ(answer.status, ping_status::kSuccess);
        EXPECT_GE(answer.roundTripMs, 0);
        EXPECT_LT(answer.roundTripMs, 500);
    }
}

TEST(RealPing, WaitingForAReplyServesNoEvents) {
    bool served = false;
    QTimer::singleShot(0, qApp, [&] { served = true; });
    native::makePing()->sendEcho(kLoopback, "hello", 500);
    EXPECT_FALSE(served);
    QtEventPump().pump();
}

/// Runs an act of the helper program in a network of its own; nothing if the system does not allow one.
std::optional<QByteArray> inOwnNetwork(const QStringList& arguments) {
    QProcess program;
    program.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    program.start(test::builtProgram("program_helper"), arguments);
    EXPECT_TRUE(program.waitForFinished(test::kPatienceMs));
    if (program.exitCode() == test::kNoNamespace) {
        return std::nullopt;
    }
    EXPECT_EQ(program.exitCode(), 0);
    return program.readAllStandardOutput().trimmed();
}

#define OUTPUT_IN_OWN_NETWORK(name, ...)                                                                     \
    const std::optional<QByteArray> name##Output = inOwnNetwork(__VA_ARGS__);                                \
    if (!name##Output) {                                                                                     \
        GTEST_SKIP() << "this system does not allow a network of one's own";                                 \
    }                                                                                                        \
    const QByteArrayList name = name##Output->split(' ')

TEST(RealPing, OnePacketWithThePayloadGoesOut) {
    OUTPUT_IN_OWN_NETWORK(told, {"ping", "127.0.0.1"});
    ASSERT_EQ(told.size(), 4);
    EXPECT_GE(told[0].toInt(), 0);
    EXPECT_LT(told[1].toInt(), 450);
    EXPECT_EQ(told[2], "1");
    EXPECT_EQ(told[3], "[hello]");
}

TEST(RealPing, ADatagramSocketServesWhereTheSystemAllowsIt) {
    OUTPUT_IN_OWN_NETWORK(told, {"ping", "127.0.0.1", "datagrams"});
    ASSERT_EQ(told.size(), 4);
    EXPECT_GE(told[0].toInt(), 0);
    EXPECT_EQ(told[2], "1");
    EXPECT_EQ(told[3], "[hello]");
}

TEST(RealPing, ASilentHostIsGivenUpAfterHalfASecond) {
    constexpr int kTries = 3, kLongestMs = 600;
    for (const char* way : {"raw", "datagrams"}) {
        // A machine that is busy with something else may need longer once, but not each time.
        int shortest = std::numeric_limits<int>::max();
        for (int i = 0; i < kTries && shortest > kLongestMs; ++i) {
            OUTPUT_IN_OWN_NETWORK(told, {"ping", "10.9.9.9", way});
            ASSERT_GE(told.size(), 3);
            EXPECT_EQ(told[0], "-1");
            EXPECT_GE(told[1].toInt(), 450);
            EXPECT_EQ(told[2], "1");
            shortest = std::min(shortest, told[1].toInt());
        }
        EXPECT_LE(shortest, kLongestMs);
    }
}

TEST(RealPing, AHostWithoutARoadToItIsGivenUpAtOnce) {
    for (const char* way : {"raw", "datagrams"}) {
        OUTPUT_IN_OWN_NETWORK(told, {"ping", "10.1.1.1", way});
        ASSERT_GE(told.size(), 3);
        EXPECT_EQ(told[0], "-1");
        EXPECT_LT(told[1].toInt(), 450);
        EXPECT_EQ(told[2], "0");
    }
}

TEST(RealPing, AnAnswerWithinHalfASecondCountsAndALaterOneDoesNot) {
    for (const char* way : {"raw", "datagrams"}) {
        OUTPUT_IN_OWN_NETWORK(slow, {"ping", "127.0.0.1", way, "100"});
        ASSERT_EQ(slow.size(), 4);
        EXPECT_GE(slow[0].toInt(), 100);
        EXPECT_LE(slow[0].toInt(), 500);
        EXPECT_EQ(slow[3], "[hello]");
        OUTPUT_IN_OWN_NETWORK(late, {"ping", "127.0.0.1", way, "1000"});
        ASSERT_EQ(late.size(), 4);
        EXPECT_EQ(late[0], "-1");
        EXPECT_GE(late[1].toInt(), 450);
        EXPECT_LT(late[1].toInt(), 1000);
        EXPECT_EQ(late[2], "1") << "no second try";
    }
}

TEST(RealPing, NothingGoesOutToWhatIsNoHost) {
    for (const char* address : {"0.0.0.0", "255.255.255.255", "", "localhost"}) {
        OUTPUT_IN_OWN_NETWORK(told, {"ping", address, "raw"});
        ASSERT_GE(told.size(), 3);
        EXPECT_EQ(told[0], "-1") << address;
        EXPECT_EQ(told[2], "0") << address;
    }
}

TEST(RealPing, TheStatusSaysWhatWentWrong) {
    const auto number = [](const char* dotted) {
        return QString::number(QHostAddress(QString::fromLatin1(dotted)).toIPv4Address());
    };
    OUTPUT_IN_OWN_NETWORK(silent, {"status", number("10.9.9.9")});
    EXPECT_EQ(silent[0].toInt(), ping_status::kTimedOut);
    OUTPUT_IN_OWN_NETWORK(unreachable, {"status", number("10.1.1.1")});
    EXPECT_EQ(unreachable[0].toInt(), ping_status::kNetUnreachable);
}

/// A ping program that does as the test says, and writes down how it was called.
class FakePingProgram {
public:
    explicit FakePingProgram(const QByteArray& act) {
        QFile script(path());
        EXPECT_TRUE(script.open(QFile::WriteOnly));
        script.write("#!/bin/sh\necho \"$LC_ALL $*\" > \"$0.called\"\n" + act + '\n');
        script.close();
        EXPECT_TRUE(script.setPermissions(QFile::ReadOwner | QFile::ExeOwner));
    }

    QString path() const { return folder_.filePath("ping"); }
    Ping::Reply echo() const { return echoByProgram(path(), kLoopback, "hello", 500); }
    QByteArray called() const {
        QFile file(path() + ".called");
        return file.open(QFile::ReadOnly) ? file.readAll().trimmed() : QByteArray();
    }

private:
    QTemporaryDir folder_;
};

TEST(PingProgram, IsAskedForOneShortEcho) {
    const FakePingProgram ping("exit 0");
    EXPECT_EQ(ping.echo().status, ping_status::kSuccess);
    EXPECT_EQ(ping.called(), "C -n -q -c1 -W0.500 -s5 -p 68656c6c6f 127.0.0.1");
}

TEST(PingProgram, ItsExitCodeTellsTheOutcome) {
    EXPECT_EQ(FakePingProgram("exit 1").echo().status, ping_status::kHostUnreachable);
    EXPECT_EQ(FakePingProgram("sleep 0.51; exit 1").echo().status, ping_status::kTimedOut);
    EXPECT_EQ(FakePingProgram("exit 2").echo().status, ping_status::kGeneralFailure);
    EXPECT_EQ(FakePingProgram("kill -9 $$").echo().status, ping_status::kGeneralFailure);
    EXPECT_EQ(echoByProgram("a-program-that-is-not-there", kLoopback, "hello", 500).status,
              ping_status::kGeneralFailure);
}

TEST(PingProgram, IsNotWaitedForLongerThanTheTimeout) {
    QElapsedTimer sinceStart;
    sinceStart.start();
    EXPECT_EQ(FakePingProgram("exec sleep 5").echo().status, ping_status::kTimedOut);
    EXPECT_LT(sinceStart.elapsed(), 2500);
}

TEST(PingProgram, TheSystemsOwnReachesThisMachine) {
    if (QStandardPaths::findExecutable("ping").isEmpty()) {
        GTEST_SKIP() << "no ping program here";
    }
    EXPECT_EQ(echoByProgram("ping", kLoopback, "hello", 500).status, ping_status::kSuccess);
}

} // namespace
} // namespace tarnwell
