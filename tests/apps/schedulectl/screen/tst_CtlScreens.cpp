#include "CtlFixture.h"
#include "support/TestProgram.h"
#include "trelprogramschedule/screens/PlayerStatusFolder.h"

#include <QDateTime>
#include <QJsonArray>
#include <QtTest>

using namespace trel::mediadispatch;

/// The list of players that follow a store.
class tst_CtlScreens : public QObject
{
    Q_OBJECT

private slots:
    void noPlayer();
    void onAirAndSilent();
    void faultsAreToldInPlainText();
    void aStillPictureIsToldFromNone();
    void forMachines();
    void aBlackScreenWithoutFaults();
    void needsADatabase();
};

namespace {

PlayerStatus statusOf(const char* screen, int secondsAgo)
{
    PlayerStatus status;
    status.screen = QLatin1String(screen);
    status.player = QStringLiteral("schedule-player 17@lobby");
    status.heard = QDateTime::currentMSecsSinceEpoch() - secondsAgo * 1000;
    status.started = status.heard - 60000;
    status.shown.picture = ScreenPicture::Playing;
    status.shown.reason = ScreenReason::PlanPlays;
    status.shown.taskId = 1;
    status.shown.planId = 2;
    status.shown.planRow = 0;
    status.shown.entry = 1;
    status.shown.progIndex = 3;
    status.shown.play = 0;
    status.shown.run = 0;
    status.program = QStringLiteral("Weather");
    status.switches = 12;
    status.medianLateness = 0.24;
    status.worstLateness = 4.0;
    return status;
}

/// A database with a schedule, and the folder beside it.
class Fixture : public CtlFixture
{
public:
    Fixture() { store({}); }

    void tell(const PlayerStatus& status) const
    {
        QVERIFY(!PlayerStatusFolder(database()).write(status));
    }
    CtlResult screens(const QStringList& options = {}) const
    {
        return onDatabase(QStringList(QStringLiteral("screens")) + options);
    }
};

} // namespace

void tst_CtlScreens::noPlayer()
{
    const Fixture fixture;
    const CtlResult result = fixture.screens();
    QCOMPARE(result.status, 0);
    QCOMPARE(result.text(), QStringLiteral("No player follows this database.\n"));
}

void tst_CtlScreens::onAirAndSilent()
{
    const Fixture fixture;
    fixture.tell(statusOf("lobby", 5));
    PlayerStatus frozen = statusOf("bar", 3600);
    frozen.shown.picture = ScreenPicture::Frozen;
    frozen.switches = 0;
    fixture.tell(frozen);
    const QStringList lines = fixture.screens().lines();
    QCOMPARE(lines.size(), 3);
    QVERIFY2(lines[1].startsWith(QStringLiteral("bar     last frame of Weather  not since ")),
             qPrintable(lines[1]));
    QVERIFY2(lines[1].endsWith(QStringLiteral(" 0  -             none")), qPrintable(lines[1]));
    QVERIFY2(lines[2].startsWith(QStringLiteral("lobby   plays Weather ")), qPrintable(lines[2]));
    QVERIFY2(!lines[2].contains(QStringLiteral("not since")), qPrintable(lines[2]));
    QVERIFY2(lines[2].endsWith(QStringLiteral("12  0.2 / 4.0 ms  none")), qPrintable(lines[2]));
}

void tst_CtlScreens::faultsAreToldInPlainText()
{
    const Fixture fixture;
    PlayerStatus status = statusOf("lobby", 5);
    status.isStandIn = true;
    status.faults = 3;
    status.lastFault = QStringLiteral("It \x1b[31mstalled.");
    status.lastFaultAt = status.heard;
    status.program = QStringLiteral("Wea\u202ether");
    fixture.tell(status);
    const QString text = fixture.screens().text();
    QVERIFY2(text.contains(QStringLiteral("has no picture for: plays Wea")), qPrintable(text));
    QVERIFY2(text.contains(QStringLiteral("3, the last at ")), qPrintable(text));
    QVERIFY(!text.contains(QChar(0x1b)));
    QVERIFY(!text.contains(QChar(0x202e)));
}

void tst_CtlScreens::aStillPictureIsToldFromNone()
{
    const Fixture fixture;
    PlayerStatus status = statusOf("lobby", 5);
    const auto lastPicture = [&fixture] {
        const QJsonObject json = fixture.screens({QStringLiteral("--json")}).json();
        return json.value(QLatin1String("screens"))
            .toArray()
            .first()
            .toObject()
            .value(QLatin1String("lastPicture"));
    };
    status.isStandIn = true;
    fixture.tell(status);
    QCOMPARE(lastPicture(), QJsonValue(false));
    status.keepsLastPicture = true;
    fixture.tell(status);
    QCOMPARE(lastPicture(), QJsonValue(true));
    const QString text = fixture.screens().text();
    QVERIFY2(text.contains(QStringLiteral("stands still in: plays Weather")), qPrintable(text));
}

void tst_CtlScreens::forMachines()
{
    const Fixture fixture;
    PlayerStatus status = statusOf("lobby", 40);
    status.faults = 1;
    status.lastFault = QStringLiteral("It stalled.");
    status.lastFaultAt = status.heard;
    fixture.tell(status);
    const QJsonArray screens = fixture.screens({QStringLiteral("--json")})
                                   .json()
                                   .value(QLatin1String("screens"))
                                   .toArray();
    QCOMPARE(screens.size(), 1);
    const QJsonObject screen = screens.first().toObject();
    QCOMPARE(screen.value(QLatin1String("screen")).toString(), QStringLiteral("lobby"));
    QCOMPARE(screen.value(QLatin1String("silent")).toBool(), true);
    QCOMPARE(screen.value(QLatin1String("switches")).toInt(), 12);
    QCOMPARE(screen.value(QLatin1String("worstLatenessMs")).toDouble(), 4.0);
    QCOMPARE(screen.value(QLatin1String("lastFault")).toString(), QStringLiteral("It stalled."));
    const QDateTime heard =
        QDateTime::fromString(screen.value(QLatin1String("heard")).toString(), Qt::ISODateWithMs);
    QCOMPARE(heard.toMSecsSinceEpoch(), status.heard);
    const QJsonObject shows = screen.value(QLatin1String("shows")).toObject();
    QCOMPARE(shows.value(QLatin1String("screen")).toString(), QStringLiteral("playing"));
    QCOMPARE(shows.value(QLatin1String("name")).toString(), QStringLiteral("Weather"));
    QCOMPARE(shows.value(QLatin1String("entry")).toInt(), 2);
}

void tst_CtlScreens::aBlackScreenWithoutFaults()
{
    const Fixture fixture;
    PlayerStatus status = statusOf("lobby", 5);
    status.shown = ScreenState();
    status.program.clear();
    fixture.tell(status);
    const QStringList lines = fixture.screens().lines();
    QVERIFY2(lines.last().startsWith(QStringLiteral("lobby   black screen  ")),
             qPrintable(lines.last()));
    const QJsonObject screen = fixture.screens({QStringLiteral("--json")})
                                   .json()
                                   .value(QLatin1String("screens"))
                                   .toArray()
                                   .first()
                                   .toObject();
    QVERIFY(screen.value(QLatin1String("lastFault")).isNull());
    QVERIFY(screen.value(QLatin1String("lastFaultAt")).isNull());
    const QJsonObject shows = screen.value(QLatin1String("shows")).toObject();
    QVERIFY(shows.value(QLatin1String("name")).isNull());
    QVERIFY(shows.value(QLatin1String("until")).isNull());
}

void tst_CtlScreens::needsADatabase()
{
    const CtlFixture fixture;
    const CtlResult result = fixture.onDatabase({QStringLiteral("screens")});
    QCOMPARE(result.status, 1);
    QVERIFY(result.out.isEmpty());
    QVERIFY(fixture.files().isEmpty());
}

TREL_TEST(tst_CtlScreens, QCoreApplication)
#include "tst_CtlScreens.moc"
