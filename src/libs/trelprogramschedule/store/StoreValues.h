#pragma once

#include <QByteArray>
#include <QSqlQuery>
#include <QString>
#include <QVariant>

#include <string>

namespace trel::mediadispatch {

/// Binds values to the places of a query, from the given one on. A place keeps its value from one
/// run of the query to the next.
template <typename... Values>
void bindFrom(int place, QSqlQuery& query, const Values&... values)
{
    (query.bindValue(place++, values), ...);
}

/// The bytes of a text, to be bound where the statement casts them to text: that way nothing is
/// converted, and a name that is no proper UTF-8 survives too. Valid as long as the text is.
inline QByteArray bytes(const std::string& text)
{
    return QByteArray::fromRawData(text.data(), static_cast<int>(text.size()));
}

/// The same of another text; never null.
inline QByteArray bytes(const QString& text)
{
    return text.isEmpty() ? QByteArray("") : text.toUtf8();
}

/// What is true or not, for a column of numbers.
inline int number(bool isTrue)
{
    return isTrue ? 1 : 0;
}

/// The UTF-8 text of a column, read as text or as its bytes.
inline std::string utf8(const QSqlQuery& row, int column)
{
    return row.value(column).toByteArray().toStdString();
}

} // namespace trel::mediadispatch
