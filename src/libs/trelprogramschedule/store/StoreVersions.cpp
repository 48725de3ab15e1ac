#include "StoreVersions.h"

#include "ScheduleLimits.h"
#include "StoreConnection.h"
#include "StoreRefusals.h"
#include "StoreSchema.h"
#include "StoreStatement.h"
#include "StoreTaskReader.h"
#include "history/FormerPieces.h"
#include "history/FormerTasks.h"
#include "history/VersionThinning.h"

#include <QStringList>

#include <algorithm>
#include <iterator>
#include <optional>
#include <set>
#include <utility>

namespace trel::mediadispatch {

namespace {

/// To look through all versions with every save would cost more than a version itself.
constexpr qint64 kSavesToThinning = 16;

/// Whether more than marks of collision tells two states of a task apart.
bool isOther(const PlayTask& before, const PlayTask& after)
{
    if (!isSame(TaskAspect::Dates, before, after) || !isSame(TaskAspect::Lists, before, after)) {
        return true;
    }
    const auto isSamePlan = [](const PlayPlan& one, PlayPlan other) {
        other.isConflict = one.isConflict;
        return one == other;
    };
    return !std::equal(before.plans.begin(), before.plans.end(), after.plans.begin(),
                       after.plans.end(), isSamePlan);
}

/// Which number of a change counts a task; null for none.
int* countOf(VersionChange& change, const FormerTask& former, const TaskMap& tasks)
{
    const auto after = tasks.find(former.taskId);
    if (former.task == nullptr) {
        return &change.added;
    }
    if (after == tasks.end()) {
        return &change.removed;
    }
    return isOther(*former.task, after->second) ? &change.changed : nullptr;
}

VersionChange changeOf(const TaskEdits& edits, const TaskMap& tasks)
{
    VersionChange change;
    for (const FormerTask& former : edits.former) {
        int* const count = countOf(change, former, tasks);
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

std::vector<int> idsIn(const QString& text)
{
    std::vector<int> ids;
    const QStringList words = text.split(QLatin1Char(','), Qt::SkipEmptyParts);
    for (const QString& word : words) {
        if (ids.size() < kMostVersionTasks) {
            ids.push_back(word.toInt());
        }
    }
    return ids;
}

} // namespace

StoreVersions::StoreVersions(const StoreConnection& connection, QString path)
    : m_connection(connection)
    , m_path(std::move(path))
{}

std::vector<ScheduleVersion> StoreVersions::list() const
{
    std::vector<ScheduleVersion> versions;
    if (!StoreSchema::hasHistory(m_connection)) {
        return versions;
    }
    StoreStatement row(m_connection, m_path,
                       "SELECT number, saved_ms, saved_by, added, changed, removed, task_ids,"
                       " restored, name, note, (SELECT coalesce(sum(length(content)), 0)"
                       " FROM version_part WHERE version = number)"
                       " FROM version ORDER BY number DESC");
    while (row.next()) {
        ScheduleVersion& read = versions.emplace_back();
        int column = 0;
        read.number = row.number(column++);
        read.saved = row.number(column++);
        read.by = row.text(column++);
        read.change.added = static_cast<int>(row.number(column++));
        read.change.changed = static_cast<int>(row.number(column++));
        read.change.removed = static_cast<int>(row.number(column++));
        read.change.taskIds = idsIn(row.text(column++));
        read.restored = row.number(column++);
        read.name = row.text(column++);
        read.note = row.text(column++);
        read.bytes = row.number(column++);
    }
    return versions;
}

TaskMap StoreVersions::read(qint64 number) const
{
    if (!StoreSchema::hasHistory(m_connection) || !contains(number)) {
        refuse(FaultCode::VersionUnknown, number);
    }
    FormerTasks former(StoreTaskReader(m_connection, m_path).read());
    StoreStatement row(m_connection, m_path,
                       "SELECT number FROM version WHERE number >= ?"
                       " AND number < (SELECT schedule_revision FROM store) ORDER BY number");
    row.bind(1, number);
    while (row.next()) {
        const PieceReader read = pieces(row.number(0));
        const bool isSound =
            read.isWhole() &&
            std::all_of(read.pieces().begin(), read.pieces().end(),
                        [&former](const FormerPiece& piece) { return former.put(piece); });
        if (!isSound) {
            refuse(FaultCode::VersionDamaged, number);
        }
    }
    std::optional<TaskMap> tasks = former.take();
    if (!tasks || excessOf(*tasks)) {
        refuse(FaultCode::VersionDamaged, number);
    }
    return *std::move(tasks);
}

PieceReader StoreVersions::pieces(qint64 number) const
{
    StoreStatement row(m_connection, m_path,
                       "SELECT part, content FROM version_part WHERE version = ? ORDER BY part");
    row.bind(1, number);
    PieceReader reader;
    int part = 0;
    while (row.next()) {
        if (row.number(0) != part++ || !reader.add(row.view(1))) {
            return {};
        }
    }
    return reader;
}

bool StoreVersions::contains(qint64 number) const
{
    StoreStatement row(m_connection, m_path, "SELECT 1 FROM version WHERE number = ?");
    row.bind(1, number);
    return row.next();
}

void StoreVersions::keep(qint64 former, const TaskEdits& edits, const TaskMap& tasks,
                         const SaveMark& mark) const
{
    prepare(former);
    keepTasks(former, edits, tasks);
    enter(former + 1, changeOf(edits, tasks), mark);
    if ((former + 1) % kSavesToThinning == 0) {
        thinOut(mark.saved);
    }
}

void StoreVersions::prepare(qint64 former) const
{
    {
        StoreStatement sound(m_connection, m_path,
                             "SELECT (SELECT max(number) FROM version) IS ?1"
                             " AND NOT EXISTS (SELECT 1 FROM version_part WHERE version >= ?1)");
        sound.bind(1, former);
        if (sound.next() && sound.number(0) != 0) {
            return;
        }
    }
    for (const char* sql :
         {"DELETE FROM version_part WHERE version >= ?", "DELETE FROM version WHERE number > ?",
          "INSERT OR IGNORE INTO version VALUES (?, 0, '', 0, 0, 0, '', -1, '',"
          " '')"}) {
        StoreStatement statement(m_connection, m_path, sql);
        statement.bind(1, former);
        statement.run();
    }
}

void StoreVersions::keepTasks(qint64 number, const TaskEdits& edits, const TaskMap& tasks) const
{
    PieceWriter writer;
    for (const FormerTask& former : edits.former) {
        if (former.task == nullptr) {
            // Tells that there was none.
            writer.add({former.taskId, TaskAspect::Dates, QByteArray()});
            continue;
        }
        const auto after = tasks.find(former.taskId);
        for (const TaskAspect aspect : kTaskAspects) {
            const bool isKnownSame = former.keepsLists && aspect == TaskAspect::Lists;
            if (!isKnownSame &&
                (after == tasks.end() || !isSame(aspect, *former.task, after->second))) {
                writer.add({former.taskId, aspect, aspectBytes(aspect, *former.task)});
            }
        }
    }
    writeParts(number, writer.take());
}

void StoreVersions::writeParts(qint64 number, const std::vector<QByteArray>& parts) const
{
    StoreStatement row(m_connection, m_path, "INSERT INTO version_part VALUES (?, ?, ?)");
    row.bind(1, number);
    qint64 place = 0;
    for (const QByteArray& part : parts) {
        row.bind(2, place++);
        row.bindBytes(3, part);
        row.run();
    }
}

void StoreVersions::enter(qint64 number, const VersionChange& change, const SaveMark& mark) const
{
    StoreStatement row(m_connection, m_path,
                       "INSERT INTO version VALUES (?, ?, ?, ?, ?, ?, ?, ?, '', '')");
    int place = 0;
    row.bind(++place, number);
    row.bind(++place, mark.saved);
    row.bindText(++place, mark.by);
    row.bind(++place, change.added);
    row.bind(++place, change.changed);
    row.bind(++place, change.removed);
    row.bindText(++place, idsText(change.taskIds));
    row.bind(++place, mark.restored);
    row.run();
}

void StoreVersions::name(qint64 number, const QString& name, const QString& note) const
{
    if (!contains(number)) {
        refuse(FaultCode::VersionUnknown, number);
    }
    StoreStatement row(m_connection, m_path,
                       "UPDATE version SET name = ?, note = ? WHERE number = ?");
    row.bindText(1, name);
    row.bindText(2, note);
    row.bind(3, number);
    row.run();
    // Part of every change; a log that does not belong to the file is known by it.
    m_connection.run(QStringLiteral("UPDATE store SET version_revision = version_revision + 1"));
}

void StoreVersions::thinOut(Instant now) const
{
    std::vector<VersionAge> versions;
    StoreStatement row(m_connection, m_path,
                       "SELECT number, saved_ms, name <> '' FROM version ORDER BY number DESC");
    while (row.next()) {
        versions.push_back({row.number(0), row.number(1), row.number(2) != 0});
    }
    std::set<qint64> left;
    for (const VersionAge& version : versions) {
        left.insert(version.number);
    }
    for (const qint64 number : versionsToDrop(versions, now)) {
        const auto place = left.find(number);
        drop(number, place == left.begin() ? kNoVersion : *std::prev(place));
        left.erase(place);
    }
}

/// The version before takes over what it shares with the one that goes.
void StoreVersions::drop(qint64 number, qint64 before) const
{
    if (before != kNoVersion) {
        const PieceReader going = pieces(number);
        const PieceReader staying = pieces(before);
        if (!going.isWhole() || !staying.isWhole()) {
            // It stays, or the damage would not show any more.
            return;
        }
        std::set<std::pair<int, TaskAspect>> own;
        PieceWriter writer;
        for (const FormerPiece& piece : staying.pieces()) {
            own.insert({piece.taskId, piece.aspect});
            writer.add(piece);
        }
        for (const FormerPiece& piece : going.pieces()) {
            if (own.count({piece.taskId, piece.aspect}) == 0) {
                writer.add(piece);
            }
        }
        StoreStatement remove(m_connection, m_path, "DELETE FROM version_part WHERE version = ?");
        remove.bind(1, before);
        remove.run();
        writeParts(before, writer.take());
    }
    // Its parts go along.
    StoreStatement remove(m_connection, m_path, "DELETE FROM version WHERE number = ?");
    remove.bind(1, number);
    remove.run();
}

void StoreVersions::refuse(FaultCode code, qint64 number) const
{
    throw StoreError{refusal(StoreProblem::Other, m_path, faultOf(code, number))};
}

} // namespace trel::mediadispatch
