#include "WeekFixture.h"
#include "support/TestProgram.h"

#include <QApplication>
#include <QSignalSpy>
#include <QToolTip>

using namespace trel::desktop;
using namespace trel::mediadispatch;
using namespace trel::desktop::week;
using namespace weekfixture;

/// The picture under an operator's hands: wheel, keys, mouse, tool tips.
class tst_WeekView : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void beginsWithTheWeekOfToday();
    void weeksBeginByLocale_data();
    void weeksBeginByLocale();
    void stepsThroughWeeks();
    void arrowsMoveTheSelection();
    void arrowsAreMirrored();
    void enterAndDoubleClickActivate();
    void clickBesideDeselects();
    void marksAreReached();
    void tipOfTheMouse_data();
    void tipOfTheMouse();
    void tipOfTheKeyboard();
    void theLineFollowsTheClock();
    void theTimerRestsWhileHidden();
    void minutesAreAligned();
    void aVanishedBlockCannotBeActivated();
    void describesTheSelectedBlock();

private:
    QPoint centreOf(int row, const QDate& date = QDate(2024, 3, 6)) const
    {
        return m_week->view.visualRect({date, row}).center();
    }
    int selectedRow() const { return m_week->view.selected() ? m_week->view.selected()->row : -1; }
    QString tipAt(const QPoint& place);

    std::unique_ptr<ShownWeek> m_week;
};

void tst_WeekView::init()
{
    m_week = std::make_unique<ShownWeek>();
}

void tst_WeekView::cleanup()
{
    m_week.reset();
}

QString tst_WeekView::tipAt(const QPoint& place)
{
    QHelpEvent event(QEvent::ToolTip, place, m_week->view.viewport()->mapToGlobal(place));
    QCoreApplication::sendEvent(m_week->view.viewport(), &event);
    return QToolTip::text();
}

void tst_WeekView::beginsWithTheWeekOfToday()
{
    QCOMPARE(m_week->view.firstDay(), QDate(2024, 3, 4));
    QVERIFY(m_week->view.isFit());
}

void tst_WeekView::weeksBeginByLocale_data()
{
    QTest::addColumn<QString>("locale");
    QTest::addColumn<QDate>("expected");
    QTest::newRow("Monday") << QStringLiteral("fr_FR") << QDate(2024, 3, 4);
    QTest::newRow("Sunday") << QStringLiteral("en_US") << QDate(2024, 3, 3);
    QTest::newRow("Saturday") << QStringLiteral("ar_EG") << QDate(2024, 3, 2);
}

void tst_WeekView::weeksBeginByLocale()
{
    QFETCH(QString, locale);
    m_week->view.setLocale(QLocale(locale));
    QTEST(m_week->view.firstDay(), "expected");
}

void tst_WeekView::stepsThroughWeeks()
{
    const QSignalSpy weeks(&m_week->view, &WeekView::weekChanged);
    QVERIFY(weeks.isValid());
    QTest::keyClick(&m_week->view, Qt::Key_PageDown, Qt::ControlModifier);
    QCOMPARE(m_week->view.firstDay(), QDate(2024, 3, 11));
    m_week->view.stepWeeks(-3);
    QCOMPARE(m_week->view.firstDay(), QDate(2024, 2, 19));
    QTest::keyClick(&m_week->view, Qt::Key_PageUp, Qt::ControlModifier);
    QCOMPARE(m_week->view.firstDay(), QDate(2024, 2, 12));
    m_week->view.showNow();
    QCOMPARE(m_week->view.firstDay(), QDate(2024, 3, 4));
    QCOMPARE(weeks.size(), 4);
    m_week->view.showNow();
    QCOMPARE(weeks.size(), 4);
}

void tst_WeekView::arrowsMoveTheSelection()
{
    // The first step selects what is on screen now.
    m_week->key(Qt::Key_Down);
    QCOMPARE(selectedRow(), 0);
    m_week->key(Qt::Key_Down);
    QCOMPARE(selectedRow(), 1);
    m_week->key(Qt::Key_Down);
    QCOMPARE(selectedRow(), 2);
    m_week->key(Qt::Key_Right);
    QCOMPARE(m_week->view.selected()->date, QDate(2024, 3, 7));
    m_week->key(Qt::Key_Right); // No later day has a block.
    QCOMPARE(m_week->view.selected()->date, QDate(2024, 3, 7));
    m_week->key(Qt::Key_Left);
    QCOMPARE(m_week->view.selected()->date, QDate(2024, 3, 6));
    QCOMPARE(selectedRow(), 2);
    m_week->key(Qt::Key_Up);
    m_week->key(Qt::Key_Up);
    m_week->key(Qt::Key_Up);
    QCOMPARE(selectedRow(), 0);
}

void tst_WeekView::arrowsAreMirrored()
{
    m_week->view.setLayoutDirection(Qt::RightToLeft);
    QTest::mouseClick(m_week->view.viewport(), Qt::LeftButton, Qt::NoModifier, centreOf(2));
    QCOMPARE(selectedRow(), 2);
    m_week->key(Qt::Key_Left);
    QCOMPARE(m_week->view.selected()->date, QDate(2024, 3, 7));
    QVERIFY(centreOf(2, QDate(2024, 3, 7)).x() < centreOf(2, QDate(2024, 3, 6)).x());
}

void tst_WeekView::enterAndDoubleClickActivate()
{
    QSignalSpy activated(&m_week->view, &WeekView::activated);
    QVERIFY(activated.isValid());
    m_week->key(Qt::Key_Return);
    QCOMPARE(activated.size(), 0);
    QTest::mouseDClick(m_week->view.viewport(), Qt::LeftButton, Qt::NoModifier, centreOf(2));
    QCOMPARE(activated.size(), 1);
    QCOMPARE(activated.first(), (QVariantList{1, 2}));
    m_week->key(Qt::Key_Up);
    m_week->key(Qt::Key_Return);
    QCOMPARE(activated.last(), (QVariantList{1, 1}));
    QTest::mouseDClick(m_week->view.viewport(), Qt::LeftButton, Qt::NoModifier, {20, 20});
    QCOMPARE(activated.size(), 2);
}

void tst_WeekView::clickBesideDeselects()
{
    QTest::mouseClick(m_week->view.viewport(), Qt::LeftButton, Qt::NoModifier, centreOf(2));
    QCOMPARE(selectedRow(), 2);
    QTest::mouseClick(m_week->view.viewport(), Qt::RightButton, Qt::NoModifier, {20, 20});
    QCOMPARE(selectedRow(), 2);
    QTest::mouseClick(m_week->view.viewport(), Qt::LeftButton, Qt::NoModifier, {20, 20});
    QVERIFY(!m_week->view.selected());
}

void tst_WeekView::marksAreReached()
{
    QSignalSpy activated(&m_week->view, &WeekView::activated);
    QTest::mouseDClick(m_week->view.viewport(), Qt::LeftButton, Qt::NoModifier, centreOf(3));
    QCOMPARE(activated.size(), 1);
    QCOMPARE(activated.first(), (QVariantList{1, 3}));
}

void tst_WeekView::tipOfTheMouse_data()
{
    QTest::addColumn<QTime>("time");
    QTest::addColumn<bool>("beside"); // In the lane of what is hidden.
    QTest::addColumn<QString>("expected");
    const auto row = [](const char* name, const QTime& time, bool beside, const char* expected) {
        QTest::newRow(name) << time << beside << QString::fromUtf8(expected);
    };
    row("nothing yet", {4, 0}, false, "On screen: Black screen|No plan has started yet.");
    row("plays", {8, 0}, false,
        "On screen: City news, *|Plan 11 of task 1 is the first of the plans for this time.|"
        "Plan 11, 08:00 to 10:00: City news, Weather");
    row("hidden", {9, 30}, true,
        "On screen: *|Plan 11 of task 1 is the first of the plans for this time.|"
        "Plan 12, 09:00 to 12:00: City news, Weather|"
        "Plan 11, above it, takes precedence.|It conflicts with a plan above it.");
    row("frozen", {13, 0}, false,
        "On screen: Last frame of *|Plan 12 of task 1 is over, and no other has begun.");
    row("black", {17, 0}, false,
        "On screen: Black screen|Plan 13 of task 1 is over, and no other has begun.");
}

void tst_WeekView::tipOfTheMouse()
{
    QFETCH(QTime, time);
    QFETCH(bool, beside);
    QFETCH(QString, expected);
    const QRect day = m_week->view.visualRect({QDate(2024, 3, 6), 2});
    const int y = qRound(QTime(0, 0).secsTo(time) * m_week->view.hourHeight() / 3600.0) + 1;
    const QString tip = tipAt({beside ? day.right() - 4 : day.left() + 4, y});
    QStringList lines = tip.split(QLatin1Char('\n'));
    QVERIFY2(lines.takeFirst().startsWith(QStringLiteral("Mittwoch, \u20662024.03.06\u2069, ")),
             qPrintable(tip));
    const QRegularExpression pattern(QRegularExpression::wildcardToRegularExpression(expected));
    QVERIFY2(pattern.match(lines.join(QLatin1Char('|'))).hasMatch(), qPrintable(tip));
}

void tst_WeekView::tipOfTheKeyboard()
{
    m_week->key(Qt::Key_Space);
    QVERIFY(!QToolTip::isVisible());
    QTest::mouseClick(m_week->view.viewport(), Qt::LeftButton, Qt::NoModifier, centreOf(3));
    m_week->key(Qt::Key_Space);
    QVERIFY2(QToolTip::text().endsWith(
                 QStringLiteral("Plan 14 never plays: it ends at 18:00:00, before it "
                                "starts at 20:00:00.")),
             qPrintable(QToolTip::text()));
}

void tst_WeekView::theLineFollowsTheClock()
{
    const auto lineOf = [this] {
        const QImage picture = m_week->view.viewport()->grab().toImage();
        const int x = m_week->view.visualRect({QDate(2024, 3, 7), 2}).right() + 2;
        for (int y = 0; y < picture.height(); ++y) {
            if (picture.pixelColor(x, y) == look::darkColours().weekNow) {
                return y / m_week->view.hourHeight();
            }
        }
        return -1.0;
    };
    QVERIFY(qAbs(lineOf() - 9.0) < 0.1);
    m_week->clock.set(wednesdayAtNine().addSecs(3 * 3600));
    m_week->view.hide();
    m_week->view.show();
    QVERIFY(qAbs(lineOf() - 12.0) < 0.1);
    // The week turns with the days, unless another one was asked for.
    m_week->clock.set(wednesdayAtNine().addDays(7));
    m_week->view.hide();
    m_week->view.show();
    QCOMPARE(m_week->view.firstDay(), QDate(2024, 3, 11));
    m_week->view.stepWeeks(-1);
    m_week->clock.set(wednesdayAtNine().addDays(14));
    m_week->view.hide();
    m_week->view.show();
    QCOMPARE(m_week->view.firstDay(), QDate(2024, 3, 4));
    QCOMPARE(lineOf(), -1.0);
}

void tst_WeekView::theTimerRestsWhileHidden()
{
    auto* minutes = m_week->view.findChild<MinuteTimer*>();
    QVERIFY(minutes->isRunning());
    m_week->view.hide();
    QVERIFY(!minutes->isRunning());
    m_week->view.show();
    QVERIFY(minutes->isRunning());
}

void tst_WeekView::minutesAreAligned()
{
    QCOMPARE(MinuteTimer::untilNextMinute(), 60000);
    m_week->clock.set(wednesdayAtNine().addMSecs(59250));
    QCOMPARE(MinuteTimer::untilNextMinute(), 750);
    m_week->clock.set(wednesdayAtNine().addMSecs(59999));
    MinuteTimer minutes;
    const QSignalSpy began(&minutes, &MinuteTimer::minuteBegan);
    QVERIFY(began.isValid());
    minutes.start();
    QTRY_VERIFY(began.size() > 0);
    QVERIFY(minutes.isRunning());
}

void tst_WeekView::aVanishedBlockCannotBeActivated()
{
    QSignalSpy activated(&m_week->view, &WeekView::activated);
    QTest::mouseClick(m_week->view.viewport(), Qt::LeftButton, Qt::NoModifier, centreOf(2));
    m_week->view.setSchedule(scheduleOf({}));
    m_week->key(Qt::Key_Return);
    m_week->key(Qt::Key_Space);
    m_week->key(Qt::Key_Down);
    QCOMPARE(activated.size(), 0);
    QVERIFY(!m_week->view.selected());
}

void tst_WeekView::describesTheSelectedBlock()
{
    QCOMPARE(m_week->view.accessibleName(), QStringLiteral("Week"));
    QTest::mouseClick(m_week->view.viewport(), Qt::LeftButton, Qt::NoModifier, centreOf(2));
    QCOMPARE(m_week->view.accessibleDescription(),
             QStringLiteral(
                 "Mittwoch, \u20662024.03.06\u2069. Plan 13, 14:00 to 16:00: City news, Weather"));
}

TREL_TEST(tst_WeekView, QApplication)
#include "tst_WeekView.moc"
