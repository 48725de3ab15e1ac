#include "screen/ScreenWords.h"

#include "common/ListText.h"
#include "screen/ScreenFollower.h"
#include "service/PlanFaults.h"

#include <QStringList>

using namespace trel::mediadispatch;

namespace trel::desktop {

namespace {

constexpr qint64 kSecond = 1000;

QString clockText(qint64 seconds)
{
    const auto twoDigits = [](qint64 number) {
        return QStringLiteral("%1").arg(number, 2, 10, QLatin1Char('0'));
    };
    const qint64 hours = seconds / 3600;
    const qint64 minutes = seconds / 60 % 60;
    const QString rest = twoDigits(seconds % 60);
    return hours == 0 ? QStringLiteral("%1:%2").arg(minutes).arg(rest)
                      : QStringLiteral("%1:%2:%3").arg(hours).arg(twoDigits(minutes), rest);
}

} // namespace

QString ScreenWords::picture(ScreenPicture picture)
{
    switch (picture) {
    case ScreenPicture::Playing:
        return tr("Playing");
    case ScreenPicture::Frozen:
        return tr("Frozen");
    case ScreenPicture::Black:
        break;
    }
    return tr("Black");
}

QString ScreenWords::program(const ScreenScene& scene)
{
    return program(scene.state.picture, QString::fromStdString(scene.program.progName));
}

QString ScreenWords::program(ScreenPicture picture, const QString& name)
{
    switch (picture) {
    case ScreenPicture::Playing:
        return name;
    case ScreenPicture::Frozen:
        return tr("Last frame of %1").arg(name);
    case ScreenPicture::Black:
        break;
    }
    return tr("Black screen");
}

QString ScreenWords::shown(const ScreenScene& scene)
{
    const bool isBlack = scene.state.picture == ScreenPicture::Black;
    return picture(scene.state.picture) + QStringLiteral(": ") +
           (isBlack ? reason(scene.state, &scene.plan) : program(scene));
}

QString ScreenWords::entry(const ScreenScene& scene)
{
    const int entry = scene.state.entry;
    const std::vector<struProgInfo>& list = scene.plan.programs;
    if (entry < 0 || entry >= static_cast<int>(list.size()) || !scene.state.isPlaying()) {
        return {};
    }
    return tr("Entry %1 of %2, play %3 of %4")
        .arg(entry + 1)
        .arg(list.size())
        .arg(scene.state.play + 1)
        .arg(list[static_cast<std::size_t>(entry)].playCount);
}

QString ScreenWords::plan(const ScreenScene& scene)
{
    const ScreenState& state = scene.state;
    return state.planRow < 0 ? QString()
                             : tr("Task %1, plan %2").arg(state.taskId).arg(state.planId);
}

QString ScreenWords::reason(const ScreenState& state, const PlayPlan* plan)
{
    const auto ofPlan = [&state](const QString& sentence) {
        return sentence.arg(state.planId).arg(state.taskId);
    };
    switch (state.reason) {
    case ScreenReason::NothingInEffect:
        return tr("Choose Start to put the saved schedule into effect.");
    case ScreenReason::NoPlanYet:
        return tr("No plan has started yet.");
    case ScreenReason::PlanPlays:
        return ofPlan(tr("Plan %1 of task %2 is the first of the plans for this time."));
    case ScreenReason::PlanHasNothing:
        if (plan != nullptr && runsLessThanOnce(*plan)) {
            return ofPlan(tr("Plan %1 of task %2 is due, but its list is to run less than once."));
        }
        return ofPlan(tr("Plan %1 of task %2 is due, but none of its programs can play."));
    case ScreenReason::PlanRanOut:
        return ofPlan(tr("Plan %1 of task %2 has played its list the set number of times."));
    case ScreenReason::PlanEnded:
        return ofPlan(tr("Plan %1 of task %2 is over, and no other has begun."));
    case ScreenReason::InsertionPlays:
        return ofPlan(tr("Cut in manually in place of plan %1 of task %2."));
    case ScreenReason::InsertionHasNothing:
    case ScreenReason::InsertionRanOut:
        break;
    }
    return ofPlan(tr("What was cut in for plan %1 of task %2 has nothing left to play."));
}

QString ScreenWords::list(const std::vector<struProgInfo>& programs)
{
    QStringList names;
    for (const struProgInfo& entry : programs) {
        const QString name = QString::fromStdString(entry.progName);
        names.append(entry.playCount == 1
                         ? name
                         : QStringLiteral("%1 ×%2").arg(name, QString::number(entry.playCount)));
    }
    return hosts::ListText::joined(names);
}

QString ScreenWords::insertion(const std::vector<struProgInfo>& inserted,
                               const std::vector<struProgInfo>& original)
{
    const QString cutIn = tr("Cut in: %1").arg(list(inserted));
    return original.empty()
               ? cutIn
               : cutIn + QLatin1Char('\n') + tr("Original list: %1").arg(list(original));
}

QString ScreenWords::gone(qint64 msecs)
{
    return clockText(msecs / kSecond);
}

QString ScreenWords::toCome(qint64 msecs)
{
    return clockText((msecs + kSecond - 1) / kSecond);
}

} // namespace trel::desktop
