#include "PromptInputs.h"

#include "kCustomLineEdit.h"
#include "support/ChooserAnswer.h"
#include "support/PlanRecords.h"
#include "support/PromptAnswer.h"
#include "support/RecordingService.h"
#include "support/TestProgram.h"

#include <QApplication>
#include <QPushButton>
#include <QTableView>
#include <QTimer>

#include <algorithm>
#include <map>

using namespace trel::mediadispatch;

namespace {

constexpr int kConfirm = 1;

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
