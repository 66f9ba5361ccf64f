#include "platform/qt/qt_http_listener.h"

namespace tarnwell {

QtHttpListener::QtHttpListener() {
    server_.setMaxPendingConnections(1);
    QObject::connect(&server_, &QTcpServer::newConnection, &server_, [this] { accept(); });
}

bool QtHttpListener::listen(quint16 port) {
    return server_.listen(QHostAddress::AnyIPv4, port);
}

void QtHttpListener::close() {
    server_.close();
    client_ = nullptr;
}

void QtHttpListener::send(const QByteArray& bytes) {
    if (client_)
        client_->write(bytes);
}

void QtHttpListener::accept() {
    while (QTcpSocket* socket = server_.nextPendingConnection()) {
        client_ = socket;
        // Whoever is not listened to must not fill the memory.
        socket->setReadBufferSize(kMostBytes);
        QObject::connect(socket, &QTcpSocket::readyRead, socket, [this, socket] {
            if (socket == client_)
                read();
        });
        QObject::connect(socket, &QTcpSocket::disconnected, socket, &QObject::deleteLater);
    }
}

void QtHttpListener::read() {
    while (client_ && client_->bytesAvailable() > 0)
        received(client_->read(kMostBytes));
}

} // namespace tarnwell
