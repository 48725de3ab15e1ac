#pragma once

#include <QString>

namespace trel::desktop {

/// A text that stands on its own within another, such as the name of a program: it runs in the
/// direction of its first letter, whichever way the text around it runs, and so does what an
/// ellipsis leaves of it.
QString isolated(const QString& text);

/// A part of a text as isolated, in the direction of the whole.
QString isolated(const QString& part, const QString& whole);

/// A text that everybody reads from the left, such as a path or a span of time.
QString leftToRight(const QString& text);

} // namespace trel::desktop
