#pragma once

#include "service/ScheduleRecords.h"
#include "trelprogramschedule/dispatch/ScreenInsertion.h"
#include "trelprogramschedule/dispatch/ScreenState.h"

#include <QDateTime>
#include <QObject>

#include <memory>
#include <optional>
#include <set>
#include <vector>

namespace trel::mediadispatch {
class ClockAlarm;
class MomentFormat;
class ScreenDispatch;
} // namespace trel::mediadispatch

namespace trel::desktop {

/// What a screen shows, with the records behind it.
struct ScreenScene
{
    trel::mediadispatch::ScreenState state;
    /// The program that plays or whose last frame is frozen; without one its isNull is set.
    trel::mediadispatch::ProgramIten program;
    trel::mediadispatch::PlayPlan plan; ///< As it is in effect, or as it was cut in.
};

/// Follows the dispatch for the panels that show it: what is on screen, what comes next, and how
/// time goes by. Never asks the dispatch of itself; once a second, on the second, it tells that
/// time has gone by, as long as one of its viewers can be seen.
class ScreenFollower : public QObject
{
    Q_OBJECT

public:
    /// The dispatch outlives the follower.
    explicit ScreenFollower(trel::mediadispatch::ScreenDispatch& dispatch,
                            QObject* parent = nullptr);
    ~ScreenFollower() override;

    /// Lets time be told while this widget is visible.
    void addViewer(QWidget& viewer);

    bool isRunning() const;
    const ScreenScene& now() const { return m_now; }
    /// What comes after it; nothing when that stays for good.
    const std::optional<ScreenScene>& next() const { return m_next; }
    /// The first plays to come of the three next programs, other than the one on screen and than
    /// each other, within eight days. Their `since` is when they begin.
    const std::vector<ScreenScene>& coming() const { return m_coming; }

    /// At this moment, in milliseconds: how far into the program the screen is, how long the play,
    /// or the picture, still lasts, and how long the plan has the screen. Nothing for what does not
    /// end.
    qint64 position() const;
    std::optional<qint64> remaining() const { return timeTo(m_now.state.until); }
    std::optional<qint64> planRemaining() const { return timeTo(m_now.state.spanUntil); }
    std::optional<qint64> timeTo(trel::mediadispatch::Instant moment) const;

    /// The date that the local clock shows now.
    QDate today() const;
    /// What the local clock shows at a moment.
    QDateTime local(trel::mediadispatch::Instant moment) const;
    /// Its time of day in kTimeFormat, with the offset on days that may have a time twice.
    QString timeText(trel::mediadispatch::Instant moment) const;
    /// The insertion that has the screen at a moment; none where the rules have it.
    std::optional<trel::mediadispatch::ScreenInsertion>
    insertionAt(trel::mediadispatch::Instant moment) const;

signals:
    /// What is on screen, or what comes next, is another than before.
    void changed();
    /// A second has gone by. Comes while a viewer is visible.
    void ticked();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void update();
    void findComing();
    ScreenScene sceneOf(const trel::mediadispatch::ScreenState& state,
                        trel::mediadispatch::Instant moment) const;
    void setVisible(QObject* viewer, bool isVisible);
    void setAlarm();
    void tick();

    trel::mediadispatch::ScreenDispatch& m_dispatch;
    std::unique_ptr<trel::mediadispatch::MomentFormat> m_clock; ///< That of the schedule in effect.
    ScreenScene m_now;
    std::optional<ScreenScene> m_next;
    std::vector<ScreenScene> m_coming;
    trel::mediadispatch::Instant m_at = 0; ///< The moment that m_now is of.
    std::set<QObject*> m_visible;
    std::unique_ptr<trel::mediadispatch::ClockAlarm> m_alarm; ///< Only while somebody looks.
};

} // namespace trel::desktop
