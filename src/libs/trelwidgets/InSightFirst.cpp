#include "InSightFirst.h"

#include <QEvent>

#include <algorithm>
#include <utility>

namespace trel::widgets {

InSightFirst::InSightFirst(Deed deed)
    : m_deed(std::move(deed))
{}

void InSightFirst::doWhole(QWidget& widget)
{
    m_deed(widget);
    for (QWidget* const part : partsOf(widget)) {
        doWhole(*part);
    }
}

void InSightFirst::doInSight(QWidget& widget, const QRect& area)
{
    m_deed(widget);
    for (QWidget* const part : partsOf(widget)) {
        const QRect ofPart = area.intersected(part->geometry()).translated(-part->pos());
        if (part->isHidden() || ofPart.isEmpty()) {
            putOff(*part);
        } else {
            doInSight(*part, ofPart);
        }
    }
}

void InSightFirst::putOff(QWidget& widget)
{
    widget.installEventFilter(this);
    m_waiting.emplace_back(&widget);
}

void InSightFirst::doNext()
{
    const QPointer<QWidget> widget = std::move(m_waiting.back());
    m_waiting.pop_back();
    if (widget) {
        widget->removeEventFilter(this);
        doWhole(*widget);
    }
}

void InSightFirst::forget()
{
    m_waiting.clear();
}

bool InSightFirst::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Show || event->type() == QEvent::Paint) {
        watched->removeEventFilter(this);
        const auto waiting = std::find(m_waiting.begin(), m_waiting.end(), watched);
        if (waiting != m_waiting.end()) {
            m_waiting.erase(waiting);
            doWhole(*static_cast<QWidget*>(watched));
        }
    }
    return QObject::eventFilter(watched, event);
}

std::vector<QWidget*> partsOf(const QWidget& widget)
{
    std::vector<QWidget*> parts;
    for (QObject* const child : widget.children()) {
        auto* const part = qobject_cast<QWidget*>(child);
        if (part != nullptr && !part->isWindow()) {
            parts.push_back(part);
        }
    }
    return parts;
}

} // namespace trel::widgets
