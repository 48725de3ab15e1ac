#pragma once

#include "trelprogramschedule/asrun/AsRunRecord.h"
#include "trelprogramschedule/asrun/AsRunSchedule.h"
#include "trelprogramschedule/dispatch/ScreenTimeline.h"

#include <QTimeZone>

#include <memory>
#include <random>
#include <vector>

/// A schedule that a player takes at a moment.
struct TakenSchedule
{
    trel::mediadispatch::Instant moment = 0;
    trel::mediadispatch::AsRunSchedule schedule;
    std::shared_ptr<trel::mediadispatch::ScreenTimeline> timeline;
    QByteArray contents;
    QByteArray hash;
};

TakenSchedule takenSchedule(trel::mediadispatch::Instant moment,
                            const trel::mediadispatch::AsRunSchedule& schedule);

/// Writes down what a player would, by the literal rule: it asks the timeline what is on, and shows
/// that until it is over. Now and then something goes wrong, which it tells.
class SimulatedPlayer
{
public:
    SimulatedPlayer(std::vector<TakenSchedule> schedules, std::uint32_t seed, int faultsInHundred)
        : m_schedules(std::move(schedules))
        , m_random(seed)
        , m_faults(faultsInHundred)
    {}

    std::vector<trel::mediadispatch::AsRunRecord> play(trel::mediadispatch::Instant end);

private:
    void showNext(trel::mediadispatch::Instant end);
    void spoil(trel::mediadispatch::AsRunRecord& record);
    void add(const trel::mediadispatch::AsRunRecord& record);
    int below(int bound) { return static_cast<int>(m_random() % static_cast<unsigned>(bound)); }

    std::vector<TakenSchedule> m_schedules;
    std::mt19937 m_random;
    int m_faults;
    std::size_t m_next = 0; ///< The schedule that is taken next.
    trel::mediadispatch::Instant m_at = 0;
    std::vector<trel::mediadispatch::AsRunRecord> m_records;
};

/// The insertion that has the screen; 0 for none.
qint64 insertionAt(const TakenSchedule& taken, const trel::mediadispatch::ScreenState& state,
                   trel::mediadispatch::Instant moment);
