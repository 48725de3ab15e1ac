#pragma once

class QWidget;

namespace trel::desktop::access {

/// Lets screen readers find what the host paints: the blocks of the week, the tasks of the year,
/// the programs to come and the signs of the legend below their widgets; previews as pictures, the
/// light of the air as a text; and boxes of choices under their names. Further calls change
/// nothing.
///
/// The toolkit asks for what is told of any object of the process. It is answered for these, and
/// for boxes of choices outside the cards of the editor; for all others the toolkit's own stands.
void installAccessibleParts();

/// Tells a screen reader that the keys have reached another part of a widget with parts. Without a
/// screen reader, before installAccessibleParts(), or while the widget has not got the focus, it
/// does nothing.
void tellCurrentPart(QWidget& widget);

} // namespace trel::desktop::access
