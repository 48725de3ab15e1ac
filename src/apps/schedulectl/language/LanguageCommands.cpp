#include "LanguageCommands.h"

#include "EditorTexts.h"
#include "HostLanguageCheck.h"
#include "HostTexts.h"
#include "LanguageCheck.h"
#include "LanguageTexts.h"
#include "text/Console.h"
#include "text/DisplayText.h"
#include "text/TextTable.h"

#include <QFileInfo>
#include <QJsonArray>

namespace {

QJsonArray findingsJson(const std::vector<LanguageFinding>& findings)
{
    QJsonArray array;
    for (const LanguageFinding& finding : findings) {
        array.append(QJsonObject{{QStringLiteral("kind"), findingName(finding.kind)},
                                 {QStringLiteral("key"), finding.key},
                                 {QStringLiteral("text"), finding.remark}});
    }
    return array;
}

void writeFindings(Console& console, const QString& file, int textCount,
                   const std::vector<LanguageFinding>& findings)
{
    if (findings.empty()) {
        console.writeLine(QStringLiteral("%1 has all %2 texts, and nothing to put right.")
                              .arg(printable(file), QString::number(textCount)));
        return;
    }
    TextTable table({{QStringLiteral("Finding")}, {QStringLiteral("Key")}, {QString()}});
    for (const LanguageFinding& finding : findings) {
        table.addRow({findingText(finding.kind), printable(finding.key), finding.remark});
    }
    console.write(table.text());
}

} // namespace

ExitStatus runCheckLanguage(const Invocation& invocation, Console& console)
{
    const QString& file = invocation.arguments.first();
    const LanguageTexts texts = readLanguageTexts(file);
    if (!texts.error.isEmpty()) {
        console.tell(QStringLiteral("%1 %2.").arg(printable(file), printable(texts.error)));
        return Refused;
    }
    const bool isHost = isHostFile(texts);
    const std::vector<LanguageFinding> findings =
        isHost ? checkHostLanguage(texts) : checkLanguage(texts);
    if (invocation.json) {
        console.writeJson({{QStringLiteral("file"), QFileInfo(file).absoluteFilePath()},
                           {QStringLiteral("findings"), findingsJson(findings)}});
    } else {
        writeFindings(console, file,
                      isHost ? neededHostTexts(texts.language)
                             : static_cast<int>(editorTexts().size()),
                      findings);
    }
    return findings.empty() ? Done : Refused;
}
