#pragma once

#include <QStringList>

#include <vector>

namespace trel::console {

/// One text of a language file. The Linguist's names for its parts are context, disambiguation and
/// source text.
struct LanguageText
{
    QString group;
    QString context;
    QString key;
    QString text;           ///< The first of the forms.
    QStringList forms;      ///< More than one for a plural.
    bool isPlural = false;  ///< Only a source file marks it where there is one form.
    bool isFinished = true; ///< A source file marks what its translator is not sure of.
};

/// What a language file holds.
struct LanguageTexts
{
    std::vector<LanguageText> texts; ///< In the order of the file, repeated ones included.
    QString language;                ///< As the file names it, such as "de_DE"; may be empty.
    QString error; ///< Why the file cannot be used, as part of a sentence; else empty.
};

} // namespace trel::console
