#pragma once

class QLineEdit;
class QWidget;

namespace trel::mediadispatch {

/// Whether a line has less room than its text takes.
bool isCut(const QLineEdit& line);

/// Paints the line of a field as it paints itself while it has no focus, but with dots at the end
/// of what has no room. To be called in the place of its own painting.
void paintCut(QLineEdit& line, const QWidget& field);

} // namespace trel::mediadispatch
