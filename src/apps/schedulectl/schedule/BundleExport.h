#pragma once

#include "trelprogramschedule/bundle/BundleWriter.h"
#include "trelprogramschedule/catalogue/ProgramContent.h"

#include <QStringList>

#include <functional>
#include <map>
#include <set>
#include <vector>

namespace trel::console {

/// What goes into a bundle, and what cannot.
struct BundleExport
{
    trel::mediadispatch::BundleContents contents;
    /// Programs whose files are not there or cannot be read, in the order of their indexes. They
    /// are in the contents without their files.
    std::vector<trel::mediadispatch::NamedProgram> missing;
};

/// Puts together a bundle of these programs. Each file is read, unless its size and its time of
/// change are those that are known, so that the bundle says what it holds now. The progress is told
/// the place of each, from 0, their number and the path.
BundleExport
bundleOf(const std::map<int, trel::mediadispatch::PlayTask>& tasks,
         const std::set<int>& progIndexes,
         const std::map<int, trel::mediadispatch::ProgramIten>& catalogue,
         const trel::mediadispatch::ProgramContents& contents,
         const std::function<void(int done, int total, const QString& path)>& progress);

/// A sentence for each of the first eight that are missing, and one for how many more there are.
QStringList missingFilesTexts(const BundleExport& bundle);

} // namespace trel::console
