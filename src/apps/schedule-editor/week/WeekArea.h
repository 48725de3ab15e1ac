#pragma once

#include "week/WeekGeometry.h"

#include <QObject>

class QAbstractScrollArea;

namespace trel::desktop::week {

/// The days on a scroll area: how high their hours are, and which of them are in sight. Keeps the
/// ranges of the scroll bars.
class WeekArea : public QObject
{
    Q_OBJECT

public:
    /// The scroll area is the parent.
    explicit WeekArea(QAbstractScrollArea* view);

    const WeekGeometry& geometry() const { return m_geometry; }
    /// What of the picture stands at the top left of the viewport.
    QPoint offset() const;

    /// Makes hours so many times as high, with what stands at a height of the viewport staying
    /// there. They are never lower than the whole day fits into.
    void zoomAt(double factor, int y);
    /// Makes hours as high as the whole day fits into, from now on.
    void fit();
    bool isFit() const { return m_isFit; }
    /// To be called when the size or the direction of the viewport may be another.
    void adapt();

    /// Scrolls a moment to the middle, and its day to where reading begins.
    void centre(int day, int second);
    /// Scrolls as little as brings a part of the viewport's coordinates into sight, its begin
    /// before its end.
    void reveal(const QRect& rect);

signals:
    /// Everything may stand elsewhere.
    void moved();
    /// Hours are of another height.
    void zoomed();

private:
    double fittingHour() const;
    void update(double hourHeight);
    bool isMirrored() const;

    QAbstractScrollArea* m_view;
    WeekGeometry m_geometry;
    bool m_isFit = true;
};

} // namespace trel::desktop::week
