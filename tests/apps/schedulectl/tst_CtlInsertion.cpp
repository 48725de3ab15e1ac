#include "CtlFixture.h"
#include "support/TestProgram.h"

#include <QCoreApplication>
#include <QJsonArray>
#include <QtTest>

using namespace trel::mediadispatch;

/// For which plan a program is cut in that is named by itself, and what is told of the outcome.
class tst_CtlInsertion : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void aProgramStandsInForAPlan_data();
    void aProgramStandsInForAPlan();
    void aProgramNeedsAPlan();
    void aPlanThatIsOverIsRefused();
    void whatHasNothingToPlaySaysSo();
    void whatHasNoEndNamesNone();
    void whatComesBehindIsNamed();
    void manyTasksAreCounted();

private:
    CtlResult ask(const char* words) const
    {
        return m_fixture->onDatabase(
            QString::fromLatin1(words).split(QLatin1Char(' '), Qt::SkipEmptyParts));
    }
    /// Puts a schedule into effect and inserts something; the answer of the insertion.
    CtlResult insertInto(const CtlFixture::Schedule& tasks, const char* words) const;

    QSharedPointer<CtlFixture> m_fixture;
};

Q_DECLARE_METATYPE(CtlFixture::Schedule)

namespace {

enum Program { News = 1, Spot, Clip, Stream };

PlayTask taskOf(int id, const char* startDate, const char* endDate,
                const std::vector<PlayPlan>& plans)
{
    PlayTask task = januaryTask(id, plans);
    task.startDate = startDate;
    task.endDate = endDate;
    return task;
}

/// Its only plan has the screen whenever the test runs.
PlayTask alwaysOn(int id, const std::vector<struProgInfo>& programs)
{
    PlayPlan plan = timePlan(4, "00:00:00", "23:59:59", "", News);
    plan.programs = programs;
    return taskOf(id, "2020.01.01", "2199.12.31", {plan});
}

/// News by plan 1, Spot by plan 2.
std::vector<PlayPlan> twoPlans()
{
    return {timePlan(1, "08:00:00", "09:00:00", "", News),
            timePlan(2, "10:00:00", "11:00:00", "", Spot)};
}

/// Was over long before the test runs; plan 2 is still frozen on screen where nothing came later.
PlayTask longAgo(int id)
{
    return taskOf(id, "2019.01.01", "2019.01.31", twoPlans());
}

/// Comes long after the test runs.
PlayTask later(int id)
{
    return taskOf(id, "2199.01.01", "2199.01.31", twoPlans());
}

} // namespace

void tst_CtlInsertion::init()
{
    m_fixture = QSharedPointer<CtlFixture>::create();
    for (const char* name : {"News.wav", "Spot.wav", "Clip.wav"}) {
        m_fixture->writeClip(QString::fromLatin1(name), 60000);
    }
    QCOMPARE(ask("import News.wav Spot.wav Clip.wav rtsp://192.0.2.1/stream").err, QString());
}

CtlResult tst_CtlInsertion::insertInto(const CtlFixture::Schedule& tasks, const char* words) const
{
    m_fixture->store(tasks);
    const CtlResult started = ask("start");
    return started.status == 0 ? ask(words) : started;
}

void tst_CtlInsertion::aProgramStandsInForAPlan_data()
{
    QTest::addColumn<CtlFixture::Schedule>("tasks");
    QTest::addColumn<QByteArray>("words");
    QTest::addColumn<int>("taskId");
    QTest::addColumn<int>("planId");
    const CtlFixture::Schedule withOneOnScreen{{1, longAgo(1)},
                                               {2, alwaysOn(2, {{News, false, "News", 1}})}};
    QTest::newRow("on screen and holds it")
        << withOneOnScreen << QByteArray("insert News --json") << 2 << 4;
    QTest::newRow("holds it, another is on screen")
        << withOneOnScreen << QByteArray("insert Spot --json") << 1 << 2;
    QTest::newRow("none holds it, one is on screen")
        << withOneOnScreen << QByteArray("insert Clip --json") << 2 << 4;
    QTest::newRow("none holds it, one is frozen on screen")
        << CtlFixture::Schedule{{1, longAgo(1)}} << QByteArray("insert Clip --json") << 1 << 2;
    const CtlFixture::Schedule blackNow{{1, later(1)}};
    QTest::newRow("holds it, none is on screen")
        << blackNow << QByteArray("insert Spot --json") << 1 << 2;
    QTest::newRow("none holds it, none is on screen")
        << blackNow << QByteArray("insert Clip --json") << 1 << 1;
}

void tst_CtlInsertion::aProgramStandsInForAPlan()
{
    QFETCH(const CtlFixture::Schedule, tasks);
    QFETCH(const QByteArray, words);
    const CtlResult result = insertInto(tasks, words.constData());
    QCOMPARE(result.err, QString());
    const QJsonObject insertion = result.json()[QStringLiteral("insertion")].toObject();
    QTEST(insertion[QStringLiteral("taskId")].toInt(), "taskId");
    QTEST(insertion[QStringLiteral("planId")].toInt(), "planId");
}

void tst_CtlInsertion::aProgramNeedsAPlan()
{
    const CtlResult result =
        insertInto({{1, taskOf(1, "2020.01.01", "2199.12.31", {})}}, "insert News");
    QCOMPARE(result.status, 1);
    QCOMPARE(
        result.err.trimmed(),
        QStringLiteral("schedulectl: The schedule in effect has no plan that could give way."));
}

void tst_CtlInsertion::aPlanThatIsOverIsRefused()
{
    const CtlResult result = insertInto({{1, longAgo(1)}}, "insert 1/2");
    QCOMPARE(result.status, 1);
    QVERIFY2(result.err.contains(QStringLiteral("Task 1 with plan 2 will not run again.")),
             qPrintable(result.err));
    QVERIFY(ask("effect --json").json()[QStringLiteral("insertions")].toArray().isEmpty());
}

void tst_CtlInsertion::whatHasNothingToPlaySaysSo()
{
    PlayTask over = alwaysOn(1, {});
    over.plans.front().endTime = "00:00:01";
    // Its end of the day has passed, so it plays its list once.
    QTRY_VERIFY(QTime::currentTime() > QTime(0, 0, 1));
    const CtlResult result = insertInto({{1, over}}, "insert 1/4");
    QCOMPARE(result.status, 0);
    QCOMPARE(result.lines().value(2),
             QStringLiteral("It has nothing to play, and changes nothing."));
}

void tst_CtlInsertion::whatHasNoEndNamesNone()
{
    const CtlResult result = insertInto({{1, longAgo(1)}}, "insert 4");
    QCOMPARE(result.status, 0);
    QCOMPARE(result.lines().size(), 2);
    QVERIFY2(result.lines().first().contains(QStringLiteral(" until further notice,")),
             qPrintable(result.text()));
}

void tst_CtlInsertion::whatComesBehindIsNamed()
{
    const CtlResult result =
        insertInto({{1, alwaysOn(1, {{News, false, "News", 1}})}}, "insert Spot");
    QCOMPARE(result.status, 0);
    QVERIFY2(result.lines().value(2).endsWith(QStringLiteral(" comes: plays News.")),
             qPrintable(result.text()));
}

void tst_CtlInsertion::manyTasksAreCounted()
{
    CtlFixture::Schedule tasks;
    QStringList ids;
    for (int id = 1; id <= 20; ++id) {
        tasks[id] = longAgo(id);
        ids.append(QString::number(id));
    }
    m_fixture->store({});
    QCOMPARE(ask("start").status, 0);
    m_fixture->store(tasks);
    QCOMPARE(ask("effect").lines().value(1),
             QStringLiteral("What is saved differs in 20 tasks: %1.")
                 .arg(ids.join(QStringLiteral(", "))));
    tasks[21] = longAgo(21);
    tasks[22] = longAgo(22);
    m_fixture->store(tasks);
    QCOMPARE(ask("effect").lines().value(1),
             QStringLiteral("What is saved differs in 22 tasks: %1 and 2 more.")
                 .arg(ids.join(QStringLiteral(", "))));
}

TREL_TEST(tst_CtlInsertion, QCoreApplication)
#include "tst_CtlInsertion.moc"
