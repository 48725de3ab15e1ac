#include "MirrorPlace.h"
#include "support/TestProgram.h"

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>
#include <QtTest>

using namespace trel::player;

/// Where a player keeps its mirror.
class tst_MirrorPlace : public QObject
{
    Q_OBJECT

private slots:
    void ofANamedFolder();
    void eachScreenAndScheduleHasItsOwn();
    void isAmongTheUsersData();
};

namespace {

const QString kHall = QStringLiteral("postgresql://desk/schedules?schedule=hall");
const QString kFoyer = QStringLiteral("postgresql://desk/schedules?schedule=foyer");
const QString kLobby = QStringLiteral("lobby");

} // namespace

void tst_MirrorPlace::ofANamedFolder()
{
    QCOMPARE(mirrorPath(QStringLiteral("/srv/mirror")), QStringLiteral("/srv/mirror/mirror.db"));
    QCOMPARE(mirrorPath(QStringLiteral("here")),
             QDir::current().absoluteFilePath(QStringLiteral("here/mirror.db")));
}

void tst_MirrorPlace::eachScreenAndScheduleHasItsOwn()
{
    const QString folder = QStringLiteral("/srv");
    const QString path = mirrorPath(folder, kHall, kLobby);
    QCOMPARE(mirrorPath(folder, kHall, kLobby), path);
    QVERIFY(path.startsWith(QStringLiteral("/srv/")));
    QVERIFY(path.endsWith(QStringLiteral("/mirror.db")));
    QVERIFY(mirrorPath(folder, kFoyer, kLobby) != path);
    QVERIFY(mirrorPath(folder, kHall, QStringLiteral("bar")) != path);
    // Not by putting both names together.
    QVERIFY(mirrorPath(folder, kHall + QLatin1Char('l'), QStringLiteral("obby")) != path);
}

void tst_MirrorPlace::isAmongTheUsersData()
{
    QVERIFY(defaultMirrorFolder().startsWith(
        QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation)));
}

TREL_TEST(tst_MirrorPlace, trel::tests::NoApplication)
#include "tst_MirrorPlace.moc"
