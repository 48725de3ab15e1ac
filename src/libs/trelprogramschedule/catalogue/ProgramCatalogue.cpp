#include "ProgramCatalogue.h"

#include "FileLook.h"

#include <QString>

#include <tuple>
#include <utility>

namespace trel::mediadispatch {

namespace {

auto lengthOf(const ProgramIten& program)
{
    return std::tie(program.durationMs, program.kind);
}

auto shownOf(const ProgramIten& program)
{
    return std::tie(program.progName, program.mediaPath, program.isNull);
}

/// No plan can have referred to a program that is new.
constexpr CatalogueChange kProgramNew = {true, false};
constexpr CatalogueChange kProgramLost = {true, true};

CatalogueChange difference(const ProgramIten& before, const ProgramIten& after)
{
    const bool lengths = lengthOf(before) != lengthOf(after);
    return {lengths || shownOf(before) != shownOf(after), lengths};
}

bool isThere(const ProgramIten& program)
{
    return program.kind == ProgramKind::Live ||
           FileLook::current().isThere(QString::fromStdString(program.mediaPath));
}

/// Makes a program null when its file is not there, and only then. True when that is new.
bool look(ProgramIten& program)
{
    const bool isNull = !isThere(program);
    return std::exchange(program.isNull, isNull) != isNull;
}

} // namespace

std::shared_ptr<const ProgramMap> ProgramCatalogue::shared() const
{
    if (!m_shared) {
        m_shared = std::make_shared<const ProgramMap>(m_programs);
    }
    return m_shared;
}

void ProgramCatalogue::assign(ProgramMap programs, std::map<int, std::string> removedNames)
{
    m_shared.reset();
    for (auto& [index, program] : programs) {
        program.isNull = isKnownLost(program);
    }
    m_programs = std::move(programs);
    m_removedNames = std::move(removedNames);
}

void ProgramCatalogue::clear()
{
    m_shared.reset();
    m_programs.clear();
    m_removedNames.clear();
}

CatalogueChange ProgramCatalogue::put(ProgramIten program)
{
    m_shared.reset();
    program.isNull = isKnownLost(program);
    const auto [place, isNew] = m_programs.try_emplace(program.progIndex);
    const CatalogueChange change = isNew ? kProgramNew : difference(place->second, program);
    place->second = std::move(program);
    return change;
}

CatalogueChange ProgramCatalogue::remove(int progIndex)
{
    const auto found = m_programs.find(progIndex);
    if (found == m_programs.end()) {
        return {};
    }
    m_shared.reset();
    m_removedNames[progIndex] = std::move(found->second.progName);
    m_programs.erase(found);
    return kProgramLost;
}

ProgramIten ProgramCatalogue::program(int progIndex) const
{
    const auto found = m_programs.find(progIndex);
    if (found != m_programs.end()) {
        return found->second;
    }
    ProgramIten missing;
    missing.progIndex = progIndex;
    missing.progName = name(progIndex);
    missing.isNull = true;
    return missing;
}

std::string ProgramCatalogue::name(int progIndex) const
{
    const auto found = m_programs.find(progIndex);
    if (found != m_programs.end()) {
        return found->second.progName;
    }
    const auto removed = m_removedNames.find(progIndex);
    return removed == m_removedNames.end() ? std::string() : removed->second;
}

double ProgramCatalogue::duration(int progIndex) const
{
    const auto found = m_programs.find(progIndex);
    return found == m_programs.end() ? 0.0 : found->second.durationMs;
}

bool ProgramCatalogue::hasNoDuration(int progIndex) const
{
    const auto found = m_programs.find(progIndex);
    return found != m_programs.end() && !hasOwnLength(found->second);
}

bool ProgramCatalogue::checkFiles()
{
    bool changed = false;
    for (auto& [index, program] : m_programs) {
        changed = look(program) || changed;
    }
    if (changed) {
        m_shared.reset();
    }
    return changed;
}

bool ProgramCatalogue::checkFile(int progIndex)
{
    const auto found = m_programs.find(progIndex);
    const bool changed = found != m_programs.end() && look(found->second);
    if (changed) {
        m_shared.reset();
    }
    return changed;
}

bool ProgramCatalogue::isKnownLost(const ProgramIten& program) const
{
    const auto known = m_programs.find(program.progIndex);
    return known != m_programs.end() && known->second.isNull &&
           known->second.mediaPath == program.mediaPath;
}

ProgramFiles ProgramCatalogue::files() const
{
    ProgramFiles files;
    files.reserve(m_programs.size());
    for (const auto& [index, program] : m_programs) {
        if (program.kind != ProgramKind::Live) {
            files.push_back({index, QString::fromStdString(program.mediaPath), !program.isNull});
        }
    }
    return files;
}

bool ProgramCatalogue::takeFiles(const ProgramFiles& files)
{
    bool changed = false;
    for (const ProgramFile& file : files) {
        const auto found = m_programs.find(file.progIndex);
        if (found != m_programs.end()) {
            changed = changed || found->second.isNull == file.isThere;
            found->second.isNull = !file.isThere;
        }
    }
    if (changed) {
        m_shared.reset();
    }
    return changed;
}

CatalogueChange catalogueChange(const ProgramMap& before, const ProgramMap& after)
{
    CatalogueChange change;
    auto former = before.begin();
    for (const auto& [index, program] : after) {
        while (former != before.end() && former->first < index) {
            change.add(kProgramLost);
            ++former;
        }
        if (former == before.end() || former->first != index) {
            change.add(kProgramNew);
            continue;
        }
        change.add(difference(former->second, program));
        ++former;
    }
    if (former != before.end()) {
        change.add(kProgramLost);
    }
    return change;
}

} // namespace trel::mediadispatch
