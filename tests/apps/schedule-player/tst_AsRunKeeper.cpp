#include "asrun/AsRunKeeper.h"
#include "support/TestProgram.h"
#include "trelprogramschedule/dispatch/ScreenTimeline.h"
#include "trelprogramschedule/faults/FaultWords.h"

#include <QFile>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

using namespace trel::mediadispatch;
using namespace trel::player;
using namespace trel::screen;

namespace {

const QByteArray kBoot(16, 'b');
const QString kScreen = QStringLiteral("hall");

ScreenSchedule schedule(qint64 saved)
{
    ScreenSchedule schedule;
    schedule.zone = QTimeZone("Europe/Berlin");
    schedule.tasks = std::make_shared<const std::map<int, PlayTask>>();
    schedule.catalogue = std::make_shared<const std::map<int, ProgramIten>>();
    schedule.timeline =
        std::make_shared<const ScreenTimeline>(*schedule.tasks, *schedule.catalogue, schedule.zone);
    schedule.start.emplace().saved = saved;
    return schedule;
}

AsRunEntry pictureOf(const char* program, qint64 begin, qint64 end)
{
    AsRunEntry entry;
    entry.record.program = QLatin1String(program);
    entry.record.begins = 1'000'000 + begin;
    entry.record.ends = 1'000'000 + end;
    entry.record.steadyBegin = begin;
    entry.record.steadyEnd = end;
    return entry;
}

AsRunEntry taking(qint64 saved, qint64 moment)
{
    AsRunEntry entry = pictureOf("", moment, moment);
    entry.record.kind = AsRunKind::ScheduleTaken;
    entry.schedule = schedule(saved);
    return entry;
}

/// "A 0-100", "schedule 3", "gap 10 100-200" with the number of its outcome.
QString lineOf(const AsRunRecord& record)
{
    const QString times =
        QStringLiteral("%1-%2").arg(record.begins - 1'000'000).arg(record.ends - 1'000'000);
    switch (record.kind) {
    case AsRunKind::Picture:
        return QStringLiteral("%1 %2%3").arg(
            record.program, times,
            QLatin1String(record.outcome == AsRunOutcome::CutByKill ? " killed" : ""));
    case AsRunKind::Gap:
        return QStringLiteral("gap %1 %2").arg(static_cast<int>(record.outcome)).arg(times);
    case AsRunKind::ScheduleTaken:
        break;
    }
    return QStringLiteral("schedule %1").arg(record.revision);
}

/// A player that records, in a folder with a store, without a thread.
class Run
{
public:
    explicit Run(const QString& folder, qint64 begin, const QByteArray& boot = kBoot)
        : keeper(
              mail,
              {folder + QStringLiteral("/store"), kScreen, folder + QStringLiteral("/spool/one")},
              boot, std::chrono::milliseconds(100))
        , told(&keeper, &AsRunKeeper::told)
    {
        keeper.start(pictureOf("", begin, begin).record);
    }

    void post(const std::vector<AsRunEntry>& entries)
    {
        for (const AsRunEntry& entry : entries) {
            mail->post(entry);
        }
        keeper.workSoon();
    }
    void onScreen(const AsRunEntry& entry)
    {
        AsRunRecord record = entry.record;
        record.outcome = AsRunOutcome::CutByKill;
        mail->post(record);
        keeper.workSoon();
    }
    QStringList lines() const
    {
        QStringList lines;
        for (const QList<QVariant>& line : told) {
            lines += line.first().toString();
        }
        return lines;
    }

    std::shared_ptr<AsRunMail> mail = std::make_shared<AsRunMail>();
    AsRunKeeper keeper;
    QSignalSpy told;
};

} // namespace

/// What becomes of records on their way into the database.
class tst_AsRunKeeper : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        makeStore();
    }

    void handsInWhatIsFinished()
    {
        Run run(path(), 0);
        run.post({taking(3, 0), pictureOf("A", 0, 100), pictureOf("B", 100, 200)});
        QTRY_COMPARE(handedIn().size(), 3);
        QCOMPARE(handedIn(), QStringList({QStringLiteral("schedule 3"), QStringLiteral("A 0-100"),
                                          QStringLiteral("B 100-200")}));
        const AsRunRecord record = records().back();
        QCOMPARE(record.boot, kBoot);
        QCOMPARE(record.schedule, records().front().schedule);
        QCOMPARE(record.schedule.size(), 32);
        QVERIFY(!contents(record.schedule).isEmpty());
        QVERIFY(run.lines().isEmpty());
    }

    void aKillLeavesAGap()
    {
        {
            Run run(path(), 0);
            run.post({taking(3, 0), pictureOf("A", 0, 100)});
            run.onScreen(pictureOf("B", 100, 150));
            QTRY_COMPARE(handedIn().size(), 2);
        }
        const Run again(path(), 500);
        QTRY_COMPARE(
            handedIn(),
            QStringList({QStringLiteral("schedule 3"), QStringLiteral("A 0-100"),
                         QStringLiteral("B 100-150 killed"), QStringLiteral("gap 9 150-500")}));
        QCOMPARE(records().back().steadyBegin, 150);
        QCOMPARE(records().back().steadyEnd, 500);
    }

    void anOrderlyEndLeavesAGap()
    {
        {
            Run run(path(), 0);
            run.mail->post(taking(3, 0));
            run.mail->post(pictureOf("A", 0, 100));
            AsRunRecord left = pictureOf("", 100, 100).record;
            left.outcome = AsRunOutcome::CutByPlayerEnd;
            run.mail->post(left);
            run.keeper.stop();
        }
        const Run again(path(), 500);
        QTRY_COMPARE(handedIn(),
                     QStringList({QStringLiteral("schedule 3"), QStringLiteral("A 0-100"),
                                  QStringLiteral("gap 8 100-500")}));
    }

    void anotherStartOfTheMachine()
    {
        {
            Run run(path(), 1000);
            run.onScreen(pictureOf("A", 1000, 1500));
            run.keeper.stop();
        }
        const Run again(path(), 20, QByteArray(16, 'c'));
        QTRY_COMPARE(handedIn().size(), 2);
        QCOMPARE(handedIn().first(), QStringLiteral("A 1000-1500 killed"));
        const AsRunRecord gap = records().back();
        QCOMPARE(gap.outcome, AsRunOutcome::MachineHadStopped);
        QCOMPARE(gap.begins, 1'001'500);
        QCOMPARE(gap.ends, 1'000'020);
        // Its steady times are those of one start.
        QCOMPARE(gap.boot, QByteArray(16, 'c'));
        QCOMPARE(gap.steadyBegin, 20);
        QCOMPARE(gap.steadyEnd, 20);
    }

    void aStoreThatIsGoneAndBack()
    {
        QVERIFY(QFile::remove(store()));
        {
            Run run(path(), 0);
            run.post({taking(3, 0), pictureOf("A", 0, 100)});
            run.keeper.stop();
            // A disk may be mounted there later.
            QVERIFY(!QFile::exists(AsRunDatabase::pathFor(store())));
            QVERIFY(run.lines().isEmpty());
        }
        Run run(path(), 150);
        run.post({pictureOf("B", 150, 200)});
        makeStore();
        QTRY_COMPARE_WITH_TIMEOUT(
            handedIn(),
            QStringList({QStringLiteral("schedule 3"), QStringLiteral("A 0-100"),
                         QStringLiteral("gap 9 100-150"), QStringLiteral("B 150-200")}),
            20000);
    }

    void aDatabaseThatIsRefusedIsToldOfOnce()
    {
        QFile file(AsRunDatabase::pathFor(store()));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(QByteArray(5000, 'x'));
        file.close();
        Run run(path(), 0);
        run.post({taking(3, 0), pictureOf("A", 0, 100)});
        QTRY_COMPARE(run.told.count(), 1);
        QVERIFY2(run.lines().first().startsWith(
                     QStringLiteral("the records of what was on the screen wait to be handed in")),
                 qPrintable(run.lines().first()));
        run.post({pictureOf("B", 100, 200)});
        QVERIFY(file.remove());
        QTRY_COMPARE_WITH_TIMEOUT(handedIn().size(), 3, 20000);
        QCOMPARE(run.lines().last(),
                 QStringLiteral("the records of what was on the screen are handed in again"));
        QCOMPARE(run.told.count(), 2);
    }

    void aRefusalIsFollowedByAPause()
    {
        QFile file(AsRunDatabase::pathFor(store()));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(QByteArray(5000, 'x'));
        file.close();
        {
            const auto mail = std::make_shared<AsRunMail>();
            AsRunKeeper keeper(mail, {store(), kScreen, path() + QStringLiteral("/spool/one")},
                               kBoot, std::chrono::hours(1));
            keeper.start(pictureOf("", 0, 0).record);
            QVERIFY(file.remove());
            mail->post(taking(3, 0));
            mail->post(pictureOf("A", 0, 100));
            keeper.work();
            QVERIFY(!file.exists());
        }
        const Run again(path(), 500);
        QTRY_COMPARE(handedIn().mid(0, 2),
                     QStringList({QStringLiteral("schedule 3"), QStringLiteral("A 0-100")}));
    }

    /// It is refused at the end of the handing in, and not when it is opened.
    void aDatabaseThatIsReplaced()
    {
        Run run(path(), 0);
        run.post({taking(3, 0), pictureOf("A", 0, 100)});
        QTRY_COMPARE(handedIn().size(), 2);
        QVERIFY(QFile::remove(AsRunDatabase::pathFor(store())));
        run.post({pictureOf("B", 100, 200)});
        QTRY_COMPARE_WITH_TIMEOUT(handedIn(), QStringList(QStringLiteral("B 100-200")), 20000);
    }

    void aSpoolThatCannotBeMade()
    {
        QFile file(path() + QStringLiteral("/spool"));
        QVERIFY(file.open(QIODevice::WriteOnly));
        {
            Run run(path(), 0);
            QCOMPARE(run.told.count(), 1);
            QVERIFY2(run.lines().first().contains(QStringLiteral("in memory alone")),
                     qPrintable(run.lines().first()));
            run.post({taking(3, 0), pictureOf("A", 0, 100)});
            QTRY_COMPARE(handedIn().size(), 2);
        }
        // Nothing was kept of it but what was handed in, which tells where it ended.
        Run again(path(), 500);
        again.post({taking(3, 500), pictureOf("A", 500, 600)});
        QTRY_COMPARE(handedIn(),
                     QStringList({QStringLiteral("schedule 3"), QStringLiteral("A 0-100"),
                                  QStringLiteral("gap 14 100-500"), QStringLiteral("schedule 3"),
                                  QStringLiteral("A 500-600")}));
    }

    void aDamagedSpoolIsPutAside()
    {
        {
            Run run(path(), 0);
            run.post({taking(3, 0), pictureOf("A", 0, 100)});
            QTRY_COMPARE(handedIn().size(), 2);
            run.keeper.stop();
        }
        QFile file(path() + QStringLiteral("/spool/one"));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(QByteArray(5000, 'x'));
        file.close();
        Run run(path(), 500);
        QCOMPARE(run.told.count(), 1);
        QVERIFY2(run.lines().first().contains(QStringLiteral("were put aside as")),
                 qPrintable(run.lines().first()));
        QTRY_COMPARE(handedIn().last(), QStringLiteral("gap 14 100-500"));
        QCOMPARE(QDir(path() + QStringLiteral("/spool"))
                     .entryList({QStringLiteral("one.damaged-*")})
                     .size(),
                 1);
    }

    void whatWasLeftOutIsAGap()
    {
        Run run(path(), 0);
        run.post({taking(3, 0), pictureOf("A", 0, 100), pictureOf("C", 300, 400)});
        QTRY_COMPARE(handedIn(),
                     QStringList({QStringLiteral("schedule 3"), QStringLiteral("A 0-100"),
                                  QStringLiteral("gap 14 100-300"), QStringLiteral("C 300-400")}));
    }

    void mailThatIsNotTaken()
    {
        AsRunMail mail;
        constexpr int most = 10'000;
        for (int at = 0; at < most; ++at) {
            mail.post(pictureOf("A", at, at + 1));
        }
        mail.post(taking(7, most));
        mail.post(pictureOf("B", most, most + 1));
        AsRunLetter letter = mail.take();
        QCOMPARE(letter.entries.size(), std::size_t(most));
        QCOMPARE(letter.scheduleLeftOut->start->saved, 7);
        mail.post(pictureOf("C", most + 1, most + 2));

        AsRunLedger ledger(kBoot);
        ledger.begin(pictureOf("", 0, 0).record, std::nullopt, std::nullopt);
        ledger.take(letter, true);
        ledger.clear();
        ledger.take(mail.take(), true);
        QStringList lines;
        for (const AsRunRecord& record : ledger.records()) {
            lines += lineOf(record);
        }
        QCOMPARE(lines,
                 QStringList({QStringLiteral("gap 14 10000-10001"), QStringLiteral("schedule 7"),
                              QStringLiteral("C 10001-10002")}));
        QCOMPARE(ledger.contents().size(), std::size_t(1));
    }

    void whereThereIsNoRoom()
    {
        AsRunLedger ledger(kBoot);
        ledger.begin(pictureOf("", 0, 0).record, std::nullopt, std::nullopt);
        AsRunLetter letter;
        letter.entries = {taking(3, 0), pictureOf("A", 0, 100)};
        ledger.take(letter, true);
        ledger.clear();
        letter.entries = {pictureOf("B", 100, 200), taking(4, 200), pictureOf("C", 200, 300)};
        letter.onScreen = pictureOf("D", 300, 350).record;
        ledger.take(letter, false);
        QVERIFY(ledger.records().empty());
        QCOMPARE(lineOf(*ledger.onScreen()), QStringLiteral("gap 14 100-350"));
        letter.entries = {pictureOf("D", 300, 400)};
        letter.onScreen = std::nullopt;
        ledger.take(letter, true);
        QStringList lines;
        for (const AsRunRecord& record : ledger.records()) {
            lines += lineOf(record);
        }
        QCOMPARE(lines, QStringList({QStringLiteral("gap 14 100-300"), QStringLiteral("schedule 4"),
                                     QStringLiteral("D 300-400")}));
        QCOMPARE(ledger.records().back().schedule, ledger.records()[1].schedule);
        QVERIFY(!ledger.onScreen());
    }

    /// Nothing is there twice where a batch was handed in and could not be taken from the spool.
    void handedInTwice()
    {
        {
            Run run(path(), 0);
            run.post({taking(3, 0), pictureOf("A", 0, 100)});
            QTRY_COMPARE(handedIn().size(), 2);
            run.onScreen(pictureOf("B", 100, 150));
            run.keeper.stop();
        }
        const QString spool = path() + QStringLiteral("/spool/one");
        const QString copy = path() + QStringLiteral("/copy");
        QVERIFY(QFile::copy(spool, copy));
        {
            Run run(path(), 500);
            QTRY_COMPARE(handedIn().size(), 4);
            run.keeper.stop();
        }
        // As it was before; the same records come once more.
        QVERIFY(QFile::remove(spool) && QFile::copy(copy, spool));
        Run run(path(), 500);
        run.post({taking(3, 500), pictureOf("B", 500, 600)});
        QTRY_COMPARE(handedIn().size(), 6);
        QCOMPARE(handedIn().mid(2),
                 QStringList({QStringLiteral("B 100-150 killed"), QStringLiteral("gap 9 150-500"),
                              QStringLiteral("schedule 3"), QStringLiteral("B 500-600")}));
    }

private:
    QString path() const { return m_folder->path(); }
    QString store() const { return path() + QStringLiteral("/store"); }
    void makeStore() const
    {
        QFile file(store());
        QVERIFY(file.open(QIODevice::WriteOnly));
    }

    std::vector<AsRunRecord> records() const
    {
        std::vector<AsRunRecord> records;
        AsRunDatabase database;
        if (database.open(AsRunDatabase::pathFor(store()), StoreOpenMode::ReadOnly)) {
            database.visit(kScreen, {1, 1'000'000}, [&records](const AsRunRecord& record) {
                records.push_back(record);
                return true;
            });
        }
        return records;
    }
    QByteArray contents(const QByteArray& hash) const
    {
        QByteArray contents;
        AsRunDatabase database;
        if (database.open(AsRunDatabase::pathFor(store()), StoreOpenMode::ReadOnly)) {
            database.readContents(hash, contents);
        }
        return contents;
    }
    QStringList handedIn() const
    {
        QStringList lines;
        for (const AsRunRecord& record : records()) {
            lines += lineOf(record);
        }
        return lines;
    }

    std::unique_ptr<QTemporaryDir> m_folder;
};

TREL_TEST(tst_AsRunKeeper, QCoreApplication)
#include "tst_AsRunKeeper.moc"
