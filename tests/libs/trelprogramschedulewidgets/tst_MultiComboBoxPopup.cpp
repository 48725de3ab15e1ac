#include "MultiComboBox.h"
#include "support/TestProgram.h"

#include "DayBox.h"

#include <QApplication>
using namespace trel::mediadispatch;

namespace {

constexpr int kEveryDay = 0;
constexpr int kMonday = 1;
constexpr int kTuesday = 2;
constexpr int kFriday = 5;

QStringList list(const char* texts)
{
    return QString::fromLatin1(texts).split(QLatin1Char('|'), Qt::SkipEmptyParts);
}

} // namespace

class tst_MultiComboBoxPopup : public QObject
{
    Q_OBJECT

private slots:
    void opensFromTheTextAndTheArrow();
    void opensFromTheTextWhereverTheArrowIs_data();
    void opensFromTheTextWhereverTheArrowIs();
    void theOtherButtonsOpenNothing();
    void reopens_data();
    void reopens();
    void justBuiltCountsAsJustHidden();
    void closingClickDoesNotReopen();
    void aDayClearsTheFirstEntry();
    void theFirstEntryClearsTheDays();
    void daysAddUp();
    void aSecondClickTakesTheMarkBack();
    void theTextWaitsForTheEnd();
    void settlesInTheOrderOfTheEntries();
    void settlesForNothing();
    void closingWithoutAClickTellsTheSame();
    void everyWayOutSettlesOnce_data();
    void everyWayOutSettlesOnce();
    void hidingTheBoxClosesItsList();
    void hidePopupAlwaysSettles();
    void theReleaseCounts();
    void theListStaysOpen();
    void aReleaseBesideTheEntries();
    void theSpaceKeyMarks();
    void unknownLabelsAreDropped();
    void marksComeFromTheTextOnEveryOpening();
    void labelsFitIntoTheList();
};

void tst_MultiComboBoxPopup::opensFromTheTextAndTheArrow()
{
    DayBox day;
    day.open();
    QVERIFY(day.isOpen());
    day.box.hidePopup();

    day.clock.advance(100);
    QTest::mouseClick(&day.box, Qt::LeftButton, {}, QPoint(day.box.width() - 10, 10));
    QVERIFY(day.isOpen());
}

void tst_MultiComboBoxPopup::opensFromTheTextWhereverTheArrowIs_data()
{
    QTest::addColumn<Qt::LayoutDirection>("direction");
    QTest::addColumn<QString>("sheet");
    const QString atTheLeft =
        QStringLiteral("QComboBox { border: 1px solid; padding-left: 22px; }"
                       "QComboBox::drop-down { subcontrol-position: left; width: 20px; }");
    const QString narrow = QStringLiteral("QComboBox { border: 1px solid; }"
                                          "QComboBox::drop-down { width: 6px; }");
    QTest::newRow("from the left") << Qt::LeftToRight << QString();
    QTest::newRow("from the right") << Qt::RightToLeft << QString();
    QTest::newRow("at the left by a sheet") << Qt::LeftToRight << atTheLeft;
    QTest::newRow("narrow by a sheet") << Qt::LeftToRight << narrow;
    QTest::newRow("narrow by a sheet, from the right") << Qt::RightToLeft << narrow;
}

void tst_MultiComboBoxPopup::opensFromTheTextWhereverTheArrowIs()
{
    QFETCH(const Qt::LayoutDirection, direction);
    QFETCH(const QString, sheet);
    DayBox day;
    day.box.setLayoutDirection(direction);
    day.box.setStyleSheet(sheet);
    day.window.grab();
    for (const QPoint& place :
         {day.textPlace(), day.box.lineEdit()->geometry().topLeft() + QPoint(1, 1),
          day.box.lineEdit()->geometry().bottomRight() - QPoint(1, 1)}) {
        day.clock.advance(100);
        QTest::mouseClick(&day.box, Qt::LeftButton, {}, place);
        QVERIFY(day.isOpen());
        day.box.hidePopup();
        QVERIFY(!day.isOpen());
    }
}

void tst_MultiComboBoxPopup::theOtherButtonsOpenNothing()
{
    DayBox day;
    day.clock.advance(100);
    QTest::mouseClick(&day.box, Qt::RightButton, {}, day.textPlace());
    QTest::mouseClick(&day.box, Qt::MiddleButton, {}, day.textPlace());
    QVERIFY(!day.isOpen());
}

void tst_MultiComboBoxPopup::reopens_data()
{
    QTest::addColumn<QDateTime>("pressed");
    QTest::addColumn<bool>("opens");

    const QDateTime hidden(QDate(2024, 5, 6), QTime(10, 0));
    QTest::newRow("at once") << hidden << false;
    QTest::newRow("after 99 ms") << hidden.addMSecs(99) << false;
    QTest::newRow("after 100 ms") << hidden.addMSecs(100) << true;
    QTest::newRow("after an hour") << hidden.addSecs(3600) << true;
    QTest::newRow("earlier on the next day") << hidden.addSecs(23 * 3600) << false;
}

void tst_MultiComboBoxPopup::reopens()
{
    QFETCH(QDateTime, pressed);
    QFETCH(bool, opens);

    DayBox day;
    day.clock.set(QDateTime(QDate(2024, 5, 6), QTime(9, 0)));
    day.open();
    day.clock.set(QDateTime(QDate(2024, 5, 6), QTime(10, 0)));
    day.box.hidePopup();
    day.clock.set(pressed);
    QTest::mouseClick(&day.box, Qt::LeftButton, {}, day.textPlace());
    QCOMPARE(day.isOpen(), opens);
}

void tst_MultiComboBoxPopup::justBuiltCountsAsJustHidden()
{
    DayBox day;
    day.clock.advance(99);
    day.box.showPopup();
    QVERIFY(!day.isOpen());
    day.clock.advance(1);
    day.box.showPopup();
    QVERIFY(day.isOpen());
}

void tst_MultiComboBoxPopup::closingClickDoesNotReopen()
{
    DayBox day;
    day.open();
    day.box.hidePopup();
    QTest::mouseClick(&day.box, Qt::LeftButton, {}, day.textPlace());
    QVERIFY(!day.isOpen());
}

void tst_MultiComboBoxPopup::aDayClearsTheFirstEntry()
{
    DayBox day;
    day.open();
    day.clickEntry(kMonday);
    QCOMPARE(day.marked(), list("Monday"));
    QVERIFY(day.isOpen());
}

void tst_MultiComboBoxPopup::theFirstEntryClearsTheDays()
{
    DayBox day;
    day.box.setShownText(QStringLiteral("Monday,Tuesday,Sunday"));
    day.open();
    day.clickEntry(kEveryDay);
    QCOMPARE(day.marked(), list("Every day"));
}

void tst_MultiComboBoxPopup::daysAddUp()
{
    DayBox day;
    day.open();
    day.clickEntry(kFriday);
    day.clickEntry(kMonday);
    QCOMPARE(day.marked(), list("Monday|Friday"));
}

void tst_MultiComboBoxPopup::aSecondClickTakesTheMarkBack()
{
    DayBox day;
    day.open();
    day.clickEntry(kEveryDay);
    QCOMPARE(day.marked(), QStringList());
    day.clickEntry(kTuesday);
    day.clickEntry(kTuesday);
    QCOMPARE(day.marked(), QStringList());
}

void tst_MultiComboBoxPopup::theTextWaitsForTheEnd()
{
    DayBox day;
    day.open();
    day.clickEntry(kMonday);
    QCOMPARE(day.shown(), QStringLiteral("Every day"));
    QCOMPARE(day.box.toolTip(), QStringLiteral("Every day"));
    QCOMPARE(day.told(), QStringList());
    day.box.hidePopup();
    QCOMPARE(day.shown(), QStringLiteral("Monday"));
    QCOMPARE(day.told(), list("[Monday]"));
}

void tst_MultiComboBoxPopup::settlesInTheOrderOfTheEntries()
{
    DayBox day;
    day.box.setSeparator(QStringLiteral("+"));
    day.open();
    day.clickEntry(kFriday);
    day.clickEntry(kMonday);
    day.box.hidePopup();
    QCOMPARE(day.box.toolTip(), QStringLiteral("Monday+Friday"));
    QCOMPARE(day.box.currentIndex(), kFriday);
    QCOMPARE(day.box.lineEdit()->cursorPosition(), 0);
    QCOMPARE(day.selected.first().first().toStringList(), list("Monday|Friday"));
}

void tst_MultiComboBoxPopup::settlesForNothing()
{
    DayBox day;
    day.open();
    day.clickEntry(kEveryDay);
    day.box.hidePopup();
    QCOMPARE(day.shown(), QString());
    QCOMPARE(day.told(), list("[]"));
}

void tst_MultiComboBoxPopup::closingWithoutAClickTellsTheSame()
{
    DayBox day;
    day.box.setShownText(QStringLiteral("Monday,Friday"));
    day.open();
    day.box.hidePopup();
    day.open();
    day.box.hidePopup();
    QCOMPARE(day.selected.count(), 2);
    QCOMPARE(day.selected.at(0).first().toStringList(), list("Monday|Friday"));
    QCOMPARE(day.selected.at(1).first().toStringList(), list("Monday|Friday"));
}

void tst_MultiComboBoxPopup::everyWayOutSettlesOnce_data()
{
    QTest::addColumn<int>("key");
    QTest::newRow("click beside the list") << 0;
    QTest::newRow("escape") << int(Qt::Key_Escape);
    QTest::newRow("return") << int(Qt::Key_Return);
    QTest::newRow("enter") << int(Qt::Key_Enter);
}

void tst_MultiComboBoxPopup::everyWayOutSettlesOnce()
{
    QFETCH(int, key);

    DayBox day;
    day.open();
    day.clickEntry(kMonday);
    day.clickEntry(kTuesday);
    if (key == 0) {
        QTest::mousePress(day.box.view()->window(), Qt::LeftButton, {}, QPoint(-50, -50));
    } else {
        QTest::keyClick(day.box.view(), Qt::Key(key));
    }
    QTRY_VERIFY(!day.isOpen());
    QCOMPARE(day.told(), QStringList{QStringLiteral("[Monday|Tuesday]")});
    QCOMPARE(day.box.toolTip(), QStringLiteral("Monday,Tuesday"));
    QVERIFY(day.shown().startsWith(QLatin1String("Monday,")));
}

void tst_MultiComboBoxPopup::hidingTheBoxClosesItsList()
{
    DayBox day;
    day.open();
    day.clickEntry(kMonday);
    day.box.hide();
    QVERIFY(!day.isOpen());
    QCOMPARE(day.told(), list("[Monday]"));
}

void tst_MultiComboBoxPopup::hidePopupAlwaysSettles()
{
    DayBox day;
    day.box.hidePopup();
    QCOMPARE(day.told(), list("[Every day]"));
}

void tst_MultiComboBoxPopup::theReleaseCounts()
{
    DayBox day;
    day.open();
    QWidget* const list = day.box.view()->viewport();
    QTest::mousePress(list, Qt::LeftButton, {}, day.entryPlace(kMonday));
    QCOMPARE(day.marked().first(), QStringLiteral("Every day"));
    QTest::mouseRelease(list, Qt::LeftButton, {}, day.entryPlace(kFriday));
    QCOMPARE(day.marked(), QStringList{QStringLiteral("Friday")});
}

// Without a press on the box the toolkit itself takes the very first release for a choice.
void tst_MultiComboBoxPopup::theListStaysOpen()
{
    DayBox day;
    day.clock.advance(100);
    day.box.showPopup();
    day.clickEntry(kMonday);
    day.clickEntry(kFriday);
    QVERIFY(day.isOpen());
    QCOMPARE(day.told(), QStringList());
    QCOMPARE(day.marked(), list("Monday|Friday"));
}

void tst_MultiComboBoxPopup::aReleaseBesideTheEntries()
{
    DayBox day;
    day.open();
    const QPoint below(5, day.box.view()->viewport()->height() + 500);
    QTest::mouseRelease(day.box.view()->viewport(), Qt::LeftButton, {}, below);
    QCOMPARE(day.marked(), QStringList());
    QVERIFY(day.isOpen());
}

void tst_MultiComboBoxPopup::theSpaceKeyMarks()
{
    DayBox day;
    day.open();
    QTest::keyClick(day.box.view(), Qt::Key_Down);
    QTest::keyClick(day.box.view(), Qt::Key_Space);
    QCOMPARE(day.marked(), list("Monday"));
    QTest::keyClick(day.box.view(), Qt::Key_Down);
    QTest::keyClick(day.box.view(), Qt::Key_Space);
    QCOMPARE(day.marked(), list("Monday|Tuesday"));
    QCOMPARE(day.shown(), QStringLiteral("Every day"));
    QTest::keyClick(day.box.view(), Qt::Key_Home);
    QTest::keyClick(day.box.view(), Qt::Key_Space);
    QCOMPARE(day.marked(), list("Every day"));
    QVERIFY(day.isOpen());
    QCOMPARE(day.told(), QStringList());
}

void tst_MultiComboBoxPopup::unknownLabelsAreDropped()
{
    DayBox day;
    day.box.setShownText(QStringLiteral("Monday,Holiday"));
    day.open();
    day.box.hidePopup();
    QCOMPARE(day.shown(), QStringLiteral("Monday"));
    QCOMPARE(day.told(), list("[Monday]"));
}

void tst_MultiComboBoxPopup::marksComeFromTheTextOnEveryOpening()
{
    DayBox day;
    day.box.setItemData(kFriday, true, Qt::CheckStateRole);
    day.open();
    QCOMPARE(day.marked(), list("Every day"));
}

void tst_MultiComboBoxPopup::labelsFitIntoTheList()
{
    DayBox day;
    day.box.setFixedWidth(40);
    day.box.setItemText(3, QStringLiteral("A label that is far wider than the box"));
    day.open();
    QVERIFY(day.box.view()->viewport()->width() >= day.box.view()->sizeHintForColumn(0));
    day.box.hidePopup();
}

TREL_TEST(tst_MultiComboBoxPopup, QApplication)
#include "tst_MultiComboBoxPopup.moc"
