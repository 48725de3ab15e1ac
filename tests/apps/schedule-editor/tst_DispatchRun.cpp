#include "EditorRun.h"
#include "screen/PreviewScreen.h"
#include "service/DateText.h"
#include "support/ChooserAnswer.h"
#include "support/PlanRecords.h"
#include "support/TestClock.h"
#include "support/TestProgram.h"
#include "trelprogramschedule/dispatch/ScreenDispatch.h"

#include <QApplication>
#include <QLabel>

using namespace trel::desktop;
using namespace trel::mediadispatch;

namespace {

/// The lines of the chooser's menu.
enum MenuLine { CutLine, DelayLine };

/// Rows of the plan at 08:00:00.
enum Row { CityNews, Weather, BrandFilm };

} // namespace

/// An operator starts the schedule in the editor and watches the host's panels, while programs are
/// cut in, until the original is back.
class tst_DispatchRun : public QObject
{
    Q_OBJECT

private slots:
    void fromTheStartToTheOriginal();
    void timeIsToldOnlyWhileSomebodyLooks();
    void theEveningThatComesTwice();
    void aListThatRunsLessThanOnce();
    void thePreviewFillsAScreenAndComesBack();

private:
    static QString text(const EditorRun& run, const char* name)
    {
        const auto* label = run.window.findChild<QLabel*>(QLatin1String(name));
        return label->isHidden() ? QStringLiteral("-") : label->text();
    }
    /// What is on screen, and what comes next, as the panel has it.
    static QString panel(const EditorRun& run)
    {
        return QStringLiteral("%1 | %2 | %3 | then %4")
            .arg(text(run, "nowProgram"), text(run, "nowEntry"), text(run, "nowInserted"),
                 text(run, "nextProgram"));
    }
    /// On which the first task plays its plan of eight o'clock.
    static QDate firstMonday(const EditorRun& run)
    {
        const PlayTask task = run.manager.getgTaskMap().at(1);
        const QDate first = dateFromText(task.startDate);
        return first.addDays((Qt::Monday + 7 - first.dayOfWeek()) % 7);
    }
    /// One plan late in the evening, of a program of the demonstration; its list runs no times.
    static void putIntoEffect(EditorRun& run, int mode)
    {
        PlayPlan plan = timePlan(1, "23:00:00", "23:40:00");
        plan.mode = mode;
        plan.times = 0;
        plan.programs = {entry(run.manager.getPrograms().begin()->first)};
        PlayTask task = taskWithPlans({plan});
        task.startDate = "2010.11.01";
        task.endDate = "2010.11.30";
        QVERIFY(run.host.replaceSchedule({{1, task}}));
        run.manager.slotOpen();
        run.window.show();
    }
    /// Lets the play on screen end.
    static void playOn(TestClock& clock, const EditorRun& run)
    {
        clock.advance(run.host.dispatch().state().until - clock.msecsSinceEpoch());
    }
    static void cutIn(const EditorRun& run, Row row, MenuLine line)
    {
        ChooserAnswer answer([row, line](ChooserWindow& chooser) {
            chooser.contextMenu(row, line);
            chooser.cancel();
        });
        run.card(0).openChooser(1);
    }

    NoPlatformNotes m_quiet;
};

void tst_DispatchRun::fromTheStartToTheOriginal()
{
    TestClock clock(QDateTime(QDate(2026, 11, 21), QTime(12, 0)));
    EditorRun run(QStringLiteral("dispatch"), QStringLiteral("en_US"));
    const QDate monday = firstMonday(run);
    clock.set(QDateTime(monday, QTime(8, 0)));
    run.window.show();
    QCOMPARE(text(run, "nowProgram"), QStringLiteral("Not started"));
    QVERIFY(text(run, "nowReason").contains(QLatin1String("Choose Start")));
    run.picture(run.window, QStringLiteral("1-not-started"));

    run.card(0).toggleFold();
    run.press("pushButtonStart");
    QCOMPARE(panel(run),
             QStringLiteral("City news | Entry 1 of 3, play 1 of 1 | - | then Weather"));
    QCOMPARE(text(run, "nowGone"), QStringLiteral("0:00"));
    clock.advance(2000);
    QCOMPARE(text(run, "nowGone"), QStringLiteral("0:02"));
    QVERIFY(text(run, "nowPlan")
                .startsWith(QLatin1String("Task 1, plan 2, until 11:30:00, 3:29:58 left")));
    auto* preview = run.window.findChild<PreviewScreen*>();
    const auto showsAPicture = [preview] {
        const QImage seen = preview->grab().toImage();
        return seen.pixelColor(seen.width() / 2, seen.height() / 3) != QColor(Qt::black);
    };
    QTRY_VERIFY(showsAPicture());
    run.picture(run.window, QStringLiteral("2-started"));

    playOn(clock, run);
    QCOMPARE(panel(run),
             QStringLiteral("Weather | Entry 2 of 3, play 1 of 1 | - | then Brand film"));
    playOn(clock, run);
    QCOMPARE(panel(run),
             QStringLiteral("Brand film | Entry 3 of 3, play 1 of 2 | - | then Brand film"));

    cutIn(run, Weather, CutLine);
    QCOMPARE(panel(run).section(QStringLiteral(" | "), 0, 0), QStringLiteral("Weather"));
    QCOMPARE(text(run, "nowInserted"), QStringLiteral("Cut in"));
    QCOMPARE(text(run, "nowGone"), QStringLiteral("0:00"));
    QTRY_VERIFY(showsAPicture());
    run.picture(run.window, QStringLiteral("3-cut-in"));

    cutIn(run, BrandFilm, DelayLine);
    QCOMPARE(panel(run).section(QStringLiteral(" | "), 0, 0), QStringLiteral("Weather"));
    QVERIFY(run.manager.getScheduleState());
    QCOMPARE(text(run, "nextInserted"), QStringLiteral("Cut in"));
    const QString waiting = text(run, "nextProgram");
    run.picture(run.window, QStringLiteral("4-waiting"));
    playOn(clock, run);
    QCOMPARE(text(run, "nowProgram"), waiting);
    QVERIFY(!run.manager.getScheduleState());
    QCOMPARE(text(run, "nowInserted"), QStringLiteral("Cut in"));

    clock.advance(clock.now().msecsTo(QDateTime(monday, QTime(11, 30))));
    QCOMPARE(text(run, "nowProgram"), QStringLiteral("Lunch menu"));
    QCOMPARE(text(run, "nowInserted"), QStringLiteral("-"));
    QTRY_VERIFY(showsAPicture());
    run.picture(run.window, QStringLiteral("5-lunch"));

    // The day after the plan plays its own list again.
    clock.set(QDateTime(monday.addDays(1), QTime(8, 0)));
    QCOMPARE(panel(run),
             QStringLiteral("City news | Entry 1 of 3, play 1 of 1 | - | then Weather"));
    run.themes.select(QStringLiteral("light"));
    run.picture(run.window, QStringLiteral("6-original-light"));
    run.themes.select(QStringLiteral("dark"));
}

void tst_DispatchRun::theEveningThatComesTwice()
{
    const QTimeZone zone("America/St_Johns");
    const QDateTime first(QDate(2010, 11, 6), QTime(23, 30), zone);
    TestClock clock(QDateTime::fromMSecsSinceEpoch(1289095200000, zone));
    QCOMPARE(clock.now().time(), first.time());
    EditorRun run(QStringLiteral("dispatch"), QStringLiteral("en_US"));
    putIntoEffect(run, TimeMode);
    QVERIFY2(text(run, "nowPlan")
                 .startsWith(QLatin1String("Task 1, plan 1, until 23:40:00 -02:30, 10:00 left")),
             qPrintable(text(run, "nowPlan")));
    clock.advance(3600 * 1000);
    QVERIFY2(text(run, "nowPlan")
                 .startsWith(QLatin1String("Task 1, plan 1, until 23:40:00 -03:30, 10:00 left")),
             qPrintable(text(run, "nowPlan")));
    clock.advance(10 * 60 * 1000);
    QCOMPARE(text(run, "nextTime"), QStringLiteral("at 23:00:00 -03:30, in 23:20:00"));
    clock.advance(24 * 3600 * 1000);
    QVERIFY2(text(run, "nextTime").startsWith(QLatin1String("at 23:00:00, in ")),
             qPrintable(text(run, "nextTime")));
}

void tst_DispatchRun::aListThatRunsLessThanOnce()
{
    TestClock clock(QDateTime(QDate(2010, 11, 8), QTime(23, 30)));
    EditorRun run(QStringLiteral("dispatch"), QStringLiteral("en_US"));
    constexpr int noMode = 7;
    putIntoEffect(run, noMode);
    QCOMPARE(text(run, "nowReason"),
             QStringLiteral("Plan 1 of task 1 is due, but its list is to run less than "
                            "once."));
}

void tst_DispatchRun::timeIsToldOnlyWhileSomebodyLooks()
{
    TestClock clock(QDateTime(QDate(2026, 11, 21), QTime(12, 0)));
    EditorRun run(QStringLiteral("dispatch"), QStringLiteral("en_US"));
    clock.set(QDateTime(firstMonday(run), QTime(8, 0)));
    run.manager.slotOpen();
    clock.advance(1000);
    QVERIFY(!run.window.isVisible());
    run.window.show();
    QCOMPARE(text(run, "nowGone"), QStringLiteral("0:01"));
    clock.advance(1000);
    QCOMPARE(text(run, "nowGone"), QStringLiteral("0:02"));
    run.window.hide();
    clock.advance(1000);
    QCOMPARE(text(run, "nowGone"), QStringLiteral("0:02"));
}

void tst_DispatchRun::thePreviewFillsAScreenAndComesBack()
{
    EditorRun run(QStringLiteral("dispatch"), QStringLiteral("en_US"));
    run.window.show();
    auto* preview = run.window.findChild<PreviewScreen*>(QStringLiteral("previewScreen"));
    const auto large = [&run] {
        return run.window.findChild<PreviewScreen*>(QStringLiteral("previewFullScreen"));
    };
    QTest::mouseDClick(preview, Qt::LeftButton);
    QVERIFY(large() != nullptr && large()->isFullScreen());
    QTest::keyClick(large(), Qt::Key_Escape);
    QTRY_VERIFY(large() == nullptr);
    QTest::mouseDClick(preview, Qt::LeftButton);
    QVERIFY(large() != nullptr);
    QTest::mouseDClick(large(), Qt::LeftButton);
    QTRY_VERIFY(large() == nullptr);
}

TREL_TEST(tst_DispatchRun, QApplication)
#include "tst_DispatchRun.moc"
