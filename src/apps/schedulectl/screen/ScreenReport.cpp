#include "ScreenReport.h"

#include "common/DisplayText.h"
#include "service/PlanFaults.h"

using namespace trel::hosts;
using namespace trel::mediadispatch;

namespace trel::console {

namespace {

QString screenName(ScreenPicture picture)
{
    switch (picture) {
    case ScreenPicture::Black:
        return QStringLiteral("black");
    case ScreenPicture::Playing:
        return QStringLiteral("playing");
    case ScreenPicture::Frozen:
        break;
    }
    return QStringLiteral("frozen");
}

QString reasonName(ScreenReason reason)
{
    switch (reason) {
    case ScreenReason::NothingInEffect:
        return QStringLiteral("nothingInEffect");
    case ScreenReason::NoPlanYet:
        return QStringLiteral("noPlanYet");
    case ScreenReason::PlanPlays:
        return QStringLiteral("planPlays");
    case ScreenReason::PlanHasNothing:
        return QStringLiteral("planHasNothing");
    case ScreenReason::PlanRanOut:
        return QStringLiteral("planRanOut");
    case ScreenReason::PlanEnded:
        return QStringLiteral("planEnded");
    case ScreenReason::InsertionPlays:
        return QStringLiteral("insertionPlays");
    case ScreenReason::InsertionHasNothing:
        return QStringLiteral("insertionHasNothing");
    case ScreenReason::InsertionRanOut:
        break;
    }
    return QStringLiteral("insertionRanOut");
}

QJsonValue jsonNumber(int number)
{
    return number < 0 ? QJsonValue(QJsonValue::Null) : QJsonValue(number);
}

} // namespace

ScreenReport::ScreenReport(const ScreenSource& source)
    : m_source(source)
{}

QString ScreenReport::pictureText(const ScreenState& state) const
{
    switch (state.picture) {
    case ScreenPicture::Black:
        return QStringLiteral("black screen");
    case ScreenPicture::Playing:
        return QStringLiteral("plays %1").arg(programName(state.progIndex));
    case ScreenPicture::Frozen:
        break;
    }
    return QStringLiteral("last frame of %1").arg(programName(state.progIndex));
}

QString ScreenReport::reasonText(const ScreenState& state) const
{
    const QString row = planText(state.taskId, state.planRow, state.planId);
    switch (state.reason) {
    case ScreenReason::NothingInEffect:
        return QStringLiteral("No schedule is in effect.");
    case ScreenReason::NoPlanYet:
        return QStringLiteral("No plan has started yet.");
    case ScreenReason::PlanPlays:
        return QStringLiteral("The first plan that claims this time is %1.").arg(row);
    case ScreenReason::PlanHasNothing:
        return QStringLiteral("The first plan that claims this time is %1, but %2.")
            .arg(row, nothingText(state));
    case ScreenReason::PlanRanOut:
        return QStringLiteral("The first plan that claims this time is %1; its list has run the "
                              "set number of times, and left %2.")
            .arg(row, leftText(state));
    case ScreenReason::PlanEnded:
        return QStringLiteral("No plan claims this time; the last one, %1, left %2.")
            .arg(row, leftText(state));
    case ScreenReason::InsertionPlays:
        return QStringLiteral("An insertion for %1 is on screen.").arg(row);
    case ScreenReason::InsertionHasNothing:
        return QStringLiteral("An insertion for %1 is due, but none of its entries can play.")
            .arg(row);
    case ScreenReason::InsertionRanOut:
        break;
    }
    return QStringLiteral("An insertion for %1 is due; its list has run the set number of "
                          "times, and left %2.")
        .arg(row, leftText(state));
}

QString ScreenReport::planText(int taskId, int row, int planId)
{
    return QStringLiteral("task %1, row %2, plan %3").arg(taskId).arg(row + 1).arg(planId);
}

QString ScreenReport::programName(int progIndex) const
{
    const ProgramIten* const found = program(progIndex);
    return found == nullptr ? QStringLiteral("program %1").arg(progIndex)
                            : printable(found->progName);
}

QString ScreenReport::untilText(Instant until, Instant besides) const
{
    return isDated(until) ? m_source.local.text(until, besides) : QStringLiteral("further notice");
}

QJsonObject ScreenReport::json(const ScreenState& state) const
{
    const ProgramIten* const shown = program(state.progIndex);
    const bool hasLength = shown != nullptr && hasOwnLength(*shown);
    const bool isShown = state.picture != ScreenPicture::Black;
    const QJsonValue null(QJsonValue::Null);
    return {
        {QStringLiteral("screen"), screenName(state.picture)},
        {QStringLiteral("reason"), reasonName(state.reason)},
        {QStringLiteral("task"), jsonNumber(state.taskId)},
        {QStringLiteral("row"), jsonCount(state.planRow)},
        {QStringLiteral("plan"), state.taskId < 0 ? null : QJsonValue(state.planId)},
        {QStringLiteral("entry"), jsonCount(state.entry)},
        {QStringLiteral("program"), jsonNumber(state.progIndex)},
        {QStringLiteral("name"),
         shown == nullptr ? null : QJsonValue(QString::fromStdString(shown->progName))},
        {QStringLiteral("play"), jsonCount(state.play)},
        {QStringLiteral("run"), jsonCount(state.run)},
        {QStringLiteral("positionMs"), isShown ? QJsonValue(state.position) : null},
        {QStringLiteral("lengthMs"), hasLength ? QJsonValue(shown->durationMs) : null},
        {QStringLiteral("since"), jsonMoment(state.since)},
        {QStringLiteral("until"), jsonMoment(state.until)},
        {QStringLiteral("planUntil"), jsonMoment(state.spanUntil)},
    };
}

QJsonValue ScreenReport::jsonMoment(Instant moment) const
{
    return isDated(moment) ? QJsonValue(m_source.local.isoText(moment))
                           : QJsonValue(QJsonValue::Null);
}

const PlayPlan* ScreenReport::plan(const ScreenState& state) const
{
    const auto task = m_source.tasks.find(state.taskId);
    const bool isThere = task != m_source.tasks.end() && state.planRow >= 0 &&
                         static_cast<std::size_t>(state.planRow) < task->second.plans.size();
    return isThere ? &task->second.plans[static_cast<std::size_t>(state.planRow)] : nullptr;
}

const ProgramIten* ScreenReport::program(int progIndex) const
{
    const auto found = m_source.programs.find(progIndex);
    return found == m_source.programs.end() ? nullptr : &found->second;
}

QString ScreenReport::nothingText(const ScreenState& state) const
{
    const PlayPlan* const shown = plan(state);
    return shown != nullptr && runsLessThanOnce(*shown)
               ? QStringLiteral("its list is to run less than once")
               : QStringLiteral("none of its entries can play");
}

QString ScreenReport::leftText(const ScreenState& state) const
{
    return state.picture == ScreenPicture::Frozen
               ? QStringLiteral("the last frame of %1").arg(programName(state.progIndex))
               : QStringLiteral("a black screen");
}

QJsonValue jsonCount(qint64 number)
{
    return number < 0 ? QJsonValue(QJsonValue::Null) : QJsonValue(number + 1);
}

} // namespace trel::console
