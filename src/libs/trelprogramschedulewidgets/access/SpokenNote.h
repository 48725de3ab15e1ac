#pragma once

#include <QWidget>

class QAccessibleInterface;

namespace trel::mediadispatch {

/// What a screen reader is to say of something that does not have the focus. It is a part of the
/// widget that it is said of, and not seen.
///
/// Checked with Qt 5.15.8: the toolkit passes no alerts on to the accessibility bus. A notification
/// that shows up is passed on, and is said without an interruption.
class SpokenNote : public QWidget
{
    Q_OBJECT

public:
    /// Has the name and the description of a thing said. The note is made a child of the place when
    /// it is needed first. Does nothing while nobody listens.
    static void say(QWidget& place, const QAccessibleInterface& what);

private:
    explicit SpokenNote(QWidget& place);

    void tell();
};

} // namespace trel::mediadispatch
