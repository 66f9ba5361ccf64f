#include "platform/posix/icmp_packet.h"

#include <QtEndian>

namespace tarnwell::icmp {

namespace {

constexpr char kEchoRequest = 8;
constexpr char kEchoReply = 0;

constexpr qsizetype kBytesPerWord = 4; // in which an IP header counts its length
constexpr qsizetype kHeaderBytes = 8;
constexpr qsizetype kTypeOffset = 0;
constexpr qsizetype kCodeOffset = 1;
constexpr qsizetype kChecksumOffset = 2;
constexpr qsizetype kIdOffset = 4;
constexpr qsizetype kSequenceOffset = 6;

quint16 wordAt(const QByteArray& bytes, qsizetype offset) {
    return qFromBigEndian<quint16>(bytes.constData() + offset);
}

void putWord(QByteArray& bytes, qsizetype offset, quint16 word) {
    qToBigEndian(word, bytes.data() + offset);
}

} // namespace

QByteArray request(const Echo& echo) {
    QByteArray message(kHeaderBytes, '\0');
    message[kTypeOffset] = kEchoRequest;
    putWord(message, kIdOffset, echo.id);
    putWord(message, kSequenceOffset, echo.sequence);
    message += echo.payload;
    putWord(message, kChecksumOffset, checksum(message));
    return message;
}

bool isReplyTo(const Echo& echo, const QByteArray& message) {
    return message.size() >= kHeaderBytes && message[kTypeOffset] == kEchoReply &&
           message[kCodeOffset] == 0 && wordAt(message, kIdOffset) == echo.id &&
           wordAt(message, kSequenceOffset) == echo.sequence && message.mid(kHeaderBytes) == echo.payload;
}

QByteArray withoutIpHeader(const QByteArray& datagram) {
    if (datagram.isEmpty()) {
        return {};
    }
    const qsizetype headerWords = datagram[0] & 0x0F;
    return datagram.mid(headerWords * kBytesPerWord);
}

quint16 checksum(const QByteArray& bytes) {
    quint32 sum = 0;
    for (qsizetype i = 0; i < bytes.size(); ++i) {
        const auto byte = static_cast<quint8>(bytes[i]);
        sum += i % 2 == 0 ? static_cast<quint32>(byte) << 8 : byte;
    }
    while (sum > 0xFFFF) {
        sum = (sum & 0xFFFF) + (sum >> 16);
    }
    return static_cast<quint16>(~sum);
}

} // namespace tarnwell::icmp
