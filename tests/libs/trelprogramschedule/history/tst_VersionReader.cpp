#include "history/VersionReader.h"
#include "libs/trelprogramschedule/StoreFixture.h"
#include "support/RandomEdits.h"
#include "support/TestProgram.h"

#include <QCoreApplication>
#include <QFile>
#include <QtTest>

#include <random>
#include <thread>

using namespace trel::mediadispatch;

namespace {

using Tasks = std::map<int, PlayTask>;

/// In a thread of its own, as a host does.
template <typename Read>
StoreResult inAnotherThread(const Read& read)
{
    StoreResult result;
    std::thread([&] { result = read(); }).join();
    return result;
}

Tasks read(const QString& path, qint64 number)
{
    Tasks tasks;
    const StoreResult result =
        inAnotherThread([&] { return VersionReader(path).tasks(number, tasks); });
    if (!result) {
        qWarning("%s", qPrintable(englishText(result)));
    }
    return tasks;
}

} // namespace

/// What was saved, read beside the service.
class tst_VersionReader : public QObject
{
    Q_OBJECT

private slots:
    void readsWhatTheServiceReads();
    void takesTheCatalogueOfNow();
    void leavesTheLocksOfTheService();
    void refusesWhatIsNone();
    void endsWhenItIsNeedless();
};

void tst_VersionReader::readsWhatTheServiceReads()
{
    StoreFixture store;
    std::mt19937 random(20261123);
    Tasks tasks;
    for (int save = 0; save < 60; ++save) {
        editAtRandom(tasks, random);
        QVERIFY(store.host.replaceSchedule(tasks));
    }
    std::vector<ScheduleVersion> versions;
    QVERIFY(inAnotherThread([&] { return VersionReader(store.path).versions(versions); }));
    std::vector<ScheduleVersion> expected;
    QVERIFY(store.host.versions(expected));
    QCOMPARE(versions.size(), expected.size());
    QVERIFY(versions.size() > 20);
    for (std::size_t i = 0; i < versions.size(); ++i) {
        QCOMPARE(versions[i].number, expected[i].number);
        QCOMPARE(versions[i].bytes, expected[i].bytes);
        Tasks version;
        QVERIFY(store.host.versionTasks(versions[i].number, version));
        QVERIFY2(read(store.path, versions[i].number) == version,
                 qPrintable(QString::number(versions[i].number)));
    }
    QVERIFY(read(store.path, kNoVersion) == read(store.path, versions.front().number));
}

void tst_VersionReader::takesTheCatalogueOfNow()
{
    StoreFixture store;
    MediaSource source = samplePrograms(1).front();
    QVERIFY(store.host.addPrograms({source}).store);
    PlayPlan plan = samplePlan(1, 1);
    plan.mode = FrequencyMode;
    plan.startTime = "08:00:00";
    plan.times = 2;
    PlayTask task;
    task.id = 1;
    task.plans = {plan};
    QVERIFY(store.host.replaceSchedule({{1, task}}));
    QVERIFY(!read(store.path, 1).at(1).plans[0].programs[0].isInvalid);
    QVERIFY(store.host.removeProgram(1));
    const Tasks later = read(store.path, 1);
    QVERIFY(later.at(1).plans[0].programs[0].isInvalid);
    Tasks expected;
    QVERIFY(store.host.versionTasks(1, expected));
    QVERIFY(later == expected);
    QVERIFY(read(store.path, kNoVersion) == expected);
}

/// A file that is closed by a process loses all locks of it. What the service holds has to stay, or
/// another program could take the log away under it.
void tst_VersionReader::leavesTheLocksOfTheService()
{
    if (!storeServer().isEmpty()) {
        QSKIP("A store on a server has no locks of files.");
    }
    StoreFixture store;
    store.save(sampleSchedule(2, 1, 1));
    const auto locks = [] {
        // Those of this process on the file and on what stands beside it.
        QFile table(QStringLiteral("/proc/locks"));
        int count = 0;
        if (table.open(QIODevice::ReadOnly)) {
            const QByteArray own =
                ' ' + QByteArray::number(QCoreApplication::applicationPid()) + ' ';
            const QList<QByteArray> lines = table.readAll().split('\n');
            for (const QByteArray& line : lines) {
                count += line.contains(own) ? 1 : 0;
            }
        }
        return count;
    };
    const int before = locks();
    QVERIFY(before > 0);
    QVERIFY(!read(store.path, 1).empty());
    QCOMPARE(locks(), before);
    QVERIFY(store.host.replaceSchedule(sampleSchedule(3, 1, 1)));
    QCOMPARE(read(store.path, kNoVersion).size(), std::size_t(3));
}

void tst_VersionReader::refusesWhatIsNone()
{
    StoreFixture store;
    store.save(sampleSchedule(2, 1, 1));
    Tasks tasks = {{9, PlayTask()}};
    StoreResult result = VersionReader(store.path).tasks(7, tasks);
    QCOMPARE(int(result.cause.code), int(FaultCode::VersionUnknown));
    // What was there stays.
    QCOMPARE(tasks.size(), std::size_t(1));
    std::vector<ScheduleVersion> versions;
    QVERIFY(!VersionReader(store.folder.filePath(QStringLiteral("none.db"))).versions(versions));
    QVERIFY(!QFile::exists(store.folder.filePath(QStringLiteral("none.db"))));
    // Another database at the place is told apart.
    QFile other(store.folder.filePath(QStringLiteral("other.db")));
    QVERIFY(other.open(QIODevice::WriteOnly));
    other.write(QByteArray(8192, 'x'));
    other.close();
    result = VersionReader(other.fileName()).tasks(kNoVersion, tasks);
    QVERIFY(!result);
    QCOMPARE(tasks.size(), std::size_t(1));
}

/// Within what is saved as well as between the versions behind it.
void tst_VersionReader::endsWhenItIsNeedless()
{
    // A statement for a server is not looked into while it works.
    const int many = storeServer().isEmpty() ? 1500 : 100;
    StoreFixture store;
    for (int save = 1; save <= 8; ++save) {
        QVERIFY(store.host.replaceSchedule(sampleSchedule(many, 2, 2, save)));
    }
    for (const qint64 number : {qint64(1), kNoVersion}) {
        int looks = 0;
        int most = -1;
        VersionReader reader(store.path);
        reader.endWhen([&] { return ++looks == most; });
        Tasks whole;
        QVERIFY(reader.tasks(number, whole));
        QCOMPARE(whole.size(), std::size_t(many));
        const int all = looks;
        // A look for each version, and some within a long statement.
        QVERIFY2(all > (number == kNoVersion ? 1 : 8), qPrintable(QString::number(all)));
        for (most = 1; most <= all; ++most) {
            looks = 0;
            Tasks tasks = {{9, PlayTask()}};
            const StoreResult result = reader.tasks(number, tasks);
            QVERIFY(!result);
            QCOMPARE(int(result.cause.code), int(FaultCode::ReadTooSlow));
            QCOMPARE(looks, most);
            QCOMPARE(tasks.size(), std::size_t(1));
        }
    }
}

TREL_TEST(tst_VersionReader, QCoreApplication)
#include "tst_VersionReader.moc"
