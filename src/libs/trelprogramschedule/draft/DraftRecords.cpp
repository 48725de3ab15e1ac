#include "DraftRecords.h"

#include "json/ScheduleJson.h"

#include <QDataStream>
#include <QIODevice>
#include <QtEndian>

#include <algorithm>
#include <utility>

#include <zlib.h>

namespace trel::mediadispatch {

namespace {

constexpr quint32 kVersion = 1;

/// Before each record: these bytes, its length and its checksum, the numbers with the highest byte
/// first.
const QByteArray kMark = QByteArrayLiteral("\xF7TrD");
constexpr int kLengthPlace = 4;
constexpr int kChecksumPlace = 8;
constexpr int kFrameHead = 12;
/// Records that look like ones and are none are checked up to this many times the size of all.
constexpr qint64 kMostChecks = 4;

enum class Kind : quint8 { Head = 1, Task, Removal, Return, Cancel };

quint32 checksumOf(const char* data, int size)
{
    return static_cast<quint32>(
        ::crc32(0, reinterpret_cast<const Bytef*>(data), static_cast<uInt>(size)));
}

template <typename... Values>
QByteArray record(Kind kind, qint64 at, const Values&... values)
{
    QByteArray content;
    QDataStream out(&content, QIODevice::WriteOnly);
    out.setVersion(QDataStream::Qt_5_15);
    out << static_cast<quint8>(kind) << at;
    ((out << values), ...);
    QByteArray head(kFrameHead, Qt::Uninitialized);
    std::copy(kMark.begin(), kMark.end(), head.begin());
    qToBigEndian(static_cast<quint32>(content.size()), head.data() + kLengthPlace);
    qToBigEndian(checksumOf(content.constData(), content.size()), head.data() + kChecksumPlace);
    return head + content;
}

/// Walks through the records of a draft, over whatever is none.
class Frames
{
public:
    explicit Frames(const QByteArray& bytes)
        : m_bytes(bytes)
        , m_checksLeft(kMostChecks * bytes.size())
    {}

    /// The content of the next record, valid as long as the bytes; none behind the last one.
    std::optional<QByteArray> next();
    /// Something between or before records is none.
    bool isBroken() const { return m_isBroken; }
    /// What follows the last record is the beginning of one, or zeros, as a disk leaves them.
    bool isCut() const;
    /// Nothing follows the last record.
    bool isAtEnd() const { return m_end == m_bytes.size(); }

private:
    std::optional<QByteArray> at(int place);

    const QByteArray& m_bytes;
    int m_place = 0;
    int m_end = 0; ///< Of the last record.
    bool m_isBroken = false;
    qint64 m_checksLeft;
};

std::optional<QByteArray> Frames::at(int place)
{
    const int room = m_bytes.size() - place - kFrameHead;
    if (room < 0 || !std::equal(kMark.begin(), kMark.end(), m_bytes.begin() + place)) {
        return std::nullopt;
    }
    const char* const head = m_bytes.constData() + place;
    const auto length = qFromBigEndian<quint32>(head + kLengthPlace);
    if (length > static_cast<quint32>(room) || m_checksLeft < length) {
        return std::nullopt;
    }
    m_checksLeft -= length;
    const auto size = static_cast<int>(length);
    if (checksumOf(head + kFrameHead, size) != qFromBigEndian<quint32>(head + kChecksumPlace)) {
        return std::nullopt;
    }
    return QByteArray::fromRawData(head + kFrameHead, size);
}

std::optional<QByteArray> Frames::next()
{
    for (int place = m_place; place >= 0; place = m_bytes.indexOf(kMark, place + 1)) {
        if (std::optional<QByteArray> content = at(place)) {
            m_isBroken = m_isBroken || place != m_end;
            m_end = place + kFrameHead + content->size();
            m_place = m_end;
            return content;
        }
    }
    m_place = m_bytes.size();
    return std::nullopt;
}

bool Frames::isCut() const
{
    const int left = m_bytes.size() - m_end;
    const auto begin = m_bytes.begin() + m_end;
    if (std::all_of(begin, m_bytes.end(), [](char byte) { return byte == 0; })) {
        return true;
    }
    const int marked = std::min(left, kMark.size());
    if (!std::equal(begin, begin + marked, kMark.begin())) {
        return false;
    }
    return left < kFrameHead ||
           qFromBigEndian<quint32>(m_bytes.constData() + m_end + kLengthPlace) >
               static_cast<quint32>(left - kFrameHead);
}

/// Puts together what the records say.
class Reading
{
public:
    void take(const QByteArray& content);
    Draft finished(const Frames& frames);

private:
    bool takeHead(QDataStream& in);
    bool takeTask(const QByteArray& json);
    bool takeKind(Kind kind, QDataStream& in);

    Draft m_draft;
    bool m_hasHead = false;
    bool m_hasRecord = false;
    bool m_isTooNew = false;
    bool m_isDamaged = false;
};

void Reading::take(const QByteArray& content)
{
    QDataStream in(content);
    in.setVersion(QDataStream::Qt_5_15);
    quint8 kind = 0;
    qint64 at = 0;
    in >> kind >> at;
    if (m_isTooNew) {
        return;
    }
    if (in.status() != QDataStream::Ok || !takeKind(static_cast<Kind>(kind), in)) {
        m_isDamaged = true;
        return;
    }
    m_hasRecord = true;
    m_draft.edited = std::max(m_draft.edited, at);
}

bool Reading::takeKind(Kind kind, QDataStream& in)
{
    const auto isRead = [&in] { return in.status() == QDataStream::Ok && in.atEnd(); };
    qint32 id = 0;
    QByteArray json;
    switch (kind) {
    case Kind::Head:
        return takeHead(in);
    case Kind::Task:
        in >> json;
        return isRead() && takeTask(json);
    case Kind::Removal:
        in >> id;
        if (isRead()) {
            m_draft.tasks.insert_or_assign(id, std::nullopt);
        }
        return isRead();
    case Kind::Return:
        in >> id;
        if (isRead()) {
            m_draft.tasks.erase(id);
        }
        return isRead();
    case Kind::Cancel:
        if (isRead()) {
            m_draft.canceled = std::exchange(m_draft.tasks, {});
        }
        return isRead();
    }
    return false;
}

bool Reading::takeHead(QDataStream& in)
{
    quint32 version = 0;
    in >> version;
    // What a later version adds to its head is not known here.
    if (in.status() == QDataStream::Ok && version > kVersion && !m_hasRecord) {
        m_isTooNew = true;
        return true;
    }
    DraftHead head;
    in >> head.store >> head.saved >> head.desk;
    if (m_hasHead || version != kVersion || in.status() != QDataStream::Ok || !in.atEnd()) {
        return false;
    }
    m_hasHead = true;
    m_draft.store = head.store;
    m_draft.saved = head.saved;
    m_draft.desk = head.desk;
    return true;
}

bool Reading::takeTask(const QByteArray& json)
{
    ScheduleFromJson schedule = scheduleFromJson(json);
    if (schedule.fault || schedule.tasks.size() != 1) {
        return false;
    }
    auto& [id, task] = *schedule.tasks.begin();
    m_draft.tasks.insert_or_assign(id, std::move(task));
    return true;
}

Draft Reading::finished(const Frames& frames)
{
    if (m_isTooNew) {
        m_draft = {};
        m_draft.state = DraftState::TooNew;
    } else if (!m_hasRecord && !m_isDamaged) {
        m_draft.state = frames.isCut() ? DraftState::HalfWritten : DraftState::Foreign;
    } else if (m_isDamaged || !m_hasHead || frames.isBroken()) {
        m_draft.state = DraftState::Damaged;
    } else if (frames.isAtEnd()) {
        m_draft.state = DraftState::Whole;
    } else {
        m_draft.state = frames.isCut() ? DraftState::HalfWritten : DraftState::Damaged;
    }
    return std::move(m_draft);
}

} // namespace

QByteArray draftHeadRecord(const DraftHead& head, qint64 at)
{
    return record(Kind::Head, at, kVersion, head.store, head.saved, head.desk);
}

QByteArray draftTaskRecord(const PlayTask& task, qint64 at)
{
    return record(Kind::Task, at, scheduleToJson({{task.id, task}}));
}

QByteArray draftRemovalRecord(int taskId, qint64 at)
{
    return record(Kind::Removal, at, static_cast<qint32>(taskId));
}

QByteArray draftReturnRecord(int taskId, qint64 at)
{
    return record(Kind::Return, at, static_cast<qint32>(taskId));
}

QByteArray draftCancelRecord(qint64 at)
{
    return record(Kind::Cancel, at);
}

Draft readDraft(const QByteArray& bytes)
{
    if (bytes.isEmpty()) {
        return {};
    }
    Frames frames(bytes);
    Reading reading;
    while (const std::optional<QByteArray> content = frames.next()) {
        reading.take(*content);
    }
    return reading.finished(frames);
}

} // namespace trel::mediadispatch
