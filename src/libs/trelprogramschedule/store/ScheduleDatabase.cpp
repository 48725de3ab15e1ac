#include "ScheduleDatabase.h"

#include "StoreCatalogue.h"
#include "StoreConnection.h"
#include "StoreMessages.h"
#include "StoreSchema.h"
#include "StoreTaskReader.h"
#include "StoreTaskWriter.h"
#include "catalogue/ProgramImporter.h"

#include <QCoreApplication>
#include <QFile>
#include <QSqlQuery>
#include <QVariant>

#include <utility>

namespace trel::mediadispatch {

namespace {

/// Turns the errors of the database within an action into its result.
template <typename Action>
StoreResult attempt(const Action& action)
{
    try {
        action();
        return {};
    } catch (const StoreError& error) {
        return error.result;
    }
}

StoreRevision revisionOf(const StoreConnection& connection)
{
    QSqlQuery row =
        connection.query(QStringLiteral("SELECT schedule_revision, catalogue_revision FROM store"));
    StoreRevision revision;
    if (connection.next(row)) {
        revision.schedule = row.value(0).toLongLong();
        revision.catalogue = row.value(1).toLongLong();
    }
    return revision;
}

} // namespace

ScheduleDatabase::ScheduleDatabase() = default;
ScheduleDatabase::~ScheduleDatabase() = default;

StoreResult ScheduleDatabase::open(const QString& path, StoreOpenMode mode)
{
    close();
    m_file = StoreFile(path);
    StoreResult result = judge(mode);
    if (result && m_file.isVacant()) {
        result = create();
    }
    if (result) {
        result = probe();
    }
    if (result) {
        result = connect();
    }
    if (!result) {
        close();
    }
    return result;
}

StoreResult ScheduleDatabase::judge(StoreOpenMode mode) const
{
    return m_file.judge(mode, StoreSchema::kApplicationId, StoreSchema::newestVersion());
}

StoreResult ScheduleDatabase::create() const
{
    // Made beside its place and moved there whole, so that nobody ever meets half a store.
    const QString draft =
        m_file.path() + QStringLiteral(".new-%1").arg(QCoreApplication::applicationPid());
    QFile::remove(draft);
    StoreResult result = attempt([&draft] {
        const StoreConnection connection(draft, StoreConnection::Access::Create);
        StoreSchema::migrate(connection);
        connection.run(QStringLiteral("PRAGMA journal_mode = WAL"));
    });
    if (result && !m_file.fillFrom(draft) && m_file.isVacant()) {
        result =
            refusal(StoreProblem::Other, m_file.path(), QStringLiteral("no file can be put there"));
    }
    for (const char* suffix : {"", "-journal", "-wal", "-shm"}) {
        QFile::remove(draft + QLatin1String(suffix));
    }
    return result;
}

StoreResult ScheduleDatabase::probe() const
{
    const bool isShared = m_file.hasSidecars();
    const bool hadLogIndex = m_file.hasLogIndex();
    StoreResult result = attempt([this, isShared] {
        StoreSchema::check(StoreConnection(m_file.path(), isShared
                                                              ? StoreConnection::Access::ReadOnly
                                                              : StoreConnection::Access::Untouched),
                           m_file.path());
    });
    if (!result && !isShared && m_file.hasSidecars()) {
        // Another program has opened the store meanwhile, and wrote while it was looked at.
        return probe();
    }
    if (!result && isShared && !hadLogIndex) {
        // A log without an index has nobody who works with it.
        m_file.removeLogIndex();
    }
    return result;
}

StoreResult ScheduleDatabase::connect()
{
    StoreResult result = attempt([this] {
        auto connection =
            std::make_unique<StoreConnection>(m_file.path(), StoreConnection::Access::ReadWrite);
        connection->run(QStringLiteral("PRAGMA foreign_keys = ON"));
        connection->run(QStringLiteral("PRAGMA synchronous = FULL"));
        {
            // An editor is of no use on a file that somebody else keeps to himself.
            const StoreTransaction trial(*connection, StoreTransaction::Purpose::Write);
        }
        connection->run(QStringLiteral("PRAGMA journal_mode = WAL"));
        StoreSchema::migrate(*connection);
        m_connection = std::move(connection);
    });
    m_identity = m_file.identity();
    m_logIdentity = m_file.logIdentity();
    return result;
}

void ScheduleDatabase::close()
{
    m_connection.reset();
    m_file = StoreFile();
}

bool ScheduleDatabase::isInPlace() const
{
    return isOpen() && m_file.identity() == m_identity;
}

StoreResult ScheduleDatabase::reopen()
{
    if (!m_file.isThere()) {
        return refusal(StoreProblem::FileMissing, m_file.path());
    }
    StoreResult result = judge(StoreOpenMode::MustExist);
    if (result && isOpen()) {
        result = leave();
    }
    if (result) {
        result = probe();
    }
    return result ? connect() : result;
}

StoreResult ScheduleDatabase::leave()
{
    // The former file may have been moved elsewhere: what its log holds goes along. Left here, the
    // log would be replayed into the file that has taken its place.
    StoreResult result = attempt([this] {
        const StoreHaste haste(*m_connection);
        if (m_connection->value(QStringLiteral("PRAGMA wal_checkpoint(TRUNCATE)")).toInt() != 0) {
            throw StoreError{refusal(StoreProblem::Locked, m_file.path())};
        }
    });
    if (result) {
        m_connection.reset();
        m_file.removeLog(m_logIdentity);
    }
    return result;
}

bool ScheduleDatabase::isBeingWritten() const
{
    if (!isOpen()) {
        return false;
    }
    const StoreResult trial = attempt([this] {
        const StoreHaste haste(*m_connection);
        const StoreTransaction transaction(*m_connection, StoreTransaction::Purpose::Write);
    });
    return trial.problem == StoreProblem::Locked;
}

StoreResult ScheduleDatabase::judgeInPlace() const
{
    if (path().isEmpty()) {
        return refusal(StoreProblem::NotOpen, QString());
    }
    if (!isInPlace()) {
        // The database would go on writing into a file that nobody will find again.
        return refusal(StoreProblem::Other, m_file.path(),
                       QStringLiteral("it was removed or replaced since it was opened"));
    }
    return m_file.judgeWritable();
}

StoreResult ScheduleDatabase::readRevision(StoreRevision& revision) const
{
    if (!isOpen()) {
        return refusal(StoreProblem::NotOpen, QString());
    }
    return attempt([&] { revision = revisionOf(*m_connection); });
}

StoreResult ScheduleDatabase::read(StorePart part, StoreContents& contents) const
{
    if (!isOpen()) {
        return refusal(StoreProblem::NotOpen, QString());
    }
    return attempt([&] {
        StoreTransaction transaction(*m_connection, StoreTransaction::Purpose::Read);
        contents.revision = revisionOf(*m_connection);
        if (part != StorePart::Catalogue) {
            contents.tasks = StoreTaskReader(*m_connection, m_file.path()).read();
        }
        if (part != StorePart::Schedule) {
            StoreCatalogue(*m_connection, m_file.path()).read(contents);
        }
        transaction.commit();
    });
}

StoreResult ScheduleDatabase::readPrograms(const std::vector<int>& indexes,
                                           StoreContents& contents) const
{
    if (!isOpen()) {
        return refusal(StoreProblem::NotOpen, QString());
    }
    return attempt([&] {
        StoreTransaction transaction(*m_connection, StoreTransaction::Purpose::Read);
        contents.revision = revisionOf(*m_connection);
        StoreCatalogue(*m_connection, m_file.path()).read(indexes, contents);
        transaction.commit();
    });
}

StoreResult ScheduleDatabase::writeTasks(const TaskEdits& edits, qint64& revision)
{
    if (StoreResult place = judgeInPlace(); !place) {
        return place;
    }
    return attempt([&] {
        StoreTransaction transaction(*m_connection, edits.isEmpty()
                                                        ? StoreTransaction::Purpose::Read
                                                        : StoreTransaction::Purpose::Write);
        if (revisionOf(*m_connection).schedule != revision) {
            throw StoreError{refusal(StoreProblem::MovedOn, m_file.path())};
        }
        if (edits.isEmpty()) {
            return;
        }
        StoreTaskWriter(*m_connection).write(edits);
        m_connection->run(
            QStringLiteral("UPDATE store SET schedule_revision = schedule_revision + 1"));
        transaction.commit();
        ++revision;
    });
}

ImportResult ScheduleDatabase::addPrograms(const std::vector<MediaSource>& sources)
{
    ImportResult result;
    if (StoreResult place = judgeInPlace(); !place) {
        result.store = std::move(place);
        return result;
    }
    if (sources.empty()) {
        return result;
    }
    StoreResult outcome = attempt([&] {
        StoreTransaction transaction(*m_connection, StoreTransaction::Purpose::Write);
        StoreCatalogue catalogue(*m_connection, m_file.path());
        for (const MediaSource& source : sources) {
            catalogue.put(source, result);
        }
        catalogue.finish();
        transaction.commit();
    });
    if (!outcome) {
        result = ImportResult();
        result.store = std::move(outcome);
    }
    return result;
}

StoreResult ScheduleDatabase::removePrograms(const std::vector<int>& progIndexes)
{
    if (StoreResult place = judgeInPlace(); !place) {
        return place;
    }
    return attempt([&] {
        StoreTransaction transaction(*m_connection, StoreTransaction::Purpose::Write);
        StoreCatalogue catalogue(*m_connection, m_file.path());
        if (catalogue.remove(progIndexes)) {
            catalogue.finish();
            transaction.commit();
        }
    });
}

StoreResult ScheduleDatabase::countPlansWith(const std::vector<int>& progIndexes, int& count) const
{
    if (!isOpen()) {
        return refusal(StoreProblem::NotOpen, QString());
    }
    return attempt([&] { count = StoreTaskReader::countPlansWith(*m_connection, progIndexes); });
}

} // namespace trel::mediadispatch
