#include "OpenCard.h"

#include "PlanStandardItemModel.h"
#include "kCustomLineEdit.h"
#include "support/ChooserAnswer.h"
#include "support/PromptAnswer.h"
#include "support/TestProgram.h"

#include <QApplication>
#include <QPointer>
#include <QPushButton>
#include <QTableView>
#include <QTimeEdit>
#include <QTimer>

#include <algorithm>
#include <limits>

using namespace trel::mediadispatch;

namespace {

constexpr int kConfirm = 1;
constexpr int kCancel = 2;

RecordingService& service()
{
    return RecordingService::instance();
}

QString stored(int index)
{
    return line(service().working[1].plans.at(static_cast<std::size_t>(index)));
}

/// The ids of the plans in the order of rows and records, which are the same.
QString ids(const PlanTaskWidgetInspector& rows)
{
    QStringList texts;
    for (const PlayPlan& plan : rows.task().plans) {
        texts.append(QString::number(plan.id));
    }
    return texts.join(QLatin1Char(' '));
}

PlayTask threePlans()
{
    return taskWithPlans({timePlan(1, "08:00:00", "09:00:00"), timePlan(2, "10:00:00", "11:00:00"),
                          timePlan(3, "12:00:00", "13:00:00")});
}

void confirmDelete(const OpenCard& open, int row)
{
    const PromptAnswer prompt(kConfirm);
    click(open.rows.deleteButton(row));
}

/// Gives a button of no row the id and calls the slot from it.
template <typename Slot>
void clickButtonWithId(OpenCard& open, Slot slot, const QVariant& id)
{
    QPushButton button;
    button.setProperty("id", id);
    QObject::connect(&button, &QPushButton::clicked, &open.card, slot);
    button.click();
}

} // namespace

/// Copies and deletes of plans through the buttons of their rows.
class tst_PlanTaskWidgetCopyDelete : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void copyFollowsItsSource_data();
    void copyFollowsItsSource();
    void copyStoresItsPlanThenTheTaskTwice();
    void copyCarriesEveryField();
    void copyGoesToTheEnd();
    void copyOfTheLastRowInFrequencyMode();
    void copyOfAnotherRowInFrequencyMode();
    void copyOfAnUnknownId();
    void copyOfOneIdTakesTheLastPlan();
    void copyAsksNothing();
    void copyTakesAFreedId();
    void deleteAsks();
    void deleteNotConfirmed_data();
    void deleteNotConfirmed();
    void deleteMovesTheRowsBelow();
    void deleteOfTheOnlyRow();
    void deleteOfACollidingPlan();
    void deleteCallsNoOperationButTheStore();
    void deleteOfAnUnknownId();
    void deleteOfAPlanThatIsGone();
    void deleteFreesTheEditors();
    void noPlanBehindTheLargestId();
    void directCallsDoNothing();
    void cardMayGoDuringTheQuestion();
    void theOperatorCannotDragRows();
};

void tst_PlanTaskWidgetCopyDelete::init()
{
    service().reset();
    service().addProgram(1, "minute", 60000.0);
    service().addProgram(2, "hour", 3600000.0);
}

void tst_PlanTaskWidgetCopyDelete::copyFollowsItsSource_data()
{
    QTest::addColumn<QString>("sourceEnd");
    QTest::addColumn<QString>("copy");
    QTest::newRow("an hour") << "10:00:00"
                             << "10:00:00-11:00:00";
    QTest::newRow("capped") << "23:30:00"
                            << "23:30:00-23:59:59";
    QTest::newRow("just not capped") << "22:59:59"
                                     << "22:59:59-23:59:59";
    QTest::newRow("capped from 23:00:00") << "23:00:00"
                                          << "23:00:00-23:59:59";
    QTest::newRow("at the end of the day") << "23:59:59"
                                           << "23:59:59-23:59:59";
    QTest::newRow("an end that does not parse") << "late"
                                                << "late-";
}

void tst_PlanTaskWidgetCopyDelete::copyFollowsItsSource()
{
    QFETCH(QString, sourceEnd);
    QFETCH(QString, copy);
    const OpenCard open(taskWithPlans({timePlan(1, "08:00:00", sourceEnd.toStdString(), "1,3")}));
    click(open.rows.copyButton(0));
    QCOMPARE(stored(1).section(QStringLiteral(" end"), 0, 0),
             QStringLiteral("id 2 time %1 x1 days 1,3").arg(copy));
    QCOMPARE(open.rows.disagreement(), QString());
}

void tst_PlanTaskWidgetCopyDelete::copyStoresItsPlanThenTheTaskTwice()
{
    const OpenCard open(taskWithPlans({timePlan(1, "08:00:00", "09:00:00")}));
    click(open.rows.copyButton(0));
    const QString source = QStringLiteral("id 1 time 08:00:00-09:00:00 x1 days 0 end 0 <>");
    const QString copy = QStringLiteral("id 2 time 09:00:00-10:00:00 x1 days 0 end 0 <>");
    const QString task =
        QStringLiteral("addTask(1 2024.03.01-2024.03.31 [%1; %2])").arg(source, copy);
    QCOMPARE(service().edits(),
             QStringList({QStringLiteral("addPlan(1, %1)").arg(copy), task, task}));
}

void tst_PlanTaskWidgetCopyDelete::copyCarriesEveryField()
{
    PlayPlan plan = timePlan(4, "08:00:00", "09:00:00", "5,1");
    plan.serviceCount = 5;
    plan.endAction = FreezeCurrentFrame;
    plan.serviceList = {1, -2};
    plan.programs = {entry(1, 3), entry(99)};
    plan.serviceTime = "anything";
    plan.hasNoDuration = true;
    plan.serviceFlagA = true;
    plan.serviceFlagB = true;
    const OpenCard open(taskWithPlans({plan}));
    click(open.rows.copyButton(0));
    plan.id = 5;
    plan.startTime = "09:00:00";
    plan.endTime = "10:00:00";
    QCOMPARE(service().working[1].plans.back(), plan);
    QCOMPARE(service().addedPlans.front().second, plan);
}

void tst_PlanTaskWidgetCopyDelete::copyGoesToTheEnd()
{
    const OpenCard open(threePlans());
    click(open.rows.copyButton(0));
    QCOMPARE(ids(open.rows), QStringLiteral("1 2 3 4"));
    QCOMPARE(open.rows.line(3), QStringLiteral("4 [] time 09:00:00-10:00:00 x1* szEveryDayStr "
                                               "end 0 green"));
    QCOMPARE(open.rows.disagreement(), QString());
}

void tst_PlanTaskWidgetCopyDelete::copyOfTheLastRowInFrequencyMode()
{
    PlayPlan plan = frequencyPlan(1, "08:00:00", 5, {entry(1)});
    plan.endTime = "08:05:00";
    const OpenCard open(taskWithPlans({plan}));
    click(open.rows.copyButton(0));
    QCOMPARE(stored(1), QStringLiteral("id 2 frequency 08:05:00-08:10:00 x5 days 0 end 0 <1x1>"));
    QCOMPARE(open.rows.endTime(1).text(), QStringLiteral("08:10:00"));
    QCOMPARE(service().addedPlans.front().second, service().working[1].plans.back());
}

void tst_PlanTaskWidgetCopyDelete::copyOfAnotherRowInFrequencyMode()
{
    PlayPlan plan = frequencyPlan(1, "08:00:00", 5, {entry(1)});
    plan.endTime = "08:05:00";
    const OpenCard open(taskWithPlans({plan, frequencyPlan(2, "12:00:00", 3, {entry(2)})}));
    click(open.rows.copyButton(0));
    // The end is that of the row below the source: 12:00:00 and three hours.
    QCOMPARE(stored(2), QStringLiteral("id 3 frequency 08:05:00-15:00:00 x5 days 0 end 0 <1x1>"));
    QCOMPARE(open.rows.endTime(2).text(), QStringLiteral("15:00:00"));
}

void tst_PlanTaskWidgetCopyDelete::copyOfAnUnknownId()
{
    OpenCard open(taskWithPlans({timePlan(1, "08:00:00", "09:00:00")}));
    clickButtonWithId(open, &PlanTaskWidget::slotCopyPlan, 77);
    PlayPlan expected;
    expected.id = 2;
    QCOMPARE(service().working[1].plans.back(), expected);
    QCOMPARE(open.rows.disagreement(), QString());
}

void tst_PlanTaskWidgetCopyDelete::copyOfOneIdTakesTheLastPlan()
{
    const OpenCard open(
        taskWithPlans({timePlan(5, "08:00:00", "09:00:00"), timePlan(5, "10:00:00", "11:00:00")}));
    click(open.rows.copyButton(0));
    QCOMPARE(stored(2), QStringLiteral("id 6 time 11:00:00-12:00:00 x1 days 0 end 0 <>"));
}

void tst_PlanTaskWidgetCopyDelete::copyAsksNothing()
{
    const PromptAnswer noPrompt;
    const OpenCard open(threePlans());
    click(open.rows.copyButton(1));
    QCOMPARE(open.rows.rowCount(), 4);
}

void tst_PlanTaskWidgetCopyDelete::copyTakesAFreedId()
{
    const OpenCard open(threePlans());
    confirmDelete(open, 2);
    click(open.rows.copyButton(0));
    QCOMPARE(ids(open.rows), QStringLiteral("1 2 3"));
    confirmDelete(open, 0);
    click(open.rows.copyButton(0));
    // A gap stays a gap.
    QCOMPARE(ids(open.rows), QStringLiteral("2 3 4"));
}

void tst_PlanTaskWidgetCopyDelete::deleteAsks()
{
    const OpenCard open(threePlans());
    const PromptAnswer prompt(kConfirm);
    click(open.rows.deleteButton(1));
    QCOMPARE(prompt.texts(), QStringList(QStringLiteral("szDeletePlanConfirmStr")));
    QCOMPARE(prompt.buttons(), QStringList(QStringLiteral("zhFixAct|zhCancelAct")));
    QCOMPARE(prompt.types(), QVector<int>{1});
    QCOMPARE(ids(open.rows), QStringLiteral("1 3"));
}

void tst_PlanTaskWidgetCopyDelete::deleteNotConfirmed_data()
{
    QTest::addColumn<int>("answer");
    QTest::newRow("cancel") << kCancel;
    QTest::newRow("Escape") << int(PromptAnswer::Escape);
    QTest::newRow("close") << int(PromptAnswer::Close);
}

void tst_PlanTaskWidgetCopyDelete::deleteNotConfirmed()
{
    QFETCH(int, answer);
    const PlayTask task = threePlans();
    const OpenCard open(task);
    const PromptAnswer prompt(answer);
    click(open.rows.deleteButton(1));
    QCOMPARE(open.rows.task(), task);
    QCOMPARE(open.rows.rowCount(), 3);
    QCOMPARE(service().log, QStringList());
}

void tst_PlanTaskWidgetCopyDelete::deleteMovesTheRowsBelow()
{
    const OpenCard open(threePlans());
    const kCustomLineEdit& field = open.rows.programs(2);
    confirmDelete(open, 1);
    QCOMPARE(open.rows.rowByPlanId(), (std::map<int, int>{{1, 0}, {3, 1}}));
    QCOMPARE(open.rows.planIdByRow(), (std::map<int, int>{{0, 1}, {1, 3}}));
    QCOMPARE(&open.rows.programs(1), &field);
    QCOMPARE(field.row(), 1);
    QCOMPARE(open.rows.disagreement(), QString());
    // The row that moved still edits its own plan.
    open.rows.endTime(1).setTime(QTime(14, 0));
    QCOMPARE(stored(1), QStringLiteral("id 3 time 12:00:00-14:00:00 x1 days 0 end 0 <>"));
}

void tst_PlanTaskWidgetCopyDelete::deleteOfTheOnlyRow()
{
    const OpenCard open(taskWithPlans({timePlan(1, "08:00:00", "09:00:00")}));
    confirmDelete(open, 0);
    QCOMPARE(open.rows.rowCount(), 0);
    QCOMPARE(open.rows.disagreement(), QString());
    QVERIFY(open.card.isVisible());
    QCOMPARE(service().edits(), QStringList(QStringLiteral("addTask(1 2024.03.01-2024.03.31 [])")));
}

void tst_PlanTaskWidgetCopyDelete::deleteOfACollidingPlan()
{
    const OpenCard open(
        taskWithPlans({timePlan(1, "08:00:00", "09:00:00"), timePlan(2, "08:00:00", "09:00:00")}));
    QCOMPARE(open.rows.states(), QStringLiteral("green red"));
    confirmDelete(open, 0);
    QCOMPARE(open.rows.states(), QStringLiteral("green"));
    QVERIFY(!service().working[1].plans.front().isConflict);
}

void tst_PlanTaskWidgetCopyDelete::deleteCallsNoOperationButTheStore()
{
    const OpenCard open(threePlans());
    confirmDelete(open, 0);
    QCOMPARE(service().edits().size(), 1);
    QCOMPARE(open.stores(), 1);
}

void tst_PlanTaskWidgetCopyDelete::deleteOfAnUnknownId()
{
    const PlayTask task = threePlans();
    OpenCard open(task);
    const PromptAnswer prompt(kConfirm);
    clickButtonWithId(open, &PlanTaskWidget::slotDeletePlan, 77);
    QCOMPARE(open.rows.task(), task);
    QCOMPARE(open.rows.disagreement(), QString());
    QCOMPARE(open.stores(), 1);
}

void tst_PlanTaskWidgetCopyDelete::deleteOfAPlanThatIsGone()
{
    const OpenCard open(threePlans());
    auto& plans = open.rows.task().plans;
    plans.erase(plans.begin() + 1);
    confirmDelete(open, 1);
    QCOMPARE(ids(open.rows), QStringLiteral("1 3"));
    QCOMPARE(open.rows.disagreement(), QString());
}

void tst_PlanTaskWidgetCopyDelete::deleteFreesTheEditors()
{
    const OpenCard open(threePlans());
    QList<QPointer<QWidget>> widgets;
    for (int column = 0; column < PlanColumnCount; ++column) {
        if (QWidget* const widget = open.rows.cell(1, PlanColumn(column))) {
            widgets.append(widget);
        }
    }
    QCOMPARE(widgets.size(), 10);
    confirmDelete(open, 1);
    QTRY_VERIFY(std::all_of(widgets.begin(), widgets.end(),
                            [](const QPointer<QWidget>& widget) { return widget.isNull(); }));
}

void tst_PlanTaskWidgetCopyDelete::noPlanBehindTheLargestId()
{
    const PlayTask task =
        taskWithPlans({timePlan(std::numeric_limits<int>::max(), "08:00:00", "09:00:00"),
                       timePlan(-1, "10:00:00", "11:00:00")});
    const OpenCard open(task);
    const PromptAnswer noPrompt;
    const ChooserAnswer noChooser;
    click(open.rows.copyButton(0));
    click(named<QPushButton>(open.card, "pushButtonAdd"));
    QCOMPARE(open.rows.task(), task);
    QCOMPARE(open.rows.rowCount(), 2);
    QCOMPARE(service().edits(), QStringList());
    // A stored plan that has no id keeps its row.
    QCOMPARE(open.rows.disagreement(), QString());
}

void tst_PlanTaskWidgetCopyDelete::directCallsDoNothing()
{
    const PlayTask task = threePlans();
    OpenCard open(task);
    open.card.slotCopyPlan();
    const PromptAnswer prompt(kConfirm);
    open.card.slotDeletePlan();
    QCOMPARE(open.rows.task(), task);
    QCOMPARE(service().log, QStringList());
}

void tst_PlanTaskWidgetCopyDelete::cardMayGoDuringTheQuestion()
{
    const PromptAnswer prompt({kConfirm, kConfirm});
    auto* card = new PlanTaskWidget(threePlans(), nullptr);
    QTimer::singleShot(0, card, [card] { delete card; });
    card->slotDeletePlan();
    card = new PlanTaskWidget(threePlans(), nullptr);
    QTimer::singleShot(0, card, [card] { delete card; });
    card->slotDeleteTask();
    QCOMPARE(prompt.count(), 2);
}

void tst_PlanTaskWidgetCopyDelete::theOperatorCannotDragRows()
{
    const OpenCard open(threePlans());
    QVERIFY(open.rows.model().flags(open.rows.model().index(0, 0)) & Qt::ItemIsDragEnabled);
    QVERIFY(!open.rows.table().dragEnabled());
    QVERIFY(!open.rows.table().showDropIndicator());
}

TREL_TEST(tst_PlanTaskWidgetCopyDelete, QApplication)
#include "tst_PlanTaskWidgetCopyDelete.moc"
