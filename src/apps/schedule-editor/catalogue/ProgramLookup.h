#pragma once

#include "follow/NewestWork.h"
#include "service/ProgramUses.h"
#include "trelprogramschedule/dispatch/ScreenState.h"

#include <QObject>
#include <QTimeZone>

#include <map>
#include <optional>
#include <vector>

namespace trel::desktop {

/// Where programs are used, and when the screen shows one of them next.
struct LookupAnswer
{
    std::vector<int> programs; ///< Those that were asked for.
    /// Plans of the schedule as it is edited.
    std::vector<trel::mediadispatch::ProgramUse> uses;
    std::map<int, trel::mediadispatch::PlayTask> tasks; ///< Those that the uses are in.
    /// The first time that one of the programs is on screen from now on, or the time that it is on
    /// already; nothing when none comes on any more. By the schedule in effect or, where none is,
    /// by the one that is edited.
    std::optional<trel::mediadispatch::ScreenState> next;
    bool isInEffect = false; ///< `next` is of the schedule in effect.
    /// That schedule has one of them on screen at some time before, where none comes on any more.
    bool wasOnScreen = false;
    trel::mediadispatch::Instant moment = 0;
    QTimeZone zone;
};

/// Looks programs up in the schedule: at once in a short one, and else in another thread. A newer
/// question takes the place of an older one.
class ProgramLookup : public QObject
{
    Q_OBJECT

public:
    explicit ProgramLookup(QObject* parent = nullptr);
    ~ProgramLookup() override;

    /// answered() comes within the call where the schedule is short.
    void ask(std::vector<int> programs);

signals:
    void answered(const LookupAnswer& answer);

private:
    struct Question;

    follow::NewestWork m_work;
};

} // namespace trel::desktop
