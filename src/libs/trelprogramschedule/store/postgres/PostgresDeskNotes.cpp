#include "PostgresDeskNotes.h"

#include "PostgresConnection.h"
#include "desks/DeskNoteForm.h"
#include "store/StoreAttempt.h"

#include <QStringList>
#include <QUuid>
#include <QVariant>

#include <algorithm>
#include <optional>
#include <utility>

namespace trel::mediadispatch {

namespace {

constexpr std::chrono::seconds kPatience{5};
/// More programs than edit one schedule, so that a table full of other things does no harm.
constexpr int kMostNotes = 1000;

QString bytesText(const QByteArray& bytes)
{
    return QStringLiteral("'\\x%1'::bytea").arg(QString::fromLatin1(bytes.toHex()));
}

QByteArray tasksText(const std::vector<int>& ids)
{
    QStringList words;
    for (std::size_t i = 0; i < std::min(ids.size(), kMostNoteTasks); ++i) {
        words.append(QString::number(ids[i]));
    }
    return words.join(QLatin1Char(',')).toLatin1();
}

std::vector<int> tasksOf(const QByteArray& text)
{
    std::vector<int> ids;
    const QList<QByteArray> words = text.split(',');
    for (const QByteArray& word : words) {
        bool isNumber = false;
        const int id = word.toInt(&isNumber);
        if (isNumber && ids.size() < kMostNoteTasks) {
            ids.push_back(id);
        }
    }
    return ids;
}

} // namespace

PostgresDeskNotes::PostgresDeskNotes(StorePlace place, const QString& desk)
    : m_place(std::move(place))
    , m_desk(desk.left(kLongestDesk))
    , m_program(QUuid::createUuid().toString(QUuid::WithoutBraces))
{}

PostgresDeskNotes::~PostgresDeskNotes()
{
    withdraw();
}

bool PostgresDeskNotes::change(const std::function<void(const PostgresConnection&)>& action) const
{
    return bool(attempt(m_place.text(), [&] {
        if (!m_connection) {
            m_connection = std::make_unique<PostgresConnection>(
                m_place, PostgresConnection::Access::Beside, kPatience);
        }
        StoreTransaction transaction(*m_connection, StoreTransaction::Purpose::Write);
        action(*m_connection);
        transaction.commit();
    }));
}

bool PostgresDeskNotes::write(const DeskNote& note)
{
    m_isWritten = change([&](const PostgresConnection& connection) {
        connection.run(
            QStringLiteral("DELETE FROM desk_note WHERE heard < now() - interval '1 day'"));
        connection.run(QStringLiteral("INSERT INTO desk_note (program, desk, since, changed, tasks)"
                                      " VALUES ('%1', %2, %3, %4, %5)"
                                      " ON CONFLICT (program) DO UPDATE SET since = EXCLUDED.since,"
                                      " changed = EXCLUDED.changed, tasks = EXCLUDED.tasks,"
                                      " heard = now()")
                           .arg(m_program, bytesText(m_desk.toUtf8()), QString::number(note.since),
                                QString::number(note.changed), bytesText(tasksText(note.taskIds))));
    });
    return m_isWritten;
}

void PostgresDeskNotes::withdraw()
{
    if (std::exchange(m_isWritten, false)) {
        change([this](const PostgresConnection& connection) {
            connection.run(
                QStringLiteral("DELETE FROM desk_note WHERE program = '%1'").arg(m_program));
        });
    }
}

bool PostgresDeskNotes::renew()
{
    if (!m_isWritten) {
        return false;
    }
    bool isThere = false;
    change([&](const PostgresConnection& connection) {
        isThere = connection
                      .query(QStringLiteral("UPDATE desk_note SET heard = now()"
                                            " WHERE program = '%1'")
                                 .arg(m_program))
                      .numRowsAffected() == 1;
    });
    return isThere;
}

std::vector<DeskNote> PostgresDeskNotes::others() const
{
    std::vector<DeskNote> notes;
    change([&](const PostgresConnection& connection) {
        QSqlQuery row = connection.query(
            QStringLiteral("SELECT desk, since, changed, tasks FROM desk_note"
                           " WHERE program <> '%1' AND heard > now() - interval '1 minute'"
                           " ORDER BY desk, program LIMIT %2")
                .arg(m_program)
                .arg(kMostNotes));
        while (connection.next(row)) {
            DeskNote note;
            note.desk = QString::fromUtf8(row.value(0).toByteArray());
            note.since = row.value(1).toLongLong();
            note.changed = row.value(2).toLongLong();
            note.taskIds = tasksOf(row.value(3).toByteArray());
            if (isDeskName(note.desk)) {
                notes.push_back(std::move(note));
            }
        }
    });
    return notes;
}

} // namespace trel::mediadispatch
