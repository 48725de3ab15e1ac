#include "AsRunDatabase.h"

#include "AsRunContents.h"
#include "AsRunHash.h"
#include "AsRunRetention.h"
#include "AsRunRows.h"
#include "AsRunSchedule.h"
#include "AsRunSchema.h"
#include "store/StoreAttempt.h"
#include "store/StoreRefusals.h"
#include "store/sqlite/SqliteConnection.h"
#include "store/sqlite/StoreFile.h"

#include <QFileInfo>

#include <algorithm>
#include <cerrno>

namespace trel::mediadispatch {

namespace {

/// So many records are read at once: few enough to keep no player from writing for long.
constexpr std::size_t kMostAtOnce = 4096;

constexpr char kScreenColumns[] =
    "SELECT id, name, last_number, last_hash, anchor_number, anchor_hash, anchor_schedule"
    " FROM screen WHERE name = ?";

/// Made beside its place and moved there whole, so that no other program ever meets half of it.
StoreResult create(const StoreFile& file)
{
    const QString journal = file.path() + QLatin1String("-journal");
    if (QFileInfo(journal).size() > 0) {
        // It would be taken for that of the new file.
        return refusal(StoreProblem::Damaged, file.path(),
                       faultOf(FaultCode::LogAlone, QFileInfo(journal).fileName()));
    }
    if (!file.makeDraft()) {
        return refusalOfSystem(errno, file.path());
    }
    StoreResult result = attempt(file.path(), [&file] {
        const SqliteConnection connection(file.draftPath(), SqliteConnection::Access::Create);
        AsRunSchema::make(connection);
    });
    if (result && !file.fillFromDraft() && file.isVacant()) {
        result = refusal(StoreProblem::Other, file.path(), {FaultCode::NoPlaceForFile, {}});
    }
    file.removeDraft();
    if (!result) {
        result.path = file.path(); // The draft was not asked for.
    }
    return result;
}

/// Stands for records that the database had once, or that a player has handed in elsewhere.
AsRunRecord gapBetween(const AsRunRecord& before, const AsRunRecord& next, qint64 missing)
{
    AsRunRecord gap;
    gap.kind = AsRunKind::Gap;
    gap.outcome = AsRunOutcome::NotRecorded;
    gap.why = QStringLiteral("Records that were handed in are missing: %1.").arg(missing);
    gap.revision = before.revision;
    gap.schedule = before.schedule;
    gap.boot = next.boot;
    gap.begins = before.ends;
    gap.ends = next.begins;
    gap.steadyBegin = before.boot == next.boot ? before.steadyEnd : next.steadyBegin;
    gap.steadyEnd = next.steadyBegin;
    return gap;
}

} // namespace

class AsRunDatabase::Private
{
public:
    Private(const StoreFile& file, StoreOpenMode mode);

    void expectWritable() const;
    qint64 screenId(const QString& screen);
    qint64 makeScreen(const QString& screen);
    AsRunScreen screen(const QString& name);
    qint64 sequence(qint64 screenId, const QByteArray& source);
    void putSequence(qint64 screenId, const QByteArray& source, qint64 sequence);
    void putHead(qint64 screenId, qint64 number, const QByteArray& hash);
    /// Chains the records of a source that come behind those that are known of it.
    void chain(qint64 screenId, AsRunScreen& head, const std::vector<AsRunRecord>& records,
               qint64 known, qint64 firstSequence);
    void add(qint64 screenId, AsRunScreen& head, AsRunRecord record);

    StoreFile m_file;
    StoreOpenMode m_mode;
    SqliteConnection m_connection;
    StoreFile::Identity m_identity;
    AsRunHasher m_hasher;
    std::unique_ptr<AsRunRows> m_rows; ///< Before the connection goes.
};

AsRunDatabase::Private::Private(const StoreFile& file, StoreOpenMode mode)
    : m_file(file)
    , m_mode(mode)
    , m_connection(file.path(), mode == StoreOpenMode::ReadOnly
                                    ? SqliteConnection::Access::ReadOnly
                                    : SqliteConnection::Access::ReadWrite)
    , m_identity(file.identity())
{
    {
        StoreTransaction transaction(m_connection, StoreTransaction::Purpose::Read);
        AsRunSchema::check(m_connection, m_file.path());
        transaction.commit();
    }
    if (mode != StoreOpenMode::ReadOnly) {
        m_connection.run(QStringLiteral("PRAGMA foreign_keys = ON"));
        // A player forgets what it has handed in, so that a commit has to outlast a power cut, the
        // removal of its journal included.
        m_connection.run(QStringLiteral("PRAGMA synchronous = EXTRA"));
    }
    m_rows = std::make_unique<AsRunRows>(m_connection, m_file.path());
}

void AsRunDatabase::Private::expectWritable() const
{
    StoreResult result;
    if (m_mode == StoreOpenMode::ReadOnly) {
        result = refusal(StoreProblem::ReadOnly, m_file.path(), {FaultCode::OpenedForReading, {}});
    } else if (m_file.identity() != m_identity) {
        // The database would go on writing into a file that has no name any more.
        result = refusal(StoreProblem::Other, m_file.path(), {FaultCode::FileReplaced, {}});
    } else {
        result = m_file.judgeWritable();
    }
    if (!result) {
        throw StoreError{result};
    }
}

qint64 AsRunDatabase::Private::screenId(const QString& screen)
{
    StoreStatement find(m_connection, m_file.path(), "SELECT id FROM screen WHERE name = ?");
    find.bindText(1, screen);
    return find.next() ? find.number(0) : 0;
}

qint64 AsRunDatabase::Private::makeScreen(const QString& screen)
{
    if (const qint64 known = screenId(screen); known != 0) {
        return known;
    }
    StoreStatement add(m_connection, m_file.path(),
                       "INSERT INTO screen (name, last_number, last_hash, anchor_number,"
                       " anchor_hash, anchor_schedule) VALUES (?1, 0, ?2, 0, ?2, 0)"
                       " RETURNING id");
    add.bindText(1, screen);
    add.bindBytes(2, asRunFirstHash(screen));
    return add.next() ? add.number(0) : 0;
}

AsRunScreen AsRunDatabase::Private::screen(const QString& name)
{
    StoreStatement row(m_connection, m_file.path(), kScreenColumns);
    row.bindText(1, name);
    AsRunScreen screen;
    screen.name = name;
    screen.anchorHash = asRunFirstHash(name);
    screen.lastHash = screen.anchorHash;
    if (!row.next()) {
        return screen;
    }
    screen.lastNumber = row.number(2);
    screen.lastHash = row.bytes(3);
    screen.anchorNumber = row.number(4);
    screen.anchorHash = row.bytes(5);
    screen.anchorSchedule = m_rows->words().word(row.number(6)).bytes;
    StoreStatement range(m_connection, m_file.path(),
                         "SELECT (SELECT min(number) FROM record WHERE screen_id = ?1),"
                         " (SELECT max(number) FROM record WHERE screen_id = ?1)");
    range.bind(1, row.number(0));
    if (range.next()) {
        screen.firstStored = range.number(0);
        screen.lastStored = range.number(1);
    }
    return screen;
}

qint64 AsRunDatabase::Private::sequence(qint64 screenId, const QByteArray& source)
{
    StoreStatement find(m_connection, m_file.path(),
                        "SELECT sequence FROM source WHERE name = ? AND screen_id = ?");
    find.bindBytes(1, source);
    find.bind(2, screenId);
    return find.next() ? find.number(0) : 0;
}

void AsRunDatabase::Private::putSequence(qint64 screenId, const QByteArray& source, qint64 sequence)
{
    StoreStatement put(m_connection, m_file.path(),
                       "INSERT OR REPLACE INTO source (name, screen_id, sequence)"
                       " VALUES (?, ?, ?)");
    put.bindBytes(1, source);
    put.bind(2, screenId);
    put.bind(3, sequence);
    put.run();
}

void AsRunDatabase::Private::putHead(qint64 screenId, qint64 number, const QByteArray& hash)
{
    StoreStatement put(m_connection, m_file.path(),
                       "UPDATE screen SET last_number = ?, last_hash = ? WHERE id = ?");
    put.bind(1, number);
    put.bindBytes(2, hash);
    put.bind(3, screenId);
    put.run();
}

void AsRunDatabase::Private::add(qint64 screenId, AsRunScreen& head, AsRunRecord record)
{
    record.number = ++head.lastNumber;
    record.hash = m_hasher.hash(head.lastHash, record);
    head.lastHash = record.hash;
    m_rows->add(screenId, record);
}

void AsRunDatabase::Private::chain(qint64 screenId, AsRunScreen& head,
                                   const std::vector<AsRunRecord>& records, qint64 known,
                                   qint64 firstSequence)
{
    const qint64 missing = firstSequence - known - 1;
    if (missing > 0 && !records.empty()) {
        AsRunNumbers last{head.lastNumber, head.lastNumber};
        std::vector<AsRunRecord> before;
        m_rows->read(screenId, last, 1, before);
        if (!before.empty()) {
            add(screenId, head, gapBetween(before.front(), records.front(), missing));
        }
    }
    const qint64 end = firstSequence + static_cast<qint64>(records.size());
    for (qint64 at = std::max(firstSequence, known + 1); at < end; ++at) {
        add(screenId, head, records[static_cast<std::size_t>(at - firstSequence)]);
    }
}

AsRunDatabase::AsRunDatabase() = default;
AsRunDatabase::~AsRunDatabase() = default;

QString AsRunDatabase::pathFor(const QString& store)
{
    // Behind a link, where the store has its log too.
    return StoreFile(store).path() + QLatin1String("-as-run");
}

StoreResult AsRunDatabase::open(const QString& path, StoreOpenMode mode)
{
    close();
    const StoreFile file(path);
    StoreResult result = file.judge(mode, AsRunSchema::kApplicationId, AsRunSchema::kVersion);
    if (result && file.isVacant()) {
        result = create(file);
    }
    if (result) {
        result = attempt(file.path(), [&] { m_d = std::make_unique<Private>(file, mode); });
    }
    if (result && mode != StoreOpenMode::ReadOnly) {
        file.removeLeftDrafts();
    }
    return result;
}

void AsRunDatabase::close()
{
    m_d.reset();
}

QString AsRunDatabase::path() const
{
    return isOpen() ? m_d->m_file.path() : QString();
}

qint64 AsRunDatabase::rowsRead() const
{
    return isOpen() ? m_d->m_rows->rowsRead() : 0;
}

StoreResult AsRunDatabase::append(const QString& screen, const QByteArray& source,
                                  qint64 firstSequence, const std::vector<AsRunRecord>& records,
                                  const std::vector<QByteArray>& contents)
{
    if (!isOpen()) {
        return refusal(StoreProblem::NotOpen, QString());
    }
    return attempt(path(), [&] {
        m_d->expectWritable();
        StoreTransaction transaction(m_d->m_connection, StoreTransaction::Purpose::Write);
        const qint64 screenId = m_d->makeScreen(screen);
        const qint64 known = m_d->sequence(screenId, source);
        for (const QByteArray& content : contents) {
            AsRunContents(m_d->m_connection, path()).put(content);
        }
        AsRunScreen head = m_d->screen(screen);
        m_d->chain(screenId, head, records, known, firstSequence);
        m_d->putHead(screenId, head.lastNumber, head.lastHash);
        const qint64 last = firstSequence + static_cast<qint64>(records.size()) - 1;
        m_d->putSequence(screenId, source, std::max(known, last));
        transaction.commit();
    });
}

StoreResult AsRunDatabase::screens(std::vector<AsRunScreen>& screens)
{
    if (!isOpen()) {
        return refusal(StoreProblem::NotOpen, QString());
    }
    return attempt(path(), [&] {
        StoreTransaction transaction(m_d->m_connection, StoreTransaction::Purpose::Read);
        std::vector<QString> names;
        {
            StoreStatement row(m_d->m_connection, path(), "SELECT name FROM screen ORDER BY name");
            while (row.next()) {
                names.push_back(row.text(0));
            }
        }
        screens.clear();
        for (const QString& name : names) {
            screens.push_back(m_d->screen(name));
        }
        transaction.commit();
    });
}

StoreResult AsRunDatabase::numbersIn(const QString& screen, Instant from, Instant to,
                                     AsRunNumbers& numbers)
{
    if (!isOpen()) {
        return refusal(StoreProblem::NotOpen, QString());
    }
    return attempt(path(), [&] {
        StoreTransaction transaction(m_d->m_connection, StoreTransaction::Purpose::Read);
        numbers = m_d->m_rows->numbersIn(m_d->screenId(screen), from, to);
        transaction.commit();
    });
}

StoreResult AsRunDatabase::readSome(const QString& screen, AsRunNumbers& numbers,
                                    std::vector<AsRunRecord>& records)
{
    if (!isOpen()) {
        return refusal(StoreProblem::NotOpen, QString());
    }
    return attempt(path(), [&] {
        StoreTransaction transaction(m_d->m_connection, StoreTransaction::Purpose::Read);
        m_d->m_rows->read(m_d->screenId(screen), numbers, kMostAtOnce, records);
        transaction.commit();
        numbers.first = records.size() < kMostAtOnce ? numbers.last + 1 : records.back().number + 1;
    });
}

StoreResult AsRunDatabase::visit(const QString& screen, const AsRunNumbers& numbers,
                                 const Visitor& visitor)
{
    std::vector<AsRunRecord> records;
    AsRunNumbers rest = numbers;
    while (!rest.isEmpty()) {
        if (StoreResult result = readSome(screen, rest, records); !result) {
            return result;
        }
        for (const AsRunRecord& record : records) {
            if (!visitor(record)) {
                return {};
            }
        }
    }
    return {};
}

StoreResult AsRunDatabase::removeBefore(const QString& screen, Instant before, qint64& removed)
{
    removed = 0;
    if (!isOpen()) {
        return refusal(StoreProblem::NotOpen, QString());
    }
    return attempt(path(), [&] {
        m_d->expectWritable();
        StoreTransaction transaction(m_d->m_connection, StoreTransaction::Purpose::Write);
        removed = AsRunRetention(m_d->m_connection, path())
                      .removeBefore(m_d->screenId(screen), before, kMostAtOnce);
        transaction.commit();
    });
}

StoreResult AsRunDatabase::readContents(const QByteArray& hash, QByteArray& contents)
{
    if (!isOpen()) {
        return refusal(StoreProblem::NotOpen, QString());
    }
    return attempt(path(), [&] {
        StoreTransaction transaction(m_d->m_connection, StoreTransaction::Purpose::Read);
        contents = AsRunContents(m_d->m_connection, path()).read(hash);
        transaction.commit();
    });
}

} // namespace trel::mediadispatch
