#pragma once

#include <QByteArray>
#include <QElapsedTimer>
#include <QHash>
#include <QObject>
#include <QPointer>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTimer>

#include <optional>
#include <utility>
#include <vector>

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
    /// What is sent as if it was being made: a second of it at once, and the rest as time passes.
    void servePaced(const QString& path, const QByteArray& content, int milliseconds);
    /// Sends no answer at all.
    void setSilent(bool isSilent) { m_isSilent = isSilent; }
    /// Sends nothing more of what is paced, on lines that stay.
    void setStalled(bool isStalled) { m_isStalled = isStalled; }
    /// Ends each line of what is paced half a second after the first of it.
    void setBreaksOff(bool breaksOff) { m_breaksOff = breaksOff; }
    /// Sends nothing more on the lines that it has, which stay.
    void forgetLines() { m_lines.clear(); }
    /// Answers each line only after that time.
    void setDelay(int milliseconds) { m_delay = milliseconds; }
    /// Sends so many bytes of what there is at once, and nothing more on lines that stay.
    void setCutOff(std::optional<int> bytes) { m_cutOff = bytes; }
    /// Sends what was cut off.
    void sendRest();
    /// Ends all lines.
    void hangUp();
    /// Nobody can connect any more, until it goes on at the same place.
    void stop();
    void goOn();

    /// How many lines there are now, and were at most.
    int lines() const { return m_openLines; }
    int mostLines() const { return m_mostLines; }
    int requests() const { return m_requests; }
    const QStringList& paths() const { return m_paths; }

signals:
    void asked(const QString& path);

private:
    struct Paced
    {
        QByteArray content;
        int milliseconds = 0;
    };
    struct Line
    {
        QPointer<QTcpSocket> socket;
        Paced source;
        int sent = 0;
        QElapsedTimer timer;
    };

    void sendMore();
    void connected();
    void ask(QTcpSocket& socket);
    void answer(QTcpSocket& socket, const QString& path);

    QTcpServer m_server;
    quint16 m_port = 0;
    QHash<QString, QByteArray> m_contents;
    QStringList m_whole;
    QList<QPointer<QTcpSocket>> m_sockets;
    QStringList m_paths;
    QHash<QString, Paced> m_paced;
    std::vector<Line> m_lines;
    QTimer m_pace;
    bool m_isStalled = false;
    bool m_breaksOff = false;
    bool m_isSilent = false;
    int m_requests = 0;
    int m_delay = 0;
    std::optional<int> m_cutOff;
    std::vector<std::pair<QPointer<QTcpSocket>, QByteArray>> m_rest;
    int m_openLines = 0;
    int m_mostLines = 0;
};
