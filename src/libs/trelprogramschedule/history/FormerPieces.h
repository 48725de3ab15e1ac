#pragma once

#include "PackedBytes.h"
#include "TaskAspects.h"

#include <QByteArray>

#include <vector>

namespace trel::mediadispatch {

/// An aspect of a task as it was. No bytes as dates tell that the task was not there.
struct FormerPiece
{
    int taskId = -1;
    TaskAspect aspect = TaskAspect::Dates;
    QByteArray bytes;
};

/// Puts pieces into parts, none of which is larger than half a MiB, whatever a piece is.
class PieceWriter
{
public:
    void add(const FormerPiece& piece);
    /// The parts of all that was added; at least one. To be called once, as the last call.
    std::vector<QByteArray> take();

private:
    void finishPart(bool isLast);

    BytePacker m_packer;
    QByteArray m_part; ///< Not packed yet.
    std::vector<QByteArray> m_parts;
};

/// Reads the pieces from parts, in their order.
class PieceReader
{
public:
    /// False where it is no part, or comes behind the last one.
    bool add(const QByteArray& part);
    /// Whether all parts have come.
    bool isWhole() const { return m_isWhole; }
    const std::vector<FormerPiece>& pieces() const { return m_pieces; }

private:
    bool m_isWhole = false;
    std::vector<FormerPiece> m_pieces;
};

} // namespace trel::mediadispatch
