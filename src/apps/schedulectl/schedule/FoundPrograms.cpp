#include "FoundPrograms.h"

#include "common/DisplayText.h"

#include <QJsonObject>

#include <algorithm>
#include <iterator>
#include <set>

using namespace trel::hosts;
using namespace trel::mediadispatch;

namespace trel::console {

namespace {

/// As many as are told one by one.
constexpr std::size_t kMostTold = 8;

QString nameOf(const FoundProgram& program)
{
    return QStringLiteral("Program %1, %2")
        .arg(QString::number(program.sought.progIndex),
             inQuotes(QString::fromStdString(program.sought.name)));
}

bool isFound(const FoundProgram& program)
{
    return program.match.trait != ProgramTrait::None;
}

bool isDoubtful(const FoundProgram& program)
{
    return isFound(program) && (program.match.trait == ProgramTrait::Name ||
                                program.match.isOtherContent || program.match.isGone);
}

/// By what it was found, as a part of a sentence.
QString traitText(ProgramTrait trait)
{
    switch (trait) {
    case ProgramTrait::Content:
        return QStringLiteral("by content");
    case ProgramTrait::Path:
        return QStringLiteral("by path");
    case ProgramTrait::Name:
        return QStringLiteral("by name with length");
    case ProgramTrait::None:
        break;
    }
    return QString();
}

/// The same for machines.
QJsonValue traitName(ProgramTrait trait)
{
    switch (trait) {
    case ProgramTrait::Content:
        return QStringLiteral("content");
    case ProgramTrait::Path:
        return QStringLiteral("path");
    case ProgramTrait::Name:
        return QStringLiteral("name");
    case ProgramTrait::None:
        break;
    }
    return QJsonValue(QJsonValue::Null);
}

QString doubtText(const FoundProgram& program, const std::map<int, ProgramIten>& catalogue)
{
    const ProgramMatch& match = program.match;
    const auto known = catalogue.find(match.progIndex);
    const QString name =
        known == catalogue.end() ? QString() : QString::fromStdString(known->second.progName);
    QString text = QStringLiteral("%1, is program %2, %3, in the catalog, found %4")
                       .arg(nameOf(program), QString::number(match.progIndex), inQuotes(name),
                            traitText(match.trait));
    if (match.isOtherContent) {
        text += QStringLiteral("; its file has another content");
    }
    if (match.isGone) {
        text += QStringLiteral("; its file is not there");
    }
    return text + QLatin1Char('.');
}

template <typename Text>
QStringList firstTexts(const std::vector<FoundProgram>& programs, const Text& text)
{
    QStringList texts;
    for (std::size_t i = 0; i < std::min(programs.size(), kMostTold); ++i) {
        texts.append(text(programs[i]));
    }
    if (programs.size() > kMostTold) {
        texts.append(QStringLiteral("So it is with %1 more.")
                         .arg(counted(static_cast<qint64>(programs.size() - kMostTold),
                                      QStringLiteral("program"))));
    }
    return texts;
}

/// The first name that an entry has for each program.
std::map<int, std::string> namesInEntries(const std::map<int, PlayTask>& tasks)
{
    std::map<int, std::string> names;
    for (const auto& [id, task] : tasks) {
        for (const PlayPlan& plan : task.plans) {
            for (const struProgInfo& entry : plan.programs) {
                if (!entry.isInvalid) {
                    names.try_emplace(entry.progIndex, entry.progName);
                }
            }
        }
    }
    return names;
}

} // namespace

std::vector<FoundProgram> findPrograms(const std::map<int, PlayTask>& tasks,
                                       const std::vector<NamedProgram>& programs,
                                       const std::map<int, ProgramIten>& catalogue,
                                       const ProgramContents& contents)
{
    std::set<int> played = programsInEntries(tasks);
    const ProgramMatches matches = matchPrograms(programs, catalogue, contents);
    std::vector<FoundProgram> found;
    found.reserve(programs.size());
    for (const NamedProgram& program : programs) {
        const bool isPlayed = played.erase(program.progIndex) > 0;
        FoundProgram& one = found.emplace_back();
        one.sought = program;
        one.match = matches.at(program.progIndex);
        one.isPlayed = isPlayed;
    }
    const std::map<int, std::string> names = namesInEntries(tasks);
    for (const int index : played) {
        FoundProgram& one = found.emplace_back();
        one.sought.progIndex = index;
        one.sought.name = names.at(index);
        one.isPlayed = true;
    }
    return found;
}

std::map<int, int> foundIndexes(const std::vector<FoundProgram>& programs)
{
    std::map<int, int> indexes;
    for (const FoundProgram& program : programs) {
        if (isFound(program)) {
            indexes[program.sought.progIndex] = program.match.progIndex;
        }
    }
    return indexes;
}

std::vector<FoundProgram> missingPrograms(const std::vector<FoundProgram>& programs)
{
    std::vector<FoundProgram> missing;
    std::copy_if(
        programs.begin(), programs.end(), std::back_inserter(missing),
        [](const FoundProgram& one) { return one.isPlayed && !one.isBrought && !isFound(one); });
    return missing;
}

QString foundText(const std::vector<FoundProgram>& programs)
{
    QStringList parts;
    qint64 all = 0;
    for (const ProgramTrait trait :
         {ProgramTrait::Content, ProgramTrait::Path, ProgramTrait::Name}) {
        const auto count =
            std::count_if(programs.begin(), programs.end(),
                          [trait](const FoundProgram& one) { return one.match.trait == trait; });
        if (count > 0) {
            parts.append(QStringLiteral("%1 %2").arg(QString::number(count), traitText(trait)));
        }
        all += count;
    }
    QStringList sentences;
    if (all > 0) {
        sentences.append(
            QStringLiteral("%1 found in the catalog: %2.")
                .arg(counted(all, QStringLiteral("program")), parts.join(QStringLiteral(", "))));
    }
    const auto brought = std::count_if(programs.begin(), programs.end(),
                                       [](const FoundProgram& one) { return one.isBrought; });
    if (brought > 0) {
        sentences.append(QStringLiteral("%1 taken from the bundle.")
                             .arg(counted(brought, QStringLiteral("program"))));
    }
    return sentences.join(QLatin1Char(' '));
}

QStringList doubtTexts(const std::vector<FoundProgram>& programs,
                       const std::map<int, ProgramIten>& catalogue)
{
    std::vector<FoundProgram> doubtful;
    std::copy_if(programs.begin(), programs.end(), std::back_inserter(doubtful), isDoubtful);
    return firstTexts(doubtful, [&catalogue](const FoundProgram& program) {
        return doubtText(program, catalogue);
    });
}

QStringList missingTexts(const std::vector<FoundProgram>& missing)
{
    return firstTexts(missing, [](const FoundProgram& program) {
        return nameOf(program) + QStringLiteral(", is not in the catalog.");
    });
}

QJsonArray foundJson(const std::vector<FoundProgram>& programs,
                     const std::map<int, ProgramIten>& catalogue)
{
    std::map<std::string, int> indexes;
    for (const auto& [index, program] : catalogue) {
        indexes[program.mediaPath] = index;
    }
    QJsonArray array;
    for (const FoundProgram& program : programs) {
        const ProgramMatch& match = program.match;
        const auto brought = indexes.find(program.place.toStdString());
        QJsonValue index(QJsonValue::Null);
        if (isFound(program)) {
            index = match.progIndex;
        } else if (program.isBrought && brought != indexes.end()) {
            index = brought->second;
        }
        array.append(QJsonObject{
            {QStringLiteral("index"), program.sought.progIndex},
            {QStringLiteral("name"), QString::fromStdString(program.sought.name)},
            {QStringLiteral("isPlayed"), program.isPlayed},
            {QStringLiteral("foundBy"),
             program.isBrought ? QJsonValue(QStringLiteral("bundle")) : traitName(match.trait)},
            {QStringLiteral("program"), index},
            {QStringLiteral("isOtherContent"), match.isOtherContent},
            {QStringLiteral("isGone"), match.isGone},
        });
    }
    return array;
}

} // namespace trel::console
