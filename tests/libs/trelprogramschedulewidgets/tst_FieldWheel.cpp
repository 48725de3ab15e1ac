#include "EditorWindow.h"
#include "Wheel.h"

#include "PlanList.h"
#include "PlanTaskWidget.h"
#include "SpinBoxDelegate.h"
#include "TimeDelegate.h"
#include "support/PlanRecords.h"
#include "support/PlanTaskWidgetInspector.h"
#include "support/PromptAnswer.h"
#include "support/RecordingService.h"
#include "support/TestProgram.h"

#include "MultiComboBox.h"
#include "trelwidgets/ComboBox.h"

#include <QApplication>
#include <QDateEdit>
#include <QScrollArea>
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

PlayTask longTask(int id)
{
    std::vector<PlayPlan> plans;
    for (int plan = 1; plan <= 12; ++plan) {
        plans.push_back(plan % 2 == 0 ? frequencyPlan(plan, "08:00:00", 5, {entry(1)})
                                      : timePlan(plan, "08:00:00", "09:00:00"));
    }
    return taskWithPlans(plans, id);
}

} // namespace

/// The wheel over the fields of a card, in the window as it is shown.
class tst_FieldWheel : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void withoutFocusItScrolls_data();
    void withoutFocusItScrolls();
    void withoutFocusItScrollsTheListToo();
    void withFocusItSteps_data();
    void withFocusItSteps();
    void withFocusElsewhereItChangesNothing();
    void editorsOfDelegatesKeepToIt();

private:
    QWidget& field(const QString& name) const;
    QScrollBar& bar() const { return *m_rows->table().verticalScrollBar(); }
    QScrollBar& listBar() const
    {
        return *m_window->panel().findChild<QScrollArea*>()->verticalScrollBar();
    }

    std::unique_ptr<ClockAfterStart> m_clock;
    std::unique_ptr<EditorWindow> m_window;
    PlanTaskWidget* m_card = nullptr;
    std::unique_ptr<PlanTaskWidgetInspector> m_rows;
};

void tst_FieldWheel::init()
{
    service().reset();
    service().addProgram(1, "Film", 60000.0);
    service().stored[1] = longTask(1);
    service().stored[2] = longTask(2);
    m_clock = std::make_unique<ClockAfterStart>();
    m_window = std::make_unique<EditorWindow>();
    m_window->dialog.slotShow();
    m_window->dialog.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&m_window->dialog));
    const auto cards = m_window->panel().planList()->findChildren<PlanTaskWidget*>();
    for (PlanTaskWidget* card : cards) {
        card->setFolded(false);
    }
    m_card = cards.first();
    m_rows = std::make_unique<PlanTaskWidgetInspector>(*m_card);
    QCoreApplication::processEvents();
    m_window->panel().findChild<QScrollArea*>()->setFocus();
    service().clearLog();
}

void tst_FieldWheel::cleanup()
{
    m_rows.reset();
    m_window.reset();
    m_clock.reset();
}

QWidget& tst_FieldWheel::field(const QString& name) const
{
    if (name == QLatin1String("mode")) {
        return m_rows->mode(1);
    }
    if (name == QLatin1String("start")) {
        return m_rows->startTime(1);
    }
    if (name == QLatin1String("end")) {
        return m_rows->endTime(2);
    }
    if (name == QLatin1String("times")) {
        return m_rows->times(1);
    }
    if (name == QLatin1String("weeks")) {
        return m_rows->weeks(1);
    }
    if (name == QLatin1String("end action")) {
        return m_rows->endAction(1);
    }
    return *m_card->findChild<QWidget*>(name);
}

void tst_FieldWheel::withoutFocusItScrolls_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("mode") << "mode";
    QTest::newRow("start") << "start";
    QTest::newRow("end") << "end";
    QTest::newRow("times") << "times";
    QTest::newRow("weeks") << "weeks";
    QTest::newRow("end action") << "end action";
}

void tst_FieldWheel::withoutFocusItScrolls()
{
    QFETCH(const QString, name);
    const PromptAnswer noPrompt;
    QWidget* const focused = QApplication::focusWidget();
    const QStringList lines = m_rows->lines();
    turnWheelOver(field(name));
    QVERIFY(bar().value() > 0);
    QCOMPARE(m_rows->lines(), lines);
    QCOMPARE(service().log, QStringList());
    QCOMPARE(QApplication::focusWidget(), focused);
    QVERIFY(focused);
}

void tst_FieldWheel::withoutFocusItScrollsTheListToo()
{
    const PromptAnswer noPrompt;
    for (const char* const name : {"dateEditVaildStartTime", "dateEditVaildEndTime"}) {
        listBar().setValue(0);
        turnWheelOver(field(QLatin1String(name)));
        QVERIFY(listBar().value() > 0);
    }
    // A table that is at its end hands the wheel on as well.
    bar().setValue(bar().maximum());
    listBar().setValue(0);
    turnWheelOver(m_rows->startTime(10));
    QVERIFY(listBar().value() > 0);
    QCOMPARE(service().log, QStringList());
}

void tst_FieldWheel::withFocusItSteps_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("text");
    QTest::newRow("start") << "start"
                           << "09:00:00";
    QTest::newRow("end") << "end"
                         << "10:00:00";
    QTest::newRow("times") << "times"
                           << "6";
    QTest::newRow("last day") << "dateEditVaildEndTime"
                              << "2025.03.31";
}

void tst_FieldWheel::withFocusItSteps()
{
    QFETCH(const QString, name);
    QFETCH(const QString, text);
    auto& edit = static_cast<QAbstractSpinBox&>(field(name));
    edit.setFocus();
    if (auto* const moment = qobject_cast<QDateTimeEdit*>(&edit)) {
        moment->setCurrentSectionIndex(0);
    }
    turnWheelOver(edit, 1);
    QCOMPARE(edit.text(), text);
    QCOMPARE(bar().value(), 0);
    QCOMPARE(listBar().value(), 0);
}

void tst_FieldWheel::withFocusElsewhereItChangesNothing()
{
    const PromptAnswer noPrompt;
    m_rows->startTime(1).setFocus();
    const QStringList lines = m_rows->lines();
    turnWheelOver(m_rows->startTime(2), 1);
    turnWheelOver(m_rows->endTime(2), 1);
    turnWheelOver(m_rows->times(1), 1);
    QCOMPARE(m_rows->lines(), lines);
    QCOMPARE(QApplication::focusWidget(), &m_rows->startTime(1));
}

void tst_FieldWheel::editorsOfDelegatesKeepToIt()
{
    QWidget window;
    const SpinBoxDelegate counts;
    const TimeDelegate times;
    auto* const box = static_cast<QSpinBox*>(counts.createEditor(&window, {}, {}));
    auto* const edit = static_cast<QTimeEdit*>(times.createEditor(&window, {}, {}));
    edit->move(0, 100);
    window.resize(300, 300);
    window.show();
    window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    box->setFocus();
    turnWheelOver(*box, 1);
    turnWheelOver(*edit, 1);
    QCOMPARE(box->value(), 2);
    QCOMPARE(edit->time(), QTime(0, 0));
    edit->setFocus();
    turnWheelOver(*box, 1);
    turnWheelOver(*edit, 1);
    QCOMPARE(box->value(), 2);
    QCOMPARE(edit->time(), QTime(1, 0));
}

TREL_TEST(tst_FieldWheel, QApplication)
#include "tst_FieldWheel.moc"
