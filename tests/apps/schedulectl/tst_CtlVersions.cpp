#include "CtlFixture.h"
#include "support/TestProgram.h"

#include <QCoreApplication>
#include <QJsonArray>
#include <QtTest>

using namespace trel::mediadispatch;

/// The commands about the states that were saved.
class tst_CtlVersions : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void listsEachSave();
    void namesAreGivenAndTold();
    void tellsWhatDiffers();
    void tellsWhatDiffersInJson();
    void comparesWithWhatIsInEffect();
    void tellsWhatDiffersOnTheScreen();
    void restoresAndUndoes();
    void refusesToRestoreWithoutPrograms();
    void refusesWhatIsNone_data();
    void refusesWhatIsNone();

private:
    CtlResult ask(const QString& words) const
    {
        return m_fixture->onDatabase(words.split(QLatin1Char(' '), Qt::SkipEmptyParts));
    }
    CtlResult ask(const char* words) const { return ask(QString::fromUtf8(words)); }

    QSharedPointer<CtlFixture> m_fixture;
};

namespace {

/// On screen every day from the start to the end.
std::map<int, PlayTask> daily(const char* end, std::vector<struProgInfo> programs)
{
    PlayTask task = januaryTask(1);
    PlayPlan plan = timePlan(4, "08:00:00", end, "", 1);
    plan.programs = std::move(programs);
    task.plans = {plan};
    return {{1, task}};
}

} // namespace

/// Version 1 has News from 08:00 to 09:00, version 2 to 10:00, and version 3 News and Spot.
void tst_CtlVersions::init()
{
    m_fixture = QSharedPointer<CtlFixture>::create();
    m_fixture->writeClip(QStringLiteral("News.wav"), 60000);
    m_fixture->writeClip(QStringLiteral("Spot.wav"), 45000);
    QCOMPARE(ask("import News.wav Spot.wav").err, QString());
    m_fixture->store(daily("09:00:00", {{1, false, "News", 1}}));
    m_fixture->store(daily("10:00:00", {{1, false, "News", 1}}));
    m_fixture->store(daily("10:00:00", {{1, false, "News", 2}, {2, false, "Spot", 1}}));
}

void tst_CtlVersions::listsEachSave()
{
    const QStringList lines = ask("versions").lines();
    QCOMPARE(lines.size(), 5);
    QVERIFY2(lines.at(0).startsWith(QLatin1String("Number  Saved")), qPrintable(lines.at(0)));
    QVERIFY2(lines.at(1).contains(QLatin1String("1 task changed (1)")), qPrintable(lines.at(1)));
    QVERIFY2(lines.at(1).contains(QLatin1String("schedulectl@")), qPrintable(lines.at(1)));
    QVERIFY2(lines.at(3).contains(QLatin1String("1 task new (1)")), qPrintable(lines.at(3)));
    QVERIFY2(lines.at(4).contains(QLatin1String("not known")), qPrintable(lines.at(4)));
    const QJsonArray versions = ask("versions --json").json()[QStringLiteral("versions")].toArray();
    QCOMPARE(versions.size(), 4);
    const QJsonObject newest = versions.at(0).toObject();
    QCOMPARE(newest[QStringLiteral("number")].toInt(), 3);
    QCOMPARE(newest[QStringLiteral("tasksChanged")].toInt(), 1);
    QCOMPARE(newest[QStringLiteral("taskIds")].toArray(), QJsonArray{1});
    QVERIFY(newest[QStringLiteral("restored")].isNull());
    QCOMPARE(newest[QStringLiteral("bytes")].toInt(), 0);
    QVERIFY(versions.at(1).toObject()[QStringLiteral("bytes")].toInt() > 0);
    QVERIFY(versions.at(3).toObject()[QStringLiteral("saved")].isNull());
}

void tst_CtlVersions::namesAreGivenAndTold()
{
    QCOMPARE(ask("name-version 2 Spring --note agreed").lines(),
             QStringList{QStringLiteral("Version 2 is \"Spring\".")});
    QVERIFY(ask("versions").lines().at(2).endsWith(QLatin1String("Spring (agreed)")));
    const QJsonObject told = ask("name-version 2 Summer --json").json();
    QCOMPARE(told[QStringLiteral("name")].toString(), QStringLiteral("Summer"));
    QVERIFY(ask("versions").lines().at(2).endsWith(QLatin1String("Summer")));
    QCOMPARE(ask("name-version 2").lines(), QStringList{QStringLiteral("Version 2 has no name.")});
    const CtlResult hidden = m_fixture->onDatabase(
        {QStringLiteral("name-version"), QStringLiteral("2"), QStringLiteral("a\x1b[2J")});
    QCOMPARE(hidden.status, 1);
    QVERIFY2(hidden.err.contains(QLatin1String("does not show")), qPrintable(hidden.err));
}

void tst_CtlVersions::tellsWhatDiffers()
{
    QCOMPARE(ask("diff 1 2").lines(),
             (QStringList{QStringLiteral("From version 1 to version 2:"),
                          QStringLiteral("task 1, plan 4: end 09:00:00 \u2192 10:00:00")}));
    QCOMPARE(ask("diff 2").lines(),
             (QStringList{QStringLiteral("From version 2 to what is saved:"),
                          QStringLiteral("task 1, plan 4: \"Spot\" comes in, at place 2"),
                          QStringLiteral("task 1, plan 4: \"News\" at place 1, plays in a row 1 "
                                         "\u2192 2")}));
    QCOMPARE(ask("diff 3 saved").lines(),
             QStringList{QStringLiteral("Nothing differs from version 3 to what is saved.")});
    QCOMPARE(ask("diff 1 0").lines().at(1),
             QStringLiteral("task 1: gone, 2024.01.01 \u2013 2024.01.31 with 1 plan"));
}

void tst_CtlVersions::tellsWhatDiffersInJson()
{
    const QJsonObject json = ask("diff 1 2 --json").json();
    QCOMPARE(json[QStringLiteral("former")].toString(), QStringLiteral("1"));
    const QJsonObject one = json[QStringLiteral("differences")].toArray().at(0).toObject();
    QCOMPARE(one[QStringLiteral("kind")].toString(), QStringLiteral("planField"));
    QCOMPARE(one[QStringLiteral("field")].toString(), QStringLiteral("endTime"));
    QCOMPARE(one[QStringLiteral("before")].toString(), QStringLiteral("09:00:00"));
    QCOMPARE(one[QStringLiteral("after")].toString(), QStringLiteral("10:00:00"));
    QCOMPARE(one[QStringLiteral("row")].toInt(), 1);
    QCOMPARE(one[QStringLiteral("planId")].toInt(), 4);
    QCOMPARE(one[QStringLiteral("text")].toString(),
             QStringLiteral("task 1, plan 4: end 09:00:00 \u2192 10:00:00"));
    QVERIFY(ask("diff 3 saved --json").json()[QStringLiteral("differences")].toArray().isEmpty());

    auto tasks = daily("10:00:00", {{1, false, "News", 2}, {2, false, "Spot", 1}});
    tasks.at(1).plans[0].hasNoDuration = !tasks.at(1).plans[0].hasNoDuration;
    m_fixture->store(tasks);
    const QJsonArray truths =
        ask("diff 3 4 --json").json()[QStringLiteral("differences")].toArray();
    QCOMPARE(truths.size(), 1);
    const QJsonObject truth = truths.at(0).toObject();
    QCOMPARE(truth[QStringLiteral("field")].toString(), QStringLiteral("hasNoDuration"));
    const bool isAfter = tasks.at(1).plans[0].hasNoDuration;
    QCOMPARE(truth[QStringLiteral("before")], QJsonValue(!isAfter));
    QCOMPARE(truth[QStringLiteral("after")], QJsonValue(isAfter));
}

void tst_CtlVersions::comparesWithWhatIsInEffect()
{
    const CtlResult none = ask("diff");
    QCOMPARE(none.status, 1);
    QVERIFY2(none.err.contains(QLatin1String("Nothing is in effect")), qPrintable(none.err));
    QCOMPARE(ask("start").status, 0);
    QCOMPARE(ask("diff").lines(), QStringList{QStringLiteral(
                                      "Nothing differs from what is in effect to what is saved.")});
    QCOMPARE(ask("restore 1").status, 0);
    QCOMPARE(ask("diff").lines().size(), 4);
    QCOMPARE(ask("diff effect 3").lines().size(), 1);
}

void tst_CtlVersions::tellsWhatDiffersOnTheScreen()
{
    const QString days = QStringLiteral(" --on-screen --from 2024-01-05 --to 2024-01-07");
    const QStringList lines = ask(QStringLiteral("diff 1 2") + days).lines();
    QCOMPARE(lines.size(), 3);
    QCOMPARE(lines.at(1), QStringLiteral("2024-01-05 09:00:00 to 10:00:00: black screen \u2192 "
                                         "task 1, plan 4: News"));
    QCOMPARE(ask(QStringLiteral("diff 2 3") + days).lines().size(), 3);
    QCOMPARE(ask(QStringLiteral("diff 3 saved") + days).lines().size(), 1);
    const QJsonArray stretches =
        ask(QStringLiteral("diff 1 2 --json") + days).json()[QStringLiteral("stretches")].toArray();
    QCOMPARE(stretches.size(), 2);
    // A week from now on, in which nothing is on screen.
    QCOMPARE(ask("diff 1 2 --on-screen").lines().size(), 1);
    QCOMPARE(ask("diff 1 2 --on-screen --from 2024-01-05 --to 2026-01-05").status, 2);
}

void tst_CtlVersions::restoresAndUndoes()
{
    const QByteArray last = m_fixture->exported();
    QCOMPARE(ask("restore 1").lines(),
             QStringList{QStringLiteral("Version 1 is saved, as 4: 1 task with 1 plan.")});
    QCOMPARE(ask("diff 1").lines().size(), 1);
    QVERIFY(ask("versions").lines().at(1).contains(QLatin1String("version 1 restored")));
    const QJsonObject json = ask("restore 3 --json").json();
    QCOMPARE(json[QStringLiteral("save")].toInt(), 5);
    QCOMPARE(json[QStringLiteral("restored")], QJsonValue(3));
    QCOMPARE(json[QStringLiteral("lostPrograms")], QJsonValue(0));
    const QJsonArray versions = ask("versions --json").json()[QStringLiteral("versions")].toArray();
    QCOMPARE(versions.at(0).toObject()[QStringLiteral("restored")], QJsonValue(3));
    QCOMPARE(versions.at(1).toObject()[QStringLiteral("restored")], QJsonValue(1));
    QVERIFY(versions.at(2).toObject()[QStringLiteral("restored")].isNull());
    QCOMPARE(m_fixture->exported(), last);
}

void tst_CtlVersions::refusesToRestoreWithoutPrograms()
{
    m_fixture->store(daily("10:00:00", {{1, false, "News", 1}}));
    QCOMPARE(ask("remove-program 2").status, 0);
    const QByteArray before = m_fixture->exported();
    const CtlResult refused = ask("restore 3");
    QCOMPARE(refused.status, 1);
    QVERIFY2(refused.err.contains(QLatin1String("no longer has \"Spot\"")),
             qPrintable(refused.err));
    QCOMPARE(m_fixture->exported(), before);
    QCOMPARE(ask("restore 2").status, 0);
    QCOMPARE(ask("restore 3 --despite-lost-programs").status, 0);
    QVERIFY(m_fixture->exported().contains("\"isInvalid\": true"));
    QCOMPARE(ask("restore 2").status, 0);
    const QJsonObject lost = ask("restore 3 --despite-lost-programs --json").json();
    QCOMPARE(lost[QStringLiteral("lostPrograms")], QJsonValue(1));
}

void tst_CtlVersions::refusesWhatIsNone_data()
{
    QTest::addColumn<QString>("words");
    QTest::addColumn<int>("status");
    const auto row = [](const char* words, int status) {
        QTest::newRow(words) << QString::fromLatin1(words) << status;
    };
    row("restore 77", 1);
    row("restore x", 2);
    row("restore -1", 2);
    row("name-version 77 name", 1);
    row("name-version x name", 2);
    row("diff 77", 1);
    row("diff 1 77", 1);
    row("diff yesterday", 2);
    row("diff 99999999999999999999", 2);
    row("diff 1 2 --on-screen --from 2024-01-02 --to 2024-01-02", 2);
    row("diff 1 2 --on-screen --from 2024-01-01 --to 2025-01-02", 2);
}

void tst_CtlVersions::refusesWhatIsNone()
{
    QFETCH(QString, words);
    QFETCH(int, status);
    const CtlResult result = ask(words);
    QCOMPARE(result.status, status);
    QVERIFY(!result.err.isEmpty());
    QVERIFY(result.out.isEmpty());
}

TREL_TEST(tst_CtlVersions, QCoreApplication)
#include "tst_CtlVersions.moc"
