#pragma once

#include "follow/NewestWork.h"
#include "follow/ScheduleEdits.h"
#include "service/ScheduleRecords.h"

#include <QObject>

#include <map>
#include <memory>

namespace trel::desktop::week {
class WeekView;
class WeekWork;
} // namespace trel::desktop::week

namespace trel::desktop::changes {

/// Keeps the picture of a week filled with a schedule that does not change. A picture that takes
/// long is made in another thread.
class FixedWeek : public QObject
{
    Q_OBJECT

public:
    /// The view is the parent. The tasks are shown with the programs of today.
    FixedWeek(week::WeekView& view, const std::map<int, mediadispatch::PlayTask>& tasks);
    ~FixedWeek() override;

private:
    void order(const follow::ScheduleEdits& edits);

    week::WeekView& m_view;
    std::shared_ptr<week::WeekWork> m_pictures;
    follow::NewestWork m_work;
    bool m_isShort; ///< A picture is made within a frame.
};

} // namespace trel::desktop::changes
