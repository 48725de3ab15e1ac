#pragma once

#include <QByteArray>
#include <QHash>
#include <QObject>
#include <QPointer>
#include <QTcpServer>
#include <QTcpSocket>

/// A source of streams on this machine, which does with those who connect what a test says.
class StreamServer : public QObject
{
    Q_OBJECT

public:
    explicit StreamServer(QObject* parent = nullptr);

    QString address(const QString& path = QStringLiteral("/live")) const;
    /// What is sent for a path, at once; then the line stays open.
    void serve(const QString& path, const QByteArray& content) { m_contents[path] = content; }
    /// The same, and then it hangs up.
    void serveWhole(const QString& path, const QByteArray& content);
    /// Sends no answer at all.
    void setSilent(bool isSilent) { m_isSilent = isSilent; }
    /// Ends all lines.
    void hangUp();
    /// Nobody can connect any more, until it goes on at the same place.
    void stop();
    void goOn();

    int requests() const { return m_requests; }
    const QStringList& paths() const { return m_paths; }

private:
    void connected();
    void answer(QTcpSocket& socket);

    QTcpServer m_server;
    quint16 m_port = 0;
    QHash<QString, QByteArray> m_contents;
    QStringList m_whole;
    QList<QPointer<QTcpSocket>> m_sockets;
    QStringList m_paths;
    bool m_isSilent = false;
    int m_requests = 0;
};
