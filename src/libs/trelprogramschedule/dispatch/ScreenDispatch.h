#pragma once

#include "trelprogramschedule/dispatch/ScreenInsertion.h"
#include "trelprogramschedule/dispatch/ScreenState.h"

#include <QObject>

#include <map>
#include <memory>

namespace trel::mediadispatch {

class ScreenTimeline;
struct PlayTask;

/// The schedule in effect at work: what is on screen now, followed as time goes by.
///
/// Sleeps until the next event, by the clock that was in force when the schedule was started, and
/// is woken early when that clock is set, so that what it says is never more than a second old.
/// Reached through ScheduleHost::dispatch(); GUI thread only.
class Q_DECL_EXPORT ScreenDispatch : public QObject
{
    Q_OBJECT

public:
    /// Whether a schedule has been started.
    bool isRunning() const;
    /// What is on screen at this moment, worked out anew.
    ScreenState state() const;
    /// The schedule in effect with its insertions, for questions about other moments. Without one
    /// these are empty. Valid until the next changed().
    const ScreenTimeline& timeline() const;
    const std::map<int, PlayTask>& tasks() const;
    const ScreenInsertions& insertions() const;

signals:
    /// Something else is on screen than was last told, or was to come: a play has ended or begun,
    /// a schedule was started or stopped, an insertion was taken, a program came or went.
    void changed(const trel::mediadispatch::ScreenState& state);

private:
    friend class ScheduleInEffect;
    ScreenDispatch();
    ~ScreenDispatch() override;
};

} // namespace trel::mediadispatch

Q_DECLARE_METATYPE(trel::mediadispatch::ScreenState)
