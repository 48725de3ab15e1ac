#pragma once

#include <QByteArray>
#include <QString>

#include <string>

namespace trel::hosts {

/// How many columns of a terminal a text takes: two for each wide character, none for those that
/// stand on the one before.
int displayWidth(const QString& text);

/// The text as it may go to a terminal: what would move the cursor, change colours or turn the
/// direction of writing around is written as an escape, such as \n or \x1b. A text that would fill
/// the terminal loses its middle.
QString printable(const QString& text);
/// As above, of UTF-8; bytes that are none become U+FFFD.
QString printable(const std::string& utf8);

/// As printable, whole.
QString escapedText(const QString& text);

/// As escapedText, of lines, which stay lines.
QString escapedLines(const QString& lines);

/// JSON, in UTF-8, with what a terminal would obey escaped as JSON does it; it means the same.
QByteArray printableJson(const QByteArray& json);

/// A printable text in quotation marks.
QString inQuotes(const QString& text);

/// A printable text of at most so many columns, with an ellipsis in the place of its middle.
QString shortened(const QString& text, int columns);

/// A length in milliseconds as hours, minutes, seconds and what is left, such as "0:01:30.500".
QString durationText(double milliseconds);

/// A number with its noun: "1 task", "3 tasks".
QString counted(qint64 number, const QString& noun);

} // namespace trel::hosts
