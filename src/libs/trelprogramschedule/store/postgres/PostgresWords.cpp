#include "PostgresWords.h"

#include <QCryptographicHash>
#include <QRegularExpression>

#include <iterator>

namespace trel::mediadispatch {

namespace {

struct Replacement
{
    const char* pattern;
    const char* words;
};

constexpr Replacement kInDefinitions[] = {
    {" STRICT(, WITHOUT ROWID)?", ""},
    {"\\bINTEGER\\b", "bigint"},
    {"\\bREAL\\b", "double precision"},
    {"\\b(TEXT|BLOB)\\b", "bytea"},
    {"\\(media_path\\)", "(sha256(media_path))"},
};

constexpr Replacement kElsewhere[] = {
    {"\\bmedia_path = CAST\\(\\? AS TEXT\\)", "sha256(media_path) = sha256(?)"},
    {"\\bCAST\\((\\?|\\w+) AS (TEXT|BLOB)\\)", "\\1"},
};

bool isDefinition(const QString& statement)
{
    return statement.startsWith(QLatin1String("CREATE ")) ||
           statement.startsWith(QLatin1String("ALTER "));
}

template <std::size_t Count>
QString replacedIn(QString words, const Replacement (&replacements)[Count])
{
    for (const Replacement& replacement : replacements) {
        words.replace(QRegularExpression(QLatin1String(replacement.pattern)),
                      QLatin1String(replacement.words));
    }
    return words;
}

/// Names and texts in quotes stay as they are, since a schedule can have any name. A mark that
/// stands twice ends one and begins the next.
template <std::size_t Count>
QString replaced(const QString& statement, const Replacement (&replacements)[Count])
{
    static const QRegularExpression inQuotes(QStringLiteral("\"[^\"]*\"|'[^']*'"));
    QString words;
    int end = 0;
    QRegularExpressionMatchIterator places = inQuotes.globalMatch(statement);
    while (places.hasNext()) {
        const QRegularExpressionMatch place = places.next();
        words += replacedIn(statement.mid(end, place.capturedStart() - end), replacements);
        words += place.captured();
        end = place.capturedEnd();
    }
    return words + replacedIn(statement.mid(end), replacements);
}

QString quoted(QString text, QLatin1Char mark)
{
    text.replace(mark, QString(2, mark));
    return mark + text + mark;
}

} // namespace

QString postgresWords(const QString& statement)
{
    return isDefinition(statement) ? replaced(statement, kInDefinitions)
                                   : replaced(statement, kElsewhere);
}

QString postgresName(const QString& name)
{
    return quoted(name, QLatin1Char('"'));
}

QString postgresChannel(const QString& schema)
{
    // As many letters as the server takes of a name, and some less.
    constexpr int digits = 40;
    const QByteArray digest = QCryptographicHash::hash(schema.toUtf8(), QCryptographicHash::Sha256);
    return QStringLiteral("trel_schedule_") + QString::fromLatin1(digest.toHex().left(digits));
}

QString postgresText(const QString& text)
{
    return quoted(text, QLatin1Char('\''));
}

} // namespace trel::mediadispatch
