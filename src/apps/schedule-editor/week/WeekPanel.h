#pragma once

#include "look/ThemeColours.h"
#include "week/WeekFeed.h"

#include <QWidget>

class QComboBox;
class QPushButton;

namespace trel::desktop::week {

class DayDrag;
class EditTarget;
class WeekMover;
class WeekView;

/// The picture of a week with its controls: which week, which schedule, how high an hour is.
class WeekPanel : public QWidget
{
    Q_OBJECT

public:
    /// The schedule outlives the panel.
    explicit WeekPanel(follow::EditedSchedule& edited, QWidget* parent = nullptr);

    WeekView* view() const { return m_view; }
    void setColours(const look::ThemeColours& colours);
    /// The language of dates, and the country whose weeks they are.
    void setLanguage(const QLocale& locale);
    /// Lets the operator move blocks of the schedule as edited, and copy its days. Without this the
    /// picture is only looked at. To be called once; the target outlives the panel.
    void allowEdits(EditTarget& target);
    /// Lets the operator choose a day, whose week is shown then.
    void showCalendar();

signals:
    /// The operator wants to get to a plan, by its id.
    void activated(int taskId, int planId);

protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    QPushButton* addButton(const char* name, const QString& sign);
    void buildControls();
    void connectControls();
    void retranslate();
    void activate(int taskId, int planRow);
    void stepMonths(int months);
    void updateTitle();
    void updateButtons();
    void keepControlsWhole();
    void showMonths();

    WeekFeed m_feed;
    WeekView* m_view;
    WeekMover* m_mover = nullptr;
    DayDrag* m_dayDrag = nullptr;
    QPushButton* m_formerMonth;
    QPushButton* m_former;
    QPushButton* m_today;
    QPushButton* m_next;
    QPushButton* m_nextMonth;
    QPushButton* m_title; ///< Opens a calendar.
    QComboBox* m_source;
    QPushButton* m_smaller;
    QPushButton* m_larger;
    QPushButton* m_fit;
    int m_roomy = 0; ///< In less room the months are left to the calendar.
};

} // namespace trel::desktop::week
