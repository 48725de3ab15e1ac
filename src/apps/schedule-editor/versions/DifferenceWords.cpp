#include "versions/DifferenceWords.h"

#include "Languages.h"
#include "common/DisplayText.h"
#include "common/ListText.h"
#include "service/ProgramText.h"
#include "service/WeekDays.h"

#include <algorithm>
#include <array>
#include <vector>

using namespace trel::mediadispatch;

namespace trel::desktop::versions {

namespace {

/// Of one text, in columns of a terminal.
constexpr int kMostColumns = 60;
/// A list of programs names no more than these.
constexpr int kMostEntries = 8;

constexpr std::array<const char*, WeekDayCount> kDayKeys = {
    "szEveryDayStr", "szMondayStr", "szTuesdayStr",  "szWednesdayStr",
    "szThursdayStr", "szFridayStr", "szSaturdayStr", "szSundayStr",
};

QString dayText(int number)
{
    // A number that is no day meets only itself, so it must not be taken for one.
    const bool isDay = number >= EveryDay && number < WeekDayCount;
    return isDay ? Languages::editorText(kDayKeys.at(static_cast<std::size_t>(number)))
                 : QString::number(number);
}

QString daysText(const std::string& weeks)
{
    std::vector<int> numbers;
    if (parseWeeks(weeks, numbers)) {
        return dayText(EveryDay);
    }
    QStringList days;
    for (const int number : numbers) {
        days.append(dayText(number));
    }
    return hosts::shortened(hosts::ListText::joined(days), kMostColumns);
}

QString textWord(const DifferenceValue& value)
{
    const auto& text = std::get<std::string>(value);
    return text.empty() ? QStringLiteral("–") : DifferenceWords::shown(text);
}

QString daysWord(const DifferenceValue& value)
{
    return daysText(std::get<std::string>(value));
}

QString numberWord(const DifferenceValue& value)
{
    return QString::number(std::get<std::int64_t>(value));
}

QString modeWord(const DifferenceValue& value)
{
    const std::int64_t mode = std::get<std::int64_t>(value);
    return Languages::editorText(mode == TimeMode ? "zhTimeStr" : "zhfrequencyStr");
}

QString endActionWord(const DifferenceValue& value)
{
    const std::int64_t action = std::get<std::int64_t>(value);
    return Languages::editorText(action == BlackScreen ? "zhBlackScreen" : "zhFreezeCurrentFrame");
}

QString entryName(const struProgInfo& entry, const DifferenceWords::Programs& programs)
{
    const ProgramSuffixes suffixes = {Languages::editorText("szInvalidStr"),
                                      Languages::editorText("szProgNullStr")};
    return hosts::shortened(entryText(entry, programs, suffixes), kMostColumns);
}

bool isSet(const ScheduleDifference& difference)
{
    return std::get<std::int64_t>(difference.after) != 0;
}

QString numberOf(int place)
{
    return QString::number(place + 1);
}

} // namespace

QString DifferenceWords::shown(const std::string& text)
{
    return hosts::shortened(QString::fromStdString(text), kMostColumns);
}

QString DifferenceWords::hidden()
{
    return tr("something that the editor does not show");
}

QString DifferenceWords::values(const QString& form, const ScheduleDifference& difference,
                                QString (*word)(const DifferenceValue&))
{
    const QString before = word(difference.before);
    const QString after = word(difference.after);
    return before == after ? hidden() : form.arg(before, after);
}

QString DifferenceWords::field(const ScheduleDifference& difference)
{
    switch (difference.field) {
    case DifferenceField::StartDate:
        return values(tr("first day %1 → %2"), difference, textWord);
    case DifferenceField::EndDate:
        return values(tr("last day %1 → %2"), difference, textWord);
    case DifferenceField::Mode:
        return values(tr("mode “%1” → “%2”"), difference, modeWord);
    case DifferenceField::StartTime:
        return values(tr("start %1 → %2"), difference, textWord);
    case DifferenceField::EndTime:
        return values(tr("end %1 → %2"), difference, textWord);
    case DifferenceField::Times:
        return values(tr("runs %1 → %2"), difference, numberWord);
    case DifferenceField::EndAction:
        return values(tr("at the end “%1” → “%2”"), difference, endActionWord);
    case DifferenceField::Weeks:
        return values(tr("days %1 → %2"), difference, daysWord);
    case DifferenceField::HasNoDuration:
        return isSet(difference) ? tr("now has a program without a length of its own")
                                 : tr("no longer has a program without a length of its own");
    case DifferenceField::IsConflict:
        return isSet(difference) ? tr("now in conflict") : tr("no longer in conflict");
    case DifferenceField::ProgName:
        return values(tr("name “%1” → “%2”"), difference, textWord);
    case DifferenceField::PlayCount:
        return values(tr("plays in a row %1 → %2"), difference, numberWord);
    case DifferenceField::IsInvalid:
        return isSet(difference) ? tr("now invalid") : tr("no longer invalid");
    case DifferenceField::None:
    case DifferenceField::ServiceCount:
    case DifferenceField::ServiceList:
    case DifferenceField::ServiceTime:
    case DifferenceField::ServiceFlagA:
    case DifferenceField::ServiceFlagB:
        break;
    }
    return hidden();
}

QString DifferenceWords::programs(const std::vector<struProgInfo>& entries,
                                  const Programs& programs)
{
    if (entries.empty()) {
        return tr("no programs");
    }
    const auto most = std::min<std::size_t>(entries.size(), kMostEntries);
    QStringList names;
    for (std::size_t place = 0; place < most; ++place) {
        const QString name = entryName(entries[place], programs);
        const int count = entries[place].playCount;
        names.append(count == 1 ? name
                                : QStringLiteral("%1 ×%2").arg(name, QString::number(count)));
    }
    if (entries.size() > most) {
        names.append(QStringLiteral("…"));
    }
    return hosts::ListText::joined(names);
}

QString DifferenceWords::plan(const QString& form, int row, const PlayPlan& plan,
                              const Programs& programs)
{
    return form.arg(numberOf(row), daysText(plan.weeks), shown(plan.startTime), shown(plan.endTime),
                    DifferenceWords::programs(plan.programs, programs));
}

QString DifferenceWords::what(const ScheduleDifference& difference, const Programs& programs)
{
    const auto entry = [&] { return entryName(difference.entry, programs); };
    const auto period = [&](const QString& form) {
        return form.arg(shown(difference.task.startDate), shown(difference.task.endDate));
    };
    const auto plans = static_cast<int>(difference.task.plans.size());
    switch (difference.kind) {
    case DifferenceKind::TaskAdded:
        return period(tr("added, valid from %1 to %2, %n plans", nullptr, plans));
    case DifferenceKind::TaskRemoved:
        return period(tr("deleted, was valid from %1 to %2, %n plans", nullptr, plans));
    case DifferenceKind::PlanAdded:
        return plan(tr("added in row %1: %2, %3 to %4, %5"), difference.row, difference.plan,
                    programs);
    case DifferenceKind::PlanRemoved:
        return plan(tr("deleted from row %1: %2, %3 to %4, %5"), difference.formerRow,
                    difference.plan, programs);
    case DifferenceKind::PlanMoved:
        return tr("row %1 → %2").arg(numberOf(difference.formerRow), numberOf(difference.row));
    case DifferenceKind::EntryAdded:
        return tr("“%1” added as entry %2").arg(entry(), numberOf(difference.place));
    case DifferenceKind::EntryRemoved:
        return tr("“%1” deleted, was entry %2").arg(entry(), numberOf(difference.formerPlace));
    case DifferenceKind::EntryMoved:
        return tr("“%1”: entry %2 → %3")
            .arg(entry(), numberOf(difference.formerPlace), numberOf(difference.place));
    case DifferenceKind::EntryField:
        return tr("“%1”, entry %2: %3").arg(entry(), numberOf(difference.place), field(difference));
    case DifferenceKind::TaskField:
    case DifferenceKind::PlanField:
        break;
    }
    return field(difference);
}

bool DifferenceWords::isAboutPlan(const ScheduleDifference& difference)
{
    // Any number may be the id of a plan.
    return difference.row != -1 || difference.formerRow != -1;
}

QString DifferenceWords::line(const ScheduleDifference& difference, const Programs& programs)
{
    const QString text = what(difference, programs);
    return isAboutPlan(difference) ? ofPlan(difference.taskId, difference.planId, text)
                                   : tr("Task %1: %2", "where, and what differs")
                                         .arg(QString::number(difference.taskId), text);
}

QString DifferenceWords::ofPlan(int taskId, int planId, const QString& text)
{
    return tr("Task %1, plan %2: %3", "where, and what differs")
        .arg(QString::number(taskId), QString::number(planId), text);
}

QStringList DifferenceWords::lines(const Tasks& former, const Tasks& later,
                                   const Programs& programs, int most)
{
    const std::vector<ScheduleDifference> differences = differencesOfNote(former, later);
    QStringList lines;
    for (const ScheduleDifference& difference : differences) {
        if (lines.size() == most) {
            lines.append(tr("… and %n more differences.", nullptr,
                            static_cast<int>(differences.size()) - most));
            break;
        }
        lines.append(line(difference, programs));
    }
    return lines;
}

} // namespace trel::desktop::versions
