#include "ContentCheck.h"

#include "catalogue/ProgramReport.h"
#include "common/DisplayText.h"
#include "trelprogramschedule/catalogue/ContentReader.h"

using namespace trel::hosts;
using namespace trel::mediadispatch;

namespace trel::console {

std::vector<int> changedContents(const std::map<int, ProgramIten>& programs,
                                 const ProgramContents& contents, const ContentProgress& progress)
{
    std::vector<int> changed;
    int done = 0;
    for (const auto& [index, content] : contents) {
        const auto program = programs.find(index);
        const bool isThere = program != programs.end() && !program->second.isNull;
        const QString path =
            isThere ? QString::fromStdString(program->second.mediaPath) : QString();
        progress(done++, static_cast<int>(contents.size()), path);
        if (isThere && contentState(path, content) == ContentState::Changed) {
            changed.push_back(index);
        }
    }
    return changed;
}

QString changedContentsText(const std::vector<int>& indexes,
                            const std::map<int, ProgramIten>& programs)
{
    QString text;
    for (const int index : indexes) {
        const ProgramIten& program = programs.at(index);
        text += QStringLiteral("  Program %1, %2: %3 holds something else than when it was"
                               " imported. If that is meant to play, import it again.\n")
                    .arg(QString::number(index), inQuotes(QString::fromStdString(program.progName)),
                         programPath(program));
    }
    return text.isEmpty() ? text : QStringLiteral("Changed files:\n") + text;
}

} // namespace trel::console
