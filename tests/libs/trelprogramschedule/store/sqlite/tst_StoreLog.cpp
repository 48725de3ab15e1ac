#include "store/sqlite/StoreLog.h"
#include "support/TestProgram.h"

#include <QTemporaryDir>
#include <QtEndian>
#include <QtTest>

using namespace trel::mediadispatch;

namespace {

constexpr quint32 kPage = 3; ///< The root of the table with the revisions.
constexpr int kFrameHead = 24;

template <typename Number>
QByteArray bigEndian(Number number)
{
    QByteArray bytes(sizeof number, '\0');
    qToBigEndian(number, bytes.data());
    return bytes;
}

/// A number as a row stores it, with the kind that tells its size.
struct Stored
{
    qint64 value = 0;
    int kind = 6;
};

QByteArray bytesOf(const Stored& stored)
{
    constexpr std::array<int, 7> sizes = {0, 1, 2, 3, 4, 6, 8};
    const int size = stored.kind < 7 ? sizes[std::size_t(stored.kind)] : 0;
    return bigEndian(stored.value).right(size);
}

/// The one cell of a table of one row. The head of the cell is the size and the number of the row.
QByteArray cell(const Stored& schedule, const Stored& catalogue,
                const QByteArray& head = QByteArray::fromHex("1401"))
{
    return head + QByteArray::fromHex("0400") + char(schedule.kind) + char(catalogue.kind) +
           bytesOf(schedule) + bytesOf(catalogue);
}

QByteArray page(const QByteArray& cell, int size = 512)
{
    const int place = size - cell.size();
    QByteArray bytes = QByteArray::fromHex("0d00000001") + bigEndian(quint16(place)) + '\0' +
                       bigEndian(quint16(place));
    return bytes + QByteArray(size - bytes.size() - cell.size(), '\0') + cell;
}

QByteArray page(qint64 schedule, qint64 catalogue)
{
    return page(cell({schedule, 6}, {catalogue, 6}));
}

struct Frame
{
    quint32 page;
    bool commits;
    QByteArray content;
};

/// A log as the database writes it.
class Log
{
public:
    explicit Log(quint32 pageSize = 512, bool isBigEndian = false)
        : m_isBigEndian(isBigEndian)
    {
        m_bytes = bigEndian(quint32(0x377f0682 + (isBigEndian ? 1 : 0))) +
                  bigEndian(quint32(3007000)) + bigEndian(pageSize) + bigEndian(quint32(0)) +
                  m_salt;
        sum(m_bytes);
        m_bytes += sums();
    }

    Log& add(const Frame& frame)
    {
        const QByteArray head = bigEndian(frame.page) + bigEndian(quint32(frame.commits ? 4 : 0));
        sum(head);
        sum(frame.content);
        m_bytes += head + m_salt + sums() + frame.content;
        return *this;
    }
    Log& commit(const QByteArray& content) { return add({kPage, true, content}); }

    const QByteArray& bytes() const { return m_bytes; }

private:
    void sum(const QByteArray& bytes)
    {
        for (int place = 0; place < bytes.size(); place += 8) {
            m_first += word(bytes, place) + m_second;
            m_second += word(bytes, place + 4) + m_first;
        }
    }
    quint32 word(const QByteArray& bytes, int place) const
    {
        const char* const at = bytes.constData() + place;
        return m_isBigEndian ? qFromBigEndian<quint32>(at) : qFromLittleEndian<quint32>(at);
    }
    QByteArray sums() const { return bigEndian(m_first) + bigEndian(m_second); }

    bool m_isBigEndian;
    QByteArray m_salt = QByteArrayLiteral("saltSALT");
    quint32 m_first = 0;
    quint32 m_second = 0;
    QByteArray m_bytes;
};

bool follows(const QByteArray& log, qint64 schedule, qint64 catalogue, qint64 effect = 0)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("log"));
    QFile file(path);
    StoreRevision revision;
    revision.schedule = schedule;
    revision.catalogue = catalogue;
    revision.effect = effect;
    return file.open(QIODevice::WriteOnly) && file.write(log) == log.size() && file.flush() &&
           StoreLog(path).follows(revision, kPage);
}

bool follows(const Log& log, qint64 schedule, qint64 catalogue)
{
    return follows(log.bytes(), schedule, catalogue);
}

/// A log in which no commit is found follows anything.
bool isEmpty(const QByteArray& log)
{
    return follows(log, -7777, -7777);
}

/// The first commit of the log is in this state.
bool begins(const Log& log, qint64 schedule, qint64 catalogue)
{
    return follows(log, schedule, catalogue) && follows(log, schedule - 1, catalogue) &&
           follows(log, schedule, catalogue - 1) && !isEmpty(log.bytes());
}

QByteArray changed(QByteArray log, int place)
{
    log[place] = char(log.at(place) ^ 1);
    return log;
}

} // namespace

/// Which logs belong to a database, told from logs made byte by byte.
class tst_StoreLog : public QObject
{
    Q_OBJECT

private slots:
    void followsOneStepAtATime();
    void followsAnyOfItsCommits();
    void aScheduleBringsItsPrograms();
    void countsWhatIsInEffect();
    void numbersOfEverySize_data();
    void numbersOfEverySize();
    void longNumbersBeforeTheRow();
    void pagesOfEverySize_data();
    void pagesOfEverySize();
    void bothOrdersOfBytes();
    void commitsOfOtherPages();
    void pagesThatHoldNoRow();
    void rowsThatEndBeyondThePage();
    void endsWhereAFrameIsDamaged_data();
    void endsWhereAFrameIsDamaged();
    void headersThatAreNone_data();
    void headersThatAreNone();
    void aLogThatIsNotThere();
};

void tst_StoreLog::followsOneStepAtATime()
{
    const Log log = Log().commit(page(5, 3));
    QVERIFY(follows(log, 5, 3));
    QVERIFY(follows(log, 4, 3));
    QVERIFY(follows(log, 5, 2));
    QVERIFY(!follows(log, 3, 3));
    QVERIFY(!follows(log, 5, 1));
    QVERIFY(!follows(log, 6, 3));
    QVERIFY(!follows(log, 5, 4));
    QVERIFY(!follows(log, 6, 1));
    QVERIFY(!follows(log, 3, 4));
}

void tst_StoreLog::followsAnyOfItsCommits()
{
    const Log log = Log().commit(page(5, 3)).commit(page(6, 3)).commit(page(6, 4));
    for (const auto& [schedule, catalogue] :
         std::vector<std::pair<int, int>>{{4, 3}, {5, 3}, {6, 3}, {6, 4}}) {
        QVERIFY(follows(log, schedule, catalogue));
    }
    // Only the first commit may be one step ahead of the file.
    QVERIFY(!follows(log, 6, 2));
    QVERIFY(!follows(log, 5, 4));
    QVERIFY(!follows(log, 7, 4));
    QVERIFY(!follows(log, 6, 5));
}

// One change then counts both numbers, and no more than once each.
void tst_StoreLog::aScheduleBringsItsPrograms()
{
    const QByteArray row = QByteArray::fromHex("1401") + QByteArray::fromHex("0600010100") +
                           QByteArray::fromHex("01") + QByteArray::fromHex("050307");
    const Log log = Log().commit(page(row));
    QVERIFY(follows(log.bytes(), 4, 2, 7));
    QVERIFY(!follows(log.bytes(), 4, 2, 6));
    QVERIFY(!follows(log.bytes(), 4, 2, 8));
    QVERIFY(!follows(log.bytes(), 4, 1, 7));
    QVERIFY(!follows(log.bytes(), 3, 2, 7));
    QVERIFY(!follows(log.bytes(), 6, 2, 7));
    QVERIFY(!follows(log.bytes(), 4, 4, 7));
}

void tst_StoreLog::countsWhatIsInEffect()
{
    // Schedule 5, catalogue 3, and 7 of what is in effect.
    const QByteArray row = QByteArray::fromHex("1401") + QByteArray::fromHex("0600010100") +
                           QByteArray::fromHex("01") + QByteArray::fromHex("050307");
    const Log log = Log().commit(page(row));
    QVERIFY(follows(log.bytes(), 5, 3, 7));
    QVERIFY(follows(log.bytes(), 5, 3, 6));
    QVERIFY(follows(log.bytes(), 4, 3, 7));
    QVERIFY(!follows(log.bytes(), 5, 3, 5));
    QVERIFY(!follows(log.bytes(), 5, 3, 8));
    QVERIFY(!follows(log.bytes(), 4, 3, 6));
    // One of them goes back, and the sum is that of a step.
    QVERIFY(!follows(log.bytes(), 3, 3, 8));
    QVERIFY(!follows(log.bytes(), 5, 1, 8));
    QVERIFY(!follows(log.bytes(), 6, 3, 5));
    QVERIFY(!follows(log.bytes(), 5, 4, 5));
}

void tst_StoreLog::numbersOfEverySize_data()
{
    QTest::addColumn<qint64>("value");
    QTest::addColumn<int>("kind");
    const auto row = [](const char* name, qint64 value, int kind) {
        QTest::newRow(name) << value << kind;
    };
    row("nothing", 0, 0);
    row("one byte", 0x7F, 1);
    row("one byte, negative", -0x80, 1);
    row("two bytes", 0x1234, 2);
    row("two bytes, negative", -0x1234, 2);
    row("three bytes", 0x123456, 3);
    row("three bytes, negative", -0x123456, 3);
    row("four bytes", 0x12345678, 4);
    row("four bytes, negative", -0x12345678, 4);
    row("six bytes", 0x123456789ABC, 5);
    row("six bytes, negative", -0x123456789ABC, 5);
    row("eight bytes", 0x123456789ABCDEF0, 6);
    row("eight bytes, negative", -0x123456789ABCDEF0, 6);
    row("no number", 0, 7);
    row("zero", 0, 8);
    row("one", 1, 9);
    row("unused", 0, 10);
}

void tst_StoreLog::numbersOfEverySize()
{
    QFETCH(qint64, value);
    QFETCH(int, kind);
    QVERIFY(begins(Log().commit(page(cell({value, kind}, {21, 1}))), value, 21));
    QVERIFY(begins(Log().commit(page(cell({21, 1}, {value, kind}))), 21, value));
}

void tst_StoreLog::longNumbersBeforeTheRow()
{
    // The size and the number of the row, in one byte to nine.
    for (const char* head :
         {"1401", "1481 01", "9401ff7f", "80808014ffffffffffffffffff", "ffffffffffffffff1401"}) {
        const QByteArray bytes = QByteArray::fromHex(head);
        QVERIFY2(begins(Log().commit(page(cell({5, 1}, {3, 1}, bytes))), 5, 3), head);
    }
    // The kind of a text of a hundred bytes takes two bytes, and is no number.
    const QByteArray text =
        QByteArray::fromHex("7f01") + QByteArray::fromHex("0500815c01") + QByteArray(1, '\x03');
    QVERIFY(begins(Log().commit(page(text)), 0, 3));
    // A head of the row of 132 bytes, with columns of later versions.
    const QByteArray wide = QByteArray::fromHex("7f01") + QByteArray::fromHex("8104000101") +
                            QByteArray(127, '\0') + QByteArray::fromHex("0503");
    QVERIFY(begins(Log().commit(page(wide)), 5, 3));
}

void tst_StoreLog::pagesOfEverySize_data()
{
    QTest::addColumn<quint32>("size");
    QTest::addColumn<bool>("isTaken");
    QTest::newRow("256") << 256U << false;
    QTest::newRow("511") << 511U << false;
    QTest::newRow("512") << 512U << true;
    QTest::newRow("4096") << 4096U << true;
    QTest::newRow("32768") << 32768U << true;
    QTest::newRow("65536") << 65536U << true;
    QTest::newRow("131072") << 131072U << false;
    QTest::newRow("negative") << 0xFFFFF000U << false;
}

void tst_StoreLog::pagesOfEverySize()
{
    QFETCH(quint32, size);
    QFETCH(bool, isTaken);
    // A page of 65536 bytes has its cell where sixteen bits can name it.
    const int length = size > 131072 ? 4096 : int(size);
    QByteArray content = page(cell({5, 1}, {3, 1}), std::min(length, 32768));
    content.resize((length + 7) / 8 * 8);
    const Log log = Log(size).commit(content);
    QCOMPARE(isEmpty(log.bytes()), !isTaken);
    QCOMPARE(begins(log, 5, 3), isTaken);
}

void tst_StoreLog::bothOrdersOfBytes()
{
    const Log big = Log(512, true).commit(page(5, 3)).commit(page(6, 3));
    QVERIFY(begins(big, 5, 3));
    QVERIFY(follows(big, 6, 3));
    // A checksum of the other order is none.
    QVERIFY(isEmpty(changed(big.bytes(), 3)));
}

void tst_StoreLog::commitsOfOtherPages()
{
    const QByteArray other = page(70, 70);
    Log log;
    log.add({kPage, false, page(4, 4)});
    log.add({kPage, false, page(5, 3)});
    log.add({kPage + 1, false, other});
    QVERIFY(isEmpty(log.bytes()));
    log.add({kPage - 1, true, other});
    QVERIFY(begins(log, 5, 3));
    QVERIFY(!follows(log, 4, 4));
    QVERIFY(!follows(log, 70, 70));
    log.add({kPage + 1, true, other});
    QVERIFY(begins(log, 5, 3));
    log.add({kPage, false, page(6, 3)});
    QVERIFY(!follows(log, 6, 3));
}

void tst_StoreLog::pagesThatHoldNoRow()
{
    QByteArray inner = page(5, 3);
    inner[0] = 5;
    QVERIFY(isEmpty(Log().commit(inner).bytes()));
    // What was found before in the same commit does not count either.
    QVERIFY(isEmpty(Log().add({kPage, false, page(5, 3)}).commit(inner).bytes()));
}

void tst_StoreLog::rowsThatEndBeyondThePage()
{
    // The last byte of the page is the first of two.
    const QByteArray cut = cell({0x1200, 2}, {0x34, 1}).chopped(2);
    QVERIFY(begins(Log().commit(page(cut)), 0x1200, 0));
    // The row is to begin behind the page.
    QByteArray behind = page(5, 3);
    behind.replace(8, 2, bigEndian(quint16(512)));
    QVERIFY(begins(Log().commit(behind), 0, 0));
    behind.replace(8, 2, bigEndian(quint16(0xFFFF)));
    QVERIFY(begins(Log().commit(behind), 0, 0));
    // A head of the row that is longer than any page.
    const QByteArray endless = QByteArray::fromHex("1401ffffffffffffff7f0001010503");
    QVERIFY(begins(Log().commit(page(endless)), 0, 0));
}

void tst_StoreLog::endsWhereAFrameIsDamaged_data()
{
    QTest::addColumn<int>("place");
    QTest::newRow("page") << 3;
    QTest::newRow("commit") << 7;
    QTest::newRow("salt, first byte") << 8;
    QTest::newRow("salt, last byte") << 15;
    QTest::newRow("first half of the checksum") << 19;
    QTest::newRow("second half of the checksum") << 23;
    QTest::newRow("content, first byte") << kFrameHead;
    QTest::newRow("content, last byte") << kFrameHead + 511;
    QTest::newRow("behind it") << -1;
}

void tst_StoreLog::endsWhereAFrameIsDamaged()
{
    QFETCH(int, place);
    const QByteArray first = Log().commit(page(5, 3)).bytes();
    const QByteArray whole = Log().commit(page(5, 3)).commit(page(6, 3)).bytes();
    QVERIFY(follows(whole, 6, 3));
    const QByteArray damaged =
        place < 0 ? whole.chopped(1) : changed(whole, int(first.size()) + place);
    QVERIFY(follows(damaged, 5, 3));
    QVERIFY(!follows(damaged, 6, 3));
}

void tst_StoreLog::headersThatAreNone_data()
{
    QTest::addColumn<QByteArray>("log");
    const QByteArray whole = Log().commit(page(5, 3)).bytes();
    QTest::newRow("nothing") << QByteArray();
    QTest::newRow("too short") << whole.left(31);
    QTest::newRow("a header alone") << whole.left(32);
    for (const int place : {0, 2, 11, 16, 23, 27, 31}) {
        QTest::addRow("byte %d", place) << changed(whole, place);
    }
}

void tst_StoreLog::headersThatAreNone()
{
    QFETCH(QByteArray, log);
    QVERIFY(isEmpty(log));
}

void tst_StoreLog::aLogThatIsNotThere()
{
    QVERIFY(StoreLog(QStringLiteral("/nowhere/at/all")).follows({}, kPage));
}

TREL_TEST(tst_StoreLog, trel::tests::NoApplication)
#include "tst_StoreLog.moc"
