#include "CtlFixture.h"
#include "support/TestProgram.h"

#include <QCoreApplication>
#include <QJsonArray>
#include <QtTest>

using namespace trel::mediadispatch;

/// One fact has one wording, whichever command tells it.
class tst_CtlWords : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void aListThatRunsLessThanOnce();
    void aListThatIsOverWithinItsSpan();
    void modesAndEndActionsThatAreNone();
    void timesThatCannotBeRead();
    void periodsThatCannotBeRead_data();
    void periodsThatCannotBeRead();
    void daysThatNeverCome();
    void anUnknownZoneIsAnError_data();
    void anUnknownZoneIsAnError();
    void theEveningThatComesTwice();

private:
    QString text(const QStringList& arguments) const
    {
        return m_fixture->onDatabase(arguments).text();
    }
    QString at(const char* command, const char* time) const
    {
        QStringList arguments = QString::fromLatin1(command).split(QLatin1Char(' '));
        return text(arguments << QStringLiteral("--at")
                              << QStringLiteral("2024-01-03 ") + QLatin1String(time));
    }
    QString timeline() const
    {
        return text({QStringLiteral("timeline"), QStringLiteral("--from"),
                     QStringLiteral("2024-01-03"), QStringLiteral("--to"),
                     QStringLiteral("2024-01-04")});
    }

    QSharedPointer<CtlFixture> m_fixture;
};

namespace {

/// A plan of News whose list runs a number of times, in any mode.
PlayPlan runs(int id, const char* start, const char* end, int mode, int times)
{
    PlayPlan plan = timePlan(id, start, end, "", 1);
    plan.mode = mode;
    plan.times = times;
    return plan;
}

void verifyContains(const QString& text, const char* part)
{
    QVERIFY2(text.contains(QString::fromUtf8(part)), qPrintable(text));
}

/// The zone of the programs that are started meanwhile.
class ZoneOfPrograms
{
public:
    explicit ZoneOfPrograms(const char* zone)
        : m_former(qgetenv("TZ"))
    {
        qputenv("TZ", zone);
    }
    ~ZoneOfPrograms() { qputenv("TZ", m_former); }
    Q_DISABLE_COPY(ZoneOfPrograms)

private:
    QByteArray m_former;
};

} // namespace

/// Every test has the one program News, of ten seconds.
void tst_CtlWords::init()
{
    m_fixture = QSharedPointer<CtlFixture>::create();
    m_fixture->writeClip(QStringLiteral("News.wav"), 10000);
    QCOMPARE(m_fixture->onDatabase({QStringLiteral("import"), QStringLiteral("News.wav")}).status,
             0);
}

void tst_CtlWords::aListThatRunsLessThanOnce()
{
    m_fixture->store({{1, januaryTask(1, {runs(1, "08:00:00", "09:00:00", 7, 0),
                                          runs(2, "10:00:00", "", FrequencyMode, -3)})}});
    const QString shown = text({QStringLiteral("show")});
    QCOMPARE(shown.count(QStringLiteral("less than once")), 2);
    const QString checked = text({QStringLiteral("check")});
    verifyContains(checked, "plan 1, times: Plan 1 never plays: its list is to run less than once");
    verifyContains(checked, "plan 2, times: Plan 2 never plays: its list is to run less than once");
    const QString why = at("why News", "08:30");
    verifyContains(why, "plan 1: Plan 1 never plays: its list is to run less than once.");
    verifyContains(why, "plan 2: Plan 2 never plays: its list is to run less than once.");
    verifyContains(at("now", "08:30"), "row 1, plan 1, but its list is to run less than once.");
    verifyContains(timeline(), "black screen, since its list is to run less than once");
}

void tst_CtlWords::aListThatIsOverWithinItsSpan()
{
    PlayPlan frozen = runs(1, "08:00:00", "09:00:00", 7, 2);
    frozen.endAction = FreezeCurrentFrame;
    m_fixture->store({{1, januaryTask(1, {frozen, runs(2, "10:00:00", "", FrequencyMode, 3)})}});
    const QString spans = timeline();
    verifyContains(spans, "plays News until 08:00:20, then last frame of News\n");
    verifyContains(spans, "plays News\n");
    const QJsonArray json =
        m_fixture
            ->onDatabase({QStringLiteral("timeline"), QStringLiteral("--json"),
                          QStringLiteral("--from"), QStringLiteral("2024-01-03 08:00"),
                          QStringLiteral("--to"), QStringLiteral("2024-01-03 11:00")})
            .json()[QStringLiteral("spans")]
            .toArray();
    QStringList untils;
    for (const QJsonValue& span : json) {
        untils += span.toObject()[QStringLiteral("listUntil")].toString(QStringLiteral("-"));
    }
    QCOMPARE(untils, (QStringList{QStringLiteral("2024-01-03T08:00:20.000+01:00"),
                                  QStringLiteral("-"), QStringLiteral("-"), QStringLiteral("-")}));
    verifyContains(at("why News", "08:30"), "The list has run as set, 2 times, and does not play");
    verifyContains(text({QStringLiteral("timeline"), QStringLiteral("--plays"),
                         QStringLiteral("--from"), QStringLiteral("2024-01-03 08:30"),
                         QStringLiteral("--to"), QStringLiteral("2024-01-03 08:31")}),
                   "last frame of News, since its list has run the set number of times\n");
}

void tst_CtlWords::modesAndEndActionsThatAreNone()
{
    PlayPlan plan = runs(1, "08:00:00", "09:00:00", 7, 2);
    plan.endAction = 9;
    m_fixture->store({{1, januaryTask(1, {plan})}});
    verifyContains(text({QStringLiteral("show")}),
                   "08:00:00  09:00:00  2 times  last frame  normal  News\n");
    const QString checked = text({QStringLiteral("check")});
    verifyContains(checked, "mode: 7 is neither 0 nor 1;");
    verifyContains(checked, "endAction: 9 is neither 0 nor 1; the last frame stays, as with 1");
    verifyContains(at("now", "08:30"), "left the last frame of News.");
}

void tst_CtlWords::timesThatCannotBeRead()
{
    m_fixture->store(
        {{1, januaryTask(
                 1, {timePlan(1, "08:00:00", "nine", "", 1), timePlan(2, "ten", "11:00:00", "", 1),
                     timePlan(3, "ten", "nine", "", 1), runs(4, "ten", "", FrequencyMode, 1)})}});
    const QString why = at("why News", "08:30");
    verifyContains(why, "Plan 1 never plays: its end, “nine”, is not a time in the form hh:mm:ss.");
    verifyContains(why,
                   "Plan 2 never plays: its start, “ten”, is not a time in the form hh:mm:ss.");
    verifyContains(why, "Plan 3 never plays: its start, “ten”, and its end, “nine”, are not times "
                        "in the form hh:mm:ss.");
    verifyContains(why,
                   "Plan 4 never plays: its start, “ten”, is not a time in the form hh:mm:ss.");
}

void tst_CtlWords::periodsThatCannotBeRead_data()
{
    QTest::addColumn<QString>("first");
    QTest::addColumn<QString>("last");
    QTest::addColumn<QString>("sentence");
    QTest::newRow("start") << QStringLiteral("soon") << QStringLiteral("2024.01.31")
                           << QStringLiteral("The task is never valid: its start date, \"soon\", "
                                             "is not a date in the form yyyy.MM.dd.");
    QTest::newRow("end") << QStringLiteral("2024.01.01") << QStringLiteral("2024.01.32")
                         << QStringLiteral("The task is never valid: its end date, "
                                           "\"2024.01.32\", is not a date in the form yyyy.MM.dd.");
    QTest::newRow("inverted") << QStringLiteral("2024.01.31") << QStringLiteral("2024.01.01")
                              << QStringLiteral(
                                     "The task is never valid: its end date, 2024.01.01, lies "
                                     "before the start date, 2024.01.31.");
}

void tst_CtlWords::periodsThatCannotBeRead()
{
    QFETCH(QString, first);
    QFETCH(QString, last);
    QFETCH(QString, sentence);
    PlayTask task = januaryTask(1, {timePlan(1, "08:00:00", "09:00:00", "", 1)});
    task.startDate = first.toStdString();
    task.endDate = last.toStdString();
    m_fixture->store({{1, task}});
    const QString why = at("why News", "08:30");
    QVERIFY2(why.contains(sentence), qPrintable(why));
}

void tst_CtlWords::daysThatNeverCome()
{
    m_fixture->store({{1, januaryTask(1, {timePlan(1, "08:00:00", "09:00:00", "8", 1),
                                          timePlan(2, "09:00:00", "10:00:00", "abc", 1),
                                          timePlan(3, "10:00:00", "11:00:00", "1;2", 1)})}});
    const QString checked = text({QStringLiteral("check")});
    verifyContains(checked, "weeks: Plan 1 never plays: none of its days is a day of the week\n");
    verifyContains(checked, "weeks: \"abc\" is not a list of days from 0 to 7; it counts as every "
                            "day\n");
    verifyContains(checked, "weeks: \"1;2\" is not a list of days from 0 to 7; it counts as Mon\n");
    const QString why = at("why News", "08:30");
    verifyContains(why, "plan 1: Plan 1 never plays: none of its days is a day of the week.");
    verifyContains(why, "plan 3: The plan does not run on Wed, only on Mon.");
}

void tst_CtlWords::anUnknownZoneIsAnError_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::newRow("now") << QStringList{QStringLiteral("now")};
    QTest::newRow("why") << QStringList{QStringLiteral("why"), QStringLiteral("News")};
    QTest::newRow("timeline") << QStringList{QStringLiteral("timeline"), QStringLiteral("--from"),
                                             QStringLiteral("2024-01-03"), QStringLiteral("--to"),
                                             QStringLiteral("2024-01-04")};
    QTest::newRow("run") << QStringList{QStringLiteral("run")};
}

void tst_CtlWords::anUnknownZoneIsAnError()
{
    QFETCH(QStringList, arguments);
    const ZoneOfPrograms zone("Nowhere/Land");
    const CtlResult result = m_fixture->onDatabase(arguments);
    QCOMPARE(result.status, 1);
    QCOMPARE(result.out, QByteArray());
    QCOMPARE(result.err, QStringLiteral("schedulectl: The system knows no time zone of the name "
                                        "“Nowhere/Land”, so that the local time is not known.\n"));
    // What asks for no local time goes on.
    QCOMPARE(m_fixture->onDatabase({QStringLiteral("show")}).status, 0);
}

void tst_CtlWords::theEveningThatComesTwice()
{
    PlayTask task = januaryTask(1, {timePlan(1, "23:20:00", "23:40:00", "", 1)});
    task.startDate = "2010.11.06";
    task.endDate = "2010.11.06";
    m_fixture->store({{1, task}});
    const ZoneOfPrograms zone("America/St_Johns");
    const CtlResult now = m_fixture->onDatabase(
        {QStringLiteral("now"), QStringLiteral("--at"), QStringLiteral("2010-11-06 23:30")});
    QCOMPARE(now.err, QStringLiteral("schedulectl: Local time has \"2010-11-06 23:30\" twice, "
                                     "since the clock is put back; 2010-11-06 23:30:00 -02:30 was "
                                     "taken, and 2010-11-06 23:30:00 -03:30 is the other.\n"));
    verifyContains(now.text(), "Plan until    23:40:00 -02:30\n");
    verifyContains(now.text(), "Next plan     23:20:00 -03:30, task 1, row 1, plan 1\n");
    const QString spans = text({QStringLiteral("timeline"), QStringLiteral("--from"),
                                QStringLiteral("2010-11-06 23:30 -02:30"), QStringLiteral("--to"),
                                QStringLiteral("2010-11-06 23:30 -03:30")});
    verifyContains(spans, "2010-11-06 23:20:00 -02:30  23:40:00 -02:30 ");
    verifyContains(spans, "2010-11-06 23:40:00 -02:30  23:20:00 -03:30 ");
    verifyContains(spans, "2010-11-06 23:20:00 -03:30  23:40:00 -03:30 ");
}

TREL_TEST(tst_CtlWords, QCoreApplication)
#include "tst_CtlWords.moc"
