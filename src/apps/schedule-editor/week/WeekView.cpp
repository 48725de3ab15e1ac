#include "week/WeekView.h"

#include "service/Clock.h"
#include "week/DayPainting.h"
#include "week/FramePainting.h"
#include "week/WeekReasons.h"
#include "week/WeekStrip.h"

#include <QGestureEvent>
#include <QHelpEvent>
#include <QPainter>
#include <QScrollBar>
#include <QToolTip>

#include <algorithm>
#include <cmath>
#include <utility>

using namespace trel::mediadispatch;

namespace week {

namespace {

constexpr int kLeastColumn = 72;
constexpr double kZoomStep = 1.25;
constexpr double kWheelStep = 120.0;

std::shared_ptr<const WeekSchedule> emptySchedule()
{
    return std::make_shared<WeekSchedule>(WeekSchedule::Tasks(), WeekSchedule::Catalogue(),
                                          ScreenInsertions(), QTimeZone::systemTimeZone());
}

QDate startOfWeek(const QDate& day, const QLocale& locale)
{
    return weekOf(day, locale.firstDayOfWeek());
}

} // namespace

WeekView::WeekView(QWidget* parent)
    : QAbstractScrollArea(parent)
    , m_schedule(emptySchedule())
    , m_colours(look::darkColours())
    , m_layout(m_schedule->layout(startOfWeek(Clock::current().today(), locale())))
    , m_minutes(this)
    , m_dates(new WeekStrip(
          [this](QPainter& painter, const QRect&) {
              painter.translate(-offset().x(), 0);
              paintDates(painter, scene(QRect()), m_dates->rect().translated(offset().x(), 0));
          },
          this))
    , m_hours(new WeekStrip(
          [this](QPainter& painter, const QRect&) {
              painter.translate(0, -offset().y());
              paintHours(painter, scene(QRect()), m_hours->rect().translated(0, offset().y()));
          },
          this))
{
    setFocusPolicy(Qt::StrongFocus);
    viewport()->grabGesture(Qt::PinchGesture);
    horizontalScrollBar()->setSingleStep(kLeastColumn / 4);
    connect(&m_minutes, &MinuteTimer::minuteBegan, this, &WeekView::updateNow);
    retranslate();
    updateNow();
}

WeekView::~WeekView() = default;

void WeekView::setSchedule(std::shared_ptr<const WeekSchedule> schedule)
{
    m_schedule = std::move(schedule);
    layOut(firstDay());
    updateNow();
}

void WeekView::setColours(const look::ThemeColours& colours)
{
    m_colours = colours;
    repaintAll();
}

void WeekView::retranslate()
{
    setAccessibleName(tr("Week"));
    repaintAll();
}

void WeekView::layOut(const QDate& first)
{
    const bool isOther = first != firstDay();
    m_layout = m_schedule->layout(first);
    repaintAll();
    if (isOther) {
        emit weekChanged();
    }
}

void WeekView::repaintAll()
{
    viewport()->update();
    m_dates->update();
    m_hours->update();
}

void WeekView::updateNow()
{
    const QDateTime now =
        QDateTime::fromMSecsSinceEpoch(Clock::current().msecsSinceEpoch(), m_schedule->zone());
    m_now = {now.date(), QTime(0, 0).secsTo(now.time())};
    if (m_followsNow && startOfWeek(m_now.date, locale()) != firstDay()) {
        layOut(startOfWeek(m_now.date, locale()));
    }
    repaintAll();
}

void WeekView::showWeekOf(const QDate& day)
{
    const QDate first = startOfWeek(day, locale());
    m_followsNow = first == startOfWeek(m_now.date, locale());
    if (first != firstDay()) {
        layOut(first);
    }
}

void WeekView::stepWeeks(int weeks)
{
    showWeekOf(firstDay().addDays(weeks * kDays));
}

void WeekView::showNow()
{
    updateNow();
    showWeekOf(m_now.date);
    const int y = m_geometry.top(m_now.second);
    verticalScrollBar()->setValue(y - viewport()->height() / 2);
    const QRect column = m_geometry.column(static_cast<int>(firstDay().daysTo(m_now.date)));
    horizontalScrollBar()->setValue(
        layoutDirection() == Qt::LeftToRight ? column.left() : m_geometry.width() - column.right());
}

QPoint WeekView::offset() const
{
    const QScrollBar* bar = horizontalScrollBar();
    const int x =
        layoutDirection() == Qt::LeftToRight ? bar->value() : bar->maximum() - bar->value();
    return {x, verticalScrollBar()->value()};
}

WeekScene WeekView::scene(const QRect& visible) const
{
    return {m_layout, m_geometry, m_colours, locale(), visible, m_now, m_selected, hasFocus()};
}

WeekHit WeekView::hit(const QPoint& place) const
{
    return hitAt(m_layout, m_geometry, place + offset());
}

QRect WeekView::visualRect(const BlockRef& block) const
{
    const qint64 day = firstDay().daysTo(block.date);
    if (day < 0 || day >= kDays) {
        return QRect();
    }
    const WeekColumn& column = m_layout.days[static_cast<std::size_t>(day)];
    const WeekBlock* found = column.blockOf(block.row);
    if (found == nullptr) {
        return QRect();
    }
    const int index = static_cast<int>(day);
    const WeekHit place = hitOf(m_layout, index, *found);
    QRect rect = m_geometry.span(index, found->from, found->to);
    if (found->never != NeverPlays::No) {
        rect = m_geometry.mark(index, found->from);
    } else if (place.piece != nullptr) {
        rect = m_geometry.piece(index, *place.piece);
    }
    return rect.translated(-offset());
}

double WeekView::fittingHour() const
{
    return std::max(viewport()->height() / 24.0, WeekGeometry::kLeastHour);
}

void WeekView::updateGeometry(double hourHeight)
{
    const int width = std::max(viewport()->width(), kLeastColumn * kDays);
    const double former = m_geometry.hourHeight();
    m_geometry = WeekGeometry(width, hourHeight, layoutDirection());
    horizontalScrollBar()->setRange(0, width - viewport()->width());
    horizontalScrollBar()->setPageStep(viewport()->width());
    verticalScrollBar()->setRange(0, std::max(0, m_geometry.height() - viewport()->height()));
    verticalScrollBar()->setPageStep(viewport()->height());
    verticalScrollBar()->setSingleStep(std::max(20, m_geometry.top(900)));
    repaintAll();
    if (former != m_geometry.hourHeight()) {
        emit zoomChanged();
    }
}

void WeekView::zoom(double factor)
{
    zoomAt(factor, viewport()->height() / 2);
}

void WeekView::zoomAt(double factor, int y)
{
    const double hour = (verticalScrollBar()->value() + y) / hourHeight();
    const double wanted = std::min(hourHeight() * factor, WeekGeometry::kMostHour);
    m_isFit = wanted <= fittingHour();
    updateGeometry(m_isFit ? fittingHour() : wanted);
    verticalScrollBar()->setValue(qRound(hour * hourHeight() - y));
}

void WeekView::zoomToFit()
{
    m_isFit = true;
    updateGeometry(fittingHour());
}

void WeekView::placeStrips()
{
    const QFontMetrics metrics = fontMetrics();
    const int hours = metrics.horizontalAdvance(QStringLiteral("00:00")) + 14;
    const int dates = datesHeight(metrics.height());
    setViewportMargins(hours, dates, 0, 0);
    const QRect days = viewport()->geometry();
    m_dates->setGeometry(days.left(), days.top() - dates, days.width(), dates);
    const int x = layoutDirection() == Qt::LeftToRight ? days.left() - hours : days.right() + 1;
    m_hours->setGeometry(x, days.top(), hours, days.height());
}

void WeekView::resizeEvent(QResizeEvent* event)
{
    QAbstractScrollArea::resizeEvent(event);
    placeStrips();
    updateGeometry(m_isFit ? fittingHour() : hourHeight());
}

void WeekView::scrollContentsBy(int, int)
{
    // Texts move along with what is in sight, so that nothing of the old picture can be kept.
    repaintAll();
}

void WeekView::showEvent(QShowEvent* event)
{
    QAbstractScrollArea::showEvent(event);
    updateNow();
    m_minutes.start();
}

void WeekView::hideEvent(QHideEvent* event)
{
    QAbstractScrollArea::hideEvent(event);
    m_minutes.stop();
}

void WeekView::changeEvent(QEvent* event)
{
    QAbstractScrollArea::changeEvent(event);
    switch (event->type()) {
    case QEvent::LocaleChange:
        // The same day stays in sight, in a week that may begin on another one.
        layOut(startOfWeek(m_followsNow ? m_now.date : firstDay().addDays(kDays / 2), locale()));
        break;
    case QEvent::FontChange:
    case QEvent::StyleChange:
    case QEvent::LayoutDirectionChange:
        placeStrips();
        updateGeometry(m_isFit ? fittingHour() : hourHeight());
        break;
    default:
        break;
    }
}

void WeekView::focusInEvent(QFocusEvent* event)
{
    QAbstractScrollArea::focusInEvent(event);
    viewport()->update();
}

void WeekView::focusOutEvent(QFocusEvent* event)
{
    QAbstractScrollArea::focusOutEvent(event);
    viewport()->update();
}

void WeekView::paintEvent(QPaintEvent* event)
{
    QPainter painter(viewport());
    painter.setLayoutDirection(layoutDirection());
    painter.translate(-offset());
    const QRect visible = viewport()->rect().translated(offset());
    const QRect days = event->rect().translated(offset());
    // A little is left over below the day where its hours do not fill the place to the pixel.
    painter.fillRect(days, m_colours.weekGround);
    paintDays(painter, scene(visible), days & QRect(0, 0, m_geometry.width(), m_geometry.height()));
}

void WeekView::select(const std::optional<BlockRef>& block)
{
    if (m_selected == block) {
        return;
    }
    m_selected = block;
    QString description;
    if (block) {
        const WeekColumn& column =
            m_layout.days[static_cast<std::size_t>(firstDay().daysTo(block->date))];
        description =
            QStringLiteral("%1. %2").arg(locale().toString(block->date, QLocale::LongFormat),
                                         blockText(*column.blockOf(block->row)));
    }
    setAccessibleDescription(description);
    viewport()->update();
}

void WeekView::showSelected()
{
    if (!m_selected) {
        return;
    }
    const QRect rect = visualRect(*m_selected);
    const QRect view = viewport()->rect();
    if (rect.top() < view.top() || rect.height() > view.height()) {
        verticalScrollBar()->setValue(verticalScrollBar()->value() + rect.top() - 8);
    } else if (rect.bottom() > view.bottom()) {
        verticalScrollBar()->setValue(verticalScrollBar()->value() + rect.bottom() - view.bottom() +
                                      8);
    }
    const int sign = layoutDirection() == Qt::LeftToRight ? 1 : -1;
    if (rect.left() < view.left()) {
        horizontalScrollBar()->setValue(horizontalScrollBar()->value() + sign * (rect.left() - 4));
    } else if (rect.right() > view.right()) {
        horizontalScrollBar()->setValue(horizontalScrollBar()->value() +
                                        sign * (rect.right() - view.right() + 4));
    }
}

void WeekView::activateSelected()
{
    const WeekColumn& column =
        m_layout.days[static_cast<std::size_t>(firstDay().daysTo(m_selected->date))];
    emit activated(*column.task, m_selected->row);
}

void WeekView::mousePressEvent(QMouseEvent* event)
{
    const WeekHit place = hit(event->pos());
    if (event->button() != Qt::LeftButton) {
        QAbstractScrollArea::mousePressEvent(event);
        return;
    }
    if (place.target() == nullptr) {
        select(std::nullopt);
        return;
    }
    select(BlockRef{m_layout.days[static_cast<std::size_t>(place.day)].date, place.target()->row});
}

void WeekView::mouseDoubleClickEvent(QMouseEvent* event)
{
    mousePressEvent(event);
    if (event->button() == Qt::LeftButton && m_selected) {
        activateSelected();
    }
}

void WeekView::wheelEvent(QWheelEvent* event)
{
    if ((event->modifiers() & Qt::ControlModifier) == 0) {
        QAbstractScrollArea::wheelEvent(event);
        return;
    }
    zoomAt(std::pow(kZoomStep, event->angleDelta().y() / kWheelStep),
           event->position().toPoint().y());
    event->accept();
}

bool WeekView::zoomByKey(int key)
{
    switch (key) {
    case Qt::Key_Plus:
    case Qt::Key_Equal: // The key of the plus, on many keyboards.
        zoom(kZoomStep);
        return true;
    case Qt::Key_Minus:
        zoom(1 / kZoomStep);
        return true;
    case Qt::Key_0:
        zoomToFit();
        return true;
    default:
        return false;
    }
}

bool WeekView::stepByKey(const QKeyEvent& event)
{
    const bool isMirrored = layoutDirection() == Qt::RightToLeft;
    BlockStep step = BlockStep::Earlier;
    switch (event.key()) {
    case Qt::Key_Up:
        break;
    case Qt::Key_Down:
        step = BlockStep::Later;
        break;
    case Qt::Key_Left:
        step = isMirrored ? BlockStep::DayAfter : BlockStep::DayBefore;
        break;
    case Qt::Key_Right:
        step = isMirrored ? BlockStep::DayBefore : BlockStep::DayAfter;
        break;
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
        if ((event.modifiers() & Qt::ControlModifier) != 0) {
            stepWeeks(event.key() == Qt::Key_PageDown ? 1 : -1);
            return true;
        }
        return false;
    default:
        return false;
    }
    select(stepFrom(m_layout, m_selected, step, m_now));
    showSelected();
    return true;
}

void WeekView::keyPressEvent(QKeyEvent* event)
{
    if (zoomByKey(event->key()) || stepByKey(*event)) {
        return;
    }
    const bool hasSelected = m_selected && !visualRect(*m_selected).isNull();
    switch (event->key()) {
    case Qt::Key_Home:
        showNow();
        return;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (hasSelected) {
            activateSelected();
            return;
        }
        break;
    case Qt::Key_Space:
        if (hasSelected) {
            showTipOfSelected();
            return;
        }
        break;
    default:
        break;
    }
    QAbstractScrollArea::keyPressEvent(event);
}

void WeekView::showTip(const QHelpEvent& event)
{
    const WeekHit place = hit(event.pos());
    QToolTip::showText(event.globalPos(), reasonText(*m_schedule, m_layout, place, locale()),
                       viewport());
}

void WeekView::showTipOfSelected()
{
    const qint64 day = firstDay().daysTo(m_selected->date);
    const WeekBlock* block = m_layout.days[static_cast<std::size_t>(day)].blockOf(m_selected->row);
    const QRect rect = visualRect(*m_selected) & viewport()->rect();
    const WeekHit place = hitOf(m_layout, static_cast<int>(day), *block);
    QToolTip::showText(viewport()->mapToGlobal(rect.center()),
                       reasonText(*m_schedule, m_layout, place, locale()), viewport());
}

bool WeekView::pinch(const QGestureEvent& event)
{
    const auto* gesture = static_cast<QPinchGesture*>(event.gesture(Qt::PinchGesture));
    if (gesture == nullptr) {
        return false;
    }
    if ((gesture->changeFlags() & QPinchGesture::ScaleFactorChanged) != 0) {
        zoomAt(gesture->scaleFactor(),
               viewport()->mapFromGlobal(gesture->centerPoint().toPoint()).y());
    }
    return true;
}

bool WeekView::viewportEvent(QEvent* event)
{
    switch (event->type()) {
    case QEvent::ToolTip:
        showTip(*static_cast<QHelpEvent*>(event));
        return true;
    case QEvent::Gesture: {
        auto* gestures = static_cast<QGestureEvent*>(event);
        if (pinch(*gestures)) {
            gestures->accept();
            return true;
        }
        break;
    }
    case QEvent::NativeGesture: {
        const auto* native = static_cast<QNativeGestureEvent*>(event);
        if (native->gestureType() == Qt::ZoomNativeGesture) {
            zoomAt(1.0 + native->value(), native->pos().y());
            return true;
        }
        break;
    }
    default:
        break;
    }
    return QAbstractScrollArea::viewportEvent(event);
}

} // namespace week
