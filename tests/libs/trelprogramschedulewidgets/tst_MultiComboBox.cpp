#include "MultiComboBox.h"

#include "DayBox.h"
#include "TellingText.h"
#include "support/MessageLog.h"
#include "support/TestProgram.h"

#include <QApplication>
#include <QFontMetrics>
#include <QScrollArea>
#include <QScrollBar>
#include <QWheelEvent>

using namespace trel::mediadispatch;

class tst_MultiComboBox : public QObject
{
    Q_OBJECT

private slots:
    void lineIsForLookingOnly();
    void showingATextLeavesTheMarks();
    void cutsALongText_data();
    void cutsALongText();
    void showsALongTextFromItsHead();
    void restoresMarks_data();
    void restoresMarks();
    void restoringIsSilent();
    void marksAreBools();
    void marksFollowTheWholeText();
    void appliesASelection();
    void appliesAnEmptySelection();
    void updateBoxShowsTheMarks();
    void updateBoxWithoutMarks();
    void everyDayTextIsCarriedOnly();
    void newLabelsLeaveTheTextShown();
    void keyboardLeavesTheTextShown();
    void returnAddsNoEntry();
    void wheelScrollsTheParent();
    void goingOutOfSightIsNoSelection();
};

void tst_MultiComboBox::lineIsForLookingOnly()
{
    DayBox day;
    QVERIFY(day.selected.isValid());
    QVERIFY(day.box.isEditable());
    QVERIFY(day.box.lineEdit()->isReadOnly());
    QVERIFY(day.box.lineEdit()->testAttribute(Qt::WA_TransparentForMouseEvents));
    QTest::keyClicks(&day.box, QStringLiteral("Mo"));
    QCOMPARE(day.shown(), QStringLiteral("Every day"));
}

void tst_MultiComboBox::showingATextLeavesTheMarks()
{
    DayBox day;
    day.box.setShownText(QStringLiteral("Friday"));
    QCOMPARE(day.shown(), QStringLiteral("Friday"));
    QCOMPARE(day.box.toolTip(), QStringLiteral("Friday"));
    QCOMPARE(day.marked(), QStringList{QStringLiteral("Every day")});
    QCOMPARE(day.told(), QStringList());
}

void tst_MultiComboBox::cutsALongText_data()
{
    QTest::addColumn<int>("otherWidth");
    QTest::newRow("not at 92") << 92;
    QTest::newRow("not at 94") << 94;
}

void tst_MultiComboBox::cutsALongText()
{
    QFETCH(int, otherWidth);

    DayBox day;
    const QFontMetrics metrics(day.box.font());
    const QString text = tellingText(metrics, 93, otherWidth);
    QVERIFY(!text.isEmpty());
    day.box.setShownText(text);
    QCOMPARE(day.shown(), metrics.elidedText(text, Qt::ElideRight, 93));
    QVERIFY(day.shown().endsWith(QChar(0x2026)));
    QCOMPARE(day.box.toolTip(), text);
}

void tst_MultiComboBox::showsALongTextFromItsHead()
{
    DayBox day;
    day.box.setShownText(QStringLiteral("Monday,Tuesday,Wednesday,Thursday"));
    QCOMPARE(day.box.lineEdit()->cursorPosition(), 0);
}

void tst_MultiComboBox::restoresMarks_data()
{
    QTest::addColumn<QString>("separator");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("marked");

    const auto row = [](const char* name, const char* separator, const char* text,
                        const char* marked) {
        QTest::newRow(name) << QString::fromLatin1(separator) << QString::fromLatin1(text)
                            << QString::fromLatin1(marked);
    };
    row("one", ",", "Monday", "Monday");
    row("in any order", ",", "Sunday,Monday", "Monday|Sunday");
    row("repeated", ",", "Monday,Monday", "Monday");
    row("everything and others", ",", "Every day,Monday", "Every day|Monday");
    row("no such label", ",", "Monday,Holiday", "Monday");
    row("case matters", ",", "monday,Tuesday", "Tuesday");
    row("blanks matter", ",", "Monday, Tuesday", "Monday");
    row("nothing", ",", "", "");
    row("separators alone", ",", ",,", "");
    row("another separator", "; ", "Monday; Tuesday", "Monday|Tuesday");
    row("not that separator", ";", "Monday,Tuesday", "");
}

void tst_MultiComboBox::restoresMarks()
{
    QFETCH(QString, separator);
    QFETCH(QString, text);
    QFETCH(QString, marked);

    DayBox day;
    day.box.setSeparator(separator);
    day.box.setShownText(text);
    day.box.restoreCheckMarks();
    QCOMPARE(day.marked().join(QLatin1Char('|')), marked);
    QCOMPARE(day.box.toolTip(), text);
}

void tst_MultiComboBox::restoringIsSilent()
{
    DayBox day;
    day.box.setCurrentIndex(4);
    day.box.setShownText(QStringLiteral("Friday"));
    day.box.restoreCheckMarks();
    QCOMPARE(day.box.currentIndex(), 4);
    QCOMPARE(day.shown(), QStringLiteral("Friday"));
    QCOMPARE(day.told(), QStringList());
}

void tst_MultiComboBox::marksAreBools()
{
    DayBox day;
    for (int i = 0; i < day.box.count(); ++i) {
        const QVariant mark = day.box.itemData(i, Qt::CheckStateRole);
        QCOMPARE(mark.userType(), int(QMetaType::Bool));
        QCOMPARE(mark.toBool(), i == 0);
    }
}

void tst_MultiComboBox::marksFollowTheWholeText()
{
    DayBox day;
    day.box.setShownText(QStringLiteral("Monday,Tuesday,Wednesday,Thursday,Friday"));
    day.box.restoreCheckMarks();
    QCOMPARE(day.marked().size(), 5);
    QVERIFY(day.shown().endsWith(QChar(0x2026)));
}

void tst_MultiComboBox::appliesASelection()
{
    DayBox day;
    day.box.applySelection(QStringLiteral("Friday,Monday,Holiday"));
    QCOMPARE(day.box.toolTip(), QStringLiteral("Monday,Friday"));
    QCOMPARE(day.box.currentIndex(), 5);
    QCOMPARE(day.told(), QStringList{QStringLiteral("[Monday|Friday]")});
}

void tst_MultiComboBox::appliesAnEmptySelection()
{
    DayBox day;
    day.box.setCurrentIndex(4);
    day.box.applySelection(QString());
    QCOMPARE(day.shown(), QString());
    QCOMPARE(day.box.toolTip(), QString());
    QCOMPARE(day.box.currentIndex(), 4);
    QCOMPARE(day.told(), QStringList{QStringLiteral("[]")});
}

void tst_MultiComboBox::updateBoxShowsTheMarks()
{
    DayBox day;
    day.box.setCurrentIndex(4);
    day.box.setItemData(0, false, Qt::CheckStateRole);
    day.box.setItemData(1, true, Qt::CheckStateRole);
    day.box.setItemData(2, true, Qt::CheckStateRole);

    MessageLog log;
    day.box.updateBox();
    QCOMPARE(log.texts(), QStringList{QStringLiteral(
                              "#############################: (\"Monday\", \"Tuesday\")")});
    QCOMPARE(log.messages().front().type, QtDebugMsg);
    QVERIFY(log.messages().front().file.endsWith(QLatin1String("MultiComboBox.cpp")));

    const QFontMetrics metrics(day.box.font());
    QCOMPARE(day.shown(), metrics.elidedText(QStringLiteral("Monday,Tuesday"), Qt::ElideRight, 93));
    QCOMPARE(day.box.toolTip(), QStringLiteral("Monday,Tuesday"));
    QCOMPARE(day.box.lineEdit()->cursorPosition(), 0);
    QCOMPARE(day.box.currentIndex(), 4);
    QCOMPARE(day.told(), QStringList());
}

void tst_MultiComboBox::updateBoxWithoutMarks()
{
    DayBox day;
    day.box.setItemData(0, false, Qt::CheckStateRole);
    QTest::ignoreMessage(QtDebugMsg, "#############################: ()");
    day.box.updateBox();
    QCOMPARE(day.shown(), QString());
}

void tst_MultiComboBox::everyDayTextIsCarriedOnly()
{
    DayBox day;
    day.box.setEveryDayText(QStringLiteral("Always"));
    QCOMPARE(day.box.everyDayText(), QStringLiteral("Always"));
    QCOMPARE(day.shown(), QStringLiteral("Every day"));
    day.box.applySelection(QString());
    QCOMPARE(day.shown(), QString());
    QCOMPARE(day.box.toolTip(), QString());
    QCOMPARE(day.box.findText(QStringLiteral("Always")), -1);
}

void tst_MultiComboBox::newLabelsLeaveTheTextShown()
{
    DayBox day;
    day.box.applySelection(QStringLiteral("Monday"));
    day.told();
    day.box.setItemText(1, QStringLiteral("Montag"));
    QCOMPARE(day.shown(), QStringLiteral("Monday"));
    QCOMPARE(day.marked(), QStringList{QStringLiteral("Montag")});
    QCOMPARE(day.told(), QStringList());
}

void tst_MultiComboBox::keyboardLeavesTheTextShown()
{
    DayBox day;
    day.box.applySelection(QStringLiteral("Monday,Sunday"));
    day.told();
    QTest::keyClick(&day.box, Qt::Key_Up);
    QTest::keyClick(&day.box, Qt::Key_Up);
    QCOMPARE(day.box.toolTip(), QStringLiteral("Monday,Sunday"));
    QVERIFY(day.shown().startsWith(QLatin1String("Monday,")));
    QCOMPARE(day.told(), QStringList());
}

void tst_MultiComboBox::returnAddsNoEntry()
{
    DayBox day;
    day.box.applySelection(QStringLiteral("Monday,Sunday"));
    QTest::keyClick(day.box.lineEdit(), Qt::Key_Return);
    QCOMPARE(day.box.count(), 8);
    QCOMPARE(day.box.toolTip(), QStringLiteral("Monday,Sunday"));
}

void tst_MultiComboBox::wheelScrollsTheParent()
{
    TestClock clock(QDateTime(QDate(2024, 5, 6), QTime(10, 0)));
    QScrollArea area;
    auto* const content = new QWidget;
    content->setMinimumSize(200, 2000);
    auto* const box = new MultiComboBox(content);
    box->addItems({QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("c")});
    box->applySelection(QStringLiteral("b"));
    area.setWidget(content);
    area.resize(250, 200);
    area.show();
    QSignalSpy selected(box, &MultiComboBox::signalSelectedText);
    QVERIFY(selected.isValid());

    const QPoint place = box->rect().center();
    QWheelEvent down(QPointF(place), QPointF(box->mapToGlobal(place)), QPoint(), QPoint(0, -240),
                     Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    // Only a turn of a real wheel goes on to the parents.
    QSpontaneKeyEvent::setSpontaneous(&down);
    QVERIFY(QCoreApplication::instance()->notify(box, &down));

    QVERIFY(area.verticalScrollBar()->value() > 0);
    QCOMPARE(box->currentIndex(), 1);
    QCOMPARE(box->lineEdit()->text(), QStringLiteral("b"));
    QCOMPARE(selected.count(), 0);
}

void tst_MultiComboBox::goingOutOfSightIsNoSelection()
{
    DayBox day;
    QTRY_VERIFY(day.box.isVisible());
    day.window.hide();
    day.window.show();
    day.box.setEnabled(false);
    day.box.setEnabled(true);
    QCOMPARE(day.told(), QStringList());
}

TREL_TEST(tst_MultiComboBox, QApplication)
#include "tst_MultiComboBox.moc"
