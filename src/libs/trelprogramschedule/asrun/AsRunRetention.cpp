#include "AsRunRetention.h"

#include "store/StoreStatement.h"

namespace trel::mediadispatch {

qint64 AsRunRetention::removeBefore(qint64 screenId, Instant before, qint64 most) const
{
    const qint64 last = lastToRemove(screenId, before, most);
    if (last == 0) {
        return 0;
    }
    moveAnchor(screenId, last);
    StoreStatement remove(m_connection, m_path,
                          "DELETE FROM record WHERE screen_id = ? AND number <= ?"
                          " RETURNING number");
    remove.bind(1, screenId);
    remove.bind(2, last);
    qint64 removed = 0;
    while (remove.next()) {
        ++removed;
    }
    removeSchedules();
    return removed;
}

qint64 AsRunRetention::lastToRemove(qint64 screenId, Instant before, qint64 most) const
{
    // In the order of their numbers, so that what a clock that was wrong has written goes neither
    // too early nor never.
    StoreStatement row(m_connection, m_path,
                       "SELECT number, ends FROM record WHERE screen_id = ?"
                       " ORDER BY number LIMIT ?");
    row.bind(1, screenId);
    row.bind(2, most);
    qint64 last = 0;
    while (row.next() && row.number(1) < before) {
        last = row.number(0);
    }
    return last;
}

void AsRunRetention::moveAnchor(qint64 screenId, qint64 number) const
{
    StoreStatement move(m_connection, m_path,
                        "UPDATE screen SET (anchor_number, anchor_hash) ="
                        " (SELECT number, hash FROM record WHERE screen_id = ?1 AND number = ?2),"
                        // The schedule taken last may be a record that stays, while a picture that
                        // was on before it goes.
                        " anchor_schedule = coalesce((SELECT schedule FROM record"
                        "  WHERE screen_id = ?1 AND number <= ?2 AND schedule <> 0"
                        "  ORDER BY number DESC LIMIT 1), anchor_schedule)"
                        " WHERE id = ?1");
    move.bind(1, screenId);
    move.bind(2, number);
    move.run();
}

void AsRunRetention::removeSchedules() const
{
    StoreStatement(m_connection, m_path,
                   "DELETE FROM schedule WHERE NOT EXISTS"
                   " (SELECT 1 FROM word JOIN record ON record.schedule = word.id AND"
                   "  record.kind = 3 WHERE word.bytes = schedule.hash)"
                   " AND NOT EXISTS (SELECT 1 FROM word JOIN screen ON"
                   "  screen.anchor_schedule = word.id WHERE word.bytes = schedule.hash)"
                   // A picture is written when it is over, behind a schedule that was taken
                   // meanwhile.
                   " AND hash NOT IN (SELECT word.bytes FROM screen JOIN record ON"
                   "  record.screen_id = screen.id AND record.number = screen.anchor_number + 1"
                   "  JOIN word ON word.id = record.schedule)")
        .run();
}

} // namespace trel::mediadispatch
