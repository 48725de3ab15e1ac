#include "LanguageTargets.h"

#include "FuzzTarget.h"

#include "language/HostLanguageCheck.h"
#include "language/HostTexts.h"
#include "language/LanguageCheck.h"
#include "language/LanguageTexts.h"
#include "tstranslate/Translator.h"

using namespace trel::console;

namespace trust {

void tryLanguage(const QByteArray& input)
{
    const InputFile file(input);
    tessark::trans::Translator translator;
    if (!translator.load(file.path())) {
        expect(!readLanguageTexts(file.path()).error.isEmpty(),
               "what the editor does not load is refused");
        return;
    }
    const LanguageTexts texts = readLanguageTexts(file.path());
    translator.switchLanguage(texts.language);
    for (const LanguageText& text : texts.texts) {
        tessark::trans::translate(translator, text.group, text.context, text.key);
    }
    tessark::trans::translate(translator, QStringLiteral("SheduleWidgets"),
                              QStringLiteral("Widget"), QStringLiteral("no such key"));
}

void tryTranslation(const QByteArray& input)
{
    const InputFile file(input);
    const LanguageTexts texts = readLanguageTexts(file.path());
    if (!texts.error.isEmpty()) {
        return;
    }
    const std::vector<LanguageFinding> findings =
        isHostFile(texts) ? checkHostLanguage(texts) : checkLanguage(texts);
    for (const LanguageFinding& finding : findings) {
        expect(!findingText(finding.kind).isEmpty(), "every finding has a word");
    }
}

} // namespace trust
