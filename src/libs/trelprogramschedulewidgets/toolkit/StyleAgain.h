#pragma once

class QWidget;

namespace trel::mediadispatch {

// A style sheet looks at the dynamic properties of a widget again when the widget is given a style.
// One that has been given the application's style by name keeps it, however: when the application
// takes another style, the toolkit deletes the former one and leaves the widget with what is gone,
// which is a crash where there is a style sheet in between. Checked with Qt 5.15.8.

/// Gives a widget the application's style, in one step that it is told of, and has the toolkit look
/// after it below a style sheet. Goes through none of the widgets in it, but where there is a style
/// sheet of what lies around it.
void setStyleAgain(QWidget& widget);

/// For each QEvent::StyleChange from elsewhere that such a widget or a part of it gets: has it drop
/// a style that setStyleAgain(), or a style sheet that is gone, has left.
void dropFormerStyle(QWidget& widget);

} // namespace trel::mediadispatch
