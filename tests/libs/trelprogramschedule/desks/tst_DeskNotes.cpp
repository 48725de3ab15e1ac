#include "desks/DeskNotes.h"
#include "support/TestProgram.h"
#include "trelprogramschedule/desks/DeskWatch.h"

#include <QCoreApplication>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

#include <csignal>
#include <memory>

#include <sys/wait.h>
#include <unistd.h>

using namespace trel::mediadispatch;

namespace {

constexpr std::chrono::milliseconds kQuick{10};

DeskNote note(Instant since, Instant changed, std::vector<int> taskIds)
{
    DeskNote note;
    note.since = since;
    note.changed = changed;
    note.taskIds = std::move(taskIds);
    return note;
}

/// "anna@studio 10-20: 1 3|bert@hall 5-6: 2"
QString line(const std::vector<DeskNote>& notes)
{
    QStringList lines;
    for (const DeskNote& note : notes) {
        QStringList tasks;
        for (const int id : note.taskIds) {
            tasks.append(QString::number(id));
        }
        lines.append(QStringLiteral("%1 %2-%3: %4")
                         .arg(note.desk)
                         .arg(note.since)
                         .arg(note.changed)
                         .arg(tasks.join(QLatin1Char(' '))));
    }
    return lines.join(QLatin1Char('|'));
}

QByteArray contents(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void put(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(bytes), bytes.size());
}

} // namespace

/// Desks tell each other what they have open for editing.
class tst_DeskNotes : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_folder = std::make_unique<QTemporaryDir>(); }
    void seeEachOther();
    void tellTheFirstOfManyTasks();
    void aNameLeadsNowhereElse();
    void whatWasLeftGoes();
    void aKilledProgramIsNotTold();
    void whatIsNoNoteStays_data();
    void whatIsNoNoteStays();
    void whatCannotBeWrittenIsTriedAgain();
    void theWatchTellsAndHears();
    void theWatchLeavesWithItsStore();
    void aServerHasNoFolder();

private:
    QString store() const { return m_folder->filePath(QStringLiteral("screen.db")); }
    QStringList files() const { return QDir(m_folder->path()).entryList(QDir::Files); }

    std::unique_ptr<QTemporaryDir> m_folder;
};

void tst_DeskNotes::seeEachOther()
{
    DeskNotes bert(store(), QStringLiteral("bert@hall"));
    DeskNotes anna(store(), QStringLiteral("anna@studio"));
    const DeskNotes third(store(), QStringLiteral("carl@office"));
    const DeskNotes elsewhere(store() + QLatin1Char('2'), QStringLiteral("anna@studio"));
    QCOMPARE(line(third.others()), QString());
    QVERIFY(bert.write(note(5, 6, {2})));
    QVERIFY(anna.write(note(10, 20, {1, 3})));
    QCOMPARE(line(third.others()), QStringLiteral("anna@studio 10-20: 1 3|bert@hall 5-6: 2"));
    QCOMPARE(line(anna.others()), QStringLiteral("bert@hall 5-6: 2"));
    QCOMPARE(line(elsewhere.others()), QString());
    QVERIFY(anna.write(note(10, 30, {1})));
    QCOMPARE(line(bert.others()), QStringLiteral("anna@studio 10-30: 1"));
    anna.withdraw();
    QCOMPARE(line(bert.others()), QString());
    QVERIFY(anna.write(note(40, 40, {7})));
    QCOMPARE(line(bert.others()), QStringLiteral("anna@studio 40-40: 7"));
    // Other users may read it.
    QVERIFY(QFile::permissions(anna.path()).testFlag(QFile::ReadOther));
}

void tst_DeskNotes::tellTheFirstOfManyTasks()
{
    std::vector<int> many;
    for (int id = -1000; id < 1000; ++id) {
        many.push_back(id * 1000000);
    }
    DeskNotes anna(store(), QString(300, QLatin1Char('a')));
    QVERIFY(anna.write(note(1, 2, many)));
    const DeskNotes bert(store(), QStringLiteral("bert@hall"));
    const std::vector<DeskNote> others = bert.others();
    QCOMPARE(others.size(), std::size_t(1));
    many.resize(kMostNoteTasks);
    QVERIFY(others.front().taskIds == many);
    QCOMPARE(others.front().desk.size(), 100);
}

void tst_DeskNotes::aNameLeadsNowhereElse()
{
    DeskNotes anna(store(), QStringLiteral("../änna/b@x"));
    QVERIFY(anna.write(note(1, 2, {3})));
    QCOMPARE(files().size(), 1);
    const DeskNotes bert(store(), QStringLiteral("bert@hall"));
    QCOMPARE(line(bert.others()), QStringLiteral("../änna/b@x 1-2: 3"));
}

void tst_DeskNotes::whatWasLeftGoes()
{
    const QString left = store() + QStringLiteral(".edited-anna@studio.1");
    DeskNotes anna(store(), QStringLiteral("anna@studio"));
    QVERIFY(anna.write(note(10, 20, {1})));
    put(left, contents(anna.path()));
    const DeskNotes bert(store(), QStringLiteral("bert@hall"));
    QCOMPARE(line(bert.others()), QStringLiteral("anna@studio 10-20: 1"));
    QVERIFY(!QFile::exists(left));
    QVERIFY(QFile::exists(anna.path()));
}

void tst_DeskNotes::aKilledProgramIsNotTold()
{
    int ready[2];
    QCOMPARE(::pipe(ready), 0);
    const pid_t child = ::fork();
    if (child == 0) {
        DeskNotes anna(store(), QStringLiteral("anna@studio"));
        const char isWritten = anna.write(note(10, 20, {1})) ? 'y' : 'n';
        if (::write(ready[1], &isWritten, 1) == 1) {
            ::pause();
        }
        ::_exit(1);
    }
    char isWritten = 0;
    QCOMPARE(::read(ready[0], &isWritten, 1), ssize_t(1));
    QCOMPARE(isWritten, 'y');
    const DeskNotes bert(store(), QStringLiteral("bert@hall"));
    QCOMPARE(line(bert.others()), QStringLiteral("anna@studio 10-20: 1"));
    QCOMPARE(::kill(child, SIGKILL), 0);
    QCOMPARE(::waitpid(child, nullptr, 0), child);
    QCOMPARE(files().size(), 1);
    QCOMPARE(line(bert.others()), QString());
    QCOMPARE(files(), QStringList());
    ::close(ready[0]);
    ::close(ready[1]);
}

void tst_DeskNotes::whatIsNoNoteStays_data()
{
    QTest::addColumn<QByteArray>("bytes");
    const auto padded = [](const char* text) { return QByteArray(text).leftJustified(4096, ' '); };
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("a word") << QByteArray("mine");
    QTest::newRow("no note") << padded("{}");
    QTest::newRow("a later version")
        << padded(R"({"format":"trel-desk","version":2,"desk":"anna"})");
    QTest::newRow("nobody's") << padded(R"({"format":"trel-desk","version":1,"desk":""})");
    QTest::newRow("two lines") << padded(R"({"format":"trel-desk","version":1,"desk":"a\nb"})");
    QTest::newRow("too large")
        << QByteArray(R"({"format":"trel-desk","version":1,"desk":"anna"})").leftJustified(9000);
}

void tst_DeskNotes::whatIsNoNoteStays()
{
    QFETCH(const QByteArray, bytes);
    const QString path = store() + QStringLiteral(".edited-anna@studio.1");
    put(path, bytes);
    const DeskNotes bert(store(), QStringLiteral("bert@hall"));
    QCOMPARE(line(bert.others()), QString());
    QCOMPARE(contents(path), bytes);
}

void tst_DeskNotes::whatCannotBeWrittenIsTriedAgain()
{
    const QString folder = m_folder->filePath(QStringLiteral("later"));
    DeskNotes anna(folder + QStringLiteral("/screen.db"), QStringLiteral("anna@studio"));
    QVERIFY(!anna.write(note(1, 2, {3})));
    QVERIFY(QDir().mkdir(folder));
    QVERIFY(anna.write(note(1, 2, {3})));
    // What somebody has taken away comes with the next change.
    QVERIFY(QFile::remove(anna.path()));
    QVERIFY(anna.write(note(1, 3, {3})));
    QVERIFY(QFile::exists(anna.path()));
}

void tst_DeskNotes::theWatchTellsAndHears()
{
    DeskWatch anna(QStringLiteral("anna@studio"), nullptr, kQuick);
    DeskWatch bert(QStringLiteral("bert@hall"), nullptr, kQuick);
    QSignalSpy changed(&bert, &DeskWatch::changed);
    QVERIFY(changed.isValid());
    anna.begin(store());
    bert.begin(store());
    anna.tellEdited({});
    anna.tellEdited({1, 3});
    QTRY_COMPARE(bert.others().size(), std::size_t(1));
    const DeskNote first = bert.others().front();
    QCOMPARE(first.desk, QStringLiteral("anna@studio"));
    QVERIFY(first.since > 0);
    QCOMPARE(first.changed, first.since);
    QVERIFY(first.taskIds == (std::vector<int>{1, 3}));
    QVERIFY(anna.others().empty());
    QCOMPARE(changed.count(), 1);
    // A later change leaves since as it was.
    QTRY_VERIFY(QDateTime::currentMSecsSinceEpoch() > first.changed);
    anna.tellEdited({1});
    QTRY_VERIFY(bert.others().front().changed > first.changed);
    QCOMPARE(bert.others().front().since, first.since);
    anna.tellEdited({});
    QTRY_VERIFY(bert.others().empty());
    QCOMPARE(files(), QStringList());
}

void tst_DeskNotes::theWatchLeavesWithItsStore()
{
    DeskWatch bert(QStringLiteral("bert@hall"), nullptr, kQuick);
    bert.begin(store());
    {
        DeskWatch anna(QStringLiteral("anna@studio"), nullptr, kQuick);
        anna.begin(store());
        anna.tellEdited({1});
        QTRY_VERIFY(!bert.others().empty());
        // Another store is opened in its place.
        anna.begin(store() + QLatin1Char('2'));
        QTRY_VERIFY(bert.others().empty());
        anna.begin(store());
        anna.tellEdited({1});
        QTRY_VERIFY(!bert.others().empty());
    }
    QCOMPARE(files(), QStringList());
    QTRY_VERIFY(bert.others().empty());
    DeskWatch carl(QStringLiteral("carl@office"), nullptr, kQuick);
    carl.begin(store());
    carl.tellEdited({2});
    QTRY_VERIFY(!bert.others().empty());
    bert.begin(QString());
    QVERIFY(bert.others().empty());
}

// What begins as an address is no path, not even where there is a folder of that name.
void tst_DeskNotes::aServerHasNoFolder()
{
    const QString former = QDir::currentPath();
    QVERIFY(QDir::setCurrent(m_folder->path()));
    QVERIFY(QDir().mkpath(QStringLiteral("postgresql:/127.0.0.1:1")));
    const QString address = QStringLiteral("postgresql://127.0.0.1:1/screens?schedule=hall");
    const QString left = address + QStringLiteral(".edited-anna@studio.1");
    DeskNotes bert(store(), QStringLiteral("bert@hall"));
    QVERIFY(bert.write(note(1, 2, {3})));
    put(left, contents(bert.path()));
    {
        DeskWatch anna(QStringLiteral("anna@studio"), nullptr, kQuick);
        QSignalSpy changed(&anna, &DeskWatch::changed);
        anna.begin(store());
        QTRY_COMPARE(changed.count(), 1);
        anna.begin(address);
        QVERIFY(anna.others().empty());
        anna.tellEdited({1});
        // Once this is done, so is all that was asked for before.
        anna.begin(store());
        QTRY_VERIFY(!anna.others().empty());
    }
    // Whoever looks there takes away what was left.
    QVERIFY(QFile::exists(left));
    QVERIFY(QDir::setCurrent(former));
}

TREL_TEST(tst_DeskNotes, QCoreApplication)
#include "tst_DeskNotes.moc"
