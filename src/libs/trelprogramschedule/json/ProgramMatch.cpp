#include "ProgramMatch.h"

#include "catalogue/ShownAddress.h"

#include <algorithm>
#include <cmath>
#include <string>
#include <tuple>

namespace trel::mediadispatch {

namespace {

using Programs = std::map<int, ProgramIten>;

bool refersToNothing(const struProgInfo& entry)
{
    return entry.isInvalid || entry.progIndex < 0 || entry.progIndex >= kInvalidProgIndex;
}

/// In whole milliseconds; negative when it is not known.
qint64 lengthOf(const ProgramIten& program)
{
    // More than anybody plays, and far from what a number of 64 bits holds.
    constexpr double most = 1e15;
    const double length = program.durationMs;
    return std::isfinite(length) && length >= 0.0 && length < most ? std::llround(length) : -1;
}

/// A path as it is written and compared: without what nobody is to read.
std::string openPath(const std::string& path)
{
    const bool isFile = path.empty() || path.front() == '/';
    return isFile ? path : shownAddress(QString::fromStdString(path)).toStdString();
}

/// The catalogue, by each trait of its programs.
class Traits
{
public:
    Traits(const Programs& catalogue, const ProgramContents& contents);

    ProgramMatch find(const NamedProgram& sought) const;

private:
    using Named = std::tuple<std::string, ProgramKind, qint64>;
    using Indexes = std::vector<int>;

    ProgramMatch byContent(const NamedProgram& sought) const;
    ProgramMatch byPath(const NamedProgram& sought) const;
    ProgramMatch byName(const NamedProgram& sought) const;
    ProgramMatch match(ProgramTrait trait, int progIndex, const NamedProgram& sought) const;
    /// The less, the rather a program of the same content is taken.
    std::tuple<bool, bool, bool, int> rank(int progIndex, const NamedProgram& sought) const;

    const Programs& m_catalogue;
    const ProgramContents& m_contents;
    std::map<std::string, Indexes> m_byContent;
    std::map<std::string, Indexes> m_byPath;
    std::map<Named, Indexes> m_byName;
    std::map<int, std::string> m_paths; ///< As they are compared.
};

Traits::Traits(const Programs& catalogue, const ProgramContents& contents)
    : m_catalogue(catalogue)
    , m_contents(contents)
{
    for (const auto& [index, program] : catalogue) {
        const std::string path = openPath(program.mediaPath);
        m_byPath[path].push_back(index);
        m_paths.emplace_hint(m_paths.end(), index, path);
        m_byName[{program.progName, program.kind, lengthOf(program)}].push_back(index);
        const auto content = contents.find(index);
        if (content != contents.end() && content->second.isKnown()) {
            m_byContent[content->second.sha256.toStdString()].push_back(index);
        }
    }
}

ProgramMatch Traits::find(const NamedProgram& sought) const
{
    ProgramMatch found = byContent(sought);
    if (found.trait == ProgramTrait::None) {
        found = byPath(sought);
    }
    return found.trait == ProgramTrait::None ? byName(sought) : found;
}

ProgramMatch Traits::match(ProgramTrait trait, int progIndex, const NamedProgram& sought) const
{
    ProgramMatch found;
    found.trait = trait;
    found.progIndex = progIndex;
    found.isGone = m_catalogue.at(progIndex).isNull;
    const auto content = m_contents.find(progIndex);
    found.isOtherContent = !sought.sha256.empty() && content != m_contents.end() &&
                           content->second.isKnown() &&
                           content->second.sha256.toStdString() != sought.sha256;
    return found;
}

std::tuple<bool, bool, bool, int> Traits::rank(int progIndex, const NamedProgram& sought) const
{
    const ProgramIten& program = m_catalogue.at(progIndex);
    return {program.isNull, m_paths.at(progIndex) != openPath(sought.path),
            program.progName != sought.name, progIndex};
}

ProgramMatch Traits::byContent(const NamedProgram& sought) const
{
    const auto found = m_byContent.find(sought.sha256);
    if (sought.sha256.empty() || found == m_byContent.end()) {
        return {};
    }
    const Indexes& indexes = found->second;
    const int best =
        *std::min_element(indexes.begin(), indexes.end(), [this, &sought](int one, int other) {
            return rank(one, sought) < rank(other, sought);
        });
    return match(ProgramTrait::Content, best, sought);
}

ProgramMatch Traits::byPath(const NamedProgram& sought) const
{
    const auto found = m_byPath.find(openPath(sought.path));
    if (sought.path.empty() || found == m_byPath.end() || found->second.size() != 1) {
        return {};
    }
    return match(ProgramTrait::Path, found->second.front(), sought);
}

ProgramMatch Traits::byName(const NamedProgram& sought) const
{
    const bool hasLength = sought.kind != ProgramKind::Image && sought.kind != ProgramKind::Live &&
                           sought.lengthMs > 0;
    const auto found = m_byName.find({sought.name, sought.kind, sought.lengthMs});
    if (!hasLength || sought.name.empty() || found == m_byName.end() || found->second.size() != 1) {
        return {};
    }
    return match(ProgramTrait::Name, found->second.front(), sought);
}

} // namespace

std::vector<NamedProgram> namedPrograms(const std::set<int>& progIndexes, const Programs& catalogue,
                                        const ProgramContents& contents)
{
    std::vector<NamedProgram> named;
    named.reserve(progIndexes.size());
    for (const int index : progIndexes) {
        const auto found = catalogue.find(index);
        if (found == catalogue.end()) {
            continue;
        }
        const ProgramIten& program = found->second;
        NamedProgram& one = named.emplace_back();
        one.progIndex = index;
        one.name = program.progName;
        one.path = openPath(program.mediaPath);
        one.kind = program.kind;
        one.lengthMs = lengthOf(program);
        const auto content = contents.find(index);
        if (content != contents.end() && content->second.isKnown()) {
            one.size = content->second.size;
            one.sha256 = content->second.sha256.toStdString();
        }
    }
    return named;
}

std::set<int> programsInEntries(const std::map<int, PlayTask>& tasks)
{
    std::set<int> indexes;
    for (const auto& [id, task] : tasks) {
        for (const PlayPlan& plan : task.plans) {
            for (const struProgInfo& entry : plan.programs) {
                if (!refersToNothing(entry)) {
                    indexes.insert(entry.progIndex);
                }
            }
        }
    }
    return indexes;
}

ProgramMatches matchPrograms(const std::vector<NamedProgram>& programs, const Programs& catalogue,
                             const ProgramContents& contents)
{
    const Traits traits(catalogue, contents);
    ProgramMatches matches;
    for (const NamedProgram& program : programs) {
        matches[program.progIndex] = traits.find(program);
    }
    return matches;
}

void renumberEntries(std::map<int, PlayTask>& tasks, const std::map<int, int>& progIndexes)
{
    for (auto& [id, task] : tasks) {
        for (PlayPlan& plan : task.plans) {
            for (struProgInfo& entry : plan.programs) {
                if (refersToNothing(entry)) {
                    continue;
                }
                const auto found = progIndexes.find(entry.progIndex);
                entry.isInvalid = found == progIndexes.end();
                entry.progIndex = entry.isInvalid ? kInvalidProgIndex : found->second;
            }
        }
    }
}

} // namespace trel::mediadispatch
