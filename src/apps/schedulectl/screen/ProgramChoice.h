#pragma once

#include "service/ScheduleRecords.h"

#include <QString>

#include <map>
#include <optional>
#include <vector>

namespace trel::console {

class Console;
class Database;

/// The programs that a word of the command line may mean: those of the catalogue, and those that
/// plans still hold after the catalogue has lost them.
class ProgramChoice
{
public:
    ProgramChoice(const Database& database,
                  const std::map<int, trel::mediadispatch::PlayTask>& tasks,
                  const std::map<int, trel::mediadispatch::ProgramIten>& programs);

    /// The indexes that a word means: that of the index it is, or else those of the programs that
    /// are called exactly so, or else of those whose name holds it, whatever its case.
    std::vector<int> find(const QString& word) const;
    /// As it is; empty for an index that was never given out.
    QString name(int progIndex) const;

private:
    const Database& m_database;
    std::map<int, QString> m_names;
};

/// The one program that a word means; none, and the user is told why, where it means another number
/// of them.
std::optional<int> chosenProgram(const ProgramChoice& choice, const QString& word,
                                 const Database& database, Console& console);

} // namespace trel::console
