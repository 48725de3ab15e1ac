#pragma once

class QWidget;

namespace trel::mediadispatch {

/// Has what a style sheet keeps of the fields in a part go when they go. To be called for fields
/// that have just been made, in the place where they stay and before anybody sees them.
///
/// Checked with Qt 5.15.8: under a style sheet, be it of an ancestor only, the toolkit files
/// records of each widget that it asks about, and drops them when the widget is destroyed. The
/// lines in spin boxes and in boxes that one can type in are left out of that, so that some 300
/// bytes stay for each as long as the program runs. A line that has a style sheet of its own is not
/// left out; the one that it gets here says nothing.
void releaseStyleRecords(QWidget& part);

} // namespace trel::mediadispatch
