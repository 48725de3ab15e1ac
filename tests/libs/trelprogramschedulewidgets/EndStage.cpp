#include "EndStage.h"

#include "support/PlanRecords.h"
#include "support/RecordingService.h"
#include "trelwidgets/TipDialog.h"

#include <QTimer>

using namespace trel::mediadispatch;

namespace {

RecordingService& service()
{
    return RecordingService::instance();
}

} // namespace

void storeStageTasks()
{
    service().addProgram(1, "Film", 60000.0);
    service().addProgram(2, "Picture", 0.0, true);
    PlayPlan sameId = frequencyPlan(1, "10:00:00", 1, {entry(1)});
    sameId.endTime = "10:05:00";
    service().stored[1] = taskWithPlans(
        {timePlan(1, "12:00:00", "13:00:00"), sameId, timePlan(3, "08:00:00", "08:30:00")});
    service().stored[2] = taskWithPlans({}, 2);
    service().planInUse = timePlan(1, "12:00:00", "13:00:00");
}

Stage::Stage(const QString& victim)
    : m_victim(victim)
    , m_dialog(new scheduleControlUI)
{
    m_dialog->show();
    QVERIFY(QTest::qWaitForWindowActive(m_dialog));
    m_dialog->clearAndInitialize();
    m_clock.advance(2000);
    m_card = cardsInOrder(list()).first();
    m_card->setFolded(false);
    QCoreApplication::processEvents();
    m_rows = std::make_unique<PlanTaskWidgetInspector>(*m_card);
}

Stage::~Stage()
{
    delete m_dialog;
}

void Stage::destroy()
{
    if (m_victim == QLatin1String("card")) {
        delete m_card;
    } else if (m_victim == QLatin1String("task")) {
        list().slotDeleteTask(1);
    } else if (m_victim == QLatin1String("list")) {
        delete &list();
    } else if (m_victim == QLatin1String("panel")) {
        delete &panel();
    } else if (m_victim == QLatin1String("dialog")) {
        delete m_dialog;
    } else if (m_victim == QLatin1String("refresh")) {
        m_dialog->clearAndInitialize();
    }
}

bool EndOnPrompt::eventFilter(QObject* watched, QEvent* event)
{
    if (!m_isDone && event->type() == QEvent::Show &&
        qobject_cast<trel::widgets::TipDialog*>(watched)) {
        m_isDone = true;
        QTimer::singleShot(0, this, [this] { m_stage.destroy(); });
    }
    return false;
}
