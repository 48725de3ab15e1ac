#include "OpenCard.h"

#include "MultiComboBox.h"
#include "PlanStandardItemModel.h"
#include "ProgramSheduleWidgetTranslateManager.h"
#include "ReadOnlyDelegate.h"
#include "ScheduleText.h"
#include "kCustomLineEdit.h"
#include "support/PromptAnswer.h"
#include "support/TestProgram.h"

#include "trelwidgets/ComboBox.h"
#include "tstranslate/Translator.h"

#include <QApplication>
#include <QLabel>
#include <QPushButton>
#include <QSpinBox>
#include <QStandardItemModel>
#include <QTableView>
#include <QTimeEdit>

using namespace trel::mediadispatch;

namespace {

RecordingService& service()
{
    return RecordingService::instance();
}

void speak(const char* language)
{
    ProgramSheduleWidgetTranslateManager::instance().translator().switchLanguage(
        QLatin1String(language));
}

void handleDeletions()
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

PlayTask threePlans()
{
    PlayTask task = taskWithPlans({frequencyPlan(1, "08:00:00", 1, {entry(1)}),
                                   frequencyPlan(2, "10:00:00", 2, {entry(1)}, "1,3"),
                                   frequencyPlan(3, "12:00:00", 3, {entry(1)}, "5")});
    for (PlayPlan& plan : task.plans) {
        plan.endTime = "20:00:00";
    }
    return task;
}

const PlanColumn kEditorColumns[] = {ProgramsColumn, ModeColumn,  StartTimeColumn, EndTimeColumn,
                                     TimesColumn,    WeeksColumn, EndActionColumn, StateColumn,
                                     CopyColumn,     DeleteColumn};

void addColumns()
{
    QTest::addColumn<int>("column");
    for (const PlanColumn column : kEditorColumns) {
        QTest::addRow("column %d", int(column)) << int(column);
    }
}

/// What a card is asked for while it is open, but for what the editors themselves tell.
void useEverything(OpenCard& open)
{
    speak("en_US");
    open.card.slotTranslation();
    open.card.slotUpdateEndTime();
    emit RecordingService::manager().signalReflushConflict(1);
    for (int row = 0; row < 3; ++row) {
        open.card.slotCurrentIndexChangeSignal(row, ModeCombo, TimeMode);
        open.card.slotCurrentIndexChangeSignal(row, ModeCombo, FrequencyMode);
        open.card.slotCurrentIndexChangeSignal(row, EndActionCombo, FreezeCurrentFrame);
        open.card.slotUpdateTime(row, StartTimeColumn, QTime(7, row));
    }
    open.card.refreshEditorrow(1);
}

/// The rows beside the one that has lost something speak the new language and are complete.
void checkOtherRows(const OpenCard& open)
{
    for (const int row : {0, 2}) {
        QCOMPARE(open.rows.mode(row).itemText(0), scheduleText("zhTimeStr"));
        QCOMPARE(open.rows.weeks(row).itemText(0), scheduleText("szEveryDayStr"));
        QCOMPARE(open.rows.endAction(row).itemText(0), scheduleText("zhBlackScreen"));
        QCOMPARE(open.rows.cell(row, CopyColumn)->toolTip(), scheduleText("zhCreateCopy"));
        QCOMPARE(open.rows.cell(row, DeleteColumn)->toolTip(), scheduleText("szDeleteStr"));
    }
    QCOMPARE(open.rows.startTime(2).isVisible(), true);
    QCOMPARE(open.rows.task().plans[2].startTime, std::string("07:02:00"));
    QCOMPARE(open.rows.task().plans[1].endAction, int(FreezeCurrentFrame));
    QCOMPARE(service().working[1], open.rows.task());
}

} // namespace

/// A card goes on when something outside takes widgets of its rows away.
class tst_PlanTaskWidgetLostEditors : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void aCellWithoutItsWidget_data() { addColumns(); }
    void aCellWithoutItsWidget();
    void aHolderWithoutItsEditor_data() { addColumns(); }
    void aHolderWithoutItsEditor();
    void aProgramFieldWithoutItsButton();
    void aTableWithoutItsModel();
    void aTableWithAnotherModel();
    void aCardThatGoesWithLostEditors();
    void theRowGoesAllTheSame();
    void unfoldingWithAnotherDelegate();
};

void tst_PlanTaskWidgetLostEditors::initTestCase()
{
    auto& translator = ProgramSheduleWidgetTranslateManager::instance().translator();
    for (const char* language : {"zh_CN", "en_US"}) {
        QVERIFY(
            translator.load(QStringLiteral(LANGUAGE_DIR "/%1.qm").arg(QLatin1String(language))));
    }
}

void tst_PlanTaskWidgetLostEditors::init()
{
    service().reset();
    service().addProgram(1, "film", 60000.0);
    speak("zh_CN");
}

void tst_PlanTaskWidgetLostEditors::aCellWithoutItsWidget()
{
    QFETCH(int, column);
    OpenCard open(threePlans());
    open.rows.table().setIndexWidget(open.rows.model().index(1, column), nullptr);
    handleDeletions();
    useEverything(open);
    checkOtherRows(open);
}

void tst_PlanTaskWidgetLostEditors::aHolderWithoutItsEditor()
{
    QFETCH(int, column);
    OpenCard open(threePlans());
    QWidget* const holder = open.rows.cell(1, PlanColumn(column));
    const auto parts = holder->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly);
    qDeleteAll(parts);
    useEverything(open);
    checkOtherRows(open);
}

void tst_PlanTaskWidgetLostEditors::aProgramFieldWithoutItsButton()
{
    OpenCard open(threePlans());
    delete open.rows.programs(1).findChild<QPushButton*>(QStringLiteral("pushButton"));
    useEverything(open);
    checkOtherRows(open);
}

void tst_PlanTaskWidgetLostEditors::aTableWithoutItsModel()
{
    OpenCard open(threePlans());
    open.rows.table().setModel(nullptr);
    handleDeletions();
    useEverything(open);
    QCOMPARE(service().working[1], open.rows.task());
}

void tst_PlanTaskWidgetLostEditors::aTableWithAnotherModel()
{
    OpenCard open(threePlans());
    QStandardItemModel other(1, 2);
    open.rows.table().setModel(&other);
    handleDeletions();
    useEverything(open);
    QCOMPARE(service().working[1], open.rows.task());
    QCOMPARE(other.columnCount(), 2);
    open.rows.table().setModel(nullptr);
}

void tst_PlanTaskWidgetLostEditors::aCardThatGoesWithLostEditors()
{
    for (const PlanColumn column : kEditorColumns) {
        OpenCard open(threePlans());
        open.rows.table().setIndexWidget(open.rows.model().index(1, column), nullptr);
    }
    handleDeletions();
    QVERIFY(service().working.count(1) == 1);
}

// Books and rows stay in step, although some of the widgets that they tell of are gone.
void tst_PlanTaskWidgetLostEditors::theRowGoesAllTheSame()
{
    OpenCard open(threePlans());
    open.rows.table().setIndexWidget(open.rows.model().index(1, ModeColumn), nullptr);
    open.rows.table().setIndexWidget(open.rows.model().index(1, StateColumn), nullptr);
    handleDeletions();
    const PromptAnswer prompt(1);
    click(open.rows.deleteButton(1));
    QCOMPARE(open.rows.disagreement(), QString());
    QCOMPARE(open.rows.task().plans.size(), std::size_t(2));
}

void tst_PlanTaskWidgetLostEditors::unfoldingWithAnotherDelegate()
{
    QWidget window;
    PlanTaskWidget* const card = PlanTaskWidget::makeFolded(threePlans(), &window);
    const PlanTaskWidgetInspector rows(*card);
    rows.table().setItemDelegateForColumn(ProgramsColumn, new ReadOnlyDelegate(card));
    card->setFolded(false);
    QVERIFY(!rows.cell(1, ProgramsColumn));
    card->slotTranslation();
    QCOMPARE(rows.startTime(2).text(), QStringLiteral("12:00:00"));
}

TREL_TEST(tst_PlanTaskWidgetLostEditors, QApplication)
#include "tst_PlanTaskWidgetLostEditors.moc"
