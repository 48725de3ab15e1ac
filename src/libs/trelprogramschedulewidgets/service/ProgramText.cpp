#include "service/ProgramText.h"

#include <QStringList>

namespace trel::mediadispatch {

QString programText(const struProgInfo& entry, const ProgramLookup& lookup,
                    const ProgramSuffixes& suffixes)
{
    if (entry.isInvalid) {
        const QString name = QString::fromStdString(entry.progName);
        return entry.progIndex < kInvalidProgIndex ? name + suffixes.invalid : name;
    }
    const ProgramIten program = lookup(entry.progIndex);
    const QString name = QString::fromStdString(program.progName);
    return program.isNull ? name + suffixes.null : name;
}

QString entryText(const struProgInfo& entry, const std::map<int, ProgramIten>& catalogue,
                  const ProgramSuffixes& suffixes)
{
    const auto lookup = [&](int progIndex) {
        const auto found = catalogue.find(progIndex);
        if (found != catalogue.end()) {
            return found->second;
        }
        ProgramIten lost;
        lost.progIndex = progIndex;
        lost.progName = entry.progName;
        lost.isNull = true;
        return lost;
    };
    return programText(entry, lookup, suffixes);
}

QString programListText(const std::vector<struProgInfo>& entries, const ProgramLookup& lookup,
                        const ProgramSuffixes& suffixes)
{
    QStringList texts;
    texts.reserve(static_cast<int>(entries.size()));
    for (const struProgInfo& entry : entries) {
        texts.append(programText(entry, lookup, suffixes));
    }
    return texts.join(QLatin1Char(','));
}

} // namespace trel::mediadispatch
