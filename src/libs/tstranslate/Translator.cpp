#include "tstranslate/Translator.h"

#include <QFileInfo>
#include <QTranslator>

#include <map>

namespace tessark::trans {

namespace {

const QLatin1String kFallbackLanguage("zh_CN");

} // namespace

class Translator::Private
{
public:
    /// Empty when the language is not loaded or lacks the text.
    QString find(const QString& language, const QByteArray& group, const QByteArray& context,
                 const QByteArray& key) const
    {
        const auto found = languages.find(language);
        if (found == languages.end()) {
            return QString();
        }
        return found->second->translate(group.constData(), key.constData(), context.constData());
    }

    std::map<QString, std::unique_ptr<QTranslator>> languages;
    QString selected = kFallbackLanguage;
};

Translator::Translator()
    : d(std::make_unique<Private>())
{
}

Translator::~Translator() = default;

bool Translator::load(const QString& file)
{
    auto translator = std::make_unique<QTranslator>();
    if (!translator->load(file) || translator->isEmpty()) {
        return false;
    }
    const QString named = translator->language();
    const QString language = named.isEmpty() ? QFileInfo(file).completeBaseName() : named;
    d->languages[language] = std::move(translator);
    return true;
}

void Translator::switchLanguage(const QString& language)
{
    d->selected = language;
}

QString Translator::language() const
{
    return d->selected;
}

QString translate(const Translator& translator, const QString& group, const QString& context,
                  const QString& key)
{
    const QByteArray groupText = group.toUtf8();
    const QByteArray contextText = context.toUtf8();
    const QByteArray keyText = key.toUtf8();
    for (const QString& language : {translator.d->selected, QString(kFallbackLanguage)}) {
        const QString text = translator.d->find(language, groupText, contextText, keyText);
        if (!text.isEmpty()) {
            return text;
        }
    }
    return key;
}

} // namespace tessark::trans
