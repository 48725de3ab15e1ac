#include "week/moves/WeekMover.h"

#include "catalogue/ProgramDrag.h"
#include "service/WeekDays.h"
#include "trelwidgets/PlainToolTip.h"
#include "week/WeekView.h"
#include "week/moves/MoveKeys.h"
#include "week/moves/MoveOverlay.h"
#include "week/moves/MoveWords.h"
#include "week/moves/NewPlans.h"
#include "week/moves/PlanPlaces.h"

#include <QApplication>
#include <QDropEvent>
#include <QKeyEvent>
#include <QMimeData>
#include <QMouseEvent>
#include <QScrollBar>
#include <QToolTip>

#include <algorithm>
#include <cmath>
#include <utility>

using namespace trel::mediadispatch;

namespace trel::desktop::week {

namespace {

constexpr int kEdge = 5;
/// A lower block has no edges of its own.
constexpr int kLeastStretched = 4 * kEdge;
constexpr int kScrollZone = 24;
constexpr int kScrollMSecs = 40;

QString joined(const QStringList& lines)
{
    QStringList told = lines;
    told.removeAll(QString());
    return told.join(QLatin1Char('\n'));
}

int secondAt(const WeekGeometry& geometry, int y)
{
    // Unlike that of the picture, not kept within the day.
    return static_cast<int>(std::lround(y * 3600.0 / geometry.hourHeight()));
}

} // namespace

WeekMover::WeekMover(WeekView& view, EditTarget& target)
    : QObject(&view)
    , m_view(view)
    , m_target(target)
    , m_overlay(new MoveOverlay(view.viewport()))
{
    m_scroll.setInterval(kScrollMSecs);
    connect(&m_scroll, &QTimer::timeout, this, &WeekMover::scrollAtTheEdge);
    view.viewport()->setMouseTracking(true);
    view.viewport()->setAcceptDrops(true);
    view.viewport()->installEventFilter(this);
    view.installEventFilter(this);
}

WeekMover::~WeekMover() = default;

void WeekMover::setEnabled(bool isEnabled)
{
    m_isEnabled = isEnabled;
    cancel();
    m_view.viewport()->unsetCursor();
}

void WeekMover::setColours(const look::ThemeColours& colours)
{
    m_overlay->setColours(colours);
}

bool WeekMover::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_view.viewport() && m_isEnabled && filterViewport(*event)) {
        return true;
    }
    if (watched == &m_view) {
        switch (event->type()) {
        case QEvent::ShortcutOverride:
        case QEvent::KeyPress:
            if (m_isEnabled && filterKeys(*static_cast<QKeyEvent*>(event))) {
                return true;
            }
            break;
        case QEvent::FocusOut:
        case QEvent::Hide:
        case QEvent::WindowDeactivate:
            cancel();
            break;
        default:
            break;
        }
    }
    return QObject::eventFilter(watched, event);
}

bool WeekMover::filterViewport(QEvent& event)
{
    switch (event.type()) {
    case QEvent::MouseButtonPress:
        return press(static_cast<QMouseEvent&>(event));
    case QEvent::MouseMove:
        return move(static_cast<QMouseEvent&>(event));
    case QEvent::MouseButtonRelease:
        return release(static_cast<QMouseEvent&>(event));
    case QEvent::ToolTip:
        return isDragging();
    case QEvent::DragEnter:
    case QEvent::DragMove:
    case QEvent::Drop: {
        auto& drop = static_cast<QDropEvent&>(event);
        if (!takesPrograms(drop)) {
            return false;
        }
        followPrograms(drop, event.type() == QEvent::Drop);
        return true;
    }
    case QEvent::DragLeave:
        m_overlay->show({});
        return false;
    default:
        return false;
    }
}

std::optional<WeekMover::Drag> WeekMover::take(const BlockRef& block) const
{
    const std::optional<int> day = m_view.layoutOfWeek().dayOf(block.date);
    const WeekColumn* column =
        day ? &m_view.layoutOfWeek().days[static_cast<std::size_t>(*day)] : nullptr;
    const WeekBlock* shown = column != nullptr ? column->blockOf(block.row) : nullptr;
    if (shown == nullptr || !column->task) {
        return std::nullopt;
    }
    Drag drag;
    drag.block = block;
    drag.date = block.date;
    drag.task = m_target.task(*column->task);
    const auto row = static_cast<std::size_t>(block.row);
    // The picture may be a moment behind.
    if (!drag.task || row >= drag.task->plans.size() || drag.task->plans[row].id != shown->planId) {
        return std::nullopt;
    }
    return drag;
}

std::optional<PlanMove::Part> WeekMover::partAt(const QPoint& place) const
{
    const WeekHit hit = m_view.hit(place);
    if (hit.target() == nullptr) {
        return std::nullopt;
    }
    const WeekBlock& block = *hit.target();
    const int y = place.y() + m_view.offset().y();
    const int top = m_view.geometryOfWeek().top(block.from);
    const int bottom = m_view.geometryOfWeek().top(block.to);
    if (block.never != PlanFault::None || bottom - top < kLeastStretched) {
        return PlanMove::Whole;
    }
    if (y - top < kEdge) {
        return PlanMove::Begin;
    }
    return bottom - y <= kEdge ? PlanMove::End : PlanMove::Whole;
}

bool WeekMover::press(const QMouseEvent& event)
{
    if (isDragging()) {
        // Another button gives the drag up.
        cancel();
        return true;
    }
    m_drag.reset();
    const std::optional<PlanMove::Part> part = partAt(event.pos());
    if (event.button() == Qt::LeftButton && part) {
        const WeekHit hit = m_view.hit(event.pos());
        const QDate date = m_view.layoutOfWeek().days[static_cast<std::size_t>(hit.day)].date;
        m_drag = take({date, hit.target()->row});
        if (m_drag) {
            m_drag->part = *part;
            m_drag->press = event.pos() + m_view.offset();
            m_pointer = event.pos();
        }
    }
    // The picture selects the block.
    return false;
}

bool WeekMover::move(const QMouseEvent& event)
{
    if (!m_drag || (event.buttons() & Qt::LeftButton) == 0) {
        showCursor(event.pos());
        return false;
    }
    const QPoint way = event.pos() + m_view.offset() - m_drag->press;
    if (!m_drag->isUnderWay && way.manhattanLength() < QApplication::startDragDistance()) {
        return true;
    }
    if (!std::exchange(m_drag->isUnderWay, true)) {
        QToolTip::hideText();
        m_scroll.start();
    }
    follow(event.pos());
    return true;
}

void WeekMover::showCursor(const QPoint& place)
{
    const std::optional<PlanMove::Part> part = partAt(place);
    if (part && *part != PlanMove::Whole) {
        m_view.viewport()->setCursor(Qt::SizeVerCursor);
    } else {
        m_view.viewport()->unsetCursor();
    }
}

void WeekMover::follow(const QPoint& place)
{
    m_pointer = place;
    Drag& drag = *m_drag;
    const WeekGeometry& geometry = m_view.geometryOfWeek();
    const QPoint now = place + m_view.offset();
    const PlayPlan& plan = drag.task->plans[static_cast<std::size_t>(drag.block.row)];
    PlanMove move;
    move.part = drag.part;
    const int by = secondAt(geometry, now.y()) - secondAt(geometry, drag.press.y());
    if (const std::optional<int> from = drag.part == PlanMove::End ? endOf(plan) : beginOf(plan)) {
        move.second = draggedTo(*from, by);
    }
    const auto day = static_cast<std::size_t>(geometry.dayAt(now.x()));
    const QDate onto =
        drag.part == PlanMove::Whole ? m_view.layoutOfWeek().days[day].date : drag.block.date;
    drag.outcome = outcomeOf(drag, move, onto);
    // A plan of every day has no place of its own: only its time follows the pointer.
    if (drag.outcome.refusal == MoveRefusal::EveryDay && move.second) {
        drag.outcome = outcomeOf(drag, move, drag.block.date);
    }
    drag.date = drag.outcome.plan.weeks == plan.weeks ? drag.block.date : onto;
    showOutcome(drag, place);
}

MovedPlan WeekMover::outcomeOf(const Drag& drag, PlanMove move, const QDate& onto) const
{
    const PlayPlan& plan = drag.task->plans[static_cast<std::size_t>(drag.block.row)];
    const WeekLayout& layout = m_view.layoutOfWeek();
    const std::optional<int> day = layout.dayOf(onto);
    if (!day || layout.days[static_cast<std::size_t>(*day)].task != drag.task->id) {
        return {MoveRefusal::OtherTask, plan};
    }
    move.fromDay = drag.block.date.dayOfWeek();
    move.toDay = onto.dayOfWeek();
    const std::shared_ptr<const Programs> programs = m_target.programs();
    return movedPlan(plan, move, *programs, noDurationIn(*programs));
}

void WeekMover::showOutcome(const Drag& drag, const QPoint& place)
{
    const std::shared_ptr<const Programs> programs = m_target.programs();
    const MovedPlan& outcome = drag.outcome;
    MovePicture picture;
    picture.place = place;
    picture.isRefused =
        outcome.refusal != MoveRefusal::None && outcome.refusal != MoveRefusal::Nowhere;
    picture.ghosts = places(drag.task->id, outcome.plan);
    std::vector<int> rows;
    if (outcome.refusal == MoveRefusal::None) {
        rows = collidingRows(*drag.task, drag.block.row, outcome.plan, *programs,
                             noDurationIn(*programs));
        picture.collisions = places(drag.task->id, outcome.plan, rows);
    }
    picture.text = joined({MoveWords::moved(outcome.plan, *programs, m_view.locale()),
                           MoveWords::refusal(outcome.refusal),
                           MoveWords::collisions(*drag.task, rows, *programs)});
    m_overlay->show(picture);
}

std::vector<QRect> WeekMover::places(int taskId, const PlayPlan& plan) const
{
    const std::shared_ptr<const Programs> programs = m_target.programs();
    std::vector<QRect> places;
    for (const int day : columnsOf(taskId, plan)) {
        const QRect place = placeOfPlan(m_view, day, plan, *programs);
        if (!place.isEmpty()) {
            places.push_back(place);
        }
    }
    return places;
}

std::vector<int> WeekMover::columnsOf(int taskId, const PlayPlan& plan) const
{
    std::vector<int> numbers;
    const bool isEveryDay = parseWeeks(plan.weeks, numbers);
    std::vector<int> columns;
    for (int day = 0; day < kDays; ++day) {
        const WeekColumn& column = m_view.layoutOfWeek().days[static_cast<std::size_t>(day)];
        const bool isThere = isEveryDay || std::find(numbers.begin(), numbers.end(),
                                                     column.date.dayOfWeek()) != numbers.end();
        if (isThere && column.task == taskId) {
            columns.push_back(day);
        }
    }
    return columns;
}

std::vector<QRect> WeekMover::places(int taskId, const PlayPlan& plan,
                                     const std::vector<int>& rows) const
{
    std::vector<QRect> places;
    for (const int day : columnsOf(taskId, plan)) {
        const WeekColumn& column = m_view.layoutOfWeek().days[static_cast<std::size_t>(day)];
        for (const WeekBlock& block : column.blocks) {
            if (std::binary_search(rows.begin(), rows.end(), block.row)) {
                places.push_back(m_view.visualRect({column.date, block.row}));
            }
        }
    }
    return places;
}

bool WeekMover::release(const QMouseEvent& event)
{
    if (event.button() != Qt::LeftButton || !isDragging()) {
        m_drag.reset();
        return false;
    }
    follow(event.pos());
    drop();
    return true;
}

void WeekMover::drop()
{
    const Drag drag = *std::exchange(m_drag, std::nullopt);
    cancel();
    file(drag);
}

void WeekMover::file(const Drag& drag)
{
    if (drag.outcome.refusal != MoveRefusal::None) {
        return;
    }
    const std::shared_ptr<const Programs> programs = m_target.programs();
    auto after = std::make_shared<PlayTask>(*drag.task);
    after->plans[static_cast<std::size_t>(drag.block.row)] = drag.outcome.plan;
    markCollisions(*after, *programs, noDurationIn(*programs));
    m_view.selectWhenThere({drag.date, drag.block.row});
    m_target.file({{drag.task->id, drag.task, std::move(after)}});
}

void WeekMover::cancel()
{
    m_drag.reset();
    m_scroll.stop();
    m_overlay->show({});
}

void WeekMover::scrollAtTheEdge()
{
    const QRect view = m_view.viewport()->rect();
    const auto wayOf = [](int place, int size) {
        return std::min(0, place - kScrollZone) + std::max(0, place - (size - kScrollZone));
    };
    const QPoint way(wayOf(m_pointer.x(), view.width()), wayOf(m_pointer.y(), view.height()));
    if (way.isNull() || !isDragging()) {
        return;
    }
    QScrollBar* days = m_view.horizontalScrollBar();
    const int direction = m_view.layoutDirection() == Qt::RightToLeft ? -1 : 1;
    days->setValue(days->value() + direction * way.x());
    QScrollBar* hours = m_view.verticalScrollBar();
    hours->setValue(hours->value() + way.y());
    follow(m_pointer);
}

bool WeekMover::filterKeys(QKeyEvent& event)
{
    const bool isOverride = event.type() == QEvent::ShortcutOverride;
    if (isDragging()) {
        if (isOverride) {
            event.accept();
        } else if (event.key() == kGiveUpKey) {
            cancel();
        }
        // Nothing else is done with the keys meanwhile.
        return true;
    }
    return !isOverride && moveByKey(event);
}

bool WeekMover::moveByKey(const QKeyEvent& event)
{
    const std::optional<MoveKey> move = moveOf(event, m_view.layoutDirection());
    return move && moveBy(move->part, move->quarters, move->days);
}

bool WeekMover::moveBy(PlanMove::Part part, int quarters, int days)
{
    const std::optional<BlockRef> selected = m_view.selected();
    std::optional<Drag> drag = selected ? take(*selected) : std::nullopt;
    if (!drag) {
        return true;
    }
    drag->part = part;
    const PlayPlan& plan = drag->task->plans[static_cast<std::size_t>(selected->row)];
    PlanMove move;
    move.part = part;
    const std::optional<int> from = part == PlanMove::End ? endOf(plan) : beginOf(plan);
    if (quarters != 0 && from) {
        move.second = steppedTo(*from, quarters);
    }
    drag->outcome = outcomeOf(*drag, move, selected->date.addDays(days));
    drag->date = selected->date.addDays(days);
    const QPoint place = (m_view.visualRect(*selected) & m_view.viewport()->rect()).center();
    showOutcome(*drag, place);
    // Until something else is done the words stay, as a tool tip.
    const QString text = m_overlay->shown().text;
    m_overlay->show({});
    QToolTip::showText(m_view.viewport()->mapToGlobal(place), trel::widgets::plainToolTip(text),
                       m_view.viewport());
    file(*drag);
    return true;
}

bool WeekMover::takesPrograms(const QDropEvent& event) const
{
    return event.mimeData()->hasFormat(programdrag::mimeType());
}

void WeekMover::followPrograms(QDropEvent& event, bool isDropped)
{
    const std::shared_ptr<const Programs> programs = m_target.programs();
    const WeekGeometry& geometry = m_view.geometryOfWeek();
    const QPoint place = event.pos() + m_view.offset();
    const WeekColumn& column =
        m_view.layoutOfWeek().days[static_cast<std::size_t>(geometry.dayAt(place.x()))];
    const follow::SharedTask task = column.task ? m_target.task(*column.task) : nullptr;
    const int second = geometry.secondAt(place.y()) / kQuarterSeconds * kQuarterSeconds;
    std::optional<PlayPlan> plan;
    if (task) {
        plan = planOfPrograms(programdrag::programs(event.mimeData()), second,
                              {column.date.dayOfWeek()}, *task, *programs, noDurationIn(*programs));
    }
    MovePicture picture;
    picture.place = event.pos();
    picture.isRefused = !plan;
    picture.text = task ? MoveWords::noPlan() : MoveWords::noTask();
    if (plan) {
        const auto row = static_cast<int>(task->plans.size());
        const std::vector<int> rows =
            collidingRows(*task, row, *plan, *programs, noDurationIn(*programs));
        picture.ghosts = places(task->id, *plan);
        picture.collisions = places(task->id, *plan, rows);
        picture.text = joined({MoveWords::planned(task->id, *plan, *programs, m_view.locale()),
                               MoveWords::ofSeveral(m_target.tasksValidOn(column.date)),
                               MoveWords::collisions(*task, rows, *programs)});
    }
    // One that is refused at once is not heard of again.
    const bool isTaken = plan || event.type() == QEvent::DragEnter;
    event.setDropAction(isTaken ? Qt::CopyAction : Qt::IgnoreAction);
    event.setAccepted(isTaken);
    if (!isDropped) {
        m_overlay->show(picture);
        return;
    }
    m_overlay->show({});
    if (plan) {
        auto after = std::make_shared<PlayTask>(*task);
        after->plans.push_back(std::move(*plan));
        markCollisions(*after, *programs, noDurationIn(*programs));
        m_view.selectWhenThere({column.date, static_cast<int>(after->plans.size()) - 1});
        m_target.file({{task->id, task, std::move(after)}});
    }
}

} // namespace trel::desktop::week
