#include "merge/ScheduleMerge.h"
#include "support/RandomEdits.h"
#include "support/SampleSchedule.h"
#include "support/TaskRecords.h"
#include "support/TestProgram.h"

#include <QtTest>

#include <limits>
#include <random>
#include <set>

using namespace trel::mediadispatch;

namespace {

using Tasks = ScheduleMerge::Tasks;

constexpr unsigned kSeed = 20261123;
constexpr int kCases = 1500;

/// All of a task that somebody has made, and nothing that is worked out.
QString made(const PlayTask& task)
{
    const auto text = [](const std::string& bytes) {
        return QString::fromLatin1(QByteArray::fromStdString(bytes).toHex());
    };
    QStringList lines{text(task.startDate), text(task.endDate)};
    for (const PlayPlan& plan : task.plans) {
        QStringList words{QString::number(plan.mode),
                          QString::number(plan.id),
                          text(plan.startTime),
                          plan.mode == FrequencyMode ? QString() : text(plan.endTime),
                          QString::number(plan.times),
                          QString::number(plan.serviceCount),
                          QString::number(plan.endAction),
                          text(plan.weeks),
                          text(plan.serviceTime),
                          QString::number(plan.hasNoDuration),
                          QString::number(plan.serviceFlagA),
                          QString::number(plan.serviceFlagB)};
        for (const std::int64_t number : plan.serviceList) {
            words.append(QStringLiteral("n%1").arg(number));
        }
        for (const struProgInfo& entry : plan.programs) {
            words.append(QStringLiteral("e%1*%2").arg(entry.progIndex).arg(entry.playCount));
            words.append(text(entry.progName));
        }
        lines.append(words.join(QLatin1Char(',')));
    }
    return lines.join(QLatin1Char('\n'));
}

/// What a desk has done with a task.
enum class Done { Nothing, Added, Changed, Deleted };

Done done(const Tasks& base, const Tasks& now, int id)
{
    const bool was = base.count(id) > 0;
    const bool is = now.count(id) > 0;
    if (was && is) {
        return made(base.at(id)) == made(now.at(id)) ? Done::Nothing : Done::Changed;
    }
    return was ? Done::Deleted : is ? Done::Added : Done::Nothing;
}

/// The rule by the letter.
struct Literally
{
    Literally(const Tasks& base, const Tasks& theirs, const Tasks& mine,
              const ScheduleMerge::Choices& choices)
    {
        std::set<int> ids;
        for (const Tasks& tasks : {base, theirs, mine}) {
            for (const auto& [id, task] : tasks) {
                ids.insert(id);
            }
        }
        int next = ids.empty() ? 1 : std::max(*ids.rbegin() + 1, 1);
        for (const int id : ids) {
            const Done here = done(base, mine, id);
            const Done there = done(base, theirs, id);
            const bool isAlike = mine.count(id) > 0 && theirs.count(id) > 0 &&
                                 made(mine.at(id)) == made(theirs.at(id));
            if (here == Done::Nothing || isAlike) {
                take(theirs, id);
            } else if (there == Done::Nothing) {
                take(mine, id);
            } else if (here == Done::Deleted && there == Done::Deleted) {
                continue;
            } else if (here == Done::Added && there == Done::Added) {
                take(theirs, id);
                renumbered[id] = next;
                merged[next] = mine.at(id);
                merged[next].id = next;
                ++next;
            } else {
                conflicts.push_back(id);
                const auto choice = choices.find(id);
                const bool isMine = choice != choices.end() && choice->second == MergeSide::Mine;
                take(isMine ? mine : theirs, id);
            }
        }
    }

    void take(const Tasks& from, int id)
    {
        if (from.count(id) > 0) {
            merged[id] = from.at(id);
        }
    }

    Tasks merged;
    std::vector<int> conflicts;
    std::map<int, int> renumbered;
};

void editSome(Tasks& tasks, std::mt19937& random)
{
    for (auto left = random() % 4; left > 0; --left) {
        editAtRandom(tasks, random);
    }
    for (auto& [id, task] : tasks) {
        task.id = id;
    }
}

PlayTask taskOf(int id, const char* begins)
{
    return makeTask(id, begins, begins);
}

/// "1:base 2:mine", by the first days.
QString ids(const Tasks& tasks)
{
    QStringList ids;
    for (const auto& [id, task] : tasks) {
        ids.append(QStringLiteral("%1:%2").arg(id).arg(QString::fromStdString(task.startDate)));
    }
    return ids.join(QLatin1Char(' '));
}

using Edit = void (*)(PlayTask&);

} // namespace

Q_DECLARE_METATYPE(Edit)

/// What comes of a schedule that was edited at two desks.
class tst_ScheduleMerge : public QObject
{
    Q_OBJECT

private slots:
    void followsTheRule();
    void isTheSameFromBothDesks();
    void keepsBothOfWhatIsNew();
    void findsFreeNumbersAtTheEndOfThem();
    void whatIsWorkedOutIsNoChange_data();
    void whatIsWorkedOutIsNoChange();
    void whatIsNotChosenIsAsSaved();
    void editsMakeTheirsMine();
};

void tst_ScheduleMerge::followsTheRule()
{
    std::mt19937 random(kSeed);
    std::size_t conflicts = 0;
    std::size_t renumbered = 0;
    std::set<std::pair<Done, Done>> met;
    for (int i = 0; i < kCases; ++i) {
        Tasks base = sampleSchedule(int(random() % 6), 2, 2);
        editSome(base, random);
        Tasks theirs = base;
        Tasks mine = base;
        editSome(theirs, random);
        editSome(mine, random);
        ScheduleMerge::Choices choices;
        for (int id = 0; id < 9; ++id) {
            if (random() % 3 != 0) {
                choices[id] = random() % 2 == 0 ? MergeSide::Mine : MergeSide::Theirs;
            }
            met.emplace(done(base, mine, id), done(base, theirs, id));
        }
        const Literally expected(base, theirs, mine, choices);
        const ScheduleMerge merge(base, theirs, mine);
        QCOMPARE(merge.conflicts(), expected.conflicts);
        QCOMPARE(merge.renumbered(), expected.renumbered);
        QVERIFY2(merge.merged(choices) == expected.merged, qPrintable(QString::number(i)));
        conflicts += expected.conflicts.size();
        renumbered += expected.renumbered.size();
    }
    // Every pair of what two desks can do with a task: three of one that there was, two of others.
    QCOMPARE(met.size(), std::size_t(3 * 3 + 2 * 2 - 1));
    QVERIFY(conflicts > 100);
    QVERIFY(renumbered > 100);
}

void tst_ScheduleMerge::isTheSameFromBothDesks()
{
    std::mt19937 random(kSeed + 1);
    int compared = 0;
    for (int i = 0; i < kCases; ++i) {
        const Tasks base = sampleSchedule(int(random() % 6), 2, 2);
        Tasks theirs = base;
        Tasks mine = base;
        editSome(theirs, random);
        editSome(mine, random);
        const ScheduleMerge here(base, theirs, mine);
        const ScheduleMerge there(base, mine, theirs);
        QCOMPARE(here.conflicts(), there.conflicts());
        if (!here.renumbered().empty()) {
            continue;
        }
        // But for the records of what both have alike.
        ScheduleMerge::Choices mineThere;
        for (const int id : there.conflicts()) {
            mineThere[id] = MergeSide::Mine;
        }
        const Tasks a = here.merged({});
        const Tasks b = there.merged(mineThere);
        QCOMPARE(a.size(), b.size());
        for (const auto& [id, task] : a) {
            QCOMPARE(made(task), made(b.at(id)));
        }
        ++compared;
    }
    QVERIFY(compared > 300);
}

void tst_ScheduleMerge::keepsBothOfWhatIsNew()
{
    const Tasks base = {{2, taskOf(2, "base")}};
    const Tasks theirs = {{2, taskOf(2, "base")}, {3, taskOf(3, "theirs")}, {4, taskOf(4, "both")}};
    const Tasks mine = {{2, taskOf(2, "base")},
                        {3, taskOf(3, "mine")},
                        {4, taskOf(4, "both")},
                        {5, taskOf(5, "mine alone")}};
    const ScheduleMerge merge(base, theirs, mine);
    QVERIFY(merge.conflicts().empty());
    QCOMPARE(ids(merge.merged({})), QStringLiteral("2:base 3:theirs 4:both 5:mine alone 6:mine"));
    QCOMPARE(merge.renumbered(), (std::map<int, int>{{3, 6}}));
    QCOMPARE(merge.merged({}).at(6).id, 6);
}

void tst_ScheduleMerge::findsFreeNumbersAtTheEndOfThem()
{
    constexpr int last = std::numeric_limits<int>::max();
    const Tasks theirs = {{1, taskOf(1, "theirs")}, {last, taskOf(last, "theirs")}};
    const Tasks mine = {{-7, taskOf(-7, "mine")},
                        {1, taskOf(1, "mine")},
                        {3, taskOf(3, "mine")},
                        {last, taskOf(last, "mine")}};
    const ScheduleMerge merge({}, theirs, mine);
    QCOMPARE(merge.renumbered(), (std::map<int, int>{{1, 2}, {last, 4}}));
    QCOMPARE(ids(merge.merged({})),
             QStringLiteral("-7:mine 1:theirs 2:mine 3:mine 4:mine 2147483647:theirs"));

    const ScheduleMerge below({}, {{-7, taskOf(-7, "theirs")}}, {{-7, taskOf(-7, "mine")}});
    QCOMPARE(ids(below.merged({})), QStringLiteral("-7:theirs 1:mine"));
}

void tst_ScheduleMerge::whatIsWorkedOutIsNoChange_data()
{
    QTest::addColumn<Edit>("edit");
    QTest::addColumn<bool>("isChange");
    const auto row = [](const char* name, bool isChange, Edit edit) {
        QTest::newRow(name) << edit << isChange;
    };
    row("collision", false, [](PlayTask& task) { task.plans[0].isConflict = true; });
    row("lost entry", false, [](PlayTask& task) { task.plans[0].programs[0].isInvalid = true; });
    row("end of runs", false, [](PlayTask& task) { task.plans[1].endTime = "23:00:00"; });
    row("end that was set", true, [](PlayTask& task) { task.plans[0].endTime = "23:00:00"; });
    row("order of plans", true, [](PlayTask& task) { std::swap(task.plans[0], task.plans[1]); });
}

void tst_ScheduleMerge::whatIsWorkedOutIsNoChange()
{
    QFETCH(const Edit, edit);
    QFETCH(const bool, isChange);
    Tasks base = sampleSchedule(1, 2, 2);
    base.at(1).plans[0].mode = TimeMode;
    base.at(1).plans[1].mode = FrequencyMode;
    Tasks theirs = base;
    theirs.at(1).endDate = "2040.01.01";
    Tasks mine = base;
    edit(mine.at(1));
    QCOMPARE(ScheduleMerge(base, theirs, mine).conflicts().empty(), !isChange);
    QCOMPARE(ScheduleMerge(base, mine, theirs).conflicts().empty(), !isChange);
    // As theirs has it, to the letter, where neither has changed anything.
    QVERIFY(isChange || ScheduleMerge(base, mine, base).merged({}) == mine);
}

void tst_ScheduleMerge::whatIsNotChosenIsAsSaved()
{
    const Tasks base = {{1, taskOf(1, "base")}, {2, taskOf(2, "base")}, {3, taskOf(3, "base")}};
    const Tasks theirs = {{1, taskOf(1, "theirs")}, {3, taskOf(3, "theirs")}};
    const Tasks mine = {{1, taskOf(1, "mine")}, {2, taskOf(2, "mine")}};
    const ScheduleMerge merge(base, theirs, mine);
    QCOMPARE(merge.conflicts(), (std::vector<int>{1, 2, 3}));
    QCOMPARE(ids(merge.merged({})), QStringLiteral("1:theirs 3:theirs"));
    QCOMPARE(ids(merge.merged(
                 {{1, MergeSide::Mine}, {2, MergeSide::Mine}, {3, MergeSide::Mine}, {4, {}}})),
             QStringLiteral("1:mine 2:mine"));
    QCOMPARE(ids(merge.merged({{1, MergeSide::Theirs}, {3, MergeSide::Mine}})),
             QStringLiteral("1:theirs"));
}

void tst_ScheduleMerge::editsMakeTheirsMine()
{
    std::mt19937 random(kSeed + 2);
    for (int i = 0; i < kCases; ++i) {
        const Tasks base = sampleSchedule(int(random() % 6), 2, 2);
        Tasks theirs = base;
        Tasks mine = base;
        editSome(theirs, random);
        editSome(mine, random);
        const ScheduleMerge merge(base, theirs, mine);
        ScheduleMerge::Choices choices;
        for (const int id : merge.conflicts()) {
            choices[id] = MergeSide::Mine;
        }
        Tasks edited = theirs;
        for (const auto& [id, task] : merge.edits()) {
            // None that changes nothing.
            QVERIFY(task ? edited.count(id) == 0 || made(edited.at(id)) != made(*task)
                         : edited.count(id) > 0);
            if (task) {
                edited.insert_or_assign(id, *task);
            } else {
                edited.erase(id);
            }
        }
        QVERIFY2(edited == merge.merged(choices), qPrintable(QString::number(i)));
    }
}

TREL_TEST(tst_ScheduleMerge, QCoreApplication)
#include "tst_ScheduleMerge.moc"
