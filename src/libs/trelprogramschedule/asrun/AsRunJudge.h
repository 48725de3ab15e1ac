#pragma once

#include "trelprogramschedule/asrun/AsRunComparison.h"
#include "trelprogramschedule_export.h"

#include <QString>

#include <optional>
#include <vector>

namespace trel::mediadispatch {

/// A time in which a screen did not show what the timeline says, and no record tells why.
struct AsRunDeviation
{
    enum class Kind {
        NothingSaid,  ///< There is no record of this time.
        NotFollowed,  ///< It is not known which schedule was followed.
        OtherPicture, ///< The record tells another picture.
        OtherTimes,   ///< The record tells other times for which it was planned.
        OtherName,    ///< The record gives the program another name.
        Overlap,      ///< Two records tell something for it, and the clock did not leap.
    };

    Kind kind = Kind::NothingSaid;
    Instant from = 0;
    Instant to = 0;
    qint64 number = 0;  ///< Of the record; 0 for none.
    int progIndex = -1; ///< Of the program that was planned; -1 for none.
    QString plannedProgram;
    QString shownProgram;
};

/// How long a screen showed what was planned, and what took its place; milliseconds.
struct AsRunTimes
{
    qint64 asPlanned = 0;
    qint64 late = 0; ///< The former picture, where the next one tells that it was late.
    qint64 stoodIn = 0;
    qint64 gaps = 0;
    qint64 unexplained = 0;
};

/// Finds out which deviations from the timeline are explained by records.
class TRELPROGRAMSCHEDULE_EXPORT AsRunJudge
{
public:
    /// The next record, before the stretches of which it tells.
    void see(const AsRunRecord& record);
    /// The next stretch of a comparison.
    void add(const AsRunStretch& stretch);
    /// To be called behind the last.
    void finish();

    /// In their order, a thousand at most.
    const std::vector<AsRunDeviation>& deviations() const { return m_deviations; }
    /// How many there are.
    qint64 count() const { return m_count; }
    const AsRunTimes& times() const { return m_times; }

private:
    void addRecord(const AsRunStretch& stretch);
    void addPending(AsRunDeviation::Kind kind, const AsRunStretch& stretch);
    void resolve(const AsRunStretch* next);
    bool isExplained(const AsRunStretch* next) const;
    void note(const AsRunDeviation& deviation);

    /// What is a deviation unless the next stretch explains it.
    struct Pending
    {
        AsRunDeviation deviation;
        Instant since = 0;     ///< Of what was planned.
        bool isFormer = false; ///< What was on before it.
        bool isAfterLeap = false;
    };

    std::optional<Pending> m_pending;
    Instant m_ends = kEver;                          ///< Of the last record that was seen.
    AsRunEnd m_end;                                  ///< The same, with its reason.
    bool m_hasLeapt = false;                         ///< The clock leapt before it.
    qint64 m_number = 0;                             ///< Of the last record in a stretch,
    AsRunOutcome m_outcome = AsRunOutcome::Complete; ///< and why it ended.
    bool m_goesOn = false; ///< It is what the record before has left on screen.
    AsRunTimes m_times;
    qint64 m_count = 0;
    std::vector<AsRunDeviation> m_deviations;
};

} // namespace trel::mediadispatch
