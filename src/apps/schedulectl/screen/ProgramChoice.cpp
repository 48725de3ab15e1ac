#include "ProgramChoice.h"

#include "Database.h"
#include "common/DisplayText.h"
#include "text/Console.h"
#include "trelprogramschedule/catalogue/ShownAddress.h"

using namespace trel::hosts;
using namespace trel::mediadispatch;

namespace trel::console {

ProgramChoice::ProgramChoice(const Database& database, const std::map<int, PlayTask>& tasks,
                             const std::map<int, ProgramIten>& programs)
    : m_database(database)
{
    for (const auto& [index, program] : programs) {
        m_names[index] = QString::fromStdString(program.progName);
    }
    for (const auto& [id, task] : tasks) {
        for (const PlayPlan& plan : task.plans) {
            for (const struProgInfo& entry : plan.programs) {
                const auto [place, isNew] = m_names.try_emplace(entry.progIndex);
                if (isNew) {
                    const QString known = database.programName(entry.progIndex);
                    place->second =
                        known.isEmpty() ? QString::fromStdString(entry.progName) : known;
                }
            }
        }
    }
    // These stand for no program in particular.
    m_names.erase(m_names.lower_bound(kInvalidProgIndex), m_names.end());
    m_names.erase(m_names.begin(), m_names.lower_bound(0));
}

std::vector<int> ProgramChoice::find(const QString& word) const
{
    bool isNumber = false;
    const int index = word.toInt(&isNumber);
    if (isNumber && !name(index).isEmpty()) {
        return {index};
    }
    std::vector<int> exact;
    std::vector<int> parts;
    for (const auto& [known, name] : m_names) {
        if (name == word) {
            exact.push_back(known);
        } else if (name.contains(word, Qt::CaseInsensitive)) {
            parts.push_back(known);
        }
    }
    return exact.empty() ? parts : exact;
}

QString ProgramChoice::name(int progIndex) const
{
    const auto found = m_names.find(progIndex);
    return found == m_names.end() ? m_database.programName(progIndex) : found->second;
}

std::optional<int> chosenProgram(const ProgramChoice& choice, const QString& word,
                                 const Database& database, Console& console)
{
    const std::vector<int> found = choice.find(word);
    if (found.size() == 1) {
        return found.front();
    }
    if (found.empty()) {
        console.tell(QStringLiteral("There is no program %1 in %2; \"schedulectl programs\" lists "
                                    "the programs.")
                         .arg(inQuotes(shownAddress(word)), printable(database.path())));
        return {};
    }
    console.tell(QStringLiteral("Several programs are called %1; an index tells them apart:")
                     .arg(inQuotes(shownAddress(word))));
    for (const int progIndex : found) {
        console.tellLine(
            QStringLiteral("  %1  %2").arg(progIndex, 5).arg(printable(choice.name(progIndex))));
    }
    return {};
}

} // namespace trel::console
