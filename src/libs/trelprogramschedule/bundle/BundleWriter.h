#pragma once

#include "BundleFault.h"
#include "trelprogramschedule/catalogue/ProgramContent.h"
#include "trelprogramschedule/json/NamedProgram.h"
#include "trelprogramschedule_export.h"

#include <QString>

#include <functional>
#include <map>
#include <vector>

namespace trel::mediadispatch {

/// What goes into a bundle.
struct BundleContents
{
    std::map<int, PlayTask> tasks;
    std::vector<NamedProgram> programs; ///< No two with the same number.
    /// The files of programs with their size and hash, by the hash that the programs have for
    /// them; each content once.
    std::map<std::string, QString> files;
};

/// Called before each file with its place, from 0, the number of files and the path; returning
/// false ends the writing.
using BundleProgress = std::function<bool(int done, int total, const QString& path)>;

/// Writes a bundle in one step, as writeScheduleFile() writes a file: the one that is there is
/// replaced whole, or stays. The same contents always give the same bytes. A file that does not
/// hold what its program says by now is refused. Where the progress ends it, the fault has no
/// problem of its own but CannotWrite without a cause.
TRELPROGRAMSCHEDULE_EXPORT BundleFault writeBundle(const QString& path,
                                                   const BundleContents& contents,
                                                   const BundleProgress& progress = {});

} // namespace trel::mediadispatch
