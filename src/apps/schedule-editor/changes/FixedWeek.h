#pragma once

#include "follow/NewestWork.h"
#include "follow/ScheduleEdits.h"
#include "look/ThemeColours.h"
#include "service/ScheduleRecords.h"

#include <QDate>
#include <QWidget>

#include <map>
#include <memory>

class QLabel;

namespace trel::desktop::week {
class WeekView;
class WeekWork;
} // namespace trel::desktop::week

namespace trel::desktop::changes {

/// The picture of a week of a schedule that does not change, under its name. A picture that takes
/// long is made in another thread.
class FixedWeek : public QWidget
{
    Q_OBJECT

public:
    FixedWeek(const QString& name, const look::ThemeColours& colours, QWidget* parent);
    ~FixedWeek() override;

    week::WeekView* view() const { return m_view; }
    /// Shows this schedule from now on, with the programs of today.
    void setTasks(const std::map<int, mediadispatch::PlayTask>& tasks);

private:
    void order(const follow::ScheduleEdits& edits);

    QLabel* m_name;
    week::WeekView* m_view;
    std::shared_ptr<week::WeekWork> m_pictures;
    follow::NewestWork m_work;
    bool m_hasTasks = false;
    bool m_isShort = true; ///< A picture is made within a frame.
};

} // namespace trel::desktop::changes
