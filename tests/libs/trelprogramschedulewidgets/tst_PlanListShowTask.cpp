#include "CardDescription.h"
#include "CardLines.h"
#include "EditorWindow.h"
#include "WidgetPlaces.h"

#include "PlanTaskWidget.h"
#include "support/PlanRecords.h"
#include "support/PlanTaskWidgetInspector.h"
#include "support/RecordingService.h"
#include "support/TestProgram.h"
#include "trelwidgets/TipDialog.h"

#include <QApplication>
#include <QDateEdit>
#include <QPointer>
#include <QScrollArea>
#include <QScrollBar>
#include <QTableView>
#include <QTimeEdit>
#include <QTimer>

#include <memory>

using namespace trel::mediadispatch;

namespace {

constexpr int kTasks = 20;

RecordingService& service()
{
    return RecordingService::instance();
}

/// The editor on screen with more folded cards than it has room for, of two plans each. Their ids
/// are even, so that there is room between them.
class Editor
{
public:
    Editor()
    {
        m_window.dialog.slotShow();
        m_window.dialog.activateWindow();
        QTRY_COMPARE(QApplication::activeWindow(), &m_window.dialog);
        m_clock.advance(2000);
        QCoreApplication::processEvents();
        service().clearLog();
    }

    scheduleControlUI& dialog() { return m_window.dialog; }
    PlanList& list() const { return *m_window.panel().planList(); }
    QScrollArea& area() const { return *m_window.panel().findChild<QScrollArea*>(); }
    QList<PlanTaskWidget*> cards() const { return cardsInOrder(list()); }

    PlanTaskWidget& card(int taskId) const
    {
        for (PlanTaskWidget* const card : cards()) {
            if (PlanTaskWidgetInspector(*card).task().id == taskId) {
                return *card;
            }
        }
        qFatal("no card of task %d", taskId);
    }

    QString order() const
    {
        QStringList ids;
        for (PlanTaskWidget* const card : cards()) {
            ids.append(QString::number(PlanTaskWidgetInspector(*card).task().id));
        }
        return ids.join(QLatin1Char(' '));
    }

    void open(int taskId)
    {
        card(taskId).setFolded(false);
        QCoreApplication::processEvents();
    }

private:
    ClockAfterStart m_clock;
    EditorWindow m_window;
};

QString evenIds(int without = 0)
{
    QStringList ids;
    for (int id = 2; id <= 2 * kTasks; id += 2) {
        if (id != without) {
            ids.append(QString::number(id));
        }
    }
    return ids.join(QLatin1Char(' '));
}

/// Moves the start of the first plan, behind the editor.
void editBehind(int taskId)
{
    service().working.at(taskId).plans.at(0).startTime = "07:30:00";
    service().working.at(taskId).endDate = "2024.12.30";
}

} // namespace

/// One card is built anew after a host has edited its task.
class tst_PlanListShowTask : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void showsWhatTheWorkingSetHas_data();
    void showsWhatTheWorkingSetHas();
    void looksAsIfReadAgain();
    void leavesTheOtherCardsAlone();
    void asksTheServiceForOneTask();
    void keepsAFoldedCardWithoutRows();
    void putsACardBetween_data();
    void putsACardBetween();
    void dropsTheCardOfATaskThatIsNoMore();
    void ignoresWhatIsNowhere();
    void keepsWhatIsInSight_data();
    void keepsWhatIsInSight();
    void keepsTheTableScrolled();
    void keepsTheFieldInFocus_data();
    void keepsTheFieldInFocus();
    void findsAnotherRowInFocus();
    void fallsBackToTheBar();
    void takesNoFocusFromElsewhere();
    void dropsWhatIsHalfTyped();
    void leavesARebuildAlone();
    void worksAtTheEndOfARebuild();
    void worksHidden();
    void worksWhileAPromptStands();
    void anotherEditorPassesItOn();
};

void tst_PlanListShowTask::init()
{
    service().reset();
    service().addProgram(1, "Film", 60000.0);
    for (int id = 2; id <= 2 * kTasks; id += 2) {
        service().stored[id] = taskWithPlans(
            {timePlan(1, "08:00:00", "09:00:00"), frequencyPlan(2, "10:00:00", 2, {entry(1)})}, id);
    }
}

void tst_PlanListShowTask::showsWhatTheWorkingSetHas_data()
{
    QTest::addColumn<bool>("folded");
    QTest::newRow("folded") << true;
    QTest::newRow("open") << false;
}

void tst_PlanListShowTask::showsWhatTheWorkingSetHas()
{
    QFETCH(const bool, folded);
    Editor editor;
    editor.card(4).setFolded(folded);
    const QPointer<PlanTaskWidget> former = &editor.card(4);
    editBehind(4);
    editor.dialog().slotShowTask(4);
    QVERIFY(!former);
    PlanTaskWidget& card = editor.card(4);
    QCOMPARE(card.isFolded(), folded);
    QVERIFY(card.isVisible());
    const PlanTaskWidgetInspector rows(card);
    QCOMPARE(rows.startTime(0).time(), QTime(7, 30));
    QCOMPARE(card.findChild<QDateEdit*>(QStringLiteral("dateEditVaildEndTime"))->date(),
             QDate(2024, 12, 30));
    QCOMPARE(editor.order(), evenIds());
}

void tst_PlanListShowTask::looksAsIfReadAgain()
{
    Editor editor;
    editBehind(4);
    editor.dialog().slotShowTask(4);
    editor.open(4);
    const QStringList description = CardDescription(editor.card(4)).lines();
    const QStringList places = visiblePlaces(editor.card(4), editor.card(4));

    service().stored = service().working;
    editor.dialog().clearAndInitialize();
    editor.open(4);
    QCOMPARE(description, CardDescription(editor.card(4)).lines());
    QCOMPARE(places, visiblePlaces(editor.card(4), editor.card(4)));
}

void tst_PlanListShowTask::leavesTheOtherCardsAlone()
{
    Editor editor;
    editor.open(6);
    QList<PlanTaskWidget*> others = editor.cards();
    others.removeOne(&editor.card(4));
    editBehind(4);
    editor.dialog().slotShowTask(4);
    QList<PlanTaskWidget*> afterwards = editor.cards();
    afterwards.removeOne(&editor.card(4));
    QCOMPARE(afterwards, others);
    QVERIFY(!editor.card(6).isFolded());
}

void tst_PlanListShowTask::asksTheServiceForOneTask()
{
    Editor editor;
    service().clearLog();
    editor.dialog().slotShowTask(4);
    QStringList calls = service().edits();
    // A card hands its task over for each plan, as it does whenever it is built.
    QCOMPARE(calls.removeAll(calls.last()), 2);
    QCOMPARE(calls, QStringList({QStringLiteral("getTask(4)")}));
}

void tst_PlanListShowTask::keepsAFoldedCardWithoutRows()
{
    Editor editor;
    editor.dialog().slotShowTask(4);
    QVERIFY(editor.card(4).isFolded());
    QCOMPARE(editor.card(4).findChildren<QTimeEdit*>().size(), 0);
}

void tst_PlanListShowTask::putsACardBetween_data()
{
    QTest::addColumn<int>("taskId");
    QTest::newRow("before the first") << 1;
    QTest::newRow("between") << 7;
    QTest::newRow("behind the last") << 2 * kTasks + 1;
}

void tst_PlanListShowTask::putsACardBetween()
{
    QFETCH(const int, taskId);
    Editor editor;
    QSignalSpy counts(&editor.list(), &PlanList::sigGetMapCount);
    service().working[taskId] = taskWithPlans({timePlan(1, "08:00:00", "09:00:00")}, taskId);
    editor.dialog().slotShowTask(taskId);
    QVERIFY(editor.card(taskId).isFolded());
    QVERIFY(editor.card(taskId).isVisible());
    QCOMPARE(counts.count(), 1);
    QCOMPARE(counts.last().first().toInt(), kTasks + 1);

    service().stored = service().working;
    const QString order = editor.order();
    editor.dialog().clearAndInitialize();
    QCOMPARE(order, editor.order());
}

void tst_PlanListShowTask::dropsTheCardOfATaskThatIsNoMore()
{
    Editor editor;
    QSignalSpy counts(&editor.list(), &PlanList::sigGetMapCount);
    service().working.erase(4);
    service().clearLog();
    editor.dialog().slotShowTask(4);
    QCOMPARE(editor.order(), evenIds(4));
    QCOMPARE(counts.count(), 1);
    QCOMPARE(counts.last().first().toInt(), kTasks - 1);
    QCOMPARE(service().log, QStringList({QStringLiteral("getTask(4)")}));
}

void tst_PlanListShowTask::ignoresWhatIsNowhere()
{
    Editor editor;
    QSignalSpy counts(&editor.list(), &PlanList::sigGetMapCount);
    const QList<PlanTaskWidget*> cards = editor.cards();
    for (const int taskId : {-1, 0, 5, 65535}) {
        editor.dialog().slotShowTask(taskId);
    }
    QCOMPARE(editor.cards(), cards);
    QCOMPARE(counts.count(), 0);
}

void tst_PlanListShowTask::keepsWhatIsInSight_data()
{
    QTest::addColumn<int>("taskId");
    QTest::addColumn<bool>("isLeft");
    QTest::newRow("edited above") << 2 << true;
    QTest::newRow("put in above") << 1 << true;
    QTest::newRow("taken out above") << 2 << false;
    QTest::newRow("edited at the top") << 16 << true;
    QTest::newRow("edited below") << 2 * kTasks << true;
}

void tst_PlanListShowTask::keepsWhatIsInSight()
{
    QFETCH(const int, taskId);
    QFETCH(const bool, isLeft);
    Editor editor;
    editor.open(2);
    editor.open(16);
    editor.area().verticalScrollBar()->setValue(editor.card(16).y() + 7);
    QCoreApplication::processEvents();
    const auto place = [&editor] {
        return editor.card(16).mapTo(editor.area().viewport(), QPoint()).y();
    };
    QCOMPARE(place(), -7);
    service().working.erase(taskId);
    if (isLeft) {
        service().working[taskId] = taskWithPlans({timePlan(1, "07:30:00", "09:00:00")}, taskId);
    }
    editor.dialog().slotShowTask(taskId);
    QCOMPARE(place(), -7);
    QCoreApplication::processEvents();
    QCOMPARE(place(), -7);
}

void tst_PlanListShowTask::keepsTheTableScrolled()
{
    for (int id = 3; id <= 40; ++id) {
        service().stored.at(4).plans.push_back(timePlan(id, "11:00:00", "11:00:01"));
    }
    Editor editor;
    editor.open(4);
    const auto bar = [&editor] {
        return editor.card(4)
            .findChild<QTableView*>(QStringLiteral("schedule"))
            ->verticalScrollBar();
    };
    bar()->setValue(bar()->maximum() / 2);
    const int scrolled = bar()->value();
    QVERIFY(scrolled > 0);
    editor.dialog().slotShowTask(4);
    QCOMPARE(bar()->value(), scrolled);
    QCoreApplication::processEvents();
    QCOMPARE(bar()->value(), scrolled);
}

void tst_PlanListShowTask::keepsTheFieldInFocus_data()
{
    QTest::addColumn<QString>("field");
    for (const char* field : {"bar", "first day", "add", "start", "days"}) {
        QTest::newRow(field) << QString::fromLatin1(field);
    }
}

void tst_PlanListShowTask::keepsTheFieldInFocus()
{
    QFETCH(const QString, field);
    Editor editor;
    editor.open(4);
    const auto found = [&]() -> QWidget* {
        PlanTaskWidget& card = editor.card(4);
        const PlanTaskWidgetInspector rows(card);
        if (field == QLatin1String("start")) {
            return &rows.startTime(1);
        }
        if (field == QLatin1String("days")) {
            return &rows.weeks(1);
        }
        const QString name = field == QLatin1String("bar") ? QStringLiteral("title")
                             : field == QLatin1String("add")
                                 ? QStringLiteral("pushButtonAdd")
                                 : QStringLiteral("dateEditVaildStartTime");
        return card.findChild<QWidget*>(name);
    };
    found()->setFocus();
    QVERIFY(found()->hasFocus());
    const QPointer<QWidget> former = found();
    editor.dialog().slotShowTask(4);
    QVERIFY(!former);
    QVERIFY(found()->hasFocus());
}

void tst_PlanListShowTask::findsAnotherRowInFocus()
{
    Editor editor;
    editor.open(4);
    PlanTaskWidgetInspector(editor.card(4)).startTime(1).setFocus();
    service().working.at(4).plans.pop_back();
    editor.dialog().slotShowTask(4);
    QVERIFY(PlanTaskWidgetInspector(editor.card(4)).startTime(0).hasFocus());
}

void tst_PlanListShowTask::fallsBackToTheBar()
{
    Editor editor;
    editor.open(4);
    PlanTaskWidgetInspector(editor.card(4)).startTime(1).setFocus();
    service().working.at(4).plans.clear();
    editor.dialog().slotShowTask(4);
    QVERIFY(editor.card(4).findChild<QPushButton*>(QStringLiteral("title"))->hasFocus());
}

void tst_PlanListShowTask::takesNoFocusFromElsewhere()
{
    Editor editor;
    editor.open(6);
    QTimeEdit& field = PlanTaskWidgetInspector(editor.card(6)).startTime(0);
    field.setFocus();
    editor.dialog().slotShowTask(4);
    QVERIFY(field.hasFocus());
}

void tst_PlanListShowTask::dropsWhatIsHalfTyped()
{
    Editor editor;
    editor.open(4);
    QTimeEdit& field = PlanTaskWidgetInspector(editor.card(4)).startTime(0);
    field.setFocus();
    field.selectAll();
    QTest::keyClicks(&field, QStringLiteral("05"));
    service().clearLog();
    editor.dialog().slotShowTask(4);
    const PlanTaskWidgetInspector rows(editor.card(4));
    QCOMPARE(rows.startTime(0).time(), QTime(8, 0));
    QCOMPARE(service().working.at(4).plans.at(0).startTime, std::string("08:00:00"));
    // It is that of the new card now, which takes over what is typed there.
    QTest::keyClicks(&rows.startTime(0), QStringLiteral("06"));
    QTest::keyClick(&rows.startTime(0), Qt::Key_Return);
    QCOMPARE(service().working.at(4).plans.at(0).startTime.substr(0, 2), std::string("06"));
}

void tst_PlanListShowTask::leavesARebuildAlone()
{
    Editor editor;
    // Asked for while pending events are handled, with the former cards and without any.
    int asked = 0;
    QObject context;
    connect(&editor.list(), &PlanList::sigShowProcess, &context, [&] {
        QTimer::singleShot(0, &context, [&] {
            ++asked;
            service().clearLog();
            editor.dialog().slotShowTask(4);
            QCOMPARE(service().log, QStringList());
        });
    });
    connect(&editor.list(), &PlanList::sigGetMapCount, &context, [&](int count) {
        if (count == 0) {
            ++asked;
            editor.dialog().slotShowTask(4);
            QCOMPARE(editor.cards().size(), 0);
        }
    });
    service().working.at(4).plans.clear();
    editor.list().refreshPlanList();
    QVERIFY(asked >= 2);
    QCOMPARE(editor.order(), evenIds());
    QCOMPARE(PlanTaskWidgetInspector(editor.card(4)).rowCount(), 2);
}

void tst_PlanListShowTask::worksAtTheEndOfARebuild()
{
    Editor editor;
    QObject context;
    connect(&editor.list(), &PlanList::sigCloseProcess, &context, [&] {
        service().working.at(4).plans.pop_back();
        editor.dialog().slotShowTask(4);
    });
    editor.dialog().clearAndInitialize();
    QCOMPARE(PlanTaskWidgetInspector(editor.card(4)).rowCount(), 1);
}

void tst_PlanListShowTask::worksHidden()
{
    Editor editor;
    editor.open(4);
    editor.dialog().close();
    editBehind(4);
    editor.dialog().slotShowTask(4);
    QVERIFY(!editor.card(4).isVisible());
    QVERIFY(!editor.dialog().isVisible());
    QVERIFY(!editor.card(4).isFolded());
    QCOMPARE(PlanTaskWidgetInspector(editor.card(4)).startTime(0).time(), QTime(7, 30));
}

void tst_PlanListShowTask::worksWhileAPromptStands()
{
    Editor editor;
    editor.open(4);
    QTimer::singleShot(0, &editor.dialog(), [&] {
        editBehind(4);
        editor.dialog().slotShowTask(4);
        const QWidget* const prompt = QApplication::activeModalWidget();
        QVERIFY(qobject_cast<const trel::widgets::TipDialog*>(prompt));
        QTest::mouseClick(prompt->findChild<QPushButton*>(QStringLiteral("tipButton1")),
                          Qt::LeftButton);
    });
    PlanTaskWidgetInspector rows(editor.card(4));
    QTest::mouseClick(&rows.deleteButton(1), Qt::LeftButton);
    // The question was that of a card that is no more.
    QCOMPARE(int(service().working.at(4).plans.size()), 2);
    QCOMPARE(PlanTaskWidgetInspector(editor.card(4)).rowCount(), 2);
    QCOMPARE(PlanTaskWidgetInspector(editor.card(4)).startTime(0).time(), QTime(7, 30));
}

void tst_PlanListShowTask::anotherEditorPassesItOn()
{
    Editor editor;
    EditorWindow second;
    editBehind(4);
    second.dialog.slotShowTask(4);
    QCOMPARE(PlanTaskWidgetInspector(editor.card(4)).startTime(0).time(), QTime(7, 30));
    QCOMPARE(cardsInOrder(*second.panel().planList()).size(), 0);
}

TREL_TEST(tst_PlanListShowTask, QApplication)
#include "tst_PlanListShowTask.moc"
