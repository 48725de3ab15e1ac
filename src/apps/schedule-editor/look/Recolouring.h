#pragma once

#include "EditorStyle.h"
#include "trelwidgets/InSightFirst.h"

#include <QObject>
#include <QPointer>
#include <QTimer>

#include <vector>

namespace trel::desktop::look {

/// Gives the widgets that are there the palette of the application and the colours of its style,
/// after both have changed.
///
/// A long list has tens of thousands of widgets, few of which anybody sees. What is in sight is
/// done at once, the rest in short turns, between which the event loop is free; a part that comes
/// into sight before its turn is done before it is painted. Windows that have never been shown and
/// the palette of the tool tips are part of the rest.
class Recolouring : public QObject
{
public:
    explicit Recolouring(EditorStyle& style);

    /// Does all of it, at once.
    void run();
    /// Does what is in sight, and begins with the rest. What was still to be done of a former call
    /// is part of that.
    void begin();

private:
    void recolour(QWidget& widget);
    void beginWithTheRest();
    void takeTurn();

    QPointer<EditorStyle> m_style; // The application's, which may take another one.
    trel::widgets::InSightFirst m_parts;
    std::vector<QPointer<QWidget>> m_shown; ///< The windows that begin() has done.
    bool m_hasRest = false;                 ///< All other windows, until the next turn.
    QTimer m_turn;
};

} // namespace trel::desktop::look
