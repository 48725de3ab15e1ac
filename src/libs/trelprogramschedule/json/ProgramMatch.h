#pragma once

#include "NamedProgram.h"
#include "trelprogramschedule/catalogue/ProgramContent.h"
#include "trelprogramschedule_export.h"

#include <map>
#include <set>
#include <vector>

namespace trel::mediadispatch {

// What a schedule that comes from elsewhere plays, found in the catalogue at hand. The number by
// which it calls a program means nothing here: it may be that of any other.

/// By what a program was found, the surest first.
enum class ProgramTrait {
    Content, ///< Its file holds the same.
    Path,    ///< It is at the same path, or the same address.
    Name,    ///< It has the same name, kind and length.
    None,    ///< It was not found.
};

/// A program of a catalogue that stands for another one.
struct ProgramMatch
{
    ProgramTrait trait = ProgramTrait::None; ///< By what it was found.
    int progIndex = -1;                      ///< In the catalogue; -1 for None.
    bool isOtherContent = false; ///< The files of both are known, and hold different things.
    bool isGone = false;         ///< There is nothing at its path.
};

/// What became of programs, by the number that the schedule has for them.
using ProgramMatches = std::map<int, ProgramMatch>;

/// The programs of a schedule as it may name them elsewhere: those of the catalogue with these
/// numbers, in their order, with what is known of their files. What the catalogue does not have is
/// left out.
TRELPROGRAMSCHEDULE_EXPORT std::vector<NamedProgram>
namedPrograms(const std::set<int>& progIndexes, const std::map<int, ProgramIten>& catalogue,
              const ProgramContents& contents);

/// The programs that entries refer to which have not gone bad.
TRELPROGRAMSCHEDULE_EXPORT std::set<int> programsInEntries(const std::map<int, PlayTask>& tasks);

/// Finds each of the programs: by what its file holds, or else by its path, or else by its name
/// with its length. Of many with the same content that one is taken which is still there, then the
/// one with the same path, with the same name, and with the lowest index. Addresses are compared
/// without their secrets; where many are the same then, or many have the same name, kind and
/// length, none is taken. A name counts only of what has a length of its own that is known.
///
/// In a time that grows with the number of both, and its logarithm.
TRELPROGRAMSCHEDULE_EXPORT ProgramMatches matchPrograms(const std::vector<NamedProgram>& programs,
                                                        const std::map<int, ProgramIten>& catalogue,
                                                        const ProgramContents& contents);

/// Has the entries refer to other numbers: to those that are given for theirs. An entry of a
/// program for which there is none goes bad and refers to nothing, so that no other program can
/// take its place. What has gone bad already, and what refers to nothing, stays as it is.
TRELPROGRAMSCHEDULE_EXPORT void renumberEntries(std::map<int, PlayTask>& tasks,
                                                const std::map<int, int>& progIndexes);

} // namespace trel::mediadispatch
