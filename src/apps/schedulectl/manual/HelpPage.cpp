#include "HelpPage.h"

#include <QRegularExpression>
#include <QStringList>

namespace trel::console {

namespace {

/// Takes lines off the front up to the given one, which goes too.
QStringList takeUntil(QStringList& lines, const QString& end)
{
    QStringList taken;
    while (!lines.isEmpty()) {
        const QString line = lines.takeFirst();
        if (line == end) {
            break;
        }
        taken.append(line);
    }
    return taken;
}

/// Adds what the help lists in two columns; a meaning goes on in lines that begin with its column.
void addItems(ManualPage& page, const QStringList& lines)
{
    static const QRegularExpression first(QStringLiteral("^  (\\S.*?)(?:   *(\\S.*))?$"));
    QString term;
    QString meaning;
    const auto finish = [&] {
        if (!term.isEmpty()) {
            page.item(term, meaning);
        }
    };
    for (const QString& line : lines) {
        const QRegularExpressionMatch match = first.match(line);
        if (match.hasMatch()) {
            finish();
            term = match.captured(1).remove(QLatin1Char('<')).remove(QLatin1Char('>'));
            meaning = match.captured(2);
        } else {
            meaning += QLatin1Char(' ') + line.trimmed();
        }
    }
    finish();
}

} // namespace

QString helpPage(const QString& name, const QString& purpose, const QString& help,
                 const QString& rest, const ManualPage::Package& package)
{
    static const QRegularExpression usage(QStringLiteral("^Usage: \\S+ (.*)$"));
    QStringList lines = help.trimmed().split(QLatin1Char('\n'));
    const QRegularExpressionMatch match = usage.match(lines.takeFirst());
    const QStringList description = takeUntil(lines, QStringLiteral("Options:"));
    const QStringList options = takeUntil(lines, QStringLiteral("Arguments:"));
    if (!match.hasMatch() || options.isEmpty()) {
        return {};
    }
    ManualPage page(name, purpose, package);
    page.section(QStringLiteral("SYNOPSIS"));
    page.usage(name + QLatin1Char(' ') +
               match.captured(1).replace(QLatin1String("[options]"), QLatin1String("[OPTION...]")));
    page.section(QStringLiteral("DESCRIPTION"));
    page.text(description.join(QLatin1Char('\n')));
    page.section(QStringLiteral("OPTIONS"));
    addItems(page, options);
    addItems(page, lines);
    page.raw(rest);
    return page.page();
}

} // namespace trel::console
