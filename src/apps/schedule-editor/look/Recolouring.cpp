#include "Recolouring.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QEvent>
#include <QWidget>

#include <algorithm>

namespace trel::desktop::look {

namespace {

/// A fraction of a frame, and what is left of it for everything else.
constexpr int kTurnMSecs = 4;
constexpr int kPauseMSecs = 12;

/// What lies inside a widget, but for windows.
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

} // namespace

Recolouring::Recolouring(EditorStyle& style)
    : m_style(&style)
{
    m_turn.setSingleShot(true);
    m_turn.setInterval(kPauseMSecs);
    connect(&m_turn, &QTimer::timeout, this, &Recolouring::takeTurn);
}

void Recolouring::run()
{
    m_waiting.clear();
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget* const window : windows) {
        recolourWhole(*window);
    }
}

void Recolouring::begin()
{
    m_waiting.clear();
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget* const window : windows) {
        recolourInSight(*window, window->rect());
    }
    m_turn.start();
}

// The toolkit passes a new palette over the widgets below a style sheet, such as the list of the
// cards has. What a widget has set for itself it keeps.
void Recolouring::recolour(QWidget& widget)
{
    widget.setPalette(widget.testAttribute(Qt::WA_SetPalette) ? widget.palette() : QPalette());
    if (m_style && widget.testAttribute(Qt::WA_WState_Polished)) {
        m_style->recolour(&widget);
    }
    widget.update();
}

void Recolouring::recolourWhole(QWidget& widget)
{
    recolour(widget);
    for (QWidget* const part : partsOf(widget)) {
        recolourWhole(*part);
    }
}

void Recolouring::recolourInSight(QWidget& widget, const QRect& sight)
{
    recolour(widget);
    for (QWidget* const part : partsOf(widget)) {
        const QRect ofPart = sight.intersected(part->geometry()).translated(-part->pos());
        if (part->isHidden() || ofPart.isEmpty()) {
            putOff(*part);
        } else {
            recolourInSight(*part, ofPart);
        }
    }
}

void Recolouring::putOff(QWidget& part)
{
    part.installEventFilter(this);
    m_waiting.emplace_back(&part);
}

void Recolouring::takeTurn()
{
    QElapsedTimer timer;
    timer.start();
    while (!m_waiting.empty() && !timer.hasExpired(kTurnMSecs)) {
        const QPointer<QWidget> part = std::move(m_waiting.back());
        m_waiting.pop_back();
        if (part) {
            part->removeEventFilter(this);
            recolourWhole(*part);
        }
    }
    if (!m_waiting.empty()) {
        m_turn.start();
    }
}

bool Recolouring::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Show || event->type() == QEvent::Paint) {
        watched->removeEventFilter(this);
        const auto waiting = std::find(m_waiting.begin(), m_waiting.end(), watched);
        if (waiting != m_waiting.end()) {
            m_waiting.erase(waiting);
            recolourWhole(*static_cast<QWidget*>(watched));
        }
    }
    return QObject::eventFilter(watched, event);
}

} // namespace trel::desktop::look
