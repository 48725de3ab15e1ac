#pragma once

#include <QString>

namespace trel::desktop {

/// The text of a menu entry without the mark of its letter, and without a letter in brackets, as
/// languages have it that are not written in Latin letters.
QString withoutLetter(QString text);

} // namespace trel::desktop
