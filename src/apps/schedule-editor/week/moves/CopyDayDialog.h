#pragma once

#include "week/moves/DayCopy.h"
#include "week/moves/EditTarget.h"

#include <QDialog>

#include <memory>
#include <utility>

class QCheckBox;
class QLabel;
class QPushButton;
class QVBoxLayout;

namespace trel::desktop::week {

class WeekTasks;
struct WeekLayout;

/// Asks onto which other days of a week the plans of one day are copied, and says what would come
/// of it.
class CopyDayDialog : public QDialog
{
    Q_OBJECT

public:
    /// The target outlives the dialog. The day is one of the week.
    CopyDayDialog(const WeekLayout& week, const QDate& day, const EditTarget& target,
                  const QLocale& locale, QWidget* parent);
    ~CopyDayDialog() override;

    /// What is to be filed for the days that are chosen.
    undo::TaskEdits edits() const;

    /// What a copy onto days that were chosen comes to, in the language in use.
    static QString outcome(const DayCopy& copy);

private:
    void addDays(const WeekLayout& week);
    void addButtons(QVBoxLayout& layout);
    void update();
    DayCopy copy() const;
    QString summary(const DayCopy& copy) const;

    QDate m_day;
    std::map<int, trel::mediadispatch::PlayTask> m_tasks;
    std::unique_ptr<WeekTasks> m_week;
    std::shared_ptr<const Programs> m_programs;
    std::vector<std::pair<QDate, QCheckBox*>> m_days;
    QLabel* m_summary;
    QPushButton* m_confirm = nullptr;
};

} // namespace trel::desktop::week
