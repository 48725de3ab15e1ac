#pragma once

#include <QString>

class QAction;

namespace trel::desktop {

/// The text of a menu entry without the mark of its letter, and without a letter in brackets, as
/// languages have it that are not written in Latin letters.
QString withoutLetter(QString text);

/// What an entry is called, without its letter: the name that it was given, or else its text.
QString entryName(const QAction& action);

/// Gives a name to an entry whose text says more than what it does, such as what would be undone.
/// The name may have a letter, as the text has.
void setEntryName(QAction& action, const QString& name);

} // namespace trel::desktop
