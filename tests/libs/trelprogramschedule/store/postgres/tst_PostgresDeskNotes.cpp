#include "store/postgres/PostgresDeskNotes.h"

#include "store/ScheduleDatabase.h"
#include "store/StorePlace.h"
#include "store/postgres/PostgresSetup.h"
#include "support/PostgresServer.h"
#include "support/SampleSchedule.h"
#include "support/TestProgram.h"
#include "trelprogramschedule/desks/DeskWatch.h"

#include <QCoreApplication>
#include <QtTest>

#include <memory>

using namespace trel::mediadispatch;

namespace {

const QString kSchema = QStringLiteral("trel_schedule_hall");
constexpr std::chrono::milliseconds kQuick{10};

DeskNote note(Instant since, Instant changed, const std::vector<int>& tasks)
{
    DeskNote note;
    note.since = since;
    note.changed = changed;
    note.taskIds = tasks;
    return note;
}

QString line(const std::vector<DeskNote>& notes)
{
    QStringList lines;
    for (const DeskNote& one : notes) {
        QStringList ids;
        for (const int id : one.taskIds) {
            ids.append(QString::number(id));
        }
        lines.append(QStringLiteral("%1 %2-%3: %4")
                         .arg(one.desk, QString::number(one.since), QString::number(one.changed),
                              ids.join(QLatin1Char(' '))));
    }
    return lines.join(QLatin1String("; "));
}

} // namespace

/// What desks tell each other of a schedule on a server.
class tst_PostgresDeskNotes : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();

    void othersAreTold();
    void aNoteThatNobodyRenewsExpires();
    void aSaveIsNotKeptWaiting();
    void whatIsNoNoteIsLeftOut();
    void aServerThatComesBackHasThemAgain();
    void theWatchTellsAndHears();

private:
    StorePlace place() const { return StorePlace(m_server->address(QStringLiteral("hall"))); }
    QString run(const char* statement) const
    {
        return m_server->run(QStringLiteral("SET search_path = %1;").arg(kSchema) +
                             QLatin1String(statement));
    }

    std::unique_ptr<PostgresServer> m_server;
};

void tst_PostgresDeskNotes::initTestCase()
{
    m_server = std::make_unique<PostgresServer>();
    QVERIFY(m_server->isRunning());
}

void tst_PostgresDeskNotes::init()
{
    QVERIFY(PostgresSetup::run(place()));
}

void tst_PostgresDeskNotes::cleanup()
{
    if (!m_server->isRunning()) {
        QVERIFY(m_server->start());
    }
    QVERIFY(!run("DROP SCHEMA trel_schedule_hall CASCADE").isNull());
}

void tst_PostgresDeskNotes::othersAreTold()
{
    PostgresDeskNotes bert(place(), QStringLiteral("bert@hall"));
    {
        PostgresDeskNotes anna(place(), QStringLiteral("anna'@\"studio"));
        QVERIFY(anna.write(note(10, 20, {1, 3})));
        QCOMPARE(line(anna.others()), QString());
        QCOMPARE(line(bert.others()), QStringLiteral("anna'@\"studio 10-20: 1 3"));
        // In the place of the former one.
        QVERIFY(anna.write(note(10, 30, {3})));
        QVERIFY(bert.write(note(40, 40, {7})));
        QCOMPARE(line(bert.others()), QStringLiteral("anna'@\"studio 10-30: 3"));
        QCOMPARE(line(anna.others()), QStringLiteral("bert@hall 40-40: 7"));
        bert.withdraw();
        QCOMPARE(line(anna.others()), QString());
    }
    QCOMPARE(line(bert.others()), QString());
    QCOMPARE(run("SELECT count(*) FROM desk_note"), QStringLiteral("0"));
}

void tst_PostgresDeskNotes::aNoteThatNobodyRenewsExpires()
{
    PostgresDeskNotes anna(place(), QStringLiteral("anna@studio"));
    PostgresDeskNotes bert(place(), QStringLiteral("bert@hall"));
    QVERIFY(!anna.renew());
    QVERIFY(anna.write(note(10, 20, {1})));
    run("UPDATE desk_note SET heard = now() - interval '61 s'");
    QCOMPARE(line(bert.others()), QString());
    QVERIFY(anna.renew());
    QCOMPARE(line(bert.others()), QStringLiteral("anna@studio 10-20: 1"));
    run("UPDATE desk_note SET heard = now() - interval '2 days'");
    QVERIFY(bert.write(note(1, 2, {3})));
    QCOMPARE(run("SELECT count(*) FROM desk_note"), QStringLiteral("1"));
    // What somebody has taken away has to be written once more.
    QVERIFY(!anna.renew());
    QVERIFY(anna.write(note(10, 20, {1})));
    QVERIFY(anna.renew());
}

void tst_PostgresDeskNotes::aSaveIsNotKeptWaiting()
{
    m_server->beginAside(QStringLiteral("BEGIN; SELECT one FROM %1.store FOR UPDATE").arg(kSchema));
    QCOMPARE(m_server->lineAside(), QStringLiteral("1"));
    PostgresDeskNotes anna(place(), QStringLiteral("anna@studio"));
    QVERIFY(anna.write(note(10, 20, {1})));
    m_server->endAside();
    m_server->beginAside(
        QStringLiteral("BEGIN; SELECT desk FROM %1.desk_note FOR UPDATE").arg(kSchema));
    QVERIFY(m_server->lineAside().startsWith(QLatin1String("\\x")));
    ScheduleDatabase desk;
    QVERIFY(desk.open(place().text(), StoreOpenMode::MustExist));
    const TaskMap tasks = sampleSchedule(1, 1, 1);
    TaskEdits edits;
    edits.written.push_back(&tasks.begin()->second);
    qint64 revision = 0;
    QVERIFY(desk.writeTasks(tasks, edits, revision));
    m_server->endAside();
}

void tst_PostgresDeskNotes::whatIsNoNoteIsLeftOut()
{
    run("INSERT INTO desk_note VALUES"
        " (gen_random_uuid(), '', 1, 2, '3'),"
        " (gen_random_uuid(), 'two\nlines', 1, 2, '3'),"
        " (gen_random_uuid(), convert_to(repeat('x', 101), 'UTF8'), 1, 2, '3'),"
        " (gen_random_uuid(), 'anna', 1, 2, '3,x,,4')");
    PostgresDeskNotes bert(place(), QStringLiteral("bert@hall"));
    QCOMPARE(line(bert.others()), QStringLiteral("anna 1-2: 3 4"));
}

void tst_PostgresDeskNotes::aServerThatComesBackHasThemAgain()
{
    PostgresDeskNotes anna(place(), QStringLiteral("anna@studio"));
    PostgresDeskNotes bert(place(), QStringLiteral("bert@hall"));
    QVERIFY(anna.write(note(10, 20, {1})));
    m_server->stop();
    QVERIFY(!anna.write(note(10, 30, {1})));
    QCOMPARE(line(bert.others()), QString());
    QVERIFY(m_server->start());
    QVERIFY(anna.write(note(10, 30, {1})));
    QCOMPARE(line(bert.others()), QStringLiteral("anna@studio 10-30: 1"));
}

void tst_PostgresDeskNotes::theWatchTellsAndHears()
{
    DeskWatch anna(QStringLiteral("anna@studio"), nullptr, kQuick);
    DeskWatch bert(QStringLiteral("bert@hall"), nullptr, kQuick);
    anna.begin(place().text());
    bert.begin(place().text());
    anna.tellEdited({1, 3});
    QTRY_COMPARE(bert.others().size(), std::size_t(1));
    QVERIFY(bert.others().front().taskIds == (std::vector<int>{1, 3}));
    QVERIFY(!run("DELETE FROM desk_note").isNull());
    // A note that has gone is written anew.
    QTRY_COMPARE(run("SELECT count(*) FROM desk_note"), QStringLiteral("1"));
    anna.tellEdited({});
    QTRY_VERIFY(bert.others().empty());
}

TREL_TEST(tst_PostgresDeskNotes, QCoreApplication)
#include "tst_PostgresDeskNotes.moc"
