#pragma once

#include "asrun/AsRunLedger.h"
#include "asrun/AsRunMail.h"
#include "trelprogramschedule/asrun/AsRunDatabase.h"
#include "trelprogramschedule/asrun/AsRunSpool.h"

#include <QDeadlineTimer>
#include <QObject>
#include <QString>
#include <QTimer>

#include <chrono>
#include <memory>

namespace trel::player {

/// Where the records of a screen go.
struct AsRunPlace
{
    QString store;  ///< Absolute path; the as-run database is beside it.
    QString screen; ///< The name of the screen.
    QString spool;  ///< Absolute path of the file that keeps them until they are there.
};

/// Writes what was on screen into the spool, and hands it in from there to the as-run database
/// beside the store, once and in order, whenever that can be had. A power cut loses what came in
/// the second before it.
///
/// Where the spool cannot be had, memory takes its place; one that is damaged is put aside. Lives
/// in a thread of its own, where all but the construction belongs.
class AsRunKeeper : public QObject
{
    Q_OBJECT

public:
    /// The room that a spool may take, in bytes, and how many records memory keeps while it cannot
    /// be written. What comes beyond is left out; a gap tells of it.
    static constexpr qint64 kLargestSpool = 256LL * 1024 * 1024;
    static constexpr std::size_t kMostInMemory = 10'000;

    /// Writes and hands in once in a round at most; where that is refused, it takes ten rounds in
    /// the end until it is tried again.
    AsRunKeeper(std::shared_ptr<AsRunMail> mail, AsRunPlace place, QByteArray boot,
                std::chrono::milliseconds round = std::chrono::seconds(1));

    /// To be called once, with what is on screen at the beginning.
    void start(const trel::mediadispatch::AsRunRecord& first);
    /// Takes what has been posted, within a round.
    void workSoon();
    /// Takes what has been posted, writes it, and hands it in where it may be tried again.
    void work();
    /// The same for the last time; nothing of the files is held any more.
    void stop();

signals:
    /// Something for the log.
    void told(const QString& line);

private:
    void openSpool();
    void replaceSpool(const mediadispatch::StoreResult& reason);
    void setAside(const mediadispatch::StoreResult& reason);
    bool hasRoom() const;
    void write();
    bool handIn();
    bool openDatabase();
    bool handInBatch(mediadispatch::AsRunBatch batch);
    mediadispatch::StoreResult resolveMark(mediadispatch::AsRunBatch& batch);
    void tellWaiting(const mediadispatch::StoreResult& reason);

    const std::shared_ptr<AsRunMail> m_mail;
    const AsRunPlace m_place;
    const std::chrono::milliseconds m_pause;
    AsRunLedger m_ledger;
    mediadispatch::AsRunSpool m_spool;
    mediadispatch::AsRunDatabase m_database;
    QTimer m_round;
    int m_refusals = 0;         ///< Since something was handed in.
    QDeadlineTimer m_pauseEnds; ///< Of the pause since the last of them.
    bool m_isSpoolBad = false;  ///< It cannot be written, and the log says so.
    bool m_isFull = false;      ///< The same of its room.
    bool m_isWaiting = false;   ///< The database cannot be had, and the log says so.
    bool m_hasMore = false;     ///< More waits than was handed in at once.
};

} // namespace trel::player
