#pragma once

#include "stage/FrameSink.h"

#include <QWindow>

namespace trel::player {

/// A window that shows the pictures of a stage, dot by dot, with no pointer above them. It does not
/// close: a request is told, and what becomes of it is for the program to say.
class PlayerWindow : public QWindow, public FrameSink
{
    Q_OBJECT

public:
    ~PlayerWindow() override;

    /// The dots that it has.
    QSize dots() const;

signals:
    /// It has another number of dots from now on.
    void dotsChanged();
    void closeAsked();

protected:
    explicit PlayerWindow(QSurface::SurfaceType surface);

    /// Shows the present picture, if the window is to be seen.
    virtual void paint() = 0;

    bool event(QEvent* event) override;
    void exposeEvent(QExposeEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
};

} // namespace trel::player
