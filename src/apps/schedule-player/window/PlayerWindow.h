#pragma once

#include "stage/FrameSink.h"

#include <QBackingStore>
#include <QImage>
#include <QWindow>

namespace trel::player {

/// A window that shows the pictures of a stage, dot by dot, with no pointer above them. It does not
/// close: whoever asks for it is told, and what becomes of it is for the program to say.
class PlayerWindow : public QWindow, public FrameSink
{
    Q_OBJECT

public:
    PlayerWindow();
    ~PlayerWindow() override;

    /// The dots that it has.
    QSize dots() const;

    void frame(const QImage& picture, mediadispatch::Instant moment) override;

signals:
    /// It has another number of dots from now on.
    void dotsChanged();
    void closeAsked();

protected:
    bool event(QEvent* event) override;
    void exposeEvent(QExposeEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void paint();

    QBackingStore m_store;
    QImage m_picture;
};

} // namespace trel::player
