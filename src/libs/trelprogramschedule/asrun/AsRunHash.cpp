#include "AsRunHash.h"

#include <QtEndian>

#include <initializer_list>

namespace trel::mediadispatch {

namespace {

constexpr char kFirst[] = "trel as-run 1\n";

void put(QByteArray& bytes, qint64 number)
{
    char out[sizeof number];
    qToBigEndian(number, out);
    bytes.append(out, sizeof number);
}

void put(QByteArray& bytes, const QByteArray& text)
{
    put(bytes, qint64(text.size()));
    bytes.append(text);
}

} // namespace

void writeAsRunBytes(const AsRunRecord& record, QByteArray& bytes)
{
    bytes.resize(0);
    for (const qint64 number : {record.number,
                                qint64(record.kind),
                                record.revision,
                                qint64(record.picture),
                                qint64(record.taskId),
                                qint64(record.planId),
                                qint64(record.planRow),
                                qint64(record.entry),
                                qint64(record.play),
                                record.run,
                                record.insertion,
                                qint64(record.progIndex),
                                record.plannedBegin,
                                record.plannedEnd,
                                record.begins,
                                record.ends,
                                record.steadyBegin,
                                record.steadyEnd,
                                qint64(record.shown),
                                qint64(record.outcome),
                                record.late}) {
        put(bytes, number);
    }
    put(bytes, record.schedule);
    put(bytes, record.boot);
    put(bytes, record.program.toUtf8());
    put(bytes, record.why.toUtf8());
}

QByteArray asRunFirstHash(const QString& screen)
{
    return QCryptographicHash::hash(QByteArray(kFirst) + screen.toUtf8(),
                                    QCryptographicHash::Sha256);
}

QByteArray AsRunHasher::hash(const QByteArray& before, const AsRunRecord& record)
{
    writeAsRunBytes(record, m_bytes);
    m_hash.reset();
    m_hash.addData(before);
    m_hash.addData(m_bytes);
    return m_hash.result();
}

} // namespace trel::mediadispatch
