#include "AsRunSamples.h"
#include "AsRunTampering.h"
#include "support/TestProgram.h"
#include "trelprogramschedule/asrun/AsRunVerification.h"

#include <QFile>
#include <QRandomGenerator>
#include <QtTest>

#include <algorithm>

using namespace trel::mediadispatch;

namespace {

using Kind = AsRunBreak::Kind;
constexpr int kRecords = 1000;

/// Two screens with a thousand records each, made once, and copied for each break. Of the first
/// screen some may have gone because of their age.
class Samples
{
public:
    explicit Samples(int removed = 0)
    {
        fixture.append(sampleRecords(kRecords), 1, QStringLiteral("hall"), "one");
        fixture.append(sampleRecords(kRecords, 5000), 1, QStringLiteral("bar"), "two");
        qint64 gone = 0;
        [&] {
            QVERIFY(fixture.database.removeBefore(QStringLiteral("hall"),
                                                  sampleRecord(removed).begins, gone));
            QCOMPARE(gone, std::max(0, removed - 1));
        }();
        fixture.database.close();
    }

    /// What is found in a copy that was tampered with.
    std::vector<AsRunBreak> breaks(const QStringList& statements,
                                   const QString& screen = QStringLiteral("hall"))
    {
        const QString copy = fixture.folder.filePath(QStringLiteral("copy"));
        QFile::remove(copy);
        QFile::copy(fixture.path, copy);
        tamper(copy, statements);
        AsRunDatabase database;
        [&] { QVERIFY(database.open(copy, StoreOpenMode::ReadOnly)); }();
        std::vector<AsRunScreen> screens;
        [&] { QVERIFY(database.screens(screens)); }();
        for (const AsRunScreen& one : screens) {
            AsRunVerdict verdict;
            [&] { QVERIFY(verifyAsRun(database, one, kEver, kNever, verdict)); }();
            if (one.name == screen) {
                [&] { QCOMPARE(verdict.breakCount == 0, verdict.breaks.empty()); }();
                return verdict.breaks;
            }
        }
        return {};
    }

    AsRunFixture fixture;
};

QString change(int number, const QString& what)
{
    return QStringLiteral("UPDATE record SET %1 WHERE screen_id = 1 AND number = %2")
        .arg(what)
        .arg(number);
}

QString removal(int number)
{
    return QStringLiteral("DELETE FROM record WHERE screen_id = 1 AND number = %1").arg(number);
}

/// Gives records other numbers, without meeting those that have them.
QStringList renumbering(const QString& where, int by)
{
    return {QStringLiteral("UPDATE record SET number = -number - (%2) WHERE screen_id = 1 AND %1")
                .arg(where)
                .arg(by),
            QStringLiteral("UPDATE record SET number = -number WHERE number < 0")};
}

QString columns(const QString& number, const QString& screen = QStringLiteral("screen_id"))
{
    return QStringLiteral(
               "INSERT INTO record SELECT %1, %2, kind, revision, schedule, picture, task_id,"
               " plan_id, plan_row, entry, play, run, insertion, prog_index, program,"
               " planned_begin, planned_end, begins, ends, steady_begin, steady_end, boot, shown,"
               " outcome, late, why, hash FROM record ")
        .arg(screen, number);
}

#define COMPARE_BREAK(FOUND, KIND, FIRST, LAST)                                                    \
    QCOMPARE((FOUND).size(), std::size_t(1));                                                      \
    QCOMPARE(static_cast<int>((FOUND)[0].kind), static_cast<int>(KIND));                           \
    QCOMPARE((FOUND)[0].first, qint64(FIRST));                                                     \
    QCOMPARE((FOUND)[0].last, qint64(LAST))

} // namespace

/// Whatever is done to a chain behind its back is found, and where.
class tst_AsRunChain : public QObject
{
    Q_OBJECT

private slots:
    void aChainThatWasLeftAloneIsWhole();
    void everyFieldCounts_data();
    void everyFieldCounts();
    void anyRecordThatIsChangedIsNamed();
    void anyRecordThatIsTakenOutIsNamed();
    void recordsTakenOutAndCountedDownAreNamed();
    void twoThatAreSwappedAreNamed();
    void whatIsPutInIsNamed();
    void whatIsAddedAtTheEndIsNamed();
    void aTailThatIsCutOffIsNamed();
    void anotherHeadIsNamed();
    void aRecordOfAnotherScreenIsNamed();
    void aDayIsCheckedByItself();
    void manyBreaksAreCounted();
    void theSameHoldsBehindAnAnchor();
    void whatIsPutInFrontIsNamed();

private:
    Samples m_samples;
    QRandomGenerator m_random{11};
};

void tst_AsRunChain::aChainThatWasLeftAloneIsWhole()
{
    QVERIFY(m_samples.breaks({}).empty());
    QVERIFY(m_samples.breaks({}, QStringLiteral("bar")).empty());
}

void tst_AsRunChain::everyFieldCounts_data()
{
    QTest::addColumn<QString>("column");
    for (const char* const column :
         {"kind",  "revision", "picture", "task_id",       "plan_id",      "plan_row",
          "entry", "play",     "run",     "insertion",     "prog_index",   "program",
          "ends",  "boot",     "begins",  "planned_begin", "planned_end",  "schedule",
          "shown", "outcome",  "late",    "why",           "steady_begin", "steady_end"}) {
        QTest::newRow(column) << QString::fromLatin1(column);
    }
}

void tst_AsRunChain::everyFieldCounts()
{
    QFETCH(const QString, column);
    const int number = 1 + m_random.bounded(kRecords);
    const auto found = m_samples.breaks({change(number, column + QStringLiteral("=1+") + column)});
    COMPARE_BREAK(found, Kind::Changed, number, number);
}

void tst_AsRunChain::anyRecordThatIsChangedIsNamed()
{
    for (const int number : {1, 2, 500, kRecords - 1, kRecords}) {
        const auto contents = m_samples.breaks({change(number, QStringLiteral("late = 5"))});
        COMPARE_BREAK(contents, Kind::Changed, number, number);
        QCOMPARE(contents[0].moment, sampleRecord(number - 1).begins);
        const auto hash = m_samples.breaks({change(number, QStringLiteral("hash = zeroblob(32)"))});
        COMPARE_BREAK(hash, Kind::Changed, number, number);
    }
}

void tst_AsRunChain::anyRecordThatIsTakenOutIsNamed()
{
    for (const int number : {1, 2, 3, 777, kRecords - 1}) {
        const auto one = m_samples.breaks({removal(number)});
        COMPARE_BREAK(one, Kind::Missing, number, number);
    }
    const auto some = m_samples.breaks(
        {QStringLiteral("DELETE FROM record WHERE screen_id = 1 AND number BETWEEN 300 AND 399")});
    COMPARE_BREAK(some, Kind::Missing, 300, 399);
}

void tst_AsRunChain::recordsTakenOutAndCountedDownAreNamed()
{
    for (const int many : {1, 2, 16}) {
        QStringList statements = {
            QStringLiteral("DELETE FROM record WHERE screen_id = 1 AND number >= 300"
                           " AND number < %1")
                .arg(300 + many)};
        statements += renumbering(QStringLiteral("number >= 300"), -many);
        const auto found = m_samples.breaks(statements);
        COMPARE_BREAK(found, Kind::Missing, 300, 299 + many);
    }
}

void tst_AsRunChain::twoThatAreSwappedAreNamed()
{
    for (const auto& [a, b] : {std::pair(1, 2), std::pair(1, 1000), std::pair(400, 401),
                               std::pair(400, 402), std::pair(17, 830), std::pair(999, 1000)}) {
        QStringList statements = {change(a, QStringLiteral("number = -1")),
                                  change(b, QStringLiteral("number = %1").arg(a)),
                                  change(-1, QStringLiteral("number = %1").arg(b))};
        const auto whole = m_samples.breaks(statements);
        COMPARE_BREAK(whole, Kind::Swapped, a, b);
        // The hashes stay where they were.
        statements +=
            {QStringLiteral("CREATE TEMP TABLE t AS SELECT number, hash FROM record"
                            " WHERE screen_id = 1 AND number IN (%1, %2)")
                 .arg(a)
                 .arg(b),
             change(a, QStringLiteral("hash = (SELECT hash FROM t WHERE number = %1)").arg(b)),
             change(b, QStringLiteral("hash = (SELECT hash FROM t WHERE number = %1)").arg(a))};
        const auto contents = m_samples.breaks(statements);
        COMPARE_BREAK(contents, Kind::Swapped, a, b);
    }
}

void tst_AsRunChain::whatIsPutInIsNamed()
{
    for (const int number : {1, 500, kRecords}) {
        QStringList statements = renumbering(QStringLiteral("number >= %1").arg(number), 1);
        statements += columns(QString::number(number)) +
                      QStringLiteral("WHERE screen_id = 1 AND number = 250");
        const auto found = m_samples.breaks(statements);
        COMPARE_BREAK(found, Kind::Added, number, number);
    }
}

void tst_AsRunChain::whatIsAddedAtTheEndIsNamed()
{
    const auto found = m_samples.breaks({columns(QStringLiteral("number + 1")) +
                                         QStringLiteral("WHERE screen_id = 1 AND number = 1000")});
    COMPARE_BREAK(found, Kind::Added, 1001, 1001);
}

void tst_AsRunChain::aTailThatIsCutOffIsNamed()
{
    for (const int first : {1, 600, kRecords}) {
        const auto found = m_samples.breaks(
            {QStringLiteral("DELETE FROM record WHERE screen_id = 1 AND number >= %1").arg(first)});
        COMPARE_BREAK(found, Kind::Missing, first, kRecords);
    }
}

void tst_AsRunChain::anotherHeadIsNamed()
{
    for (const char* const what : {"last_hash = zeroblob(32)", "last_number = last_number + 3",
                                   "last_number = last_number - 3"}) {
        const auto found = m_samples.breaks(
            {QStringLiteral("UPDATE screen SET %1 WHERE id = 1").arg(QLatin1String(what))});
        QCOMPARE(found.size(), std::size_t(1));
        QCOMPARE(static_cast<int>(found[0].kind), static_cast<int>(Kind::Head));
    }
    const auto cut = m_samples.breaks(
        {QStringLiteral("UPDATE screen SET (last_number, last_hash) = (SELECT number, hash FROM"
                        " record WHERE screen_id = 1 AND number = 990) WHERE id = 1")});
    COMPARE_BREAK(cut, Kind::Added, 991, 1000);
    const auto anchor = m_samples.breaks(
        {QStringLiteral("UPDATE screen SET anchor_hash = zeroblob(32) WHERE id = 1")});
    COMPARE_BREAK(anchor, Kind::Changed, 1, 1);
    const auto name = m_samples.breaks(
        {QStringLiteral("UPDATE screen SET name = 'wall' WHERE id = 1")}, QStringLiteral("wall"));
    COMPARE_BREAK(name, Kind::Changed, 1, 1);
}

void tst_AsRunChain::aRecordOfAnotherScreenIsNamed()
{
    const auto found = m_samples.breaks(
        {removal(300), columns(QStringLiteral("number"), QStringLiteral("1")) +
                           QStringLiteral("WHERE screen_id = 2 AND number = 300")});
    QVERIFY(!found.empty());
    QCOMPARE(static_cast<int>(found[0].kind), static_cast<int>(Kind::OtherScreen));
    QCOMPARE(found[0].first, 300);
    QCOMPARE(found[0].otherScreen, QStringLiteral("bar"));
    // What follows it has nothing to follow any more.
    QVERIFY(found.size() == 1 || (found.size() == 2 && found[1].first == 301));
}

void tst_AsRunChain::aDayIsCheckedByItself()
{
    AsRunFixture fixture;
    fixture.append(sampleRecords(kRecords));
    const AsRunScreen screen = fixture.screen();
    const Instant from = sampleRecord(500).begins;
    const Instant to = sampleRecord(600).begins;
    AsRunVerdict verdict;
    QVERIFY(verifyAsRun(fixture.database, screen, from, to, verdict));
    QCOMPARE(verdict.records, 100);
    QVERIFY(verdict.breaks.empty());
    QVERIFY(!verdict.isWhole);
    fixture.database.close();
    tamper(fixture.path,
           {change(400, QStringLiteral("late = 9")), change(520, QStringLiteral("late = 9"))});
    fixture.open(StoreOpenMode::ReadOnly);
    QVERIFY(verifyAsRun(fixture.database, screen, from, to, verdict));
    COMPARE_BREAK(verdict.breaks, Kind::Changed, 520, 520);
}

void tst_AsRunChain::manyBreaksAreCounted()
{
    const auto found = m_samples.breaks(
        {QStringLiteral("UPDATE record SET late = 77 WHERE screen_id = 1 AND number % 2 = 0")});
    QCOMPARE(found.size(), std::size_t(500));
    QCOMPARE(found[499].first, 1000);
}

void tst_AsRunChain::theSameHoldsBehindAnAnchor()
{
    constexpr int first = 301;
    Samples samples(first);
    QVERIFY(samples.breaks({}).empty());
    for (const int number : {first, first + 1, 650, kRecords}) {
        const auto changed = samples.breaks({change(number, QStringLiteral("late = 5"))});
        COMPARE_BREAK(changed, Kind::Changed, number, number);
        const auto removed = samples.breaks({removal(number)});
        COMPARE_BREAK(removed, Kind::Missing, number, number);
        QStringList statements = renumbering(QStringLiteral("number >= %1").arg(number), 1);
        statements += columns(QString::number(number)) +
                      QStringLiteral("WHERE screen_id = 1 AND number = 750");
        const auto added = samples.breaks(statements);
        COMPARE_BREAK(added, Kind::Added, number, number);
    }
    for (const auto& [a, b] : {std::pair(first, first + 1), std::pair(first, kRecords),
                               std::pair(650, 700), std::pair(kRecords - 1, kRecords)}) {
        const auto swapped = samples.breaks({change(a, QStringLiteral("number = -1")),
                                             change(b, QStringLiteral("number = %1").arg(a)),
                                             change(-1, QStringLiteral("number = %1").arg(b))});
        COMPARE_BREAK(swapped, Kind::Swapped, a, b);
    }
    const auto all = samples.breaks({QStringLiteral("DELETE FROM record WHERE screen_id = 1")});
    COMPARE_BREAK(all, Kind::Missing, first, kRecords);
    // One that has gone comes back, or others are said to have gone.
    const auto back = samples.breaks({columns(QString::number(first - 1)) +
                                      QStringLiteral("WHERE screen_id = 1 AND number = 301")});
    COMPARE_BREAK(back, Kind::Added, first - 1, first - 1);
    const auto gone = samples.breaks(
        {removal(first), QStringLiteral("UPDATE screen SET anchor_number = 301 WHERE id = 1")});
    COMPARE_BREAK(gone, Kind::Changed, first + 1, first + 1);
}

void tst_AsRunChain::whatIsPutInFrontIsNamed()
{
    for (const int number : {0, -7}) {
        const auto found = m_samples.breaks({columns(QString::number(number)) +
                                             QStringLiteral("WHERE screen_id = 1 AND number = 1")});
        COMPARE_BREAK(found, Kind::Added, number, number);
    }
    const auto two = m_samples.breaks({columns(QStringLiteral("number - 2")) +
                                       QStringLiteral("WHERE screen_id = 1 AND number IN (1, 2)")});
    COMPARE_BREAK(two, Kind::Added, -1, 0);
}

TREL_TEST(tst_AsRunChain, QCoreApplication)
#include "tst_AsRunChain.moc"
