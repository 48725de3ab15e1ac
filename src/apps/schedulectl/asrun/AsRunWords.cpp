#include "AsRunWords.h"

#include "common/DisplayText.h"

#include <iterator>

using namespace trel::hosts;
using namespace trel::mediadispatch;

namespace trel::console {

namespace {

struct OutcomeWords
{
    const char* name;
    const char* text;
};

/// In the order of AsRunOutcome.
constexpr OutcomeWords kOutcomes[] = {
    {"complete", "complete"},
    {"cutByInsertion", "cut off by an insertion"},
    {"cutBySchedule", "cut off by another schedule"},
    {"cutByStop", "cut off, as the schedule was stopped"},
    {"cutByPlayerEnd", "cut off by the end of the player"},
    {"cutByKill", "cut off, as the player was killed"},
    {"cutByFault", "failed"},
    {"cutByClock", "cut off by a change of the clock"},
    {"playerHadEnded", "the player had been ended"},
    {"playerWasKilled", "the player had been killed"},
    {"machineHadStopped", "the machine had stopped"},
    {"goesOn", "goes on under another schedule"},
    {"nothingReadYet", "the player had no schedule yet"},
    {"machineHadSlept", "the machine was asleep"},
    {"notRecorded", "its records could not be kept"},
};
static_assert(std::size(kOutcomes) == static_cast<std::size_t>(AsRunOutcome::NotRecorded) + 1);

/// Of a number that a newer version, or somebody else, may have written.
template <typename Element, std::size_t Count>
const Element* elementOf(const Element (&elements)[Count], int number)
{
    return number >= 0 && number < static_cast<int>(Count) ? &elements[number] : nullptr;
}

QString unknownName(int number)
{
    return QStringLiteral("unknown %1").arg(number);
}

template <std::size_t Count>
QString nameOf(const char* const (&names)[Count], int number)
{
    const char* const* const name = elementOf(names, number);
    return name == nullptr ? unknownName(number) : QString::fromLatin1(*name);
}

QString plannedText(const AsRunRecord& record)
{
    switch (record.picture) {
    case ScreenPicture::Playing:
        return QStringLiteral("plays %1").arg(printable(record.program));
    case ScreenPicture::Frozen:
        return QStringLiteral("last frame of %1").arg(printable(record.program));
    case ScreenPicture::Black:
        break;
    }
    return QStringLiteral("black screen");
}

/// What should have been there, for what stood in its place.
QString subjectText(const AsRunRecord& record)
{
    return record.picture == ScreenPicture::Black ? QStringLiteral("black screen")
                                                  : printable(record.program);
}

QString recordsText(const AsRunBreak& place)
{
    return place.first == place.last
               ? QStringLiteral("Record %1").arg(place.first)
               : QStringLiteral("Records %1 to %2").arg(place.first).arg(place.last);
}

} // namespace

QString shownText(const AsRunRecord& record)
{
    if (record.kind == AsRunKind::ScheduleTaken) {
        return record.revision == 0
                   ? QStringLiteral("follows that nothing is in effect")
                   : QStringLiteral("follows what is in effect, save %1").arg(record.revision);
    }
    if (record.kind == AsRunKind::Gap) {
        return QStringLiteral("no player");
    }
    switch (record.shown) {
    case AsRunShown::StandBy:
        return QStringLiteral("stand-by picture for %1").arg(subjectText(record));
    case AsRunShown::LastFrame:
        return QStringLiteral("last picture for %1").arg(subjectText(record));
    case AsRunShown::FormerPicture:
        return QStringLiteral("what was on before %1").arg(subjectText(record));
    case AsRunShown::AsPlanned:
        break;
    }
    return plannedText(record);
}

QString outcomeText(const AsRunRecord& record)
{
    if (record.kind == AsRunKind::ScheduleTaken) {
        return {};
    }
    const int number = static_cast<int>(record.outcome);
    const OutcomeWords* const words = elementOf(kOutcomes, number);
    const QString text = words == nullptr ? unknownName(number) : QLatin1String(words->text);
    return record.why.isEmpty() ? text : QStringLiteral("%1: %2").arg(text, printable(record.why));
}

QString kindName(AsRunKind kind)
{
    static constexpr const char* names[] = {"unknown", "picture", "gap", "scheduleTaken"};
    return nameOf(names, static_cast<int>(kind));
}

QString pictureName(ScreenPicture picture)
{
    static constexpr const char* names[] = {"black", "playing", "frozen"};
    return nameOf(names, static_cast<int>(picture));
}

QString shownName(AsRunShown shown)
{
    static constexpr const char* names[] = {"asPlanned", "standBy", "lastFrame", "formerPicture"};
    return nameOf(names, static_cast<int>(shown));
}

QString outcomeName(AsRunOutcome outcome)
{
    const OutcomeWords* const words = elementOf(kOutcomes, static_cast<int>(outcome));
    return words == nullptr ? unknownName(static_cast<int>(outcome)) : QLatin1String(words->name);
}

QString breakName(AsRunBreak::Kind kind)
{
    static constexpr const char* names[] = {"changed", "missing",     "swapped",
                                            "added",   "otherScreen", "head"};
    return nameOf(names, static_cast<int>(kind));
}

QString deviationName(AsRunDeviation::Kind kind)
{
    static constexpr const char* names[] = {"nothingSaid", "notFollowed", "otherPicture",
                                            "otherTimes",  "otherName",   "overlap"};
    return nameOf(names, static_cast<int>(kind));
}

QString breakText(const AsRunBreak& place, const MomentFormat& local)
{
    const QString moment = local.text(place.moment);
    const bool isOne = place.first == place.last;
    QString records = recordsText(place);
    switch (place.kind) {
    case AsRunBreak::Kind::Changed:
        return isOne ? QStringLiteral("%1, of %2, was changed.").arg(records, moment)
                     : QStringLiteral("%1, from %2 on, were changed, one of them at least.")
                           .arg(records, moment);
    case AsRunBreak::Kind::Missing:
        return QStringLiteral("%1 %2 missing, near %3.")
            .arg(records, isOne ? QStringLiteral("is") : QStringLiteral("are"), moment);
    case AsRunBreak::Kind::Swapped:
        return QStringLiteral("Records %1 and %2, of %3, stand in each other's place.")
            .arg(QString::number(place.first), QString::number(place.last), moment);
    case AsRunBreak::Kind::Added:
        return QStringLiteral("%1 %2 put in, near %3.")
            .arg(records, isOne ? QStringLiteral("was") : QStringLiteral("were"), moment);
    case AsRunBreak::Kind::OtherScreen:
        return QStringLiteral("Record %1, of %2, is one of the screen %3.")
            .arg(QString::number(place.first), moment, inQuotes(place.otherScreen));
    case AsRunBreak::Kind::Head:
        return QStringLiteral("What is noted of the last record, %1, does not fit it.")
            .arg(place.first);
    }
    return records;
}

QString deviationText(const AsRunDeviation& deviation, const MomentFormat& local)
{
    QString time = QStringLiteral("%1 to %2")
                       .arg(local.text(deviation.from), local.text(deviation.to, deviation.from));
    const QString planned = deviation.plannedProgram.isEmpty()
                                ? QStringLiteral("none")
                                : printable(deviation.plannedProgram);
    const QString shown = deviation.shownProgram.isEmpty() ? QStringLiteral("none")
                                                           : printable(deviation.shownProgram);
    const QString number = QString::number(deviation.number);
    switch (deviation.kind) {
    case AsRunDeviation::Kind::NothingSaid:
        return QStringLiteral("%1: no record says what was on screen.").arg(time);
    case AsRunDeviation::Kind::NotFollowed:
        return QStringLiteral("%1: which schedule was followed is not known (record %2).")
            .arg(time, number);
    case AsRunDeviation::Kind::OtherPicture:
        return QStringLiteral("%1: the program planned is %2, the one on screen %3 (record %4), "
                              "and no record says why.")
            .arg(time, planned, shown, number);
    case AsRunDeviation::Kind::OtherTimes:
        return QStringLiteral("%1: record %2 gives %3 other times than the timeline.")
            .arg(time, number, planned);
    case AsRunDeviation::Kind::OtherName:
        return QStringLiteral("%1: record %2 calls the program %3, and the catalog %4.")
            .arg(time, number, shown, planned);
    case AsRunDeviation::Kind::Overlap:
        return QStringLiteral("%1: record %2 tells another picture than the one before it.")
            .arg(time, number);
    }
    return time;
}

} // namespace trel::console
