#pragma once

#include "ProgramFileScan.h"
#include "service/ScheduleRecords.h"

#include <map>
#include <memory>
#include <string>

namespace trel::mediadispatch {

using ProgramMap = std::map<int, ProgramIten>;

/// How two states of a catalogue differ.
struct CatalogueChange
{
    bool any = false;
    bool lengths = false; ///< What a plan's length is worked out from.

    void add(const CatalogueChange& other)
    {
        any = any || other.any;
        lengths = lengths || other.lengths;
    }
};

/// The programs, by index, with the names of those that have been taken out.
class ProgramCatalogue
{
public:
    const ProgramMap& programs() const { return m_programs; }
    /// A copy that stays as it is; the same one until a program changes.
    std::shared_ptr<const ProgramMap> shared() const;

    /// Replaces everything. Which files are there is not looked at: what was known of a program
    /// stays known as long as its path does, and every other file is taken to be there.
    void assign(ProgramMap programs, std::map<int, std::string> removedNames);
    void clear();

    /// Puts one program in, or in the place of the one with its index. Its file is not looked at;
    /// see assign.
    CatalogueChange put(ProgramIten program);
    /// Takes one program out.
    CatalogueChange remove(int progIndex);

    bool contains(int progIndex) const { return m_programs.count(progIndex) > 0; }
    /// Also of a program that was taken out.
    bool isKnown(int progIndex) const
    {
        return contains(progIndex) || m_removedNames.count(progIndex) > 0;
    }
    /// A record with isNull set for a program that was taken out or never was.
    ProgramIten program(int progIndex) const;
    /// Also of a program that was taken out; empty when there never was one.
    std::string name(int progIndex) const;
    /// In milliseconds; 0 for a program that was taken out or never was.
    double duration(int progIndex) const;
    bool hasNoDuration(int progIndex) const;

    /// Makes the programs null whose files are not there, and only those. Live sources are always
    /// there. True when a program came or went.
    bool checkFiles();
    /// As checkFiles, of one program; nothing without it.
    bool checkFile(int progIndex);
    /// The files that there should be, and which of them there are.
    ProgramFiles files() const;
    /// Takes note that files have come or gone. True when a program came or went.
    bool takeFiles(const ProgramFiles& files);

private:
    /// Whether a program is known to have lost its file.
    bool isKnownLost(const ProgramIten& program) const;

    ProgramMap m_programs;
    std::map<int, std::string> m_removedNames;
    mutable std::shared_ptr<const ProgramMap> m_shared; ///< Null since the last change.
};

CatalogueChange catalogueChange(const ProgramMap& before, const ProgramMap& after);

} // namespace trel::mediadispatch
