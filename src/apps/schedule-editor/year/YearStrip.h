#pragma once

#include "access/SpokenParts.h"
#include "look/ThemeColours.h"
#include "year/YearLayout.h"

#include <QMetaObject>
#include <QWidget>

namespace trel::desktop::follow {
class EditedSchedule;
struct ScheduleEdits;
} // namespace trel::desktop::follow

namespace trel::desktop::year {

/// A year of the schedule that is being edited, in one line: when each task is valid, with the gaps
/// between them and the days on which several are. A click leads to its day; the arrows to the week
/// before and after, Page Up and Page Down to other months, Home and End to the ends of the year.
///
/// It follows the edits while it can be seen. An edit that moves no validity costs nothing but the
/// tasks that it touches.
class YearStrip : public QWidget, public access::SpokenParts
{
    Q_OBJECT

public:
    /// The schedule outlives the strip.
    YearStrip(follow::EditedSchedule& edited, QWidget* parent);

    /// Shows the year of a week, and where the week lies in it.
    void showWeek(const QDate& first);
    void setColours(const look::ThemeColours& colours);

    const YearLayout& layoutOfYear() const { return m_layout; }
    /// The day at a place; the nearest one beside the days.
    QDate dayAt(const QPoint& place) const;
    /// Where a stretch of days of the year stands.
    QRect placeOf(const QDate& first, const QDate& last) const;

    /// The tasks of the year, then the gaps between them and the days with several.
    int spokenCount() const override;
    QString spokenName(int index) const override;
    QRect spokenPlace(int index) const override;
    /// The first task that is valid on a day of the week on show.
    int spokenCurrent() const override;
    bool canPressSpoken() const override { return true; }
    /// Leads to the first day.
    void pressSpoken(int index) override;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

signals:
    /// The operator wants to see a day.
    void dayChosen(const QDate& day);

protected:
    void paintEvent(QPaintEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void changeEvent(QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    bool event(QEvent* event) override;

private:
    void take(const follow::ScheduleEdits& edits);
    void layOut(int year);
    void describe();
    QString tip(const QDate& day) const;
    QRect days() const;
    QRect lane(const YearSpan& span) const;
    /// Where the number of a task stands, beside the frame of the week if there is room; empty
    /// where there is none at all.
    QRect numberOf(const YearSpan& span) const;
    QRect weekFrame() const;
    QString taskText(const YearSpan& span) const;
    /// The gap or the overlap that is told at a place behind the tasks.
    const YearStretch& stretchAt(int index, bool& isGap) const;

    void paintMonths(QPainter& painter) const;
    void paintSpans(QPainter& painter) const;
    void paintStretches(QPainter& painter) const;
    void paintPresent(QPainter& painter) const;
    void paintNumbers(QPainter& painter) const;
    void paintFocus(QPainter& painter) const;

    follow::EditedSchedule& m_edited;
    QMetaObject::Connection m_following;
    Validities m_validities;
    YearLayout m_layout;
    look::ThemeColours m_colours;
    QDate m_week; ///< Its first day.
};

} // namespace trel::desktop::year
