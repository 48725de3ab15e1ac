#pragma once

#include <QRegularExpression>
#include <QStringList>

#include <vector>

namespace trel::console {

/// The words that are not to be used in a language, since another one stands for the thing. They
/// come from docs/terms.md, which is built in.
class Terms
{
public:
    /// A language such as "de_DE"; one that the table does not have bans nothing.
    explicit Terms(const QString& language);

    /// What is wrong with a text, as in "\"Startknopf\" for the start button; it is \"Starten\"";
    /// empty where nothing is. Forms are those of one text.
    QString bannedIn(const QStringList& forms) const;

private:
    struct Ban
    {
        QString word;
        QString thing;
        QString instead;
        QRegularExpression pattern;
    };
    std::vector<Ban> m_bans;
};

} // namespace trel::console
