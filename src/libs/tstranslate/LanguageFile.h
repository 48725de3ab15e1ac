#pragma once

#include "tstranslate_export.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <optional>
#include <vector>

namespace tessark::trans {

/// One text of a compiled Linguist file.
struct LanguageMessage
{
    QString group; ///< The Linguist's context.
    /// Its disambiguation. Its compiler leaves it out where no other text needs it.
    QString context;
    QString key; ///< Its source text.
    /// The translations: one, or those of a plural. One that is not translated is empty.
    QStringList forms;
    /// A compressed file may drop the key where another part tells its texts apart.
    bool hasKey = false;
};

/// What a compiled Linguist file holds.
struct LanguageFile
{
    QByteArray bytes;                      ///< The whole file, as QTranslator loads it.
    QString language;                      ///< As the file names it, such as "de_DE"; may be empty.
    std::vector<LanguageMessage> messages; ///< In the order of the file.
};

/// How many bytes at its start tell that a file is a compiled language.
inline constexpr int kLanguageFileMagicSize = 16;
/// Whether a file with these first bytes is one.
TSTRANSLATE_EXPORT bool isLanguageFile(const QByteArray& start);

/// A compiled Linguist file, checked from end to end; none when the file cannot be read or is not
/// a whole language file with at least one text.
///
/// QTranslator trusts the lengths and offsets in a file. A damaged one can make it read past the
/// end, or answer with a part of its texts, so nothing reaches it that has not passed this check.
TSTRANSLATE_EXPORT std::optional<LanguageFile> readLanguageFile(const QString& file);

} // namespace tessark::trans
