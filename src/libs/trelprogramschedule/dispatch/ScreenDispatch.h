#pragma once

#include "trelprogramschedule/dispatch/ScreenInsertion.h"
#include "trelprogramschedule/dispatch/ScreenState.h"
#include "trelprogramschedule_export.h"

#include <QObject>

#include <map>
#include <memory>
#include <vector>

namespace trel::mediadispatch {

class ScreenTimeline;
struct PlayTask;
struct ProgramIten;

/// The schedule in effect at work: what is on screen now, followed as time goes by.
///
/// Sleeps until the next event, by the clock that was in force when the schedule was started, and
/// is woken early when that clock is set, so that what it says is never more than a second old.
/// Reached through ScheduleHost::dispatch(); GUI thread only.
// The destructor is private: only the service makes or ends the one instance.
// NOLINTNEXTLINE(cppcoreguidelines-virtual-class-destructor)
class TRELPROGRAMSCHEDULE_EXPORT ScreenDispatch : public QObject
{
    Q_OBJECT

public:
    /// Whether a schedule has been started.
    bool isRunning() const;
    /// What is on screen at this moment, worked out at the call.
    ScreenState state() const;
    /// The schedule in effect with its insertions, for questions about other moments. Without one
    /// these are empty. Valid until the next changed(), which a slot of that very signal may cause:
    /// copy what is to outlive a call.
    const ScreenTimeline& timeline() const;
    /// The tasks that are in effect; empty where none are.
    const std::map<int, PlayTask>& tasks() const;
    /// Those that are over stay until the next one comes. Their instants never change: whatever
    /// becomes of programs and clocks, an insertion ends where it was to end when it was taken. The
    /// original of the last one is filled in right after changed() has told of it.
    const ScreenInsertions& insertions() const;

Q_SIGNALS:
    /// Something else is on screen than was last told, or was to come: a play has ended or begun,
    /// a schedule was started or stopped, an insertion was taken, a program of the schedule came,
    /// went or got another length, the clock leapt to another picture. Not emitted for what makes
    /// no difference; what is on screen may still be what it was, where only what follows is new.
    void changed(const trel::mediadispatch::ScreenState& state);

private:
    friend class ScheduleInEffect;
    /// The programs are looked at whenever the timeline is built.
    explicit ScreenDispatch(const std::map<int, ProgramIten>& programs);
    ~ScreenDispatch() override;

    /// Puts a schedule in the place of the former one, with the insertions that it has.
    void start(const std::map<int, PlayTask>& tasks, ScreenInsertions insertions = {});
    void stop();
    /// Takes note that the programs have changed.
    void updatePrograms();
    /// The insertions as they stand once a plan is cut in, at once or as soon as the play on screen
    /// has ended.
    ScreenInsertions insertionsWith(ScreenInsertion request, bool isDelayed);
    /// Puts insertions in the place of those that the schedule had.
    void setInsertions(ScreenInsertions insertions);

    void wake();
    /// Tells what is on screen, if that is anything new, and sleeps until it is over.
    void follow(bool isAnew);

    class Private;
    std::unique_ptr<Private> d;
};

} // namespace trel::mediadispatch

Q_DECLARE_METATYPE(trel::mediadispatch::ScreenState)
