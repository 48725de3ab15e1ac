#include "ScheduleFile.h"

#include "FileWords.h"
#include "trelprogramschedule/ScheduleHost.h"
#include "trelprogramschedule/ScheduleImporter.h"
#include "trelprogramschedule/catalogue/StoredContents.h"
#include "trelprogramschedule/json/OtherNames.h"
#include "trelprogramschedule/json/ProgramMatch.h"

#include <QStringList>

#include <set>
#include <vector>

using namespace trel::mediadispatch;

namespace trel::desktop {

namespace {

using Programs = std::map<int, ProgramIten>;

/// A sentence on programs, unless there is none.
void add(QStringList& sentences, const QStringList& programs,
         QString (*sentence)(const QStringList&))
{
    if (!programs.isEmpty()) {
        sentences.append(sentence(programs));
    }
}

/// Each program that entries refer to and that is not among the known ones, by the first name that
/// an entry has for it.
QStringList missingNames(const std::map<int, PlayTask>& tasks, const std::set<int>& known)
{
    std::set<int> told = known;
    QStringList names;
    for (const auto& [id, task] : tasks) {
        for (const PlayPlan& plan : task.plans) {
            for (const struProgInfo& entry : plan.programs) {
                const bool isProgram =
                    !entry.isInvalid && entry.progIndex >= 0 && entry.progIndex < kInvalidProgIndex;
                if (isProgram && told.insert(entry.progIndex).second) {
                    names.append(QString::fromStdString(entry.progName));
                }
            }
        }
    }
    return names;
}

/// Of a file that does not name its programs.
QString doubtsOfNumbers(const std::map<int, PlayTask>& tasks, const Programs& catalogue)
{
    std::set<int> known;
    for (const auto& [index, program] : catalogue) {
        known.insert(known.end(), index);
    }
    QStringList others;
    for (const OtherName& name : otherNames(tasks, catalogue)) {
        others.append(name.inEntries);
    }
    QStringList sentences;
    add(sentences, missingNames(tasks, known), &FileWords::missing);
    add(sentences, others, &FileWords::otherNames);
    return sentences.join(QStringLiteral("\n\n"));
}

/// Of one that does, with what was found of them.
QString doubtsOfMatches(const NamedScheduleFromJson& schedule, const ProgramMatches& matches)
{
    const std::set<int> played = programsInEntries(schedule.tasks);
    std::set<int> found;
    QStringList others;
    for (const NamedProgram& program : schedule.programs) {
        const ProgramMatch& match = matches.at(program.progIndex);
        if (match.trait == ProgramTrait::None) {
            continue;
        }
        found.insert(program.progIndex);
        const bool isDoubtful = match.trait == ProgramTrait::Name || match.isOtherContent;
        if (isDoubtful && played.count(program.progIndex) > 0) {
            others.append(QString::fromStdString(program.name));
        }
    }
    QStringList sentences;
    add(sentences, missingNames(schedule.tasks, found), &FileWords::missing);
    add(sentences, others, &FileWords::otherContents);
    return sentences.join(QStringLiteral("\n\n"));
}

} // namespace

Fault writeSchedule(const QString& file, const std::map<int, PlayTask>& tasks, FileHashes hashes)
{
    ProgramContents contents;
    if (hashes == FileHashes::Read) {
        // Without what the store knows of files, programs are named all the same.
        readStoredContents(contents);
    }
    return writeNamedScheduleFile(
        file, tasks,
        namedPrograms(programsInEntries(tasks), *ScheduleHost::instance().catalogue(), contents));
}

StoreResult findPrograms(const NamedScheduleFromJson& schedule, ArrivingSchedule& arriving)
{
    const auto catalogue = ScheduleHost::instance().catalogue();
    arriving.isNamed = schedule.isNamed;
    arriving.import.tasks = schedule.tasks;
    if (!schedule.isNamed) {
        arriving.doubts = doubtsOfNumbers(schedule.tasks, *catalogue);
        return {};
    }
    ProgramContents contents;
    StoreResult read = readStoredContents(contents);
    if (!read) {
        return read;
    }
    const ProgramMatches matches = matchPrograms(schedule.programs, *catalogue, contents);
    for (const auto& [number, match] : matches) {
        if (match.trait != ProgramTrait::None) {
            arriving.import.known[number] = match.progIndex;
        }
    }
    arriving.doubts = doubtsOfMatches(schedule, matches);
    return read;
}

StoreResult takeSchedule(const ArrivingSchedule& arriving)
{
    return arriving.isNamed ? importSchedule(arriving.import)
                            : ScheduleHost::instance().replaceSchedule(arriving.import.tasks);
}

} // namespace trel::desktop
