#include "platform/helpers.h"
#include "platform/http/qt_http_listener.h"
#include "platform/native.h"
#include "platform/system_helpers.h"
#include "services/status_page.h"

#include <QFile>

#include <deque>
#include <sys/socket.h>

namespace tarnwell {
namespace {

using test::openHandles;
using test::processorSeconds;
using test::pumpUntil;

#if defined(__SANITIZE_ADDRESS__)
constexpr bool kSanitized = true; // keeps freed memory
#else
constexpr bool kSanitized = false;
#endif

constexpr quint16 kPort = 80;
const QByteArray kRequest = "GET / HTTP/1.1\r\nHost: pc\r\n\r\n";

/// A browser's side of a connection. All calls serve the listener's events too.
class Client {
public:
    Client() {
        socket_.connectToHost(QHostAddress::LocalHost, kPort);
        connected = pumpUntil([&] { return socket_.state() != QAbstractSocket::ConnectingState; }) &&
                    socket_.state() == QAbstractSocket::ConnectedState;
    }

    void send(const QByteArray& bytes) { socket_.write(bytes); }
    /// Lets all of it leave this side.
    bool sendAll(const QByteArray& bytes) {
        socket_.write(bytes);
        return pumpUntil([&] { return socket_.bytesToWrite() == 0; });
    }
    bool hears(const QByteArray& answer) {
        return pumpUntil([&] { return socket_.bytesAvailable() >= answer.size(); }) &&
               socket_.readAll() == answer;
    }
    bool hearsNothing() {
        return !pumpFor([&] { return socket_.bytesAvailable() > 0; });
    }
    bool open() const { return socket_.state() == QAbstractSocket::ConnectedState; }
    bool isClosed() {
        return pumpUntil([&] { return socket_.state() == QAbstractSocket::UnconnectedState; });
    }
    void close() { socket_.disconnectFromHost(); }
    /// Goes without a farewell: the other side is told by a reset.
    void vanish() {
        const linger atOnce{.l_onoff = 1, .l_linger = 0};
        ::setsockopt(static_cast<int>(socket_.socketDescriptor()), SOL_SOCKET, SO_LINGER, &atOnce,
                     sizeof atOnce);
        socket_.abort();
    }
    /// Leaves what arrives in the system's hands.
    void stopReading() { socket_.setReadBufferSize(1); }

    bool connected = false;

private:
    /// Serves events for a while, or until the condition holds.
    static bool pumpFor(const std::function<bool()>& condition) {
        constexpr int kAWhileMs = 150;
        QtEventPump pump;
        QElapsedTimer sinceStart;
        sinceStart.start();
        while (!condition() && !sinceStart.hasExpired(kAWhileMs))
            pump.waitForEvent(5);
        return condition();
    }

    QTcpSocket socket_;
};

qsizetype residentKilobytes() {
    QFile status("/proc/self/status");
    EXPECT_TRUE(status.open(QFile::ReadOnly));
    const QByteArray text = status.readAll();
    const QByteArray label = "VmRSS:";
    return text.mid(text.indexOf(label) + label.size()).trimmed().split(' ').constFirst().toLongLong();
}

/// A listener that answers as the program does, and remembers what it heard.
struct RealHttpListener : testing::Test {
    RealHttpListener() {
        listener.received = [this](const QByteArray& piece) {
            heard += piece;
            if (asksForPage(piece))
                listener.send(page);
        };
        EXPECT_TRUE(listener.listen(kPort));
    }
    QByteArray allHeard() const { return heard.join(); }

    // As the program gets it, out of a library that is loaded late.
    const std::unique_ptr<HttpListener> owned = native::makeHttpListener();
    HttpListener& listener = *owned;
    QByteArrayList heard;
    const QByteArray page = BuildStatusPage({.job = "Installing LANTERN"});
};

TEST_F(RealHttpListener, AnswersOnTheConnectionAndLeavesItOpen) {
    Client client;
    client.send(kRequest);
    EXPECT_TRUE(client.hears(page));
    EXPECT_TRUE(client.hearsNothing());
    EXPECT_TRUE(client.open());
    client.send(kRequest);
    EXPECT_TRUE(client.hears(page)) << "and again, on the same connection";
}

TEST_F(RealHttpListener, ServesOneClientAfterTheOther) {
    for (int i = 0; i < 5; ++i) {
        Client client;
        client.send(kRequest);
        EXPECT_TRUE(client.hears(page));
        client.close();
        EXPECT_TRUE(client.isClosed());
    }
}

TEST_F(RealHttpListener, OnlyTheLatestClientIsHeard) {
    Client first;
    first.send(kRequest);
    EXPECT_TRUE(first.hears(page));
    Client second;
    first.send(kRequest);
    EXPECT_TRUE(first.hearsNothing());
    EXPECT_TRUE(first.open());
    second.send(kRequest);
    EXPECT_TRUE(second.hears(page));
    second.close();
    EXPECT_TRUE(second.isClosed());
    first.send(kRequest);
    EXPECT_TRUE(first.hearsNothing()) << "its place was taken for good";
}

TEST_F(RealHttpListener, AConnectionInReserveDoesNotSilenceTheRequestBeforeIt) {
    Client first;
    Client reserve;
    first.send(kRequest);
    EXPECT_TRUE(first.hears(page));
    EXPECT_TRUE(reserve.hearsNothing());
    first.send(kRequest);
    EXPECT_TRUE(first.hearsNothing()) << "only once";
    reserve.send(kRequest);
    EXPECT_TRUE(reserve.hears(page));
}

TEST_F(RealHttpListener, PiecesAreOfAThousandBytesAtMost) {
    Client client;
    EXPECT_TRUE(client.sendAll(QByteArray(999, 'x') + "GET" + QByteArray(2000, 'y')));
    ASSERT_TRUE(pumpUntil([&] { return allHeard().size() == 3002; }));
    for (const QByteArray& piece : heard)
        EXPECT_LE(piece.size(), 1000);
    EXPECT_TRUE(client.hearsNothing()) << "the word lay across two pieces";
}

TEST_F(RealHttpListener, ARequestWithoutTheWordIsNotAnswered) {
    Client client;
    client.send("HEAD / HTTP/1.1\r\n\r\n");
    EXPECT_TRUE(client.hearsNothing());
    EXPECT_EQ(allHeard(), "HEAD / HTTP/1.1\r\n\r\n");
}

TEST_F(RealHttpListener, AfterTheEndAConnectedClientStaysButIsNotHeard) {
    Client client;
    client.send(kRequest);
    EXPECT_TRUE(client.hears(page));
    listener.close();
    heard.clear();
    client.send(kRequest);
    EXPECT_TRUE(client.hearsNothing());
    EXPECT_TRUE(client.open());
    EXPECT_EQ(allHeard(), "");
    EXPECT_FALSE(Client().connected);
}

TEST_F(RealHttpListener, GetsThePortAgainRightAfterTheEnd) {
    for (int i = 0; i < 3; ++i) {
        Client client;
        client.send(kRequest);
        EXPECT_TRUE(client.hears(page));
        Client other;
        other.close(); // leaves the system waiting for stray packets on the port
        listener.close();
        EXPECT_TRUE(listener.listen(kPort));
        EXPECT_TRUE(client.open());
    }
}

TEST_F(RealHttpListener, DoesNotHearConnectionsFromBeforeItsStart) {
    Client spoke;
    spoke.send(kRequest);
    EXPECT_TRUE(spoke.hears(page));
    Client silent;
    listener.close();
    EXPECT_TRUE(listener.listen(kPort));
    spoke.send(kRequest);
    silent.send(kRequest);
    EXPECT_TRUE(spoke.hearsNothing());
    EXPECT_TRUE(silent.hearsNothing());
    listener.send(page);
    EXPECT_TRUE(spoke.hearsNothing());
}

TEST_F(RealHttpListener, AnotherServersPortIsLeftAlone) {
    const auto second = native::makeHttpListener();
    EXPECT_FALSE(second->listen(kPort));
    second->send(page);
    second->close();
    Client client;
    client.send(kRequest);
    EXPECT_TRUE(client.hears(page));
}

TEST_F(RealHttpListener, ASilentClientKeepsNobodyWaiting) {
    Client silent;
    Client talkative;
    talkative.send(kRequest);
    EXPECT_TRUE(talkative.hears(page));
    const double before = processorSeconds();
    EXPECT_TRUE(talkative.hearsNothing());
    EXPECT_LT(processorSeconds() - before, 0.1) << "nor the processor busy";
}

TEST_F(RealHttpListener, TwoHundredClientsAreAllServed) {
    const int filesBefore = openHandles();
    for (int i = 0; i < 200; ++i) {
        Client client;
        client.send(kRequest);
        ASSERT_TRUE(client.hears(page)) << i;
    }
    EXPECT_TRUE(pumpUntil([&] { return openHandles() == filesBefore; }));
}

TEST_F(RealHttpListener, TwoHundredClientsAtOnceLeaveTheLastOneServed) {
    const int filesBefore = openHandles();
    std::vector<std::unique_ptr<Client>> clients;
    for (int i = 0; i < 200; ++i) {
        clients.push_back(std::make_unique<Client>());
        ASSERT_TRUE(clients.back()->connected) << i;
    }
    clients.back()->send(kRequest);
    EXPECT_TRUE(clients.back()->hears(page));
    for (const auto& client : clients)
        EXPECT_TRUE(client->open());
    clients.clear();
    EXPECT_TRUE(pumpUntil([&] { return openHandles() == filesBefore; }));
}

TEST_F(RealHttpListener, NobodyCanUseUpTheFilesOfTheProgram) {
    std::deque<std::unique_ptr<Client>> clients;
    for (int i = 0; i < QtHttpListener::kMostConnections + 10; ++i)
        clients.push_back(std::make_unique<Client>());
    EXPECT_TRUE(clients[9]->isClosed());
    EXPECT_TRUE(clients[10]->open());
    clients.back()->send(kRequest);
    EXPECT_TRUE(clients.back()->hears(page));
}

TEST_F(RealHttpListener, AClientThatSendsAMegabyteIsHeardInPiecesWhileEventsAreServed) {
    int served = 0;
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, [&] { ++served; });
    timer.start(0);
    Client client;
    EXPECT_TRUE(client.sendAll(QByteArray(1'000'000, 'x')));
    EXPECT_TRUE(pumpUntil([&] { return allHeard().size() == 1'000'000; }));
    EXPECT_GT(served, 100);
    client.send(kRequest);
    EXPECT_TRUE(client.hears(page));
}

TEST_F(RealHttpListener, AClientThatAsksForEverAndNeverReadsFillsNoMemory) {
    listener.received = [this](const QByteArray&) { listener.send(page); };
    QByteArray flood;
    while (flood.size() < 1'000'000)
        flood += "GET";
    Client client;
    client.stopReading();
    EXPECT_TRUE(client.sendAll(flood));
    const qsizetype before = residentKilobytes();
    for (int i = 0; i < 20; ++i)
        EXPECT_TRUE(client.sendAll(flood));
    if (!kSanitized) {
        EXPECT_LT(residentKilobytes() - before, 8 * 1024);
    }
    Client next;
    next.send(kRequest);
    EXPECT_TRUE(next.hears(page));
}

TEST_F(RealHttpListener, UnheardClientsFillNoMemoryAndTheirEndIsNoticed) {
    const int filesBefore = openHandles();
    for (int i = 0; i < 20; ++i) {
        Client client;
        const Client next;
        EXPECT_TRUE(client.sendAll(QByteArray(1'000'000, 'x')));
    }
    EXPECT_LE(allHeard().size(), 20 * 1000) << "a first piece of each";
    EXPECT_TRUE(pumpUntil([&] { return openHandles() == filesBefore; }));
}

TEST_F(RealHttpListener, AClientThatVanishesInTheMiddleHarmsNobody) {
    const int filesBefore = openHandles();
    for (int i = 0; i < 20; ++i) {
        Client client;
        client.stopReading();
        // The reset is on its way before the listener is served: it answers to somebody who has gone.
        client.send(kRequest.repeated(i * 20 + 1));
        client.vanish();
    }
    {
        Client client;
        client.send(kRequest);
        EXPECT_TRUE(client.hears(page));
        client.vanish();
    }
    EXPECT_TRUE(pumpUntil([&] { return openHandles() == filesBefore; }));
    listener.send(page);
    Client next;
    next.send(kRequest);
    EXPECT_TRUE(next.hears(page));
}

TEST_F(RealHttpListener, SendingToNobodyIsNothing) {
    listener.send(page);
    Client client;
    client.close();
    EXPECT_TRUE(client.isClosed());
    listener.send(page);
}

TEST_F(RealHttpListener, EndsTogetherWithOpenConnections) {
    auto shortLived = native::makeHttpListener();
    listener.close();
    ASSERT_TRUE(shortLived->listen(kPort));
    Client first;
    Client second;
    shortLived.reset();
    EXPECT_TRUE(first.isClosed());
    EXPECT_TRUE(second.isClosed());
}

} // namespace
} // namespace tarnwell
