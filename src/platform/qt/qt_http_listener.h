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

private:
    void accept();
    void read();

    QTcpServer server_;
    QPointer<QTcpSocket> client_; ///< the latest; all live as children of the server until they disconnect
};

} // namespace tarnwell
