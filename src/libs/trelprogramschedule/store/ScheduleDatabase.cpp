#include "ScheduleDatabase.h"

#include "ScheduleLimits.h"
#include "StoreAttempt.h"
#include "StoreCatalogue.h"
#include "StoreEffect.h"
#include "StoreEngines.h"
#include "StoreProgramContents.h"
#include "StoreRefusals.h"
#include "StoreRevisions.h"
#include "StoreTaskReader.h"
#include "StoreTaskWriter.h"
#include "StoreVersionWriter.h"
#include "StoreVersions.h"
#include "ThisProgram.h"
#include "catalogue/ProgramImporter.h"
#include "clock/Clock.h"

#include <QVariant>

#include <functional>
#include <new>
#include <utility>

namespace trel::mediadispatch {

namespace {

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

/// Puts sources into the catalogue, and gives their programs and the index of each.
std::vector<int> putSources(const StoreConnection& connection, const QString& path,
                            const std::vector<MediaSource>& sources, StoreContents& contents)
{
    std::vector<int> indexes;
    if (sources.empty()) {
        return indexes;
    }
    ImportResult result;
    StoreCatalogue catalogue(connection, path);
    catalogue.put(sources, result);
    catalogue.finish();
    indexes.reserve(sources.size());
    for (const MediaSource& source : sources) {
        indexes.push_back(catalogue.indexOf(source));
    }
    catalogue.read(indexes, contents);
    return indexes;
}

} // namespace

ScheduleDatabase::ScheduleDatabase() = default;
ScheduleDatabase::~ScheduleDatabase() = default;

StoreResult ScheduleDatabase::open(const QString& path, StoreOpenMode mode, StorePart part)
try {
    close();
    m_looksFor = part;
    StoreResult result = attempt(path, [&] {
        m_engine = engineFor(
            path, mode, [this](const StoreConnection& connection) { look(connection); },
            m_patience);
    });
    if (result) {
        result = m_engine->open();
    }
    if (!result) {
        close();
    }
    m_looksFor = StorePart::Both;
    return result;
} catch (const std::bad_alloc&) {
    close();
    return lackOfMemory(path);
}

void ScheduleDatabase::look(const StoreConnection& connection)
{
    forgetSeen();
    Seen seen{m_looksFor, {}};
    readParts(m_looksFor, connection, seen.contents);
    if (m_looksFor != StorePart::Catalogue) {
        m_seenEffect = StoreEffect(connection, path()).read();
    }
    m_seen = std::move(seen);
}

void ScheduleDatabase::forgetSeen()
{
    m_seen.reset();
    m_seenEffect.reset();
}

void ScheduleDatabase::close()
{
    m_engine.reset();
    forgetSeen();
    m_looksFor = StorePart::Both;
}

bool ScheduleDatabase::isOpen() const
{
    return m_engine && m_engine->connection() != nullptr;
}

QString ScheduleDatabase::path() const
{
    return m_engine ? m_engine->path() : QString();
}

QString ScheduleDatabase::id() const
{
    return m_engine ? m_engine->id() : QString();
}

const StoreConnection& ScheduleDatabase::connection() const
{
    return *m_engine->connection();
}

bool ScheduleDatabase::isInPlace() const
{
    return m_engine && m_engine->isInPlace();
}

StoreResult ScheduleDatabase::reopen()
try {
    if (!m_engine) {
        return refusal(StoreProblem::FileMissing, QString());
    }
    StoreResult result = m_engine->reopen();
    if (!result) {
        forgetSeen();
    }
    return result;
} catch (const std::bad_alloc&) {
    return lackOfMemory(path());
}

bool ScheduleDatabase::isBeingWritten() const
{
    return m_engine && m_engine->isBeingWritten();
}

StoreResult ScheduleDatabase::judgeChange() const
{
    return m_engine ? m_engine->judgeChange() : refusal(StoreProblem::NotOpen, QString());
}

void ScheduleDatabase::expectChange() const
{
    if (StoreResult judged = judgeChange(); !judged) {
        throw StoreError{std::move(judged)};
    }
}

/// Reads within one state of the store.
template <typename Reading>
StoreResult ScheduleDatabase::readWith(const Reading& reading)
try {
    return isOpen() ? m_engine->read(std::cref(reading))
                    : refusal(StoreProblem::NotOpen, QString());
} catch (const std::bad_alloc&) {
    return lackOfMemory(path());
}

StoreResult ScheduleDatabase::readRevision(StoreRevision& revision)
{
    return readWith([&] { revision = revisionOf(connection()); });
}

StoreResult ScheduleDatabase::read(StorePart part, StoreContents& contents)
{
    return readWith([&] {
        if (!takeSeen(part, contents)) {
            contents = StoreContents();
            readParts(part, connection(), contents);
        }
    });
}

void ScheduleDatabase::readParts(StorePart part, const StoreConnection& connection,
                                 StoreContents& contents) const
{
    contents.revision = revisionOf(connection);
    if (part != StorePart::Catalogue) {
        contents.tasks = StoreTaskReader(connection, path()).read();
    }
    if (part != StorePart::Schedule) {
        StoreCatalogue(connection, path()).read(contents);
    }
}

/// Gives what the look has read, if the store is still as it was then.
bool ScheduleDatabase::takeSeen(StorePart part, StoreContents& contents)
{
    std::optional<Seen> seen = std::exchange(m_seen, std::nullopt);
    const StoreRevision now = revisionOf(connection());
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
    return attempt(path(), [&] {
        expectChange();
        if (const Fault excess = excessOf(tasks, edits)) {
            throw StoreError{refusal(StoreProblem::TooLarge, path(), excess)};
        }
        StoreTransaction transaction(connection(), edits.isEmpty()
                                                       ? StoreTransaction::Purpose::Read
                                                       : StoreTransaction::Purpose::Write);
        // The others are in the way of no save.
        if (connection()
                .value(QStringLiteral("SELECT schedule_revision FROM store"))
                .toLongLong() != revision) {
            throw StoreError{refusal(StoreProblem::MovedOn, path())};
        }
        if (edits.isEmpty()) {
            return;
        }
        writeEdits(edits, revision, restored);
        transaction.commit();
        ++revision;
    });
}

void ScheduleDatabase::writeEdits(const TaskEdits& edits, qint64 revision, qint64 restored) const
{
    StoreVersionWriter(connection(), path())
        .keep(revision, edits, {Clock::current().msecsSinceEpoch(), thisProgram(), restored});
    StoreTaskWriter(connection()).write(edits);
    connection().run(QStringLiteral("UPDATE store SET schedule_revision = schedule_revision + 1"));
}

StoreResult ScheduleDatabase::writeWithPrograms(const std::vector<MediaSource>& sources,
                                                const TasksOfPrograms& tasksOf,
                                                StoreRevision& revision, ProgramMap& programs)
{
    return attempt(path(), [&] {
        expectChange();
        StoreTransaction transaction(connection(), StoreTransaction::Purpose::Write);
        const StoreRevision found = revisionOf(connection());
        if (found.schedule != revision.schedule || found.catalogue != revision.catalogue) {
            throw StoreError{refusal(StoreProblem::MovedOn, path())};
        }
        StoreContents contents;
        const std::vector<int> indexes = putSources(connection(), path(), sources, contents);
        const TasksToWrite toWrite = tasksOf(indexes, contents.programs);
        if (const Fault excess = excessOf(*toWrite.tasks, toWrite.edits)) {
            throw StoreError{refusal(StoreProblem::TooLarge, path(), excess)};
        }
        if (!toWrite.edits.isEmpty()) {
            writeEdits(toWrite.edits, found.schedule, kNoVersion);
        }
        const StoreRevision written = revisionOf(connection());
        if (!sources.empty() || !toWrite.edits.isEmpty()) {
            transaction.commit();
        }
        revision = written;
        programs = std::move(contents.programs);
    });
}

ImportResult ScheduleDatabase::addPrograms(const std::vector<MediaSource>& sources,
                                           StoreContents& contents)
{
    ImportResult result;
    StoreResult outcome = attempt(path(), [&] {
        expectChange();
        if (sources.empty()) {
            return;
        }
        StoreTransaction transaction(connection(), StoreTransaction::Purpose::Write);
        StoreCatalogue catalogue(connection(), path());
        catalogue.put(sources, result);
        catalogue.finish();
        std::vector<int> indexes = result.added;
        indexes.insert(indexes.end(), result.updated.begin(), result.updated.end());
        // Before the commit: behind it, nothing may fail any more.
        contents.revision = revisionOf(connection());
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
    return attempt(path(), [&] {
        expectChange();
        StoreTransaction transaction(connection(), StoreTransaction::Purpose::Write);
        StoreCatalogue catalogue(connection(), path());
        const bool isAny = catalogue.remove(progIndexes);
        if (isAny) {
            catalogue.finish();
        }
        revision = revisionOf(connection());
        if (isAny) {
            transaction.commit();
        }
    });
}

StoreResult ScheduleDatabase::readContents(ProgramContents& contents)
{
    return readWith([&] { contents = StoreProgramContents(connection()).read(); });
}

StoreResult ScheduleDatabase::readEffect(StoredEffect& effect)
{
    return readWith([&] {
        std::optional<StoredEffect> seen = std::exchange(m_seenEffect, std::nullopt);
        const StoreEffect stored(connection(), path());
        const bool isSame = seen && seen->revision == revisionOf(connection()).effect;
        effect = isSame ? *std::move(seen) : stored.read();
    });
}

/// Carries out a change of what is in effect in one transaction.
template <typename Change>
StoreResult ScheduleDatabase::changeEffect(const Change& change)
{
    if (StoreResult place = judgeChange(); !place) {
        return place;
    }
    return attempt(path(), [&] {
        StoreTransaction transaction(connection(), StoreTransaction::Purpose::Write);
        change(StoreEffect(connection(), path()));
        transaction.commit();
    });
}

StoreResult ScheduleDatabase::startEffect(EffectStart start, StoredEffect& effect)
{
    StoredEffect started;
    StoreResult result = changeEffect([&](const StoreEffect& stored) {
        start.saved = revisionOf(connection()).schedule;
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
        if (StoreEffect::revision(connection()) != revision) {
            throw StoreError{refusal(StoreProblem::MovedOn, path())};
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
    return readWith([&] { versions = StoreVersions(connection(), path()).list(); });
}

StoreResult ScheduleDatabase::readVersion(qint64 number, TaskMap& tasks)
{
    return readWith([&] { tasks = StoreVersions(connection(), path()).read(number); });
}

StoreResult ScheduleDatabase::nameVersion(qint64 number, const QString& name, const QString& note)
{
    return attempt(path(), [&] {
        expectChange();
        if (const Fault fault = faultOfVersionTexts(name, note)) {
            throw StoreError{refusal(StoreProblem::Other, path(), fault)};
        }
        StoreTransaction transaction(connection(), StoreTransaction::Purpose::Write);
        StoreVersions(connection(), path()).name(number, name, note);
        transaction.commit();
    });
}

StoreResult ScheduleDatabase::countPlansWith(const std::vector<int>& progIndexes, int& count) const
{
    if (!isOpen()) {
        return refusal(StoreProblem::NotOpen, QString());
    }
    return attempt(path(), [&] {
        StoreTransaction transaction(connection(), StoreTransaction::Purpose::Read);
        count = StoreTaskReader::countPlansWith(connection(), progIndexes);
        transaction.commit();
    });
}

} // namespace trel::mediadispatch
