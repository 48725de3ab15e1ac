#pragma once

#include <QString>
#include <QStringList>

namespace trel::desktop {

/// What the command line asks of the editor.
struct EditorOptions
{
    QString database; ///< A path or an address; empty for the one open last, or the user's own.
    QString demonstration; ///< Folder that a database which does not exist yet is filled from.
    QString screenshot;  ///< Where to write a picture of the editor before ending; empty for none.
    bool edit = false;   ///< Open the editor at once.
    QString language;    ///< Empty for the language last chosen.
    QString theme;       ///< "dark", "light", "high-contrast"; empty for that last chosen.
    QStringList imports; ///< Media to import at the start; never a database.
};

/// How reading a command line ended.
struct EditorOptionsResult
{
    enum class Next {
        Start,  ///< Go on with the options.
        Done,   ///< Print text and end with 0.
        Misuse, ///< Print text and end with 2.
        Version ///< Print the version and end with 0.
    };

    Next next = Next::Start;
    EditorOptions options;
    QString text;
};

/// Reads a command line, the program's name included, and the first bytes of the files that it
/// names: what is a database stands in its place among the options. Needs no application object.
EditorOptionsResult readEditorOptions(const QStringList& arguments);

} // namespace trel::desktop
