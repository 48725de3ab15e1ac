#include "PostgresServer.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QStringList>
#include <QUrl>

#include <arpa/inet.h>
#include <csignal>
#include <netinet/in.h>
#include <pwd.h>
#include <sys/socket.h>
#include <unistd.h>

namespace {

const QString kOwner = QStringLiteral("owner");
const QString kOther = QStringLiteral("nobody");
constexpr int kPatience = 60000;

/// A program of the newest server that is installed.
QString program(const QString& name)
{
    const QDir versions(QStringLiteral("/usr/lib/postgresql"));
    const QStringList found = versions.entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name);
    return found.isEmpty() ? name
                           : versions.filePath(found.last() + QStringLiteral("/bin/") + name);
}

/// One that nobody listens at just now.
int freePort()
{
    const int handle = ::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
    sockaddr_in address = {};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    socklen_t size = sizeof address;
    auto* const plain = reinterpret_cast<sockaddr*>(&address);
    const bool isKnown =
        ::bind(handle, plain, size) == 0 && ::getsockname(handle, plain, &size) == 0;
    ::close(handle);
    return isKnown ? ntohs(address.sin_port) : 0;
}

bool isRoot()
{
    return ::geteuid() == 0;
}

bool giveTo(const QString& path, const QString& user)
{
    const passwd* const entry = ::getpwnam(user.toLocal8Bit().constData());
    return entry != nullptr &&
           ::chown(QFile::encodeName(path).constData(), entry->pw_uid, entry->pw_gid) == 0;
}

} // namespace

PostgresServer::PostgresServer()
    : m_folder(QStringLiteral("/tmp/server-XXXXXX"))
    , m_port(freePort())
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("LC_ALL"), QStringLiteral("C"));
    m_process.setProcessEnvironment(environment);
    m_process.setProcessChannelMode(QProcess::MergedChannels);
    m_process.setWorkingDirectory(m_folder.path());
    watchOver();
    if (!makeData()) {
        return;
    }
    // Another test may have taken the port meanwhile.
    constexpr int trials = 5;
    for (int trial = 1; !start() && trial < trials; ++trial) {
        m_port = freePort();
    }
    if (!m_isReady) {
        qWarning("postgres: %s", m_log.constData());
    }
}

PostgresServer::~PostgresServer()
{
    endAside();
    stop();
    // Otherwise it waits for the end of its input.
    m_sweeper.kill();
    m_sweeper.waitForFinished(kPatience);
}

void PostgresServer::watchOver()
{
    m_sweeper.start(
        QStringLiteral("setsid"),
        {QStringLiteral("sh"), QStringLiteral("-c"),
         QStringLiteral("cat > /dev/null; pid=$(head -n 1 \"$0/data/postmaster.pid\" 2> /dev/null);"
                        " while [ -n \"$pid\" ] && [ -e \"/proc/$pid\" ]; do sleep 0.1; done;"
                        " rm -rf \"$0\""),
         m_folder.path()});
    m_sweeper.waitForStarted(kPatience);
}

QStringList PostgresServer::asAnother(const QString& name, const QStringList& arguments) const
{
    QStringList words = {QStringLiteral("setpriv"), QStringLiteral("--pdeathsig"),
                         QStringLiteral("INT")};
    if (isRoot()) {
        words += {QStringLiteral("--reuid=") + kOther, QStringLiteral("--regid=nogroup"),
                  QStringLiteral("--clear-groups")};
    }
    return words + QStringList{program(name)} + arguments;
}

bool PostgresServer::makeData()
{
    if (isRoot() && !giveTo(m_folder.path(), kOther)) {
        qWarning("The folder of the server cannot be given away.");
        return false;
    }
    QStringList words =
        asAnother(QStringLiteral("initdb"),
                  {QStringLiteral("--pgdata=data"), QStringLiteral("--username=") + kOwner,
                   QStringLiteral("--auth=trust"), QStringLiteral("--encoding=UTF8"),
                   QStringLiteral("--locale=C"), QStringLiteral("--no-sync")});
    m_process.start(words.takeFirst(), words);
    if (!m_process.waitForFinished(kPatience) || m_process.exitCode() != 0) {
        qWarning("initdb: %s", m_process.readAll().constData());
        return false;
    }
    return true;
}

bool PostgresServer::start()
{
    QStringList words =
        asAnother(QStringLiteral("postgres"),
                  {QStringLiteral("-D"), QStringLiteral("data"), QStringLiteral("-h"),
                   QStringLiteral("127.0.0.1"), QStringLiteral("-p"), QString::number(m_port),
                   QStringLiteral("-k"), m_folder.path(), QStringLiteral("-F"),
                   QStringLiteral("-c"), QStringLiteral("shared_buffers=16MB"),
                   QStringLiteral("-c"), QStringLiteral("max_connections=40"), QStringLiteral("-c"),
                   QStringLiteral("log_line_prefix=")});
    m_process.start(words.takeFirst(), words);
    m_log.clear();
    QElapsedTimer timer;
    timer.start();
    while (!m_isReady && m_process.state() != QProcess::NotRunning &&
           !timer.hasExpired(kPatience)) {
        m_process.waitForReadyRead(kPatience);
        m_log += m_process.readAll();
        m_isReady = m_log.contains("ready to accept connections");
    }
    return m_isReady;
}

void PostgresServer::stop()
{
    end(SIGINT);
}

void PostgresServer::kill()
{
    // Its own children end as soon as it is told to leave without writing anything more.
    end(SIGQUIT);
}

void PostgresServer::pause()
{
    // The first one, which makes the others, before them.
    ::kill(static_cast<pid_t>(m_process.processId()), SIGSTOP);
    signalAll(SIGSTOP);
}

void PostgresServer::resume()
{
    signalAll(SIGCONT);
}

void PostgresServer::signalAll(int signal) const
{
    const qint64 first = m_process.processId();
    QFile children(QStringLiteral("/proc/%1/task/%1/children").arg(first));
    if (!children.open(QIODevice::ReadOnly)) {
        qWarning("The processes of the server are not known.");
        return;
    }
    const QList<QByteArray> numbers = children.readAll().simplified().split(' ');
    for (const QByteArray& number : numbers) {
        if (const pid_t child = number.toInt(); child > 0) {
            ::kill(child, signal);
        }
    }
    ::kill(static_cast<pid_t>(first), signal);
}

void PostgresServer::end(int signal)
{
    m_isReady = false;
    if (m_process.state() == QProcess::NotRunning) {
        return;
    }
    resume();
    ::kill(static_cast<pid_t>(m_process.processId()), signal);
    if (!m_process.waitForFinished(kPatience)) {
        m_process.kill();
        m_process.waitForFinished(kPatience);
    }
    m_process.readAll();
}

QString PostgresServer::address(const QString& schedule, const QString& user) const
{
    return QStringLiteral("postgresql://%1@127.0.0.1:%2/postgres?schedule=%3")
        .arg(user.isEmpty() ? kOwner : user, QString::number(m_port),
             QString::fromLatin1(QUrl::toPercentEncoding(schedule)));
}

QStringList PostgresServer::clientArguments() const
{
    return {QStringLiteral("-X"),    QStringLiteral("-q"),        QStringLiteral("-A"),
            QStringLiteral("-t"),    QStringLiteral("-v"),        QStringLiteral("ON_ERROR_STOP=1"),
            QStringLiteral("-h"),    QStringLiteral("127.0.0.1"), QStringLiteral("-p"),
            QString::number(m_port), QStringLiteral("-U"),        kOwner,
            QStringLiteral("-d"),    QStringLiteral("postgres")};
}

QString PostgresServer::run(const QString& statements) const
{
    QProcess client;
    client.start(program(QStringLiteral("psql")),
                 clientArguments() + QStringList{QStringLiteral("-c"), statements});
    if (!client.waitForFinished(kPatience) || client.exitCode() != 0) {
        qWarning("psql: %s", client.readAllStandardError().constData());
        return {};
    }
    return QLatin1String("") + QString::fromUtf8(client.readAllStandardOutput()).trimmed();
}

void PostgresServer::beginAside(const QString& statements)
{
    m_aside.start(program(QStringLiteral("psql")), clientArguments());
    m_aside.write(statements.toUtf8() + ";\n");
    m_aside.waitForBytesWritten(kPatience);
}

QString PostgresServer::lineAside()
{
    if (!m_aside.canReadLine() && !m_aside.waitForReadyRead(kPatience)) {
        qWarning("psql: %s", m_aside.readAllStandardError().constData());
    }
    return QString::fromUtf8(m_aside.readLine()).trimmed();
}

void PostgresServer::endAside()
{
    m_aside.closeWriteChannel();
    m_aside.waitForFinished(kPatience);
}
