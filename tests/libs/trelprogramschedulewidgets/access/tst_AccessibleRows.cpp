#include "ShownEditor.h"

#include "MultiComboBox.h"
#include "access/SpeechRecord.h"
#include "card/PlanColumns.h"
#include "support/PlanTaskWidgetInspector.h"
#include "support/PromptAnswer.h"
#include "support/TestClock.h"
#include "support/TestProgram.h"
#include "trelwidgets/ComboBox.h"

#include <QAccessible>
#include <QDateEdit>
#include <QDialog>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <QSpinBox>
#include <QTableView>
#include <QTimeEdit>
#include <QTimer>
#include <QtTest>

using namespace trel::mediadispatch;

namespace {

QAccessibleInterface* spoken(QWidget& widget)
{
    return QAccessible::queryAccessibleInterface(&widget);
}

QString name(const QAccessibleInterface* what)
{
    return what ? what->text(QAccessible::Name) : QStringLiteral("nothing");
}

QString value(const QAccessibleInterface* what)
{
    return what ? what->text(QAccessible::Value) : QStringLiteral("nothing");
}

QStringList namesOfChildren(const QAccessibleInterface* parent)
{
    QStringList names;
    for (int i = 0; parent && i < parent->childCount(); ++i) {
        names.append(name(parent->child(i)));
    }
    return names;
}

void act(QAccessibleInterface* what, const QString& action)
{
    QVERIFY(what && what->actionInterface());
    QVERIFY2(what->actionInterface()->actionNames().contains(action), qPrintable(name(what)));
    what->actionInterface()->doAction(action);
}

} // namespace

/// What a screen reader finds of the rows of a card, and does with them.
class tst_AccessibleRows : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void rowsAreTheChildrenOfTheTable();
    void editorsAreTheChildrenOfTheirRow();
    void theWayUpIsTheWayDown();
    void placesLeadToRowAndEditor();
    void columnsHaveTheirCaptions();
    void boxesAreNamedByWhatTheyAreFor();
    void stateIsToldWithItsPlan();
    void timesAreReadAndSetAsSeconds();
    void countsAreReadAndSet();
    void datesAreReadAndSetAsDays();
    void aValueOutOfItsRangeIsBroughtIntoIt();
    void whatIsNoNumberChangesNothing();
    void fieldsGoInSteps();
    void aRefusalDoesNotKeepTheCallerWaiting();
    void nothingBehindAPromptIsWorked();
    void disabledEditorsAreNotWorked();
    void boxesAreWorked();
    void boxesHaveTheirValueAsText();
    void fieldsAreReadAndEditedAsText();
    void aTextThatIsNoValueIsPutBack();
    void aRefusedTextDoesNotKeepTheCallerWaiting();
    void textBehindAPromptIsNotEdited();
    void collisionsNameTheOtherPlan();
    void collisionsAreToldAsTheyComeAndGo();
    void collisionsAreWorkedOutOnce();
    void programsAreTold();
    void buttonsBehindAPromptAreNotPressed();
    void everyButtonHasAName();
    void descriptionsRepeatNothing();
    void promptsHaveATitleOfTheirOwn();
    void barsTakeTheFocus();
    void barsHaveButtonsAloneBelowThem();
    void theListOfABoxComesWhenItIsOpened();
    void daysSayWhetherTheyAreChecked();
    void daysAreChecked();
    void buttonsArePressed();
    void barsSayWhetherTheyAreOpen();
    void rowsFollowTheirTable();
    void foldedRowsAreNotShown();
    void askingBuildsNoRows();
    void othersAreLeftToTheToolkit();

private:
    PlanTaskWidget& card() const { return m_editor->card(0); }
    PlanTaskWidgetInspector rows() const { return PlanTaskWidgetInspector(card()); }
    QAccessibleInterface* table() const { return spoken(rows().table()); }

    std::unique_ptr<ShownEditor> m_editor;
};

void tst_AccessibleRows::init()
{
    m_editor = std::make_unique<ShownEditor>();
}

void tst_AccessibleRows::cleanup()
{
    m_editor.reset();
}

void tst_AccessibleRows::rowsAreTheChildrenOfTheTable()
{
    QCOMPARE(table()->role(), QAccessible::Table);
    QCOMPARE(namesOfChildren(table()),
             QStringList({QStringLiteral("zhPlayTaskStr1, zhPlanTimeStr1:"),
                          QStringLiteral("zhPlayTaskStr1, zhPlanTimeStr2:"),
                          QStringLiteral("zhPlayTaskStr1, zhPlanTimeStr3:")}));
    for (int row = 0; row < 3; ++row) {
        QCOMPARE(table()->child(row)->role(), QAccessible::Row);
        QVERIFY(table()->child(row)->isValid());
        QCOMPARE(table()->child(row), table()->child(row));
    }
    QVERIFY(!table()->child(3));
    QVERIFY(!table()->child(-1));
}

void tst_AccessibleRows::editorsAreTheChildrenOfTheirRow()
{
    QAccessibleInterface* const row = table()->child(1);
    QStringList lines;
    for (int i = 0; i < row->childCount(); ++i) {
        lines.append(name(row->child(i)) + QStringLiteral(" = ") + value(row->child(i)));
    }
    const QString plan = QStringLiteral("zhPlayTaskStr1, zhPlanTimeStr2: ");
    const QStringList expected{QStringLiteral("zhSelectProgramsStr = "),
                               QStringLiteral("zhModeStr = zhTimeStr"),
                               QStringLiteral("zhFromStr = 08:30:00"),
                               QStringLiteral("zhToStr = 09:30:00"),
                               QStringLiteral("zhfrequencyStr = 1"),
                               QStringLiteral("szDateStr = ") + rows().weeks(1).shownText(),
                               QStringLiteral("zhEndActionStr = zhBlackScreen"),
                               QStringLiteral("zhconflictStr = "),
                               QStringLiteral("zhCreateCopy = "),
                               QStringLiteral("szDeleteStr = ")};
    QCOMPARE(lines.size(), expected.size());
    for (int i = 0; i < lines.size(); ++i) {
        QCOMPARE(lines.at(i), plan + expected.at(i));
    }
}

void tst_AccessibleRows::theWayUpIsTheWayDown()
{
    for (int row = 0; row < table()->childCount(); ++row) {
        QAccessibleInterface* const plan = table()->child(row);
        QCOMPARE(plan->parent(), table());
        QCOMPARE(table()->indexOfChild(plan), row);
        QCOMPARE(plan->childCount(), 10);
        for (int i = 0; i < plan->childCount(); ++i) {
            QVERIFY(plan->child(i));
            QCOMPARE(plan->child(i)->parent(), plan);
            QCOMPARE(plan->indexOfChild(plan->child(i)), i);
            QCOMPARE(table()->tableInterface()->cellAt(row, i), plan->child(i));
        }
        QCOMPARE(plan->indexOfChild(plan), -1);
    }
    QCOMPARE(table()->child(0)->indexOfChild(table()->child(1)->child(0)), -1);
    QCOMPARE(table()->indexOfChild(table()), -1);
    QCOMPARE(spoken(rows().startTime(2))->parent(), table()->child(2));
}

void tst_AccessibleRows::placesLeadToRowAndEditor()
{
    QWidget& days = rows().weeks(1);
    const QPoint place = days.mapToGlobal(days.rect().center());
    QAccessibleInterface* const row = table()->childAt(place.x(), place.y());
    QCOMPARE(row, table()->child(1));
    QCOMPARE(row->childAt(place.x(), place.y()), spoken(days));
    QVERIFY(row->rect().contains(place));
    QVERIFY(!table()->child(0)->rect().contains(place));
    QVERIFY(!table()->childAt(-5000, -5000));
    QVERIFY(!row->childAt(-5000, -5000));
}

void tst_AccessibleRows::columnsHaveTheirCaptions()
{
    const QAccessibleTableInterface* const columns = table()->tableInterface();
    QVERIFY(columns);
    QStringList captions;
    for (int column = 0; column < columns->columnCount(); ++column) {
        captions.append(columns->columnDescription(column));
    }
    QCOMPARE(captions.join(QLatin1Char('|')),
             QStringLiteral("zhSelectProgramsStr|zhModeStr|zhFromStr|zhToStr|zhfrequencyStr|"
                            "szDateStr|zhEndActionStr||zhCreateCopy|szDeleteStr"));
    QCOMPARE(columns->rowDescription(2), name(table()->child(2)));
    QCOMPARE(columns->columnDescription(10), QString());
}

void tst_AccessibleRows::boxesAreNamedByWhatTheyAreFor()
{
    QAccessibleInterface* const mode = spoken(rows().mode(2));
    QCOMPARE(mode->role(), QAccessible::ComboBox);
    QVERIFY2(name(mode).startsWith(QLatin1String("zhPlayTaskStr1, zhPlanTimeStr3:")),
             qPrintable(name(mode)));
    QCOMPARE(value(mode), rows().mode(2).currentText());
    rows().weeks(2).setShownText(QStringLiteral("a label that is far too long for the box"));
    QCOMPARE(value(spoken(rows().weeks(2))),
             QStringLiteral("a label that is far too long for the box"));
}

void tst_AccessibleRows::stateIsToldWithItsPlan()
{
    QAccessibleInterface* const state = spoken(rows().state(1));
    QCOMPARE(state->role(), QAccessible::StaticText);
    QCOMPARE(name(state),
             QStringLiteral("zhPlayTaskStr1, zhPlanTimeStr2: ") + rows().state(1).text());
}

void tst_AccessibleRows::timesAreReadAndSetAsSeconds()
{
    QAccessibleInterface* const start = spoken(rows().startTime(0));
    QCOMPARE(start->role(), QAccessible::SpinBox);
    QCOMPARE(value(start), QStringLiteral("08:00:00"));
    QAccessibleValueInterface* const time = start->valueInterface();
    QVERIFY(time);
    QCOMPARE(time->currentValue().toDouble(), 28800.0);
    QCOMPARE(time->minimumValue().toDouble(), 0.0);
    QCOMPARE(time->maximumValue().toDouble(), 86399.0);
    QCOMPARE(time->minimumStepSize().toDouble(), 1.0);
    time->setCurrentValue(30600.0);
    QTRY_COMPARE(rows().startTime(0).time(), QTime(8, 30));
    QCOMPARE(rows().task().plans.front().startTime, std::string("08:30:00"));
}

void tst_AccessibleRows::countsAreReadAndSet()
{
    QAccessibleValueInterface* const times = spoken(rows().times(2))->valueInterface();
    QVERIFY(times);
    QCOMPARE(times->currentValue().toDouble(), 2.0);
    times->setCurrentValue(7.2);
    QTRY_COMPARE(rows().times(2).value(), 7);
    QCOMPARE(rows().task().plans.back().times, 7);
}

void tst_AccessibleRows::datesAreReadAndSetAsDays()
{
    auto* const last = card().findChild<QDateEdit*>(QStringLiteral("dateEditVaildEndTime"));
    QAccessibleValueInterface* const days = spoken(*last)->valueInterface();
    QVERIFY(days);
    QCOMPARE(days->currentValue().toDouble(), double(last->date().toJulianDay()));
    const QDate wanted = last->date().addDays(3);
    days->setCurrentValue(double(wanted.toJulianDay()));
    QTRY_COMPARE(last->date(), wanted);
    // It stands in no row and is named by itself.
    QCOMPARE(name(spoken(*last)), last->accessibleName());
}

void tst_AccessibleRows::aValueOutOfItsRangeIsBroughtIntoIt()
{
    QAccessibleValueInterface* const times = spoken(rows().times(2))->valueInterface();
    times->setCurrentValue(1e300);
    QTRY_COMPARE(rows().times(2).value(), 999);
    times->setCurrentValue(-5);
    QTRY_COMPARE(rows().times(2).value(), 1);
}

void tst_AccessibleRows::whatIsNoNumberChangesNothing()
{
    QAccessibleValueInterface* const times = spoken(rows().times(2))->valueInterface();
    times->setCurrentValue(QStringLiteral("many"));
    times->setCurrentValue(qQNaN());
    QCoreApplication::processEvents();
    QCOMPARE(rows().times(2).value(), 2);
    times->setCurrentValue(3);
    QTRY_COMPARE(rows().times(2).value(), 3);
}

void tst_AccessibleRows::fieldsGoInSteps()
{
    act(spoken(rows().times(2)), QAccessibleActionInterface::increaseAction());
    QTRY_COMPARE(rows().times(2).value(), 3);
    act(spoken(rows().times(2)), QAccessibleActionInterface::decreaseAction());
    act(spoken(rows().times(2)), QAccessibleActionInterface::decreaseAction());
    QTRY_COMPARE(rows().times(2).value(), 1);
    act(spoken(rows().startTime(0)), QAccessibleActionInterface::setFocusAction());
    QTRY_VERIFY(rows().startTime(0).hasFocus());
}

void tst_AccessibleRows::aRefusalDoesNotKeepTheCallerWaiting()
{
    const PromptAnswer answer(1);
    // The start may not come after the end.
    spoken(rows().startTime(0))->valueInterface()->setCurrentValue(86000.0);
    QCOMPARE(answer.count(), 0);
    QTRY_COMPARE(answer.count(), 1);
    QTRY_COMPARE(rows().startTime(0).time(), QTime(8, 0));
}

void tst_AccessibleRows::nothingBehindAPromptIsWorked()
{
    QDialog prompt(&m_editor->dialog());
    prompt.setModal(true);
    prompt.show();
    spoken(rows().times(2))->valueInterface()->setCurrentValue(9);
    act(spoken(rows().copyButton(0)), QAccessibleActionInterface::pressAction());
    act(spoken(rows().endAction(0)), QAccessibleActionInterface::increaseAction());
    const int endAction = rows().endAction(0).currentIndex();
    QTest::qWait(0);
    QCoreApplication::processEvents();
    QCOMPARE(rows().times(2).value(), 2);
    QCOMPARE(rows().rowCount(), 3);
    QCOMPARE(rows().endAction(0).currentIndex(), endAction);
    prompt.close();
    spoken(rows().times(2))->valueInterface()->setCurrentValue(9);
    QTRY_COMPARE(rows().times(2).value(), 9);
}

void tst_AccessibleRows::disabledEditorsAreNotWorked()
{
    QAccessibleInterface* const end = spoken(rows().endTime(2));
    QVERIFY(end->state().disabled);
    const QTime before = rows().endTime(2).time();
    end->valueInterface()->setCurrentValue(80000.0);
    QCoreApplication::processEvents();
    QCOMPARE(rows().endTime(2).time(), before);
    QVERIFY(!end->actionInterface()->actionNames().contains(
        QAccessibleActionInterface::increaseAction()));
}

void tst_AccessibleRows::boxesAreWorked()
{
    QAccessibleInterface* const box = spoken(rows().endAction(0));
    const int before = rows().endAction(0).currentIndex();
    QCOMPARE(before, 0);
    act(box, QAccessibleActionInterface::increaseAction());
    QTRY_COMPARE(rows().endAction(0).currentIndex(), 1);
    QCOMPARE(rows().task().plans.front().endAction, int(FreezeCurrentFrame));
    // There is no third.
    act(box, QAccessibleActionInterface::increaseAction());
    act(box, QAccessibleActionInterface::decreaseAction());
    QTRY_COMPARE(rows().endAction(0).currentIndex(), 0);
    QVERIFY(!spoken(rows().weeks(0))
                 ->actionInterface()
                 ->actionNames()
                 .contains(QAccessibleActionInterface::increaseAction()));
}

void tst_AccessibleRows::boxesHaveTheirValueAsText()
{
    const QAccessibleTextInterface* const text = spoken(rows().mode(2))->textInterface();
    QVERIFY(text);
    const QString mode = rows().mode(2).currentText();
    QCOMPARE(text->characterCount(), mode.size());
    QCOMPARE(text->text(0, mode.size()), mode);
    QCOMPARE(text->text(2, 4), mode.mid(2, 2));
    QCOMPARE(text->text(-5, 10000), mode);
    QCOMPARE(text->text(4, 2), QString());
    QVERIFY(!spoken(rows().mode(2))->editableTextInterface());
}

void tst_AccessibleRows::fieldsAreReadAndEditedAsText()
{
    QAccessibleInterface* const start = spoken(rows().startTime(0));
    QVERIFY(start->textInterface() && start->editableTextInterface());
    QCOMPARE(start->textInterface()->text(0, 8), QStringLiteral("08:00:00"));
    start->editableTextInterface()->replaceText(0, 8, QStringLiteral("08:15:30"));
    QTRY_COMPARE(rows().startTime(0).time(), QTime(8, 15, 30));
    start->setText(QAccessible::Value, QStringLiteral("07:00:00"));
    QTRY_COMPARE(rows().task().plans.front().startTime, std::string("07:00:00"));
    QAccessibleInterface* const times = spoken(rows().times(2));
    times->editableTextInterface()->insertText(1, QStringLiteral("5"));
    QTRY_COMPARE(rows().times(2).value(), 25);
    times->editableTextInterface()->deleteText(0, 1);
    QTRY_COMPARE(rows().times(2).value(), 5);
    // What nobody can type cannot be written.
    spoken(rows().endTime(2))
        ->editableTextInterface()
        ->replaceText(0, 8, QStringLiteral("23:00:00"));
    QCoreApplication::processEvents();
    QVERIFY(rows().endTime(2).time() != QTime(23, 0));
}

void tst_AccessibleRows::aTextThatIsNoValueIsPutBack()
{
    QAccessibleInterface* const start = spoken(rows().startTime(0));
    start->editableTextInterface()->replaceText(0, 8, QStringLiteral("noon"));
    start->editableTextInterface()->replaceText(-3, 900, QStringLiteral("99:99:99"));
    QCoreApplication::processEvents();
    QCOMPARE(rows().startTime(0).time(), QTime(8, 0));
    QCOMPARE(value(start), QStringLiteral("08:00:00"));
}

void tst_AccessibleRows::aRefusedTextDoesNotKeepTheCallerWaiting()
{
    const PromptAnswer answer(1);
    QAccessibleInterface* const start = spoken(rows().startTime(0));
    start->editableTextInterface()->replaceText(0, 8, QStringLiteral("23:00:00"));
    QCOMPARE(answer.count(), 0);
    QTRY_COMPARE(answer.count(), 1);
    QTRY_COMPARE(rows().startTime(0).time(), QTime(8, 0));
}

void tst_AccessibleRows::textBehindAPromptIsNotEdited()
{
    QDialog prompt(&m_editor->dialog());
    prompt.setModal(true);
    prompt.show();
    QAccessibleEditableTextInterface* const times =
        spoken(rows().times(2))->editableTextInterface();
    times->replaceText(0, 1, QStringLiteral("9"));
    QTest::qWait(0);
    QCoreApplication::processEvents();
    QCOMPARE(rows().times(2).value(), 2);
    prompt.close();
    times->replaceText(0, 1, QStringLiteral("9"));
    QTRY_COMPARE(rows().times(2).value(), 9);
}

void tst_AccessibleRows::collisionsNameTheOtherPlan()
{
    const auto described = [this](int row) {
        const QString ofRow = table()->child(row)->text(QAccessible::Description);
        [&] { QCOMPARE(spoken(rows().state(row))->text(QAccessible::Description), ofRow); }();
        return ofRow;
    };
    QCOMPARE(described(0), QString());
    QCOMPARE(described(1), QStringLiteral("zhconflictStr: zhPlayTaskStr1, zhPlanTimeStr1"));
    QCOMPARE(described(2), QString());
    // Of two that stand above it, the first.
    rows().endTime(2).setEnabled(true);
    rows().startTime(2).setTime(QTime(8, 40));
    QCOMPARE(described(2), QStringLiteral("zhconflictStr: zhPlayTaskStr1, zhPlanTimeStr1"));
    rows().startTime(2).setTime(QTime(9, 10));
    QCOMPARE(described(2), QStringLiteral("zhconflictStr: zhPlayTaskStr1, zhPlanTimeStr2"));
    QVERIFY(!card().planInTheWay(-1) && !card().planInTheWay(3));
}

void tst_AccessibleRows::collisionsAreToldAsTheyComeAndGo()
{
    SpeechRecord record(QStringLiteral("collisions"));
    QStringList notes;
    const auto alerts = [&record, &notes] {
        const QStringList news = record.news();
        notes = news.filter(QStringLiteral("  * "));
        return news.filter(QStringLiteral("!")).join(QLatin1Char('|'));
    };
    rows().startTime(1).setTime(QTime(9, 15));
    QCOMPARE(alerts(), QStringLiteral("  ! zhPlayTaskStr1, zhPlanTimeStr2: zhnormalStr, label"));
    QCOMPARE(notes, QStringList(QStringLiteral("  * zhPlayTaskStr1, zhPlanTimeStr2: zhnormalStr")));
    rows().startTime(1).setTime(QTime(9, 10));
    QCOMPARE(alerts(), QString());
    rows().startTime(1).setTime(QTime(8, 10));
    QCOMPARE(alerts(), QStringLiteral("  ! zhPlayTaskStr1, zhPlanTimeStr2: zhconflictStr, label "
                                      "(zhconflictStr: zhPlayTaskStr1, zhPlanTimeStr1)"));
    // Once more for those who hear of no alerts.
    QCOMPARE(notes, QStringList(QStringLiteral("  * zhPlayTaskStr1, zhPlanTimeStr2: zhconflictStr, "
                                               "zhconflictStr: zhPlayTaskStr1, zhPlanTimeStr1")));
    // Several at a time are one message, and a change of words none.
    rows().startTime(2).setTime(QTime(8, 5));
    QVERIFY(!alerts().isEmpty());
    rows().endTime(0).setTime(QTime(8, 0));
    rows().endTime(1).setTime(QTime(8, 10));
    alerts();
    rows().endTime(0).setTime(QTime(9, 0));
    card().slotTranslation();
    QVERIFY(!alerts().contains(QLatin1Char('|')));
    card().setFolded(true);
    rows().endTime(0).setTime(QTime(8, 0));
    QCOMPARE(alerts(), QString());
}

void tst_AccessibleRows::collisionsAreWorkedOutOnce()
{
    RecordingService& service = RecordingService::instance();
    const auto said = [this] {
        QStringList texts;
        for (int row = 0; row < 3; ++row) {
            texts.append(table()->child(row)->text(QAccessible::Description).right(1));
        }
        return texts.join(u'|');
    };
    service.clearLog();
    QCOMPARE(said(), QStringLiteral("|1|"));
    QCOMPARE(said(), QStringLiteral("|1|"));
    QCOMPARE(service.count(QStringLiteral("getPrograms")), 1);
    // What is changed is worked out again.
    rows().startTime(0).setTime(QTime(8, 50));
    rows().endTime(0).setTime(QTime(8, 55));
    rows().startTime(1).setTime(QTime(9, 0));
    QCOMPARE(said(), QStringLiteral("||"));
}

void tst_AccessibleRows::programsAreTold()
{
    QAccessibleInterface* const choose = table()->child(0)->child(0);
    QCOMPARE(choose->text(QAccessible::Description), QStringLiteral("Film (F2)"));
    auto* const model = rows().table().model();
    const QString long1 = QString(300, QLatin1Char('x')) + QStringLiteral(" (missing)");
    model->setData(model->index(0, ProgramsColumn), long1, ProgramTextRole);
    QCOMPARE(choose->text(QAccessible::Description), long1 + QStringLiteral(" (F2)"));
}

void tst_AccessibleRows::buttonsBehindAPromptAreNotPressed()
{
    const auto button = [this](const char* name) {
        return spoken(*m_editor->dialog().findChild<QPushButton*>(QLatin1String(name)));
    };
    QDialog prompt(&m_editor->dialog());
    prompt.setModal(true);
    prompt.show();
    const char* const names[] = {"pushButtonAddTask", "pushButtonClose", "ButtonClose",
                                 "pbtCreatCopy"};
    for (const char* name : names) {
        act(button(name), QAccessibleActionInterface::pressAction());
    }
    QTest::qWait(0);
    QCoreApplication::processEvents();
    QVERIFY(m_editor->dialog().isVisible());
    QCOMPARE(m_editor->panel().planList()->cards().size(), 2);
    prompt.close();
    // After a refresh no task is added for a second.
    const TestClock later(QDateTime(QDate(2024, 3, 10), QTime(12, 1)));
    act(button("pushButtonAddTask"), QAccessibleActionInterface::pressAction());
    QCOMPARE(m_editor->panel().planList()->cards().size(), 2);
    QTRY_COMPARE(m_editor->panel().planList()->cards().size(), 3);
    act(button("ButtonClose"), QAccessibleActionInterface::pressAction());
    QTRY_VERIFY(!m_editor->dialog().isVisible());
}

void tst_AccessibleRows::everyButtonHasAName()
{
    const auto buttons = m_editor->dialog().findChildren<QPushButton*>();
    QVERIFY(buttons.size() > 20);
    for (QPushButton* const button : buttons) {
        QVERIFY2(!name(spoken(*button)).isEmpty(), qPrintable(button->objectName()));
        QCOMPARE(name(spoken(*button)), name(spoken(*button)).trimmed());
    }
    m_editor->panel().slotTranslation();
    QCOMPARE(name(spoken(*m_editor->panel().findChild<QScrollArea*>())),
             QStringLiteral("zhSchedulePlayStr"));
}

void tst_AccessibleRows::descriptionsRepeatNothing()
{
    m_editor->panel().slotTranslation();
    const auto described = [this](const char* button) {
        return spoken(*m_editor->dialog().findChild<QPushButton*>(QLatin1String(button)))
            ->text(QAccessible::Description);
    };
    QCOMPARE(described("pushButtonAddTask"), QStringLiteral("Ctrl+Shift+N"));
    QCOMPARE(described("pushButtonAdd"), QStringLiteral("Ctrl+N"));
    rows().weeks(0).setToolTip(rows().weeks(0).shownText());
    QCOMPARE(spoken(rows().weeks(0))->text(QAccessible::Description), QString());
    rows().weeks(0).setToolTip(QStringLiteral("more"));
    QCOMPARE(spoken(rows().weeks(0))->text(QAccessible::Description), QStringLiteral("more"));
}

void tst_AccessibleRows::promptsHaveATitleOfTheirOwn()
{
    QString title;
    QString told;
    const PromptAnswer answer(1);
    QTimer::singleShot(0, &m_editor->dialog(), [&title, &told] {
        const QWidget* const prompt = QApplication::activeModalWidget();
        title = prompt->windowTitle();
        told = QAccessible::queryAccessibleInterface(const_cast<QWidget*>(prompt))
                   ->text(QAccessible::Description);
    });
    rows().startTime(0).setTime(QTime(23, 0));
    QCOMPARE(answer.count(), 1);
    QCOMPARE(title, QStringLiteral("zhtitleTip"));
    QCOMPARE(told, answer.texts().front());
}

void tst_AccessibleRows::barsTakeTheFocus()
{
    auto* const bar = card().findChild<QPushButton*>(QStringLiteral("title"));
    QVERIFY(spoken(*bar)->state().focusable && !spoken(*bar)->state().checkable);
    m_editor->dialog().activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&m_editor->dialog()));
    act(spoken(*bar), QAccessibleActionInterface::setFocusAction());
    QVERIFY(bar->hasFocus() && spoken(*bar)->state().focused);
    QCOMPARE(bar->focusPolicy(), Qt::NoFocus);
}

void tst_AccessibleRows::barsHaveButtonsAloneBelowThem()
{
    QAccessibleInterface* const bar =
        spoken(*card().findChild<QPushButton*>(QStringLiteral("title")));
    // Those of the card. The arrow is a picture, and the state of the bar says what it shows.
    QCOMPARE(bar->childCount(), 2);
    for (int i = 0; i < bar->childCount(); ++i) {
        QCOMPARE(bar->child(i)->role(), QAccessible::Button);
        QCOMPARE(bar->indexOfChild(bar->child(i)), i);
    }
    QVERIFY(bar->child(2) == nullptr && bar->child(-1) == nullptr);
}

void tst_AccessibleRows::theListOfABoxComesWhenItIsOpened()
{
    QAccessibleInterface* const days = spoken(rows().weeks(0));
    QCOMPARE(days->childCount(), 0);
    QVERIFY(days->state().collapsed && !days->state().expanded && days->state().hasPopup);
    // A box that has just been made takes a press for the one that closed its list.
    const TestClock later(QDateTime(QDate(2024, 3, 10), QTime(12, 1)));
    act(days, QAccessibleActionInterface::showMenuAction());
    QTRY_COMPARE(days->childCount(), 1);
    QVERIFY(days->state().expanded && !days->state().collapsed);
    QAccessibleInterface* const list = days->child(0);
    QCOMPARE(list->parent(), days);
    QCOMPARE(days->indexOfChild(list), 0);
    QCOMPARE(list->childCount(), 8);
    rows().weeks(0).hidePopup();
    QVERIFY(days->state().collapsed && !days->state().expanded);
}

void tst_AccessibleRows::daysSayWhetherTheyAreChecked()
{
    MultiComboBox& box = rows().weeks(0);
    box.applySelection(box.itemText(2) + QLatin1Char(',') + box.itemText(5));
    const TestClock later(QDateTime(QDate(2024, 3, 10), QTime(12, 1)));
    box.showPopup();
    QAccessibleInterface* const list = spoken(box)->child(0);
    QCOMPARE(list->role(), QAccessible::List);
    QCOMPARE(name(list), name(spoken(box)));
    QStringList lines;
    for (int i = 0; i < list->childCount(); ++i) {
        QAccessibleInterface* const day = list->child(i);
        QCOMPARE(day->parent(), list);
        QCOMPARE(list->indexOfChild(day), i);
        QCOMPARE(day->role(), QAccessible::ListItem);
        QCOMPARE(name(day), box.itemText(i));
        QVERIFY(day->state().checkable && !day->state().selected);
        QCOMPARE(list->childAt(day->rect().center().x(), day->rect().center().y()), day);
        lines.append(day->state().checked ? QStringLiteral("x") : QStringLiteral("-"));
    }
    QCOMPARE(lines.join(QString()), QStringLiteral("--x--x--"));
    QVERIFY(!list->child(8));
    box.hidePopup();
    QVERIFY(list->child(0)->state().invisible);
    QVERIFY(list->child(0)->actionInterface()->actionNames().isEmpty());
}

void tst_AccessibleRows::daysAreChecked()
{
    MultiComboBox& box = rows().weeks(0);
    box.applySelection(box.itemText(EveryDay));
    const TestClock later(QDateTime(QDate(2024, 3, 10), QTime(12, 1)));
    act(spoken(box), QAccessibleActionInterface::showMenuAction());
    QTRY_COMPARE(spoken(box)->childCount(), 1);
    QAccessibleInterface* const list = spoken(box)->child(0);
    QVERIFY(list->child(EveryDay)->state().checked);
    {
        SpeechRecord record(QStringLiteral("days"));
        QAccessibleEvent focus(list->child(3), QAccessible::Focus);
        QAccessible::updateAccessibility(&focus);
        record.news();
        act(list->child(3), QAccessibleActionInterface::toggleAction());
        QCOMPARE(record.news().join(u'|'),
                 QStringLiteral("  %1, list item, checked").arg(box.itemText(3)));
        // The mark that another one took is told as well, and it is no more than that.
        QAccessibleEvent everyDay(list->child(EveryDay), QAccessible::Focus);
        QAccessible::updateAccessibility(&everyDay);
        record.news();
        act(list->child(EveryDay), QAccessibleActionInterface::toggleAction());
        record.news();
        act(list->child(3), QAccessibleActionInterface::toggleAction());
        QCOMPARE(record.news().join(u'|'),
                 QStringLiteral("  %1, list item, not checked").arg(box.itemText(EveryDay)));
    }
    act(list->child(4), QAccessibleActionInterface::toggleAction());
    act(list->child(5), QAccessibleActionInterface::toggleAction());
    act(list->child(4), QAccessibleActionInterface::toggleAction());
    QVERIFY(!list->child(EveryDay)->state().checked);
    QVERIFY(list->child(3)->state().checked && !list->child(4)->state().checked);
    box.hidePopup();
    QCOMPARE(rows().task().plans.front().weeks, std::string("3,5"));
    // A list that is closed takes no marks.
    list->child(1)->actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
    box.toggleEntry(1);
    QVERIFY(!list->child(1)->state().checked);
}

void tst_AccessibleRows::barsSayWhetherTheyAreOpen()
{
    auto* const bar = card().findChild<QPushButton*>(QStringLiteral("title"));
    QAccessibleInterface* const title = spoken(*bar);
    QCOMPARE(title->role(), QAccessible::Button);
    QCOMPARE(name(title), QStringLiteral("zhPlayTaskStr1"));
    QVERIFY(title->state().expandable && title->state().expanded && !title->state().collapsed);
    act(title, QAccessibleActionInterface::pressAction());
    QTRY_VERIFY(card().isFolded());
    QVERIFY(title->state().collapsed && !title->state().expanded);
    act(title, QAccessibleActionInterface::pressAction());
    QTRY_VERIFY(!card().isFolded());
}

void tst_AccessibleRows::buttonsArePressed()
{
    QAccessibleInterface* const copy = spoken(rows().copyButton(0));
    QCOMPARE(copy->role(), QAccessible::Button);
    act(copy, QAccessibleActionInterface::pressAction());
    QCOMPARE(rows().rowCount(), 3);
    QTRY_COMPARE(rows().rowCount(), 4);
    {
        const PromptAnswer answer(1);
        act(spoken(rows().deleteButton(3)), QAccessibleActionInterface::pressAction());
        QCOMPARE(answer.count(), 0);
        QTRY_COMPARE(rows().rowCount(), 3);
    }
}

void tst_AccessibleRows::rowsFollowTheirTable()
{
    QAccessibleInterface* const third = table()->child(2);
    const QAccessible::Id id = QAccessible::uniqueId(third);
    {
        const PromptAnswer answer(1);
        rows().deleteButton(0).click();
    }
    QVERIFY(!third->isValid());
    QVERIFY(third->state().invalid);
    QCOMPARE(third->childCount(), 0);
    QCOMPARE(name(third), QString());
    QCOMPARE(table()->childCount(), 2);
    QCOMPARE(name(table()->child(0)), QStringLiteral("zhPlayTaskStr1, zhPlanTimeStr2:"));
    QCOMPARE(spoken(rows().startTime(0))->parent(), table()->child(0));
    // With the table its rows go, too.
    m_editor->panel().planList()->slotDeleteTask(1);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(!QAccessible::accessibleInterface(id));
}

void tst_AccessibleRows::foldedRowsAreNotShown()
{
    QAccessibleInterface* const row = table()->child(0);
    QVERIFY(!row->state().invisible);
    card().setFolded(true);
    QVERIFY(row->state().invisible);
    QVERIFY(row->child(2)->state().invisible);
}

void tst_AccessibleRows::askingBuildsNoRows()
{
    PlanTaskWidget& folded = m_editor->card(1);
    const PlanTaskWidgetInspector inside(folded);
    QAccessibleInterface* const plans = spoken(*folded.findChild<QTableView*>());
    QCOMPARE(plans->childCount(), 0);
    QCOMPARE(plans->tableInterface()->rowCount(), 0);
    QVERIFY(!plans->child(0));
    QVERIFY(folded.findChildren<MultiComboBox*>().isEmpty());
    folded.setFolded(false);
    QCOMPARE(plans->childCount(), 3);
    QVERIFY(plans->child(2)->isValid());
}

void tst_AccessibleRows::othersAreLeftToTheToolkit()
{
    QWidget host;
    QTimeEdit time(QTime(8, 0), &host);
    QComboBox box(&host);
    box.addItem(QStringLiteral("one"));
    QTableView view(&host);
    QVERIFY(!dynamic_cast<QAccessibleValueInterface*>(spoken(box)));
    QCOMPARE(spoken(box)->childCount(), 1);
    QCOMPARE(spoken(time)->role(), QAccessible::SpinBox);
    QVERIFY(!spoken(time)->actionInterface()->actionNames().contains(
        QAccessibleActionInterface::increaseAction()));
}

TREL_TEST(tst_AccessibleRows, QApplication)
#include "tst_AccessibleRows.moc"
