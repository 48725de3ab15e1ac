#include "OpenCard.h"
#include "support/TestProgram.h"

#include "MultiComboBox.h"
#include "PlanStandardItemModel.h"
#include "kCustomLineEdit.h"

#include "trelwidgets/ComboBox.h"

#include <QApplication>
#include <QBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QSpinBox>
#include <QTableView>
#include <QTimeEdit>

using namespace trel::mediadispatch;

namespace {

RecordingService& service()
{
    return RecordingService::instance();
}

/// "0=label 1=label" for the entries of a box and their data.
QString entries(const QComboBox& box)
{
    QStringList texts;
    for (int i = 0; i < box.count(); ++i) {
        texts.append(QStringLiteral("%1=%2").arg(box.itemData(i).toString(), box.itemText(i)));
    }
    return texts.join(QLatin1Char(' '));
}

} // namespace

/// The widgets of a row: where they stand and how they are set up.
class tst_PlanTaskWidgetRowWidgets : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void holders();
    void editorsOfARow();
    void boxes();
    void buttons();
    void editorsDoNotOverlap();
    void theButtonsAreInSight_data();
    void theButtonsAreInSight();
};

void tst_PlanTaskWidgetRowWidgets::init()
{
    service().reset();
}

void tst_PlanTaskWidgetRowWidgets::holders()
{
    const OpenCard open(taskWithPlans({timePlan(1, "08:00:00", "09:00:00")}));
    for (const PlanColumn column : {ModeColumn, StartTimeColumn, EndTimeColumn, TimesColumn,
                                    WeeksColumn, EndActionColumn, CopyColumn, DeleteColumn}) {
        const QWidget* const holder = open.rows.cell(0, column);
        QCOMPARE(holder->metaObject()->className(), "QWidget");
        QVERIFY(qobject_cast<QVBoxLayout*>(holder->layout()));
        QCOMPARE(holder->layout()->count(), 1);
        QCOMPARE(holder->layout()->contentsMargins(),
                 column == ModeColumn ? QMargins(0, 9, 0, 9) : QMargins());
    }
    QVERIFY(qobject_cast<QLabel*>(open.rows.cell(0, StateColumn)));
}

void tst_PlanTaskWidgetRowWidgets::editorsOfARow()
{
    const OpenCard open(
        taskWithPlans({timePlan(1, "08:00:00", "09:00:00"), timePlan(2, "10:00:00", "11:00:00")}));
    const QWidget* const marked[] = {&open.rows.mode(1), &open.rows.startTime(1),
                                     &open.rows.endTime(1), &open.rows.times(1),
                                     &open.rows.endAction(1)};
    for (const QWidget* editor : marked) {
        QCOMPARE(editor->property("row"), QVariant(1));
        QCOMPARE(editor->minimumHeight(), 24);
        QCOMPARE(editor->maximumHeight(), 24);
    }
    QCOMPARE(open.rows.state(1).property("row"), QVariant(1));
    QVERIFY(!open.rows.weeks(1).property("row").isValid());
    QCOMPARE(open.rows.weeks(1).minimumHeight(), 24);
    QCOMPARE(open.rows.weeks(1).maximumHeight(), 24);
    QCOMPARE(open.rows.startTime(0).displayFormat(), QStringLiteral("hh:mm:ss"));
    QCOMPARE(open.rows.endTime(0).displayFormat(), QStringLiteral("hh:mm:ss"));
    for (const QWidget* editor : {static_cast<QWidget*>(&open.rows.startTime(0)),
                                  static_cast<QWidget*>(&open.rows.endTime(0)),
                                  static_cast<QWidget*>(&open.rows.times(0))}) {
        QCOMPARE(editor->contextMenuPolicy(), Qt::NoContextMenu);
    }
}

void tst_PlanTaskWidgetRowWidgets::boxes()
{
    const OpenCard open(taskWithPlans({timePlan(1, "08:00:00", "09:00:00")}));
    QCOMPARE(entries(open.rows.mode(0)), QStringLiteral("0=zhTimeStr 1=zhfrequencyStr"));
    QCOMPARE(entries(open.rows.endAction(0)),
             QStringLiteral("0=zhBlackScreen 1=zhFreezeCurrentFrame"));
    QCOMPARE(entries(open.rows.weeks(0)),
             QStringLiteral("0=szEveryDayStr 1=szMondayStr 2=szTuesdayStr 3=szWednesdayStr "
                            "4=szThursdayStr 5=szFridayStr 6=szSaturdayStr 7=szSundayStr"));
    QCOMPARE(open.rows.weeks(0).everyDayText(), QStringLiteral("szEveryDayStr"));
}

void tst_PlanTaskWidgetRowWidgets::buttons()
{
    const OpenCard open(taskWithPlans({timePlan(12, "08:00:00", "09:00:00")}));
    const auto look = [](const QPushButton& button) {
        return QStringLiteral("%1 %2 %3x%4 %5")
            .arg(button.property("imageBtn").toString(), button.property("id").toString())
            .arg(button.maximumWidth())
            .arg(button.minimumHeight())
            .arg(button.toolTip() + button.parentWidget()->toolTip());
    };
    QCOMPARE(look(open.rows.copyButton(0)), QStringLiteral("projectSaveAs 12 24x24 zhCreateCopy"));
    QCOMPARE(look(open.rows.deleteButton(0)), QStringLiteral("delete 12 24x24 szDeleteStr"));
    QCOMPARE(open.rows.copyButton(0).toolTip(), QString());
    QCOMPARE(open.rows.deleteButton(0).toolTip(), QString());
    QCOMPARE(open.rows.copyButton(0).focusPolicy(), Qt::NoFocus);
    QCOMPARE(open.rows.deleteButton(0).focusPolicy(), Qt::NoFocus);
}

void tst_PlanTaskWidgetRowWidgets::editorsDoNotOverlap()
{
    const OpenCard open(
        taskWithPlans({timePlan(1, "08:00:00", "09:00:00"), timePlan(2, "10:00:00", "11:00:00")}));
    QCoreApplication::processEvents();
    QRegion taken;
    for (int row = 0; row < 2; ++row) {
        for (int column = 0; column < PlanColumnCount; ++column) {
            if (const QWidget* const widget = open.rows.cell(row, PlanColumn(column))) {
                QVERIFY2(!taken.intersects(widget->geometry()),
                         qPrintable(QStringLiteral("%1 %2").arg(row).arg(column)));
                taken += widget->geometry();
            }
        }
    }
}

void tst_PlanTaskWidgetRowWidgets::theButtonsAreInSight_data()
{
    QTest::addColumn<int>("plans");
    QTest::newRow("without a scroll bar") << 2;
    QTest::newRow("with a scroll bar") << 6;
}

void tst_PlanTaskWidgetRowWidgets::theButtonsAreInSight()
{
    QFETCH(int, plans);
    PlayTask task = taskWithPlans({});
    for (int id = 1; id <= plans; ++id) {
        task.plans.push_back(timePlan(id, "08:00:00", "09:00:00"));
    }
    const OpenCard open(task);
    QCoreApplication::processEvents();
    QTableView& table = open.rows.table();
    QCOMPARE(table.verticalScrollBar()->isVisible(), plans > 4);
    const auto isInSight = [&open](const QWidget& widget) {
        return !widget.visibleRegion().isEmpty() &&
               widget.visibleRegion().boundingRect() == widget.rect() &&
               QRect(QPoint(), open.card.size())
                   .contains(QRect(widget.mapTo(&open.card, QPoint()), widget.size()));
    };
    QVERIFY(isInSight(open.rows.deleteButton(0)));
    QVERIFY(isInSight(open.rows.copyButton(0)));
    QVERIFY(isInSight(open.rows.programs(0)));
    // Neither a click on a cell nor a touch pad moves the table sideways.
    table.scrollTo(open.rows.model().index(0, 0));
    table.horizontalScrollBar()->setValue(0);
    QVERIFY(isInSight(open.rows.deleteButton(0)));
}

TREL_TEST(tst_PlanTaskWidgetRowWidgets, QApplication)
#include "tst_PlanTaskWidgetRowWidgets.moc"
