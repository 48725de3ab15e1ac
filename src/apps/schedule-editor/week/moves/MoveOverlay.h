#pragma once

#include "look/ThemeColours.h"

#include <QRect>
#include <QString>
#include <QWidget>

#include <vector>

namespace trel::desktop::week {

/// What is drawn over the picture while something is dragged; in its coordinates.
struct MovePicture
{
    std::vector<QRect> ghosts;     ///< Where it would come to.
    std::vector<QRect> collisions; ///< What it would collide with.
    QString text;
    QPoint place; ///< The text stands near it.
    bool isRefused = false;
};

/// Lies over the picture and lets everything through. Hidden while there is nothing to show.
class MoveOverlay : public QWidget
{
    Q_OBJECT

public:
    explicit MoveOverlay(QWidget* picture);

    void setColours(const look::ThemeColours& colours);
    void show(const MovePicture& picture);
    const MovePicture& shown() const { return m_picture; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void paintText(QPainter& painter) const;

    look::ThemeColours m_colours;
    MovePicture m_picture;
};

} // namespace trel::desktop::week
