#pragma once

#include <QString>

namespace trel::console {

/// How wide a text is at the size of the editor's captions, in pixels, worked out from the advance
/// widths of the font that the editor is shipped with (Noto Sans CJK at 12 pixels).
///
/// No font is loaded, so that this works where there is none. What the font leaves open is taken at
/// its widest: letters that it lacks, pairs that it would move together, and quotation marks, which
/// some of its faces give the width of a Han letter. So a text is at most as wide as this says.
int textWidth(const QString& text);

} // namespace trel::console
