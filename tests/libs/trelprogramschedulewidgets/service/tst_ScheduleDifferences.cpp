#include "service/ScheduleDifferences.h"
#include "support/RandomEdits.h"
#include "support/SampleSchedule.h"
#include "support/TestProgram.h"

#include <QtTest>

#include <algorithm>
#include <initializer_list>
#include <random>

using namespace trel::mediadispatch;

namespace {

using Tasks = std::map<int, PlayTask>;
using Differences = std::vector<ScheduleDifference>;

constexpr unsigned kSeed = 20261123;

std::int64_t numberIn(const DifferenceValue& value)
{
    return std::get<std::int64_t>(value);
}

std::string textIn(const DifferenceValue& value)
{
    return std::get<std::string>(value);
}

void setField(const ScheduleDifference& one, PlayTask& task, PlayPlan& plan, struProgInfo& entry)
{
    const auto number = [&one] { return static_cast<int>(numberIn(one.after)); };
    switch (one.field) {
    case DifferenceField::None:
        break;
    case DifferenceField::StartDate:
        task.startDate = textIn(one.after);
        break;
    case DifferenceField::EndDate:
        task.endDate = textIn(one.after);
        break;
    case DifferenceField::Mode:
        plan.mode = number();
        break;
    case DifferenceField::StartTime:
        plan.startTime = textIn(one.after);
        break;
    case DifferenceField::EndTime:
        plan.endTime = textIn(one.after);
        break;
    case DifferenceField::Times:
        plan.times = number();
        break;
    case DifferenceField::EndAction:
        plan.endAction = number();
        break;
    case DifferenceField::Weeks:
        plan.weeks = textIn(one.after);
        break;
    case DifferenceField::HasNoDuration:
        plan.hasNoDuration = number() != 0;
        break;
    case DifferenceField::IsConflict:
        plan.isConflict = number() != 0;
        break;
    case DifferenceField::ServiceCount:
        plan.serviceCount = number();
        break;
    case DifferenceField::ServiceList:
        plan.serviceList = std::get<std::vector<std::int64_t>>(one.after);
        break;
    case DifferenceField::ServiceTime:
        plan.serviceTime = textIn(one.after);
        break;
    case DifferenceField::ServiceFlagA:
        plan.serviceFlagA = number() != 0;
        break;
    case DifferenceField::ServiceFlagB:
        plan.serviceFlagB = number() != 0;
        break;
    case DifferenceField::ProgName:
        entry.progName = textIn(one.after);
        break;
    case DifferenceField::PlayCount:
        entry.playCount = number();
        break;
    case DifferenceField::IsInvalid:
        entry.isInvalid = number() != 0;
        break;
    }
}

/// An element that comes to a place of the later list.
template <typename Element>
struct Arrival
{
    int place;
    Element element;
};

/// Takes out what has gone or moved and puts in what is new or moved.
template <typename Element>
void rearrange(std::vector<Element>& list, std::vector<int> leaving,
               std::vector<Arrival<Element>> arriving)
{
    std::sort(leaving.rbegin(), leaving.rend());
    for (const int place : leaving) {
        list.erase(list.begin() + place);
    }
    std::sort(arriving.begin(), arriving.end(),
              [](const auto& one, const auto& other) { return one.place < other.place; });
    for (const auto& arrival : arriving) {
        list.insert(list.begin() + arrival.place, arrival.element);
    }
}

/// By the letter of what the header tells to do.
Tasks applied(Tasks tasks, const Differences& differences)
{
    using Kind = DifferenceKind;
    const Tasks former = tasks;
    std::map<int, std::pair<std::vector<int>, std::vector<Arrival<PlayPlan>>>> plans;
    std::map<std::pair<int, int>, std::pair<std::vector<int>, std::vector<Arrival<struProgInfo>>>>
        entries;
    for (const ScheduleDifference& one : differences) {
        const auto formerPlan = [&] {
            return former.at(one.taskId).plans.at(std::size_t(one.formerRow));
        };
        auto& ofTask = plans[one.taskId];
        auto& ofPlan = entries[{one.taskId, one.row}];
        switch (one.kind) {
        case Kind::TaskAdded:
            tasks[one.taskId] = one.task;
            break;
        case Kind::TaskRemoved:
            tasks.erase(one.taskId);
            break;
        case Kind::PlanAdded:
            ofTask.second.push_back({one.row, one.plan});
            break;
        case Kind::PlanRemoved:
            ofTask.first.push_back(one.formerRow);
            break;
        case Kind::PlanMoved:
            ofTask.first.push_back(one.formerRow);
            ofTask.second.push_back({one.row, formerPlan()});
            break;
        case Kind::EntryAdded:
            ofPlan.second.push_back({one.place, one.entry});
            break;
        case Kind::EntryRemoved:
            ofPlan.first.push_back(one.formerPlace);
            break;
        case Kind::EntryMoved:
            ofPlan.first.push_back(one.formerPlace);
            ofPlan.second.push_back(
                {one.place, formerPlan().programs.at(std::size_t(one.formerPlace))});
            break;
        case Kind::TaskField:
        case Kind::PlanField:
        case Kind::EntryField:
            break;
        }
    }
    for (const auto& [id, change] : plans) {
        if (tasks.count(id) > 0) {
            rearrange(tasks[id].plans, change.first, change.second);
        }
    }
    for (const auto& [place, change] : entries) {
        if (place.second >= 0 && (!change.first.empty() || !change.second.empty())) {
            rearrange(tasks.at(place.first).plans.at(std::size_t(place.second)).programs,
                      change.first, change.second);
        }
    }
    for (const ScheduleDifference& one : differences) {
        if (one.field != DifferenceField::None) {
            PlayTask& task = tasks.at(one.taskId);
            PlayPlan noPlan;
            PlayPlan& plan = one.row < 0 ? noPlan : task.plans.at(std::size_t(one.row));
            struProgInfo noEntry;
            setField(one, task, plan,
                     one.place < 0 ? noEntry : plan.programs.at(std::size_t(one.place)));
        }
    }
    return tasks;
}

/// "plan 4 field 5", kind by kind.
QString line(const Differences& differences)
{
    QStringList words;
    for (const ScheduleDifference& one : differences) {
        words.append(QStringLiteral("%1:%2/%3>%4/%5>%6:%7")
                         .arg(int(one.kind))
                         .arg(one.taskId)
                         .arg(one.formerRow)
                         .arg(one.row)
                         .arg(one.formerPlace)
                         .arg(one.place)
                         .arg(int(one.field)));
    }
    return words.join(QLatin1Char(' '));
}

} // namespace

/// What differs between two states of a schedule.
class tst_ScheduleDifferences : public QObject
{
    Q_OBJECT

private slots:
    void whatIsSameHasNone();
    void appliedTheyMakeTheLaterOne();
    void asFewAsCanBe();
    void tellValuesOfBothSides();
    void tellEveryFieldAsItIs_data();
    void tellEveryFieldAsItIs();
};

void tst_ScheduleDifferences::whatIsSameHasNone()
{
    QVERIFY(scheduleDifferences({}, {}).empty());
    const Tasks tasks = {{3, everyFieldTask(3)}};
    QVERIFY(scheduleDifferences(tasks, tasks).empty());
}

void tst_ScheduleDifferences::appliedTheyMakeTheLaterOne()
{
    std::mt19937 random(kSeed);
    Tasks tasks;
    Tasks former;
    std::vector<int> kinds(kDifferenceKinds, 0);
    std::vector<int> fields(kDifferenceFields, 0);
    for (int round = 0; round < 20000; ++round) {
        editAtRandom(tasks, random);
        const Differences there = scheduleDifferences(former, tasks);
        QVERIFY2(applied(former, there) == tasks, qPrintable(QString::number(round)));
        QCOMPARE(there.empty(), former == tasks);
        if (round % 3 == 0) {
            const Differences back = scheduleDifferences(tasks, former);
            QVERIFY2(applied(tasks, back) == former, qPrintable(QString::number(round)));
        }
        for (const ScheduleDifference& one : there) {
            ++kinds[std::size_t(one.kind)];
            ++fields[std::size_t(one.field)];
        }
        if (random() % 5 == 0) {
            former = tasks;
        }
    }
    for (const int count : kinds) {
        QVERIFY(count > 0);
    }
    for (const int count : fields) {
        QVERIFY(count > 0);
    }
}

void tst_ScheduleDifferences::asFewAsCanBe()
{
    PlayTask task;
    task.id = 1;
    for (int id = 0; id < 6; ++id) {
        task.plans.push_back(samplePlan(id, 3));
    }
    PlayTask moved = task;
    std::rotate(moved.plans.begin(), moved.plans.begin() + 1, moved.plans.end());
    QCOMPARE(line(scheduleDifferences({{1, task}}, {{1, moved}})),
             QStringLiteral("5:1/0>5/-1>-1:0"));
    PlayTask shorter = task;
    shorter.plans.erase(shorter.plans.begin() + 2);
    QCOMPARE(line(scheduleDifferences({{1, task}}, {{1, shorter}})),
             QStringLiteral("4:1/2>-1/-1>-1:0"));
    PlayTask other = task;
    std::swap(other.plans[4].programs[0], other.plans[4].programs[1]);
    other.plans[4].programs.erase(other.plans[4].programs.begin() + 2);
    const auto found = scheduleDifferences({{1, task}}, {{1, other}});
    QCOMPARE(found.size(), std::size_t(2));
    QCOMPARE(int(found[0].kind), int(DifferenceKind::EntryRemoved));
    QCOMPARE(int(found[1].kind), int(DifferenceKind::EntryMoved));
}

void tst_ScheduleDifferences::tellValuesOfBothSides()
{
    PlayTask task = everyFieldTask(2);
    PlayTask later = task;
    later.plans[0].endTime = "15:00:00";
    later.plans[1].isConflict = !later.plans[1].isConflict;
    const auto found = scheduleDifferences({{2, task}}, {{2, later}});
    QCOMPARE(found.size(), std::size_t(2));
    QCOMPARE(textIn(found[0].before), task.plans[0].endTime);
    QCOMPARE(textIn(found[0].after), std::string("15:00:00"));
    QCOMPARE(found[0].planId, task.plans[0].id);
    QVERIFY(!isWorkedOutAfresh(found[0]));
    QVERIFY(isWorkedOutAfresh(found[1]));
    QVERIFY(numberIn(found[1].before) != numberIn(found[1].after));
    const auto ofNote = differencesOfNote({{2, task}}, {{2, later}});
    QCOMPARE(ofNote.size(), std::size_t(1));
    QCOMPARE(int(ofNote[0].field), int(DifferenceField::EndTime));
}

/// A change of one field is one difference: of that field, with both values and in that place.
void tst_ScheduleDifferences::tellEveryFieldAsItIs_data()
{
    QTest::addColumn<int>("field");
    for (int field = int(DifferenceField::StartDate); field < kDifferenceFields; ++field) {
        QTest::newRow(qPrintable(QString::number(field))) << field;
    }
}

void tst_ScheduleDifferences::tellEveryFieldAsItIs()
{
    QFETCH(int, field);
    const PlayTask former = everyFieldTask(3);
    constexpr std::size_t row = 0;
    constexpr std::size_t place = 1;
    ScheduleDifference change;
    change.field = DifferenceField(field);
    const auto is = [&change](std::initializer_list<DifferenceField> fields) {
        return std::count(fields.begin(), fields.end(), change.field) > 0;
    };
    const bool isOfTask = is({DifferenceField::StartDate, DifferenceField::EndDate});
    const bool isOfEntry =
        is({DifferenceField::ProgName, DifferenceField::PlayCount, DifferenceField::IsInvalid});
    if (isOfTask ||
        is({DifferenceField::StartTime, DifferenceField::EndTime, DifferenceField::Weeks,
            DifferenceField::ServiceTime, DifferenceField::ProgName})) {
        change.after = std::string("another text");
    } else if (change.field == DifferenceField::ServiceList) {
        change.after = std::vector<std::int64_t>{1, 2};
    } else {
        // Truth values of the first plan and its second entry are all true.
        const bool isTruth = is({DifferenceField::HasNoDuration, DifferenceField::IsConflict,
                                 DifferenceField::ServiceFlagA, DifferenceField::ServiceFlagB,
                                 DifferenceField::IsInvalid});
        change.after = std::int64_t(isTruth ? 0 : 5);
    }
    PlayTask later = former;
    setField(change, later, later.plans[row], later.plans[row].programs[place]);
    QVERIFY(!(later == former));

    const Differences found = scheduleDifferences({{3, former}}, {{3, later}});
    QCOMPARE(found.size(), std::size_t(1));
    const ScheduleDifference& one = found.front();
    QCOMPARE(int(one.field), field);
    QCOMPARE(int(one.kind), int(isOfTask    ? DifferenceKind::TaskField
                                : isOfEntry ? DifferenceKind::EntryField
                                            : DifferenceKind::PlanField));
    QVERIFY(one.after == change.after);
    QVERIFY(one.before != one.after);
    QCOMPARE(one.taskId, 3);
    QCOMPARE(one.row, isOfTask ? -1 : int(row));
    QCOMPARE(one.place, isOfEntry ? int(place) : -1);
    // The value before is that which leads back.
    PlayTask back = later;
    ScheduleDifference reverse = one;
    reverse.after = one.before;
    setField(reverse, back, back.plans[row], back.plans[row].programs[place]);
    QVERIFY(back == former);
    const bool isWorkedOut = change.field == DifferenceField::IsConflict;
    QCOMPARE(isWorkedOutAfresh(one), isWorkedOut);
    QCOMPARE(differencesOfNote({{3, former}}, {{3, later}}).size(),
             std::size_t(isWorkedOut ? 0 : 1));
}

TREL_TEST(tst_ScheduleDifferences, QCoreApplication)
#include "tst_ScheduleDifferences.moc"
