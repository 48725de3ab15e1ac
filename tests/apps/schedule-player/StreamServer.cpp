#include "StreamServer.h"

StreamServer::StreamServer(QObject* parent)
    : QObject(parent)
{
    connect(&m_server, &QTcpServer::newConnection, this, &StreamServer::connected);
    m_server.listen(QHostAddress::LocalHost);
    m_port = m_server.serverPort();
}

QString StreamServer::address(const QString& path) const
{
    return QStringLiteral("http://127.0.0.1:%1%2").arg(m_port).arg(path);
}

void StreamServer::serveWhole(const QString& path, const QByteArray& content)
{
    m_whole.append(path);
    serve(path, content);
}

void StreamServer::hangUp()
{
    for (const QPointer<QTcpSocket>& socket : qAsConst(m_sockets)) {
        if (socket != nullptr) {
            socket->disconnectFromHost();
        }
    }
    m_sockets.clear();
}

void StreamServer::stop()
{
    m_server.close();
    hangUp();
}

void StreamServer::goOn()
{
    m_server.listen(QHostAddress::LocalHost, m_port);
}

void StreamServer::connected()
{
    while (QTcpSocket* socket = m_server.nextPendingConnection()) {
        m_sockets.append(socket);
        connect(socket, &QTcpSocket::readyRead, this, [this, socket] { answer(*socket); });
        connect(socket, &QTcpSocket::disconnected, socket, &QObject::deleteLater);
    }
}

void StreamServer::answer(QTcpSocket& socket)
{
    const QByteArray request = socket.readAll();
    ++m_requests;
    const QString path = QString::fromLatin1(request.split(' ').value(1));
    m_paths.append(path);
    if (m_isSilent) {
        return;
    }
    if (!m_contents.contains(path)) {
        socket.write("HTTP/1.0 404 Not Found\r\n\r\n");
        socket.disconnectFromHost();
        return;
    }
    socket.write("HTTP/1.0 200 OK\r\n\r\n" + m_contents.value(path));
    if (m_whole.contains(path)) {
        socket.disconnectFromHost();
    }
}
