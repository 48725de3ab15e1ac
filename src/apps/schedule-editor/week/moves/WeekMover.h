#pragma once

#include "week/WeekScene.h"
#include "week/moves/EditTarget.h"

#include <QObject>
#include <QTimer>

#include <optional>

class QDropEvent;
class QKeyEvent;
class QMouseEvent;

namespace trel::desktop::week {

class MoveOverlay;
class WeekView;

/// Lets the operator move and stretch the blocks of a picture, by mouse and by keys, and drop
/// programs on it. Says all the while what would come of it, and with which plans it would collide.
///
/// A press on the upper or the lower edge of a block takes that edge, one between them the whole
/// block. Escape gives a drag up. With the keys, Ctrl and an arrow move the selected block by a
/// quarter of an hour or a day, Ctrl and Shift with up and down its end, Alt and Shift its begin.
/// Begins and ends come to quarters of an hour on the wall clock.
///
/// A plan moves as a whole, on all its days: while a block is dragged, all of them are shown.
class WeekMover : public QObject
{
    Q_OBJECT

public:
    /// The view is the parent; the target outlives it.
    WeekMover(WeekView& view, EditTarget& target);
    ~WeekMover() override;

    /// While the picture shows another schedule than that of the target, nothing can be moved.
    void setEnabled(bool isEnabled);
    bool isEnabled() const { return m_isEnabled; }
    void setColours(const look::ThemeColours& colours);
    bool isDragging() const { return m_drag.has_value() && m_drag->isUnderWay; }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    /// A block that has been taken.
    struct Drag
    {
        PlanMove::Part part = PlanMove::Whole;
        BlockRef block;
        follow::SharedTask task; ///< As it was then.
        QPoint press;            ///< In the coordinates of the whole picture.
        bool isUnderWay = false;
        MovedPlan outcome;
        QDate date; ///< Of the block, were it dropped.
    };

    bool filterViewport(QEvent& event);
    bool filterKeys(QKeyEvent& event);
    bool press(const QMouseEvent& event);
    bool move(const QMouseEvent& event);
    bool release(const QMouseEvent& event);
    void showCursor(const QPoint& place);
    void follow(const QPoint& place);
    void scrollAtTheEdge();
    void drop();
    void cancel();

    bool moveByKey(const QKeyEvent& event);
    bool moveBy(PlanMove::Part part, int quarters, int days);

    /// The plan of a block that can be taken, with its task; nothing where it is another by now.
    std::optional<Drag> take(const BlockRef& block) const;
    std::optional<PlanMove::Part> partAt(const QPoint& place) const;
    MovedPlan outcomeOf(const Drag& drag, PlanMove move, const QDate& onto) const;
    void showOutcome(const Drag& drag, const QPoint& place);
    void file(const Drag& drag);
    std::vector<QRect> places(int taskId, const trel::mediadispatch::PlayPlan& plan) const;
    /// Those of other rows, on the days of that plan.
    std::vector<QRect> places(int taskId, const trel::mediadispatch::PlayPlan& plan,
                              const std::vector<int>& rows) const;
    /// The columns in which a plan of a task stands.
    std::vector<int> columnsOf(int taskId, const trel::mediadispatch::PlayPlan& plan) const;

    bool takesPrograms(const QDropEvent& event) const;
    void followPrograms(QDropEvent& event, bool isDropped);

    WeekView& m_view;
    EditTarget& m_target;
    MoveOverlay* m_overlay;
    QTimer m_scroll;
    QPoint m_pointer; ///< Of the drag, in the viewport.
    std::optional<Drag> m_drag;
    bool m_isEnabled = true;
};

} // namespace trel::desktop::week
