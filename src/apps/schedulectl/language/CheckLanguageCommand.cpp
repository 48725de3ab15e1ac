#include "Commands.h"

#include "EditorTexts.h"
#include "HostLanguageCheck.h"
#include "HostTexts.h"
#include "LanguageCheck.h"
#include "LanguageTexts.h"
#include "common/DisplayText.h"
#include "text/Console.h"
#include "text/TextTable.h"

#include <QFileInfo>
#include <QJsonArray>

using namespace trel::hosts;

namespace trel::console {

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

ExitStatus run(const Invocation& invocation, Console& console)
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

} // namespace

Command checkLanguageCommand()
{
    return {"check-language",
            "FILE",
            1,
            1,
            true,
            "Find what is wrong in a translation",
            R"(Looks at the texts that a translator has written for the editor or for the
desktop host. FILE is a source file of the Linguist (.ts) or the compiled file
that is loaded (.qm); its contexts tell whose it is. Listed are
  - texts that are missing, empty, unfinished or there more than once,
  - texts that are not known,
  - words that the table of terms has another one for;
in a file of the editor
  - days, and entries of the chooser's menu, that are called the same, since the
    editor tells them apart by their texts,
  - characters that the editor takes for something else,
  - captions that are too long for their cells;
in a file of the host
  - places for numbers and names that are lost, or that the text does not have,
  - plurals that do not have the forms of their language,
  - entries of menus without a letter, or with that of another entry.

No font is loaded. Lengths are worked out from the letter widths of the font
that the editor is shipped with, on the safe side: what passes here is not cut.
Only captions in cells of a fixed size are looked at; the window gives way to
others.

The exit status is 0 when nothing is listed, and 1 otherwise.)",
            run,
            false};
}

} // namespace trel::console
