#include "PlaceHolder.h"

#include <algorithm>

namespace trel::console {

PlaceHolder::PlaceHolder(std::string_view text)
{
    QString name = QString::fromLatin1(text.data(), static_cast<int>(text.size()));
    name.remove(QLatin1String("..."));
    m_alternatives = name.split(QLatin1Char('|'));
}

bool PlaceHolder::namesFiles() const
{
    const QStringList names = {QStringLiteral("FILE"), QStringLiteral("FOLDER"),
                               QStringLiteral("IMAGE"), QStringLiteral("PATH")};
    return std::any_of(m_alternatives.begin(), m_alternatives.end(),
                       [&names](const QString& name) { return names.contains(name); });
}

QStringList PlaceHolder::words() const
{
    QStringList words = m_alternatives;
    words.erase(std::remove_if(
                    words.begin(), words.end(),
                    [](const QString& word) { return word.isEmpty() || word != word.toLower(); }),
                words.end());
    return words;
}

} // namespace trel::console
