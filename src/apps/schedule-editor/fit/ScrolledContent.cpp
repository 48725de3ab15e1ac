#include "fit/ScrolledContent.h"

#include "fit/ScreenRoom.h"

#include <QDockWidget>
#include <QEvent>
#include <QLayout>
#include <QMainWindow>
#include <QMenuBar>
#include <QStatusBar>
#include <QStyle>
#include <QToolBar>

#include <algorithm>

namespace trel::desktop::fit {

namespace {

/// So much of the content can be seen on the smallest screen.
constexpr QSize kLeast(200, 120);

/// What the panels at each side of the middle take at least.
QSize panelsOf(const QMainWindow& window)
{
    int left = 0;
    int right = 0;
    int below = 0;
    const auto panels = window.findChildren<QDockWidget*>(QString(), Qt::FindDirectChildrenOnly);
    for (QDockWidget* const panel : panels) {
        if (panel->isHidden() || panel->isFloating()) {
            continue;
        }
        const QSize least = panel->minimumSizeHint().expandedTo(panel->minimumSize());
        switch (window.dockWidgetArea(panel)) {
        case Qt::LeftDockWidgetArea:
            left = std::max(left, least.width());
            break;
        case Qt::RightDockWidgetArea:
            right = std::max(right, least.width());
            break;
        default:
            below = std::max(below, least.height());
            break;
        }
    }
    const int line =
        window.style()->pixelMetric(QStyle::PM_DockWidgetSeparatorExtent, nullptr, &window);
    return {left + right + 2 * line, below + line};
}

QSize barsOf(const QMainWindow& window)
{
    int height = 0;
    for (const QWidget* const bar :
         {window.menuWidget(), static_cast<QWidget*>(window.findChild<QStatusBar*>())}) {
        height += bar == nullptr || bar->isHidden() ? 0 : bar->minimumSizeHint().height();
    }
    const auto bars = window.findChildren<QToolBar*>(QString(), Qt::FindDirectChildrenOnly);
    for (const QToolBar* const bar : bars) {
        height += bar->isHidden() || bar->isFloating() ? 0 : bar->sizeHint().height();
    }
    return {0, height};
}

QSize besideIn(const QWidget& window)
{
    if (const auto* const main = qobject_cast<const QMainWindow*>(&window)) {
        return panelsOf(*main) + barsOf(*main);
    }
    const QMargins around =
        window.layout() == nullptr ? QMargins() : window.layout()->contentsMargins();
    return {around.left() + around.right(), around.top() + around.bottom()};
}

} // namespace

ScrolledContent::ScrolledContent(QWidget& content, QWidget* parent)
    : QScrollArea(parent)
{
    setObjectName(QStringLiteral("scrolledContent"));
    setFrameShape(QFrame::NoFrame);
    // Keys go to what is in it, and it follows the focus.
    setFocusPolicy(Qt::NoFocus);
    setWidgetResizable(true);
    setWidget(&content);
}

ScrolledContent::~ScrolledContent() = default;

QSize ScrolledContent::minimumSizeHint() const
{
    const QSize room = roomFor(*window()) - besideIn(*window());
    return widget()->minimumSizeHint().boundedTo(room.expandedTo(kLeast));
}

bool ScrolledContent::event(QEvent* event)
{
    const bool isDone = QScrollArea::event(event);
    if (event->type() == QEvent::Show) {
        window()->installEventFilter(this);
        askAnew();
    } else if (event->type() == QEvent::LayoutRequest) {
        askAnew();
    }
    return isDone;
}

bool ScrolledContent::eventFilter(QObject* watched, QEvent* event)
{
    // A panel that has come or gone leaves more or less room, which the window is about to share
    // out.
    if (watched == window() && event->type() == QEvent::LayoutRequest) {
        askAnew();
    }
    return QScrollArea::eventFilter(watched, event);
}

void ScrolledContent::askAnew()
{
    const QSize asked = minimumSizeHint();
    if (asked != m_asked) {
        m_asked = asked;
        // Where one scrolls anyway, it is to something that is of use.
        const bool isCut = asked.height() < widget()->minimumSizeHint().height();
        widget()->setMinimumHeight(isCut ? widget()->sizeHint().height() : 0);
        updateGeometry();
        if (const auto* const main = qobject_cast<QMainWindow*>(window());
            main != nullptr && main->centralWidget() == this) {
            // A panel that has got more to show has made the window larger meanwhile.
            main->layout()->activate();
            keepWithinRoom(*window());
        }
    }
}

} // namespace trel::desktop::fit
