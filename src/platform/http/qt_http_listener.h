#pragma once

#include "platform/ports.h"

#include <QPointer>
#include <QTcpServer>
#include <QTcpSocket>

namespace tarnwell {

class QtHttpListener : public HttpListener {
public:
    QtHttpListener();

    bool listen(quint16 port) override;
    void close() override;
    void send(const QByteArray& bytes) override;

    static constexpr int kMostConnections = 256;

private:
    void accept();
    void take(QTcpSocket& socket);
    void read(QTcpSocket& socket);

    QList<QTcpSocket*> connections_; ///< the oldest first; children of the server
    QList<QTcpSocket*> silent_;      ///< those of them that have not sent anything since `listen`
    QPointer<QTcpSocket> latest_;
    QPointer<QTcpSocket> heard_;
    QTcpServer server_; ///< the first to go: its children still leave the lists when they end
};

} // namespace tarnwell
