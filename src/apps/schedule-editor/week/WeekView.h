#pragma once

#include "access/SpokenParts.h"
#include "look/ThemeColours.h"
#include "week/BlockSteps.h"
#include "week/MinuteTimer.h"
#include "week/WeekArea.h"
#include "week/WeekHit.h"
#include "week/WeekKeys.h"
#include "week/WeekSchedule.h"

#include <QAbstractScrollArea>

#include <memory>

class QGestureEvent;

namespace trel::desktop::week {

class WeekStrip;

/// A week of a schedule: days across, in the order of the widget's locale, and hours down. Dates
/// and hours stay in sight. A line follows the clock in force while the picture is shown.
///
/// Arrows move the selected block, Enter and a double click activate it, Space shows its tool tip;
/// plus, minus and 0 change the height of an hour, as do the wheel with Ctrl and a pinch; Home
/// leads to the present moment, and Page Up and Page Down with Ctrl to another week.
class WeekView : public QAbstractScrollArea, public access::SpokenParts
{
    Q_OBJECT

public:
    explicit WeekView(QWidget* parent = nullptr);
    ~WeekView() override;

    /// Shows a schedule; the selected block stays where it has not gone. Never null.
    void setSchedule(std::shared_ptr<const WeekSchedule> schedule);
    /// The same with a week that has been laid out; one that is not shown is laid out here.
    void setPicture(const WeekPicture& picture);
    void setColours(const look::ThemeColours& colours);
    const look::ThemeColours& colours() const { return m_colours; }
    /// Takes the texts and the order of days from the language again.
    void retranslate();

    QDate firstDay() const { return m_layout->first(); }
    void showWeekOf(const QDate& day);
    void stepWeeks(int weeks);
    /// Shows the present moment. As long as no other week is asked for, the picture then moves on
    /// with the days.
    void showNow();

    double hourHeight() const { return m_area->geometry().hourHeight(); }
    /// Makes hours so many times as high, around what is in the middle.
    void zoom(double factor);
    /// Makes hours as high as the whole day fits into, also when the widget changes its size.
    void zoomToFit();
    bool isFit() const { return m_area->isFit(); }

    std::optional<BlockRef> selected() const { return m_selected; }
    const WeekLayout& layoutOfWeek() const { return *m_layout; }
    /// Why the selected block is on screen, or is not: as its tool tip says it. Empty when no block
    /// is selected, or it does not stand in this week.
    QString explanation() const;
    /// Where a block stands in the viewport, from its first piece on; empty when it is not there.
    QRect visualRect(const BlockRef& block) const;
    /// Where days and hours stand in the whole picture, of which the viewport shows a part.
    const WeekGeometry& geometryOfWeek() const { return m_area->geometry(); }
    QPoint offset() const { return m_area->offset(); }
    /// The strip of dates above the viewport, as wide as that.
    QWidget* dates() const;
    /// What stands at a place of the viewport.
    WeekHit hit(const QPoint& place) const;
    /// Selects a block of this week as soon as a picture has it, with the next one at the earliest.
    void selectWhenThere(const BlockRef& block) { m_awaited = block; }

    /// The blocks of the week, day by day and on each day as they begin: with their day, their task
    /// and what stands in them, and besides why they are on screen or not.
    int spokenCount() const override;
    QString spokenName(int index) const override;
    QString spokenDescription(int index) const override;
    QRect spokenPlace(int index) const override;
    int spokenCurrent() const override;
    bool canPressSpoken() const override { return true; }
    /// Selects the block and activates it.
    void pressSpoken(int index) override;

signals:
    /// The operator wants to get to a plan.
    void activated(int taskId, int planRow);
    void weekChanged();
    /// Another week is shown, or another state of it.
    void pictureChanged();
    void explanationChanged();
    void zoomChanged();

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void scrollContentsBy(int dx, int dy) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void changeEvent(QEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    bool viewportEvent(QEvent* event) override;

private:
    void layOut(const QDate& first);
    void updateNow();
    void placeStrips();
    void repaintAll();

    WeekScene scene(const QRect& visible) const;
    /// The first moment of a block; nothing when it does not stand in this week.
    std::optional<WeekHit> hit(const BlockRef& block) const;

    /// The block at a place among all of the week; the place is one of those.
    BlockRef blockAt(int index) const;
    void select(const std::optional<BlockRef>& block);
    void selectAwaited();
    void step(BlockStep step);
    bool activateSelected();
    bool explainSelected();
    bool carryOut(WeekCommand command);
    void showTip(const QPoint& place, const WeekHit& hit);
    bool pinch(const QGestureEvent& event);

    std::shared_ptr<const WeekSchedule> m_schedule;
    look::ThemeColours m_colours;
    std::shared_ptr<const WeekLayout> m_layout;
    WallMoment m_now;
    MinuteTimer m_minutes;
    WeekArea* m_area;
    WeekStrip* m_dates;
    WeekStrip* m_hours;
    std::optional<BlockRef> m_selected;
    std::optional<BlockRef> m_awaited; ///< To be selected.
    bool m_followsNow = true;
};

} // namespace trel::desktop::week
