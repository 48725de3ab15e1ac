#include "draft/DraftRecords.h"
#include "support/Growth.h"
#include "support/SampleSchedule.h"
#include "support/TestProgram.h"

#include <QtTest>

#include <random>

using namespace trel::mediadispatch;

namespace {

const DraftHead kHead = {"one store", 12, QStringLiteral("anna@desk")};
constexpr int kFrameHead = 12;

QString stateText(const Draft& draft)
{
    switch (draft.state) {
    case DraftState::Empty:
        return QStringLiteral("empty");
    case DraftState::Whole:
        return QStringLiteral("whole");
    case DraftState::HalfWritten:
        return QStringLiteral("half written");
    case DraftState::Damaged:
        return QStringLiteral("damaged");
    case DraftState::TooNew:
        return QStringLiteral("too new");
    case DraftState::Foreign:
        return QStringLiteral("foreign");
    }
    return {};
}

QString idsOf(const DraftTasks& tasks)
{
    QStringList ids;
    for (const auto& [id, task] : tasks) {
        ids.append((task ? QString() : QStringLiteral("-")) + QString::number(id));
    }
    return ids.join(QLatin1Char(' '));
}

/// State, tasks, and behind a bar those that were canceled.
QString lineOf(const QByteArray& bytes)
{
    const Draft draft = readDraft(bytes);
    const QString line = stateText(draft) + QStringLiteral(": ") + idsOf(draft.tasks);
    return draft.canceled.empty() ? line : line + QStringLiteral(" | ") + idsOf(draft.canceled);
}

QByteArray head()
{
    return draftHeadRecord(kHead, 1);
}

QByteArray task(int id, qint64 at = 2)
{
    return draftTaskRecord(everyFieldTask(id), at);
}

} // namespace

/// What is read out of the bytes of a draft, whatever they are.
class tst_DraftRecords : public QObject
{
    Q_OBJECT

private slots:
    void everyFieldComesBack();
    void theLastStateOfATaskCounts();
    void whatWasCanceledIsKeptApart();
    void aCutTailLeavesWhatStandsBefore();
    void zerosAtTheEndAreACutTail();
    void damageLosesOneRecord();
    void otherFilesAreNone_data();
    void otherFilesAreNone();
    void laterVersionsAreNotRead();
    void aRecordOfAnotherKindIsDamage();
    void manyFalseMarksCostNoMoreThanTheirNumber();
};

void tst_DraftRecords::everyFieldComesBack()
{
    const Draft draft = readDraft(head() + task(7, 1234) + draftRemovalRecord(3, 1200));
    QCOMPARE(stateText(draft), QStringLiteral("whole"));
    QCOMPARE(draft.store, kHead.store);
    QCOMPARE(draft.saved, kHead.saved);
    QCOMPARE(draft.desk, kHead.desk);
    QCOMPARE(draft.edited, qint64(1234));
    QCOMPARE(draft.tasks.size(), std::size_t(2));
    QVERIFY(draft.tasks.at(7) == everyFieldTask(7));
    QVERIFY(!draft.tasks.at(3));
    QVERIFY(draft.canceled.empty());
}

void tst_DraftRecords::theLastStateOfATaskCounts()
{
    PlayTask other = everyFieldTask(1);
    other.startDate = "2031.01.01";
    const Draft draft =
        readDraft(head() + task(1) + draftRemovalRecord(2, 2) + draftTaskRecord(other, 3) +
                  task(2) + task(3) + draftReturnRecord(3, 4));
    QCOMPARE(idsOf(draft.tasks), QStringLiteral("1 2"));
    QCOMPARE(draft.tasks.at(1)->startDate, std::string("2031.01.01"));
}

void tst_DraftRecords::whatWasCanceledIsKeptApart()
{
    const QByteArray first = head() + task(1) + draftRemovalRecord(2, 2) + draftCancelRecord(3);
    QCOMPARE(lineOf(first), QStringLiteral("whole:  | 1 -2"));
    QCOMPARE(lineOf(first + task(4)), QStringLiteral("whole: 4 | 1 -2"));
    QCOMPARE(lineOf(first + task(4) + draftCancelRecord(4)), QStringLiteral("whole:  | 4"));
}

void tst_DraftRecords::aCutTailLeavesWhatStandsBefore()
{
    const QByteArray before = head() + task(1);
    const QByteArray whole = before + task(2);
    QCOMPARE(lineOf({}), QStringLiteral("empty: "));
    for (int size = 1; size < head().size(); ++size) {
        QCOMPARE(lineOf(whole.left(size)), QStringLiteral("half written: "));
    }
    for (int size = before.size() + 1; size < whole.size(); ++size) {
        QCOMPARE(lineOf(whole.left(size)), QStringLiteral("half written: 1"));
    }
    QCOMPARE(lineOf(before), QStringLiteral("whole: 1"));
}

void tst_DraftRecords::zerosAtTheEndAreACutTail()
{
    QCOMPARE(lineOf(head() + task(1) + QByteArray(500, '\0')), QStringLiteral("half written: 1"));
}

void tst_DraftRecords::damageLosesOneRecord()
{
    const QByteArray before = head() + task(1);
    const QByteArray whole = before + task(2) + task(3);
    const int end = before.size() + task(2).size();
    for (int place = before.size(); place < end; ++place) {
        QByteArray damaged = whole;
        damaged[place] = static_cast<char>(damaged[place] ^ 0x20);
        QCOMPARE(lineOf(damaged), QStringLiteral("damaged: 1 3"));
    }
    // Without its head it is not known of which store it is.
    for (int place = 0; place < head().size(); ++place) {
        QByteArray damaged = whole;
        damaged[place] = static_cast<char>(damaged[place] ^ 0x20);
        QCOMPARE(lineOf(damaged), QStringLiteral("damaged: 1 2 3"));
        QVERIFY(readDraft(damaged).store.isEmpty());
    }
    QByteArray last = whole;
    last[last.size() - 1] = '!';
    QCOMPARE(lineOf(last), QStringLiteral("damaged: 1 2"));
    QCOMPARE(lineOf(whole + "and more"), QStringLiteral("damaged: 1 2 3"));
}

void tst_DraftRecords::otherFilesAreNone_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("a text") << QByteArray("something else");
    QTest::newRow("a database") << QByteArray("SQLite format 3\0and so on", 26);
    QByteArray noise(5000, Qt::Uninitialized);
    std::mt19937 random(4);
    for (char& byte : noise) {
        byte = static_cast<char>(random());
    }
    QTest::newRow("noise") << noise;
}

void tst_DraftRecords::otherFilesAreNone()
{
    QFETCH(QByteArray, bytes);
    QCOMPARE(lineOf(bytes), QStringLiteral("foreign: "));
}

void tst_DraftRecords::laterVersionsAreNotRead()
{
    // The number behind kind and moment is the version; the checksum is made anew.
    QByteArray later = head();
    later[kFrameHead + 1 + 8 + 3] = 2;
    QCOMPARE(lineOf(later), QStringLiteral("foreign: "));
    const QByteArray own = later.mid(kFrameHead);
    quint32 sum = 0xFFFFFFFFU;
    for (const char byte : own) {
        sum ^= static_cast<quint8>(byte);
        for (int bit = 0; bit < 8; ++bit) {
            sum = (sum & 1U) != 0 ? sum >> 1U ^ 0xEDB88320U : sum >> 1U;
        }
    }
    qToBigEndian(~sum, later.data() + 8);
    QCOMPARE(lineOf(later + task(1)), QStringLiteral("too new: "));
    QCOMPARE(lineOf(later), QStringLiteral("too new: "));
}

void tst_DraftRecords::aRecordOfAnotherKindIsDamage()
{
    // Two heads: nobody writes that.
    QCOMPARE(lineOf(head() + task(1) + head()), QStringLiteral("damaged: 1"));
    // A task that a schedule cannot hold.
    PlayTask long_ = everyFieldTask(2);
    long_.startDate = std::string(70 * 1024, 'x');
    QCOMPARE(lineOf(head() + draftTaskRecord(long_, 2) + task(1)), QStringLiteral("damaged: 1"));
}

void tst_DraftRecords::manyFalseMarksCostNoMoreThanTheirNumber()
{
    // Each of them says that all the rest belongs to it.
    const auto bytes = [](int count) {
        QByteArray all;
        const int size = count * kFrameHead;
        for (int i = 0; i < count; ++i) {
            QByteArray frame = head().left(kFrameHead);
            qToBigEndian(static_cast<quint32>(size - (i + 1) * kFrameHead), frame.data() + 4);
            all += frame;
        }
        return all;
    };
    const auto work = [&bytes](int count) {
        const QByteArray all = bytes(count);
        const double begin = processorTime();
        readDraft(all);
        return processorTime() - begin;
    };
    QVERIFY(growth(20000, 200000, work) < 4);
}

TREL_TEST(tst_DraftRecords, trel::tests::NoApplication)
#include "tst_DraftRecords.moc"
