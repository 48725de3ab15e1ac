#include "OtherNames.h"

#include "common/DisplayText.h"

#include <algorithm>
#include <utility>

using namespace trel::hosts;
using namespace trel::mediadispatch;

namespace trel::console {

namespace {

using Programs = std::map<int, ProgramIten>;

/// As many as are told one by one.
constexpr std::size_t kMostTold = 8;

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

QStringList otherNamesTexts(const std::vector<OtherName>& names)
{
    QStringList texts;
    for (std::size_t i = 0; i < std::min(names.size(), kMostTold); ++i) {
        texts.append(QStringLiteral("Program %1 is %2 in this schedule, and %3 in the catalog: what"
                                    " plays is the latter.")
                         .arg(QString::number(names[i].progIndex), inQuotes(names[i].inEntries),
                              inQuotes(names[i].inCatalogue)));
    }
    if (names.size() > kMostTold) {
        texts.append(QStringLiteral("So it is with %1 more.")
                         .arg(counted(static_cast<qint64>(names.size() - kMostTold),
                                      QStringLiteral("program"))));
    }
    return texts;
}

} // namespace trel::console
