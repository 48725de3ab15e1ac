#pragma once

#include "look/ThemeColours.h"

#include <QDate>
#include <QWidget>

class QBoxLayout;
class QLabel;
class QPushButton;

namespace trel::desktop::week {

class WeekView;

/// The same week of two schedules side by side, each under its name, with controls that lead to
/// another week. Both pictures show the same week, with hours of the same height at the same place.
/// What they show is up to the code that has the schedules.
class WeekPair : public QWidget
{
    Q_OBJECT

public:
    explicit WeekPair(QWidget* parent = nullptr);

    WeekView& former() const { return *m_former; }
    WeekView& later() const { return *m_later; }

    /// Plain texts.
    void setNames(const QString& former, const QString& later);
    void setColours(const look::ThemeColours& colours);
    /// Takes texts and dates from the language again.
    void setLanguage(const QLocale& locale);

    QDate firstDay() const;
    /// Leaves the week alone when the day is in it.
    void showWeekOf(const QDate& day);

signals:
    /// Both show another week.
    void weekChanged();

private:
    QPushButton* addButton(const char* name, const QString& sign);
    QBoxLayout* side(QLabel* name, WeekView* view);
    void updateTitle();

    WeekView* m_former;
    WeekView* m_later;
    QLabel* m_formerName;
    QLabel* m_laterName;
    QPushButton* m_back;
    QPushButton* m_today;
    QPushButton* m_next;
    QLabel* m_title;
};

} // namespace trel::desktop::week
