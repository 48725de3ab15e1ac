#include "trelprogramschedule/dispatch/ProgramFacts.h"

#include "service/ScheduleRecords.h"

namespace trel::mediadispatch {

ProgramFacts::ProgramFacts(const std::map<int, PlayTask>& tasks, const ScreenInsertions& insertions,
                           const std::map<int, ProgramIten>& programs)
{
    const auto use = [&](const PlayPlan& plan) {
        for (const struProgInfo& entry : plan.programs) {
            const auto [fact, isNew] = m_facts.try_emplace(entry.progIndex);
            if (!isNew) {
                continue;
            }
            if (const auto found = programs.find(entry.progIndex); found != programs.end()) {
                const ProgramIten& program = found->second;
                fact->second.emplace(program.isNull, hasOwnLength(program), program.durationMs);
            }
        }
    };
    for (const auto& [id, task] : tasks) {
        for (const PlayPlan& plan : task.plans) {
            use(plan);
        }
    }
    for (const ScreenInsertion& insertion : insertions) {
        use(insertion.plan);
    }
}

} // namespace trel::mediadispatch
