#pragma once

#include <QMap>
#include <QStringList>

/// A text of a language file.
struct Message
{
    QStringList forms; ///< One, or one for each form of the plural.
    bool isPlural = false;
    bool isFinished = false;
};

/// By context and source text, as in "EditorWindow: Save".
using Messages = QMap<QString, Message>;

/// The texts of a source file of the Linguist; ends the test where it cannot be read.
Messages readMessages(const QString& file);
/// The texts of the editor, and those of its host, in a language such as "de_DE".
Messages readEditorLanguage(const QString& language);
Messages readHostLanguage(const QString& language);
/// What stands in the host's code, in the one that it shares with the console, and in its prompts.
const Messages& messagesOfTheCode();
