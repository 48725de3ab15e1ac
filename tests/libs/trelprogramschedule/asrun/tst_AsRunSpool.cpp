#include "AsRunSamples.h"

#include "trelprogramschedule/asrun/AsRunSchedule.h"
#include "trelprogramschedule/asrun/AsRunSpool.h"

#include "support/TestProgram.h"

#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

using namespace trel::mediadispatch;

namespace {

/// Contents of a schedule that no other number gives, larger than a value of a database may be.
QByteArray sampleContents(int number)
{
    AsRunSchedule schedule;
    schedule.zone = QByteArray::number(number);
    return asRunContents(schedule);
}

AsRunRecord taking(const QByteArray& contents)
{
    AsRunRecord record;
    record.kind = AsRunKind::ScheduleTaken;
    record.schedule = asRunScheduleHash(contents);
    record.boot = QByteArray(16, 'b');
    return record;
}

void expect(const StoreResult& result)
{
    QVERIFY2(result, qPrintable(englishText(result)));
}

void compare(const AsRunRecord& one, const AsRunRecord& other)
{
    QCOMPARE(one.kind, other.kind);
    QCOMPARE(one.revision, other.revision);
    QCOMPARE(one.schedule, other.schedule);
    QCOMPARE(one.picture, other.picture);
    QCOMPARE(one.taskId, other.taskId);
    QCOMPARE(one.planId, other.planId);
    QCOMPARE(one.planRow, other.planRow);
    QCOMPARE(one.entry, other.entry);
    QCOMPARE(one.play, other.play);
    QCOMPARE(one.run, other.run);
    QCOMPARE(one.insertion, other.insertion);
    QCOMPARE(one.progIndex, other.progIndex);
    QCOMPARE(one.program, other.program);
    QCOMPARE(one.plannedBegin, other.plannedBegin);
    QCOMPARE(one.plannedEnd, other.plannedEnd);
    QCOMPARE(one.begins, other.begins);
    QCOMPARE(one.ends, other.ends);
    QCOMPARE(one.steadyBegin, other.steadyBegin);
    QCOMPARE(one.steadyEnd, other.steadyEnd);
    QCOMPARE(one.boot, other.boot);
    QCOMPARE(one.shown, other.shown);
    QCOMPARE(one.outcome, other.outcome);
    QCOMPARE(one.late, other.late);
    QCOMPARE(one.why, other.why);
}

} // namespace

/// Records that wait on the player's own disk.
class tst_AsRunSpool : public QObject
{
    Q_OBJECT

private slots:
    void keepsRecordsInOrder()
    {
        AsRunSpool spool;
        expect(spool.open(newPath()));
        QVERIFY(spool.isEmpty());
        QVERIFY(!spool.onScreen() && !spool.last());
        const std::vector<AsRunRecord> records = sampleRecords(5);
        expect(spool.write({records[0], records[1]}, {}, records[2]));
        expect(spool.write({records[2], records[3], records[4]}, {}, std::nullopt));
        AsRunBatch batch;
        expect(spool.read(4, batch));
        QCOMPARE(batch.firstSequence, 1);
        QCOMPARE(batch.records.size(), std::size_t(4));
        for (std::size_t at = 0; at < batch.records.size(); ++at) {
            compare(batch.records[at], records[at]);
        }
        expect(spool.remove(4));
        expect(spool.read(4, batch));
        QCOMPARE(batch.firstSequence, 5);
        QCOMPARE(batch.records.size(), std::size_t(1));
        expect(spool.remove(5));
        QVERIFY(spool.isEmpty());
        compare(*spool.last(), records[4]);
    }

    void isThereAgain()
    {
        const QString path = newPath();
        QByteArray source;
        AsRunRecord every = sampleRecord(2);
        every.kind = AsRunKind::Gap;
        every.picture = ScreenPicture::Frozen;
        every.insertion = 12;
        every.plannedBegin = kEver;
        every.plannedEnd = kNever;
        every.shown = AsRunShown::FormerPicture;
        every.outcome = AsRunOutcome::NotRecorded;
        every.why = QStringLiteral("There is no such file.");
        {
            AsRunSpool spool;
            expect(spool.open(path));
            source = spool.source();
            QCOMPARE(source.size(), 16);
            expect(spool.write({sampleRecord(0), sampleRecord(1)}, {}, every));
        }
        AsRunSpool spool;
        expect(spool.open(path));
        QCOMPARE(spool.source(), source);
        compare(*spool.last(), sampleRecord(1));
        compare(*spool.onScreen(), every);
        expect(spool.remove(2));
        expect(spool.write({every}, {}, std::nullopt));
        QVERIFY(!spool.onScreen());
        AsRunBatch batch;
        expect(spool.read(10, batch));
        QCOMPARE(batch.firstSequence, 3);
        compare(batch.records.front(), every);
    }

    void keepsASchedulesContentsForAsLongAsARecordTakesIt()
    {
        AsRunSpool spool;
        expect(spool.open(newPath()));
        const QByteArray one = sampleContents(1);
        const QByteArray two = sampleContents(2);
        expect(spool.write({taking(one), sampleRecord(0)}, {one}, std::nullopt));
        expect(spool.write({taking(two), taking(one)}, {two, one}, std::nullopt));
        AsRunBatch batch;
        expect(spool.read(2, batch));
        QCOMPARE(batch.contents, std::vector<QByteArray>{one});
        expect(spool.remove(3));
        expect(spool.read(10, batch));
        QCOMPARE(batch.contents, std::vector<QByteArray>{one});
        expect(spool.remove(4));
        // It is asked for once more by nobody, and would be missed if it were.
        expect(spool.write({taking(one)}, {}, std::nullopt));
        const StoreResult result = spool.read(10, batch);
        QCOMPARE(result.problem, StoreProblem::Damaged);
    }

    void isForItsOwnerAlone()
    {
        const QString path = newPath();
        AsRunSpool spool;
        expect(spool.open(path));
        QCOMPARE(QFile::permissions(path) &
                     (QFile::ReadGroup | QFile::WriteGroup | QFile::ReadOther | QFile::WriteOther),
                 QFile::Permissions());
    }

    void isForOneProcess()
    {
        const QString path = newPath();
        AsRunSpool spool;
        expect(spool.open(path));
        expect(spool.write({sampleRecord(0)}, {}, std::nullopt));
        AsRunSpool second;
        QCOMPARE(second.open(path).problem, StoreProblem::Locked);
    }

    void inMemory()
    {
        AsRunSpool spool;
        expect(spool.openInMemory());
        QCOMPARE(spool.source().size(), 16);
        expect(spool.write({sampleRecord(0)}, {}, std::nullopt));
        AsRunBatch batch;
        expect(spool.read(10, batch));
        compare(batch.records.front(), sampleRecord(0));
    }

    void tellsItsSize()
    {
        AsRunSpool spool;
        expect(spool.open(newPath()));
        const qint64 empty = spool.size();
        expect(spool.write(sampleRecords(2000), {}, std::nullopt));
        const qint64 full = spool.size();
        QVERIFY(full > empty + 2000 * 100);
        expect(spool.remove(2000));
        QVERIFY(spool.size() < empty + (full - empty) / 4);
    }

    void whatIsNoSpoolIsRefusedAndPutAside_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::newRow("junk") << QByteArray(5000, 'x');
        QTest::newRow("cut short") << spoolContent().left(5000);
        QByteArray altered = spoolContent();
        altered.replace("record_takes", "record_taken");
        QTest::newRow("altered") << altered;
        QByteArray foreign = spoolContent();
        foreign.replace("TrlW", "Frgn");
        QTest::newRow("of another program") << foreign;
        QByteArray spoiled = spoolContent();
        const int at = spoiled.lastIndexOf(QByteArray(16, 'b'));
        QVERIFY(at > 0);
        spoiled.replace(at - 400, 300, QByteArray(300, '\xff'));
        QTest::newRow("spoiled") << spoiled;
    }
    void whatIsNoSpoolIsRefusedAndPutAside()
    {
        QFETCH(QByteArray, content);
        const QString path = newPath();
        write(path, content);
        StoreResult result;
        {
            AsRunSpool spool;
            result = spool.open(path);
            AsRunBatch batch;
            if (result) {
                result = spool.read(10, batch);
            }
        }
        QVERIFY(!result);
        QVERIFY2(AsRunSpool::isSpoiled(result), qPrintable(englishText(result)));
        const QString aside = AsRunSpool::setAside(path);
        QVERIFY(aside.startsWith(path + QStringLiteral(".damaged-")));
        QVERIFY(QFile::exists(aside));
        AsRunSpool spool;
        expect(spool.open(path));
        QVERIFY(spool.isEmpty());
    }

    void aFolderThatIsNotThereIsNoReasonToPutAnythingAside()
    {
        AsRunSpool spool;
        const StoreResult result = spool.open(m_folder.filePath(QStringLiteral("no/where")));
        QVERIFY(!result);
        QVERIFY(!AsRunSpool::isSpoiled(result));
        // As is one that is not open.
        QVERIFY(spool.isEmpty() && !spool.onScreen() && !spool.last());
        QCOMPARE(spool.write({}, {}, std::nullopt).problem, StoreProblem::NotOpen);
        QCOMPARE(spool.remove(1).problem, StoreProblem::NotOpen);
    }

    void aLinkIsNotFollowed()
    {
        const QString path = newPath();
        const QString target = newPath();
        write(target, {});
        QVERIFY(QFile::link(target, path));
        AsRunSpool spool;
        QVERIFY(!spool.open(path));
        QCOMPARE(QFile(target).size(), 0);
    }

private:
    static void write(const QString& path, const QByteArray& content)
    {
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(content);
    }

    static QByteArray spoolContent()
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath(QStringLiteral("spool"));
        {
            AsRunSpool spool;
            expect(spool.open(path));
            expect(spool.write(sampleRecords(10), {}, sampleRecord(10)));
        }
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    /// A new one each time.
    QString newPath() { return m_folder.filePath(QStringLiteral("spool%1").arg(++m_files)); }

    QTemporaryDir m_folder;
    int m_files = 0;
};

TREL_TEST(tst_AsRunSpool, QCoreApplication)
#include "tst_AsRunSpool.moc"
