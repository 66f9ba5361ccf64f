#include "platform/native.h"
#include "platform/windows/system.h"

#include <iphlpapi.h>
#include <winsock2.h>

// which needs the two above
#include <icmpapi.h>

namespace tarnwell {

namespace {

/// Behind the reply and its payload the system wants room for an error message and for its own bookkeeping.
constexpr qsizetype kExtraBytes = 8 + 2 * sizeof(void*);

int failure(DWORD code) {
    return code == IP_SUCCESS ? IP_GENERAL_FAILURE : static_cast<int>(code);
}

Ping::Reply echo(HANDLE icmp, quint32 address, const QByteArray& payload, int timeoutMs) {
    QByteArray buffer(static_cast<qsizetype>(sizeof(ICMP_ECHO_REPLY)) + payload.size() + kExtraBytes, '\0');
    QByteArray request = payload;
    const DWORD replies =
        IcmpSendEcho(icmp, htonl(address), request.data(), static_cast<WORD>(request.size()), nullptr,
                     buffer.data(), static_cast<DWORD>(buffer.size()), static_cast<DWORD>(timeoutMs));
    if (replies == 0)
        return {failure(GetLastError())};
    const auto& reply = *reinterpret_cast<const ICMP_ECHO_REPLY*>(buffer.constData());
    const auto roundTripMs = static_cast<int>(reply.RoundTripTime);
    if (reply.Status != IP_SUCCESS)
        return {static_cast<int>(reply.Status)};
    // The system keeps short times only roughly.
    return roundTripMs > timeoutMs ? Ping::Reply{IP_REQ_TIMED_OUT} : Ping::Reply{IP_SUCCESS, roundTripMs};
}

class WindowsPing : public Ping {
public:
    Reply sendEcho(quint32 address, const QByteArray& payload, int timeoutMs) override {
        const HANDLE icmp = IcmpCreateFile();
        if (icmp == INVALID_HANDLE_VALUE)
            return {failure(GetLastError())};
        const Reply reply = echo(icmp, address, payload, timeoutMs);
        IcmpCloseHandle(icmp);
        return reply;
    }
};

} // namespace

std::unique_ptr<Ping> native::makePing() {
    return std::make_unique<WindowsPing>();
}

} // namespace tarnwell
