#include "common/ClockChangeText.h"

#include "service/TimeText.h"

using namespace trel::mediadispatch;

namespace trel::hosts {

QString ClockChangeText::timeOfDay(int second)
{
    constexpr int kSecondsPerDay = 86'400;
    return second == kSecondsPerDay
               ? QStringLiteral("24:00:00")
               : QString::fromStdString(timeToText(QTime::fromMSecsSinceStartOfDay(second * 1000)));
}

QString ClockChangeText::wordsFor(ClockChangeEffect effect)
{
    switch (effect) {
    case ClockChangeEffect::Lost:
        return tr("%1: %2–%3 is skipped; plan %4 of task %5 does not play.");
    case ClockChangeEffect::BeginsLate:
        return tr("%1: %2–%3 is skipped; plan %4 of task %5 starts at %6 in the middle of its "
                  "list.");
    case ClockChangeEffect::EndsEarly:
        return tr("%1: %2–%3 is skipped; plan %4 of task %5 is cut off at %6.");
    case ClockChangeEffect::Skips:
        return tr("%1: %2–%3 is skipped; plan %4 of task %5 skips this part of its list.");
    case ClockChangeEffect::PlaysTwice:
        return tr("%1: %2–%3 occurs twice; plan %4 of task %5 plays twice.");
    case ClockChangeEffect::BeginsTwice:
        return tr("%1: %2–%3 occurs twice; plan %4 of task %5 starts twice at %6.");
    case ClockChangeEffect::EndsTwice:
        return tr("%1: %2–%3 occurs twice; plan %4 of task %5 ends twice at %6.");
    case ClockChangeEffect::RepeatsAPart:
        break;
    }
    return tr("%1: %2–%3 occurs twice; plan %4 of task %5 repeats this part of its list.");
}

QString ClockChangeText::sentence(const ClockChange& change, int taskId, const TouchedPlan& plan,
                                  const QString& date)
{
    QString sentence = wordsFor(plan.effect)
                           .arg(date, timeOfDay(change.begin), timeOfDay(change.end))
                           .arg(plan.planId)
                           .arg(taskId);
    switch (plan.effect) {
    case ClockChangeEffect::BeginsLate:
        return sentence.arg(timeOfDay(change.end));
    case ClockChangeEffect::EndsEarly:
        return sentence.arg(timeOfDay(change.begin));
    case ClockChangeEffect::BeginsTwice:
        return sentence.arg(timeOfDay(plan.begin));
    case ClockChangeEffect::EndsTwice:
        return sentence.arg(timeOfDay(plan.end));
    case ClockChangeEffect::Lost:
    case ClockChangeEffect::Skips:
    case ClockChangeEffect::PlaysTwice:
    case ClockChangeEffect::RepeatsAPart:
        break;
    }
    return sentence;
}

} // namespace trel::hosts
