#include "asrun/AsRunDay.h"

#include "trelprogramschedule/asrun/AsRunDatabase.h"
#include "trelprogramschedule/asrun/AsRunVerification.h"

#include <QDateTime>
#include <QFileInfo>

#include <algorithm>

using namespace trel::mediadispatch;

namespace trel::desktop {

namespace {

AsRunLine lineOf(const AsRunStretch& stretch)
{
    AsRunLine line;
    line.from = stretch.from;
    line.to = stretch.to;
    line.isPlanKnown = stretch.planned != nullptr;
    if (stretch.planned != nullptr) {
        line.planned = stretch.planned->picture;
        line.plannedProgram = stretch.plannedProgram;
        line.plannedIndex = stretch.planned->progIndex;
    }
    line.isRecorded = stretch.record != nullptr;
    if (stretch.record != nullptr) {
        line.record = *stretch.record;
    }
    return line;
}

/// Both stand in the order of their time.
void markUnexplained(std::vector<AsRunLine>& lines, const std::vector<AsRunDeviation>& deviations)
{
    auto deviation = deviations.begin();
    for (AsRunLine& line : lines) {
        while (deviation != deviations.end() && deviation->to <= line.from) {
            ++deviation;
        }
        line.isExplained = deviation == deviations.end() || line.to <= deviation->from;
    }
}

} // namespace

bool AsRunLine::isLate() const
{
    // What cannot be seen is in time.
    return record.late >= kShortestSeen;
}

bool AsRunLine::isAsPlanned() const
{
    return isRecorded && isExplained && record.kind == AsRunKind::Picture &&
           record.shown == AsRunShown::AsPlanned && !isLate() &&
           (record.outcome == AsRunOutcome::Complete || record.outcome == AsRunOutcome::GoesOn);
}

AsRunDay readAsRunDay(const AsRunQuestion& question, const follow::Cancellation& cancellation)
{
    AsRunDay day;
    day.date = question.date;
    day.zone = question.zone;
    const QString path = AsRunDatabase::pathFor(question.store);
    if (!QFileInfo::exists(path)) {
        return day;
    }
    AsRunDatabase database;
    day.result = database.open(path, StoreOpenMode::ReadOnly);
    std::vector<AsRunScreen> screens;
    if (day.result) {
        day.result = database.screens(screens);
    }
    if (!day.result || screens.empty()) {
        return day;
    }
    day.isRecorded = true;
    for (const AsRunScreen& one : screens) {
        day.screens.append(one.name);
    }
    const int at = std::max(0, day.screens.indexOf(question.screen));
    const AsRunScreen& chosen = screens[static_cast<std::size_t>(at)];
    day.screen = chosen.name;

    const Instant from = question.date.startOfDay(question.zone).toMSecsSinceEpoch();
    const Instant to = question.date.addDays(1).startOfDay(question.zone).toMSecsSinceEpoch();
    day.result = compareAsRun(database, chosen, from, to, AsRunComparison::Gaps::ByPlay,
                              [&day, &cancellation](const AsRunStretch& stretch) {
                                  day.isCut = day.lines.size() == kMostAsRunLines;
                                  if (!day.isCut) {
                                      day.lines.push_back(lineOf(stretch));
                                      day.until = stretch.to;
                                  }
                                  return !day.isCut && !cancellation.isCancelled();
                              });
    AsRunVerdict verdict;
    if (day.result && !cancellation.isCancelled()) {
        day.result = verifyAsRun(database, chosen, from, to, verdict);
        day.isWhole = verdict.breakCount == 0;
        day.unexplained = verdict.deviationCount;
        markUnexplained(day.lines, verdict.deviations);
    }
    return day;
}

} // namespace trel::desktop
