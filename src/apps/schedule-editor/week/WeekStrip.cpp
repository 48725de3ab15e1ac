#include "week/WeekStrip.h"

#include <QPaintEvent>
#include <QPainter>

#include <utility>

namespace trel::desktop::week {

WeekStrip::WeekStrip(Paint paint, QWidget* parent)
    : QWidget(parent)
    , m_paint(std::move(paint))
{
    setFocusPolicy(Qt::NoFocus);
}

void WeekStrip::paintEvent(QPaintEvent* event)
{
    QPainter painter(this);
    m_paint(painter, event->rect());
}

} // namespace trel::desktop::week
