#include "platform/posix/echo_socket.h"

#include "platform/posix/icmp_packet.h"
#include "platform/posix/ping_status.h"

#include <QElapsedTimer>

#include <algorithm>
#include <arpa/inet.h>
#include <cerrno>
#include <netinet/in.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

namespace tarnwell {

namespace {

class Socket {
public:
    explicit Socket(EchoSocket kind)
        : descriptor_(::socket(
              AF_INET, (kind == EchoSocket::Raw ? SOCK_RAW : SOCK_DGRAM) | SOCK_NONBLOCK | SOCK_CLOEXEC,
              IPPROTO_ICMP)) {}
    ~Socket() {
        if (isOpen()) {
            ::close(descriptor_);
        }
    }
    Q_DISABLE_COPY_MOVE(Socket)

    bool isOpen() const { return descriptor_ >= 0; }

    /// From now on the system passes on only what comes from this address, and what routers report about it.
    bool connectTo(quint32 address) const {
        const int yes = 1;
        ::setsockopt(descriptor_, IPPROTO_IP, IP_RECVERR, &yes, sizeof yes);
        sockaddr_in peer{};
        peer.sin_family = AF_INET;
        peer.sin_addr.s_addr = htonl(address);
        return ::connect(descriptor_, reinterpret_cast<const sockaddr*>(&peer), sizeof peer) == 0;
    }

    /// The id that the system gave to a datagram socket.
    quint16 assignedId() const {
        sockaddr_in own{};
        socklen_t size = sizeof own;
        ::getsockname(descriptor_, reinterpret_cast<sockaddr*>(&own), &size);
        return ntohs(own.sin_port);
    }

    bool send(const QByteArray& message) const {
        return ::send(descriptor_, message.constData(), static_cast<size_t>(message.size()), 0) ==
               message.size();
    }

    /// Also true if a signal, such as that of a child's end, has cut the wait short.
    bool waitReadable(int timeoutMs) const {
        pollfd waiting{descriptor_, POLLIN, 0};
        const int found = ::poll(&waiting, 1, timeoutMs);
        return found > 0 || (found < 0 && errno == EINTR);
    }

    /// Nothing on failure, which errno tells.
    std::optional<QByteArray> receive() const {
        constexpr qsizetype kLargestDatagram = 65'536;
        QByteArray bytes(kLargestDatagram, Qt::Uninitialized);
        const ssize_t count = ::recv(descriptor_, bytes.data(), static_cast<size_t>(bytes.size()), 0);
        if (count < 0) {
            return std::nullopt;
        }
        bytes.truncate(count);
        return bytes;
    }

private:
    int descriptor_;
};

Ping::Reply failureFromErrno() {
    switch (errno) {
    case ENETUNREACH:
    case ENETDOWN:
        return {ping_status::kNetUnreachable};
    case EHOSTUNREACH:
    case EHOSTDOWN:
        return {ping_status::kHostUnreachable};
    default:
        return {ping_status::kGeneralFailure};
    }
}

bool nothingReceivedYet() {
    return errno == EAGAIN || errno == EWOULDBLOCK || errno == EINTR;
}

Ping::Reply waitForReply(const Socket& socket, EchoSocket kind, const icmp::Echo& echo, int timeoutMs) {
    QElapsedTimer sinceSent;
    sinceSent.start();
    while (socket.waitReadable(std::max(timeoutMs - static_cast<int>(sinceSent.elapsed()), 0))) {
        const std::optional<QByteArray> received = socket.receive();
        const auto roundTripMs = static_cast<int>(sinceSent.elapsed());
        if (roundTripMs > timeoutMs) {
            break;
        }
        if (!received) {
            if (nothingReceivedYet()) {
                continue;
            }
            return failureFromErrno();
        }
        if (icmp::isReplyTo(echo, kind == EchoSocket::Raw ? icmp::withoutIpHeader(*received) : *received)) {
            return {ping_status::kSuccess, roundTripMs};
        }
    }
    return {ping_status::kTimedOut};
}

} // namespace

std::optional<Ping::Reply> echoOverSocket(EchoSocket kind, quint32 address, quint16 sequence,
                                          const QByteArray& payload, int timeoutMs) {
    const Socket socket(kind);
    if (!socket.isOpen()) {
        return std::nullopt;
    }
    icmp::Echo echo{static_cast<quint16>(::getpid()), sequence, payload};
    if (!socket.connectTo(address) || !socket.send(icmp::request(echo))) {
        return failureFromErrno();
    }
    if (kind == EchoSocket::Datagram) {
        echo.id = socket.assignedId();
    }
    return waitForReply(socket, kind, echo, timeoutMs);
}

} // namespace tarnwell
