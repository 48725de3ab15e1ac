#include "StoreEffect.h"

#include "StoreConnection.h"
#include "StorePlanWriter.h"
#include "StoreRefusals.h"
#include "StoreSchema.h"
#include "StoreTaskReader.h"
#include "StoreValues.h"

#include <QLatin1String>
#include <QSqlQuery>
#include <QVariant>

#include <algorithm>
#include <utility>

namespace trel::mediadispatch {

namespace {

const QLatin1String kTasks("effect_");
const QLatin1String kInsertions("insertion_");

/// Each task table has one of the same form for what is in effect. From the leaves on.
constexpr const char* kTables[] = {"entry", "plan_value", "plan", "task"};

/// The places of an insertion's plans.
enum InsertionPlan { InsertedPlan, OriginalPlan, InsertionPlans };

/// More than a schedule has to reckon with at a time.
constexpr std::size_t kMostInsertions = 16;

/// Instants from which all others that follow can be worked out.
bool isInReach(const ScreenInsertion& insertion)
{
    return kEver <= insertion.requested && insertion.requested <= insertion.begins &&
           insertion.begins <= insertion.ends;
}

/// What every list of insertions has in common: each ends where the next begins, or before that.
bool isInOrder(const ScreenInsertions& insertions)
{
    const auto isWrong = [](const ScreenInsertion& one, const ScreenInsertion& next) {
        return one.ends > next.begins;
    };
    return std::all_of(insertions.begin(), insertions.end(), isInReach) &&
           std::adjacent_find(insertions.begin(), insertions.end(), isWrong) == insertions.end();
}

std::vector<PlayPlan> plansOf(const ScreenInsertion& insertion)
{
    PlayPlan original;
    original.programs = insertion.original;
    return {insertion.plan, original};
}

} // namespace

StoreEffect::StoreEffect(const StoreConnection& connection, QString path)
    : m_connection(connection)
    , m_path(std::move(path))
{}

StoredEffect StoreEffect::read() const
{
    StoredEffect effect;
    if (!StoreSchema::hasEffect(m_connection)) {
        return effect;
    }
    effect.revision = revision(m_connection);
    QSqlQuery row = m_connection.query(
        QStringLiteral("SELECT since_ms, schedule_revision, started_by FROM effect"));
    if (m_connection.next(row)) {
        effect.start = EffectStart{row.value(0).toLongLong(), row.value(1).toLongLong(),
                                   QString::fromUtf8(row.value(2).toByteArray())};
        effect.tasks = StoreTaskReader(m_connection, m_path, kTasks).read();
        effect.insertions = readInsertions();
    }
    return effect;
}

ScreenInsertions StoreEffect::readInsertions() const
{
    ScreenInsertions insertions;
    TaskMap owners;
    QSqlQuery row = m_connection.query(
        QStringLiteral("SELECT number, requested_ms, begins_ms, ends_ms, task_id, plan_id, asked_by"
                       " FROM insertion ORDER BY begins_ms, number LIMIT %1")
            .arg(kMostInsertions));
    while (m_connection.next(row)) {
        ScreenInsertion& read = insertions.emplace_back();
        read.number = row.value(0).toLongLong();
        read.requested = row.value(1).toLongLong();
        read.begins = row.value(2).toLongLong();
        read.ends = row.value(3).toLongLong();
        read.taskId = row.value(4).toInt();
        read.planId = row.value(5).toInt();
        read.askedBy = QString::fromUtf8(row.value(6).toByteArray());
        owners.try_emplace(static_cast<int>(read.number));
    }
    owners = StoreTaskReader(m_connection, m_path, kInsertions).readPlansOf(std::move(owners));
    for (ScreenInsertion& insertion : insertions) {
        std::vector<PlayPlan>& plans = owners[static_cast<int>(insertion.number)].plans;
        if (plans.size() != InsertionPlans) {
            throw StoreError{
                refusal(StoreProblem::Damaged, m_path, {FaultCode::PlansUnfitting, {}})};
        }
        insertion.plan = std::move(plans[InsertedPlan]);
        insertion.original = std::move(plans[OriginalPlan].programs);
    }
    if (!isInOrder(insertions)) {
        throw StoreError{refusal(StoreProblem::Damaged, m_path, {FaultCode::PlansUnfitting, {}})};
    }
    return insertions;
}

void StoreEffect::start(const EffectStart& start) const
{
    clear();
    QSqlQuery row = m_connection.prepare(
        QStringLiteral("INSERT INTO effect (one, since_ms, schedule_revision, started_by)"
                       " VALUES (1, ?, ?, CAST(? AS TEXT))"));
    bindFrom(0, row, start.since, start.saved, bytes(start.by));
    m_connection.exec(row);
    for (auto table = std::rbegin(kTables); table != std::rend(kTables); ++table) {
        m_connection.run(
            QStringLiteral("INSERT INTO %1%2 SELECT * FROM %2").arg(kTasks, QLatin1String(*table)));
    }
    countUp();
}

void StoreEffect::stop() const
{
    clear();
    countUp();
}

void StoreEffect::clear() const
{
    m_connection.run(QStringLiteral("DELETE FROM effect"));
    for (const char* table : kTables) {
        m_connection.run(QStringLiteral("DELETE FROM %1%2").arg(kTasks, QLatin1String(table)));
    }
    m_connection.run(QStringLiteral("DELETE FROM insertion"));
}

void StoreEffect::putInsertions(ScreenInsertions& insertions) const
{
    // Of each change one may be new. The number of a change never comes again, so that nobody takes
    // an insertion for one that has gone.
    const qint64 change = revision(m_connection) + 1;
    m_connection.run(QStringLiteral("DELETE FROM insertion"));
    QSqlQuery row = m_connection.prepare(
        QStringLiteral("INSERT INTO insertion (number, requested_ms, begins_ms, ends_ms, task_id,"
                       " plan_id, asked_by) VALUES (?, ?, ?, ?, ?, ?, CAST(? AS TEXT))"));
    StorePlanWriter plans(m_connection, kInsertions);
    for (ScreenInsertion& insertion : insertions) {
        if (insertion.number == 0) {
            insertion.number = change;
        }
        bindFrom(0, row, insertion.number, insertion.requested, insertion.begins, insertion.ends,
                 insertion.taskId, insertion.planId, bytes(insertion.askedBy));
        m_connection.exec(row);
        plans.insert(insertion.number, plansOf(insertion));
    }
    plans.finish();
    countUp();
}

qint64 StoreEffect::revision(const StoreConnection& connection)
{
    return connection.value(QStringLiteral("SELECT effect_revision FROM store")).toLongLong();
}

void StoreEffect::countUp() const
{
    m_connection.run(QStringLiteral("UPDATE store SET effect_revision = effect_revision + 1"));
}

} // namespace trel::mediadispatch
