#include "StreamServer.h"

#include <algorithm>

namespace {

constexpr int kAtOnce = 1000; // milliseconds of what is paced
constexpr int kPieces = 40;   // milliseconds from one piece to the next
constexpr int kSoon = 500;    // milliseconds until a line that breaks off does so

} // namespace

StreamServer::StreamServer(QObject* parent)
    : QObject(parent)
{
    connect(&m_server, &QTcpServer::newConnection, this, &StreamServer::connected);
    m_server.listen(QHostAddress::LocalHost);
    m_port = m_server.serverPort();
    connect(&m_pace, &QTimer::timeout, this, &StreamServer::sendMore);
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

void StreamServer::servePaced(const QString& path, const QByteArray& content, int milliseconds)
{
    m_paced[path] = {content, milliseconds};
    m_pace.start(kPieces);
}

void StreamServer::sendMore()
{
    const auto isOver = [](const Line& line) {
        return line.socket == nullptr || line.socket->state() != QAbstractSocket::ConnectedState;
    };
    m_lines.erase(std::remove_if(m_lines.begin(), m_lines.end(), isOver), m_lines.end());
    for (Line& line : m_lines) {
        if (m_breaksOff && line.timer.elapsed() >= kSoon) {
            line.socket->disconnectFromHost();
        } else if (!m_isStalled) {
            const qint64 due = line.source.content.size() * (line.timer.elapsed() + kAtOnce) /
                               line.source.milliseconds;
            const int until = static_cast<int>(std::min<qint64>(due, line.source.content.size()));
            line.socket->write(line.source.content.mid(line.sent, until - line.sent));
            line.sent = until;
        }
    }
}

void StreamServer::sendRest()
{
    for (const auto& [socket, rest] : std::exchange(m_rest, {})) {
        if (socket != nullptr) {
            socket->write(rest);
        }
    }
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
    if (!m_server.isListening()) {
        m_server.listen(QHostAddress::LocalHost, m_port);
    }
}

void StreamServer::connected()
{
    while (QTcpSocket* socket = m_server.nextPendingConnection()) {
        m_sockets.append(socket);
        m_mostLines = std::max(m_mostLines, ++m_openLines);
        connect(socket, &QTcpSocket::disconnected, this, [this] { --m_openLines; });
        connect(socket, &QTcpSocket::readyRead, this, [this, socket] { ask(*socket); });
        connect(socket, &QTcpSocket::disconnected, socket, &QObject::deleteLater);
    }
}

void StreamServer::ask(QTcpSocket& socket)
{
    const QByteArray request = socket.readAll();
    ++m_requests;
    const QString path = QString::fromLatin1(request.split(' ').value(1));
    m_paths.append(path);
    emit asked(path);
    if (m_isSilent) {
        return;
    }
    if (m_delay > 0) {
        QTimer::singleShot(m_delay, &socket, [this, &socket, path] { answer(socket, path); });
    } else {
        answer(socket, path);
    }
}

void StreamServer::answer(QTcpSocket& socket, const QString& path)
{
    if (m_paced.contains(path)) {
        socket.write("HTTP/1.0 200 OK\r\n\r\n");
        Line line{&socket, m_paced.value(path), 0, {}};
        line.timer.start();
        m_lines.push_back(line);
        return;
    }
    if (!m_contents.contains(path)) {
        socket.write("HTTP/1.0 404 Not Found\r\n\r\n");
        socket.disconnectFromHost();
        return;
    }
    const QByteArray content = m_contents.value(path);
    const int length = m_cutOff.value_or(content.size());
    socket.write("HTTP/1.0 200 OK\r\n\r\n" + content.left(length));
    m_rest.emplace_back(&socket, content.mid(length));
    if (m_whole.contains(path)) {
        socket.disconnectFromHost();
    }
}
