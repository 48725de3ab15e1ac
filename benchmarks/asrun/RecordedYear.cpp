#include "RecordedYear.h"

#include "trelprogramschedule/asrun/AsRunSchedule.h"
#include "trelprogramschedule/dispatch/ScreenTimeline.h"
#include "trelprogramschedule/faults/FaultWords.h"

#include <QTimeZone>

#include <stdexcept>
#include <vector>

using namespace trel::mediadispatch;

namespace bench {

namespace {

constexpr int kPrograms = 5;
constexpr double kLength = 15'770; ///< Two million of them last a year.
constexpr std::size_t kBatch = 10'000;
const QString kScreen = QStringLiteral("hall");

AsRunSchedule schedule()
{
    AsRunSchedule schedule;
    schedule.zone = "UTC";
    schedule.start = EffectStart{kYear, 1, QStringLiteral("bench")};
    PlayTask& task = schedule.tasks[1];
    task.id = 1;
    task.startDate = "2026.01.01";
    task.endDate = "2026.12.31";
    task.plans.resize(1);
    PlayPlan& plan = task.plans.front();
    plan.id = 1;
    plan.mode = TimeMode;
    plan.weeks = "1,2,3,4,5,6,7";
    plan.startTime = "00:00:00";
    plan.endTime = "23:59:59";
    for (int index = 1; index <= kPrograms; ++index) {
        struProgInfo& entry = plan.programs.emplace_back();
        entry.progIndex = index;
        entry.playCount = 1;
        ProgramIten& program = schedule.catalogue[index];
        program.progIndex = index;
        program.progName = "Program number " + std::to_string(index);
        program.durationMs = kLength;
        program.kind = ProgramKind::Video;
    }
    return schedule;
}

AsRunRecord recordOf(const ScreenState& state, const AsRunSchedule& schedule,
                     const QByteArray& hash)
{
    // Some milliseconds late, as players are.
    const auto late = [](Instant moment) { return moment + moment % 7; };
    AsRunRecord record;
    record.revision = 1;
    record.schedule = hash;
    record.picture = state.picture;
    record.taskId = state.taskId;
    record.planId = state.planId;
    record.planRow = state.planRow;
    record.entry = state.entry;
    record.play = state.play;
    record.run = state.run;
    record.progIndex = state.progIndex;
    record.program = state.picture == ScreenPicture::Black
                         ? QString()
                         : QString::fromStdString(schedule.catalogue.at(state.progIndex).progName);
    record.plannedBegin = state.since;
    record.plannedEnd = state.until;
    record.begins = late(std::max(state.since, kYear));
    record.ends = late(state.until);
    record.steadyBegin = record.begins - kYear + 12'345;
    record.steadyEnd = record.ends - kYear + 12'345;
    record.boot = QByteArray(16, 'b');
    record.late = record.begins - state.since;
    return record;
}

} // namespace

void expect(const StoreResult& result)
{
    if (!result) {
        throw std::runtime_error(englishText(result).toStdString());
    }
}

AsRunScreen onlyScreen(AsRunDatabase& database)
{
    std::vector<AsRunScreen> screens;
    expect(database.screens(screens));
    return screens.at(0);
}

RecordedYear::RecordedYear(Instant begin, int records)
    : m_records(records)
{
    const AsRunSchedule followed = schedule();
    const QByteArray contents = asRunContents(followed);
    const QByteArray hash = asRunScheduleHash(contents);
    AsRunDatabase database;
    expect(database.open(path(), StoreOpenMode::CreateIfMissing));
    std::vector<AsRunRecord> batch(1);
    batch[0].kind = AsRunKind::ScheduleTaken;
    batch[0].schedule = hash;
    batch[0].begins = batch[0].ends = begin;
    int handedIn = 0;
    const auto handIn = [&] {
        expect(database.append(kScreen, "bench", handedIn + 1, batch, {contents}));
        handedIn += static_cast<int>(batch.size());
        batch.clear();
    };
    const ScreenTimeline timeline(followed.tasks, followed.catalogue, QTimeZone("UTC"));
    timeline.visitPlays(begin, kNever, {}, [&](const ScreenState& state) {
        batch.push_back(recordOf(state, followed, hash));
        if (batch.size() == kBatch) {
            handIn();
        }
        return handedIn + static_cast<int>(batch.size()) < records;
    });
    handIn();
}

} // namespace bench
