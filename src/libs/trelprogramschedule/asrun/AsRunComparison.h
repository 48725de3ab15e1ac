#pragma once

#include "trelprogramschedule/asrun/AsRunRecord.h"
#include "trelprogramschedule/dispatch/ScreenState.h"
#include "trelprogramschedule_export.h"

#include <QByteArray>
#include <QString>

#include <functional>
#include <memory>

namespace trel::mediadispatch {

/// A time in which neither what was planned nor what was on screen changes.
struct TRELPROGRAMSCHEDULE_EXPORT AsRunStretch
{
    Instant from = 0;
    Instant to = 0;
    /// What the schedule had that the player followed; null where that is not known, and in gaps
    /// that were not asked for.
    const ScreenState* planned = nullptr;
    qint64 insertion = 0;   ///< The number of the insertion that it is of; 0 for none.
    QString plannedProgram; ///< The name of its program then.
    /// What says what was on screen; null where no record does.
    const AsRunRecord* record = nullptr;

    qint64 length() const { return to - from; }
    /// Whether the record is about what was planned, however it was shown.
    bool isAsPlanned() const;
};

/// A play that lasts for less than this cannot be seen, and what is late by less is in time: the
/// length of a picture at 25 of them a second, in milliseconds.
inline constexpr qint64 kShortestSeen = 40;

/// How a record of a picture or a gap ended.
struct AsRunEnd
{
    AsRunKind kind = AsRunKind::Picture;
    AsRunOutcome outcome = AsRunOutcome::Complete;
    QByteArray boot;
    qint64 steady = 0;
};

TRELPROGRAMSCHEDULE_EXPORT AsRunEnd asRunEnd(const AsRunRecord& record);

/// Whether the clock leapt between a record and the next one. A picture says so. A gap has another
/// reason to tell; there the clock that never leaps says that no time has passed.
TRELPROGRAMSCHEDULE_EXPORT bool hasClockLeapt(const AsRunEnd& before, const AsRunRecord& next);

/// Holds records against the timelines of the schedules that were followed: one pass over both,
/// without keeping more than the last few of either.
class TRELPROGRAMSCHEDULE_EXPORT AsRunComparison
{
public:
    /// The next record in the order of numbers, valid until the next call; null behind the last.
    using Records = std::function<const AsRunRecord*()>;
    /// The contents of a schedule by their hash; empty where they are not there.
    using Contents = std::function<QByteArray(const QByteArray& hash)>;
    /// False ends the comparison.
    using Visitor = std::function<bool(const AsRunStretch& stretch)>;

    enum class Gaps {
        AsOne, ///< A gap is one stretch, without what was planned.
        ByPlay,
    };

    AsRunComparison(Records records, Contents contents, Gaps gaps);
    ~AsRunComparison();
    Q_DISABLE_COPY(AsRunComparison)

    /// Gives the stretches between the moments in their order. Where the clock leapt back, they
    /// begin once more at the moment to which it did. kEver and kNever mean as far as there are
    /// records. To be called once.
    void visit(Instant from, Instant to, const Visitor& visitor);

private:
    class Private;

    std::unique_ptr<Private> m_d;
};

} // namespace trel::mediadispatch
