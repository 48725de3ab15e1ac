#include "TimelineReport.h"

#include "common/DisplayText.h"
#include "schedule/ScheduleWords.h"
#include "text/Console.h"

#include <QJsonDocument>

using namespace trel::hosts;
using namespace trel::mediadispatch;

namespace trel::console {

namespace {

/// Widths of the columns. Texts that are longer push the rest of their line to the right, for the
/// list is written as it comes.
constexpr int kMomentWidth = 19;
constexpr int kExactMomentWidth = 23; ///< With milliseconds.
constexpr int kNumberWidth = 5;

QString numberText(qint64 number)
{
    return number < 0 ? QStringLiteral("\u2013") : QString::number(number);
}

QString countText(qint64 number)
{
    return numberText(number < 0 ? number : number + 1);
}

} // namespace

TimelineReport::TimelineReport(Console& console, const ScreenReport& words, Lines lines)
    : m_console(console)
    , m_words(words)
    , m_lines(lines)
{}

void TimelineReport::writeTitles()
{
    const int width = m_lines == Lines::Plays ? kExactMomentWidth : kMomentWidth;
    QString line = QStringLiteral("From").leftJustified(width) + QStringLiteral("  ") +
                   QStringLiteral("To").leftJustified(width) +
                   QStringLiteral("   Task    Row   Plan");
    if (m_lines == Lines::Plays) {
        line += QStringLiteral("  Entry   Play    Run");
    }
    m_console.writeLine(line + QStringLiteral("  Screen"));
}

void TimelineReport::write(const ScreenState& state, const std::optional<ScreenState>& after)
{
    const MomentFormat& local = m_words.source().local;
    const int width = m_lines == Lines::Plays ? kExactMomentWidth : kMomentWidth;
    const auto number = [](const QString& text) {
        return QStringLiteral("  ") + text.rightJustified(kNumberWidth);
    };
    const bool hasPlan = state.taskId >= 0;
    QString line = local.text(state.since).leftJustified(width) + QStringLiteral("  ") +
                   local.text(state.until, state.since).leftJustified(width) +
                   number(numberText(state.taskId)) + number(countText(state.planRow)) +
                   number(hasPlan ? QString::number(state.planId) : numberText(-1));
    if (m_lines == Lines::Plays) {
        const bool plays = state.isPlaying();
        line += number(countText(plays ? state.entry : -1)) +
                number(countText(plays ? state.play : -1)) +
                number(countText(plays ? state.run : -1));
    }
    m_console.writeLine(line + QStringLiteral("  ") + contentText(state, after));
}

QString TimelineReport::contentText(const ScreenState& state,
                                    const std::optional<ScreenState>& after)
{
    if (m_lines == Lines::Spans && state.isPlaying()) {
        const QString text = QStringLiteral("plays ") + listText(state);
        return after ? QStringLiteral("%1 until %2, then %3")
                           .arg(text, m_words.untilText(after->since, state.since),
                                m_words.pictureText(*after))
                     : text;
    }
    QString text = m_words.pictureText(state);
    if (state.reason == ScreenReason::PlanHasNothing) {
        text += QStringLiteral(", since ") + m_words.nothingText(state);
    } else if (state.reason == ScreenReason::PlanRanOut) {
        text += QStringLiteral(", since its list has run the set number of times");
    }
    return text;
}

QString TimelineReport::listText(const ScreenState& state)
{
    const auto [place, isNew] = m_lists.try_emplace({state.taskId, state.planRow});
    const PlayPlan* const plan = m_words.plan(state);
    if (isNew && plan != nullptr) {
        place->second = entriesText(plan->programs, m_words.source().programs);
    }
    return place->second;
}

TimelineJson::TimelineJson(Console& console, const ScreenReport& words, TimelineReport::Lines lines)
    : m_console(console)
    , m_words(words)
    , m_lines(lines)
{}

void TimelineJson::begin(const QJsonObject& head, const QString& listName)
{
    QByteArray text = QJsonDocument(head).toJson(QJsonDocument::Indented);
    text.truncate(text.lastIndexOf("\n}"));
    m_console.writeJson(text + ",\n    \"" + listName.toUtf8() + "\": [");
}

void TimelineJson::write(const ScreenState& state, const std::optional<ScreenState>& after)
{
    QJsonObject object = m_words.json(state);
    if (m_lines == TimelineReport::Lines::Spans) {
        object.insert(QStringLiteral("listUntil"),
                      m_words.jsonMoment(after ? after->since : kNever));
    }
    m_console.writeJson((m_isFirst ? QByteArray("\n        ") : QByteArray(",\n        ")) +
                        QJsonDocument(object).toJson(QJsonDocument::Compact));
    m_isFirst = false;
}

void TimelineJson::end()
{
    m_console.writeJson(m_isFirst ? QByteArray("]\n}\n") : QByteArray("\n    ]\n}\n"));
}

} // namespace trel::console
