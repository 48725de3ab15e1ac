#include "ScheduleDatabase.h"

#include "ScheduleLimits.h"
#include "StoreCatalogue.h"
#include "StoreConnection.h"
#include "StoreDeadline.h"
#include "StoreEffect.h"
#include "StoreLog.h"
#include "StoreRefusals.h"
#include "StoreSchema.h"
#include "StoreTaskReader.h"
#include "StoreTaskWriter.h"
#include "StoreVersions.h"
#include "ThisProgram.h"
#include "catalogue/ProgramImporter.h"
#include "clock/Clock.h"

#include <QSqlQuery>
#include <QVariant>

#include <cerrno>
#include <chrono>
#include <new>
#include <utility>

namespace trel::mediadispatch {

namespace {

/// How long reading may take, which is a hundred times what it takes for the largest schedule: a
/// file that needs longer was made to.
constexpr std::chrono::seconds kReadingTime{30};

/// How often the file is looked at without its taking notice while others open and close it.
constexpr int kMostLooks = 5;

/// Takes no memory itself.
StoreResult lackOfMemory(const QString& path)
{
    return {StoreProblem::Other, path, {FaultCode::NoMemory, {}}};
}

/// Turns the errors of the database within an action on a file into its result.
template <typename Action>
StoreResult attempt(const QString& path, const Action& action)
{
    try {
        action();
        return {};
    } catch (const StoreError& error) {
        return error.result;
    } catch (const std::bad_alloc&) {
        return lackOfMemory(path);
    }
}

/// What of the tasks that are to be stored goes beyond a limit. What is stored already is not
/// looked at again.
Fault excessOf(const TaskMap& tasks, const TaskEdits& edits)
{
    Fault excess = mediadispatch::excessOf(tasks);
    for (auto task = edits.written.begin(); !excess && task != edits.written.end(); ++task) {
        excess = mediadispatch::excessOf(**task);
    }
    return excess;
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
    if (StoreSchema::hasEffect(connection)) {
        revision.effect = StoreEffect::revision(connection);
    }
    if (StoreSchema::hasHistory(connection)) {
        revision.names =
            connection.value(QStringLiteral("SELECT version_revision FROM store")).toLongLong();
    }
    return revision;
}

} // namespace

ScheduleDatabase::ScheduleDatabase() = default;
ScheduleDatabase::~ScheduleDatabase() = default;

StoreResult ScheduleDatabase::open(const QString& path, StoreOpenMode mode, StorePart part)
try {
    close();
    m_file = StoreFile(path);
    m_mode = mode;
    StoreResult result = judge();
    if (result && m_file.isVacant()) {
        result = create();
    }
    if (result) {
        result = judgeLog();
    }
    if (result) {
        result = look(part);
    }
    if (result && mode != StoreOpenMode::ReadOnly) {
        result = connect();
    }
    if (!result) {
        close();
    } else if (mode != StoreOpenMode::ReadOnly) {
        m_file.removeLeftDrafts();
    }
    return result;
} catch (const std::bad_alloc&) {
    close();
    return lackOfMemory(path);
}

StoreResult ScheduleDatabase::judge() const
{
    return m_file.judge(m_mode, StoreSchema::kApplicationId, StoreSchema::newestVersion());
}

StoreResult ScheduleDatabase::create() const
{
    // Made beside its place and moved there whole, so that no other program ever meets half a
    // store.
    if (!m_file.makeDraft()) {
        return refusalOfSystem(errno, m_file.path());
    }
    StoreResult result = attempt(m_file.path(), [this] {
        const StoreConnection connection(m_file.draftPath(), StoreConnection::Access::Create);
        StoreSchema::migrate(connection);
        connection.run(QStringLiteral("PRAGMA journal_mode = WAL"));
    });
    if (result && !m_file.fillFromDraft() && m_file.isVacant()) {
        result = refusal(StoreProblem::Other, m_file.path(), {FaultCode::NoPlaceForFile, {}});
    }
    m_file.removeDraft();
    if (result.problem == StoreProblem::Unclear) {
        // What has become of the draft is certain: it has not taken its place.
        result = refusal(StoreProblem::Other, m_file.path(), {FaultCode::DiskError, {}});
    }
    // The draft was not asked for.
    if (!result) {
        result.path = m_file.path();
    }
    return result;
}

/// Whether the log, if there is one that a program has left, is of this file and not of another
/// copy of it. A file of which that cannot be told is left to the look at it.
StoreResult ScheduleDatabase::judgeLog() const
{
    const auto isForeign = [this] {
        const StoreConnection file(m_file.path(), StoreConnection::Access::Untouched);
        StoreSchema::checkElements(file, m_file.path());
        const quint32 page = file.value(QStringLiteral("SELECT rootpage FROM sqlite_schema"
                                                       " WHERE name = 'store'"))
                                 .toUInt();
        return !StoreLog(m_file.logPath()).follows(revisionOf(file), page);
    };
    bool isRefused = false;
    if (m_file.stamp().logSize > 0 && !m_file.isLogInUse()) {
        StoreResult result = attempt(m_file.path(), [&] { isRefused = isForeign(); });
        if (result.cause.code == FaultCode::NoMemory) {
            return result;
        }
    }
    // Another program may have begun to work with it while it was read.
    return isRefused && !m_file.isLogInUse()
               ? refusal(StoreProblem::Damaged, m_file.path(),
                         faultOf(FaultCode::ForeignLog, m_file.logPath()))
               : StoreResult();
}

/// Reads the store without leaving a trace. A store that is only read goes on to be read in that
/// way.
StoreResult ScheduleDatabase::look(StorePart part)
{
    m_seen.reset();
    m_seenEffect.reset();
    for (int looks = 1;; ++looks) {
        m_stamp = m_file.stamp();
        const bool isShared = m_stamp.logSize > 0 || looks > kMostLooks;
        const bool hadLogIndex = m_file.hasLogIndex();
        auto connection = std::make_unique<StoreConnection>(
            m_file.path(),
            isShared ? StoreConnection::Access::ReadOnly : StoreConnection::Access::Untouched);
        StoreResult result = lookOnce(part, *connection);
        if (!isShared && !(m_file.stamp() == m_stamp)) {
            // Another program has opened the store meanwhile, and wrote while it was looked at.
            continue;
        }
        if (result && m_mode == StoreOpenMode::ReadOnly) {
            m_connection = std::move(connection);
            m_isUnnoticed = !isShared;
            m_identity = m_file.identity();
        }
        connection.reset();
        if (!result) {
            m_seen.reset();
            m_seenEffect.reset();
        }
        if (!result && isShared && !hadLogIndex) {
            // A log without an index is in use by no program.
            m_file.removeLogIndex();
            return m_file.canHaveLogIndex() ? result
                                            : refusal(StoreProblem::Other, m_file.path(),
                                                      {FaultCode::LogWithoutIndex, {}});
        }
        return result;
    }
}

StoreResult ScheduleDatabase::lookOnce(StorePart part, StoreConnection& connection)
{
    return attempt(m_file.path(), [&] {
        const StoreDeadline deadline(connection, kReadingTime);
        StoreSchema::check(connection, m_file.path());
        // All that is asked for later, also of a former version: once that is taken over, a
        // refusal would come too late to leave the file as it was.
        StoreTransaction transaction(connection, StoreTransaction::Purpose::Read);
        m_seen = Seen{part, {}};
        readParts(part, connection, m_seen->contents);
        if (part != StorePart::Catalogue) {
            m_seenEffect = StoreEffect(connection, m_file.path()).read();
        }
        transaction.commit();
    });
}

StoreResult ScheduleDatabase::connect()
{
    StoreResult result = attempt(m_file.path(), [this] {
        auto connection =
            std::make_unique<StoreConnection>(m_file.path(), StoreConnection::Access::ReadWrite);
        connection->run(QStringLiteral("PRAGMA foreign_keys = ON"));
        connection->run(QStringLiteral("PRAGMA synchronous = FULL"));
        {
            // An editor is of no use on a file that another program keeps to itself. Now that no
            // other program writes, it must still be what it was when it was looked at.
            const StoreTransaction trial(*connection, StoreTransaction::Purpose::Write);
            StoreSchema::checkElements(*connection, m_file.path());
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
    m_seen.reset();
    m_seenEffect.reset();
    m_isUnnoticed = false;
    m_file = StoreFile();
}

bool ScheduleDatabase::isInPlace() const
{
    return isOpen() && m_file.identity() == m_identity;
}

StoreResult ScheduleDatabase::reopen()
try {
    if (!m_file.isThere()) {
        return refusal(StoreProblem::FileMissing, m_file.path());
    }
    StoreResult result = judge();
    if (result && m_mode == StoreOpenMode::ReadOnly) {
        return look(StorePart::Both);
    }
    if (result && isOpen()) {
        result = leave();
    }
    if (result) {
        result = judgeLog();
    }
    if (result) {
        result = look(StorePart::Both);
    }
    return result ? connect() : result;
} catch (const std::bad_alloc&) {
    return lackOfMemory(m_file.path());
}

StoreResult ScheduleDatabase::leave()
{
    // The former file may have been moved elsewhere: what its log holds goes along. Left here, the
    // log would be replayed into the file that has taken its place.
    StoreResult result = attempt(m_file.path(), [this] {
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
    if (!isOpen() || m_mode == StoreOpenMode::ReadOnly) {
        return false;
    }
    const StoreResult trial = attempt(m_file.path(), [this] {
        const StoreHaste haste(*m_connection);
        const StoreTransaction transaction(*m_connection, StoreTransaction::Purpose::Write);
    });
    return trial.problem == StoreProblem::Locked;
}

void ScheduleDatabase::expectInPlace() const
{
    if (StoreResult place = judgeInPlace(); !place) {
        throw StoreError{std::move(place)};
    }
}

StoreResult ScheduleDatabase::judgeInPlace() const
{
    if (path().isEmpty()) {
        return refusal(StoreProblem::NotOpen, QString());
    }
    if (m_mode == StoreOpenMode::ReadOnly) {
        return refusal(StoreProblem::ReadOnly, m_file.path(), {FaultCode::OpenedForReading, {}});
    }
    if (!isInPlace()) {
        // The database would go on writing into a file that has no name any more.
        return refusal(StoreProblem::Other, m_file.path(), {FaultCode::FileReplaced, {}});
    }
    return m_file.judgeWritable();
}

/// Reads within one state of the store. A file that is read without its taking notice is looked at
/// once more where it has changed before, or meanwhile.
template <typename Reading>
StoreResult ScheduleDatabase::readWith(const Reading& reading)
try {
    if (!isOpen()) {
        return refusal(StoreProblem::NotOpen, QString());
    }
    for (;;) {
        if (m_isUnnoticed && !(m_file.stamp() == m_stamp)) {
            if (StoreResult result = look(StorePart::Both); !result) {
                return result;
            }
        }
        StoreResult result = attempt(m_file.path(), [&] {
            const StoreDeadline deadline(*m_connection, kReadingTime);
            StoreTransaction transaction(*m_connection, StoreTransaction::Purpose::Read);
            reading();
            transaction.commit();
        });
        if (!m_isUnnoticed || m_file.stamp() == m_stamp) {
            return result;
        }
    }
} catch (const std::bad_alloc&) {
    return lackOfMemory(m_file.path());
}

StoreResult ScheduleDatabase::readRevision(StoreRevision& revision)
{
    return readWith([&] { revision = revisionOf(*m_connection); });
}

StoreResult ScheduleDatabase::read(StorePart part, StoreContents& contents)
{
    return readWith([&] {
        if (!takeSeen(part, contents)) {
            contents = StoreContents();
            readParts(part, *m_connection, contents);
        }
    });
}

void ScheduleDatabase::readParts(StorePart part, const StoreConnection& connection,
                                 StoreContents& contents) const
{
    contents.revision = revisionOf(connection);
    if (part != StorePart::Catalogue) {
        contents.tasks = StoreTaskReader(connection, m_file.path()).read();
    }
    if (part != StorePart::Schedule) {
        StoreCatalogue(connection, m_file.path()).read(contents);
    }
}

/// Gives what the look has read, if the store is still as it was then.
bool ScheduleDatabase::takeSeen(StorePart part, StoreContents& contents)
{
    std::optional<Seen> seen = std::exchange(m_seen, std::nullopt);
    const StoreRevision now = revisionOf(*m_connection);
    if (!seen || seen->part != part || seen->contents.revision.schedule != now.schedule ||
        seen->contents.revision.catalogue != now.catalogue) {
        return false;
    }
    contents = std::move(seen->contents);
    return true;
}

StoreResult ScheduleDatabase::writeTasks(const TaskMap& tasks, const TaskEdits& edits,
                                         qint64& revision, qint64 restored)
{
    return attempt(m_file.path(), [&] {
        expectInPlace();
        if (const Fault excess = excessOf(tasks, edits)) {
            throw StoreError{refusal(StoreProblem::TooLarge, m_file.path(), excess)};
        }
        StoreTransaction transaction(*m_connection, edits.isEmpty()
                                                        ? StoreTransaction::Purpose::Read
                                                        : StoreTransaction::Purpose::Write);
        if (revisionOf(*m_connection).schedule != revision) {
            throw StoreError{refusal(StoreProblem::MovedOn, m_file.path())};
        }
        if (edits.isEmpty()) {
            return;
        }
        StoreVersions(*m_connection, m_file.path())
            .keep(revision, edits, tasks,
                  {Clock::current().msecsSinceEpoch(), thisProgram(), restored});
        StoreTaskWriter(*m_connection).write(edits);
        m_connection->run(
            QStringLiteral("UPDATE store SET schedule_revision = schedule_revision + 1"));
        transaction.commit();
        ++revision;
    });
}

ImportResult ScheduleDatabase::addPrograms(const std::vector<MediaSource>& sources,
                                           StoreContents& contents)
{
    ImportResult result;
    StoreResult outcome = attempt(m_file.path(), [&] {
        expectInPlace();
        if (sources.empty()) {
            return;
        }
        StoreTransaction transaction(*m_connection, StoreTransaction::Purpose::Write);
        StoreCatalogue catalogue(*m_connection, m_file.path());
        for (const MediaSource& source : sources) {
            catalogue.put(source, result);
        }
        catalogue.finish();
        std::vector<int> indexes = result.added;
        indexes.insert(indexes.end(), result.updated.begin(), result.updated.end());
        // Before the commit: behind it, nothing may fail any more.
        contents.revision = revisionOf(*m_connection);
        catalogue.read(indexes, contents);
        transaction.commit();
    });
    if (!outcome) {
        result = ImportResult();
        result.store = std::move(outcome);
    }
    return result;
}

StoreResult ScheduleDatabase::removePrograms(const std::vector<int>& progIndexes,
                                             StoreRevision& revision)
{
    return attempt(m_file.path(), [&] {
        expectInPlace();
        StoreTransaction transaction(*m_connection, StoreTransaction::Purpose::Write);
        StoreCatalogue catalogue(*m_connection, m_file.path());
        const bool isAny = catalogue.remove(progIndexes);
        if (isAny) {
            catalogue.finish();
        }
        revision = revisionOf(*m_connection);
        if (isAny) {
            transaction.commit();
        }
    });
}

StoreResult ScheduleDatabase::readEffect(StoredEffect& effect)
{
    return readWith([&] {
        std::optional<StoredEffect> seen = std::exchange(m_seenEffect, std::nullopt);
        const StoreEffect stored(*m_connection, m_file.path());
        const bool isSame = seen && seen->revision == revisionOf(*m_connection).effect;
        effect = isSame ? *std::move(seen) : stored.read();
    });
}

/// Carries out a change of what is in effect in one transaction.
template <typename Change>
StoreResult ScheduleDatabase::changeEffect(const Change& change)
{
    if (StoreResult place = judgeInPlace(); !place) {
        return place;
    }
    return attempt(m_file.path(), [&] {
        StoreTransaction transaction(*m_connection, StoreTransaction::Purpose::Write);
        change(StoreEffect(*m_connection, m_file.path()));
        transaction.commit();
    });
}

StoreResult ScheduleDatabase::startEffect(EffectStart start, StoredEffect& effect)
{
    StoredEffect started;
    StoreResult result = changeEffect([&](const StoreEffect& stored) {
        start.saved = revisionOf(*m_connection).schedule;
        stored.start(start);
        started = stored.read();
    });
    if (result) {
        effect = std::move(started);
    }
    return result;
}

StoreResult ScheduleDatabase::stopEffect(StoredEffect& effect)
{
    StoredEffect stopped;
    StoreResult result = changeEffect([&](const StoreEffect& stored) {
        stored.stop();
        stopped = stored.read();
    });
    if (result) {
        effect = std::move(stopped);
    }
    return result;
}

StoreResult ScheduleDatabase::writeInsertions(ScreenInsertions& insertions, qint64& revision)
{
    StoreResult result = changeEffect([&](const StoreEffect& stored) {
        if (StoreEffect::revision(*m_connection) != revision) {
            throw StoreError{refusal(StoreProblem::MovedOn, m_file.path())};
        }
        stored.putInsertions(insertions);
    });
    if (result) {
        ++revision;
    }
    return result;
}

StoreResult ScheduleDatabase::readVersions(std::vector<ScheduleVersion>& versions)
{
    return readWith([&] { versions = StoreVersions(*m_connection, m_file.path()).list(); });
}

StoreResult ScheduleDatabase::readVersion(qint64 number, TaskMap& tasks)
{
    return readWith([&] { tasks = StoreVersions(*m_connection, m_file.path()).read(number); });
}

StoreResult ScheduleDatabase::nameVersion(qint64 number, const QString& name, const QString& note)
{
    return attempt(m_file.path(), [&] {
        expectInPlace();
        if (const Fault fault = faultOfVersionTexts(name, note)) {
            throw StoreError{refusal(StoreProblem::Other, m_file.path(), fault)};
        }
        StoreTransaction transaction(*m_connection, StoreTransaction::Purpose::Write);
        StoreVersions(*m_connection, m_file.path()).name(number, name, note);
        transaction.commit();
    });
}

StoreResult ScheduleDatabase::countPlansWith(const std::vector<int>& progIndexes, int& count) const
{
    if (!isOpen()) {
        return refusal(StoreProblem::NotOpen, QString());
    }
    return attempt(m_file.path(),
                   [&] { count = StoreTaskReader::countPlansWith(*m_connection, progIndexes); });
}

} // namespace trel::mediadispatch
