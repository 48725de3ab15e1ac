#include "LookSupport.h"
#include "look/Themes.h"
#include "support/TestProgram.h"

#include <QApplication>
#include <QCalendarWidget>
#include <QTableView>
#include <QToolButton>
#include <QtTest>

#include <memory>

using namespace trel::desktop;

/// The calendar of a date, which the toolkit writes with colours of its own.
class tst_CalendarLook : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void everyDayCanBeRead_data() { addThemes(); }
    void everyDayCanBeRead();
    void arrowsStandOut_data() { addThemes(); }
    void arrowsStandOut();
    void arrowsPointOutwards_data() { addThemes(); }
    void arrowsPointOutwards();
    void anotherThemeReachesAnOpenCalendar();

private:
    QToolButton* arrow(const char* name) const
    {
        return m_calendar->findChild<QToolButton*>(QLatin1String(name));
    }
    /// The arrows that are not seen well on the bar.
    QString faultsOfArrows() const;

    std::unique_ptr<Themes> m_themes;
    std::unique_ptr<QCalendarWidget> m_calendar;
};

namespace {

constexpr char kFormer[] = "qt_calendar_prevmonth";
constexpr char kNext[] = "qt_calendar_nextmonth";

/// In how many rows there are strokes, in a part of a picture.
int strokeRows(const QImage& picture, const QColor& ground, const QRect& part)
{
    int rows = 0;
    for (int y = part.top(); y <= part.bottom(); ++y) {
        for (int x = part.left(); x <= part.right(); ++x) {
            if (contrast(picture.pixelColor(x, y), ground) >= 2.0) {
                ++rows;
                break;
            }
        }
    }
    return rows;
}

/// Whether the head of an arrow, which is higher than its shaft, is in the left half of the button.
bool pointsLeft(QToolButton* button)
{
    const QImage picture = pictureOf(button);
    const QColor ground = lookAt(picture, picture.rect()).ground;
    const QRect left(0, 0, picture.width() / 2, picture.height());
    return strokeRows(picture, ground, left) >
           strokeRows(picture, ground, left.translated(left.width(), 0));
}

} // namespace

void tst_CalendarLook::init()
{
    m_themes = std::make_unique<Themes>(*qApp);
    const auto* const row = QTest::currentDataTag();
    m_themes->select(row != nullptr ? QString::fromLatin1(row) : QStringLiteral("light"));
    m_calendar = std::make_unique<QCalendarWidget>();
    m_calendar->setSelectedDate({2026, 11, 22});
    m_calendar->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_calendar.get()));
}

void tst_CalendarLook::cleanup()
{
    m_calendar.reset();
    m_themes.reset();
}

QString tst_CalendarLook::faultsOfArrows() const
{
    constexpr double kLeastOfSigns = 3.0;
    QString faults;
    for (const char* const name : {kFormer, kNext}) {
        const QImage picture = pictureOf(arrow(name));
        faults += faultOf(picture, picture.rect(), QLatin1String(name), kLeastOfSigns);
    }
    return faults;
}

/// The weekend, the days of other months, the chosen one and the names above them.
void tst_CalendarLook::everyDayCanBeRead()
{
    auto* const days =
        m_calendar->findChild<QTableView*>(QStringLiteral("qt_calendar_calendarview"));
    const QImage picture = pictureOf(days->viewport());
    QString faults;
    int read = 0;
    for (int row = 0; row < days->model()->rowCount(); ++row) {
        for (int column = 0; column < days->model()->columnCount(); ++column) {
            const QModelIndex day = days->model()->index(row, column);
            const QRect cell = days->visualRect(day);
            if (cell.isEmpty() || day.data().toString().isEmpty()) {
                continue;
            }
            faults += faultOf(picture, cell.adjusted(3, 3, -3, -3), day.data().toString());
            ++read;
        }
    }
    QVERIFY2(faults.isEmpty(), qPrintable(faults));
    QVERIFY(read >= 7 * 7);
}

void tst_CalendarLook::arrowsStandOut()
{
    QVERIFY2(faultsOfArrows().isEmpty(), qPrintable(faultsOfArrows()));
    const QColor seen = lookAt(pictureOf(arrow(kNext)), arrow(kNext)->rect()).text;
    QVERIFY2(contrast(seen, m_themes->colours().accentText) < 1.5, qPrintable(seen.name()));
}

void tst_CalendarLook::arrowsPointOutwards()
{
    QVERIFY(pointsLeft(arrow(kFormer)));
    QVERIFY(!pointsLeft(arrow(kNext)));
    m_calendar = std::make_unique<QCalendarWidget>();
    m_calendar->setLayoutDirection(Qt::RightToLeft);
    m_calendar->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_calendar.get()));
    QVERIFY(!pointsLeft(arrow(kFormer)));
    QVERIFY(pointsLeft(arrow(kNext)));
}

void tst_CalendarLook::anotherThemeReachesAnOpenCalendar()
{
    m_themes->select(QStringLiteral("high-contrast"));
    QCoreApplication::processEvents();
    QVERIFY2(faultsOfArrows().isEmpty(), qPrintable(faultsOfArrows()));
}

TREL_TEST(tst_CalendarLook, QApplication)
#include "tst_CalendarLook.moc"
