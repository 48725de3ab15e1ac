#include "log/PlayerLog.h"
#include "support/TestProgram.h"

#include <QCoreApplication>
#include <QtTest>

using namespace trel::screen;
using trel::player::PlayerLog;
using Kind = ScreenEvent::Kind;

/// What of all that happens on a screen is written down.
class tst_PlayerLog : public QObject
{
    Q_OBJECT

private slots:
    void writesWhatHappens();
    void writesWhatComesBackOnceItLasts();
    void writesNothingOfWhatBreaksAgain();
    void keepsTheLastFault();

private:
    class Lines;
    static ScreenEvent event(Kind kind, bool isAgain = false)
    {
        ScreenEvent event;
        event.kind = kind;
        event.isAgain = isAgain;
        event.play.name = QStringLiteral("News");
        event.play.state.picture = trel::mediadispatch::ScreenPicture::Playing;
        event.amount = 300;
        event.tries = 2;
        return event;
    }
};

/// The lines without their moments.
class tst_PlayerLog::Lines
{
public:
    Lines()
    {
        QObject::connect(&log, &PlayerLog::line, &log, [this](const QString& line) {
            m_lines.append(line.mid(line.indexOf(QStringLiteral("  ")) + 2));
        });
    }

    QStringList take() { return std::exchange(m_lines, {}); }

    PlayerLog log;

private:
    QStringList m_lines;
};

void tst_PlayerLog::writesWhatHappens()
{
    Lines lines;
    for (const Kind kind :
         {Kind::ScheduleTaken, Kind::Shown, Kind::Left, Kind::Late, Kind::Fault, Kind::Recovered,
          Kind::CorrectedBySpeed, Kind::Sought, Kind::ClockLeapt, Kind::Due, Kind::StoodIn}) {
        const bool isSilent = kind == Kind::Left || kind == Kind::Due || kind == Kind::StoodIn;
        lines.log.note(event(kind));
        QCOMPARE(lines.take().size(), isSilent ? 0 : 1);
    }
    lines.log.tell(QStringLiteral("ends"));
    QCOMPARE(lines.take(), QStringList(QStringLiteral("ends")));
}

void tst_PlayerLog::writesWhatComesBackOnceItLasts()
{
    Lines lines;
    lines.log.note(event(Kind::Fault));
    lines.take();
    lines.log.note(event(Kind::Shown, true));
    lines.log.note(event(Kind::Sought));
    QCOMPARE(lines.take(), QStringList());
    lines.log.note(event(Kind::Recovered));
    const QStringList told = lines.take();
    QCOMPARE(told.size(), 2);
    QVERIFY2(told.first().startsWith(QStringLiteral("plays \"News\"")), qPrintable(told.first()));
    QVERIFY2(told.last().startsWith(QStringLiteral("shows \"News\" again")),
             qPrintable(told.last()));
    lines.log.note(event(Kind::Sought));
    QCOMPARE(lines.take().size(), 1);
    // One before its time, with nothing that was shown.
    lines.log.note(event(Kind::Recovered));
    QCOMPARE(lines.take().size(), 1);
}

void tst_PlayerLog::writesNothingOfWhatBreaksAgain()
{
    Lines lines;
    for (int turn = 0; turn < 5; ++turn) {
        lines.log.note(event(Kind::Shown, true));
        lines.log.note(event(Kind::CorrectedBySpeed));
        lines.log.note(event(Kind::Left));
        lines.log.note(event(Kind::StoodIn));
    }
    QCOMPARE(lines.take(), QStringList());
    lines.log.note(event(Kind::Shown));
    lines.log.note(event(Kind::Sought));
    QCOMPARE(lines.take().size(), 2);
}

void tst_PlayerLog::keepsTheLastFault()
{
    Lines lines;
    QVERIFY(lines.log.lastFault().isEmpty());
    ScreenEvent fault = event(Kind::Fault);
    fault.fault = {DeckTrouble::Missing, {}};
    fault.moment = 4711;
    lines.log.note(fault);
    lines.log.note(event(Kind::Shown, true));
    QCOMPARE(lines.log.lastFault(), QStringLiteral("\"News\": There is no such file."));
    QCOMPARE(lines.log.lastFaultAt(), trel::mediadispatch::Instant(4711));
}

TREL_TEST(tst_PlayerLog, QCoreApplication)
#include "tst_PlayerLog.moc"
