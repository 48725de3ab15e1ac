#pragma once

#include <QByteArray>
#include <QHash>
#include <QString>
#include <QStringList>
#include <QTcpServer>

class QTcpSocket;

/// A web server on this machine that hands out files, and does with them what a test says.
class FileServer
{
public:
    FileServer();

    /// The address below which the files are.
    QString address() const;
    void serve(const QString& name, const QByteArray& content) { m_files[name] = content; }
    void withdraw(const QString& name) { m_files.remove(name); }
    /// Sends so many bytes of each answer and cuts the line then; all of it with 0.
    void setCutAfter(int bytes) { m_cutAfter = bytes; }
    /// Knows no parts, and always sends the whole file.
    void setKnowsParts(bool knowsParts) { m_knowsParts = knowsParts; }
    /// Sends half of each answer, and then nothing more on lines that stay.
    void setStalls(bool stalls) { m_stalls = stalls; }

    /// What was asked for, such as "name" or "name from 17".
    const QStringList& asked() const { return m_asked; }

private:
    void answer(QTcpSocket& socket);

    QTcpServer m_server;
    QHash<QString, QByteArray> m_files;
    QStringList m_asked;
    int m_cutAfter = 0;
    bool m_knowsParts = true;
    bool m_stalls = false;
};
