#pragma once

#include "trelprogramschedule/json/ProgramMatch.h"

#include <QJsonArray>
#include <QString>
#include <QStringList>

#include <map>
#include <vector>

namespace trel::console {

/// What became of a program that a schedule from a file names.
struct FoundProgram
{
    trel::mediadispatch::NamedProgram sought;
    trel::mediadispatch::ProgramMatch match;
    bool isPlayed = false;  ///< An entry refers to it that has not gone bad.
    bool isBrought = false; ///< The file brings it, and it comes into the catalogue.
    QString place;          ///< Then, where its media are, or its address.
};

/// The same of all of them: of those that the file names in their order, and behind them of those
/// that entries refer to and the file does not name, which were not found.
std::vector<FoundProgram>
findPrograms(const std::map<int, trel::mediadispatch::PlayTask>& tasks,
             const std::vector<trel::mediadispatch::NamedProgram>& programs,
             const std::map<int, trel::mediadispatch::ProgramIten>& catalogue,
             const trel::mediadispatch::ProgramContents& contents);

/// By the numbers of the file, the indexes of those that were found.
std::map<int, int> foundIndexes(const std::vector<FoundProgram>& programs);

/// Those that are played and were neither found nor brought.
std::vector<FoundProgram> missingPrograms(const std::vector<FoundProgram>& programs);

/// Such as "3 programs found in the catalog: 2 by content, 1 by path. 1 program taken from the
/// bundle."; empty for none.
QString foundText(const std::vector<FoundProgram>& programs);

/// A sentence for each of the first eight that were found otherwise than by their content, or that
/// are gone, and one for how many more there are.
QStringList doubtTexts(const std::vector<FoundProgram>& programs,
                       const std::map<int, trel::mediadispatch::ProgramIten>& catalogue);

/// The same of those that were not found.
QStringList missingTexts(const std::vector<FoundProgram>& missing);

/// All of them for machines, with the catalogue as it is then.
QJsonArray foundJson(const std::vector<FoundProgram>& programs,
                     const std::map<int, trel::mediadispatch::ProgramIten>& catalogue);

} // namespace trel::console
