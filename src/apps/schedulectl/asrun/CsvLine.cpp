#include "CsvLine.h"

#include "common/DisplayText.h"

namespace trel::console {

void CsvLine::addText(const QString& text)
{
    static const QString formulaSigns = QStringLiteral("=+-@\uFF1D\uFF0B\uFF0D\uFF20");
    // A text may hide the sign behind blanks, which some programs take away first.
    const QString trimmed = text.trimmed();
    const bool isFormula = !trimmed.isEmpty() && formulaSigns.contains(trimmed.at(0));
    QByteArray field = (isFormula ? QLatin1String("'") : QLatin1String("")).latin1();
    field += hosts::escapedText(text).toUtf8();
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
