#include "PromptInputs.h"

#include "kCustomLineEdit.h"
#include "support/ChooserAnswer.h"
#include "support/RecordingService.h"
#include "trelwidgets/ComboBox.h"

#include <QAbstractButton>
#include <QCoreApplication>
#include <QDateEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QStyleOptionSpinBox>
#include <QTimeEdit>

using namespace trel::mediadispatch;

namespace {

// The rows of the left table of the chooser.
constexpr int kFilm = 0;
constexpr int kPicture = 1;

// Inputs

void step(QAbstractSpinBox& editor, int key)
{
    editor.setFocus();
    QTest::keyClick(&editor, Qt::Key(key));
}

void stepSection(QDateTimeEdit& editor, QDateTimeEdit::Section section, int key)
{
    editor.setFocus();
    editor.setSelectedSection(section);
    step(editor, key);
}

void turnWheel(QDateTimeEdit& editor, int delta)
{
    editor.setFocus();
    editor.setSelectedSection(QDateTimeEdit::HourSection);
    const QPointF place = QRectF(editor.rect()).center();
    QWheelEvent event(place, editor.mapToGlobal(place.toPoint()), QPoint(), QPoint(0, delta),
                      Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(&editor, &event);
}

void pressUpButton(QDateTimeEdit& editor)
{
    editor.setFocus();
    editor.setSelectedSection(QDateTimeEdit::HourSection);
    QStyleOptionSpinBox option;
    option.initFrom(&editor);
    option.buttonSymbols = editor.buttonSymbols();
    option.frame = true;
    option.subControls = QStyle::SC_All;
    option.stepEnabled = QAbstractSpinBox::StepUpEnabled | QAbstractSpinBox::StepDownEnabled;
    const QRect button =
        editor.style()->subControlRect(QStyle::CC_SpinBox, &option, QStyle::SC_SpinBoxUp, &editor);
    const QPointer<QWidget> alive(&editor);
    QTest::mousePress(&editor, Qt::LeftButton, Qt::NoModifier, button.center());
    if (alive) {
        QTest::mouseRelease(&editor, Qt::LeftButton, Qt::NoModifier, button.center());
    }
}

/// Has the programs of the row with the doubled id chosen, which works out its end afterwards.
void chooseForSameId(Stage& stage, int program)
{
    const ChooserAnswer answer([program](ChooserWindow& chooser) {
        chooser.checkProgram(program);
        chooser.choose();
        chooser.confirm();
    });
    stage.use({&stage.rows().endTime(kSameIdRow)});
    click(*stage.rows().programs(kSameIdRow).findChild<QPushButton*>(QStringLiteral("pushButton")));
}

Input inEditor(QTimeEdit& (PlanTaskWidgetInspector::*editor)(int) const,
               const std::function<void(QTimeEdit&)>& act)
{
    return [editor, act](Stage& stage) {
        QTimeEdit& target = (stage.rows().*editor)(kPlainRow);
        stage.use({&target});
        act(target);
    };
}

Input inDay(const char* name, int key)
{
    return [name, key](Stage& stage) {
        auto& day = stage.named<QDateEdit>(stage.card(), name);
        stage.use({&day});
        stepSection(day, QDateTimeEdit::YearSection, key);
    };
}

} // namespace

void click(QAbstractButton& button)
{
    QTest::mouseClick(&button, Qt::LeftButton);
}

QTimeEdit& typeHalfAnHour(Stage& stage)
{
    QTimeEdit& end = stage.rows().endTime(kPlainRow);
    end.setFocus();
    end.setSelectedSection(QDateTimeEdit::HourSection);
    QTest::keyClick(&end, Qt::Key_0);
    stage.use({&end});
    return end;
}

Input clickInCard(const char* name)
{
    return [name](Stage& stage) { click(stage.named<QPushButton>(stage.card(), name)); };
}

Input clickInPanel(const char* name)
{
    return [name](Stage& stage) { click(stage.named<QPushButton>(stage.panel(), name)); };
}

const std::map<QString, Input>& promptInputs()
{
    using Rows = PlanTaskWidgetInspector;
    static const std::map<QString, Input> inputs = {
        {QStringLiteral("start by key"),
         inEditor(&Rows::startTime,
                  [](QTimeEdit& editor) {
                      stepSection(editor, QDateTimeEdit::HourSection, Qt::Key_Up);
                  })},
        {QStringLiteral("start by page key"),
         inEditor(&Rows::startTime,
                  [](QTimeEdit& editor) {
                      stepSection(editor, QDateTimeEdit::HourSection, Qt::Key_PageUp);
                  })},
        {QStringLiteral("start by typing"),
         inEditor(&Rows::startTime,
                  [](QTimeEdit& editor) {
                      editor.setSelectedSection(QDateTimeEdit::HourSection);
                      QTest::keyClicks(&editor, QStringLiteral("23"));
                  })},
        {QStringLiteral("start by wheel"),
         inEditor(&Rows::startTime, [](QTimeEdit& editor) { turnWheel(editor, 120); })},
        {QStringLiteral("start by button"), inEditor(&Rows::startTime, pressUpButton)},
        {QStringLiteral("start by the window"),
         [](Stage& stage) {
             QTimeEdit& editor = stage.rows().startTime(kPlainRow);
             editor.setFocus();
             editor.setSelectedSection(QDateTimeEdit::HourSection);
             // Handles the events that wait afterwards, so that the editor is gone on return.
             QTest::keyPress(editor.window()->windowHandle(), Qt::Key_Up);
         }},
        {QStringLiteral("end by key"), inEditor(&Rows::endTime,
                                                [](QTimeEdit& editor) {
                                                    stepSection(editor, QDateTimeEdit::HourSection,
                                                                Qt::Key_Down);
                                                })},
        {QStringLiteral("end by wheel"),
         inEditor(&Rows::endTime, [](QTimeEdit& editor) { turnWheel(editor, -120); })},
        {QStringLiteral("first day"), inDay("dateEditVaildStartTime", Qt::Key_Up)},
        {QStringLiteral("last day"), inDay("dateEditVaildEndTime", Qt::Key_Down)},
        {QStringLiteral("start of a doubled id"),
         [](Stage& stage) {
             QTimeEdit& start = stage.rows().startTime(kSameIdRow);
             stage.use({&start, &stage.rows().endTime(kSameIdRow)});
             stepSection(start, QDateTimeEdit::HourSection, Qt::Key_Down);
         }},
        {QStringLiteral("runs of a doubled id"),
         [](Stage& stage) {
             QSpinBox& times = stage.rows().times(kSameIdRow);
             stage.use({&times, &stage.rows().endTime(kSameIdRow)});
             step(times, Qt::Key_Up);
         }},
        {QStringLiteral("mode of a doubled id"),
         [](Stage& stage) {
             auto& mode = stage.rows().mode(kSameIdRow);
             stage.use({&mode, &stage.rows().endTime(kSameIdRow)});
             QTest::keyClick(&mode, Qt::Key_Up);
         }},
        {QStringLiteral("ends worked out for the service"),
         [](Stage& stage) {
             stage.use({&stage.rows().endTime(kSameIdRow)});
             emit RecordingService::manager().signalUpdatePlanEndTime();
         }},
        {QStringLiteral("end after choosing"), [](Stage& stage) { chooseForSameId(stage, kFilm); }},
        {QStringLiteral("mode locked after choosing"),
         [](Stage& stage) {
             stage.use({&stage.rows().mode(kSameIdRow)});
             chooseForSameId(stage, kPicture);
         }},
        {QStringLiteral("delete plan"),
         [](Stage& stage) { click(stage.rows().deleteButton(kPlainRow)); }},
        {QStringLiteral("delete task"), clickInCard("pushButtonDelete")},
        {QStringLiteral("save"), clickInPanel("pushButtonSave")},
        {QStringLiteral("start"), clickInPanel("pushButtonStart")},
        {QStringLiteral("fold while typing"),
         [](Stage& stage) {
             typeHalfAnHour(stage);
             auto& title = stage.named<QPushButton>(stage.card(), "title");
             stage.use({&title});
             click(title);
         }},
        {QStringLiteral("another card clicked while typing"),
         [](Stage& stage) {
             PlanTaskWidget& other = *cardsInOrder(stage.list()).at(1);
             other.setFolded(false);
             QCoreApplication::processEvents();
             typeHalfAnHour(stage);
             auto& day = stage.named<QDateEdit>(other, "dateEditVaildEndTime");
             QTest::mousePress(&day, Qt::LeftButton, Qt::NoModifier, day.rect().center());
         }},
        {kPressOnList,
         [](Stage& stage) {
             typeHalfAnHour(stage);
             PlanList& list = stage.list();
             const QPoint below(list.width() / 2,
                                cardsInOrder(list).last()->geometry().bottom() + 9);
             QTest::mousePress(&list, Qt::LeftButton, Qt::NoModifier, below);
         }},
        {QStringLiteral("save while typing"),
         [](Stage& stage) {
             typeHalfAnHour(stage);
             clickInPanel("pushButtonSave")(stage);
         }},
        {QStringLiteral("start while typing"),
         [](Stage& stage) {
             typeHalfAnHour(stage);
             clickInPanel("pushButtonStart")(stage);
         }},
        {QStringLiteral("close while typing"),
         [](Stage& stage) {
             typeHalfAnHour(stage);
             stage.dialog().close();
         }},
        {QStringLiteral("copy while typing"),
         [](Stage& stage) {
             typeHalfAnHour(stage);
             clickInCard("pbtCreatCopy")(stage);
         }},
        {QStringLiteral("add while typing"),
         [](Stage& stage) {
             typeHalfAnHour(stage);
             clickInPanel("pushButtonAddTask")(stage);
         }},
    };
    return inputs;
}
