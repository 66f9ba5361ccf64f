#include "platform/qt/qt_http_listener.h"

namespace tarnwell {

QtHttpListener::QtHttpListener() {
    server_.setListenBacklogSize(1);
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
    // What a client asks for and never takes must not fill the memory.
    if (client_ && client_->bytesToWrite() == 0)
        client_->write(bytes);
}

void QtHttpListener::accept() {
    while (QTcpSocket* socket = server_.nextPendingConnection())
        take(*socket);
}

void QtHttpListener::take(QTcpSocket& socket) {
    client_ = &socket;
    socket.setReadBufferSize(kMostBytes);
    QObject::connect(&socket, &QTcpSocket::readyRead, &socket, [this, &socket] { read(socket); });
    QObject::connect(&socket, &QTcpSocket::disconnected, &socket, [this, &socket] {
        connections_.removeOne(&socket);
        socket.deleteLater();
    });
    connections_.append(&socket);
    if (connections_.size() > kMostConnections)
        connections_.first()->abort();
}

void QtHttpListener::read(QTcpSocket& socket) {
    while (socket.bytesAvailable() > 0) {
        const QByteArray bytes = socket.read(kMostBytes);
        // What the others send is taken as well, or the end of their connections would not be noticed.
        if (&socket == client_)
            received(bytes);
    }
}

} // namespace tarnwell
