#include "week/moves/DayDrag.h"

#include "DateWords.h"
#include "service/PlanCollisions.h"
#include "trelwidgets/PlainToolTip.h"
#include "week/WeekTasks.h"
#include "week/WeekView.h"
#include "week/moves/CopyDayDialog.h"
#include "week/moves/MoveKeys.h"
#include "week/moves/MoveOverlay.h"
#include "week/moves/MoveWords.h"
#include "week/moves/PlanPlaces.h"

#include <QApplication>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QToolTip>

#include <algorithm>
#include <iterator>
#include <set>

using namespace trel::mediadispatch;

namespace trel::desktop::week {

DayDrag::DayDrag(WeekView& view, EditTarget& target)
    : QObject(&view)
    , m_view(view)
    , m_target(target)
    , m_overlay(new MoveOverlay(view.viewport()))
{
    m_overlay->setObjectName(QStringLiteral("weekDayDrag"));
    view.dates()->installEventFilter(this);
    view.installEventFilter(this);
    setEnabled(true);
}

DayDrag::~DayDrag() = default;

void DayDrag::setEnabled(bool isEnabled)
{
    m_isEnabled = isEnabled;
    cancel();
    if (!isEnabled) {
        m_view.dates()->unsetCursor();
    }
}

void DayDrag::setColours(const look::ThemeColours& colours)
{
    m_overlay->setColours(colours);
}

bool DayDrag::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_view.dates() && m_isEnabled && filterDates(*event)) {
        return true;
    }
    if (watched == &m_view) {
        switch (event->type()) {
        case QEvent::ShortcutOverride:
        case QEvent::KeyPress:
            if (isDragging()) {
                return filterKeys(*static_cast<QKeyEvent*>(event));
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

bool DayDrag::filterDates(QEvent& event)
{
    switch (event.type()) {
    case QEvent::MouseButtonPress:
        return press(static_cast<QMouseEvent&>(event));
    case QEvent::MouseMove:
        return move(static_cast<QMouseEvent&>(event));
    case QEvent::MouseButtonRelease:
        return release(static_cast<QMouseEvent&>(event));
    case QEvent::ToolTip:
        QToolTip::showText(
            static_cast<QHelpEvent&>(event).globalPos(),
            trel::widgets::plainToolTip(tr("Drag a day onto another one to copy its plans there.")),
            m_view.dates());
        return true;
    default:
        return false;
    }
}

/// Nothing else is done with the keys meanwhile.
bool DayDrag::filterKeys(QKeyEvent& event)
{
    if (event.type() == QEvent::ShortcutOverride) {
        event.accept();
    } else if (event.key() == kGiveUpKey) {
        cancel();
    }
    return true;
}

QDate DayDrag::dayAt(const QPoint& place) const
{
    const int day = m_view.geometryOfWeek().dayAt(place.x() + m_view.offset().x());
    return m_view.layoutOfWeek().days[static_cast<std::size_t>(day)].date;
}

bool DayDrag::press(const QMouseEvent& event)
{
    if (isDragging() || event.button() != Qt::LeftButton) {
        // Another button gives the drag up.
        cancel();
        return false;
    }
    m_drag = std::make_unique<Drag>();
    m_drag->from = dayAt(event.pos());
    m_drag->press = event.pos();
    return true;
}

bool DayDrag::move(const QMouseEvent& event)
{
    if (m_drag == nullptr || (event.buttons() & Qt::LeftButton) == 0) {
        return false;
    }
    const bool isFar =
        (event.pos() - m_drag->press).manhattanLength() >= QApplication::startDragDistance();
    if (!m_drag->isUnderWay && isFar) {
        begin();
    }
    if (isDragging()) {
        follow(event.pos());
    }
    return true;
}

void DayDrag::begin()
{
    QToolTip::hideText();
    // Where the keyboard is, Escape is heard.
    m_view.setFocus(Qt::MouseFocusReason);
    m_view.dates()->setCursor(Qt::ClosedHandCursor);
    m_drag->tasks = m_target.tasks();
    m_drag->week = std::make_unique<WeekTasks>(m_drag->tasks);
    m_drag->programs = m_target.programs();
    m_drag->isUnderWay = true;
}

void DayDrag::follow(const QPoint& place)
{
    Drag& drag = *m_drag;
    const QDate onto = dayAt(place);
    const QPoint offset = m_view.offset();
    if (onto != drag.onto || offset != drag.offset) {
        drag.onto = onto;
        drag.offset = offset;
        drag.copy = onto == drag.from ? DayCopy()
                                      : copyDay(*drag.week, drag.from, {onto}, *drag.programs,
                                                noDurationIn(*drag.programs));
        drag.picture = onto == drag.from ? MovePicture() : picture();
    }
    drag.picture.place = QPoint(place.x(), 0);
    m_overlay->show(drag.picture);
}

MovePicture DayDrag::picture() const
{
    const Drag& drag = *m_drag;
    MovePicture picture;
    picture.isRefused = drag.copy.tasks.empty();
    QStringList lines{
        tr("Copy the plans of %1 onto %2", "two days")
            .arg(weekdayText(drag.from, m_view.locale()), weekdayText(drag.onto, m_view.locale())),
        drag.copy.withoutTask.empty() ? CopyDayDialog::outcome(drag.copy) : MoveWords::noTask()};
    for (const auto& [id, task] : drag.copy.tasks) {
        std::vector<int> collisions;
        addPlans(picture, id, collisions);
        lines.append(MoveWords::collisions(task, collisions, *drag.programs));
    }
    lines.removeAll(QString());
    picture.text = lines.join(QLatin1Char('\n'));
    return picture;
}

void DayDrag::addPlans(MovePicture& picture, int taskId, std::vector<int>& collisions) const
{
    const Drag& drag = *m_drag;
    const std::optional<int> day = m_view.layoutOfWeek().dayOf(drag.onto);
    if (!day) {
        return;
    }
    const WeekColumn& column = m_view.layoutOfWeek().days[static_cast<std::size_t>(*day)];
    const PlayTask& after = drag.copy.tasks.at(taskId);
    const std::vector<PlanClaim> claims =
        planClaims(after.plans, *drag.programs, noDurationIn(*drag.programs));
    std::set<int> found;
    for (const int row : newRows(drag.tasks.at(taskId), after, drag.onto.dayOfWeek())) {
        const QRect ghost =
            placeOfPlan(m_view, *day, after.plans[static_cast<std::size_t>(row)], *drag.programs);
        if (!ghost.isEmpty()) {
            picture.ghosts.push_back(ghost);
        }
        const std::vector<int> others = collisionsOf(claims, row);
        found.insert(others.begin(), others.end());
    }
    // Those that stand there already.
    std::copy_if(found.begin(), found.end(), std::back_inserter(collisions),
                 [&column](int row) { return column.blockOf(row) != nullptr; });
    for (const int row : collisions) {
        picture.collisions.push_back(m_view.visualRect({drag.onto, row}));
    }
}

bool DayDrag::release(const QMouseEvent& event)
{
    const bool isDropped = event.button() == Qt::LeftButton && isDragging();
    if (isDropped) {
        follow(event.pos());
        file();
    }
    cancel();
    return isDropped;
}

void DayDrag::file()
{
    undo::TaskEdits edits;
    for (const auto& [id, task] : m_drag->copy.tasks) {
        edits.push_back({id, std::make_shared<const PlayTask>(m_drag->tasks.at(id)),
                         std::make_shared<const PlayTask>(task)});
    }
    cancel();
    if (!edits.empty()) {
        m_target.file(edits);
    }
}

void DayDrag::cancel()
{
    m_drag.reset();
    m_overlay->show({});
    if (m_isEnabled) {
        m_view.dates()->setCursor(Qt::OpenHandCursor);
    }
}

} // namespace trel::desktop::week
