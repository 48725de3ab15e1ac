#pragma once

#include "window/PlayerWindow.h"

#include <QBackingStore>
#include <QImage>

namespace trel::player {

/// Copies pictures to the screen from memory.
class RasterWindow : public PlayerWindow
{
    Q_OBJECT

public:
    RasterWindow();

    void frame(const QImage& picture, mediadispatch::Instant moment) override;

protected:
    void paint() override;

private:
    QBackingStore m_store;
    QImage m_picture;
};

} // namespace trel::player
