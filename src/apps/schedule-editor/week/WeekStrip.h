#pragma once

#include <QWidget>

#include <functional>

namespace trel::desktop::week {

/// A strip beside the days that somebody else paints, and that is no control.
class WeekStrip : public QWidget
{
    Q_OBJECT

public:
    using Paint = std::function<void(QPainter& painter, const QRect& exposed)>;

    WeekStrip(Paint paint, QWidget* parent);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    Paint m_paint;
};

} // namespace trel::desktop::week
