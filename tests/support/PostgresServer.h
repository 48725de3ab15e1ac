#pragma once

#include <QProcess>
#include <QString>
#include <QTemporaryDir>
#include <QtGlobal>

/// A PostgreSQL server for a test: on loopback, at a port of its own, with all that it has in a
/// folder that goes with it. It ends with the object, and with the process, however that ends. As
/// root it runs as another user, since it refuses to run as root.
class PostgresServer
{
public:
    PostgresServer();
    ~PostgresServer();
    Q_DISABLE_COPY(PostgresServer)

    /// Whether it takes connections. Why not is in the log of the test.
    bool isRunning() const { return m_isReady; }
    /// Starts it again at the same port.
    bool start();
    /// Ends it at once, as an orderly end would: connections are cut.
    void stop();
    /// Ends it as a power cut would.
    void kill();
    /// Stops all of its processes where they are, while its machine goes on answering for them.
    void pause();
    void resume();

    int port() const { return m_port; }
    /// The address of a schedule for a user, who need not be there; for the one who may do
    /// everything when none is given.
    QString address(const QString& schedule, const QString& user = {}) const;
    /// Runs statements as the user who may do everything. Gives what they print, a line a row;
    /// null where the server refuses them.
    QString run(const QString& statements) const;
    /// Gives statements to a connection that stays, with what they have begun, until endAside, and
    /// waits for nothing.
    void beginAside(const QString& statements);
    /// The first line that they print.
    QString lineAside();
    void endAside();

private:
    bool makeData();
    /// Takes the folder away when the process has been killed, and the server has ended behind it.
    void watchOver();
    QStringList asAnother(const QString& program, const QStringList& arguments) const;
    QStringList clientArguments() const;
    void end(int signal);
    void signalAll(int signal) const;

    QTemporaryDir m_folder;
    QProcess m_process;
    QProcess m_aside;
    QProcess m_sweeper;
    int m_port = 0;
    QByteArray m_log; ///< Of the last start.
    bool m_isReady = false;
};
