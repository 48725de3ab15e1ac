#include "support/TestProgram.h"
#include "system/ScreenLock.h"

#include <QCoreApplication>
#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

#include <csignal>

#include <sys/wait.h>
#include <unistd.h>

using trel::player::ScreenLock;

class tst_ScreenLock : public QObject
{
    Q_OBJECT

private slots:
    void oneAtATime();
    void eachScreenAndEachStore();
    void aPlayerThatWasKilledKeepsNobodyAway();
    void aNumberThatIsUsedAgainKeepsNobodyAway_data();
    void aNumberThatIsUsedAgainKeepsNobodyAway();
    void aPlayerThatLivesIsBelievedWithoutItsFile();
    void theFileOfAnotherMachineIsBelieved();
    void aPowerCutKeepsNobodyAway();
    void aFileThatIsHeldIsNotTakenForALeftOne();
    void whereTheFolderCannotBeWritten();
};

namespace {

const QString kLobby = QStringLiteral("lobby");

/// The file of a player that has gone.
struct Left
{
    Left() { const ScreenLock lock(store, kLobby); }

    /// Without the numbers of machine and boot, which not every machine has.
    void write(qint64 process, const QString& machine) const
    {
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(QStringLiteral("%1\n%2\n%3\n")
                       .arg(QString::number(process), QCoreApplication::applicationName(), machine)
                       .toUtf8());
    }

    QTemporaryDir folder;
    QString store = folder.filePath(QStringLiteral("a.db"));
    QString path = folder.filePath(QStringLiteral("a.db-screens/lobby.lock"));
};

} // namespace

void tst_ScreenLock::oneAtATime()
{
    const QTemporaryDir folder;
    const QString store = folder.filePath(QStringLiteral("a.db"));
    {
        const ScreenLock first(store, kLobby);
        QVERIFY(first.isTaken());
        const ScreenLock second(store, kLobby);
        QVERIFY(!second.isTaken());
        const QString refusal = second.refusal();
        QVERIFY2(refusal.contains(QStringLiteral("\"lobby\"")), qPrintable(refusal));
        QVERIFY2(refusal.contains(QStringLiteral("process %1 on %2.")
                                      .arg(QCoreApplication::applicationPid())
                                      .arg(QSysInfo::machineHostName())),
                 qPrintable(refusal));
    }
    QVERIFY(ScreenLock(store, kLobby).isTaken());
}

void tst_ScreenLock::eachScreenAndEachStore()
{
    const QTemporaryDir folder;
    const ScreenLock lobby(folder.filePath(QStringLiteral("a.db")), kLobby);
    const ScreenLock bar(folder.filePath(QStringLiteral("a.db")), QStringLiteral("bar"));
    const ScreenLock other(folder.filePath(QStringLiteral("b.db")), kLobby);
    QVERIFY(lobby.isTaken() && bar.isTaken() && other.isTaken());
}

void tst_ScreenLock::aPlayerThatWasKilledKeepsNobodyAway()
{
    const QTemporaryDir folder;
    const QString store = folder.filePath(QStringLiteral("a.db"));
    QByteArray left;
    const QString path = folder.filePath(QStringLiteral("a.db-screens/lobby.lock"));
    {
        const ScreenLock first(store, kLobby);
        QFile file(path);
        QVERIFY(file.open(QIODevice::ReadOnly));
        left = file.readAll();
    }
    // The file as a process leaves it that is no more: of a number that no process has.
    QProcess process;
    process.start(QStringLiteral("true"), {});
    QVERIFY(process.waitForStarted());
    const QByteArray number = QByteArray::number(process.processId());
    QVERIFY(process.waitForFinished());
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(
        left.replace(QByteArray::number(QCoreApplication::applicationPid()) + '\n', number + '\n'));
    file.close();
    QVERIFY(ScreenLock(store, kLobby).isTaken());
}

void tst_ScreenLock::aNumberThatIsUsedAgainKeepsNobodyAway_data()
{
    QTest::addColumn<bool>("isItsOwn");
    QTest::newRow("by a process of the same name") << false;
    // As where a player is the only process of a container, and so always the first.
    QTest::newRow("by the player itself") << true;
}

void tst_ScreenLock::aNumberThatIsUsedAgainKeepsNobodyAway()
{
    QFETCH(const bool, isItsOwn);
    const Left left;
    // A child has the name of this process until it runs something else.
    const pid_t child = isItsOwn ? 0 : ::fork();
    if (child == 0 && !isItsOwn) {
        ::alarm(60);
        for (;;) {
            ::pause();
        }
    }
    const qint64 number = isItsOwn ? QCoreApplication::applicationPid() : child;
    left.write(number, QSysInfo::machineHostName());
    QLockFile toolkit(left.path);
    toolkit.setStaleLockTime(0);
    // What the toolkit says by itself.
    QVERIFY(!toolkit.tryLock(0));
    {
        const ScreenLock lock(left.store, kLobby);
        QVERIFY2(lock.isTaken(), qPrintable(lock.refusal()));
        QVERIFY(!ScreenLock(left.store, kLobby).isTaken());
    }
    if (!isItsOwn) {
        ::kill(child, SIGKILL);
        ::waitpid(child, nullptr, 0);
    }
}

void tst_ScreenLock::aPlayerThatLivesIsBelievedWithoutItsFile()
{
    const Left left;
    const ScreenLock first(left.store, kLobby);
    QVERIFY(first.isTaken());
    QVERIFY(QFile::remove(left.path));
    const ScreenLock second(left.store, kLobby);
    QVERIFY(!second.isTaken());
    QCOMPARE(second.refusal(),
             QStringLiteral("Another player shows the screen \"lobby\" of this schedule."));
}

/// Its locks may not be seen here.
void tst_ScreenLock::theFileOfAnotherMachineIsBelieved()
{
    const Left left;
    left.write(QCoreApplication::applicationPid(), QStringLiteral("another-machine"));
    const ScreenLock lock(left.store, kLobby);
    QVERIFY(!lock.isTaken());
    QVERIFY(lock.refusal().contains(QStringLiteral("another-machine")));
}

/// What a machine had written when its power went: nothing, or any part.
void tst_ScreenLock::aPowerCutKeepsNobodyAway()
{
    const QTemporaryDir folder;
    const QString store = folder.filePath(QStringLiteral("a.db"));
    const QString path = folder.filePath(QStringLiteral("a.db-screens/lobby.lock"));
    QByteArray whole;
    {
        const ScreenLock first(store, kLobby);
        QFile file(path);
        QVERIFY(file.open(QIODevice::ReadOnly));
        whole = file.readAll();
    }
    const int line = whole.indexOf('\n');
    for (const int length : {0, 1, line, line + 1, line + 4}) {
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(whole.left(length));
        file.close();
        QVERIFY2(ScreenLock(store, kLobby).isTaken(), qPrintable(QString::number(length)));
    }
    QFile zeros(path);
    QVERIFY(zeros.open(QIODevice::WriteOnly));
    zeros.write(QByteArray(whole.size(), '\0'));
    zeros.close();
    QVERIFY(ScreenLock(store, kLobby).isTaken());
}

void tst_ScreenLock::aFileThatIsHeldIsNotTakenForALeftOne()
{
    const QTemporaryDir folder;
    const QString store = folder.filePath(QStringLiteral("a.db"));
    const ScreenLock first(store, kLobby);
    QVERIFY(first.isTaken());
    // Emptied under the one that holds it.
    QVERIFY(QFile::resize(folder.filePath(QStringLiteral("a.db-screens/lobby.lock")), 0));
    QVERIFY(!ScreenLock(store, kLobby).isTaken());
}

void tst_ScreenLock::whereTheFolderCannotBeWritten()
{
    const QTemporaryDir folder;
    // A file in the place of the folder, which keeps the administrator out as well.
    QFile inTheWay(folder.filePath(QStringLiteral("a.db-screens")));
    QVERIFY(inTheWay.open(QIODevice::WriteOnly));
    const QString store = folder.filePath(QStringLiteral("a.db"));
    const ScreenLock first(store, kLobby);
    QVERIFY(first.isTaken());
    QVERIFY(!ScreenLock(store, kLobby).isTaken());
}

TREL_TEST(tst_ScreenLock, QCoreApplication)
#include "tst_ScreenLock.moc"
