#pragma once

#include "card/PlanColumns.h"

#include <QComboBox>
#include <QDateEdit>
#include <QLabel>
#include <QPushButton>
#include <QSpinBox>
#include <QTableView>
#include <QTimeEdit>

/// Clicks on a widget by way of its window, after it has been scrolled into view. What lies over
/// the place gets the click, as it does with an operator's mouse.
void clickAt(QWidget& widget, const QPoint& position);
void click(QWidget& widget);

/// Operates one card of the editor as an operator does, by mouse and keyboard, and reads it from
/// its widgets. Everything is found by its place or its name.
class CardOnScreen
{
public:
    explicit CardOnScreen(QWidget& card)
        : m_card(card)
    {}

    // What the operator sees.

    /// The task and its plans, as ScheduleLines.h has them.
    QStringList lines() const;
    int rowCount() const;
    QString line(int row) const;
    bool isFolded() const;
    /// What the program field shows, cut to fit.
    QString programField(int row) const;
    QString programs(int row) const;
    QString state(int row) const;
    bool isStateRed(int row) const;

    QTimeEdit& startTime(int row) const;
    QTimeEdit& endTime(int row) const;
    QSpinBox& times(int row) const;
    QComboBox& mode(int row) const;
    QComboBox& weeks(int row) const;
    QComboBox& endAction(int row) const;
    QDateEdit& firstDay() const;
    QDateEdit& lastDay() const;

    // What the operator does.

    void toggleFold() const;
    /// Opens the list of a box and clicks on an entry.
    void choose(QComboBox& box, int entry) const;
    /// Opens the list of days, clicks on the entries with these numbers, and leaves it by Escape.
    /// beforeLeaving sees the open list.
    template <typename Look>
    void toggleDays(int row, const std::initializer_list<int>& days, Look beforeLeaving) const
    {
        openDays(row);
        clickDays(row, days);
        beforeLeaving();
        leaveDays(row);
    }
    void toggleDays(int row, const std::initializer_list<int>& days) const
    {
        toggleDays(row, days, [] {});
    }
    /// Types over the whole content of a box.
    void type(QSpinBox& box, const char* number) const;
    /// Types over one section after the other.
    void type(QTimeEdit& edit, const char* text) const;
    void copy(int row) const;
    void remove(int row) const;
    void addPlan() const;
    void openChooser(int row) const;
    void copyTask() const;
    void removeTask() const;

private:
    QTableView& table() const;
    QWidget* cell(int row, trel::mediadispatch::PlanColumn column) const;
    QPushButton& button(const char* name) const;
    void openDays(int row) const;
    void clickDays(int row, const std::initializer_list<int>& days) const;
    void leaveDays(int row) const;

    QWidget& m_card;
};
