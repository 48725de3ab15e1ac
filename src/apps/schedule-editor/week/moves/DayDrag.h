#pragma once

#include "look/ThemeColours.h"
#include "week/moves/DayCopy.h"
#include "week/moves/EditTarget.h"
#include "week/moves/MoveOverlay.h"

#include <QObject>
#include <QPoint>

#include <memory>
#include <optional>

class QKeyEvent;
class QMouseEvent;

namespace trel::desktop::week {

class WeekTasks;
class WeekView;

/// Lets the operator take a day by its date above the picture and drop it on another one, whose own
/// plans stay: the plans of the day are copied there. Shows all the while what would come of it,
/// and with which plans it would collide. Escape gives it up.
class DayDrag : public QObject
{
    Q_OBJECT

public:
    /// The view is the parent; the target outlives it.
    DayDrag(WeekView& view, EditTarget& target);
    ~DayDrag() override;

    /// While the picture shows another schedule than that of the target, nothing can be copied.
    void setEnabled(bool isEnabled);
    void setColours(const look::ThemeColours& colours);
    bool isDragging() const { return m_drag != nullptr && m_drag->isUnderWay; }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    /// A day that has been taken.
    struct Drag
    {
        QDate from;
        QPoint press; ///< On the strip of dates.
        bool isUnderWay = false;
        /// The schedule as it was when the way began.
        std::map<int, trel::mediadispatch::PlayTask> tasks;
        std::unique_ptr<WeekTasks> week;
        std::shared_ptr<const Programs> programs;
        /// Where it has come to, and what that leads to.
        QDate onto;
        QPoint offset; ///< Of the viewport.
        DayCopy copy;
        MovePicture picture;
    };

    bool filterDates(QEvent& event);
    bool filterKeys(QKeyEvent& event);
    bool press(const QMouseEvent& event);
    bool move(const QMouseEvent& event);
    bool release(const QMouseEvent& event);
    QDate dayAt(const QPoint& place) const;
    void begin();
    void follow(const QPoint& place);
    MovePicture picture() const;
    void addPlans(MovePicture& picture, int taskId, std::vector<int>& collisions) const;
    void file();
    void cancel();

    WeekView& m_view;
    EditTarget& m_target;
    MoveOverlay* m_overlay;
    std::unique_ptr<Drag> m_drag;
    bool m_isEnabled = true;
};

} // namespace trel::desktop::week
