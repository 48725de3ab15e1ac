#pragma once

#include <QString>

namespace trel::mediadispatch {

/// A statement that was written for all engines, as this one takes it.
///
/// Texts are kept as their bytes, since a text of the server can hold neither a zero nor what is no
/// proper UTF-8. Numbers have 64 bits. An index over a text is over its digest, since the server
/// takes no long keys. What stands in quotes is left as it is.
QString postgresWords(const QString& statement);

/// A name in a statement.
QString postgresName(const QString& name);

/// The channel on which the server tells of changes of what is in a schema. It can stand in a
/// statement as it is, and where the driver writes one, which takes a dot in a name for the border
/// of two.
QString postgresChannel(const QString& schema);

/// A text in a statement.
QString postgresText(const QString& text);

} // namespace trel::mediadispatch
