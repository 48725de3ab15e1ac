#include "NowReport.h"

#include "common/DisplayText.h"
#include "effect/EffectReport.h"

using namespace trel::hosts;
using namespace trel::mediadispatch;

namespace trel::console {

namespace {

/// Lines with a name in front, the values below each other.
class NamedLines
{
public:
    void add(const QString& name, const QString& value)
    {
        constexpr int column = 14;
        m_text += name.leftJustified(column) + value + QLatin1Char('\n');
    }

    const QString& text() const { return m_text; }

private:
    QString m_text;
};

const ProgramIten* shownProgram(const ScreenState& state, const ScreenReport& words)
{
    const auto found = words.source().programs.find(state.progIndex);
    return found == words.source().programs.end() ? nullptr : &found->second;
}

QString positionText(const ScreenState& state, const ScreenReport& words)
{
    const QString position = durationText(static_cast<double>(state.position));
    const ProgramIten* const program = shownProgram(state, words);
    return program != nullptr && hasOwnLength(*program)
               ? QStringLiteral("%1 of %2").arg(position, durationText(program->durationMs))
               : position;
}

/// "2 of 5", or the number alone where there is no knowing of how many.
QString countText(qint64 number, qint64 total)
{
    return total > number ? QStringLiteral("%1 of %2").arg(number + 1).arg(total)
                          : QString::number(number + 1);
}

QString entryText(const ScreenState& state, const ScreenReport& words)
{
    const PlayPlan* const plan = state.isInserted() ? nullptr : words.plan(state);
    const auto row = static_cast<std::size_t>(state.entry);
    const bool isKnown = plan != nullptr && row < plan->programs.size();
    return QStringLiteral("%1, play %2, run %3")
        .arg(countText(state.entry, isKnown ? static_cast<qint64>(plan->programs.size()) : 0),
             countText(state.play, isKnown ? plan->programs[row].playCount : 0),
             countText(state.run, isKnown && plan->mode != TimeMode ? plan->times : 0));
}

QString nextProgramText(const Upcoming& next, Instant moment, const ScreenReport& words)
{
    return next.program ? QStringLiteral("%1, %2").arg(
                              words.source().local.text(next.program->since, moment),
                              words.programName(next.program->progIndex))
                        : QStringLiteral("none");
}

QString nextPlanText(const Upcoming& next, Instant moment, const ScreenReport& words)
{
    return next.plan ? QStringLiteral("%1, %2").arg(
                           words.source().local.text(next.plan->since, moment),
                           ScreenReport::planText(next.plan->taskId, next.plan->planRow,
                                                  next.plan->planId))
                     : QStringLiteral("none");
}

QJsonValue optionalJson(const std::optional<ScreenState>& state, const ScreenReport& words)
{
    return state ? QJsonValue(words.json(*state)) : QJsonValue(QJsonValue::Null);
}

} // namespace

QString nowText(Instant moment, const ScreenState& state, const Upcoming& next,
                const std::optional<EffectStart>& started, const ScreenReport& words)
{
    const MomentFormat& local = words.source().local;
    NamedLines lines;
    lines.add(QStringLiteral("Moment"), local.text(moment));
    lines.add(QStringLiteral("In effect"), started
                                               ? sinceText(*started, local)
                                               : QStringLiteral("nothing; this is what is saved"));
    lines.add(QStringLiteral("Screen"), words.pictureText(state));
    if (state.isPlaying()) {
        lines.add(QStringLiteral("Position"), positionText(state, words));
        lines.add(QStringLiteral("Entry"), entryText(state, words));
    }
    if (state.taskId >= 0) {
        lines.add(QStringLiteral("Plan"),
                  ScreenReport::planText(state.taskId, state.planRow, state.planId));
    }
    if (isDated(state.since)) {
        lines.add(QStringLiteral("Since"), local.text(state.since, moment));
    }
    lines.add(QStringLiteral("Until"), words.untilText(state.until, moment));
    if (state.spanUntil != state.until) {
        lines.add(QStringLiteral("Plan until"), words.untilText(state.spanUntil, moment));
    }
    lines.add(QStringLiteral("Why"), words.reasonText(state));
    lines.add(QStringLiteral("Next program"), nextProgramText(next, moment, words));
    lines.add(QStringLiteral("Next plan"), nextPlanText(next, moment, words));
    return lines.text();
}

QJsonObject nowJson(Instant moment, const ScreenState& state, const Upcoming& next,
                    const ScreenReport& words)
{
    QJsonObject now = words.json(state);
    now.insert(QStringLiteral("why"), words.reasonText(state));
    return {
        {QStringLiteral("moment"), words.jsonMoment(moment)},
        {QStringLiteral("now"), now},
        {QStringLiteral("nextProgram"), optionalJson(next.program, words)},
        {QStringLiteral("nextPlan"), optionalJson(next.plan, words)},
    };
}

} // namespace trel::console
