#pragma once

#include <QByteArray>
#include <QString>

namespace trel::console {

/// A line of comma-separated values in UTF-8, as RFC 4180 has them, but ended by a line feed alone.
///
/// A text that a spreadsheet would take for a formula gets an apostrophe in front: one that begins
/// with =, +, -, @ or one of their wide forms. So does what follows a semicolon, at which some part
/// the fields. What a terminal would obey, an end of a line
/// included, is written as an escape.
class CsvLine
{
public:
    void addText(const QString& text);
    void addNumber(qint64 number);
    /// What this program has made: a name, a moment, or nothing.
    void addWord(const QString& word);

    /// The line with its end.
    QByteArray text() const { return m_text + '\n'; }

private:
    void addField(const QByteArray& field);

    QByteArray m_text;
    bool m_hasField = false;
};

} // namespace trel::console
