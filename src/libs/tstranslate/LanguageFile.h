#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

namespace tessark::trans {

/// The bytes of a compiled Linguist file, checked from end to end; none when the file cannot be
/// read or is not a whole language file with at least one text.
///
/// QTranslator trusts the lengths and offsets in a file. A damaged one can make it read past the
/// end, or answer with a part of its texts, so nothing reaches it that has not passed this check.
std::optional<QByteArray> readLanguageFile(const QString& file);

} // namespace tessark::trans
