#include "log/EventWords.h"
#include "log/PlayerLog.h"
#include "support/TestClock.h"
#include "support/TestProgram.h"

#include <QCoreApplication>
#include <QSignalSpy>
#include <QtTest>

Q_DECLARE_METATYPE(trel::screen::ScreenEvent)

using namespace trel::mediadispatch;
using namespace trel::player;
using namespace trel::screen;
using Kind = ScreenEvent::Kind;

/// The words of the player's log.
class tst_EventWords : public QObject
{
    Q_OBJECT

private slots:
    void lines_data();
    void lines();
    void namesCannotWriteLines();
    void everyTroubleHasWords();
    void theLogKeepsTheLastFault();
};

namespace {

const QDateTime kMoment(QDate(2024, 3, 4), QTime(8, 0, 0, 250), QTimeZone("Europe/Berlin"));

ScreenEvent eventOf(Kind kind, qint64 amount = 0)
{
    ScreenEvent event;
    event.kind = kind;
    event.moment = kMoment.toMSecsSinceEpoch();
    event.amount = amount;
    event.play.name = QStringLiteral("News");
    event.play.state.picture = ScreenPicture::Playing;
    event.play.state.reason = ScreenReason::PlanPlays;
    event.play.state.taskId = 1;
    event.play.state.planRow = 1;
    event.play.state.planId = 4;
    return event;
}

ScreenEvent faultOf(DeckTrouble trouble, const QString& words)
{
    ScreenEvent event = eventOf(Kind::Fault);
    event.fault = {trouble, words};
    return event;
}

QString lineOf(const ScreenEvent& event)
{
    return eventLine(event, MomentFormat(QTimeZone("Europe/Berlin")));
}

} // namespace

void tst_EventWords::lines_data()
{
    QTest::addColumn<ScreenEvent>("event");
    QTest::addColumn<QString>("words");
    const auto row = [](const char* name, const ScreenEvent& event, const char* words) {
        QTest::newRow(name) << event << QString::fromUtf8(words);
    };
    ScreenEvent shown = eventOf(Kind::Shown, 3);
    shown.isSwitch = true;
    row("shown", shown, "plays \"News\" (task 1, row 2, plan 4), 3 ms late");
    shown.isSwitch = false;
    row("joined", shown, "plays \"News\" (task 1, row 2, plan 4), joined after 3 ms");
    shown.play.state.reason = ScreenReason::InsertionPlays;
    row("inserted", shown, "plays \"News\" (task 1, row 2, plan 4, inserted), joined after 3 ms");
    shown.isSwitch = true;
    shown.play.state.picture = ScreenPicture::Frozen;
    shown.play.state.reason = ScreenReason::PlanEnded;
    row("frozen", shown, "last frame of \"News\" (task 1, row 2, plan 4), 3 ms late");
    shown.play.state = ScreenState();
    row("black", shown, "black screen, 3 ms late");
    row("late", eventOf(Kind::Late), "\"News\" is not ready when its time has come");
    row("fault", faultOf(DeckTrouble::Missing, QString()),
        "cannot show \"News\": There is no such file.");
    row("fault in words", faultOf(DeckTrouble::Unreachable, QStringLiteral("loading failed")),
        "cannot show \"News\": The address does not answer. (loading failed)");
    ScreenEvent recovered = eventOf(Kind::Recovered, 1500);
    recovered.tries = 3;
    row("recovered", recovered, "shows \"News\" again after 1.500 s and 3 attempts");
    row("speed", eventOf(Kind::CorrectedBySpeed, -120),
        "\"News\" is 0.120 s behind of the schedule, and is brought back by its speed");
    row("sought", eventOf(Kind::Sought, 1200),
        "\"News\" is 1.200 s ahead of the schedule, and is sought");
    row("clock", eventOf(Kind::ClockLeapt, -3600000),
        "the clock was set: it is 3600.000 s behind of what it was");
    row("schedule", eventOf(Kind::ScheduleTaken), "takes another schedule");
}

void tst_EventWords::lines()
{
    QFETCH(ScreenEvent, event);
    QFETCH(QString, words);
    QCOMPARE(lineOf(event), QStringLiteral("2024-03-04 08:00:00.250  ") + words);
}

void tst_EventWords::namesCannotWriteLines()
{
    ScreenEvent event = faultOf(DeckTrouble::Unreadable, QStringLiteral("bad\n\x1b[2Jdata"));
    event.play.name = QStringLiteral("Ne\nws\u202e");
    const QString line = lineOf(event);
    QVERIFY2(!line.contains(QLatin1Char('\n')), qPrintable(line));
    QVERIFY(!line.contains(QChar(0x1b)));
    QVERIFY(!line.contains(QChar(0x202e)));
}

void tst_EventWords::everyTroubleHasWords()
{
    QStringList sentences;
    for (int trouble = static_cast<int>(DeckTrouble::None) + 1;
         trouble <= static_cast<int>(DeckTrouble::BrokeOff); ++trouble) {
        sentences << faultSentence({static_cast<DeckTrouble>(trouble), QString()});
        QVERIFY(sentences.last().endsWith(QLatin1Char('.')));
    }
    QCOMPARE(sentences.removeDuplicates(), 0);
}

void tst_EventWords::theLogKeepsTheLastFault()
{
    const TestClock clock(kMoment);
    PlayerLog log;
    QSignalSpy lines(&log, &PlayerLog::line);
    QVERIFY(lines.isValid());
    QVERIFY(log.lastFault().isEmpty());
    log.note(faultOf(DeckTrouble::Missing, QString()));
    log.note(eventOf(Kind::Shown));
    QCOMPARE(log.lastFault(), QStringLiteral("\"News\": There is no such file."));
    QCOMPARE(log.lastFaultAt(), kMoment.toMSecsSinceEpoch());
    QCOMPARE(lines.count(), 2);
    // What comes in its place has a line.
    log.note(eventOf(Kind::Left));
    QCOMPARE(lines.count(), 2);
    log.tell(QStringLiteral("screen \"lobby\" follows a.db"));
    QCOMPARE(lines.last().first().toString(),
             QStringLiteral("2024-03-04 08:00:00.250  screen \"lobby\" follows a.db"));
}

TREL_TEST(tst_EventWords, QCoreApplication)
#include "tst_EventWords.moc"
