#include "Terms.h"

#include "common/DisplayText.h"

#include <QFile>
#include <QLocale>

using namespace trel::hosts;

namespace trel::console {

namespace {

/// Chinese, Japanese and Korean words are not divided, or have endings without a break.
bool dividesWords(const QString& language)
{
    const QLocale::Language code = QLocale(language).language();
    return code != QLocale::Chinese && code != QLocale::Japanese && code != QLocale::Korean;
}

/// Finds a word by itself, where the language divides words; "*" at its end is any ending.
QRegularExpression patternOf(QString word, const QString& language)
{
    const bool hasAnyEnding = word.endsWith(QLatin1Char('*'));
    if (hasAnyEnding) {
        word.chop(1);
    }
    QString pattern = QRegularExpression::escape(word);
    if (dividesWords(language)) {
        pattern.prepend(QStringLiteral("(?<!\\p{L})"));
        pattern.append(hasAnyEnding ? QString() : QStringLiteral("(?!\\p{L})"));
    }
    return QRegularExpression(pattern, QRegularExpression::CaseInsensitiveOption |
                                           QRegularExpression::UseUnicodePropertiesOption);
}

QStringList linesOfTheTable()
{
    QFile file(QStringLiteral(":/language/terms.md"));
    return file.open(QIODevice::ReadOnly)
               ? QString::fromUtf8(file.readAll()).split(QLatin1Char('\n'))
               : QStringList();
}

} // namespace

Terms::Terms(const QString& language)
{
    enum Cell { Thing = 1, Word, Banned, Count = 5 };
    bool isInside = false;
    const QStringList lines = language.isEmpty() ? QStringList() : linesOfTheTable();
    for (const QString& line : lines) {
        if (line.startsWith(QLatin1String("## "))) {
            isInside = line.endsWith(QStringLiteral("(%1)").arg(language));
        }
        const QStringList cells = line.split(QLatin1Char('|'));
        if (!isInside || cells.size() != Count ||
            cells[Thing].trimmed() == QLatin1String("Thing")) {
            continue;
        }
        const QStringList words = cells[Banned].trimmed().split(QStringLiteral(", "));
        for (const QString& word : words) {
            if (!word.isEmpty() && !word.startsWith(QLatin1Char('-'))) {
                m_bans.push_back({word, cells[Thing].trimmed(), cells[Word].trimmed(),
                                  patternOf(word, language)});
            }
        }
    }
}

QString Terms::bannedIn(const QStringList& forms) const
{
    for (const Ban& ban : m_bans) {
        for (QString form : forms) {
            const QRegularExpressionMatch match = ban.pattern.match(form.remove(QLatin1Char('&')));
            if (match.hasMatch()) {
                return QStringLiteral("%1 for \"%2\"; the word is %3")
                    .arg(inQuotes(match.captured()), ban.thing, inQuotes(ban.instead));
            }
        }
    }
    return QString();
}

} // namespace trel::console
