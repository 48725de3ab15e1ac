#include "CsvLine.h"

#include "common/DisplayText.h"

#include <QStringList>

namespace trel::console {

namespace {

/// A text may hide the sign behind blanks, which some programs take away first.
bool isFormula(const QString& text)
{
    static const QString signs = QStringLiteral("=+-@\uFF1D\uFF0B\uFF0D\uFF20");
    const QString trimmed = text.trimmed();
    return !trimmed.isEmpty() && signs.contains(trimmed.at(0));
}

/// Where a comma parts whole and fraction, spreadsheets part fields at the semicolon, whatever is
/// in quotes.
QString withoutFormulas(const QString& text)
{
    QStringList parts = text.split(QLatin1Char(';'));
    for (QString& part : parts) {
        if (isFormula(part)) {
            part.prepend(QLatin1Char('\''));
        }
    }
    return parts.join(QLatin1Char(';'));
}

} // namespace

void CsvLine::addText(const QString& text)
{
    QByteArray field = hosts::escapedText(withoutFormulas(text)).toUtf8();
    if (field.contains(',') || field.contains('"') || field.startsWith(' ') ||
        field.endsWith(' ')) {
        field.replace('"', "\"\"");
        field = '"' + field + '"';
    }
    addField(field);
}

void CsvLine::addNumber(qint64 number)
{
    addField(QByteArray::number(number));
}

void CsvLine::addWord(const QString& word)
{
    addField(word.toUtf8());
}

void CsvLine::addField(const QByteArray& field)
{
    if (m_hasField) {
        m_text += ',';
    }
    m_text += field;
    m_hasField = true;
}

} // namespace trel::console
