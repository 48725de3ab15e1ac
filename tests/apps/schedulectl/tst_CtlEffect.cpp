#include "CtlFixture.h"
#include "support/TestProgram.h"

#include <QCoreApplication>
#include <QJsonArray>
#include <QtTest>

using namespace trel::mediadispatch;

/// The commands that change what is in effect, and what the reading commands make of it.
class tst_CtlEffect : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void nothingIsInEffectAtFirst();
    void startsWhatIsSaved();
    void readersShowWhatIsInEffect();
    void savedIsShownWhenAskedFor();
    void namesTheTasksThatDiffer();
    void stopsOnce();
    void aProgramIsInserted_data();
    void aProgramIsInserted();
    void aPlanIsInserted();
    void whatCannotBeInserted_data();
    void whatCannotBeInserted();
    void oneInsertionWaitsAtATime();
    void insertionsAreTakenBack();
    void aMissingDatabaseIsRefused_data();
    void aMissingDatabaseIsRefused();

private:
    CtlResult ask(const QString& words) const
    {
        return m_fixture->onDatabase(words.split(QLatin1Char(' '), Qt::SkipEmptyParts));
    }
    CtlResult ask(const char* words) const { return ask(QString::fromLatin1(words)); }

    QSharedPointer<CtlFixture> m_fixture;
};

namespace {

/// A task whose plan has the screen whenever the test runs.
std::map<int, PlayTask> alwaysOn(const std::vector<struProgInfo>& programs)
{
    PlayTask task = januaryTask(1);
    task.startDate = "2020.01.01";
    task.endDate = "2199.12.31";
    PlayPlan plan = timePlan(4, "00:00:00", "23:59:59", "", 1);
    plan.programs = programs;
    task.plans = {plan};
    return {{1, task}};
}

QJsonObject effectOf(const CtlResult& result)
{
    return result.json()[QStringLiteral("effect")].toObject();
}

/// From yesterday to tomorrow, whatever midnight does meanwhile.
QString timelineOfTheseDays()
{
    const QDate today = QDate::currentDate();
    return QStringLiteral("timeline --from %1 --to %2 --json")
        .arg(today.addDays(-1).toString(Qt::ISODate), today.addDays(2).toString(Qt::ISODate));
}

} // namespace

/// News of a minute is on screen all day; Spot of 45 s, Lost without its file, and two programs of
/// one name are in no plan.
void tst_CtlEffect::init()
{
    m_fixture = QSharedPointer<CtlFixture>::create();
    m_fixture->writeClip(QStringLiteral("News.wav"), 60000);
    m_fixture->writeClip(QStringLiteral("Spot.wav"), 45000);
    m_fixture->writeClip(QStringLiteral("Lost.wav"), 1000);
    m_fixture->writeClip(QStringLiteral("a/Twin.wav"), 1000);
    m_fixture->writeClip(QStringLiteral("b/Twin.wav"), 1000);
    QCOMPARE(ask("import News.wav Spot.wav Lost.wav a/Twin.wav b/Twin.wav").err, QString());
    QVERIFY(QFile::remove(m_fixture->path(QStringLiteral("Lost.wav"))));
    m_fixture->store(alwaysOn({{1, false, "News", 1}}));
}

void tst_CtlEffect::nothingIsInEffectAtFirst()
{
    QCOMPARE(ask("effect").lines(), QStringList{QStringLiteral("Nothing is in effect.")});
    const QJsonObject json = ask("effect --json").json();
    QVERIFY(json[QStringLiteral("effect")].isNull());
    QVERIFY(!json.contains(QStringLiteral("insertions")));
    QVERIFY(ask("now --json").json()[QStringLiteral("effect")].isNull());
}

void tst_CtlEffect::startsWhatIsSaved()
{
    const CtlResult started = ask("start");
    QCOMPARE(started.status, 0);
    QCOMPARE(started.err, QString());
    QVERIFY2(started.text().startsWith(QStringLiteral("1 task with 1 plan in effect since 2")),
             qPrintable(started.text()));
    QVERIFY(started.text().contains(QStringLiteral(", save 1, started by schedulectl@")));
    const QStringList shown = ask("effect").lines();
    QCOMPARE(shown.size(), 2);
    QCOMPARE(shown[0] + QLatin1Char('\n'), started.text());
    QCOMPARE(shown[1], QStringLiteral("What is saved is what is in effect."));

    const QDateTime before = QDateTime::currentDateTimeUtc();
    const QJsonObject again = effectOf(ask("start --json"));
    QCOMPARE(again.keys(), (QStringList{QStringLiteral("save"), QStringLiteral("since"),
                                        QStringLiteral("startedBy")}));
    QVERIFY(QDateTime::fromString(again[QStringLiteral("since")].toString(), Qt::ISODateWithMs) >=
            before);
    QCOMPARE(effectOf(ask("effect --json")), again);
    QCOMPARE(effectOf(ask("now --json")), again);
}

void tst_CtlEffect::readersShowWhatIsInEffect()
{
    QCOMPARE(ask("start").status, 0);
    QCOMPARE(ask("insert Spot").status, 0);
    const CtlResult now = ask("now");
    QVERIFY2(now.text().contains(QStringLiteral("\nScreen        plays Spot\n")),
             qPrintable(now.text()));
    QVERIFY(now.text().contains(QStringLiteral("\nIn effect     since 2")));
    QVERIFY(now.text().contains(QStringLiteral(", News\n")));
    QCOMPARE(ask("why Spot --json").json()[QStringLiteral("plays")], QJsonValue(true));
    QCOMPARE(ask("why News --json").json()[QStringLiteral("plays")], QJsonValue(false));
    const CtlResult timeline = ask(timelineOfTheseDays());
    QVERIFY(timeline.out.contains("\"insertionPlays\""));
    QVERIFY(!effectOf(timeline).isEmpty());
}

void tst_CtlEffect::savedIsShownWhenAskedFor()
{
    QCOMPARE(ask("start").status, 0);
    QCOMPARE(ask("insert Spot").status, 0);
    m_fixture->store(alwaysOn({}));
    QVERIFY(ask("now").text().contains(QStringLiteral("plays Spot")));
    const CtlResult saved = ask("now --saved");
    QVERIFY(saved.text().contains(QStringLiteral("black screen")));
    QVERIFY(saved.text().contains(QStringLiteral("In effect     nothing; this is what is saved")));
    QVERIFY(ask("now --saved --json").json()[QStringLiteral("effect")].isNull());
    QCOMPARE(ask("why Spot --saved --json").json()[QStringLiteral("plays")], QJsonValue(false));
    QVERIFY(!ask(timelineOfTheseDays() + QStringLiteral(" --saved"))
                 .out.contains("\"insertionPlays\""));
}

void tst_CtlEffect::namesTheTasksThatDiffer()
{
    QCOMPARE(ask("start").status, 0);
    auto tasks = alwaysOn({{2, false, "Spot", 1}});
    tasks[7] = januaryTask(7);
    m_fixture->store(tasks);
    QCOMPARE(ask("effect").lines().value(1),
             QStringLiteral("What is saved differs in 2 tasks: 1, 7."));
    QCOMPARE(ask("effect --json").json()[QStringLiteral("tasksSavedOtherwise")].toArray(),
             (QJsonArray{1, 7}));
    QCOMPARE(ask("start").status, 0);
    QCOMPARE(ask("effect").lines().value(1), QStringLiteral("What is saved is what is in effect."));
}

void tst_CtlEffect::stopsOnce()
{
    QCOMPARE(ask("start").status, 0);
    const CtlResult stopped = ask("stop");
    QCOMPARE(stopped.status, 0);
    QVERIFY(stopped.text().startsWith(QStringLiteral("What was in effect since 2")));
    QVERIFY(stopped.text().endsWith(QStringLiteral(", has ended.\n")));
    QCOMPARE(ask("stop").lines(), QStringList{QStringLiteral("Nothing was in effect.")});
    QVERIFY(ask("stop --json").json()[QStringLiteral("ended")].isNull());
    QVERIFY(ask("now --json").json()[QStringLiteral("effect")].isNull());
}

void tst_CtlEffect::aProgramIsInserted_data()
{
    QTest::addColumn<QByteArray>("words");
    QTest::addColumn<bool>("isDelayed");
    QTest::newRow("by name") << QByteArray("insert Spot --json") << false;
    QTest::newRow("by index") << QByteArray("insert 2 --json") << false;
    QTest::newRow("by a part") << QByteArray("insert spo --json") << false;
    QTest::newRow("delayed") << QByteArray("insert --delayed Spot --json") << true;
}

void tst_CtlEffect::aProgramIsInserted()
{
    QFETCH(const QByteArray, words);
    QFETCH(const bool, isDelayed);
    QCOMPARE(ask("start").status, 0);
    const CtlResult result = ask(words.constData());
    QCOMPARE(result.status, 0);
    const QJsonObject insertion = result.json()[QStringLiteral("insertion")].toObject();
    const auto momentOf = [&insertion](const char* name) {
        return QDateTime::fromString(insertion[QLatin1String(name)].toString(), Qt::ISODateWithMs);
    };
    QCOMPARE(insertion[QStringLiteral("programs")].toArray(), QJsonArray{2});
    QCOMPARE(insertion[QStringLiteral("taskId")].toInt(), 1);
    QCOMPARE(insertion[QStringLiteral("planId")].toInt(), 4);
    QCOMPARE(momentOf("begins") > momentOf("requested"), isDelayed);
    QCOMPARE(momentOf("begins").msecsTo(momentOf("ends")), qint64(45000));
    QCOMPARE(result.json()[QStringLiteral("before")].toObject()[QStringLiteral("name")].toString(),
             QStringLiteral("News"));
    QCOMPARE(ask("effect --json").json()[QStringLiteral("insertions")].toArray(),
             QJsonArray{insertion});
}

void tst_CtlEffect::aPlanIsInserted()
{
    QCOMPARE(ask("start").status, 0);
    const CtlResult result = ask("insert 1/4");
    QCOMPARE(result.status, 0);
    const QStringList lines = result.lines();
    QVERIFY2(lines.value(0).startsWith(QStringLiteral("Inserted: News from ")),
             qPrintable(result.text()));
    QVERIFY(lines.value(0).endsWith(QStringLiteral(" until 23:59:59, for task 1, plan 4.")));
    QCOMPARE(lines.value(1), QStringLiteral("It takes the screen from what it shows: plays News."));
}

void tst_CtlEffect::whatCannotBeInserted_data()
{
    QTest::addColumn<QByteArray>("words");
    QTest::addColumn<QString>("reason");
    QTest::newRow("no program") << QByteArray("insert Nothing")
                                << QStringLiteral("There is no program \"Nothing\"");
    QTest::newRow("two programs") << QByteArray("insert Twin")
                                  << QStringLiteral("Several programs are called \"Twin\"");
    QTest::newRow("no file") << QByteArray("insert Lost") << QStringLiteral("\"Lost\" cannot play");
    QTest::newRow("no task") << QByteArray("insert 9/4")
                             << QStringLiteral("Task 9 with plan 4 is not in effect.");
    QTest::newRow("no plan") << QByteArray("insert 1/9")
                             << QStringLiteral("Task 1 with plan 9 is not in effect.");
}

void tst_CtlEffect::whatCannotBeInserted()
{
    QFETCH(const QByteArray, words);
    QFETCH(const QString, reason);
    const CtlResult early = ask(words.constData());
    QCOMPARE(early.status, 1);
    QVERIFY2(early.err.contains(QStringLiteral("Nothing is in effect")), qPrintable(early.err));
    QCOMPARE(ask("start").status, 0);
    const CtlResult result = ask(words.constData());
    QCOMPARE(result.status, 1);
    QVERIFY2(result.err.contains(reason), qPrintable(result.err));
    QVERIFY(ask("effect --json").json()[QStringLiteral("insertions")].toArray().isEmpty());
}

void tst_CtlEffect::oneInsertionWaitsAtATime()
{
    QCOMPARE(ask("start").status, 0);
    QCOMPARE(ask("insert Spot").status, 0);
    QCOMPARE(ask("insert News --delayed").status, 0);
    const CtlResult third = ask("insert Spot");
    QCOMPARE(third.status, 1);
    QVERIFY(third.err.contains(QStringLiteral("An insertion waits already")));
    QCOMPARE(ask("effect --json").json()[QStringLiteral("insertions")].toArray().size(), 2);
}

void tst_CtlEffect::insertionsAreTakenBack()
{
    QCOMPARE(ask("start").status, 0);
    QCOMPARE(ask("insert Spot").status, 0);
    QCOMPARE(ask("insert News --delayed").status, 0);
    const CtlResult first = ask("cancel-insertion");
    QCOMPARE(first.status, 0);
    QVERIFY2(first.text().startsWith(QStringLiteral("Canceled: News from ")),
             qPrintable(first.text()));
    QVERIFY(first.text().contains(QStringLiteral("The screen plays Spot until ")));
    const CtlResult second = ask("cancel-insertion --json");
    QCOMPARE(second.json()[QStringLiteral("canceled")].toObject()[QStringLiteral("programs")],
             QJsonValue(QJsonArray{2}));
    QCOMPARE(second.json()[QStringLiteral("now")].toObject()[QStringLiteral("name")].toString(),
             QStringLiteral("News"));
    QCOMPARE(ask("cancel-insertion").lines(), QStringList{QStringLiteral("Nothing is inserted.")});
    QVERIFY(ask("cancel-insertion --json").json()[QStringLiteral("canceled")].isNull());
}

void tst_CtlEffect::aMissingDatabaseIsRefused_data()
{
    QTest::addColumn<QStringList>("words");
    for (const char* command : {"effect", "start", "stop", "cancel-insertion"}) {
        QTest::newRow(command) << QStringList{QString::fromLatin1(command)};
    }
    QTest::newRow("insert") << QStringList{QStringLiteral("insert"), QStringLiteral("1")};
}

void tst_CtlEffect::aMissingDatabaseIsRefused()
{
    QFETCH(const QStringList, words);
    const QString missing = m_fixture->path(QStringLiteral("missing.db"));
    const CtlResult result =
        m_fixture->run(words + QStringList{QStringLiteral("--database"), missing});
    QCOMPARE(result.status, 1);
    QVERIFY(!QFile::exists(missing));
}

TREL_TEST(tst_CtlEffect, QCoreApplication)
#include "tst_CtlEffect.moc"
