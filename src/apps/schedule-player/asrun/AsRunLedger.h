#pragma once

#include "asrun/AsRunMail.h"
#include "trelprogramschedule/asrun/AsRunRecord.h"

#include <QByteArray>

#include <optional>
#include <vector>

namespace trel::player {

/// Makes records of what was on screen fit to be kept: names schedule and start of the machine in
/// each, tells of the time before the player began, and where records are missing, tells of that by
/// a gap, so that none begins elsewhere than the one before has ended.
class AsRunLedger
{
public:
    explicit AsRunLedger(QByteArray boot);

    /// The player begins where a record does, which need not be finished. What is known of the one
    /// before: what was on when it was last heard of, and its last record besides. With neither, a
    /// gap without length marks the place.
    void begin(const mediadispatch::AsRunRecord& first,
               const std::optional<mediadispatch::AsRunRecord>& onScreen,
               const std::optional<mediadispatch::AsRunRecord>& last);

    /// Takes what has come. Where there is no room, records are left out, and a gap follows once
    /// there is.
    void take(const AsRunLetter& letter, bool hasRoom);

    /// Finished, and not taken over yet.
    const std::vector<mediadispatch::AsRunRecord>& records() const { return m_records; }
    /// Of the schedules that they take.
    const std::vector<QByteArray>& contents() const { return m_contents; }
    /// What is on screen, up to the moment at which it was last told.
    const std::optional<mediadispatch::AsRunRecord>& onScreen() const { return m_onScreen; }
    /// They are kept elsewhere.
    void clear();
    /// What was kept elsewhere is lost.
    void startOver();

    /// Whether a record is the gap that marks the place of the first of all.
    static bool isMark(const mediadispatch::AsRunRecord& record);
    /// Has a gap begin where a record has ended.
    static void bridge(mediadispatch::AsRunRecord& gap, const mediadispatch::AsRunRecord& before);

private:
    void setOnScreen(const mediadispatch::AsRunRecord& record);
    void add(mediadispatch::AsRunRecord record);
    void addTaken(const screen::ScreenSchedule& schedule, const mediadispatch::AsRunRecord& at);
    void mend(const mediadispatch::AsRunRecord& next);
    mediadispatch::AsRunRecord markAt(const mediadispatch::AsRunRecord& first) const;
    mediadispatch::AsRunRecord gapUntil(const mediadispatch::AsRunRecord& next) const;

    const QByteArray m_boot;
    QByteArray m_schedule; ///< That is followed, by its hash.
    qint64 m_revision = 0;
    mediadispatch::AsRunRecord m_last;             ///< That was added.
    std::optional<screen::ScreenSchedule> m_taken; ///< The last that is among the records.
    /// The last that is not, to be taken with the next record.
    std::optional<screen::ScreenSchedule> m_leftOut;

    std::vector<mediadispatch::AsRunRecord> m_records;
    std::vector<QByteArray> m_contents;
    std::optional<mediadispatch::AsRunRecord> m_onScreen;
};

} // namespace trel::player
