#include "OpenCard.h"
#include "support/PromptAnswer.h"
#include "support/TestProgram.h"
#include "week/moves/PlanMove.h"

#include "MultiComboBox.h"
#include "service/TimeText.h"

#include <QApplication>
#include <QSpinBox>
#include <QTimeEdit>

#include <algorithm>
#include <map>
#include <random>

using namespace trel::mediadispatch;
using namespace trel::desktop::week;

namespace {

constexpr int kFilm = 1;
constexpr int kClip = 2;
constexpr int kPicture = 5;
constexpr int kMissing = 9;

RecordingService& service()
{
    return RecordingService::instance();
}

bool hasNoDuration(int progIndex)
{
    return service().noDuration.count(progIndex) > 0;
}

class Dice
{
public:
    explicit Dice(unsigned seed)
        : m_random(seed)
    {}

    int below(int count) { return std::uniform_int_distribution<int>(0, count - 1)(m_random); }
    template <typename T>
    T of(std::initializer_list<T> choice)
    {
        return *(choice.begin() + below(static_cast<int>(choice.size())));
    }

private:
    std::mt19937 m_random;
};

std::string anyTime(Dice& dice)
{
    if (dice.below(12) == 0) {
        return dice.of<const char*>({kDayStart, kDayEnd, "", "noon", "12:00:00"});
    }
    const int second = dice.below(3) == 0 ? dice.below(kMidnight) : dice.below(96) * 900;
    return timeToText(QTime(0, 0).addSecs(second));
}

std::string anyDays(Dice& dice)
{
    return dice.of<const char*>({"0", "", "1", "3", "1,3,5", "5,1", "6,7", "1,2,3,4,5", "2,2,4",
                                 "1,2,3,4,5,6", "1,2,3,4,5,6,7", "8", "3,9", "abc", "1,0"});
}

PlayPlan anyPlan(int id, Dice& dice)
{
    PlayPlan plan = timePlan(id, anyTime(dice), anyTime(dice), anyDays(dice));
    if (plan.endTime < plan.startTime && dice.below(8) > 0) {
        std::swap(plan.startTime, plan.endTime);
    }
    plan.times = dice.of({1, 1, 2, 40, 999, 0});
    plan.mode = dice.of({TimeMode, TimeMode, FrequencyMode});
    for (int count = dice.below(4); count > 0; --count) {
        plan.programs.push_back(entry(dice.of({kFilm, kFilm, kClip, kPicture, kMissing}), 1));
    }
    plan.serviceCount = dice.below(5);
    plan.serviceTime = "23:59:59";
    return plan;
}

PlayTask anyTask(Dice& dice)
{
    PlayTask task = taskWithPlans({});
    for (int id = 1 + dice.below(4); id > 0; --id) {
        task.plans.push_back(anyPlan(id, dice));
    }
    return task;
}

PlanMove anyMove(const PlayPlan& plan, Dice& dice)
{
    PlanMove move;
    move.part = dice.of({PlanMove::Whole, PlanMove::Whole, PlanMove::Begin, PlanMove::End});
    const std::optional<int> now = move.part == PlanMove::End ? endOf(plan) : beginOf(plan);
    switch (dice.below(4)) {
    case 0:
        break;
    case 1:
        move.second = steppedTo(now.value_or(0), dice.of({-4, -1, 1, 2, 30}));
        break;
    default:
        move.second =
            draggedTo(now.value_or(0), (dice.below(2 * 24) - 24) * 1800 + dice.below(900));
        break;
    }
    if (move.part == PlanMove::Whole) {
        move.fromDay = 1 + dice.below(7);
        move.toDay = dice.below(2) == 0 ? move.fromDay : 1 + dice.below(7);
    }
    return move;
}

/// What an operator does with the fields of a row until it says what the moved plan says.
void typeInto(const OpenCard& open, int row, const PlayPlan& from, const PlayPlan& to)
{
    QTimeEdit& start = open.rows.startTime(row);
    QTimeEdit& end = open.rows.endTime(row);
    const auto typeStart = [&] { start.setTime(timeFromText(to.startTime)); };
    const auto typeEnd = [&] {
        if (end.isEnabled()) {
            end.setTime(timeFromText(to.endTime));
        }
    };
    // Neither time passes the other on its way.
    if (from.startTime < to.startTime) {
        typeEnd();
        typeStart();
    } else {
        typeStart();
        typeEnd();
    }
    if (from.weeks != to.weeks) {
        QStringList labels;
        const QStringList days = QString::fromStdString(to.weeks).split(QLatin1Char(','));
        for (const QString& day : days) {
            labels.append(open.rows.weeks(row).itemText(day.toInt()));
        }
        open.rows.weeks(row).applySelection(labels.join(QLatin1Char(',')));
    }
}

} // namespace

/// Any drag leads to the plan that the same values lead to when they are entered in the row, or to
/// nothing.
class tst_MovesAsTyped : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void anyDrag();
    void collisionsWhileDragging();
};

void tst_MovesAsTyped::init()
{
    service().reset();
    service().addProgram(kFilm, "Film", 3540000.0);
    service().addProgram(kClip, "Clip", 61500.9);
    service().addProgram(kPicture, "Picture", -1.0, true);
}

void tst_MovesAsTyped::anyDrag()
{
    Dice dice(20240306);
    std::map<MoveRefusal, int> outcomes;
    for (int round = 0; round < 1500; ++round) {
        const PlayTask task = anyTask(dice);
        const int row = dice.below(static_cast<int>(task.plans.size()));
        const PlayPlan& plan = task.plans[std::size_t(row)];
        const PlanMove move = anyMove(plan, dice);
        const MovedPlan moved = movedPlan(plan, move, service().programs, hasNoDuration);
        ++outcomes[moved.refusal];
        if (moved.refusal != MoveRefusal::None) {
            QVERIFY(moved.plan == plan);
            continue;
        }
        PlayTask filed = task;
        filed.plans[std::size_t(row)] = moved.plan;
        markCollisions(filed, service().programs, hasNoDuration);

        const PromptAnswer noRefusal;
        const OpenCard open(task);
        typeInto(open, row, plan, moved.plan);
        QVERIFY2(service().working[1] == filed,
                 qPrintable(QStringLiteral("%1: %2 instead of %3")
                                .arg(round)
                                .arg(line(filed), line(service().working[1]))));
        QCOMPARE(open.stores() > 0, true);
        QCOMPARE(noRefusal.count(), 0);
    }
    // All of it was tried.
    QVERIFY(outcomes[MoveRefusal::None] > 300);
    for (const MoveRefusal refusal :
         {MoveRefusal::Nowhere, MoveRefusal::Unreadable, MoveRefusal::PastMidnight,
          MoveRefusal::NoLength, MoveRefusal::EndFollows, MoveRefusal::EveryDay,
          MoveRefusal::HasThatDay, MoveRefusal::UnknownDays}) {
        QVERIFY2(outcomes[refusal] > 2, qPrintable(QString::number(int(refusal))));
    }
}

void tst_MovesAsTyped::collisionsWhileDragging()
{
    Dice dice(7);
    for (int round = 0; round < 300; ++round) {
        const PlayTask task = anyTask(dice);
        const int row = dice.below(static_cast<int>(task.plans.size()));
        const PlayPlan plan = anyPlan(50, dice);
        const std::vector<int> rows =
            collidingRows(task, row, plan, service().programs, hasNoDuration);
        for (int other = 0; other < static_cast<int>(task.plans.size()); ++other) {
            // A card of the two alone marks the lower one.
            PlayTask two = taskWithPlans({task.plans[std::size_t(other)], plan}, 2);
            const OpenCard open(two);
            const bool collides = open.rows.states().endsWith(QLatin1String("red"));
            const bool isTold = std::count(rows.begin(), rows.end(), other) > 0;
            QCOMPARE(isTold, other != row && collides);
        }
    }
}

TREL_TEST(tst_MovesAsTyped, QApplication)
#include "tst_MovesAsTyped.moc"
