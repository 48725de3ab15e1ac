#pragma once

#include "tstranslate_export.h"

#include <QString>

#include <memory>

namespace tessark::trans {

/// Texts by key, in several languages, of which one is selected.
///
/// A language file is a compiled Linguist file (.qm) that names its language; one that names none
/// is known by its own name without the suffix. In it the group is the Linguist context, the
/// context its disambiguation and the key its source text. An empty text counts as lacking. Not
/// thread-safe.
class TSTRANSLATE_EXPORT Translator
{
public:
    Translator();
    ~Translator();
    Translator(const Translator&) = delete;
    Translator& operator=(const Translator&) = delete;

    /// Loads a language file whole into memory; the file may change or go afterwards. A second file
    /// of a language takes the place of the first. Returns false, and leaves every language as it
    /// was, for a file that is missing, without texts, damaged or no language file, for one that
    /// refers to other files or has nothing of what acceptOnly wants, and for lack of memory.
    bool load(const QString& file);

    /// Selects the language of later lookups, by name, such as "zh_CN". A name that was not loaded
    /// is kept, and takes effect once its file is.
    void switchLanguage(const QString& language);

    /// The name last given to switchLanguage; "zh_CN" before the first call.
    QString language() const;

    /// Lets load refuse files without a text of this group from now on, so that the texts of
    /// another program do not take the place of a language. An empty group lets in every file, as
    /// before the first call. What is loaded stays.
    void acceptOnly(const QString& group);

private:
    friend TSTRANSLATE_EXPORT QString translate(const Translator& translator, const QString& group,
                                                const QString& context, const QString& key);

    class Private;
    std::unique_ptr<Private> d;
};

/// The text for a key in the selected language. What that language lacks is looked up in "zh_CN",
/// and failing that the key itself is returned.
TSTRANSLATE_EXPORT QString translate(const Translator& translator, const QString& group,
                                     const QString& context, const QString& key);

} // namespace tessark::trans
