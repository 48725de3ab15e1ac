#pragma once

#include "screen/PreviewPictures.h"

#include <QPixmap>
#include <QWidget>

namespace trel::desktop {

class ScreenFollower;

/// A small copy of the screen: the image on it or the first picture of the film, a drawing for what
/// has no picture, and black with the reason where it is black. The program's name and position
/// stand below in a band of their own; a frozen picture is marked.
class PreviewScreen : public QWidget
{
    Q_OBJECT

public:
    /// The follower outlives the screen.
    PreviewScreen(ScreenFollower& follower, QWidget* parent);

    QSize sizeHint() const override;
    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override;

signals:
    void doubleClicked();
    /// It was a window of its own and is none any more; also Escape and F11 close it.
    void closed();

protected:
    void paintEvent(QPaintEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void showChange();
    void describe();
    void paintWhy(QPainter& painter) const;
    void paintPicture(QPainter& painter);
    void paintBand(QPainter& painter) const;
    void paintFrozen(QPainter& painter) const;
    /// The part of the picture that fits into the widget.
    const QPixmap& fitted(const QImage& image);

    ScreenFollower& m_follower;
    PreviewPictures m_pictures;
    QPixmap m_fitted;         ///< What was painted last, in the size of the widget.
    qint64 m_fittedImage = 0; ///< The image that it is of.
    QSize m_fittedRoom;       ///< In dots of the device.
};

} // namespace trel::desktop
