#include "tstranslate/Translator.h"

#include "tstranslate/LanguageFile.h"

#include <QFileInfo>
#include <QTranslator>

#include <algorithm>
#include <map>
#include <new>
#include <utility>

namespace tessark::trans {

namespace {

const QLatin1String kFallbackLanguage("zh_CN");

/// The texts of one language. They stand in memory, so that a file may be replaced or taken away
/// while the language is in use.
class Language
{
public:
    explicit Language(QByteArray bytes)
        : m_bytes(std::move(bytes))
        , m_isLoaded(
              m_texts.load(reinterpret_cast<const uchar*>(m_bytes.constData()), m_bytes.size()))
    {}

    bool isLoaded() const { return m_isLoaded; }
    QString name() const { return m_texts.language(); }

    QString find(const QByteArray& group, const QByteArray& context, const QByteArray& key) const
    {
        return m_texts.translate(group.constData(), key.constData(), context.constData());
    }

private:
    QByteArray m_bytes;
    QTranslator m_texts; // Reads from the bytes, and so goes before them.
    bool m_isLoaded;
};

} // namespace

class Translator::Private
{
public:
    /// Empty when the language is not loaded or lacks the text.
    QString find(const QString& language, const QByteArray& group, const QByteArray& context,
                 const QByteArray& key) const
    {
        const auto found = languages.find(language);
        return found == languages.end() ? QString() : found->second->find(group, context, key);
    }

    std::map<QString, std::unique_ptr<Language>> languages;
    /// Whether a file has anything to say to those who ask.
    bool accepts(const LanguageFile& file) const
    {
        return wanted.isEmpty() || std::any_of(file.messages.begin(), file.messages.end(),
                                               [this](const LanguageMessage& message) {
                                                   return message.group == wanted;
                                               });
    }

    QString selected = kFallbackLanguage;
    QString wanted; ///< The group of which a file needs a text; empty for any.
};

Translator::Translator()
    : d(std::make_unique<Private>())
{}

Translator::~Translator() = default;

bool Translator::load(const QString& file)
try {
    const std::optional<LanguageFile> read = readLanguageFile(file);
    if (!read || !d->accepts(*read)) {
        return false;
    }
    auto language = std::make_unique<Language>(read->bytes);
    if (!language->isLoaded()) {
        return false;
    }
    const QString named = language->name();
    d->languages[named.isEmpty() ? QFileInfo(file).completeBaseName() : named] =
        std::move(language);
    return true;
} catch (const std::bad_alloc&) {
    return false;
}

void Translator::switchLanguage(const QString& language)
{
    d->selected = language;
}

QString Translator::language() const
{
    return d->selected;
}

void Translator::acceptOnly(const QString& group)
{
    d->wanted = group;
}

QString translate(const Translator& translator, const QString& group, const QString& context,
                  const QString& key)
{
    const QByteArray groupText = group.toUtf8();
    const QByteArray contextText = context.toUtf8();
    const QByteArray keyText = key.toUtf8();
    for (const QString& language : {translator.d->selected, QString(kFallbackLanguage)}) {
        QString text = translator.d->find(language, groupText, contextText, keyText);
        if (!text.isEmpty()) {
            return text;
        }
    }
    return key;
}

} // namespace tessark::trans
