#include "ManualPage.h"

#include <QRegularExpression>

namespace trel::console {

ManualPage::ManualPage(const QString& name, const QString& purpose, const Package& package)
{
    m_text = QStringLiteral(".TH %1 1 %2 \"%3 %4\" \"User Commands\"\n")
                 .arg(name.toUpper(), package.date, name, package.version);
    section(QStringLiteral("NAME"));
    m_text += QStringLiteral("%1 \\- %2\n").arg(escaped(name), escaped(purpose));
}

void ManualPage::section(const QString& title)
{
    m_text += QStringLiteral(".SH %1\n").arg(escaped(title));
}

void ManualPage::subsection(const QString& title)
{
    m_text += QStringLiteral(".SS %1\n").arg(typed(title));
}

void ManualPage::usage(const QString& line)
{
    m_text += QStringLiteral("%1\n").arg(typed(line));
}

void ManualPage::text(const QString& paragraphs)
{
    static const QRegularExpression item(QStringLiteral("^ +- "));
    bool isInList = false;
    bool needsBreak = false;
    const QStringList lines = paragraphs.split(QLatin1Char('\n'));
    for (const QString& read : lines) {
        const QString words = read.trimmed();
        const QRegularExpressionMatch match = item.match(read);
        if (words.isEmpty()) {
            needsBreak = true;
            continue;
        }
        if (match.hasMatch()) {
            m_text += QStringLiteral(".IP \\(bu 2\n") + line(read.mid(match.capturedLength()));
            isInList = true;
        } else {
            const bool leavesList = isInList && !read.startsWith(QLatin1Char(' '));
            if (leavesList || needsBreak) {
                m_text += QStringLiteral(".PP\n");
                isInList = false;
            }
            m_text += line(words);
        }
        needsBreak = false;
    }
}

void ManualPage::item(const QString& term, const QString& meaning)
{
    m_text += QStringLiteral(".TP\n%1\n%2").arg(typed(term), line(meaning.simplified()));
}

QString ManualPage::escaped(const QString& text)
{
    QString result;
    for (const QChar character : text) {
        switch (character.unicode()) {
        case '\\':
            result += QLatin1String("\\(rs");
            break;
        case '-':
            result += QLatin1String("\\-");
            break;
        case '\'':
            result += QLatin1String("\\(aq");
            break;
        case '"':
            result += QLatin1String("\\(dq");
            break;
        case '`':
            result += QLatin1String("\\(ga");
            break;
        case '^':
            result += QLatin1String("\\(ha");
            break;
        case '~':
            result += QLatin1String("\\(ti");
            break;
        default:
            result += character;
        }
    }
    return result;
}

QString ManualPage::typed(const QString& line)
{
    // What is in capitals stands for something else, and the rest is typed as it stands.
    static const QRegularExpression others(QStringLiteral("\\b([A-Z]{2,})\\b"));
    static const QRegularExpression signs(QStringLiteral("([\\[\\]|,]|\\.\\.\\.)"));
    QString result = escaped(line);
    result.replace(others, QStringLiteral("\\fI\\1\\fB"));
    result.replace(signs, QStringLiteral("\\fR\\1\\fB"));
    return QStringLiteral("\\fB%1\\fR").arg(result);
}

QString ManualPage::line(const QString& text)
{
    QString result = escaped(text);
    // What begins with a dot would be a request.
    if (result.startsWith(QLatin1Char('.'))) {
        result.prepend(QLatin1String("\\&"));
    }
    return result + QLatin1Char('\n');
}

} // namespace trel::console
