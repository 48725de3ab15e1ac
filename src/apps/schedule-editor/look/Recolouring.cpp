#include "Recolouring.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QEvent>
#include <QToolTip>
#include <QWidget>
#include <QWindow>

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

/// The windows that are shown or have been. To list the others as well, the toolkit walks through
/// every widget there is.
QWidgetList shownWindows()
{
    QWidgetList shown;
    const QWindowList windows = QGuiApplication::topLevelWindows();
    for (const QWindow* const window : windows) {
        QWidget* const widget = window->handle() ? QWidget::find(window->winId()) : nullptr;
        if (widget != nullptr) {
            shown.append(widget);
        }
    }
    return shown;
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
    m_hasRest = false;
    QToolTip::setPalette(QApplication::palette());
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget* const window : windows) {
        recolourWhole(*window);
    }
}

void Recolouring::begin()
{
    m_waiting.clear();
    m_shown.clear();
    const QWidgetList windows = shownWindows();
    for (QWidget* const window : windows) {
        recolourInSight(*window, window->rect());
        m_shown.emplace_back(window);
    }
    m_hasRest = true;
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

void Recolouring::beginWithTheRest()
{
    // For a palette of a class, too, the toolkit walks through every widget.
    QToolTip::setPalette(QApplication::palette());
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget* const window : windows) {
        if (std::find(m_shown.begin(), m_shown.end(), window) == m_shown.end()) {
            putOff(*window);
        }
    }
    m_hasRest = false;
}

void Recolouring::takeTurn()
{
    if (m_hasRest) {
        beginWithTheRest();
    }
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
