#pragma once

#include "service/ProgramText.h"

#include <QString>

#include <vector>

namespace trel::mediadispatch {

/// The names of a plan's programs as the catalogue has them now, joined with commas, each with the
/// word that tells when it has gone bad or no longer exists.
QString programNames(const std::vector<struProgInfo>& programs);

/// The words that may follow a name, in the language now selected: for many lists of programs.
ProgramSuffixes programSuffixes();
QString programNames(const std::vector<struProgInfo>& programs, const ProgramSuffixes& suffixes);

} // namespace trel::mediadispatch
