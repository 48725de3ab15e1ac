#include "AsRunKeeper.h"

#include "common/DisplayText.h"
#include "trelprogramschedule/faults/FaultWords.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFileInfo>

#include <algorithm>
#include <chrono>
#include <utility>

using namespace std::chrono_literals;
using namespace trel::mediadispatch;

namespace trel::player {

namespace {

constexpr int kMostRounds = 10;
/// So many are handed in with one commit, and for so long without looking at the mail.
constexpr int kBatch = 500;
constexpr qint64 kHandingIn = 500;

QString placeText(const QString& path)
{
    return hosts::printable(path);
}

QString reasonText(const StoreResult& reason)
{
    return hosts::printable(englishText(reason));
}

} // namespace

AsRunKeeper::AsRunKeeper(std::shared_ptr<AsRunMail> mail, AsRunPlace place, QByteArray boot,
                         std::chrono::milliseconds round)
    : m_mail(std::move(mail))
    , m_place(std::move(place))
    , m_pause(round)
    , m_ledger(std::move(boot))
    , m_round(this)
{
    m_round.setSingleShot(true);
    connect(&m_round, &QTimer::timeout, this, &AsRunKeeper::work);
}

void AsRunKeeper::start(const AsRunRecord& first)
{
    openSpool();
    m_ledger.begin(first, m_spool.onScreen(), m_spool.last());
    work();
}

void AsRunKeeper::workSoon()
{
    if (!m_round.isActive() || m_round.remainingTimeAsDuration() > m_pause) {
        m_round.start(m_pause);
    }
}

void AsRunKeeper::work()
{
    m_ledger.take(m_mail->take(), hasRoom());
    write();
    const bool isDone = handIn();
    if (m_hasMore) {
        m_round.start(0ms);
    } else if (!isDone) {
        m_round.start(m_pause);
    }
}

void AsRunKeeper::stop()
{
    m_round.stop();
    m_ledger.take(m_mail->take(), hasRoom());
    write();
    if (!m_isWaiting) {
        handIn();
    }
    m_database.close();
    m_spool.close();
}

// The spool.

void AsRunKeeper::openSpool()
{
    QDir().mkpath(QFileInfo(m_place.spool).path());
    StoreResult result = m_spool.open(m_place.spool);
    if (!result && AsRunSpool::isSpoiled(result)) {
        setAside(result);
        result = m_spool.open(m_place.spool);
    }
    if (!result) {
        emit told(QStringLiteral("the records of what is on the screen are kept in memory alone "
                                 "until they are handed in: %1")
                      .arg(reasonText(result)));
        m_spool.openInMemory();
    }
}

void AsRunKeeper::setAside(const StoreResult& reason)
{
    m_spool.close();
    const QString aside = AsRunSpool::setAside(m_place.spool);
    emit told(
        aside.isEmpty()
            ? QStringLiteral("records that were kept cannot be read: %1").arg(reasonText(reason))
            : QStringLiteral("records that were kept cannot be read, and were put aside as "
                             "%1: %2")
                  .arg(placeText(aside), reasonText(reason)));
}

/// What it has cannot be read.
void AsRunKeeper::replaceSpool(const StoreResult& reason)
{
    setAside(reason);
    openSpool();
    m_ledger.startOver();
    write();
}

bool AsRunKeeper::hasRoom() const
{
    return m_ledger.records().size() < kMostInMemory && m_spool.size() < kLargestSpool;
}

void AsRunKeeper::write()
{
    const StoreResult result =
        m_spool.write(m_ledger.records(), m_ledger.contents(), m_ledger.onScreen());
    if (result) {
        m_ledger.clear();
        if (std::exchange(m_isSpoolBad, false)) {
            emit told(QStringLiteral("the records of what is on the screen are written again"));
        }
    } else if (!std::exchange(m_isSpoolBad, true)) {
        emit told(QStringLiteral("the records of what is on the screen cannot be written, and "
                                 "wait in memory: %1")
                      .arg(reasonText(result)));
    }
    const bool isFull = !hasRoom();
    if (isFull && !m_isFull) {
        emit told(QStringLiteral("too many records wait to be handed in: what is on the screen is "
                                 "not recorded until there is room again"));
    }
    m_isFull = isFull;
}

// The database.

bool AsRunKeeper::openDatabase()
{
    if (m_database.isOpen()) {
        return true;
    }
    const QString path = AsRunDatabase::pathFor(m_place.store);
    // Where a disk is not mounted, another one would take it in.
    StoreResult result{StoreProblem::FileMissing, m_place.store, {}};
    if (QFileInfo::exists(m_place.store)) {
        result = m_database.open(path, StoreOpenMode::CreateIfMissing);
    }
    if (!result) {
        tellWaiting(result);
    }
    return bool(result);
}

/// Whether nothing waits any more.
bool AsRunKeeper::handIn()
{
    m_hasMore = false;
    if (!m_pauseEnds.hasExpired()) {
        return false;
    }
    QElapsedTimer timer;
    timer.start();
    while (!m_spool.isEmpty()) {
        if (timer.elapsed() > kHandingIn) {
            m_hasMore = true;
            return false;
        }
        AsRunBatch batch;
        const StoreResult result = m_spool.read(kBatch, batch);
        if (!result) {
            replaceSpool(result);
            return false;
        }
        if (!openDatabase() || !handInBatch(std::move(batch))) {
            // One that is locked is waited for, and what comes meanwhile has to be written.
            m_refusals = std::min(m_refusals + 1, kMostRounds);
            m_pauseEnds.setRemainingTime(m_pause * m_refusals);
            return false;
        }
        m_refusals = 0;
    }
    return true;
}

bool AsRunKeeper::handInBatch(AsRunBatch batch)
{
    const qint64 last = batch.firstSequence + static_cast<qint64>(batch.records.size()) - 1;
    StoreResult result = resolveMark(batch);
    if (result) {
        result = m_database.append(m_place.screen, m_spool.source(), batch.firstSequence,
                                   batch.records, batch.contents);
    }
    if (!result) {
        m_database.close();
        tellWaiting(result);
        return false;
    }
    if (std::exchange(m_isWaiting, false)) {
        emit told(QStringLiteral("the records of what was on the screen are handed in again"));
    }
    return bool(m_spool.remove(last));
}

/// The spool is new, so that it does not know what was on before; the database may.
StoreResult AsRunKeeper::resolveMark(AsRunBatch& batch)
{
    if (batch.firstSequence != 1 || !AsRunLedger::isMark(batch.records.front())) {
        return {};
    }
    std::vector<AsRunScreen> screens;
    StoreResult result = m_database.screens(screens);
    const auto own = std::find_if(screens.begin(), screens.end(), [this](const AsRunScreen& one) {
        return one.name == m_place.screen && one.lastStored > 0;
    });
    if (result && own != screens.end()) {
        result = m_database.visit(own->name, {own->lastStored, own->lastStored},
                                  [&batch](const AsRunRecord& record) {
                                      AsRunLedger::bridge(batch.records.front(), record);
                                      return true;
                                  });
    } else if (result) {
        batch.records.erase(batch.records.begin());
        ++batch.firstSequence;
    }
    return result;
}

void AsRunKeeper::tellWaiting(const StoreResult& reason)
{
    // A store that is gone is told of by those who read it.
    if (!std::exchange(m_isWaiting, true) && reason.problem != StoreProblem::FileMissing) {
        emit told(QStringLiteral("the records of what was on the screen wait to be handed in: %1")
                      .arg(reasonText(reason)));
    }
}

} // namespace trel::player
