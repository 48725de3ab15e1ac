#include "CtlFixture.h"
#include "support/TestProgram.h"

#include <QCoreApplication>
#include <QJsonArray>
#include <QtTest>

using namespace trel::mediadispatch;

/// The commands now, timeline and why.
class tst_CtlScreen : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void nowTellsWhatPlaysAndWhatComes();
    void nowAsJson();
    void nowWithoutAPlan();
    void momentsAreTakenFromTheClock();
    void misreadMomentsAreMisuse_data();
    void misreadMomentsAreMisuse();
    void timelineOfSpans();
    void timelineOfPlays();
    void timelineAsJson();
    void timelineOverTheNightsOfChange_data();
    void timelineOverTheNightsOfChange();
    void whyNamesTheRules();
    void whyTellsOfAWholeDay();
    void whyAsJson();
    void whyTakesNamesAndParts_data();
    void whyTakesNamesAndParts();
    void whySpeaksOfProgramsThatAreLost();

private:
    CtlResult ask(const QStringList& arguments) const { return m_fixture->onDatabase(arguments); }

    QSharedPointer<CtlFixture> m_fixture;
};

namespace {

const QString kAt = QStringLiteral("--at");
const QString kJson = QStringLiteral("--json");

QStringList split(const char* text)
{
    return QString::fromUtf8(text).split(QLatin1Char(' '));
}

PlayPlan withPrograms(PlayPlan plan, const std::vector<struProgInfo>& programs)
{
    plan.programs = programs;
    return plan;
}

} // namespace

/// Every test has News of a minute and a half, Weather of 45 s and a live source, in a morning and
/// a noon of January.
void tst_CtlScreen::init()
{
    m_fixture = QSharedPointer<CtlFixture>::create();
    m_fixture->writeClip(QStringLiteral("News.wav"), 90000);
    m_fixture->writeClip(QStringLiteral("Weather.wav"), 45000);
    QCOMPARE(m_fixture
                 ->onDatabase({QStringLiteral("import"), QStringLiteral("News.wav"),
                               QStringLiteral("Weather.wav"), QStringLiteral("rtsp://host/live")})
                 .status,
             0);
    const struProgInfo news = {1, false, "News", 1};
    const struProgInfo weather = {2, false, "Weather", 2};
    const struProgInfo live = {3, false, "live", 1};
    PlayPlan noon = withPrograms(timePlan(7, "12:00:00", "13:00:00", "1,2,3,4,5", 3), {live, news});
    noon.endAction = FreezeCurrentFrame;
    m_fixture->store({{1, januaryTask(1, {withPrograms(timePlan(1, "08:00:00", "09:00:00", "", 1),
                                                       {news, weather}),
                                          timePlan(4, "08:30:00", "10:00:00", "3", 2), noon})}});
}

void tst_CtlScreen::nowTellsWhatPlaysAndWhatComes()
{
    // Each run of the morning's list takes three minutes.
    const CtlResult result =
        ask({QStringLiteral("now"), kAt, QStringLiteral("2024-01-03 08:32:20")});
    QCOMPARE(result.status, 0);
    QCOMPARE(result.err, QString());
    QCOMPARE(result.lines(),
             (QStringList{
                 QStringLiteral("Moment        2024-01-03 08:32:20"),
                 QStringLiteral("In effect     nothing; this is what is saved"),
                 QStringLiteral("Screen        plays Weather"),
                 QStringLiteral("Position      0:00:05.000 of 0:00:45.000"),
                 QStringLiteral("Entry         2 of 2, play 2 of 2, run 11"),
                 QStringLiteral("Plan          task 1, row 1, plan 1"),
                 QStringLiteral("Since         08:32:15"),
                 QStringLiteral("Until         08:33:00"),
                 QStringLiteral("Plan until    09:00:00"),
                 QStringLiteral("Why           The first plan that claims this time is task 1, row "
                                "1, plan 1."),
                 QStringLiteral("Next program  08:33:00, News"),
                 QStringLiteral("Next plan     09:00:00, task 1, row 2, plan 4"),
             }));
    // Twenty hours of nothing but one program are passed over.
    const CtlResult live = ask({QStringLiteral("now"), kAt, QStringLiteral("2024-01-05T12:00")});
    QVERIFY(live.lines().contains(QStringLiteral("Next program  2024-01-06 08:00:00, News")));
    QVERIFY(live.lines().contains(QStringLiteral("Position      0:00:00.000")));
}

void tst_CtlScreen::nowAsJson()
{
    const CtlResult result =
        ask({QStringLiteral("now"), kJson, kAt, QStringLiteral("2024-01-03 08:32:20")});
    QCOMPARE(result.status, 0);
    const QJsonObject json = result.json();
    QCOMPARE(json.keys(), split("database effect moment nextPlan nextProgram now"));
    QCOMPARE(json[QStringLiteral("moment")].toString(),
             QStringLiteral("2024-01-03T08:32:20.000+01:00"));
    const QJsonObject now = json[QStringLiteral("now")].toObject();
    const QJsonObject expected = {
        {QStringLiteral("screen"), QStringLiteral("playing")},
        {QStringLiteral("reason"), QStringLiteral("planPlays")},
        {QStringLiteral("why"),
         QStringLiteral("The first plan that claims this time is task 1, row 1, plan 1.")},
        {QStringLiteral("task"), 1},
        {QStringLiteral("row"), 1},
        {QStringLiteral("plan"), 1},
        {QStringLiteral("entry"), 2},
        {QStringLiteral("program"), 2},
        {QStringLiteral("name"), QStringLiteral("Weather")},
        {QStringLiteral("play"), 2},
        {QStringLiteral("run"), 11},
        {QStringLiteral("positionMs"), 5000},
        {QStringLiteral("lengthMs"), 45000},
        {QStringLiteral("since"), QStringLiteral("2024-01-03T08:32:15.000+01:00")},
        {QStringLiteral("until"), QStringLiteral("2024-01-03T08:33:00.000+01:00")},
        {QStringLiteral("planUntil"), QStringLiteral("2024-01-03T09:00:00.000+01:00")},
    };
    QCOMPARE(now, expected);
    QCOMPARE(json[QStringLiteral("nextProgram")].toObject()[QStringLiteral("name")].toString(),
             QStringLiteral("News"));
    QCOMPARE(json[QStringLiteral("nextPlan")].toObject()[QStringLiteral("plan")].toInt(), 4);
}

void tst_CtlScreen::nowWithoutAPlan()
{
    QCOMPARE(ask({QStringLiteral("now"), kAt, QStringLiteral("2023-12-31 12:00")}).lines(),
             (QStringList{
                 QStringLiteral("Moment        2023-12-31 12:00:00"),
                 QStringLiteral("In effect     nothing; this is what is saved"),
                 QStringLiteral("Screen        black screen"),
                 QStringLiteral("Until         2024-01-01 08:00:00"),
                 QStringLiteral("Why           No plan has started yet."),
                 QStringLiteral("Next program  2024-01-01 08:00:00, News"),
                 QStringLiteral("Next plan     2024-01-01 08:00:00, task 1, row 1, plan 1"),
             }));
    QCOMPARE(ask({QStringLiteral("now"), kAt, QStringLiteral("2024-01-31 14:00")}).lines(),
             (QStringList{
                 QStringLiteral("Moment        2024-01-31 14:00:00"),
                 QStringLiteral("In effect     nothing; this is what is saved"),
                 QStringLiteral("Screen        last frame of rtsp://host/live"),
                 QStringLiteral("Plan          task 1, row 3, plan 7"),
                 QStringLiteral("Since         13:00:00"),
                 QStringLiteral("Until         further notice"),
                 QStringLiteral("Why           No plan claims this time; the last one, task 1, row "
                                "3, plan 7, left the last frame of rtsp://host/live."),
                 QStringLiteral("Next program  none"),
                 QStringLiteral("Next plan     none"),
             }));
    const QJsonObject last =
        ask({QStringLiteral("now"), kJson, kAt, QStringLiteral("2024-01-31 14:00")}).json();
    QVERIFY(last[QStringLiteral("nextPlan")].isNull());
    QVERIFY(last[QStringLiteral("now")].toObject()[QStringLiteral("until")].isNull());
}

void tst_CtlScreen::momentsAreTakenFromTheClock()
{
    const qint64 before = QDateTime::currentMSecsSinceEpoch();
    const QJsonObject now = ask({QStringLiteral("now"), kJson}).json();
    const QDateTime moment =
        QDateTime::fromString(now[QStringLiteral("moment")].toString(), Qt::ISODateWithMs);
    QVERIFY(moment.toMSecsSinceEpoch() >= before);
    QVERIFY(moment.toMSecsSinceEpoch() <= QDateTime::currentMSecsSinceEpoch());
}

void tst_CtlScreen::misreadMomentsAreMisuse_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("sentence");
    QTest::newRow("now") << split("now --at 2024-01-32T08:00")
                         << QStringLiteral("\"2024-01-32T08:00\" is no moment: at character 9 "
                                           "there should be a day from 01 to 31.");
    QTest::newRow("a date alone") << split("now --at 2024-01-31")
                                  << QStringLiteral("\"2024-01-31\" is no moment: at character 11 "
                                                    "there should be a blank or \"T\" and a time "
                                                    "of day.");
    QTest::newRow("from") << split("timeline --from soon --to 2024-01-02")
                          << QStringLiteral("\"soon\" is no moment: at character 1 there should be "
                                            "a year from 0001 to 9999.");
    QTest::newRow("percent signs")
        << split("now --at %2%3")
        << QStringLiteral("\"%2%3\" is no moment: at character 1 there should be a year from 0001 "
                          "to 9999.");
    QTest::newRow("to before from")
        << split("timeline --from 2024-01-02 --to 2024-01-02")
        << QStringLiteral("The moment of \"--to\", 2024-01-02 00:00:00, does not lie behind that "
                          "of \"--from\", 2024-01-02 00:00:00.");
}

void tst_CtlScreen::misreadMomentsAreMisuse()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, sentence);
    const CtlResult result = ask(arguments);
    QCOMPARE(result.status, 2);
    QCOMPARE(result.out, QByteArray());
    QCOMPARE(result.err, QStringLiteral("schedulectl: %1\n").arg(sentence));
}

void tst_CtlScreen::timelineOfSpans()
{
    const CtlResult result = ask(split("timeline --from 2024-01-03 --to 2024-01-04"));
    QCOMPARE(result.status, 0);
    QCOMPARE(result.lines(),
             (QStringList{
                 QStringLiteral("From                 To                    Task    Row   Plan  "
                                "Screen"),
                 QStringLiteral("2024-01-02 13:00:00  2024-01-03 08:00:00      1      3      7  "
                                "last frame of rtsp://host/live"),
                 QStringLiteral("2024-01-03 08:00:00  09:00:00                 1      1      1  "
                                "plays News, Weather \u00d72"),
                 QStringLiteral("2024-01-03 09:00:00  10:00:00                 1      2      4  "
                                "plays Weather"),
                 QStringLiteral("2024-01-03 10:00:00  12:00:00                 1      2      4  "
                                "black screen"),
                 QStringLiteral("2024-01-03 12:00:00  13:00:00                 1      3      7  "
                                "plays rtsp://host/live, News"),
                 QStringLiteral("2024-01-03 13:00:00  2024-01-04 08:00:00      1      3      7  "
                                "last frame of rtsp://host/live"),
             }));
}

void tst_CtlScreen::timelineOfPlays()
{
    const QStringList lines = ask({QStringLiteral("timeline"), QStringLiteral("--plays"),
                                   QStringLiteral("--from"), QStringLiteral("2024-01-03 08:59:30"),
                                   QStringLiteral("--to"), QStringLiteral("2024-01-03 09:00:45")})
                                  .lines();
    QCOMPARE(lines,
             (QStringList{
                 QStringLiteral("From                     To                        Task    Row   "
                                "Plan  Entry   Play    Run  Screen"),
                 QStringLiteral("2024-01-03 08:59:15      09:00:00                     1      1   "
                                "   1      2      2     20  plays Weather"),
                 QStringLiteral("2024-01-03 09:00:00      09:00:45                     1      2   "
                                "   4      1      1     41  plays Weather"),
             }));
}

void tst_CtlScreen::timelineAsJson()
{
    const QJsonObject json = ask(split("timeline --json --from 2024-01-03 --to 2024-01-04")).json();
    QCOMPARE(json.keys(), split("database effect from spans to"));
    QCOMPARE(json[QStringLiteral("to")].toString(),
             QStringLiteral("2024-01-04T00:00:00.000+01:00"));
    QCOMPARE(json[QStringLiteral("spans")].toArray().size(), 6);
    const QJsonObject plays =
        ask(split("timeline --json --plays --from 2024-01-03T08:00 --to 2024-01-03T08:03")).json();
    QStringList names;
    for (const QJsonValue& play : plays[QStringLiteral("plays")].toArray()) {
        names.append(play.toObject()[QStringLiteral("name")].toString());
    }
    QCOMPARE(names, split("News Weather Weather"));
}

void tst_CtlScreen::timelineOverTheNightsOfChange_data()
{
    QTest::addColumn<QString>("from");
    QTest::addColumn<QString>("to");
    QTest::addColumn<QStringList>("spans");
    QTest::addColumn<QString>("remark");
    QTest::newRow("an hour is left out")
        << QStringLiteral("2024-03-31 01:30") << QStringLiteral("2024-03-31 02:30")
        << QStringList{QStringLiteral("2024-03-31 01:15:00 +01:00  03:15:00 +02:00")}
        << QStringLiteral("schedulectl: Local time leaves \"2024-03-31 02:30\" out, since the "
                          "clock is put forward; 2024-03-31 03:00:00 +02:00 was taken.\n");
    QTest::newRow("an hour comes twice")
        << QStringLiteral("2024-10-27 02:16 +02:00") << QStringLiteral("2024-10-27 02:16 +01:00")
        << QStringList{QStringLiteral("2024-10-27 02:15:00 +02:00  02:45:00 +02:00"),
                       QStringLiteral("2024-10-27 02:45:00 +02:00  02:15:00 +01:00"),
                       QStringLiteral("2024-10-27 02:15:00 +01:00  02:45:00 +01:00")}
        << QString();
}

void tst_CtlScreen::timelineOverTheNightsOfChange()
{
    QFETCH(QString, from);
    QFETCH(QString, to);
    QFETCH(QStringList, spans);
    QFETCH(QString, remark);
    PlayTask task = januaryTask(1, {timePlan(1, "01:15:00", "02:00:00", "", 1),
                                    timePlan(2, "02:15:00", "02:45:00", "", 2),
                                    timePlan(3, "03:15:00", "04:00:00", "", 2)});
    task.endDate = "2024.12.31";
    if (spans.size() == 1) {
        // One plan up to the gap and over it, so that nothing but the gap stands between.
        task.plans = {timePlan(1, "01:15:00", "03:15:00", "", 1)};
    }
    m_fixture->store({{1, task}});
    const CtlResult result = ask(
        {QStringLiteral("timeline"), QStringLiteral("--from"), from, QStringLiteral("--to"), to});
    QCOMPARE(result.status, 0);
    QCOMPARE(result.err, remark);
    QStringList got;
    for (const QString& line : result.lines().mid(1)) {
        got.append(line.section(QStringLiteral("   "), 0, 0).trimmed());
    }
    for (QString& line : got) {
        line.truncate(spans.first().size());
    }
    QCOMPARE(got, spans);
}

void tst_CtlScreen::whyNamesTheRules()
{
    const CtlResult result = ask({QStringLiteral("why"), QStringLiteral("Weather"), kAt,
                                  QStringLiteral("2024-01-03 08:31:00")});
    QCOMPARE(result.status, 0);
    QCOMPARE(result.err, QString());
    QCOMPARE(
        result.lines(),
        (QStringList{
            QStringLiteral("Program 2, Weather, does not play at 2024-01-03 08:31:00."),
            QStringLiteral("  task 1, row 1, plan 1: It is not its turn: entry 1, News, plays. "
                           "Its next turn is at 08:31:30."),
            QStringLiteral("  task 1, row 2, plan 4: An earlier row claims this time too and "
                           "takes precedence: task 1, row 1, plan 1."),
            QStringLiteral("On screen instead: plays News until 08:31:30. The first plan that "
                           "claims this time is task 1, row 1, plan 1."),
        }));
    QCOMPARE(
        ask({QStringLiteral("why"), QStringLiteral("1"), kAt,
             QStringLiteral("2024-01-06 12:31:00")})
            .lines(),
        (QStringList{
            QStringLiteral("Program 1, News, does not play at 2024-01-06 12:31:00."),
            QStringLiteral("  task 1, row 1, plan 1: The plan's span, 08:00:00 \u2013 "
                           "09:00:00, is over for the day."),
            QStringLiteral("  task 1, row 3, plan 7: The plan does not run on Sat, only on "
                           "Mon,Tue,Wed,Thu,Fri."),
            QStringLiteral("On screen instead: black screen until 2024-01-07 08:00:00. No plan "
                           "claims this time; the last one, task 1, row 1, plan 1, left a "
                           "black screen."),
        }));
    QVERIFY(ask({QStringLiteral("why"), QStringLiteral("News"), kAt,
                 QStringLiteral("2024-01-03 12:31:00")})
                .text()
                .contains(QStringLiteral(
                    "plan 7: Entry 2 is never reached: entry 1, rtsp://host/live, has no "
                    "length of its own and holds the screen until 13:00:00.")));
}

void tst_CtlScreen::whyTellsOfAWholeDay()
{
    const auto why = [](const char* program, const char* date) {
        return QStringList{QStringLiteral("why"), QLatin1String(program), kAt, QLatin1String(date)};
    };
    const CtlResult news = ask(why("News", "2024-01-03"));
    QCOMPARE(news.status, 0);
    QCOMPARE(news.err, QString());
    QCOMPARE(news.lines(),
             (QStringList{
                 QStringLiteral("Program 1, News, is on screen on 2024-01-03:"),
                 QStringLiteral("  08:00:00 \u2013 08:58:30, 20 plays: task 1, row 1, plan 1"),
                 QStringLiteral("It is not shown by:"),
                 QStringLiteral("  task 1, row 3, plan 7, at 12:00:00: Entry 2 is never reached: "
                                "entry 1, rtsp://host/live, has no length of its own and holds the "
                                "screen until 13:00:00."),
             }));
    QCOMPARE(ask(why("Weather", "2024-01-03")).lines(),
             (QStringList{
                 QStringLiteral("Program 2, Weather, is on screen on 2024-01-03:"),
                 QStringLiteral("  08:01:30 \u2013 09:00:00, 40 plays: task 1, row 1, plan 1"),
                 QStringLiteral("  09:00:00 \u2013 10:00:00, 80 plays: task 1, row 2, plan 4"),
             }));
    QCOMPARE(ask(why("rtsp", "2024-01-06")).lines(),
             (QStringList{
                 QStringLiteral("Program 3, rtsp://host/live, is not on screen on 2024-01-06."),
                 QStringLiteral("It is not shown by:"),
                 QStringLiteral("  task 1, row 3, plan 7: The plan does not run on Sat, only on "
                                "Mon,Tue,Wed,Thu,Fri."),
             }));
    const QJsonObject json = ask(why("News", "2024-01-03") << kJson).json();
    QCOMPARE(json[QStringLiteral("date")].toString(), QStringLiteral("2024-01-03"));
    QCOMPARE(json[QStringLiteral("onScreen")].toArray().size(), 1);
    QCOMPARE(json[QStringLiteral("onScreen")][0][QStringLiteral("plays")].toInt(), 20);
    QCOMPARE(json[QStringLiteral("plans")][0][QStringLiteral("rule")].toString(),
             QStringLiteral("neverReached"));
}

void tst_CtlScreen::whyAsJson()
{
    const QJsonObject json = ask({QStringLiteral("why"), QStringLiteral("News"), kJson, kAt,
                                  QStringLiteral("2024-01-03 08:31:00")})
                                 .json();
    QCOMPARE(json.keys(), split("database effect moment now plans plays program"));
    QCOMPARE(json[QStringLiteral("plays")], QJsonValue(true));
    const QJsonArray plans = json[QStringLiteral("plans")].toArray();
    QCOMPARE(plans.size(), 2);
    QCOMPARE(plans[0].toObject()[QStringLiteral("rule")].toString(), QStringLiteral("plays"));
    QCOMPARE(plans[1].toObject(), (QJsonObject{
                                      {QStringLiteral("rule"), QStringLiteral("notYet")},
                                      {QStringLiteral("why"),
                                       QStringLiteral("The plan's span, 12:00:00 \u2013 13:00:00, "
                                                      "is still to come that day.")},
                                      {QStringLiteral("isInsertion"), false},
                                      {QStringLiteral("task"), 1},
                                      {QStringLiteral("row"), 3},
                                      {QStringLiteral("plan"), 7},
                                      {QStringLiteral("startTime"), QStringLiteral("12:00:00")},
                                      {QStringLiteral("endTime"), QStringLiteral("13:00:00")},
                                      {QStringLiteral("entry"), 2},
                                      {QStringLiteral("otherTask"), QJsonValue::Null},
                                      {QStringLiteral("otherRow"), QJsonValue::Null},
                                      {QStringLiteral("otherPlan"), QJsonValue::Null},
                                      {QStringLiteral("otherEntry"), QJsonValue::Null},
                                      {QStringLiteral("nextTurn"), QJsonValue::Null},
                                  }));
}

void tst_CtlScreen::whyTakesNamesAndParts_data()
{
    QTest::addColumn<QString>("word");
    QTest::addColumn<int>("status");
    QTest::addColumn<QString>("said");
    QTest::newRow("index") << QStringLiteral("2") << 0 << QStringLiteral("Program 2, Weather, ");
    QTest::newRow("name") << QStringLiteral("News") << 0 << QStringLiteral("Program 1, News, ");
    QTest::newRow("part") << QStringLiteral("EATH") << 0 << QStringLiteral("Program 2, Weather, ");
    QTest::newRow("nothing") << QStringLiteral("Sports") << 1
                             << QStringLiteral("schedulectl: There is no program \"Sports\" in ");
    QTest::newRow("no such index") << QStringLiteral("99") << 1
                                   << QStringLiteral("schedulectl: There is no program \"99\" in ");
    QTest::newRow("several") << QStringLiteral("E") << 1
                             << QStringLiteral("schedulectl: Several programs are called \"E\"; "
                                               "an index tells them apart:\n      1  News\n"
                                               "      2  Weather\n      3  rtsp://host/live\n");
}

void tst_CtlScreen::whyTakesNamesAndParts()
{
    QFETCH(QString, word);
    QFETCH(int, status);
    QFETCH(QString, said);
    const CtlResult result =
        ask({QStringLiteral("why"), word, kAt, QStringLiteral("2024-01-03 08:31")});
    QCOMPARE(result.status, status);
    const QString text = status == 0 ? result.text() : result.err;
    QVERIFY2(text.startsWith(said), qPrintable(text));
}

void tst_CtlScreen::whySpeaksOfProgramsThatAreLost()
{
    QVERIFY(QFile::remove(m_fixture->path(QStringLiteral("News.wav"))));
    const CtlResult gone = ask(
        {QStringLiteral("why"), QStringLiteral("News"), kAt, QStringLiteral("2024-01-03 08:31")});
    QCOMPARE(gone.status, 0);
    QCOMPARE(
        gone.lines()[1],
        QStringLiteral("Its file is gone: %1").arg(m_fixture->path(QStringLiteral("News.wav"))));
    QCOMPARE(gone.lines()[2], QStringLiteral("  task 1, row 1, plan 1: The file of the program is "
                                             "gone."));
    QCOMPARE(ask(split("remove-program 2")).status, 0);
    for (const char* word : {"2", "Weather", "weath"}) {
        const QStringList lines = ask({QStringLiteral("why"), QLatin1String(word), kAt,
                                       QStringLiteral("2024-01-03 09:31")})
                                      .lines();
        QCOMPARE(lines[1], QStringLiteral("It is no longer in the catalog."));
        QCOMPARE(lines[3], QStringLiteral("  task 1, row 2, plan 4: Entry 1 has gone bad."));
    }
    // A program that is in no plan is one all the same.
    m_fixture->store({});
    QCOMPARE(
        ask({QStringLiteral("why"), QStringLiteral("2"), kAt, QStringLiteral("08:31")}).lines()[2],
        QStringLiteral("It is not in any plan."));
}

TREL_TEST(tst_CtlScreen, QCoreApplication)
#include "tst_CtlScreen.moc"
