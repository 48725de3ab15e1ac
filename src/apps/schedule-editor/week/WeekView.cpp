#include "week/WeekView.h"

#include "DateWords.h"
#include "PlainLines.h"
#include "access/AccessibleParts.h"
#include "clock/Clock.h"
#include "week/DayPainting.h"
#include "week/FramePainting.h"
#include "week/WeekReasons.h"
#include "week/WeekStrip.h"
#include "week/WeekWords.h"

#include <QGestureEvent>
#include <QHelpEvent>
#include <QPainter>
#include <QToolTip>

#include <cmath>
#include <utility>

using namespace trel::mediadispatch;

namespace trel::desktop::week {

namespace {

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
    , m_layout(std::make_shared<const WeekLayout>(
          m_schedule->layout(startOfWeek(Clock::current().today(), locale()))))
    , m_minutes(this)
    , m_area(new WeekArea(this))
    , m_dates(new WeekStrip(
          [this](QPainter& painter, const QRect&) {
              painter.translate(-m_area->offset().x(), 0);
              paintDates(painter, scene(QRect()),
                         m_dates->rect().translated(m_area->offset().x(), 0));
          },
          this))
    , m_hours(new WeekStrip(
          [this](QPainter& painter, const QRect&) {
              painter.translate(0, -m_area->offset().y());
              paintHours(painter, scene(QRect()),
                         m_hours->rect().translated(0, m_area->offset().y()));
          },
          this))
{
    setFocusPolicy(Qt::StrongFocus);
    viewport()->grabGesture(Qt::PinchGesture);
    connect(m_area, &WeekArea::moved, this, &WeekView::repaintAll);
    connect(m_area, &WeekArea::zoomed, this, &WeekView::zoomChanged);
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
    selectAwaited();
}

void WeekView::setPicture(const WeekPicture& picture)
{
    if (picture.layout->first() != firstDay()) {
        setSchedule(picture.schedule);
        return;
    }
    m_schedule = picture.schedule;
    m_layout = picture.layout;
    updateNow();
    selectAwaited();
    emit pictureChanged();
    emit explanationChanged();
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
    m_layout = std::make_shared<const WeekLayout>(m_schedule->layout(first));
    repaintAll();
    if (isOther) {
        emit weekChanged();
    }
    emit pictureChanged();
    emit explanationChanged();
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
    m_area->centre(*m_layout->dayOf(m_now.date), m_now.second);
}

WeekScene WeekView::scene(const QRect& visible) const
{
    return {*m_layout, m_area->geometry(), m_colours, locale(), visible,
            m_now,     m_selected,         hasFocus()};
}

WeekHit WeekView::hit(const QPoint& place) const
{
    return hitAt(*m_layout, m_area->geometry(), place + m_area->offset());
}

std::optional<WeekHit> WeekView::hit(const BlockRef& block) const
{
    const std::optional<int> day = m_layout->dayOf(block.date);
    if (!day) {
        return std::nullopt;
    }
    const WeekBlock* found = m_layout->days[static_cast<std::size_t>(*day)].blockOf(block.row);
    return found == nullptr ? std::nullopt : std::optional(hitOf(*m_layout, *day, *found));
}

QWidget* WeekView::dates() const
{
    return m_dates;
}

QRect WeekView::visualRect(const BlockRef& block) const
{
    const std::optional<WeekHit> place = hit(block);
    return place ? placeOf(*place, m_area->geometry()).translated(-m_area->offset()) : QRect();
}

void WeekView::zoom(double factor)
{
    m_area->zoomAt(factor, viewport()->height() / 2);
}

void WeekView::zoomToFit()
{
    m_area->fit();
}

void WeekView::placeStrips()
{
    const QFontMetrics metrics = fontMetrics();
    const int hours = metrics.horizontalAdvance(QStringLiteral("00:00")) + 14;
    const int dates = datesHeight(metrics.height());
    const bool isMirrored = layoutDirection() == Qt::RightToLeft;
    setViewportMargins(isMirrored ? 0 : hours, dates, isMirrored ? hours : 0, 0);
    const QRect days = viewport()->geometry();
    m_dates->setGeometry(days.left(), days.top() - dates, days.width(), dates);
    m_hours->setGeometry(isMirrored ? days.right() + 1 : days.left() - hours, days.top(), hours,
                         days.height());
}

void WeekView::resizeEvent(QResizeEvent* event)
{
    QAbstractScrollArea::resizeEvent(event);
    placeStrips();
    m_area->adapt();
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
        m_area->adapt();
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
    painter.translate(-m_area->offset());
    const QRect visible = viewport()->rect().translated(m_area->offset());
    const QRect days = event->rect().translated(m_area->offset());
    // A little is left over below the day where its hours do not fill the place to the pixel.
    painter.fillRect(days, m_colours.weekGround);
    paintDays(painter, scene(visible),
              days & QRect(0, 0, m_area->geometry().width(), m_area->geometry().height()));
}

void WeekView::select(const std::optional<BlockRef>& block)
{
    if (m_selected == block) {
        return;
    }
    m_selected = block;
    QString description;
    if (block) {
        description = QStringLiteral("%1. %2").arg(weekdayText(block->date, locale()),
                                                   blockText(*hit(*block)->target()));
    }
    setAccessibleDescription(description);
    access::tellCurrentPart(*this);
    viewport()->update();
    emit explanationChanged();
}

void WeekView::selectAwaited()
{
    if (m_awaited && hit(*m_awaited)) {
        // What is said of it may be another thing than before.
        m_selected.reset();
        select(std::exchange(m_awaited, std::nullopt));
        m_area->reveal(visualRect(*m_selected));
    }
}

void WeekView::step(BlockStep step)
{
    select(stepFrom(*m_layout, m_selected, step, m_now));
    if (m_selected) {
        m_area->reveal(visualRect(*m_selected));
    }
}

bool WeekView::activateSelected()
{
    const std::optional<WeekHit> place = m_selected ? hit(*m_selected) : std::nullopt;
    if (place) {
        emit activated(*m_layout->days[static_cast<std::size_t>(place->day)].task, m_selected->row);
    }
    return place.has_value();
}

bool WeekView::explainSelected()
{
    const std::optional<WeekHit> place = m_selected ? hit(*m_selected) : std::nullopt;
    if (place) {
        showTip((visualRect(*m_selected) & viewport()->rect()).center(), *place);
    }
    return place.has_value();
}

QString WeekView::explanation() const
{
    const std::optional<WeekHit> place = m_selected ? hit(*m_selected) : std::nullopt;
    return place ? reasonText(*m_schedule, *m_layout, *place, locale()) : QString();
}

int WeekView::spokenCount() const
{
    std::size_t count = 0;
    for (const WeekColumn& column : m_layout->days) {
        count += column.blocks.size();
    }
    return static_cast<int>(count);
}

BlockRef WeekView::blockAt(int index) const
{
    auto left = static_cast<std::size_t>(index);
    auto column = m_layout->days.begin();
    while (left >= column->blocks.size()) {
        left -= column->blocks.size();
        ++column;
    }
    return {column->date, column->blocks[left].row};
}

QString WeekView::spokenName(int index) const
{
    const BlockRef ref = blockAt(index);
    const WeekColumn& column = m_layout->days[static_cast<std::size_t>(*m_layout->dayOf(ref.date))];
    return Words::tr("%1, task %2. %3", "day, its task, and a plan with its times and programs")
        .arg(weekdayText(column.date, locale()), QString::number(column.task.value_or(-1)),
             blockText(*column.blockOf(ref.row)));
}

QString WeekView::spokenDescription(int index) const
{
    return reasonText(*m_schedule, *m_layout, *hit(blockAt(index)), locale());
}

QRect WeekView::spokenPlace(int index) const
{
    const QRect shown = visualRect(blockAt(index)) & viewport()->rect();
    return shown.isEmpty() ? QRect() : shown.translated(viewport()->pos());
}

int WeekView::spokenCurrent() const
{
    if (!m_selected) {
        return -1;
    }
    int before = 0;
    for (const WeekColumn& column : m_layout->days) {
        const WeekBlock* const found =
            column.date == m_selected->date ? column.blockOf(m_selected->row) : nullptr;
        if (found != nullptr) {
            return before + static_cast<int>(found - column.blocks.data());
        }
        before += static_cast<int>(column.blocks.size());
    }
    return -1;
}

void WeekView::pressSpoken(int index)
{
    select(blockAt(index));
    activateSelected();
}

void WeekView::showTip(const QPoint& place, const WeekHit& hit)
{
    QToolTip::showText(viewport()->mapToGlobal(place),
                       plainLines(reasonText(*m_schedule, *m_layout, hit, locale())), viewport());
}

void WeekView::mousePressEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton) {
        return;
    }
    const WeekHit place = hit(event->pos());
    if (place.target() == nullptr) {
        select(std::nullopt);
        return;
    }
    select(BlockRef{m_layout->days[static_cast<std::size_t>(place.day)].date, place.target()->row});
}

void WeekView::mouseReleaseEvent(QMouseEvent* event)
{
    // The press was taken here; the release belongs to the same widget.
    event->accept();
}

void WeekView::mouseDoubleClickEvent(QMouseEvent* event)
{
    mousePressEvent(event);
    if (event->button() == Qt::LeftButton) {
        activateSelected();
    }
}

void WeekView::wheelEvent(QWheelEvent* event)
{
    if ((event->modifiers() & Qt::ControlModifier) == 0) {
        QAbstractScrollArea::wheelEvent(event);
        return;
    }
    m_area->zoomAt(std::pow(kZoomStep, event->angleDelta().y() / kWheelStep),
                   event->position().toPoint().y());
    event->accept();
}

bool WeekView::carryOut(WeekCommand command)
{
    switch (command) {
    case WeekCommand::None:
        return false;
    case WeekCommand::ZoomIn:
        zoom(kZoomStep);
        return true;
    case WeekCommand::ZoomOut:
        zoom(1 / kZoomStep);
        return true;
    case WeekCommand::ZoomToFit:
        zoomToFit();
        return true;
    case WeekCommand::Earlier:
        step(BlockStep::Earlier);
        return true;
    case WeekCommand::Later:
        step(BlockStep::Later);
        return true;
    case WeekCommand::DayBefore:
        step(BlockStep::DayBefore);
        return true;
    case WeekCommand::DayAfter:
        step(BlockStep::DayAfter);
        return true;
    case WeekCommand::WeekBefore:
        stepWeeks(-1);
        return true;
    case WeekCommand::WeekAfter:
        stepWeeks(1);
        return true;
    case WeekCommand::Now:
        showNow();
        return true;
    case WeekCommand::Activate:
        return activateSelected();
    case WeekCommand::Explain:
        return explainSelected();
    }
    return false;
}

void WeekView::keyPressEvent(QKeyEvent* event)
{
    if (!carryOut(commandOf(*event, layoutDirection()))) {
        QAbstractScrollArea::keyPressEvent(event);
    }
}

bool WeekView::pinch(const QGestureEvent& event)
{
    const auto* gesture = static_cast<QPinchGesture*>(event.gesture(Qt::PinchGesture));
    if (gesture == nullptr) {
        return false;
    }
    if ((gesture->changeFlags() & QPinchGesture::ScaleFactorChanged) != 0) {
        m_area->zoomAt(gesture->scaleFactor(),
                       viewport()->mapFromGlobal(gesture->centerPoint().toPoint()).y());
    }
    return true;
}

bool WeekView::viewportEvent(QEvent* event)
{
    switch (event->type()) {
    case QEvent::ToolTip: {
        const QPoint place = static_cast<QHelpEvent*>(event)->pos();
        showTip(place, hit(place));
        return true;
    }
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
            m_area->zoomAt(1.0 + native->value(), native->pos().y());
            return true;
        }
        break;
    }
    default:
        break;
    }
    return QAbstractScrollArea::viewportEvent(event);
}

} // namespace trel::desktop::week
