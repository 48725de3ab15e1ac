#pragma once

class QImage;
class QString;

namespace trel::player {

/// Writes a line of plain text on a picture, large enough to be read from afar, in the lower part
/// of it, white with a dark edge. What does not fit ends in an ellipsis. An empty one writes
/// nothing.
void drawCaption(QImage& picture, const QString& caption);

} // namespace trel::player
