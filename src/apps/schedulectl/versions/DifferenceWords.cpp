#include "DifferenceWords.h"

#include "common/DisplayText.h"
#include "schedule/ScheduleWords.h"

#include <QJsonArray>
#include <QStringList>

#include <iterator>

using namespace trel::hosts;
using namespace trel::mediadispatch;

namespace trel::console {

namespace {

/// In the order of the kinds: the name for machines.
constexpr const char* kKindNames[] = {"taskAdded",    "taskRemoved", "taskField", "planAdded",
                                      "planRemoved",  "planMoved",   "planField", "entryAdded",
                                      "entryRemoved", "entryMoved",  "entryField"};
static_assert(std::size(kKindNames) == kDifferenceKinds);

struct FieldWords
{
    const char* name; ///< As in the JSON form of a schedule.
    const char* english;
};

/// In the order of the fields.
constexpr FieldWords kFields[] = {{"", ""},
                                  {"startDate", "first day"},
                                  {"endDate", "last day"},
                                  {"mode", "mode"},
                                  {"startTime", "start"},
                                  {"endTime", "end"},
                                  {"times", "runs"},
                                  {"endAction", "at its end"},
                                  {"weeks", "days"},
                                  {"hasNoDuration", "has no length of its own"},
                                  {"isConflict", "collides"},
                                  {"serviceCount", "number of the service"},
                                  {"serviceList", "list of the service"},
                                  {"serviceTime", "time of the service"},
                                  {"serviceFlagA", "first mark of the service"},
                                  {"serviceFlagB", "second mark of the service"},
                                  {"progName", "name"},
                                  {"playCount", "plays in a row"},
                                  {"isInvalid", "gone bad"}};
static_assert(std::size(kFields) == kDifferenceFields);

const FieldWords& wordsOf(DifferenceField field)
{
    return kFields[static_cast<int>(field)];
}

bool isTruth(DifferenceField field)
{
    switch (field) {
    case DifferenceField::HasNoDuration:
    case DifferenceField::IsConflict:
    case DifferenceField::ServiceFlagA:
    case DifferenceField::ServiceFlagB:
    case DifferenceField::IsInvalid:
        return true;
    default:
        return false;
    }
}

QString numberText(DifferenceField field, std::int64_t number)
{
    if (isTruth(field)) {
        return number != 0 ? QStringLiteral("yes") : QStringLiteral("no");
    }
    if (field == DifferenceField::Mode && number == TimeMode) {
        return QStringLiteral("until a time");
    }
    if (field == DifferenceField::Mode && number == FrequencyMode) {
        return QStringLiteral("number of runs");
    }
    return field == DifferenceField::EndAction ? endActionText(static_cast<int>(number))
                                               : QString::number(number);
}

QString valueText(DifferenceField field, const DifferenceValue& value)
{
    if (const auto* const number = std::get_if<std::int64_t>(&value)) {
        return numberText(field, *number);
    }
    if (const auto* const text = std::get_if<std::string>(&value)) {
        if (field == DifferenceField::Weeks) {
            return daysText(*text);
        }
        return text->empty() ? QStringLiteral("none") : printable(*text);
    }
    return counted(static_cast<qint64>(std::get<std::vector<std::int64_t>>(value).size()),
                   QStringLiteral("number"));
}

QString fieldText(const ScheduleDifference& difference)
{
    const QString before = valueText(difference.field, difference.before);
    const QString after = valueText(difference.field, difference.after);
    const QString name = QLatin1String(wordsOf(difference.field).english);
    return before == after ? QStringLiteral("%1: another one").arg(name)
                           : QStringLiteral("%1 %2 \u2192 %3").arg(name, before, after);
}

QString planText(const PlayPlan& plan, const std::map<int, ProgramIten>& programs)
{
    return QStringLiteral("%1, %2 to %3, %4")
        .arg(daysText(plan.weeks), printable(plan.startTime), printable(plan.endTime),
             plan.programs.empty() ? QStringLiteral("no programs")
                                   : entriesText(plan.programs, programs));
}

QString rowText(int row)
{
    return QString::number(row + 1);
}

QString happeningText(const ScheduleDifference& one, const std::map<int, ProgramIten>& programs)
{
    const auto entry = [&] { return inQuotes(entryText(one.entry, programs)); };
    switch (one.kind) {
    case DifferenceKind::TaskAdded:
    case DifferenceKind::TaskRemoved:
        return QStringLiteral("%1, %2 with %3")
            .arg(one.kind == DifferenceKind::TaskAdded ? QStringLiteral("new")
                                                       : QStringLiteral("gone"),
                 periodText(one.task),
                 counted(static_cast<qint64>(one.task.plans.size()), QStringLiteral("plan")));
    case DifferenceKind::PlanAdded:
        return QStringLiteral("new in row %1, %2")
            .arg(rowText(one.row), planText(one.plan, programs));
    case DifferenceKind::PlanRemoved:
        return QStringLiteral("gone from row %1, %2")
            .arg(rowText(one.formerRow), planText(one.plan, programs));
    case DifferenceKind::PlanMoved:
        return QStringLiteral("row %1 \u2192 %2").arg(rowText(one.formerRow), rowText(one.row));
    case DifferenceKind::EntryAdded:
        return QStringLiteral("%1 comes in, at place %2").arg(entry(), rowText(one.place));
    case DifferenceKind::EntryRemoved:
        return QStringLiteral("%1 goes, from place %2").arg(entry(), rowText(one.formerPlace));
    case DifferenceKind::EntryMoved:
        return QStringLiteral("%1 from place %2 to place %3")
            .arg(entry(), rowText(one.formerPlace), rowText(one.place));
    case DifferenceKind::EntryField:
        return QStringLiteral("%1 at place %2, %3")
            .arg(entry(), rowText(one.place), fieldText(one));
    case DifferenceKind::TaskField:
    case DifferenceKind::PlanField:
        return fieldText(one);
    }
    return {};
}

QJsonValue valueJson(DifferenceField field, const DifferenceValue& value)
{
    if (const auto* const number = std::get_if<std::int64_t>(&value)) {
        return isTruth(field) ? QJsonValue(*number != 0) : QJsonValue(static_cast<qint64>(*number));
    }
    if (const auto* const text = std::get_if<std::string>(&value)) {
        return QString::fromStdString(*text);
    }
    QJsonArray list;
    for (const std::int64_t number : std::get<std::vector<std::int64_t>>(value)) {
        // Many readers round numbers of that size.
        list.append(QString::number(number));
    }
    return list;
}

void insertRow(QJsonObject& object, const char* name, int row)
{
    if (row >= 0) {
        object.insert(QLatin1String(name), row + 1);
    }
}

} // namespace

QString differenceText(const ScheduleDifference& difference,
                       const std::map<int, ProgramIten>& programs)
{
    const QString place =
        difference.planId == -1 && difference.row == -1 && difference.formerRow == -1
            ? QStringLiteral("task %1").arg(difference.taskId)
            : QStringLiteral("task %1, plan %2").arg(difference.taskId).arg(difference.planId);
    return QStringLiteral("%1: %2").arg(place, happeningText(difference, programs));
}

QJsonObject differenceJson(const ScheduleDifference& difference)
{
    QJsonObject object{
        {QStringLiteral("kind"), QLatin1String(kKindNames[static_cast<int>(difference.kind)])},
        {QStringLiteral("taskId"), difference.taskId}};
    if (difference.row >= 0 || difference.formerRow >= 0) {
        object.insert(QStringLiteral("planId"), difference.planId);
    }
    insertRow(object, "formerRow", difference.formerRow);
    insertRow(object, "row", difference.row);
    insertRow(object, "formerPlace", difference.formerPlace);
    insertRow(object, "place", difference.place);
    if (difference.formerPlace >= 0 || difference.place >= 0) {
        object.insert(QStringLiteral("progIndex"), difference.entry.progIndex);
        object.insert(QStringLiteral("progName"),
                      QString::fromStdString(difference.entry.progName));
    }
    if (difference.field != DifferenceField::None) {
        object.insert(QStringLiteral("field"), QLatin1String(wordsOf(difference.field).name));
        object.insert(QStringLiteral("before"), valueJson(difference.field, difference.before));
        object.insert(QStringLiteral("after"), valueJson(difference.field, difference.after));
    }
    return object;
}

} // namespace trel::console
