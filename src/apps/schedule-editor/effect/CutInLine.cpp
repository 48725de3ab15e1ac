#include "effect/CutInLine.h"

#include "DateWords.h"
#include "clock/Clock.h"
#include "effect/CutIn.h"
#include "effect/EffectWords.h"
#include "screen/ScreenFollower.h"
#include "service/scheduleManage.h"
#include "trelprogramschedule/ScheduleHost.h"
#include "trelprogramschedule/dispatch/ScreenDispatch.h"
#include "trelprogramschedule/dispatch/ScreenTimeline.h"

#include <QEvent>
#include <QLocale>

using namespace trel::mediadispatch;

namespace trel::desktop {

namespace {

constexpr int kLines = 2;
/// With two long names of programs.
constexpr int kMostLines = 4;

QString programName(int progIndex)
{
    return QString::fromStdString(
        scheduleManage::getInstance().getProgramItemByIndex(progIndex).progName);
}

} // namespace

CutInLine::CutInLine(const ScreenFollower& follower, QWidget* parent)
    : ElidedText(parent, kLines)
    , m_follower(follower)
{
    setMostLines(kMostLines);
    connect(&follower, &ScreenFollower::changed, this, &CutInLine::showCutIn);
    connect(&ScheduleHost::instance(), &ScheduleHost::effectChanged, this, &CutInLine::showCutIn);
    showCutIn();
}

void CutInLine::showCutIn()
{
    const ScreenDispatch& dispatch = ScheduleHost::instance().dispatch();
    const std::optional<CutIn> cutIn =
        cutInAt(Clock::current().msecsSinceEpoch(), dispatch.timeline(), dispatch.insertions());
    setText(cutIn ? EffectWords::cutIn(*cutIn, programName,
                                       [this](qint64 moment) { return momentText(moment); })
                  : QString());
    setVisible(cutIn.has_value());
}

QString CutInLine::momentText(qint64 moment) const
{
    const QDate date = m_follower.local(moment).date();
    const QString time = m_follower.timeText(moment);
    return date == m_follower.local(Clock::current().msecsSinceEpoch()).date()
               ? time
               : EffectWords::timeOn(time, dateText(date));
}

void CutInLine::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange || event->type() == QEvent::LocaleChange) {
        showCutIn();
    }
    ElidedText::changeEvent(event);
}

} // namespace trel::desktop
