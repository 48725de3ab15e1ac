#include "Player.h"
#include "PlayerScreen.h"
#include "PlayerStart.h"
#include "support/TestProgram.h"

#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

using trel::player::AsRunPlace;
using trel::player::PlayerOptions;
using trel::player::PlayerStart;

/// In which order a player comes up.
class tst_PlayerStart : public QObject
{
    Q_OBJECT

private slots:
    void isThereAtOnce();
    void showsNothingWhereTheScreenIsTaken();
    void isThereWhileTheLockHangs();
    void playsFromItsMirrorWithoutAServer();

private:
    static AsRunPlace placeOf(const QTemporaryDir& folder)
    {
        return {folder.filePath(QStringLiteral("a.db")), QStringLiteral("lobby"),
                folder.filePath(QStringLiteral("spool"))};
    }
    static PlayerOptions options()
    {
        PlayerOptions options;
        options.screen = QStringLiteral("lobby");
        options.inWindow = true;
        options.isMute = true;
        return options;
    }
};

void tst_PlayerStart::isThereAtOnce()
{
    const QTemporaryDir folder;
    const PlayerStart start(options(), placeOf(folder));
    QVERIFY(start.screen() != nullptr);
    QVERIFY(start.screen()->window().isVisible());
    QTRY_VERIFY(start.player() != nullptr);
}

void tst_PlayerStart::showsNothingWhereTheScreenIsTaken()
{
    const QTemporaryDir folder;
    const PlayerStart first(options(), placeOf(folder));
    QTRY_VERIFY(first.player() != nullptr);
    const PlayerStart second(options(), placeOf(folder));
    QSignalSpy refused(&second, &PlayerStart::refused);
    QTRY_COMPARE(refused.count(), 1);
    QVERIFY(second.screen() == nullptr);
    QVERIFY(second.player() == nullptr);
    QVERIFY(refused.first().first().toString().contains(QStringLiteral("\"lobby\"")));
}

void tst_PlayerStart::isThereWhileTheLockHangs()
{
    const QTemporaryDir folder;
    QVERIFY(QDir(folder.path()).mkdir(QStringLiteral("a.db-screens")));
    // Reading it hangs until the other end is opened, as on a disk that does not answer.
    const QByteArray lock =
        QFile::encodeName(folder.filePath(QStringLiteral("a.db-screens/lobby.lock")));
    QCOMPARE(::mkfifo(lock.constData(), 0600), 0);
    const PlayerStart start(options(), placeOf(folder));
    QVERIFY(start.screen() != nullptr);
    QVERIFY(start.screen()->window().isVisible());
    QTest::qWait(200); // during which it could begin
    QVERIFY(start.player() == nullptr);
    // What it reads then says nothing, and is in the way no more.
    const int end = ::open(lock.constData(), O_WRONLY | O_NONBLOCK);
    QVERIFY(end >= 0);
    ::unlink(lock.constData());
    ::close(end);
    QTRY_VERIFY(start.player() != nullptr);
}

void tst_PlayerStart::playsFromItsMirrorWithoutAServer()
{
    const QTemporaryDir folder;
    PlayerOptions address = options();
    // Nobody listens there.
    address.database = QStringLiteral("postgresql://lobby@127.0.0.1:1/schedules?schedule=hall");
    AsRunPlace place = placeOf(folder);
    place.store = folder.filePath(QStringLiteral("mirrors/hall/mirror.db"));
    {
        const PlayerStart start(address, place);
        QTRY_VERIFY(start.player() != nullptr);
        QTRY_VERIFY(QFile::exists(place.store));
        // It tells of itself beside its mirror.
        QTRY_VERIFY(
            QFile::exists(folder.filePath(QStringLiteral("mirrors/hall/mirror.db-screens"))));
    }
    QVERIFY(QFile::exists(place.store));
}

TREL_TEST(tst_PlayerStart, QGuiApplication)
#include "tst_PlayerStart.moc"
