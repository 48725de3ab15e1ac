#include "DraftFixture.h"
#include "DraftWalk.h"

#include <QProcess>
#include <QtTest>

#include <random>
#include <set>

using namespace trel::mediadispatch;

namespace {

constexpr unsigned kSeed = 20260101;
constexpr int kLongestLife = 800;
/// How old an edit may be that is not on the disk yet.
constexpr qint64 kMostLost = 250;
/// A machine that does much else may keep a disk, or the walk itself, waiting: one in so many.
constexpr int kLateOnceIn = 20;

/// How many programs are killed. More by hand, with TREL_WALK_KILLS; see docs/testing.md.
int stops()
{
    const int asked = qEnvironmentVariableIntValue("TREL_WALK_KILLS");
    return asked > 0 ? asked : 40;
}

/// What a program that was killed told before.
struct Told
{
    int last = 0; ///< The last step that it began.
    int kept = 0; ///< The last one that it knew to be on the disk.
    int old = 0;  ///< The last one that was due to be there.
};

Told toldBy(const QByteArray& output)
{
    Told told;
    std::vector<std::pair<int, qint64>> steps;
    for (const QByteArray& line : output.split('\n')) {
        const QList<QByteArray> words = line.split(' ');
        if (words.size() != 3) {
            continue;
        }
        if (words[0] == "kept") {
            told.kept = words[1].toInt();
        } else {
            steps.emplace_back(words[1].toInt(), words[2].toLongLong());
        }
    }
    for (const auto& [step, at] : steps) {
        told.last = step;
        told.old = at <= steps.back().second - kMostLost ? step : told.old;
    }
    return told;
}

using Task = std::optional<PlayTask>;

/// The state of a task after each of some steps, the first of which counts with all before it.
std::vector<Task> statesOf(int taskId, int first, int last, unsigned seed)
{
    const auto start = draftWalkStart();
    const auto known = start.find(taskId);
    Task state = known == start.end() ? Task() : Task(known->second);
    std::vector<Task> states;
    for (int step = 1; step <= last; ++step) {
        DraftStep next = draftStep(seed, step);
        if (next.taskId == taskId) {
            if (step > first) {
                states.push_back(state);
            }
            state = std::move(next.task);
        }
    }
    states.push_back(state);
    return states;
}

bool isAmong(const std::vector<Task>& states, const Task& state)
{
    return std::find(states.begin(), states.end(), state) != states.end();
}

/// The first task that has none of the states which the walk had from a step on; empty when each
/// has one.
QString lostTask(const Draft& draft, int first, int last, unsigned seed)
{
    const auto start = draftWalkStart();
    for (int id = 1; id <= 31; ++id) {
        const auto drafted = draft.tasks.find(id);
        const auto saved = start.find(id);
        const Task found = drafted != draft.tasks.end() ? drafted->second
                           : saved == start.end()       ? Task()
                                                        : Task(saved->second);
        if (!isAmong(statesOf(id, first, last, seed), found)) {
            return QStringLiteral("task %1, steps %2 to %3").arg(id).arg(first).arg(last);
        }
    }
    return {};
}

} // namespace

/// A program that is killed in the middle of its edits loses the last quarter of a second at most.
class tst_DraftSurvival : public QObject
{
    Q_OBJECT

private slots:
    void killedAtAnyMoment();
};

void tst_DraftSurvival::killedAtAnyMoment()
{
    StoreFixture store;
    store.save(draftWalkStart());
    DraftJournal reader(QStringLiteral("walker"));
    std::mt19937 random(kSeed);
    const int asked = stops();
    int late = 0;
    int drafts = 0;
    for (int stop = 0; stop < asked; ++stop) {
        const int life = 1 + static_cast<int>(random() % kLongestLife);
        const unsigned seed = kSeed + static_cast<unsigned>(stop);
        QProcess child;
        child.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        child.start(QStringLiteral(DRAFT_CHILD),
                    {store.path, QString::number(seed), QString::number(life)});
        QVERIFY(child.waitForFinished());
        QCOMPARE(child.exitStatus(), QProcess::CrashExit);
        const Told told = toldBy(child.readAllStandardOutput());
        const QString context = QStringLiteral("seed %1, killed after %2 ms: ").arg(seed).arg(life);

        const std::vector<LeftDraft> left = reader.left();
        QVERIFY2(left.size() <= 1, qPrintable(context));
        const Draft draft = left.empty() ? Draft() : left.front().draft;
        QVERIFY2(draft.state == DraftState::Whole || draft.state == DraftState::HalfWritten ||
                     left.empty(),
                 qPrintable(context + QString::number(int(draft.state))));
        const QString lost = lostTask(draft, told.kept, told.last, seed);
        QVERIFY2(lost.isEmpty(), qPrintable(context + lost));
        const QString delayed = lostTask(draft, std::max(told.kept, told.old), told.last, seed);
        if (!delayed.isEmpty()) {
            qInfo("%s", qPrintable(context + QStringLiteral("late: ") + delayed));
            ++late;
        }
        if (!left.empty()) {
            ++drafts;
            QVERIFY(removeLeftDraft(left.front()));
        }
    }
    qInfo("%d killed, %d drafts, %d late", asked, drafts, late);
    QVERIFY2(late <= std::max(1, asked / kLateOnceIn), qPrintable(QString::number(late)));
    QVERIFY2(drafts > asked / 2, qPrintable(QString::number(drafts)));
}

QTEST_GUILESS_MAIN(tst_DraftSurvival)
#include "tst_DraftSurvival.moc"
