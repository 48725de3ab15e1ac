#include "AsRunVerdictReport.h"

#include "AsRunList.h"
#include "AsRunWords.h"
#include "common/DisplayText.h"
#include "text/Console.h"

#include <QJsonArray>

using namespace trel::hosts;
using namespace trel::mediadispatch;

namespace trel::console {

namespace {

QString lengthText(qint64 milliseconds)
{
    return durationText(static_cast<double>(milliseconds));
}

QString chainText(const AsRunVerdict& verdict)
{
    if (verdict.breakCount > 0) {
        return QStringLiteral("The chain is broken at %1.")
            .arg(counted(verdict.breakCount, QStringLiteral("place")));
    }
    return verdict.isWhole ? QStringLiteral("The chain is whole. It ends with record %1, %2.")
                                 .arg(QString::number(verdict.screen.lastNumber),
                                      QString::fromLatin1(verdict.screen.lastHash.toHex()))
                           : QStringLiteral("The chain is whole in this time.");
}

QString timesText(const AsRunTimes& times)
{
    return QStringLiteral("On screen as planned %1, late %2, replaced %3, no player %4, "
                          "unexplained %5.")
        .arg(lengthText(times.asPlanned), lengthText(times.late), lengthText(times.stoodIn),
             lengthText(times.gaps), lengthText(times.unexplained));
}

void writeMore(Console& console, qint64 count, std::size_t written)
{
    if (const qint64 more = count - static_cast<qint64>(written); more > 0) {
        console.writeLine(QStringLiteral("  And %1 more.").arg(more));
    }
}

QJsonObject timesJson(const AsRunTimes& times)
{
    return {
        {QStringLiteral("asPlannedMs"), times.asPlanned},
        {QStringLiteral("lateMs"), times.late},
        {QStringLiteral("replacedMs"), times.stoodIn},
        {QStringLiteral("noPlayerMs"), times.gaps},
        {QStringLiteral("unexplainedMs"), times.unexplained},
    };
}

QJsonObject breakJson(const AsRunBreak& place, const MomentFormat& local)
{
    return {
        {QStringLiteral("what"), breakName(place.kind)},
        {QStringLiteral("first"), place.first},
        {QStringLiteral("last"), place.last},
        {QStringLiteral("moment"), asRunMoment(local, place.moment)},
        {QStringLiteral("otherScreen"), place.otherScreen.isEmpty()
                                            ? QJsonValue(QJsonValue::Null)
                                            : QJsonValue(place.otherScreen)},
    };
}

QJsonObject deviationJson(const AsRunDeviation& deviation, const MomentFormat& local)
{
    return {
        {QStringLiteral("what"), deviationName(deviation.kind)},
        {QStringLiteral("from"), asRunMoment(local, deviation.from)},
        {QStringLiteral("to"), asRunMoment(local, deviation.to)},
        {QStringLiteral("record"),
         deviation.number == 0 ? QJsonValue(QJsonValue::Null) : QJsonValue(deviation.number)},
        {QStringLiteral("plannedProgram"), deviation.plannedProgram},
        {QStringLiteral("shownProgram"), deviation.shownProgram},
    };
}

} // namespace

void writeVerdict(Console& console, const AsRunVerdict& verdict, const MomentFormat& local)
{
    console.writeLine(QStringLiteral("Screen %1: %2.")
                          .arg(inQuotes(verdict.screen.name),
                               counted(verdict.records, QStringLiteral("record"))));
    console.writeLine(chainText(verdict));
    for (const AsRunBreak& place : verdict.breaks) {
        console.writeLine(QStringLiteral("  ") + breakText(place, local));
    }
    writeMore(console, verdict.breakCount, verdict.breaks.size());
    console.writeLine(timesText(verdict.times));
    if (verdict.deviationCount == 0) {
        console.writeLine(QStringLiteral("Every deviation from the timeline is explained."));
        return;
    }
    console.writeLine(
        QStringLiteral("%1 from the timeline %2 not explained:")
            .arg(counted(verdict.deviationCount, QStringLiteral("deviation")),
                 verdict.deviationCount == 1 ? QStringLiteral("is") : QStringLiteral("are")));
    for (const AsRunDeviation& deviation : verdict.deviations) {
        console.writeLine(QStringLiteral("  ") + deviationText(deviation, local));
    }
    writeMore(console, verdict.deviationCount, verdict.deviations.size());
}

QJsonObject verdictJson(const AsRunVerdict& verdict, const MomentFormat& local)
{
    QJsonArray breaks;
    for (const AsRunBreak& place : verdict.breaks) {
        breaks.append(breakJson(place, local));
    }
    QJsonArray deviations;
    for (const AsRunDeviation& deviation : verdict.deviations) {
        deviations.append(deviationJson(deviation, local));
    }
    return {
        {QStringLiteral("screen"), verdict.screen.name},
        {QStringLiteral("records"), verdict.records},
        {QStringLiteral("good"), verdict.isGood()},
        {QStringLiteral("lastNumber"), verdict.screen.lastNumber},
        {QStringLiteral("lastHash"), QString::fromLatin1(verdict.screen.lastHash.toHex())},
        {QStringLiteral("breakCount"), verdict.breakCount},
        {QStringLiteral("breaks"), breaks},
        {QStringLiteral("deviationCount"), verdict.deviationCount},
        {QStringLiteral("deviations"), deviations},
        {QStringLiteral("times"), timesJson(verdict.times)},
    };
}

} // namespace trel::console
