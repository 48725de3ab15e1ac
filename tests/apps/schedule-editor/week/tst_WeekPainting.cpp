#include "WeekFixture.h"
#include "support/TestProgram.h"
#include "week/BlockPainting.h"
#include "week/WeekStrip.h"

#include <QApplication>
using namespace trel::desktop;
using namespace trel::mediadispatch;
using namespace trel::desktop::week;
using namespace weekfixture;

/// The picture to the dot, and what of a text is drawn where there is little room.
class tst_WeekPainting : public QObject
{
    Q_OBJECT

private slots:
    void timesAreToldAsAWholeOrNotAtAll_data();
    void timesAreToldAsAWholeOrNotAtAll();
    void theBarOfTodayIsWhole_data();
    void theBarOfTodayIsWhole();
    void hoursStandWhereReadingBegins_data();
    void hoursStandWhereReadingBegins();
};

namespace {

/// The strips beside the days: of the dates, and of the hours.
QVector<QRect> stripsOf(const WeekView& view)
{
    QVector<QRect> strips;
    for (const WeekStrip* strip : view.findChildren<WeekStrip*>()) {
        strips.append(strip->geometry());
    }
    return strips;
}

QString withoutMarks(QString text)
{
    return text.remove(QChar(0x2066)).remove(QChar(0x2069));
}

} // namespace

void tst_WeekPainting::timesAreToldAsAWholeOrNotAtAll_data()
{
    QTest::addColumn<QString>("expected");
    QTest::addColumn<int>("missing");
    QTest::newRow("all") << QStringLiteral("12  08:00\u201309:30") << 0;
    QTest::newRow("the begin") << QStringLiteral("12  08:00") << 1;
    QTest::newRow("the number") << QStringLiteral("12") << 2;
}

void tst_WeekPainting::timesAreToldAsAWholeOrNotAtAll()
{
    QFETCH(QString, expected);
    QFETCH(int, missing);
    const QFontMetrics metrics(qApp->font());
    WeekBlock block;
    block.planId = 12;
    block.from = 8 * 3600;
    block.to = 9 * 3600 + 1800;
    const QString whole = blockTitle(block, metrics, 1000);
    const QStringList longer{whole, QStringLiteral("12  08:00")};
    const int width = missing == 0 ? metrics.horizontalAdvance(whole)
                                   : metrics.horizontalAdvance(longer.at(missing - 1)) - 1;
    QCOMPARE(withoutMarks(blockTitle(block, metrics, width)), expected);
}

void tst_WeekPainting::theBarOfTodayIsWhole_data()
{
    QTest::addColumn<double>("ratio");
    QTest::newRow("100 %") << 1.0;
    QTest::newRow("150 %") << 1.5;
    QTest::newRow("200 %") << 2.0;
}

/// Down to the lower edge of the dates, without a line through it.
void tst_WeekPainting::theBarOfTodayIsWhole()
{
    QFETCH(double, ratio);
    ShownWeek week;
    QImage picture(week.view.size() * ratio, QImage::Format_RGB32);
    picture.setDevicePixelRatio(ratio);
    week.view.render(&picture);
    const QRect dates = stripsOf(week.view).at(0);
    const int today = week.view.visualRect({QDate(2024, 3, 6), 2}).center().x() + dates.left();
    const int x = qRound(today * ratio);
    QString run;
    for (int y = qRound((dates.bottom() - 5) * ratio); y < qRound((dates.bottom() + 1) * ratio);
         ++y) {
        const bool isBar = picture.pixelColor(x, y) == look::darkColours().weekNow;
        run += QLatin1Char(isBar ? '#' : '.');
    }
    const int first = run.indexOf(QLatin1Char('#'));
    QVERIFY2(first > 0 && run.size() - first >= 3 * std::floor(ratio), qPrintable(run));
    QVERIFY2(!run.midRef(first).contains(QLatin1Char('.')), qPrintable(run));
}

void tst_WeekPainting::hoursStandWhereReadingBegins_data()
{
    QTest::addColumn<Qt::LayoutDirection>("direction");
    QTest::newRow("from the left") << Qt::LeftToRight;
    QTest::newRow("from the right") << Qt::RightToLeft;
}

void tst_WeekPainting::hoursStandWhereReadingBegins()
{
    QFETCH(Qt::LayoutDirection, direction);
    ShownWeek week;
    week.view.setLayoutDirection(direction);
    for (const int width : {900, 300}) {
        week.view.resize(width, 560);
        const QRect days = week.view.viewport()->geometry();
        const QVector<QRect> strips = stripsOf(week.view);
        QCOMPARE(strips.size(), 2);
        QCOMPARE(strips.at(0).left(), days.left());
        QCOMPARE(strips.at(0).right(), days.right());
        const QRect hours = strips.at(1);
        QVERIFY(week.view.rect().contains(hours));
        QCOMPARE(hours.top(), days.top());
        const bool isMirrored = direction == Qt::RightToLeft;
        QCOMPARE(isMirrored ? days.right() + 1 : hours.right() + 1,
                 isMirrored ? hours.left() : days.left());
    }
}

TREL_TEST(tst_WeekPainting, QApplication)
#include "tst_WeekPainting.moc"
