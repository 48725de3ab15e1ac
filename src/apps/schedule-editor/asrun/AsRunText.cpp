#include "asrun/AsRunText.h"

#include "BidiText.h"
#include "ProblemWords.h"
#include "asrun/AsRunDay.h"
#include "common/SentenceText.h"
#include "screen/ScreenWords.h"
#include "trelprogramschedule/dispatch/MomentFormat.h"

#include <QDateTime>
#include <QLocale>

using namespace trel::mediadispatch;

namespace trel::desktop {

QString AsRunText::planned(const AsRunLine& line)
{
    return line.isPlanKnown ? ScreenWords::program(line.planned, line.plannedProgram)
                            : tr("Not known");
}

QString AsRunText::shown(const AsRunLine& line)
{
    if (!line.isRecorded) {
        return tr("No record");
    }
    if (line.record.kind != AsRunKind::Picture) {
        return tr("No player");
    }
    switch (line.record.shown) {
    case AsRunShown::StandBy:
        return tr("Stand-by picture");
    case AsRunShown::LastFrame:
        return tr("Last good frame of %1").arg(line.record.program);
    case AsRunShown::FormerPicture:
        return tr("What was on before");
    case AsRunShown::AsPlanned:
        break;
    }
    return ScreenWords::program(line.record.picture, line.record.program);
}

QString AsRunText::outcome(AsRunOutcome outcome)
{
    switch (outcome) {
    case AsRunOutcome::Complete:
    case AsRunOutcome::GoesOn:
        break;
    case AsRunOutcome::CutByInsertion:
        return tr("Cut off: something was cut in");
    case AsRunOutcome::CutBySchedule:
        return tr("Cut off: another schedule came");
    case AsRunOutcome::CutByStop:
        return tr("Cut off: the schedule was stopped");
    case AsRunOutcome::CutByPlayerEnd:
        return tr("Cut off: the player was ended");
    case AsRunOutcome::CutByKill:
        return tr("Cut off: the player was killed");
    case AsRunOutcome::CutByFault:
        return tr("Failed");
    case AsRunOutcome::CutByClock:
        return tr("Cut off: the clock was changed");
    case AsRunOutcome::PlayerHadEnded:
        return tr("The player had been ended");
    case AsRunOutcome::PlayerWasKilled:
        return tr("The player had been killed");
    case AsRunOutcome::MachineHadStopped:
        return tr("The machine had stopped");
    case AsRunOutcome::NothingReadYet:
        return tr("The player had no schedule yet");
    case AsRunOutcome::MachineHadSlept:
        return tr("The machine was asleep");
    case AsRunOutcome::NotRecorded:
        return tr("The records could not be kept");
    }
    return QString();
}

QString AsRunText::remark(const AsRunLine& line, const QLocale& locale)
{
    if (!line.isExplained) {
        return tr("No record tells why");
    }
    if (!line.isRecorded) {
        return QString();
    }
    QStringList parts;
    if (line.isLate()) {
        constexpr double kPerSecond = 1000.0;
        parts.append(
            tr("%1 s late")
                .arg(locale.toString(static_cast<double>(line.record.late) / kPerSecond, 'f', 1)));
    }
    if (const QString text = outcome(line.record.outcome); !text.isEmpty()) {
        parts.append(text);
    }
    if (!line.record.why.isEmpty()) {
        parts.append(line.record.why);
    }
    return parts.join(QStringLiteral(" · "));
}

QString AsRunText::summary(const AsRunDay& day, const QLocale& locale)
{
    if (!day.result) {
        return tr("The records cannot be read: %1").arg(problems::sentence(day.result));
    }
    if (!day.isRecorded) {
        return tr("No player has recorded anything for this database.");
    }
    if (day.until == 0) {
        return tr("There is no record of this day.");
    }
    QStringList sentences{
        verdict(day),
        tr("Recorded until %1.").arg(moment(day.until, day.date, MomentFormat(day.zone)))};
    if (day.isCut) {
        sentences.append(tr("Only the first %1 lines of the day are shown.")
                             .arg(locale.toString(static_cast<qulonglong>(kMostAsRunLines))));
    }
    return hosts::SentenceText::joined(sentences);
}

QString AsRunText::verdict(const AsRunDay& day)
{
    if (!day.isWhole) {
        return tr(
            "The records were changed, or some are missing. “schedulectl as-run --verify” names "
            "the place.");
    }
    if (day.unexplained > 0) {
        return tr("Not as planned, and no record tells why: %1").arg(day.unexplained);
    }
    return tr("The screen was as planned, or a record tells why not.");
}

QString AsRunText::moment(Instant moment, const QDate& day, const MomentFormat& local)
{
    const QDateTime shown = local.shownAt(moment);
    return leftToRight(shown.toString(shown.date() == day
                                          ? QStringLiteral("HH:mm:ss.zzz")
                                          : QStringLiteral("yyyy.MM.dd HH:mm:ss.zzz")) +
                       local.offsetMark(moment));
}

} // namespace trel::desktop
