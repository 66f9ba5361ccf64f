#include "platform/network_namespace.h"

#include "platform/posix/icmp_packet.h"

#include <QByteArrayList>
#include <QFile>
#include <QtEndian>

#include <arpa/inet.h>
#include <net/if.h>
#include <net/route.h>
#include <netinet/in.h>
#include <sched.h>
#include <sys/ioctl.h>
#include <sys/socket.h>
#include <thread>
#include <unistd.h>

namespace tarnwell::test {

namespace {

constexpr char kEchoRequest = 8;
constexpr char kEchoReply = 0;
constexpr ssize_t kIpHeaderBytes = 20;
constexpr ssize_t kIcmpHeaderBytes = 8;

bool writeFile(const QString& path, const QByteArray& text) {
    QFile file(path);
    return file.open(QFile::WriteOnly | QFile::Unbuffered) && file.write(text) == text.size();
}

sockaddr addressOf(const char* dotted) {
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = ::inet_addr(dotted);
    return reinterpret_cast<const sockaddr&>(address);
}

bool startLoopback() {
    const int control = ::socket(AF_INET, SOCK_DGRAM | SOCK_CLOEXEC, 0);
    char device[] = "lo";
    ifreq flags{};
    qstrncpy(flags.ifr_name, device, sizeof flags.ifr_name);
    flags.ifr_flags = IFF_UP | IFF_RUNNING;
    rtentry silent{};
    silent.rt_dst = addressOf("10.9.9.0");
    silent.rt_genmask = addressOf("255.255.255.0");
    silent.rt_flags = RTF_UP;
    silent.rt_dev = device;
    const bool done =
        ::ioctl(control, SIOCSIFFLAGS, &flags) == 0 && ::ioctl(control, SIOCADDRT, &silent) == 0;
    ::close(control);
    return done;
}

QByteArray answerTo(QByteArray request) {
    constexpr qsizetype kChecksumOffset = 2;
    request[0] = kEchoReply;
    qToBigEndian<quint16>(0, request.data() + kChecksumOffset);
    qToBigEndian(icmp::checksum(request), request.data() + kChecksumOffset);
    return request;
}

} // namespace

bool enterNetworkNamespace() {
    const QByteArray user = QByteArray::number(::getuid());
    const QByteArray group = QByteArray::number(::getgid());
    if (::unshare(CLONE_NEWUSER | CLONE_NEWNET) != 0) {
        return false;
    }
    writeFile("/proc/self/setgroups", "deny");
    return writeFile("/proc/self/uid_map", "0 " + user + " 1") &&
           writeFile("/proc/self/gid_map", "0 " + group + " 1") && startLoopback();
}

bool allowDatagramEchoes() {
    return writeFile("/proc/sys/net/ipv4/ping_group_range", "0 0");
}

void answerEchoesLate(int milliseconds) {
    writeFile("/proc/sys/net/ipv4/icmp_echo_ignore_all", "1");
    const int peer = ::socket(AF_INET, SOCK_RAW | SOCK_CLOEXEC, IPPROTO_ICMP);
    std::thread([peer, milliseconds] {
        char bytes[2048];
        sockaddr_in from{};
        for (;;) {
            socklen_t size = sizeof from;
            const ssize_t count =
                ::recvfrom(peer, bytes, sizeof bytes, 0, reinterpret_cast<sockaddr*>(&from), &size);
            if (count < kIpHeaderBytes + kIcmpHeaderBytes || bytes[kIpHeaderBytes] != kEchoRequest)
                continue;
            std::this_thread::sleep_for(std::chrono::milliseconds(milliseconds));
            const QByteArray answer = answerTo({bytes + kIpHeaderBytes, count - kIpHeaderBytes});
            ::sendto(peer, answer.constData(), static_cast<size_t>(answer.size()), 0,
                     reinterpret_cast<const sockaddr*>(&from), size);
        }
    }).detach();
}

int echoesSent() {
    QFile file("/proc/self/net/snmp");
    if (!file.open(QFile::ReadOnly)) {
        return -1;
    }
    QByteArrayList icmp; // a line of names and a line of values
    for (const QByteArray& line : file.readAll().split('\n')) {
        if (line.startsWith("Icmp: ")) {
            icmp += line;
        }
    }
    const qsizetype column = icmp.value(0).split(' ').indexOf("OutEchos");
    return icmp.value(1).split(' ').value(column, "-1").toInt();
}

EchoListener::EchoListener()
    : descriptor_(::socket(AF_INET, SOCK_RAW | SOCK_NONBLOCK | SOCK_CLOEXEC, IPPROTO_ICMP)) {}

EchoListener::~EchoListener() {
    ::close(descriptor_);
}

QByteArray EchoListener::payloads() const {
    constexpr ssize_t kHeaderBytes = kIpHeaderBytes + kIcmpHeaderBytes;
    QByteArray payloads;
    char bytes[2048];
    for (ssize_t count = 0; (count = ::recv(descriptor_, bytes, sizeof bytes, 0)) >= 0;) {
        if (count >= kHeaderBytes && bytes[kIpHeaderBytes] == kEchoRequest) {
            payloads += '[' + QByteArray(bytes + kHeaderBytes, count - kHeaderBytes) + ']';
        }
    }
    return payloads;
}

} // namespace tarnwell::test
