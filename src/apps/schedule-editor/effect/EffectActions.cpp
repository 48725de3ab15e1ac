#include "effect/EffectActions.h"

#include "EditorMenus.h"
#include "HostPrompts.h"
#include "PendingNotices.h"
#include "clock/Clock.h"
#include "effect/EffectWords.h"
#include "trelprogramschedule/ScheduleHost.h"
#include "trelprogramschedule/dispatch/ScreenDispatch.h"
#include "trelprogramschedule/dispatch/SkippedPlay.h"

#include <QAction>

#include <algorithm>

using namespace trel::mediadispatch;

namespace trel::desktop {

EffectActions::EffectActions(const EditorMenus& menus, PendingNotices& notices, QObject* parent)
    : QObject(parent)
    , m_menus(menus)
    , m_notices(notices)
{
    ScheduleHost& host = ScheduleHost::instance();
    connect(menus.skipPlay(), &QAction::triggered, this, [this, &host] { tell(host.skipPlay()); });
    connect(menus.cancelInsertion(), &QAction::triggered, this,
            [this, &host] { tell(host.cancelInsertion()); });
    connect(menus.stopSchedule(), &QAction::triggered, this, &EffectActions::stop);
    connect(&host, &ScheduleHost::effectChanged, this, &EffectActions::update);
    connect(&host.dispatch(), &ScreenDispatch::changed, this, &EffectActions::update);
    // The service is in the middle of its work: a prompt would have it go on within.
    connect(&host, &ScheduleHost::effectRefused, this, &EffectActions::tell, Qt::QueuedConnection);
    update();
}

void EffectActions::update()
{
    const ScheduleHost& host = ScheduleHost::instance();
    const ScreenDispatch& dispatch = ScheduleHost::instance().dispatch();
    const ScreenInsertions& insertions = dispatch.insertions();
    const Instant now = Clock::current().msecsSinceEpoch();
    const auto isThere = [now](const ScreenInsertion& one) {
        return one.isWaitingAt(now) || one.hasScreenAt(now);
    };
    m_menus.skipPlay()->setEnabled(isSkippable(dispatch.state()));
    m_menus.cancelInsertion()->setEnabled(
        std::any_of(insertions.begin(), insertions.end(), isThere));
    m_menus.stopSchedule()->setEnabled(host.started().has_value());
}

void EffectActions::stop()
{
    const bool isMeant =
        prompts::confirmLoss(tr("Stop the schedule that is in effect? The screen stays "
                                "black until a schedule is started again."),
                             tr("Stop"), tr("Cancel"));
    if (isMeant) {
        tell(ScheduleHost::instance().stopSchedule());
    }
}

void EffectActions::tell(const StoreResult& result)
{
    if (!result) {
        m_notices.tell(EffectWords::refused(result));
    }
}

} // namespace trel::desktop
