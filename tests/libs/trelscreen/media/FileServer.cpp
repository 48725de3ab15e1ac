#include "FileServer.h"

#include <QHostAddress>
#include <QRegularExpression>
#include <QTcpSocket>

namespace {

const QString kFolder = QStringLiteral("/media/");

QByteArray head(const char* status, int length, const QByteArray& more = {})
{
    return QByteArray("HTTP/1.1 ") + status +
           "\r\nConnection: close\r\nContent-Length: " + QByteArray::number(length) + "\r\n" +
           more + "\r\n";
}

} // namespace

FileServer::FileServer()
{
    m_server.listen(QHostAddress::LocalHost);
    QObject::connect(&m_server, &QTcpServer::newConnection, &m_server, [this] {
        while (QTcpSocket* socket = m_server.nextPendingConnection()) {
            QObject::connect(socket, &QTcpSocket::disconnected, socket, &QObject::deleteLater);
            QObject::connect(socket, &QTcpSocket::readyRead, &m_server,
                             [this, socket] { answer(*socket); });
        }
    });
}

QString FileServer::address() const
{
    return QStringLiteral("http://127.0.0.1:%1/media").arg(m_server.serverPort());
}

void FileServer::answer(QTcpSocket& socket)
{
    const QByteArray request = socket.peek(socket.bytesAvailable());
    if (!request.contains("\r\n\r\n")) {
        return;
    }
    socket.readAll();
    const QString path = QString::fromLatin1(request.split(' ').value(1));
    const QString name = path.mid(kFolder.size());
    static const QRegularExpression part(QStringLiteral("\r\nRange: bytes=(\\d+)-"),
                                         QRegularExpression::CaseInsensitiveOption);
    const QRegularExpressionMatch match = part.match(QString::fromLatin1(request));
    const int from = m_knowsParts ? match.captured(1).toInt() : 0;
    m_asked.append(match.hasMatch() ? QStringLiteral("%1 from %2").arg(name, match.captured(1))
                                    : name);
    if (!m_files.contains(name)) {
        socket.write(head("404 Not Found", 0));
    } else if (from > 0 && from >= m_files[name].size()) {
        socket.write(head("416 Range Not Satisfiable", 0));
    } else {
        const QByteArray file = m_files[name];
        const QByteArray body = file.mid(from);
        const QByteArray range = "Content-Range: bytes " + QByteArray::number(from) + '-' +
                                 QByteArray::number(file.size() - 1) + '/' +
                                 QByteArray::number(file.size()) + "\r\n";
        socket.write(from > 0 ? head("206 Partial Content", body.size(), range)
                              : head("200 OK", body.size()));
        socket.write(m_cutAfter > 0 ? body.left(m_cutAfter)
                     : m_stalls     ? body.left(body.size() / 2)
                                    : body);
    }
    if (!m_stalls) {
        socket.disconnectFromHost();
    }
}
