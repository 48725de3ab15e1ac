#include "MultiComboBox.h"
#include "support/TestProgram.h"

#include "DayBox.h"

#include <QApplication>
using namespace trel::mediadispatch;

namespace {

QStringList list(const char* texts)
{
    return QString::fromLatin1(texts).split(QLatin1Char('|'), Qt::SkipEmptyParts);
}

} // namespace

/// Entries that are given other labels, as another language does it.
class tst_MultiComboBoxLabels : public QObject
{
    Q_OBJECT

private slots:
    void newLabelsKeepTheSelection();
    void newLabelsKeepAnEmptySelection();
    void newLabelsInAnOpenList();
    void anEntryThatTakesTheLabelOfAnother();
    void anEntryThatIsGoneLeavesItsLabel();
    void theSeparatorOfTheMomentCounts();
    void aTextFromBeforeTheEntries();
};

void tst_MultiComboBoxLabels::newLabelsKeepTheSelection()
{
    DayBox day;
    day.box.setShownText(QStringLiteral("Monday,Friday"));
    day.box.setItemText(1, QStringLiteral("Montag"));
    day.box.setItemText(5, QStringLiteral("Freitag"));
    day.box.setItemText(5, QStringLiteral("vendredi"));
    QCOMPARE(day.box.toolTip(), QStringLiteral("Monday,Friday"));
    day.box.restoreCheckMarks();
    QCOMPARE(day.marked(), list("Montag|vendredi"));
    QCOMPARE(day.box.toolTip(), QStringLiteral("Monday,Friday"));
    day.open();
    QCOMPARE(day.marked(), list("Montag|vendredi"));
    day.box.hidePopup();
    QCOMPARE(day.told(), QStringList{QStringLiteral("[Montag|vendredi]")});
    QCOMPARE(day.box.toolTip(), QStringLiteral("Montag,vendredi"));
}

void tst_MultiComboBoxLabels::newLabelsKeepAnEmptySelection()
{
    DayBox day;
    day.box.setShownText(QString());
    day.box.setItemText(0, QStringLiteral("Jeden Tag"));
    day.open();
    QCOMPARE(day.marked(), QStringList());
    day.box.hidePopup();
    QCOMPARE(day.told(), list("[]"));
}

void tst_MultiComboBoxLabels::newLabelsInAnOpenList()
{
    DayBox day;
    day.box.setShownText(QStringLiteral("Monday"));
    day.open();
    for (int entry = 0; entry < day.box.count(); ++entry) {
        day.box.setItemText(entry, QStringLiteral("day %1").arg(entry));
    }
    day.clickEntry(2);
    QCOMPARE(day.marked(), list("day 1|day 2"));
    QCOMPARE(day.box.toolTip(), QStringLiteral("Monday"));
    day.box.hidePopup();
    QCOMPARE(day.told(), QStringList{QStringLiteral("[day 1|day 2]")});
}

// The word for one day may mean another one elsewhere.
void tst_MultiComboBoxLabels::anEntryThatTakesTheLabelOfAnother()
{
    DayBox day;
    day.box.setShownText(QStringLiteral("Monday"));
    day.box.setItemText(1, QStringLiteral("Tuesday"));
    day.box.setItemText(2, QStringLiteral("Monday"));
    day.box.restoreCheckMarks();
    QCOMPARE(day.marked(), list("Tuesday"));
    day.box.setShownText(QStringLiteral("Monday"));
    day.box.restoreCheckMarks();
    QCOMPARE(day.marked(), list("Monday"));
    QVERIFY(day.box.itemData(2, Qt::CheckStateRole).toBool());
}

void tst_MultiComboBoxLabels::anEntryThatIsGoneLeavesItsLabel()
{
    DayBox day;
    day.box.setShownText(QStringLiteral("Monday,Friday"));
    day.box.removeItem(1);
    day.box.insertItem(0, QStringLiteral("Holiday"));
    day.box.restoreCheckMarks();
    QCOMPARE(day.marked(), list("Friday"));
    day.box.addItem(QStringLiteral("Monday"));
    day.box.restoreCheckMarks();
    QCOMPARE(day.marked(), list("Friday|Monday"));
}

void tst_MultiComboBoxLabels::theSeparatorOfTheMomentCounts()
{
    DayBox day;
    day.box.setShownText(QStringLiteral("Monday,Friday"));
    day.box.setSeparator(QStringLiteral("+"));
    day.box.restoreCheckMarks();
    QCOMPARE(day.marked(), QStringList());
    day.box.setShownText(QStringLiteral("Monday+Friday"));
    day.box.restoreCheckMarks();
    QCOMPARE(day.marked(), list("Monday|Friday"));
}

void tst_MultiComboBoxLabels::aTextFromBeforeTheEntries()
{
    MultiComboBox box;
    box.setShownText(QStringLiteral("b,c"));
    box.addItems(list("a|b|c"));
    box.restoreCheckMarks();
    QStringList marked;
    for (int entry = 0; entry < box.count(); ++entry) {
        marked.append(box.itemData(entry, Qt::CheckStateRole).toString());
    }
    QCOMPARE(marked, list("false|true|true"));
}

TREL_TEST(tst_MultiComboBoxLabels, QApplication)
#include "tst_MultiComboBoxLabels.moc"
