#pragma once

#include "clock/ClockChangeWork.h"

#include <QListWidget>

#include <memory>
#include <optional>

namespace trel::desktop {

namespace follow {
class EditedSchedule;
}

/// The next hours that a change of the clocks leaves out or doubles on days of a task, each with
/// what becomes of the plans that it touches. Follows the working set, so that the operator learns
/// of it before saving; works it out only while it can be seen, once for all edits of one turn of
/// the event loop. What takes long is worked out in another thread; what was known before stays
/// until then, and rows that an edit does not concern stay as they are.
class ClockChangePanel : public QListWidget
{
    Q_OBJECT

public:
    /// The schedule outlives the panel.
    ClockChangePanel(follow::EditedSchedule& edited, QWidget* parent);
    ~ClockChangePanel() override;

    QSize sizeHint() const override;

protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void takeEdits(const follow::ScheduleEdits& edits);
    void order(const follow::ScheduleEdits& edits);
    void take(const ClockChangeWork::Changes& changes);
    void fill();
    void insertSentence(int row, const QString& sentence, bool isFaint);
    void insertChange(int row, const trel::mediadispatch::TaskClockChange& change);

    follow::EditedSchedule& m_edited;
    QMetaObject::Connection m_following;
    QTimeZone m_zone; ///< That the changes are looked for in.
    std::shared_ptr<ClockChangeWork> m_search;
    follow::NewestWork m_work;
    std::optional<ClockChangeWork::Changes> m_changes; ///< That the rows tell of.
};

} // namespace trel::desktop
