#include "WeekFixture.h"
#include "support/TestProgram.h"

#include <QApplication>
#include <QScrollBar>
#include <QSignalSpy>

using namespace trel::desktop;
using namespace trel::mediadispatch;
using namespace trel::desktop::week;
using namespace weekfixture;

/// How high hours are, and which of them are in sight.
class tst_WeekArea : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void fitsTheWholeDay();
    void wheelWithControlZoomsAboutThePointer();
    void wheelAloneScrolls();
    void zoomEndsAtTenPixelsAMinute();
    void pinchZooms();
    void keysZoom();
    void homeShowsNow();
    void selectionComesIntoSight();
    void daysComeIntoSight_data();
    void daysComeIntoSight();

private:
    std::unique_ptr<ShownWeek> m_week;
};

void tst_WeekArea::init()
{
    m_week = std::make_unique<ShownWeek>();
}

void tst_WeekArea::cleanup()
{
    m_week.reset();
}

void tst_WeekArea::fitsTheWholeDay()
{
    QCOMPARE(m_week->view.verticalScrollBar()->maximum(), 0);
    m_week->view.resize(900, 800);
    QCOMPARE(m_week->view.verticalScrollBar()->maximum(), 0);
    QVERIFY(qAbs(m_week->view.hourHeight() * 24 - m_week->view.viewport()->height()) < 1.0);
    m_week->view.zoom(4.0);
    QVERIFY(!m_week->view.isFit());
    const double hour = m_week->view.hourHeight();
    m_week->view.resize(900, 600);
    QCOMPARE(m_week->view.hourHeight(), hour);
    m_week->view.zoomToFit();
    QVERIFY(qAbs(m_week->view.hourHeight() * 24 - m_week->view.viewport()->height()) < 1.0);
}

void tst_WeekArea::wheelWithControlZoomsAboutThePointer()
{
    m_week->view.zoom(4.0);
    m_week->view.verticalScrollBar()->setValue(400);
    const QPoint place(200, 150);
    const auto hourUnderThePointer = [&] {
        return (m_week->view.verticalScrollBar()->value() + place.y()) / m_week->view.hourHeight();
    };
    const double before = m_week->view.hourHeight();
    const double hour = hourUnderThePointer();
    m_week->wheel(120, place, Qt::ControlModifier);
    QVERIFY(m_week->view.hourHeight() > before);
    QVERIFY(qAbs(hourUnderThePointer() - hour) < 0.02);
    m_week->wheel(-120, place, Qt::ControlModifier);
    QVERIFY(qAbs(m_week->view.hourHeight() - before) < 0.001);
    QVERIFY(qAbs(hourUnderThePointer() - hour) < 0.03);
}

void tst_WeekArea::wheelAloneScrolls()
{
    m_week->view.zoom(4.0);
    m_week->view.verticalScrollBar()->setValue(400);
    const double hour = m_week->view.hourHeight();
    m_week->wheel(-120, {200, 150}, Qt::NoModifier);
    QVERIFY(m_week->view.verticalScrollBar()->value() > 400);
    QCOMPARE(m_week->view.hourHeight(), hour);
}

void tst_WeekArea::zoomEndsAtTenPixelsAMinute()
{
    for (int i = 0; i < 40; ++i) {
        m_week->wheel(120, {200, 150}, Qt::ControlModifier);
    }
    QCOMPARE(m_week->view.hourHeight(), 600.0);
    for (int i = 0; i < 40; ++i) {
        m_week->wheel(-120, {200, 150}, Qt::ControlModifier);
    }
    QVERIFY(m_week->view.isFit());
    QCOMPARE(m_week->view.verticalScrollBar()->maximum(), 0);
}

void tst_WeekArea::pinchZooms()
{
    QNativeGestureEvent pinch(Qt::ZoomNativeGesture, QTouchDevice::devices().value(0),
                              QPointF(200, 150), QPointF(200, 150), QPointF(200, 150), 0.5, 0, 0);
    const double before = m_week->view.hourHeight();
    QCoreApplication::sendEvent(m_week->view.viewport(), &pinch);
    QCOMPARE(m_week->view.hourHeight(), before * 1.5);
}

void tst_WeekArea::keysZoom()
{
    const QSignalSpy zooms(&m_week->view, &WeekView::zoomChanged);
    QVERIFY(zooms.isValid());
    const double before = m_week->view.hourHeight();
    m_week->key(Qt::Key_Plus);
    QCOMPARE(m_week->view.hourHeight(), before * 1.25);
    m_week->key(Qt::Key_Plus);
    m_week->key(Qt::Key_Minus);
    QVERIFY(qAbs(m_week->view.hourHeight() - before * 1.25) < 0.001);
    m_week->key(Qt::Key_0);
    QCOMPARE(m_week->view.hourHeight(), before);
    QCOMPARE(zooms.size(), 4);
}

void tst_WeekArea::homeShowsNow()
{
    m_week->view.zoom(10.0);
    m_week->view.verticalScrollBar()->setValue(0);
    m_week->view.stepWeeks(5);
    m_week->key(Qt::Key_Home);
    QCOMPARE(m_week->view.firstDay(), QDate(2024, 3, 4));
    const double top = m_week->view.verticalScrollBar()->value() / m_week->view.hourHeight();
    const double bottom = top + m_week->view.viewport()->height() / m_week->view.hourHeight();
    QVERIFY(top < 9.0 && 9.0 < bottom);
}

void tst_WeekArea::selectionComesIntoSight()
{
    m_week->view.zoom(10.0);
    m_week->view.verticalScrollBar()->setValue(m_week->view.verticalScrollBar()->maximum());
    m_week->key(Qt::Key_Down);
    QVERIFY(m_week->view.viewport()->rect().intersects(
        m_week->view.visualRect(*m_week->view.selected())));
    m_week->view.resize(300, 560);
    m_week->key(Qt::Key_Down);
    m_week->key(Qt::Key_Down);
    m_week->key(Qt::Key_Right);
    QVERIFY(m_week->view.viewport()->rect().contains(
        m_week->view.visualRect(*m_week->view.selected()).topLeft()));
}

void tst_WeekArea::daysComeIntoSight_data()
{
    QTest::addColumn<Qt::LayoutDirection>("direction");
    QTest::newRow("from the left") << Qt::LeftToRight;
    QTest::newRow("from the right") << Qt::RightToLeft;
}

/// In a narrow window, whichever way one reads.
void tst_WeekArea::daysComeIntoSight()
{
    QFETCH(Qt::LayoutDirection, direction);
    m_week->view.setLayoutDirection(direction);
    m_week->view.resize(300, 560);
    const auto isInSight = [this] {
        const QRect rect = m_week->view.visualRect(*m_week->view.selected());
        return m_week->view.viewport()->rect().contains(rect.left(), rect.top()) &&
               m_week->view.viewport()->rect().contains(rect.right(), rect.top());
    };
    m_week->key(Qt::Key_Home);
    m_week->key(Qt::Key_Down);
    m_week->key(Qt::Key_Down);
    m_week->key(Qt::Key_Down);
    const bool isMirrored = direction == Qt::RightToLeft;
    for (const Qt::Key ahead :
         {isMirrored ? Qt::Key_Left : Qt::Key_Right, isMirrored ? Qt::Key_Right : Qt::Key_Left}) {
        m_week->view.horizontalScrollBar()->setValue(0);
        m_week->key(ahead);
        QVERIFY(isInSight());
        m_week->view.horizontalScrollBar()->setValue(m_week->view.horizontalScrollBar()->maximum());
        m_week->key(Qt::Key_Up);
        m_week->key(Qt::Key_Down);
        QVERIFY(isInSight());
    }
}

TREL_TEST(tst_WeekArea, QApplication)
#include "tst_WeekArea.moc"
