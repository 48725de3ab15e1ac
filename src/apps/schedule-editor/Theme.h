#pragma once

class QApplication;
class QWidget;

/// The look of the editor and of the host's own windows.
namespace theme {

/// Gives the application its style and its colours. Call before the first window is made.
void applyColours(QApplication& application);

/// Gives a window the style sheet that knows the editor's object names and properties.
void applySheet(QWidget& window);

} // namespace theme
