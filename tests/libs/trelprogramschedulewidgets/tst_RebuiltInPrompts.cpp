#include "PromptInputs.h"

#include "support/PlanRecords.h"
#include "support/PromptAnswer.h"
#include "support/RecordingService.h"
#include "support/TestProgram.h"
#include "trelwidgets/TipDialog.h"

#include <QApplication>
#include <QPushButton>
#include <QTimer>

#include <functional>
#include <map>
#include <memory>
#include <utility>

using namespace trel::mediadispatch;

namespace {

using Rebuilding = std::function<void(Stage&)>;

void storeAnotherSet()
{
    RecordingService& service = RecordingService::instance();
    service.stored.clear();
    service.stored[1] = taskWithPlans({timePlan(7, "01:00:00", "02:00:00")});
    service.stored[5] = taskWithPlans({}, 5);
    service.working = service.stored;
}

/// What a host, a service or another program may do to the editor at any time.
const std::map<QString, Rebuilding>& rebuildings()
{
    static const std::map<QString, Rebuilding> all = {
        {QStringLiteral("refreshed twice"),
         [](Stage& stage) {
             stage.dialog().clearAndInitialize();
             stage.dialog().clearAndInitialize();
         }},
        {QStringLiteral("another set"),
         [](Stage& stage) {
             storeAnotherSet();
             stage.dialog().clearAndInitialize();
         }},
        {QStringLiteral("another set, unfolded"),
         [](Stage& stage) {
             storeAnotherSet();
             stage.dialog().clearAndInitialize();
             const QList<PlanTaskWidget*> cards = cardsInOrder(stage.list());
             for (PlanTaskWidget* card : cards) {
                 card->setFolded(false);
             }
         }},
        {QStringLiteral("another set behind the cards"),
         [](Stage&) {
             storeAnotherSet();
             emit RecordingService::manager().signalReflushConflict(-1);
         }},
        {QStringLiteral("no task behind the cards"),
         [](Stage&) {
             RecordingService::instance().working.clear();
             emit RecordingService::manager().signalReflushConflict(-1);
         }},
        {QStringLiteral("cards built anew"),
         [](Stage& stage) {
             RecordingService::instance().working.at(1).plans.pop_back();
             for (const auto& task : std::map(RecordingService::instance().working)) {
                 stage.dialog().slotShowTask(task.first);
             }
         }},
        {QStringLiteral("tasks gone one by one"),
         [](Stage& stage) {
             const auto tasks = std::exchange(RecordingService::instance().working, {});
             for (const auto& task : tasks) {
                 stage.dialog().slotShowTask(task.first);
             }
         }},
        {QStringLiteral("other lengths"),
         [](Stage&) {
             RecordingService::instance().programs.at(1).durationMs = 120000.0;
             emit RecordingService::manager().signalUpdatePlanEndTime();
         }},
        {QStringLiteral("another language"),
         [](Stage& stage) {
             stage.dialog().switchLanguage(QStringLiteral("zh_CN"));
             stage.dialog().translate();
         }},
        {QStringLiteral("shown once more"),
         [](Stage& stage) {
             stage.dialog().hide();
             stage.dialog().slotShow();
         }},
        {QStringLiteral("saved"), [](Stage& stage) { stage.dialog().slotSave(); }},
        {QStringLiteral("started"), [](Stage& stage) { stage.dialog().slotStart(); }},
        {QStringLiteral("refreshed and deleted"),
         [](Stage& stage) {
             stage.dialog().clearAndInitialize();
             delete &stage.dialog();
         }},
    };
    return all;
}

/// What the cards show of their tasks is what the service holds: dates, times, modes and the rest.
void compareWithService(const Stage& stage)
{
    const auto working = RecordingService::instance().working;
    const QList<PlanTaskWidget*> cards = cardsInOrder(stage.list());
    QCOMPARE(cards.size(), int(working.size()));
    auto task = working.begin();
    for (PlanTaskWidget* const card : cards) {
        const PlanTaskWidgetInspector rows(*card);
        QCOMPARE(line(rows.task()), line(task->second));
        QCOMPARE(rows.rowCount(), int(task->second.plans.size()));
        ++task;
    }
}

} // namespace

/// The editor is rebuilt while a prompt stands, in each way that a host has, and the prompt is
/// answered afterwards.
class tst_RebuiltInPrompts : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void rebuiltInAPrompt_data();
    void rebuiltInAPrompt();
};

void tst_RebuiltInPrompts::init()
{
    RecordingService::instance().reset();
    storeStageTasks();
}

void tst_RebuiltInPrompts::rebuiltInAPrompt_data()
{
    QTest::addColumn<QString>("input");
    QTest::addColumn<QString>("rebuilding");
    for (const auto& input : promptInputs()) {
        for (const auto& rebuilding : rebuildings()) {
            const bool isDeleted = rebuilding.first.endsWith(QStringLiteral("deleted"));
            // What was pressed has to outlive the press.
            if (!isDeleted || input.first != kPressOnList) {
                QTest::newRow(qPrintable(input.first + QStringLiteral(", ") + rebuilding.first))
                    << input.first << rebuilding.first;
            }
        }
    }
}

void tst_RebuiltInPrompts::rebuiltInAPrompt()
{
    QFETCH(const QString, input);
    QFETCH(const QString, rebuilding);
    Stage stage(QStringLiteral("refresh"));
    const QPointer<scheduleControlUI> dialog(&stage.dialog());
    int prompts = 0;
    bool isAnswered = false;
    // More than one prompt may come, also one inside the other: the operator confirms all.
    auto operatorAtWork = std::make_unique<QObject>();
    std::function<void()> answer = [&] {
        QTimer::singleShot(0, operatorAtWork.get(), answer);
        auto* const prompt =
            qobject_cast<trel::widgets::TipDialog*>(QApplication::activeModalWidget());
        if (!prompt) {
            return;
        }
        ++prompts;
        if (!std::exchange(isAnswered, true)) {
            rebuildings().at(rebuilding)(stage);
        }
        QTest::mouseClick(prompt->findChild<QPushButton*>(QStringLiteral("tipButton1")),
                          Qt::LeftButton);
    };
    QTimer::singleShot(0, operatorAtWork.get(), answer);
    promptInputs().at(input)(stage);
    operatorAtWork.reset();
    QVERIFY(prompts > 0);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    const bool areCardsLeft = rebuilding.endsWith(QStringLiteral("behind the cards"));
    if (dialog && dialog->isVisible() && !areCardsLeft) {
        compareWithService(stage);
    }
}

TREL_TEST(tst_RebuiltInPrompts, QApplication)

#include "tst_RebuiltInPrompts.moc"
