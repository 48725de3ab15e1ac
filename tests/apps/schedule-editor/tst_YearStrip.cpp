#include "BidiText.h"
#include "HostFixture.h"
#include "LookSupport.h"
#include "support/Growth.h"
#include "support/PlanRecords.h"
#include "support/TestClock.h"
#include "support/TestProgram.h"
#include "week/WeekPage.h"
#include "week/WeekPanel.h"
#include "week/WeekView.h"
#include "year/YearStrip.h"

#include <QApplication>
#include <QRandomGenerator>

using namespace trel::desktop;
using namespace trel::desktop::year;
using namespace trel::mediadispatch;

namespace {

QDate day(int month, int dayOfMonth)
{
    return {2026, month, dayOfMonth};
}

QString lineOf(const std::vector<YearStretch>& stretches)
{
    QStringList lines;
    for (const YearStretch& stretch : stretches) {
        lines.append(stretch.first.toString(QStringLiteral("MM.dd-")) +
                     stretch.last.toString(QStringLiteral("MM.dd")) +
                     (stretch.tasks > 0 ? QStringLiteral(" x%1").arg(stretch.tasks) : QString()));
    }
    return lines.join(QLatin1String(", "));
}

QString lineOf(const std::vector<YearSpan>& spans)
{
    QStringList lines;
    for (const YearSpan& span : spans) {
        lines.append(
            QStringLiteral("%1: %2-%3 in %4")
                .arg(QString::number(span.taskId), span.first.toString(QStringLiteral("MM.dd")),
                     span.last.toString(QStringLiteral("MM.dd")), QString::number(span.lane)));
    }
    return lines.join(QLatin1String(", "));
}

PlayTask taskOf(int id, const std::string& first, const std::string& last)
{
    PlayTask task = taskWithPlans({timePlan(1, "08:00:00", "09:00:00")}, id);
    task.startDate = first;
    task.endDate = last;
    return task;
}

struct Window : HostFixture
{
    Window()
        : strip(*window.findChild<YearStrip*>())
        , view(*window.findChild<week::WeekPage*>()->panel()->view())
    {
        window.openDatabase(database);
        manager.addTask(taskOf(1, "2026.01.01", "2026.03.31"));
        manager.addTask(taskOf(2, "2026.04.11", "2026.06.30"));
        manager.addTask(taskOf(3, "2026.06.21", "2027.12.31"));
        window.show();
        QCoreApplication::processEvents();
    }

    TestClock clock{QDateTime(QDate(2026, 3, 11), QTime(12, 0))};
    YearStrip& strip;
    week::WeekView& view;
};

} // namespace

/// The strip of the year above the week, and what it works out.
class tst_YearStrip : public QObject
{
    Q_OBJECT

private slots:
    void marksGapsAndOverlaps();
    void gapsReachIntoOtherYears();
    void ignoresWhatIsNeverValid();
    void sharesLanesInTheEnd();
    void agreesWithALookAtEachDay();
    void growsWithTheTasks();
    void followsEdits();
    void restsWhileHidden();
    void aClickLeadsToItsDay_data();
    void aClickLeadsToItsDay();
    void keysLeadThroughTheYear();
    void followsTheWeek();
    void tellsWhatItShows();
    void theFrameCoversNoNumber_data() { addThemes(); }
    void theFrameCoversNoNumber();
};

void tst_YearStrip::marksGapsAndOverlaps()
{
    const YearLayout layout = layoutYear(2026, {{1, {day(2, 1), day(3, 31)}},
                                                {2, {day(4, 11), day(6, 30)}},
                                                {3, {day(6, 21), day(9, 30)}}});
    QCOMPARE(lineOf(layout.spans),
             QStringLiteral("1: 02.01-03.31 in 0, 2: 04.11-06.30 in 0, 3: 06.21-09.30 in 1"));
    QCOMPARE(lineOf(layout.gaps), QStringLiteral("04.01-04.10"));
    QCOMPARE(lineOf(layout.overlaps), QStringLiteral("06.21-06.30 x2"));
    QCOMPARE(layout.lanes, 2);
}

void tst_YearStrip::gapsReachIntoOtherYears()
{
    const Validities validities{{1, {QDate(2025, 1, 1), QDate(2026, 1, 31)}},
                                {2, {QDate(2027, 12, 30), QDate(2028, 1, 1)}}};
    QCOMPARE(lineOf(layoutYear(2026, validities).gaps), QStringLiteral("02.01-12.31"));
    QCOMPARE(lineOf(layoutYear(2027, validities).gaps), QStringLiteral("01.01-12.29"));
    QCOMPARE(lineOf(layoutYear(2024, validities).gaps), QString());
    QCOMPARE(lineOf(layoutYear(2028, validities).gaps), QString());
    QCOMPARE(lineOf(layoutYear(2025, validities).spans), QStringLiteral("1: 01.01-12.31 in 0"));
}

void tst_YearStrip::ignoresWhatIsNeverValid()
{
    const YearLayout layout = layoutYear(
        2026,
        {{1, {QDate(), day(3, 31)}}, {2, {day(4, 11), QDate()}}, {3, {day(6, 21), day(6, 20)}}});
    QVERIFY(layout.spans.empty());
    QVERIFY(layout.gaps.empty());
    QVERIFY(layout.overlaps.empty());
}

void tst_YearStrip::sharesLanesInTheEnd()
{
    Validities validities;
    for (int id = 1; id <= 5; ++id) {
        validities[id] = {day(1, id), day(2, 1)};
    }
    const YearLayout layout = layoutYear(2026, validities);
    QCOMPARE(layout.lanes, YearLayout::kMostLanes);
    QCOMPARE(layout.spans.back().lane, YearLayout::kMostLanes - 1);
    QCOMPARE(lineOf(layout.overlaps), QStringLiteral("01.02-02.01 x5"));
}

void tst_YearStrip::agreesWithALookAtEachDay()
{
    QRandomGenerator random(7);
    for (int round = 0; round < 300; ++round) {
        Validities validities;
        QDate earliest;
        QDate latest;
        for (int id = 1; id <= 1 + round % 6; ++id) {
            const QDate first = QDate(2025, 11, 1).addDays(random.bounded(450));
            const Validity validity{first, first.addDays(random.bounded(90) - 3)};
            validities[id] = validity;
            if (!validity.isEmpty()) {
                earliest = earliest.isValid() ? std::min(earliest, first) : first;
                latest = latest.isValid() ? std::max(latest, validity.last) : validity.last;
            }
        }
        const YearLayout layout = layoutYear(2026, validities);
        for (QDate date(2026, 1, 1); date.year() == 2026; date = date.addDays(1)) {
            const auto tasks =
                std::count_if(validities.begin(), validities.end(),
                              [&date](const auto& entry) { return entry.second.contains(date); });
            const bool isWithin = earliest.isValid() && earliest <= date && date <= latest;
            QCOMPARE(YearLayout::find(layout.gaps, date) != nullptr, tasks == 0 && isWithin);
            QCOMPARE(YearLayout::find(layout.overlaps, date) != nullptr, tasks > 1);
            const auto spans = std::count_if(
                layout.spans.begin(), layout.spans.end(),
                [&date](const YearSpan& span) { return span.first <= date && date <= span.last; });
            QCOMPARE(spans, tasks);
        }
    }
}

void tst_YearStrip::growsWithTheTasks()
{
    const auto layOut = [](int tasks) {
        Validities validities;
        for (int id = 1; id <= tasks; ++id) {
            const QDate first = day(1, 1).addDays(id % 365);
            validities[id] = {first, first.addDays(3)};
        }
        const double begin = processorTime();
        const YearLayout layout = layoutYear(2026, validities);
        const double time = processorTime() - begin;
        return layout.spans.empty() ? 0.0 : time;
    };
    QVERIFY(growth(2000, 32000, layOut) < 4);
}

void tst_YearStrip::followsEdits()
{
    Window fixture;
    QTRY_COMPARE(lineOf(fixture.strip.layoutOfYear().gaps), QStringLiteral("04.01-04.10"));
    QCOMPARE(lineOf(fixture.strip.layoutOfYear().overlaps), QStringLiteral("06.21-06.30 x2"));
    fixture.manager.addTask(taskOf(1, "2026.01.01", "2026.04.10"));
    QTRY_COMPARE(lineOf(fixture.strip.layoutOfYear().gaps), QString());
    fixture.manager.deleteTask(2);
    QTRY_COMPARE(lineOf(fixture.strip.layoutOfYear().gaps), QStringLiteral("04.11-06.20"));
    QCOMPARE(lineOf(fixture.strip.layoutOfYear().overlaps), QString());
}

void tst_YearStrip::restsWhileHidden()
{
    Window fixture;
    QTRY_COMPARE(lineOf(fixture.strip.layoutOfYear().gaps), QStringLiteral("04.01-04.10"));
    fixture.window.hide();
    fixture.manager.deleteTask(2);
    QCoreApplication::processEvents();
    QCOMPARE(lineOf(fixture.strip.layoutOfYear().gaps), QStringLiteral("04.01-04.10"));
    fixture.window.show();
    QCOMPARE(lineOf(fixture.strip.layoutOfYear().gaps), QStringLiteral("04.01-06.20"));
}

void tst_YearStrip::aClickLeadsToItsDay_data()
{
    QTest::addColumn<bool>("isMirrored");
    QTest::newRow("from the left") << false;
    QTest::newRow("from the right") << true;
}

void tst_YearStrip::aClickLeadsToItsDay()
{
    QFETCH(const bool, isMirrored);
    Window fixture;
    fixture.window.setLayoutDirection(isMirrored ? Qt::RightToLeft : Qt::LeftToRight);
    fixture.window.resize(2400, 900);
    QCoreApplication::processEvents();
    for (const QDate& date : {day(1, 1), day(7, 15), day(12, 31)}) {
        const QPoint place = fixture.strip.placeOf(date, date).center();
        QCOMPARE(fixture.strip.dayAt(place), date);
        QTest::mouseClick(&fixture.strip, Qt::LeftButton, Qt::NoModifier, place);
        QVERIFY(fixture.view.layoutOfWeek().dayOf(date));
        QCOMPARE(fixture.strip.layoutOfYear().year, 2026);
    }
    const bool isFirstAtLeft = fixture.strip.placeOf(day(1, 1), day(1, 1)).x() <
                               fixture.strip.placeOf(day(12, 31), day(12, 31)).x();
    QCOMPARE(isFirstAtLeft, !isMirrored);
}

void tst_YearStrip::keysLeadThroughTheYear()
{
    Window fixture;
    const QDate first = fixture.view.firstDay();
    fixture.strip.setFocus();
    const auto press = [&fixture](Qt::Key key) {
        QTest::keyClick(&fixture.strip, key);
        return fixture.view.firstDay();
    };
    QCOMPARE(press(Qt::Key_Right), first.addDays(7));
    QCOMPARE(press(Qt::Key_Left), first);
    QCOMPARE(press(Qt::Key_PageDown).addDays(3).month(), first.addDays(3).month() + 1);
    press(Qt::Key_PageUp);
    press(Qt::Key_End);
    QVERIFY(fixture.view.layoutOfWeek().dayOf(day(12, 31)));
    press(Qt::Key_Home);
    QVERIFY(fixture.view.layoutOfWeek().dayOf(day(1, 1)));
}

void tst_YearStrip::followsTheWeek()
{
    Window fixture;
    QCOMPARE(fixture.strip.layoutOfYear().year, 2026);
    fixture.view.showWeekOf(QDate(2027, 6, 1));
    QCOMPARE(fixture.strip.layoutOfYear().year, 2027);
    QCOMPARE(lineOf(fixture.strip.layoutOfYear().spans), QStringLiteral("3: 01.01-12.31 in 0"));
}

void tst_YearStrip::tellsWhatItShows()
{
    Window fixture;
    QTRY_COMPARE(fixture.strip.accessibleDescription(),
                 QStringLiteral("Gap: no task is valid from %1 to %2. Overlap: several tasks are "
                                "valid from %3 to %4.")
                     .arg(leftToRight(QStringLiteral("2026.04.01")),
                          leftToRight(QStringLiteral("2026.04.10")),
                          leftToRight(QStringLiteral("2026.06.21")),
                          leftToRight(QStringLiteral("2026.06.30"))));
    QCOMPARE(fixture.strip.accessibleName(), QStringLiteral("Validity of the tasks in 2026"));
    QCOMPARE(fixture.strip.focusPolicy(), Qt::StrongFocus);
}

/// Wherever the week stands, the number of a task is seen as it is without a frame near it, in the
/// middle of a task that is shorter than the frame as well.
void tst_YearStrip::theFrameCoversNoNumber()
{
    QFETCH(QString, theme);
    Window window;
    // In one lane, as numbers have no room in several.
    window.manager.deleteTask(3);
    window.manager.addTask(taskOf(4, "2026.09.01", "2026.09.10"));
    QCoreApplication::processEvents();
    window.themes.select(theme);
    window.strip.setColours(window.themes.colours());
    window.strip.showWeek(day(12, 7));
    const QImage far = window.strip.grab().toImage();
    for (const int index : {0, 2}) {
        const QRect lane = window.strip.spokenPlace(index);
        QRect place(0, lane.top(), window.strip.fontMetrics().horizontalAdvance(u'4'),
                    lane.height());
        place.moveLeft(lane.center().x() - place.width() / 2);
        const QImage number = far.copy(place);
        QVERIFY(lookAt(far, place).contrast >= kLeastContrast);
        const QDate first = index == 0 ? day(1, 26) : day(8, 24);
        for (QDate week = first; week < first.addDays(28); week = week.addDays(1)) {
            window.strip.showWeek(week);
            const QImage picture = window.strip.grab().toImage();
            bool isSeen = false;
            for (int x = lane.left(); x <= lane.right() - place.width() && !isSeen; ++x) {
                isSeen = picture.copy(QRect(QPoint(x, place.top()), place.size())) == number;
            }
            QVERIFY2(isSeen, qPrintable(week.toString(Qt::ISODate)));
            // Where there is room, both lines of the frame stay whole.
            const QColor line = window.themes.colours().text;
            for (int y = lane.top(); y <= lane.bottom() && index == 0; ++y) {
                int dots = 0;
                for (int x = lane.left(); x <= lane.right(); ++x) {
                    dots += picture.pixelColor(x, y) == line ? 1 : 0;
                }
                QVERIFY2(dots >= 4, qPrintable(week.toString(Qt::ISODate)));
            }
        }
    }
}

TREL_TEST(tst_YearStrip, QApplication)
#include "tst_YearStrip.moc"
