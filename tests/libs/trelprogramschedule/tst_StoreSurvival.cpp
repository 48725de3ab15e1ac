#include "StoreChild.h"
#include "StoreFixture.h"
#include "support/TestProgram.h"

#include <QCoreApplication>
#include <QtTest>

#include <random>

using namespace trel::mediadispatch;

namespace {

constexpr unsigned kSeed = 20240229;
constexpr int kStops = 80;
/// How long the child lives after its first save, in thousandths of the time which that took.
constexpr int kLongestLife = 4000;

/// The generation of a schedule that is all of one; -1 for a mixture.
int generationOf(const std::map<int, PlayTask>& tasks)
{
    if (tasks.empty()) {
        return 0;
    }
    const int generation = tasks.begin()->second.plans.front().serviceCount;
    return tasks == sampleSchedule(20 + generation % 20, 3, 3, generation) ? generation : -1;
}

} // namespace

/// A program that is stopped, or runs out of space, in the middle of a save loses nothing.
class tst_StoreSurvival : public QObject
{
    Q_OBJECT

private slots:
    void stoppedInTheMiddle();
    void diskFull();
    void leftOpen_data();
    void leftOpen();
};

void tst_StoreSurvival::stoppedInTheMiddle()
{
    StoreFixture store;
    QVERIFY(store.host.addPrograms(samplePrograms(3)).store);
    std::mt19937 random(kSeed);
    std::uniform_int_distribution<int> life(1, kLongestLife);
    int generation = 0;
    for (int stop = 0; stop < kStops; ++stop) {
        const int thousandths = life(random);
        const QString context = QStringLiteral("seed %1, stop %2 after %3/1000 of a save")
                                    .arg(kSeed)
                                    .arg(stop)
                                    .arg(thousandths);
        store.host.close();
        StoreChild child({QStringLiteral("save"), store.path, QString::number(generation + 1),
                          QString::number(thousandths)});
        const QStringList saved = child.lines();
        QVERIFY2(child.wasStopped(), qPrintable(context + saved.join(QLatin1Char(' '))));
        store.open();

        // What was acknowledged is there; what was not is there whole or not at all.
        QVERIFY2(!saved.isEmpty(), qPrintable(context));
        const int acknowledged = saved.last().toInt();
        const int found = generationOf(store.manager.getgTaskMap());
        QVERIFY2(found == acknowledged || found == acknowledged + 1,
                 qPrintable(context +
                            QStringLiteral(": found %1 after %2").arg(found).arg(acknowledged)));
        // Each generation is one save, and so are the versions.
        for (int number = qMax(generation, found - 3); number <= found; ++number) {
            std::map<int, PlayTask> tasks;
            QVERIFY2(store.host.versionTasks(number, tasks), qPrintable(context));
            QVERIFY2(generationOf(tasks) == number, qPrintable(context));
        }
        generation = found;
    }
    QVERIFY(generation >= kStops);
}

void tst_StoreSurvival::diskFull()
{
    const QTemporaryDir folder;
    StoreChild child({QStringLiteral("fill"), folder.path()});
    QStringList lines = child.lines();
    QVERIFY(!lines.isEmpty());
    const bool isDisk = lines.takeFirst() == QLatin1String("disk");
    // A file at its limit is as good as a disk that is full.
    const int problem = int(StoreProblem::DiskFull);
    QVERIFY2(lines.size() > 4, qPrintable(lines.join(QLatin1Char('\n'))));
    const QString message = lines.takeAt(4);
    QVERIFY2(message.contains(QLatin1String("schedule.db")), qPrintable(message));
    QVERIFY2(!isDisk || message.contains(QLatin1String("the disk is full")), qPrintable(message));
    const QStringList expected = {
        QStringLiteral("open 0"),
        QStringLiteral("programs 0"),
        QStringLiteral("small 0"),
        QStringLiteral("failed %1").arg(problem),
        QStringLiteral("stored 3 working 2000 file 3 unsaved 1"),
        QStringLiteral("import %1").arg(problem),
        QStringLiteral("programs 5"),
        QStringLiteral("again 0"),
        QStringLiteral("reopen 0"),
        QStringLiteral("stored 2000"),
        QStringLiteral("fresh %1").arg(problem),
        QStringLiteral("left 0"),
    };
    QCOMPARE(lines, expected);
}

void tst_StoreSurvival::leftOpen_data()
{
    QTest::addColumn<QString>("way");
    QTest::newRow("application ends") << QStringLiteral("return");
    QTest::newRow("exit") << QStringLiteral("exit");
}

void tst_StoreSurvival::leftOpen()
{
    QFETCH(QString, way);
    const QTemporaryDir folder;
    StoreChild child({way, folder.filePath(QStringLiteral("schedule.db"))});
    QCOMPARE(child.lines(), (QStringList{QStringLiteral("open 0"), QStringLiteral("saved 0")}));
    QVERIFY(child.hasSucceeded());
    // Closed as it should be, with its log worked in.
    QCOMPARE(QDir(folder.path()).entryList(QDir::Files),
             QStringList{QStringLiteral("schedule.db")});
}

TREL_TEST(tst_StoreSurvival, QCoreApplication)
#include "tst_StoreSurvival.moc"
