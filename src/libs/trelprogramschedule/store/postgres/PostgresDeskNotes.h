#pragma once

#include "desks/DeskNoteBoard.h"
#include "store/StorePlace.h"

#include <QString>

#include <functional>
#include <memory>

namespace trel::mediadispatch {

class PostgresConnection;

/// The notes of desks on a schedule on a server, in a table of it. One that its program has not
/// renewed for a minute, by the clock of the server, was left behind and is not told; whoever
/// writes takes away those of the day before.
///
/// The server is asked on a connection of its own, which is given up after five seconds without an
/// answer.
class PostgresDeskNotes final : public DeskNoteBoard
{
public:
    /// For a place on a server, without a flaw. Connects with the first call.
    PostgresDeskNotes(StorePlace place, const QString& desk);
    ~PostgresDeskNotes() override;
    Q_DISABLE_COPY(PostgresDeskNotes)

    bool write(const DeskNote& note) override;
    void withdraw() override;
    bool renew() override;
    std::vector<DeskNote> others() const override;

private:
    /// Within a transaction; false where the server refuses, or cannot be reached.
    bool change(const std::function<void(const PostgresConnection&)>& action) const;

    StorePlace m_place;
    QString m_desk;
    QString m_program; ///< Which note is that of this program.
    mutable std::unique_ptr<PostgresConnection> m_connection;
    bool m_isWritten = false;
};

} // namespace trel::mediadispatch
