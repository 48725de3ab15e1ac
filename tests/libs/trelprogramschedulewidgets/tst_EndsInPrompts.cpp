#include "EndStage.h"

#include "kCustomLineEdit.h"
#include "support/ChooserAnswer.h"
#include "support/PlanRecords.h"
#include "support/PromptAnswer.h"
#include "support/RecordingService.h"
#include "support/TestProgram.h"
#include "trelwidgets/ComboBox.h"

#include <QApplication>
#include <QDateEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QStyleOptionSpinBox>
#include <QTableView>
#include <QTimeEdit>
#include <QTimer>

#include <algorithm>
#include <functional>
#include <initializer_list>
#include <map>

using namespace trel::mediadispatch;

namespace {

constexpr int kConfirm = 1;

// The rows of the left table of the chooser.
constexpr int kFilm = 0;
constexpr int kPicture = 1;

const QString kPressOnList = QStringLiteral("list clicked while typing");

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

void click(QAbstractButton& button)
{
    QTest::mouseClick(&button, Qt::LeftButton);
}

/// Leaves an hour half typed, which becomes a time that is refused as soon as it is taken over.
QTimeEdit& typeHalfAnHour(Stage& stage)
{
    QTimeEdit& end = stage.rows().endTime(kPlainRow);
    end.setFocus();
    end.setSelectedSection(QDateTimeEdit::HourSection);
    QTest::keyClick(&end, Qt::Key_0);
    stage.use({&end});
    return end;
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

using Input = std::function<void(Stage&)>;

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

Input clickInCard(const char* name)
{
    return [name](Stage& stage) { click(stage.named<QPushButton>(stage.card(), name)); };
}

Input clickInPanel(const char* name)
{
    return [name](Stage& stage) { click(stage.named<QPushButton>(stage.panel(), name)); };
}

/// What brings a refusal or a question.
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

/// What opens a chooser.
const std::map<QString, Input>& chooserInputs()
{
    static const std::map<QString, Input> inputs = {
        {QStringLiteral("new plan"), clickInCard("pushButtonAdd")},
        {QStringLiteral("programs of a plan"),
         [](Stage& stage) {
             click(*stage.rows().programs(kPlainRow).findChild<QPushButton*>(
                 QStringLiteral("lineEdit")));
         }},
    };
    return inputs;
}

bool endsTheList(QLatin1String victim)
{
    return victim == QLatin1String("list") || victim == QLatin1String("panel") ||
           victim == QLatin1String("dialog");
}

void addRows(const std::map<QString, Input>& inputs)
{
    QTest::addColumn<QString>("input");
    QTest::addColumn<QString>("victim");
    for (const auto& input : inputs) {
        for (const char* victim : {"card", "task", "list", "panel", "dialog", "refresh"}) {
            // What was pressed has to outlive the press.
            if (input.first == kPressOnList && endsTheList(QLatin1String(victim))) {
                continue;
            }
            QTest::newRow(qPrintable(input.first + QStringLiteral(", ") + QLatin1String(victim)))
                << input.first << QString::fromLatin1(victim);
        }
    }
}

} // namespace

/// The end of the card, the list, the panel and the window while a prompt is on screen.
class tst_EndsInPrompts : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void endInAPrompt_data();
    void endInAPrompt();
    void endInAChooser_data();
    void endInAChooser();
    void endInAMenu_data();
    void endInAMenu();
};

void tst_EndsInPrompts::init()
{
    RecordingService::instance().reset();
    storeStageTasks();
}

void tst_EndsInPrompts::endInAPrompt_data()
{
    addRows(promptInputs());
}

void tst_EndsInPrompts::endInAPrompt()
{
    QFETCH(const QString, input);
    QFETCH(const QString, victim);
    Stage stage(victim);
    const PromptAnswer prompt(kConfirm);
    const EndOnPrompt end(stage);
    promptInputs().at(input)(stage);
    QCOMPARE(prompt.count(), 1);
    QVERIFY(stage.isCardGone());
    // The toolkit was at work with them when the card went; now it is no more.
    for (const QPointer<QWidget>& widget : stage.inUse()) {
        QVERIFY(!widget.isNull());
    }
    QTRY_VERIFY(std::all_of(stage.inUse().begin(), stage.inUse().end(),
                            [](const QPointer<QWidget>& widget) { return widget.isNull(); }));
}

void tst_EndsInPrompts::endInAChooser_data()
{
    addRows(chooserInputs());
}

void tst_EndsInPrompts::endInAChooser()
{
    QFETCH(const QString, input);
    QFETCH(const QString, victim);
    Stage stage(victim);
    const PromptAnswer noPrompt;
    const ChooserAnswer chooser([&](ChooserWindow&) { stage.destroy(); });
    chooserInputs().at(input)(stage);
    QCOMPARE(chooser.count(), 1);
    QVERIFY(stage.isCardGone());
}

void tst_EndsInPrompts::endInAMenu_data()
{
    addRows({{QStringLiteral("menu of a program"), Input()}});
}

void tst_EndsInPrompts::endInAMenu()
{
    QFETCH(const QString, victim);
    RecordingService::instance().stored[1].plans.at(kPlainRow).programs = {entry(1)};
    Stage stage(victim);
    bool isMenuOpen = false;
    const ChooserAnswer chooser([&](ChooserWindow& window) {
        QTimer::singleShot(0, [&] {
            isMenuOpen = QApplication::activePopupWidget() != nullptr;
            stage.destroy();
        });
        QTableView& table = *window.planTable();
        const QPoint place = table.visualRect(table.model()->index(0, 2)).center();
        QContextMenuEvent event(QContextMenuEvent::Mouse, place,
                                table.viewport()->mapToGlobal(place));
        QCoreApplication::sendEvent(table.viewport(), &event);
    });
    chooserInputs().at(QStringLiteral("programs of a plan"))(stage);
    QVERIFY(isMenuOpen);
    QVERIFY(stage.isCardGone());
    QVERIFY(!QApplication::activePopupWidget());
}

TREL_TEST(tst_EndsInPrompts, QApplication)

#include "tst_EndsInPrompts.moc"
