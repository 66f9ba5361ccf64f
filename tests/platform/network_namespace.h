#pragma once

#include <QByteArray>

/// A network that belongs to one test program alone: nobody else's packets, no rights needed, nothing leaves
/// the machine.
namespace tarnwell::test {

/// Exit code of a test program whose system does not allow such a network.
constexpr int kNoNamespace = 77;

/// Moves this program into a new network with a working loopback device. Addresses 10.9.9.0 to 10.9.9.255
/// lead there too, and nobody answers for them; there is no road to any other. To be called before any thread
/// is started.
bool enterNetworkNamespace();

/// Lets this user send echoes over datagram sockets.
bool allowDatagramEchoes();

/// Answers every echo request of this network in the system's place, which keeps silent from now on, so many
/// milliseconds late. Ends with the program.
void answerEchoesLate(int milliseconds);

/// The echo requests that have gone out of this network so far.
int echoesSent();

/// Hears the echo requests that arrive in this network.
class EchoListener {
public:
    EchoListener();
    ~EchoListener();
    EchoListener(const EchoListener&) = delete;
    EchoListener& operator=(const EchoListener&) = delete;

    /// What has arrived since the start, each payload in brackets.
    QByteArray payloads() const;

private:
    int descriptor_;
};

} // namespace tarnwell::test
