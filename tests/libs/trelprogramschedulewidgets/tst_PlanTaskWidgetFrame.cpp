#include "OpenCard.h"

#include "support/MessageLog.h"
#include "support/MetaMethods.h"
#include "support/PromptAnswer.h"
#include "support/TestProgram.h"

#include <QApplication>
#include <QDateEdit>
#include <QLabel>
#include <QPushButton>
#include <QSignalSpy>
#include <QTableView>
#include <QToolTip>

using namespace trel::mediadispatch;

namespace {

RecordingService& service()
{
    return RecordingService::instance();
}

} // namespace

class tst_PlanTaskWidgetFrame : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void declaresItsMethodsInOrder();
    void registersTheTypeOfTheRowBoxes();
    void texts();
    void showsThePeriod();
    void datesThatDoNotParseLeaveTheEditors();
    void aTaskWithoutPlansIsNotStored();
    void eachPlanStoresTheTaskOnce();
    void foldsAndOpens();
    void foldingTwiceIsFoldingOnce();
    void foldingEditsNothing();
    void pointerOnATitleButtonShowsItsToolTip_data();
    void pointerOnATitleButtonShowsItsToolTip();
    void pointerOnTheTableShowsNoToolTip();
    void copyAsksNothing();
    void deleteAsks_data();
    void deleteAsks();
    void theTitleButtonsDoNotFold();
};

void tst_PlanTaskWidgetFrame::init()
{
    service().reset();
}

void tst_PlanTaskWidgetFrame::declaresItsMethodsInOrder()
{
    QCOMPARE(ownMethods(PlanTaskWidget::staticMetaObject, QMetaMethod::Signal),
             QStringList(
                 {QStringLiteral("signalDeleteTask(int)"), QStringLiteral("signalCopyTask(int)")}));
    QCOMPARE(ownMethods(PlanTaskWidget::staticMetaObject, QMetaMethod::Slot).join(QLatin1Char(' ')),
             QStringLiteral(
                 "slotFold(bool) onPushButtonAddClicked() slotAddRowPlan(PlayPlan,bool) "
                 "slotAddRowPlan(PlayPlan) slotAddRowPlan() slotAddProgram(int) "
                 "slotUpdateStartTimeDate(QDate) slotUpdateEndTimeDate(QDate) "
                 "slotCurrentIndexChangeSignal(int,ComBoxType,int) slotDeleteTask() "
                 "slotCopyTask() slotDeletePlan() slotCopyPlan() slotUpdateTime(int,int,QTime) "
                 "slotcurrentChanged(QStandardItem*) slotTimesChanged(int) "
                 "slotModeIndexChanged(int) slotEndActionIndexChanged(int) "
                 "slotEndTimeChanged(QTime) slotStartTimeChanged(QTime) "
                 "slotSelectedText(QStringList) slotUpdateEndTime() slotReflushConflict(int) "
                 "refreshEditorrow(int) slotTranslation()"));
}

void tst_PlanTaskWidgetFrame::registersTheTypeOfTheRowBoxes()
{
    const OpenCard open(taskWithPlans({}));
    QVERIFY(QMetaType::type("ComBoxType") != QMetaType::UnknownType);
}

void tst_PlanTaskWidgetFrame::texts()
{
    const OpenCard open(taskWithPlans({}, 7));
    QCOMPARE(named<QPushButton>(open.card, "title").text(), QStringLiteral("zhPlayTaskStr7    "));
    QCOMPARE(named<QLabel>(open.card, "labelvalidTime").text(),
             QStringLiteral("zhEffectiveStrzhFromStr"));
    QCOMPARE(named<QLabel>(open.card, "labelTo").text(), QStringLiteral("zhToStr"));
    // The delayed tool tips come with the first change of language only.
    QCOMPARE(named<QPushButton>(open.card, "pbtCreatCopy").toolTip(), QString());
    QCOMPARE(named<QPushButton>(open.card, "pushButtonDelete").toolTip(), QString());
}

void tst_PlanTaskWidgetFrame::showsThePeriod()
{
    const OpenCard open(taskWithPlans({}));
    QCOMPARE(named<QDateEdit>(open.card, "dateEditVaildStartTime").date(), QDate(2024, 3, 1));
    QCOMPARE(named<QDateEdit>(open.card, "dateEditVaildEndTime").date(), QDate(2024, 3, 31));
}

void tst_PlanTaskWidgetFrame::datesThatDoNotParseLeaveTheEditors()
{
    PlayTask task = taskWithPlans({});
    task.startDate = "2024-03-01";
    task.endDate.clear();
    const OpenCard open(task);
    const QDate untouched = QDateEdit().date();
    QCOMPARE(named<QDateEdit>(open.card, "dateEditVaildStartTime").date(), untouched);
    QCOMPARE(named<QDateEdit>(open.card, "dateEditVaildEndTime").date(), untouched);
    QCOMPARE(open.rows.task(), task);
}

void tst_PlanTaskWidgetFrame::aTaskWithoutPlansIsNotStored()
{
    const PlanTaskWidget card(taskWithPlans({}), nullptr);
    QCOMPARE(service().log, QStringList());
    QCOMPARE(card.findChild<QTableView*>()->model()->rowCount(), 0);
}

void tst_PlanTaskWidgetFrame::eachPlanStoresTheTaskOnce()
{
    PlanTaskWidget card(
        taskWithPlans({timePlan(1, "08:00:00", "09:00:00"), timePlan(2, "08:30:00", "09:30:00"),
                       timePlan(3, "10:00:00", "11:00:00")}),
        nullptr);
    const QString task = QStringLiteral(
        "addTask(1 2024.03.01-2024.03.31 [id 1 time 08:00:00-09:00:00 x1 days 0 end 0 <>; "
        "id 2 time 08:30:00-09:30:00 x1 days 0 end 0 <> conflict; "
        "id 3 time 10:00:00-11:00:00 x1 days 0 end 0 <>])");
    QCOMPARE(service().edits(), QStringList({task, task, task}));
    QVERIFY(PlanTaskWidgetInspector(card).table().updatesEnabled());
}

void tst_PlanTaskWidgetFrame::foldsAndOpens()
{
    OpenCard open(taskWithPlans({}));
    const auto& arrow = named<QLabel>(open.card, "arrow");
    const auto& body = named<QWidget>(open.card, "widget");
    QVERIFY(!open.card.isFolded());
    QCOMPARE(arrow.property("labelImage").toString(), QStringLiteral("down"));
    QVERIFY(body.isVisible());

    click(named<QPushButton>(open.card, "title"));
    QVERIFY(open.card.isFolded());
    QCOMPARE(arrow.property("labelImage").toString(), QStringLiteral("right"));
    QVERIFY(!body.isVisible());
    QCOMPARE(open.card.height(), 32);

    open.card.setFolded(false);
    QVERIFY(!open.card.isFolded());
    QCOMPARE(arrow.property("labelImage").toString(), QStringLiteral("down"));
    QVERIFY(body.isVisible());
    QCOMPARE(open.card.height(), 292);
    QCOMPARE(open.card.width(), 1100);
}

void tst_PlanTaskWidgetFrame::foldingTwiceIsFoldingOnce()
{
    OpenCard open(taskWithPlans({}));
    QSignalSpy toggled(&named<QPushButton>(open.card, "title"), &QPushButton::toggled);
    QVERIFY(toggled.isValid());
    open.card.setFolded(true);
    open.card.setFolded(true);
    QCOMPARE(toggled.count(), 1);
    QVERIFY(open.card.isFolded());
}

void tst_PlanTaskWidgetFrame::foldingEditsNothing()
{
    OpenCard open(taskWithPlans({timePlan(1, "08:00:00", "09:00:00", "1,3")}));
    open.card.setFolded(true);
    open.card.setFolded(false);
    QCOMPARE(service().log, QStringList());
}

void tst_PlanTaskWidgetFrame::pointerOnATitleButtonShowsItsToolTip_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("pbtCreatCopy") << "zhCreateCopy";
    QTest::newRow("pushButtonDelete") << "szDeleteStr";
}

void tst_PlanTaskWidgetFrame::pointerOnATitleButtonShowsItsToolTip()
{
    const OpenCard open(taskWithPlans({}));
    auto& button = named<QPushButton>(open.card, QTest::currentDataTag());
    const MessageLog quiet; // A platform without a screen says that it cannot raise the tool tip.
    const QPoint spot = button.mapToGlobal(QPoint(3, 4));
    QEnterEvent enter(QPointF(3, 4), QPointF(), QPointF(spot));
    QVERIFY(QCoreApplication::sendEvent(&button, &enter));
    QTRY_VERIFY(QToolTip::isVisible());
    QTEST(QToolTip::text(), "text");
    QToolTip::hideText();
    QTRY_VERIFY(!QToolTip::isVisible());
}

void tst_PlanTaskWidgetFrame::pointerOnTheTableShowsNoToolTip()
{
    const OpenCard open(taskWithPlans({}));
    QEnterEvent enter(QPointF(3, 4), QPointF(), QPointF(3, 4));
    QCoreApplication::sendEvent(open.rows.table().viewport(), &enter);
    QVERIFY(!QToolTip::isVisible());
}

void tst_PlanTaskWidgetFrame::copyAsksNothing()
{
    const PromptAnswer noPrompt;
    const OpenCard open(taskWithPlans({timePlan(1, "08:00:00", "09:00:00")}, 7));
    QSignalSpy copied(&open.card, &PlanTaskWidget::signalCopyTask);
    QVERIFY(copied.isValid());
    click(named<QPushButton>(open.card, "pbtCreatCopy"));
    QCOMPARE(copied, QList<QVariantList>({{7}}));
    QCOMPARE(service().log, QStringList());
}

void tst_PlanTaskWidgetFrame::deleteAsks_data()
{
    QTest::addColumn<int>("answer");
    QTest::addColumn<bool>("isDeleted");
    QTest::newRow("confirm") << 1 << true;
    QTest::newRow("Enter") << int(PromptAnswer::Enter) << false;
    QTest::newRow("cancel") << 2 << false;
    QTest::newRow("Escape") << int(PromptAnswer::Escape) << false;
    QTest::newRow("close") << int(PromptAnswer::Close) << false;
}

void tst_PlanTaskWidgetFrame::deleteAsks()
{
    QFETCH(int, answer);
    QFETCH(bool, isDeleted);
    const OpenCard open(taskWithPlans({timePlan(1, "08:00:00", "09:00:00")}, 7));
    QSignalSpy deleted(&open.card, &PlanTaskWidget::signalDeleteTask);
    QVERIFY(deleted.isValid());
    const PromptAnswer prompt(answer);
    click(named<QPushButton>(open.card, "pushButtonDelete"));
    QCOMPARE(deleted, isDeleted ? QList<QVariantList>({{7}}) : QList<QVariantList>());
    QCOMPARE(prompt.texts(), QStringList(QStringLiteral("szDeleteTaskConfirmStr")));
    QCOMPARE(prompt.buttons(), QStringList(QStringLiteral("zhFixAct|zhCancelAct")));
    QCOMPARE(prompt.types(), QVector<int>{1});
    QCOMPARE(service().log, QStringList());
}

void tst_PlanTaskWidgetFrame::theTitleButtonsDoNotFold()
{
    const OpenCard open(taskWithPlans({}));
    click(named<QPushButton>(open.card, "pbtCreatCopy"));
    QVERIFY(!open.card.isFolded());
}

TREL_TEST(tst_PlanTaskWidgetFrame, QApplication)
#include "tst_PlanTaskWidgetFrame.moc"
