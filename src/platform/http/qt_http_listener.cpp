#include "platform/http/qt_http_listener.h"

namespace tarnwell {

QtHttpListener::QtHttpListener() {
    QObject::connect(&server_, &QTcpServer::newConnection, &server_, [this] { accept(); });
}

bool QtHttpListener::listen(quint16 port) {
    return server_.listen(QHostAddress::AnyIPv4, port);
}

void QtHttpListener::close() {
    server_.close();
    silent_.clear();
    latest_ = heard_ = nullptr;
}

void QtHttpListener::send(const QByteArray& bytes) {
    // What a client asks for and never takes must not fill the memory.
    if (heard_ && heard_->bytesToWrite() == 0)
        heard_->write(bytes);
}

void QtHttpListener::accept() {
    while (QTcpSocket* socket = server_.nextPendingConnection())
        take(*socket);
}

void QtHttpListener::take(QTcpSocket& socket) {
    latest_ = &socket;
    socket.setReadBufferSize(kMostBytes);
    QObject::connect(&socket, &QTcpSocket::readyRead, &socket, [this, &socket] { read(socket); });
    QObject::connect(&socket, &QTcpSocket::disconnected, &socket, [this, &socket] {
        connections_.removeOne(&socket);
        silent_.removeOne(&socket);
        socket.deleteLater();
    });
    connections_.append(&socket);
    silent_.append(&socket);
    if (connections_.size() > kMostConnections)
        connections_.first()->abort();
}

void QtHttpListener::read(QTcpSocket& socket) {
    while (socket.bytesAvailable() > 0) {
        const QByteArray bytes = socket.read(kMostBytes);
        const bool first = silent_.removeOne(&socket);
        // What the others send is taken as well, or the end of their connections would not be noticed.
        if (!first && &socket != latest_)
            continue;
        heard_ = &socket;
        received(bytes);
    }
}

} // namespace tarnwell
