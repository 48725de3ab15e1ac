#include "FormerPieces.h"

#include <QtEndian>

#include <algorithm>
#include <utility>

namespace trel::mediadispatch {

namespace {

/// What a part holds before it is packed: its place among the others, then pieces with their heads.
enum Place : char { MoreFollow = 0, Last = 1 };

constexpr int kPartSize = 256 * 1024;
/// The id of the task, the aspect, and how many bytes follow.
constexpr int kHeadSize = 2 * int(sizeof(quint32)) + 1;
constexpr int kAspectPlace = int(sizeof(quint32));

void appendNumber(QByteArray& bytes, quint32 number)
{
    char little[sizeof number];
    qToLittleEndian(number, little);
    bytes.append(little, int(sizeof little));
}

} // namespace

void PieceWriter::add(const FormerPiece& piece)
{
    int place = 0;
    do {
        if (m_part.size() >= kPartSize) {
            finishPart(false);
        }
        if (m_part.isEmpty()) {
            m_part.append(char(MoreFollow));
        }
        // What is larger than a part goes on in the next, as a piece of the same name.
        const int size = std::min(piece.bytes.size() - place, kPartSize);
        appendNumber(m_part, quint32(piece.taskId));
        m_part.append(char(piece.aspect));
        appendNumber(m_part, quint32(size));
        m_part.append(piece.bytes.constData() + place, size);
        place += size;
    } while (place < piece.bytes.size());
}

std::vector<QByteArray> PieceWriter::take()
{
    if (m_part.isEmpty()) {
        m_part.append(char(MoreFollow));
    }
    finishPart(true);
    return std::move(m_parts);
}

void PieceWriter::finishPart(bool isLast)
{
    m_part[0] = isLast ? Last : MoreFollow;
    m_parts.push_back(m_packer.packed(m_part));
    m_part.resize(0);
}

bool PieceReader::add(const QByteArray& part)
{
    const auto bytes = unpacked(part);
    if (m_isWhole || !bytes || bytes->isEmpty()) {
        return false;
    }
    m_isWhole = bytes->at(0) == Last;
    int place = 1;
    while (place < bytes->size()) {
        const char* const head = bytes->constData() + place;
        place += kHeadSize;
        const qint64 left = bytes->size() - place;
        if (left < 0) {
            return false;
        }
        const auto taskId = int(qFromLittleEndian<quint32>(head));
        const int aspect = static_cast<unsigned char>(head[kAspectPlace]);
        const auto size = qint64(qFromLittleEndian<quint32>(head + kAspectPlace + 1));
        if (size > left || aspect >= int(std::size(kTaskAspects))) {
            return false;
        }
        if (m_pieces.empty() || m_pieces.back().taskId != taskId ||
            m_pieces.back().aspect != TaskAspect(aspect)) {
            m_pieces.push_back({taskId, TaskAspect(aspect), {}});
        }
        m_pieces.back().bytes.append(bytes->constData() + place, int(size));
        place += int(size);
    }
    return true;
}

} // namespace trel::mediadispatch
