#include "StoreLog.h"

#include <QtEndian>

#include <algorithm>
#include <array>
#include <optional>

namespace trel::mediadispatch {

namespace {

// The form of the log and of a page, as SQLite documents them.
constexpr int kHeaderSize = 32;
constexpr int kHeaderChecksum = 24;
constexpr int kPageSizePlace = 8;
constexpr int kSaltPlace = 16;
constexpr int kSaltSize = 8;
constexpr quint32 kMagic = 0x377f0682; ///< One more where the checksums are of big-endian words.
constexpr int kFrameHeaderSize = 24;
constexpr int kFrameCommitPlace = 4;
constexpr int kFrameSaltPlace = 8;
constexpr int kFrameChecksum = 16;
constexpr int kSmallestPage = 512;
constexpr int kLargestPage = 65536;
constexpr quint8 kLeafOfTable = 0x0d;
constexpr int kCellsPlace = 8;

quint32 bigEndian(const QByteArray& bytes, int place)
{
    return qFromBigEndian<quint32>(bytes.constData() + place);
}

/// Reads the numbers of a row one after the other. What does not fit ends in zeros, not beyond the
/// page.
class RowReader
{
public:
    RowReader(const QByteArray& page, int place)
        : m_page(page)
        , m_place(place)
    {}

    int place() const { return m_place; }
    void moveTo(int place) { m_place = place; }

    qint64 varint()
    {
        constexpr int most = 9;
        quint64 number = 0;
        for (int count = 1; count <= most; ++count) {
            const quint8 byte = next();
            if (count == most) {
                return qint64(number << 8 | byte);
            }
            number = number << 7 | (byte & 0x7F);
            if ((byte & 0x80) == 0) {
                break;
            }
        }
        return qint64(number);
    }

    /// A whole number of the kind that its row tells.
    qint64 number(qint64 kind)
    {
        constexpr std::array<int, 7> sizes = {0, 1, 2, 3, 4, 6, 8};
        constexpr qint64 one = 9; // The numbers zero and one take no room.
        if (kind < 0 || kind >= qint64(sizes.size())) {
            return kind == one ? 1 : 0;
        }
        const int size = sizes[static_cast<std::size_t>(kind)];
        quint64 read = 0;
        for (int count = 0; count < size; ++count) {
            const quint8 byte = next();
            const bool isNegative = count == 0 && (byte & 0x80) != 0;
            read = (isNegative ? ~quint64(0) : read) << 8 | byte;
        }
        return qint64(read);
    }

private:
    quint8 next()
    {
        const int place = m_place++;
        return place >= 0 && place < m_page.size() ? static_cast<quint8>(m_page.at(place)) : 0;
    }

    const QByteArray& m_page;
    int m_place;
};

/// The revisions in the one row of their table.
std::optional<StoreRevision> revisionIn(const QByteArray& page)
{
    if (static_cast<quint8>(page.at(0)) != kLeafOfTable) {
        return std::nullopt;
    }
    RowReader row(page, qFromBigEndian<quint16>(page.constData() + kCellsPlace));
    row.varint(); // The size of the row.
    row.varint(); // Its number.
    const int begin = row.place();
    const qint64 headSize = row.varint();
    row.varint(); // The first column is the number of the row.
    const qint64 scheduleKind = row.varint();
    const qint64 catalogueKind = row.varint();
    const qint64 nextProgIndexKind = row.varint();
    // A row that was written before there was one of these columns ends in front of it.
    const qint64 effectKind = row.place() < begin + headSize ? row.varint() : 0;
    const qint64 namesKind = row.place() < begin + headSize ? row.varint() : 0;
    row.moveTo(begin + static_cast<int>(std::min<qint64>(headSize, page.size())));
    StoreRevision revision;
    revision.schedule = row.number(scheduleKind);
    revision.catalogue = row.number(catalogueKind);
    row.number(nextProgIndexKind);
    revision.effect = row.number(effectKind);
    revision.names = row.number(namesKind);
    return revision;
}

bool isSame(const StoreRevision& a, const StoreRevision& b)
{
    return a.schedule == b.schedule && a.catalogue == b.catalogue && a.effect == b.effect &&
           a.names == b.names;
}

/// Whether one change leads from one to the other: it counts one of the numbers, or both that a
/// schedule with its programs counts.
bool isNext(const StoreRevision& former, const StoreRevision& later)
{
    const qint64 schedule = later.schedule - former.schedule;
    const qint64 catalogue = later.catalogue - former.catalogue;
    const qint64 effect = later.effect - former.effect;
    const qint64 names = later.names - former.names;
    const bool isOne = schedule >= 0 && catalogue >= 0 && effect >= 0 && names >= 0 &&
                       schedule + catalogue + effect + names == 1;
    return isOne || (schedule == 1 && catalogue == 1 && effect == 0 && names == 0);
}

} // namespace

StoreLog::StoreLog(const QString& path)
    : m_file(path)
{}

bool StoreLog::follows(const StoreRevision& revision, quint32 page)
{
    const std::vector<StoreRevision> committed = revisions(page);
    return committed.empty() || isNext(revision, committed.front()) ||
           std::any_of(committed.begin(), committed.end(),
                       [&revision](const StoreRevision& one) { return isSame(one, revision); });
}

/// Goes on as far as the database would: to the last commit that is whole.
std::vector<StoreRevision> StoreLog::revisions(quint32 page)
{
    std::vector<StoreRevision> committed;
    if (!readHeader()) {
        return committed;
    }
    std::optional<StoreRevision> last;
    for (;;) {
        const QByteArray head = m_file.read(kFrameHeaderSize);
        const QByteArray content = m_file.read(m_pageSize);
        if (content.size() < m_pageSize || head.mid(kFrameSaltPlace, kSaltSize) != m_salt) {
            return committed;
        }
        addToChecksum(head.left(kFrameSaltPlace));
        addToChecksum(content);
        if (bigEndian(head, kFrameChecksum) != m_first ||
            bigEndian(head, kFrameChecksum + 4) != m_second) {
            return committed;
        }
        if (bigEndian(head, 0) == page) {
            last = revisionIn(content);
        }
        if (bigEndian(head, kFrameCommitPlace) != 0 && last) {
            committed.push_back(*last);
            last.reset();
        }
    }
}

bool StoreLog::readHeader()
{
    if (!m_file.open(QIODevice::ReadOnly)) {
        return false;
    }
    const QByteArray header = m_file.read(kHeaderSize);
    if (header.size() < kHeaderSize || (bigEndian(header, 0) & ~1U) != kMagic) {
        return false;
    }
    m_isBigEndian = (bigEndian(header, 0) & 1U) != 0;
    m_pageSize = static_cast<int>(bigEndian(header, kPageSizePlace));
    m_salt = header.mid(kSaltPlace, kSaltSize);
    addToChecksum(header.left(kHeaderChecksum));
    return m_pageSize >= kSmallestPage && m_pageSize <= kLargestPage &&
           bigEndian(header, kHeaderChecksum) == m_first &&
           bigEndian(header, kHeaderChecksum + 4) == m_second;
}

void StoreLog::addToChecksum(const QByteArray& bytes)
{
    constexpr int step = 8;
    for (int place = 0; place + step <= bytes.size(); place += step) {
        m_first += word(bytes, place) + m_second;
        m_second += word(bytes, place + step / 2) + m_first;
    }
}

quint32 StoreLog::word(const QByteArray& bytes, int place) const
{
    const char* const at = bytes.constData() + place;
    return m_isBigEndian ? qFromBigEndian<quint32>(at) : qFromLittleEndian<quint32>(at);
}

} // namespace trel::mediadispatch
