#include "support/TestProgram.h"
#include "system/ServiceManager.h"

#include <QCoreApplication>
#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

using trel::player::ServiceManager;

/// What the manager of services hears, with the test in its place.
class tst_ServiceManager : public QObject
{
    Q_OBJECT

private slots:
    void cleanup();
    void hearsHowThePlayerIs();
    void hearsThatItIsAlive();
    void hearsNothingUnasked();
};

namespace {

/// The socket of a manager.
class Manager
{
public:
    Manager()
    {
        m_socket = ::socket(AF_UNIX, SOCK_DGRAM | SOCK_NONBLOCK | SOCK_CLOEXEC, 0);
        const QByteArray path = QFile::encodeName(m_folder.filePath(QStringLiteral("notify")));
        sockaddr_un address = {};
        address.sun_family = AF_UNIX;
        qstrncpy(address.sun_path, path.constData(), sizeof address.sun_path);
        // NOLINTNEXTLINE(cppcoreguidelines-pro-type-reinterpret-cast): as the system takes it
        const auto* const general = reinterpret_cast<const sockaddr*>(&address);
        m_isBound = ::bind(m_socket, general, sizeof address) == 0;
        qputenv("NOTIFY_SOCKET", path);
    }
    ~Manager() { ::close(m_socket); }
    Q_DISABLE_COPY(Manager)

    bool isBound() const { return m_isBound; }
    /// The next that was said; empty for nothing.
    QByteArray heard() const
    {
        char words[1000];
        const ssize_t length = ::recv(m_socket, words, sizeof words, 0);
        return length < 0 ? QByteArray() : QByteArray(words, static_cast<int>(length));
    }

private:
    QTemporaryDir m_folder;
    int m_socket = -1;
    bool m_isBound = false;
};

} // namespace

void tst_ServiceManager::cleanup()
{
    for (const char* const name : {"NOTIFY_SOCKET", "WATCHDOG_USEC", "WATCHDOG_PID"}) {
        qunsetenv(name);
    }
}

void tst_ServiceManager::hearsHowThePlayerIs()
{
    const Manager manager;
    QVERIFY(manager.isBound());
    const ServiceManager service;
    QVERIFY(manager.heard().isEmpty());
    service.tellReady();
    QCOMPARE(manager.heard(), QByteArray("READY=1"));
    service.tellStatus(QStringLiteral("plays \"大厅\""));
    QCOMPARE(manager.heard(), QByteArray("STATUS=plays \"大厅\""));
    service.tellStopping();
    QCOMPARE(manager.heard(), QByteArray("STOPPING=1"));
}

void tst_ServiceManager::hearsThatItIsAlive()
{
    const Manager manager;
    qputenv("WATCHDOG_USEC", "200000");
    qputenv("WATCHDOG_PID", QByteArray::number(QCoreApplication::applicationPid()));
    const ServiceManager service;
    QElapsedTimer timer;
    timer.start();
    int signs = 0;
    const auto hear = [&] {
        for (QByteArray said = manager.heard(); !said.isEmpty(); said = manager.heard()) {
            signs += said == "WATCHDOG=1" ? 1 : 1000;
        }
        return signs;
    };
    QTRY_VERIFY_WITH_TIMEOUT(hear() >= 3, 5000);
    QVERIFY(signs < 1000);
    QVERIFY(timer.elapsed() >= 100);
}

void tst_ServiceManager::hearsNothingUnasked()
{
    const Manager manager;
    // Asked of another process, of which this one is a child.
    qputenv("WATCHDOG_USEC", "20000");
    qputenv("WATCHDOG_PID", "1");
    const ServiceManager service;
    QTimer pause;
    pause.setSingleShot(true);
    QSignalSpy over(&pause, &QTimer::timeout);
    pause.start(100);
    QVERIFY(over.wait());
    QVERIFY(manager.heard().isEmpty());
}

TREL_TEST(tst_ServiceManager, QCoreApplication)
#include "tst_ServiceManager.moc"
