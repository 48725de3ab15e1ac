#include "Recolouring.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QToolTip>
#include <QWidget>
#include <QWindow>

#include <algorithm>

namespace trel::desktop::look {

namespace {

/// A fraction of a frame, and what is left of it for everything else.
constexpr int kTurnMSecs = 4;
constexpr int kPauseMSecs = 12;

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
    , m_parts([this](QWidget& widget) { recolour(widget); })
{
    m_turn.setSingleShot(true);
    m_turn.setInterval(kPauseMSecs);
    connect(&m_turn, &QTimer::timeout, this, &Recolouring::takeTurn);
}

void Recolouring::run()
{
    m_parts.forget();
    m_hasRest = false;
    QToolTip::setPalette(QApplication::palette());
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget* const window : windows) {
        m_parts.doWhole(*window);
    }
}

void Recolouring::begin()
{
    m_parts.forget();
    m_shown.clear();
    const QWidgetList windows = shownWindows();
    for (QWidget* const window : windows) {
        m_parts.doInSight(*window, window->rect());
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

void Recolouring::beginWithTheRest()
{
    // For a palette of a class, too, the toolkit walks through every widget.
    QToolTip::setPalette(QApplication::palette());
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget* const window : windows) {
        if (std::find(m_shown.begin(), m_shown.end(), window) == m_shown.end()) {
            m_parts.putOff(*window);
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
    while (!m_parts.isDone() && !timer.hasExpired(kTurnMSecs)) {
        m_parts.doNext();
    }
    if (!m_parts.isDone()) {
        m_turn.start();
    }
}

} // namespace trel::desktop::look
