#pragma once

#include <QByteArray>
#include <QtGlobal>

#include <memory>
#include <optional>

struct z_stream_s;

namespace trel::mediadispatch {

/// Packs many pieces of bytes one after the other, each on its own. What packing makes no smaller
/// stays as it is. Throws std::bad_alloc.
class BytePacker
{
public:
    BytePacker();
    ~BytePacker();
    Q_DISABLE_COPY(BytePacker)

    /// Takes a MiB at most. Never empty.
    QByteArray packed(const QByteArray& bytes);

private:
    QByteArray deflated(const QByteArray& bytes);

    std::unique_ptr<z_stream_s> m_stream; ///< Null until there is something to pack.
};

/// What was packed; nothing when it is damaged, or larger than any piece.
std::optional<QByteArray> unpacked(const QByteArray& packed);

} // namespace trel::mediadispatch
