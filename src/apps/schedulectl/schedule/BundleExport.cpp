#include "BundleExport.h"

#include "common/DisplayText.h"
#include "trelprogramschedule/catalogue/ContentReader.h"
#include "trelprogramschedule/json/ProgramMatch.h"

#include <algorithm>

using namespace trel::hosts;
using namespace trel::mediadispatch;

namespace trel::console {

namespace {

/// As many as are told one by one.
constexpr std::size_t kMostTold = 8;

} // namespace

BundleExport bundleOf(const std::map<int, PlayTask>& tasks, const std::set<int>& progIndexes,
                      const std::map<int, ProgramIten>& catalogue, const ProgramContents& contents,
                      const std::function<void(int done, int total, const QString& path)>& progress)
{
    BundleExport bundle;
    bundle.contents.tasks = tasks;
    bundle.contents.programs = namedPrograms(progIndexes, catalogue, contents);
    const int total = static_cast<int>(bundle.contents.programs.size());
    int done = 0;
    for (NamedProgram& program : bundle.contents.programs) {
        const QString path = QString::fromStdString(catalogue.at(program.progIndex).mediaPath);
        progress(done++, total, path);
        if (program.kind == ProgramKind::Live) {
            continue;
        }
        const auto known = contents.find(program.progIndex);
        const ProgramContent content =
            readContent(path, known == contents.end() ? ProgramContent() : known->second);
        if (!content.isKnown()) {
            bundle.missing.push_back(program);
            continue;
        }
        program.size = content.size;
        program.sha256 = content.sha256.toStdString();
        bundle.contents.files.try_emplace(program.sha256, path);
    }
    return bundle;
}

QStringList missingFilesTexts(const BundleExport& bundle)
{
    QStringList texts;
    const std::size_t count = bundle.missing.size();
    for (std::size_t i = 0; i < std::min(count, kMostTold); ++i) {
        const NamedProgram& program = bundle.missing[i];
        texts.append(QStringLiteral("Program %1, %2: %3 is not there or cannot be read.")
                         .arg(QString::number(program.progIndex),
                              inQuotes(QString::fromStdString(program.name)),
                              printable(program.path)));
    }
    if (count > kMostTold) {
        texts.append(
            QStringLiteral("So it is with %1 more.")
                .arg(counted(static_cast<qint64>(count - kMostTold), QStringLiteral("program"))));
    }
    return texts;
}

} // namespace trel::console
