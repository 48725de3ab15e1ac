#include "WeekFixture.h"

#include <QScrollBar>
#include <QSignalSpy>
#include <QToolTip>

using namespace trel::mediadispatch;
using namespace week;
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
    void fitsTheWholeDay();
    void wheelWithControlZoomsAboutThePointer();
    void wheelAloneScrolls();
    void zoomEndsAtTenPixelsAMinute();
    void pinchZooms();
    void keysZoom();
    void homeShowsNow();
    void arrowsMoveTheSelection();
    void arrowsAreMirrored();
    void selectionComesIntoSight();
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
        return m_view->visualRect({date, row}).center();
    }
    void key(Qt::Key key) { QTest::keyClick(m_view.get(), key); }
    int selectedRow() const { return m_view->selected() ? m_view->selected()->row : -1; }
    QString tipAt(const QPoint& place);
    void wheel(int delta, const QPoint& place, Qt::KeyboardModifiers modifiers);

    std::unique_ptr<TestClock> m_clock;
    std::unique_ptr<WeekView> m_view;
};

void tst_WeekView::init()
{
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    m_clock = std::make_unique<TestClock>(wednesdayAtNine());
    m_view = std::make_unique<WeekView>();
    m_view->setSchedule(scheduleOf(mixedPlans()));
    m_view->resize(900, 560);
    m_view->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_view.get()));
    m_view->setFocus();
}

void tst_WeekView::cleanup()
{
    QToolTip::hideText();
    m_view.reset();
    m_clock.reset();
}

QString tst_WeekView::tipAt(const QPoint& place)
{
    QHelpEvent event(QEvent::ToolTip, place, m_view->viewport()->mapToGlobal(place));
    QCoreApplication::sendEvent(m_view->viewport(), &event);
    return QToolTip::text();
}

void tst_WeekView::wheel(int delta, const QPoint& place, Qt::KeyboardModifiers modifiers)
{
    QWheelEvent event(place, m_view->viewport()->mapToGlobal(place), QPoint(), QPoint(0, delta),
                      Qt::NoButton, modifiers, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(m_view->viewport(), &event);
}

void tst_WeekView::beginsWithTheWeekOfToday()
{
    QCOMPARE(m_view->firstDay(), QDate(2024, 3, 4));
    QVERIFY(m_view->isFit());
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
    m_view->setLocale(QLocale(locale));
    QTEST(m_view->firstDay(), "expected");
}

void tst_WeekView::stepsThroughWeeks()
{
    const QSignalSpy weeks(m_view.get(), &WeekView::weekChanged);
    QVERIFY(weeks.isValid());
    QTest::keyClick(m_view.get(), Qt::Key_PageDown, Qt::ControlModifier);
    QCOMPARE(m_view->firstDay(), QDate(2024, 3, 11));
    m_view->stepWeeks(-3);
    QCOMPARE(m_view->firstDay(), QDate(2024, 2, 19));
    QTest::keyClick(m_view.get(), Qt::Key_PageUp, Qt::ControlModifier);
    QCOMPARE(m_view->firstDay(), QDate(2024, 2, 12));
    m_view->showNow();
    QCOMPARE(m_view->firstDay(), QDate(2024, 3, 4));
    QCOMPARE(weeks.size(), 4);
    m_view->showNow();
    QCOMPARE(weeks.size(), 4);
}

void tst_WeekView::fitsTheWholeDay()
{
    QCOMPARE(m_view->verticalScrollBar()->maximum(), 0);
    m_view->resize(900, 800);
    QCOMPARE(m_view->verticalScrollBar()->maximum(), 0);
    QVERIFY(qAbs(m_view->hourHeight() * 24 - m_view->viewport()->height()) < 1.0);
    m_view->zoom(4.0);
    QVERIFY(!m_view->isFit());
    const double hour = m_view->hourHeight();
    m_view->resize(900, 600);
    QCOMPARE(m_view->hourHeight(), hour);
    m_view->zoomToFit();
    QVERIFY(qAbs(m_view->hourHeight() * 24 - m_view->viewport()->height()) < 1.0);
}

void tst_WeekView::wheelWithControlZoomsAboutThePointer()
{
    m_view->zoom(4.0);
    m_view->verticalScrollBar()->setValue(400);
    const QPoint place(200, 150);
    const auto hourUnderThePointer = [&] {
        return (m_view->verticalScrollBar()->value() + place.y()) / m_view->hourHeight();
    };
    const double before = m_view->hourHeight();
    const double hour = hourUnderThePointer();
    wheel(120, place, Qt::ControlModifier);
    QVERIFY(m_view->hourHeight() > before);
    QVERIFY(qAbs(hourUnderThePointer() - hour) < 0.02);
    wheel(-120, place, Qt::ControlModifier);
    QVERIFY(qAbs(m_view->hourHeight() - before) < 0.001);
    QVERIFY(qAbs(hourUnderThePointer() - hour) < 0.03);
}

void tst_WeekView::wheelAloneScrolls()
{
    m_view->zoom(4.0);
    m_view->verticalScrollBar()->setValue(400);
    const double hour = m_view->hourHeight();
    wheel(-120, {200, 150}, Qt::NoModifier);
    QVERIFY(m_view->verticalScrollBar()->value() > 400);
    QCOMPARE(m_view->hourHeight(), hour);
}

void tst_WeekView::zoomEndsAtTenPixelsAMinute()
{
    for (int i = 0; i < 40; ++i) {
        wheel(120, {200, 150}, Qt::ControlModifier);
    }
    QCOMPARE(m_view->hourHeight(), 600.0);
    for (int i = 0; i < 40; ++i) {
        wheel(-120, {200, 150}, Qt::ControlModifier);
    }
    QVERIFY(m_view->isFit());
    QCOMPARE(m_view->verticalScrollBar()->maximum(), 0);
}

void tst_WeekView::pinchZooms()
{
    QNativeGestureEvent pinch(Qt::ZoomNativeGesture, QTouchDevice::devices().value(0),
                              QPointF(200, 150), QPointF(200, 150), QPointF(200, 150), 0.5, 0, 0);
    const double before = m_view->hourHeight();
    QCoreApplication::sendEvent(m_view->viewport(), &pinch);
    QCOMPARE(m_view->hourHeight(), before * 1.5);
}

void tst_WeekView::keysZoom()
{
    const QSignalSpy zooms(m_view.get(), &WeekView::zoomChanged);
    QVERIFY(zooms.isValid());
    const double before = m_view->hourHeight();
    key(Qt::Key_Plus);
    QCOMPARE(m_view->hourHeight(), before * 1.25);
    key(Qt::Key_Plus);
    key(Qt::Key_Minus);
    QVERIFY(qAbs(m_view->hourHeight() - before * 1.25) < 0.001);
    key(Qt::Key_0);
    QCOMPARE(m_view->hourHeight(), before);
    QCOMPARE(zooms.size(), 4);
}

void tst_WeekView::homeShowsNow()
{
    m_view->zoom(10.0);
    m_view->verticalScrollBar()->setValue(0);
    m_view->stepWeeks(5);
    key(Qt::Key_Home);
    QCOMPARE(m_view->firstDay(), QDate(2024, 3, 4));
    const double top = m_view->verticalScrollBar()->value() / m_view->hourHeight();
    const double bottom = top + m_view->viewport()->height() / m_view->hourHeight();
    QVERIFY(top < 9.0 && 9.0 < bottom);
}

void tst_WeekView::arrowsMoveTheSelection()
{
    // The first step selects what is on screen now.
    key(Qt::Key_Down);
    QCOMPARE(selectedRow(), 0);
    key(Qt::Key_Down);
    QCOMPARE(selectedRow(), 1);
    key(Qt::Key_Down);
    QCOMPARE(selectedRow(), 2);
    key(Qt::Key_Right);
    QCOMPARE(m_view->selected()->date, QDate(2024, 3, 7));
    key(Qt::Key_Right); // No later day has a block.
    QCOMPARE(m_view->selected()->date, QDate(2024, 3, 7));
    key(Qt::Key_Left);
    QCOMPARE(m_view->selected()->date, QDate(2024, 3, 6));
    QCOMPARE(selectedRow(), 2);
    key(Qt::Key_Up);
    key(Qt::Key_Up);
    key(Qt::Key_Up);
    QCOMPARE(selectedRow(), 0);
}

void tst_WeekView::arrowsAreMirrored()
{
    m_view->setLayoutDirection(Qt::RightToLeft);
    QTest::mouseClick(m_view->viewport(), Qt::LeftButton, Qt::NoModifier, centreOf(2));
    QCOMPARE(selectedRow(), 2);
    key(Qt::Key_Left);
    QCOMPARE(m_view->selected()->date, QDate(2024, 3, 7));
    QVERIFY(centreOf(2, QDate(2024, 3, 7)).x() < centreOf(2, QDate(2024, 3, 6)).x());
}

void tst_WeekView::selectionComesIntoSight()
{
    m_view->zoom(10.0);
    m_view->verticalScrollBar()->setValue(m_view->verticalScrollBar()->maximum());
    key(Qt::Key_Down);
    QVERIFY(m_view->viewport()->rect().intersects(m_view->visualRect(*m_view->selected())));
    m_view->resize(300, 560);
    key(Qt::Key_Down);
    key(Qt::Key_Down);
    key(Qt::Key_Right);
    QVERIFY(m_view->viewport()->rect().contains(m_view->visualRect(*m_view->selected()).topLeft()));
}

void tst_WeekView::enterAndDoubleClickActivate()
{
    QSignalSpy activated(m_view.get(), &WeekView::activated);
    QVERIFY(activated.isValid());
    key(Qt::Key_Return);
    QCOMPARE(activated.size(), 0);
    QTest::mouseDClick(m_view->viewport(), Qt::LeftButton, Qt::NoModifier, centreOf(2));
    QCOMPARE(activated.size(), 1);
    QCOMPARE(activated.first(), (QVariantList{1, 2}));
    key(Qt::Key_Up);
    key(Qt::Key_Return);
    QCOMPARE(activated.last(), (QVariantList{1, 1}));
    QTest::mouseDClick(m_view->viewport(), Qt::LeftButton, Qt::NoModifier, {20, 20});
    QCOMPARE(activated.size(), 2);
}

void tst_WeekView::clickBesideDeselects()
{
    QTest::mouseClick(m_view->viewport(), Qt::LeftButton, Qt::NoModifier, centreOf(2));
    QCOMPARE(selectedRow(), 2);
    QTest::mouseClick(m_view->viewport(), Qt::RightButton, Qt::NoModifier, {20, 20});
    QCOMPARE(selectedRow(), 2);
    QTest::mouseClick(m_view->viewport(), Qt::LeftButton, Qt::NoModifier, {20, 20});
    QVERIFY(!m_view->selected());
}

void tst_WeekView::marksAreReached()
{
    QSignalSpy activated(m_view.get(), &WeekView::activated);
    QTest::mouseDClick(m_view->viewport(), Qt::LeftButton, Qt::NoModifier, centreOf(3));
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
    row("nothing yet", {4, 0}, false,
        "On screen: Black screen|No plan has had the screen up to now.");
    row("plays", {8, 0}, false,
        "On screen: City news, *|Of the plans for this time of day, plan 11 of task 1 comes first.|"
        "Plan 11, 08:00 to 10:00: City news, Weather");
    row("hidden", {9, 30}, true,
        "On screen: *|Of the plans for this time of day, plan 11 of task 1 comes first.|"
        "Plan 12, 09:00 to 12:00: City news, Weather|"
        "Plan 11 stands above it and has the screen instead.|It collides with a plan above it.");
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
    const QRect day = m_view->visualRect({QDate(2024, 3, 6), 2});
    const int y = qRound(QTime(0, 0).secsTo(time) * m_view->hourHeight() / 3600.0) + 1;
    const QString tip = tipAt({beside ? day.right() - 4 : day.left() + 4, y});
    QStringList lines = tip.split(QLatin1Char('\n'));
    QVERIFY2(lines.takeFirst().startsWith(QStringLiteral("Mittwoch, 6. März 2024, ")),
             qPrintable(tip));
    const QRegularExpression pattern(QRegularExpression::wildcardToRegularExpression(expected));
    QVERIFY2(pattern.match(lines.join(QLatin1Char('|'))).hasMatch(), qPrintable(tip));
}

void tst_WeekView::tipOfTheKeyboard()
{
    key(Qt::Key_Space);
    QVERIFY(!QToolTip::isVisible());
    QTest::mouseClick(m_view->viewport(), Qt::LeftButton, Qt::NoModifier, centreOf(3));
    key(Qt::Key_Space);
    QVERIFY2(QToolTip::text().endsWith(
                 QStringLiteral("Plan 14 never plays: it starts at 20:00:00 and ends before, "
                                "at 18:00:00.")),
             qPrintable(QToolTip::text()));
}

void tst_WeekView::theLineFollowsTheClock()
{
    const auto lineOf = [this] {
        const QImage picture = m_view->viewport()->grab().toImage();
        const int x = m_view->visualRect({QDate(2024, 3, 7), 2}).right() + 2;
        for (int y = 0; y < picture.height(); ++y) {
            if (picture.pixelColor(x, y) == look::darkColours().weekNow) {
                return y / m_view->hourHeight();
            }
        }
        return -1.0;
    };
    QVERIFY(qAbs(lineOf() - 9.0) < 0.1);
    m_clock->set(wednesdayAtNine().addSecs(3 * 3600));
    m_view->hide();
    m_view->show();
    QVERIFY(qAbs(lineOf() - 12.0) < 0.1);
    // The week turns with the days, unless another one was asked for.
    m_clock->set(wednesdayAtNine().addDays(7));
    m_view->hide();
    m_view->show();
    QCOMPARE(m_view->firstDay(), QDate(2024, 3, 11));
    m_view->stepWeeks(-1);
    m_clock->set(wednesdayAtNine().addDays(14));
    m_view->hide();
    m_view->show();
    QCOMPARE(m_view->firstDay(), QDate(2024, 3, 4));
    QCOMPARE(lineOf(), -1.0);
}

void tst_WeekView::theTimerRestsWhileHidden()
{
    auto* minutes = m_view->findChild<MinuteTimer*>();
    QVERIFY(minutes->isRunning());
    m_view->hide();
    QVERIFY(!minutes->isRunning());
    m_view->show();
    QVERIFY(minutes->isRunning());
}

void tst_WeekView::minutesAreAligned()
{
    QCOMPARE(MinuteTimer::untilNextMinute(), 60000);
    m_clock->set(wednesdayAtNine().addMSecs(59250));
    QCOMPARE(MinuteTimer::untilNextMinute(), 750);
    m_clock->set(wednesdayAtNine().addMSecs(59999));
    MinuteTimer minutes;
    const QSignalSpy began(&minutes, &MinuteTimer::minuteBegan);
    QVERIFY(began.isValid());
    minutes.start();
    QTRY_VERIFY(began.size() > 0);
    QVERIFY(minutes.isRunning());
}

void tst_WeekView::aVanishedBlockCannotBeActivated()
{
    QSignalSpy activated(m_view.get(), &WeekView::activated);
    QTest::mouseClick(m_view->viewport(), Qt::LeftButton, Qt::NoModifier, centreOf(2));
    m_view->setSchedule(scheduleOf({}));
    key(Qt::Key_Return);
    key(Qt::Key_Space);
    key(Qt::Key_Down);
    QCOMPARE(activated.size(), 0);
    QVERIFY(!m_view->selected());
}

void tst_WeekView::describesTheSelectedBlock()
{
    QCOMPARE(m_view->accessibleName(), QStringLiteral("Week"));
    QTest::mouseClick(m_view->viewport(), Qt::LeftButton, Qt::NoModifier, centreOf(2));
    QCOMPARE(m_view->accessibleDescription(),
             QStringLiteral("Mittwoch, 6. März 2024. Plan 13, 14:00 to 16:00: City news, Weather"));
}

QTEST_MAIN(tst_WeekView)
#include "tst_WeekView.moc"
