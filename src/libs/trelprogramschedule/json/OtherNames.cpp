#include "OtherNames.h"

#include <utility>

namespace trel::mediadispatch {

namespace {

using Programs = std::map<int, ProgramIten>;

/// The program of the catalogue that an entry calls by another name; null where there is none.
const ProgramIten* programOfOtherName(const struProgInfo& entry, const Programs& programs)
{
    const auto program = programs.find(entry.progIndex);
    const bool isOther = !entry.isInvalid && !entry.progName.empty() && program != programs.end() &&
                         program->second.progName != entry.progName;
    return isOther ? &program->second : nullptr;
}

void addOtherNames(const PlayPlan& plan, const Programs& programs, std::map<int, OtherName>& found)
{
    for (const struProgInfo& entry : plan.programs) {
        if (const ProgramIten* const program = programOfOtherName(entry, programs)) {
            found.try_emplace(entry.progIndex,
                              OtherName{entry.progIndex, QString::fromStdString(entry.progName),
                                        QString::fromStdString(program->progName)});
        }
    }
}

} // namespace

std::vector<OtherName> otherNames(const std::map<int, PlayTask>& tasks, const Programs& programs)
{
    std::map<int, OtherName> found;
    for (const auto& [id, task] : tasks) {
        for (const PlayPlan& plan : task.plans) {
            addOtherNames(plan, programs, found);
        }
    }
    std::vector<OtherName> names;
    names.reserve(found.size());
    for (auto& [index, name] : found) {
        names.push_back(std::move(name));
    }
    return names;
}

} // namespace trel::mediadispatch
