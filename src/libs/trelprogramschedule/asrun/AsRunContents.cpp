#include "AsRunContents.h"

#include "AsRunSchedule.h"
#include "ScheduleLimits.h"
#include "store/StoreStatement.h"

#include <zlib.h>

namespace trel::mediadispatch {

namespace {

constexpr int kPartSize = 512 * 1024;
/// Tasks and insertions have the room of two files of a schedule.
constexpr qint64 kLargestContents = 2 * kLargestJson;
/// In front of what qCompress has compressed.
constexpr int kLengthSize = 4;

/// Not by qUncompress, which goes on beyond the size that is told, for as long as there is memory.
QByteArray uncompressed(const QByteArray& compressed, qint64 size)
{
    QByteArray contents(static_cast<int>(size), Qt::Uninitialized);
    auto length = static_cast<uLongf>(size);
    const int code =
        compressed.size() <= kLengthSize
            ? Z_DATA_ERROR
            : ::uncompress(reinterpret_cast<Bytef*>(contents.data()), &length,
                           reinterpret_cast<const Bytef*>(compressed.constData()) + kLengthSize,
                           static_cast<uLong>(compressed.size() - kLengthSize));
    contents.resize(code == Z_OK ? static_cast<int>(length) : 0);
    return contents;
}

} // namespace

void AsRunContents::put(const QByteArray& contents) const
{
    StoreStatement add(m_connection, m_path,
                       "INSERT INTO schedule (hash, size) VALUES (?, ?)"
                       " ON CONFLICT DO NOTHING RETURNING id");
    add.bindBytes(1, asRunScheduleHash(contents));
    add.bind(2, contents.size());
    if (!add.next()) {
        return;
    }
    const qint64 id = add.number(0);
    add.reset();
    const QByteArray compressed = qCompress(contents);
    StoreStatement addPart(m_connection, m_path, "INSERT INTO schedule_part VALUES (?, ?, ?)");
    addPart.bind(1, id);
    for (int part = 0; part * kPartSize < compressed.size(); ++part) {
        addPart.bind(2, part);
        addPart.bindBytes(3, compressed.mid(part * kPartSize, kPartSize));
        addPart.run();
    }
}

QByteArray AsRunContents::read(const QByteArray& hash) const
{
    StoreStatement find(m_connection, m_path, "SELECT id, size FROM schedule WHERE hash = ?");
    find.bindBytes(1, hash);
    if (!find.next()) {
        return {};
    }
    const qint64 size = find.number(1);
    StoreStatement part(m_connection, m_path,
                        "SELECT bytes FROM schedule_part WHERE schedule_id = ? ORDER BY part");
    part.bind(1, find.number(0));
    QByteArray compressed;
    while (size >= 0 && size <= kLargestContents && part.next()) {
        compressed.append(part.view(0));
        if (compressed.size() > size + kPartSize) {
            return {};
        }
    }
    const QByteArray contents = uncompressed(compressed, size);
    return asRunScheduleHash(contents) == hash ? contents : QByteArray();
}

} // namespace trel::mediadispatch
