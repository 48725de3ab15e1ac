#include "StoreVersions.h"

#include "ScheduleLimits.h"
#include "StoreConnection.h"
#include "StoreDeadline.h"
#include "StoreRefusals.h"
#include "StoreSchema.h"
#include "StoreStatement.h"
#include "StoreTaskReader.h"
#include "history/FormerTasks.h"

#include <QStringList>

#include <algorithm>
#include <optional>
#include <utility>

namespace trel::mediadispatch {

namespace {

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

TaskMap StoreVersions::read(qint64 number, const StoreDeadline* deadline) const
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
        if (deadline != nullptr) {
            deadline->expectTime(m_path);
        }
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

void StoreVersions::refuse(FaultCode code, qint64 number) const
{
    throw StoreError{refusal(StoreProblem::Other, m_path, faultOf(code, number))};
}

} // namespace trel::mediadispatch
