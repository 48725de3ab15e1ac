#include "StoreVersionWriter.h"

#include "StoreConnection.h"
#include "StoreVersions.h"
#include "history/FormerPieces.h"
#include "history/TaskAspects.h"
#include "history/VersionThinning.h"

#include <QStringList>

#include <algorithm>
#include <cstdint>
#include <unordered_set>
#include <utility>

namespace trel::mediadispatch {

namespace {

/// To look through all versions with every save would cost more than a version itself.
constexpr qint64 kSavesToThinning = 16;

bool isSameButForCollision(const PlayPlan& one, const PlayPlan& other)
{
    if (one.isConflict == other.isConflict) {
        return one == other;
    }
    PlayPlan unmarked = other;
    unmarked.isConflict = one.isConflict;
    return one == unmarked;
}

bool haveSamePlans(const FormerTask& former)
{
    const std::vector<PlayPlan>& before = former.task->plans;
    const std::vector<PlayPlan>& after = former.after->plans;
    return std::equal(before.begin(), before.end(), after.begin(), after.end(),
                      isSameButForCollision);
}

/// Whether more than marks of collision tells two states of a task apart.
bool isOther(const FormerTask& former)
{
    const bool keepsDates = former.keepsLists
                                ? former.keepsDates
                                : isSame(TaskAspect::Dates, *former.task, *former.after);
    return !keepsDates || (!former.keepsFields && !haveSamePlans(former));
}

/// Which number of a change counts a task; null for none.
int* countOf(VersionChange& change, const FormerTask& former)
{
    if (former.task == nullptr) {
        return &change.added;
    }
    if (former.after == nullptr) {
        return &change.removed;
    }
    return isOther(former) ? &change.changed : nullptr;
}

VersionChange changeOf(const TaskEdits& edits)
{
    VersionChange change;
    for (const FormerTask& former : edits.former) {
        int* const count = countOf(change, former);
        if (count == nullptr) {
            continue;
        }
        ++*count;
        if (change.taskIds.size() < kMostVersionTasks) {
            change.taskIds.push_back(former.taskId);
        }
    }
    return change;
}

QString idsText(const std::vector<int>& ids)
{
    QStringList words;
    for (const int id : ids) {
        words.append(QString::number(id));
    }
    return words.join(QLatin1Char(','));
}

/// Whether the next version has another aspect of a task, or not the task.
bool isToKeep(TaskAspect aspect, const FormerTask& former)
{
    if (former.after == nullptr) {
        return true;
    }
    if (!former.keepsLists) {
        return !isSame(aspect, *former.task, *former.after);
    }
    return (aspect == TaskAspect::Dates && !former.keepsDates) ||
           (aspect == TaskAspect::Fields && !former.keepsFields);
}

/// Finds out quickly whether a piece of the same name has come before.
class PieceNames
{
public:
    bool add(const FormerPiece& piece)
    {
        constexpr unsigned aspectBits = 2;
        return m_names
            .insert(std::uint64_t(std::uint32_t(piece.taskId)) << aspectBits |
                    std::uint64_t(piece.aspect))
            .second;
    }

private:
    std::unordered_set<std::uint64_t> m_names;
};

} // namespace

StoreVersionWriter::StoreVersionWriter(const StoreConnection& connection, QString path)
    : m_connection(connection)
    , m_path(std::move(path))
    , m_sound(connection, m_path,
              "SELECT coalesce((SELECT max(number) FROM version), -1) = ?"
              " AND NOT EXISTS (SELECT 1 FROM version_part WHERE version >= ?)")
    , m_part(connection, m_path, "INSERT INTO version_part VALUES (?, ?, ?)")
    , m_version(connection, m_path, "INSERT INTO version VALUES (?, ?, ?, ?, ?, ?, ?, ?, '', '')")
{}

void StoreVersionWriter::keep(qint64 former, const TaskEdits& edits, const SaveMark& mark)
{
    if (!isSound(former)) {
        prepare(former);
    }
    keepTasks(former, edits);
    enter(former + 1, changeOf(edits), mark);
    if ((former + 1) % kSavesToThinning == 0) {
        thinOut(mark.saved);
    }
}

bool StoreVersionWriter::isSound(qint64 former)
{
    m_sound.bind(1, former);
    m_sound.bind(2, former);
    const bool isSound = m_sound.next() && m_sound.number(0) != 0;
    m_sound.reset();
    return isSound;
}

void StoreVersionWriter::prepare(qint64 former)
{
    for (const char* sql :
         {"DELETE FROM version_part WHERE version >= ?", "DELETE FROM version WHERE number > ?",
          "INSERT INTO version VALUES (?, 0, '', 0, 0, 0, '', -1, '', '')"
          " ON CONFLICT DO NOTHING"}) {
        StoreStatement statement(m_connection, m_path, sql);
        statement.bind(1, former);
        statement.run();
    }
}

void StoreVersionWriter::keepTasks(qint64 number, const TaskEdits& edits)
{
    PieceWriter writer;
    for (const FormerTask& former : edits.former) {
        if (former.task == nullptr) {
            // Tells that there was none.
            writer.add({former.taskId, TaskAspect::Dates, QByteArray()});
            continue;
        }
        for (const TaskAspect aspect : kTaskAspects) {
            if (isToKeep(aspect, former)) {
                writer.add({former.taskId, aspect, aspectBytes(aspect, *former.task)});
            }
        }
    }
    writeParts(number, writer.take());
}

void StoreVersionWriter::writeParts(qint64 number, const std::vector<QByteArray>& parts)
{
    m_part.bind(1, number);
    qint64 place = 0;
    for (const QByteArray& part : parts) {
        m_part.bind(2, place++);
        m_part.bindBytes(3, part);
        m_part.run();
    }
}

void StoreVersionWriter::enter(qint64 number, const VersionChange& change, const SaveMark& mark)
{
    int place = 0;
    m_version.bind(++place, number);
    m_version.bind(++place, mark.saved);
    m_version.bindText(++place, mark.by);
    m_version.bind(++place, change.added);
    m_version.bind(++place, change.changed);
    m_version.bind(++place, change.removed);
    m_version.bindText(++place, idsText(change.taskIds));
    m_version.bind(++place, mark.restored);
    m_version.run();
}

void StoreVersionWriter::thinOut(Instant now)
{
    std::vector<VersionAge> versions;
    {
        StoreStatement row(m_connection, m_path,
                           "SELECT number, saved_ms, name <> '' FROM version ORDER BY number DESC");
        while (row.next()) {
            versions.push_back({row.number(0), row.number(1), row.number(2) != 0});
        }
    }
    const std::vector<qint64> going = versionsToDrop(versions, now);
    // Those that go one after the other go together, as each would be put into the same one.
    std::vector<qint64> run;
    qint64 before = kNoVersion;
    auto next = going.begin();
    for (auto version = versions.rbegin(); version != versions.rend(); ++version) {
        if (next != going.end() && *next == version->number) {
            run.push_back(*next++);
            continue;
        }
        dropRun(std::exchange(run, {}), before);
        before = version->number;
    }
    dropRun(run, before);
}

/// The version before takes over what it shares with those that go.
void StoreVersionWriter::dropRun(const std::vector<qint64>& run, qint64 before)
{
    if (run.empty() || before == kNoVersion) {
        std::for_each(run.begin(), run.end(), [this](qint64 number) { remove(number); });
        return;
    }
    const StoreVersions versions(m_connection, m_path);
    PieceNames known;
    PieceWriter writer;
    // Of a version that is damaged none of the pieces counts.
    const auto isTaken = [&](qint64 number) {
        const PieceReader reader = versions.pieces(number);
        if (!reader.isWhole()) {
            return false;
        }
        for (const FormerPiece& piece : reader.pieces()) {
            if (known.add(piece)) {
                writer.add(piece);
            }
        }
        return true;
    };
    if (!isTaken(before)) {
        // All stay, or the damage would not show any more.
        return;
    }
    const auto end = std::find_if_not(run.begin(), run.end(), isTaken);
    if (end == run.begin()) {
        return;
    }
    StoreStatement parts(m_connection, m_path, "DELETE FROM version_part WHERE version = ?");
    parts.bind(1, before);
    parts.run();
    writeParts(before, writer.take());
    std::for_each(run.begin(), end, [this](qint64 number) { remove(number); });
}

void StoreVersionWriter::remove(qint64 number) const
{
    // Its parts go along.
    StoreStatement row(m_connection, m_path, "DELETE FROM version WHERE number = ?");
    row.bind(1, number);
    row.run();
}

} // namespace trel::mediadispatch
