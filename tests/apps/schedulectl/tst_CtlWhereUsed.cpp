#include "CtlFixture.h"
#include "support/TestProgram.h"

#include <QCoreApplication>
#include <QJsonArray>
#include <QtTest>

using namespace trel::mediadispatch;

namespace {

const QString kAt = QStringLiteral("--at");

PlayPlan plan(int id, const char* start, const char* end, const std::vector<struProgInfo>& entries)
{
    PlayPlan plan = timePlan(id, start, end, "1,3", entries.front().progIndex);
    plan.programs = entries;
    return plan;
}

} // namespace

/// The command where-used.
class tst_CtlWhereUsed : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void plansAndTheNextTimeAreListed();
    void aProgramOnScreenIsToldAsSuch();
    void aProgramInNoPlan();
    void whatIsRemovedPlaysNowhere();
    void theSavedPlansAreListedAndTheScreenInEffect();
    void asJson();
    void wordsThatNameNoProgramAreRefused();

private:
    CtlResult ask(const QStringList& arguments) const
    {
        return m_fixture->onDatabase(QStringList{QStringLiteral("where-used")} + arguments);
    }

    QSharedPointer<CtlFixture> m_fixture;
};

void tst_CtlWhereUsed::init()
{
    m_fixture = QSharedPointer<CtlFixture>::create();
    for (const char* name : {"News.wav", "Weather.wav", "Spare.wav"}) {
        m_fixture->writeClip(QLatin1String(name), 60000);
    }
    QCOMPARE(m_fixture
                 ->onDatabase({QStringLiteral("import"), QStringLiteral("News.wav"),
                               QStringLiteral("Weather.wav"), QStringLiteral("Spare.wav")})
                 .status,
             0);
    const struProgInfo news = {1, false, "News", 1};
    const struProgInfo weather = {2, false, "Weather", 1};
    PlayTask february = januaryTask(2, {plan(5, "20:00:00", "21:00:00", {news})});
    february.startDate = "2024.02.01";
    february.endDate = "2024.02.29";
    m_fixture->store({{1, januaryTask(1, {plan(3, "08:00:00", "09:00:00", {weather}),
                                          plan(4, "10:00:00", "11:00:00", {news, weather})})},
                      {2, february}});
}

void tst_CtlWhereUsed::plansAndTheNextTimeAreListed()
{
    const CtlResult result = ask({QStringLiteral("news"), kAt, QStringLiteral("2024-01-04 12:00")});
    QCOMPARE(result.status, 0);
    QCOMPARE(result.err, QString());
    QCOMPARE(
        result.lines(),
        (QStringList{
            QStringLiteral("Program 1, News, is in 2 plans:"),
            QStringLiteral("Task  Valid                    Row  Plan  Days     From      To        "
                           "Besides"),
            QStringLiteral("   1  2024.01.01 – 2024.01.31    2     4  Mon,Wed  10:00:00  11:00:00  "
                           "others"),
            QStringLiteral("   2  2024.02.01 – 2024.02.29    1     5  Mon,Wed  20:00:00  21:00:00  "
                           "nothing else"),
            QStringLiteral("Next on screen at 2024-01-08 10:00:00, by task 1, row 2, plan 4."),
        }));
    const CtlResult late = ask({QStringLiteral("1"), kAt, QStringLiteral("2024-03-01 12:00")});
    QCOMPARE(late.lines().last(), QStringLiteral("It does not come on screen any more."));
}

void tst_CtlWhereUsed::aProgramOnScreenIsToldAsSuch()
{
    const CtlResult result =
        ask({QStringLiteral("Weather"), kAt, QStringLiteral("2024-01-03 10:03:30")});
    QCOMPARE(
        result.lines().last(),
        QStringLiteral("It is on screen since 2024-01-03 10:03:00, by task 1, row 2, plan 4."));
}

void tst_CtlWhereUsed::aProgramInNoPlan()
{
    const CtlResult result = ask({QStringLiteral("Spare")});
    QCOMPARE(result.status, 0);
    QCOMPARE(result.lines(), (QStringList{QStringLiteral("Program 3, Spare, is in no plan."),
                                          QStringLiteral("It never comes on screen.")}));
}

void tst_CtlWhereUsed::whatIsRemovedPlaysNowhere()
{
    QCOMPARE(m_fixture->onDatabase({QStringLiteral("remove-program"), QStringLiteral("1")}).status,
             0);
    const CtlResult result = ask({QStringLiteral("1"), kAt, QStringLiteral("2024-01-04 12:00")});
    QCOMPARE(result.lines().first(), QStringLiteral("Program 1, News, is in no plan."));
}

void tst_CtlWhereUsed::theSavedPlansAreListedAndTheScreenInEffect()
{
    QCOMPARE(m_fixture->onDatabase({QStringLiteral("start")}).status, 0);
    m_fixture->store({});
    const CtlResult result = ask({QStringLiteral("1"), kAt, QStringLiteral("2024-01-04 12:00")});
    QCOMPARE(result.lines(),
             (QStringList{QStringLiteral("Program 1, News, is in no plan."),
                          QStringLiteral("Next on screen at 2024-01-08 10:00:00, by task 1, row 2, "
                                         "plan 4.")}));
    const CtlResult saved = ask(
        {QStringLiteral("1"), QStringLiteral("--saved"), kAt, QStringLiteral("2024-01-04 12:00")});
    QCOMPARE(saved.lines().last(), QStringLiteral("It never comes on screen."));
}

void tst_CtlWhereUsed::asJson()
{
    const QJsonObject json = ask({QStringLiteral("Weather"), QStringLiteral("--json"), kAt,
                                  QStringLiteral("2024-01-04 12:00")})
                                 .json();
    QCOMPARE(json.keys(), (QStringList{QStringLiteral("database"), QStringLiteral("effect"),
                                       QStringLiteral("moment"), QStringLiteral("next"),
                                       QStringLiteral("plans"), QStringLiteral("program")}));
    const QJsonArray plans = json[QStringLiteral("plans")].toArray();
    QCOMPARE(plans.size(), 2);
    const QJsonObject expected{{QStringLiteral("task"), 1},
                               {QStringLiteral("startDate"), QStringLiteral("2024.01.01")},
                               {QStringLiteral("endDate"), QStringLiteral("2024.01.31")},
                               {QStringLiteral("row"), 1},
                               {QStringLiteral("plan"), 3},
                               {QStringLiteral("startTime"), QStringLiteral("08:00:00")},
                               {QStringLiteral("endTime"), QStringLiteral("09:00:00")},
                               {QStringLiteral("playsNothingElse"), true}};
    QCOMPARE(plans[0].toObject(), expected);
    QCOMPARE(plans[1].toObject()[QStringLiteral("playsNothingElse")].toBool(), false);
    QCOMPARE(json[QStringLiteral("next")].toObject()[QStringLiteral("since")].toString(),
             QStringLiteral("2024-01-08T08:00:00.000+01:00"));
    const QJsonObject program = json[QStringLiteral("program")].toObject();
    QCOMPARE(program[QStringLiteral("index")].toInt(), 2);
    QCOMPARE(program[QStringLiteral("name")].toString(), QStringLiteral("Weather"));
    QCOMPARE(program[QStringLiteral("isGone")].toBool(), false);
    const QJsonObject spare = ask({QStringLiteral("Spare"), QStringLiteral("--json")}).json();
    QVERIFY(spare[QStringLiteral("next")].isNull());
    QVERIFY(spare[QStringLiteral("plans")].toArray().isEmpty());
}

void tst_CtlWhereUsed::wordsThatNameNoProgramAreRefused()
{
    const CtlResult result = ask({QStringLiteral("Film")});
    QCOMPARE(result.status, 1);
    QVERIFY(result.err.contains(QStringLiteral("There is no program \"Film\"")));
    QCOMPARE(ask({}).status, 2);
    QCOMPARE(ask({QStringLiteral("1"), kAt, QStringLiteral("soon")}).status, 2);
}

TREL_TEST(tst_CtlWhereUsed, QCoreApplication)
#include "tst_CtlWhereUsed.moc"
