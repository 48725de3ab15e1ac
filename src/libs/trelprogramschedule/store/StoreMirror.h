#pragma once

#include "mirror/MirrorNews.h"

#include <QString>

#include <optional>

namespace trel::mediadispatch {

class StoreConnection;
struct StoreRevision;

/// What makes a store the mirror of another one. Members throw StoreError, and have to be called
/// within a transaction.
class StoreMirror
{
public:
    /// By what a mirror says what it is one of.
    struct Mark
    {
        QString source; ///< The store that it mirrors.
        MirrorState state;
    };

    StoreMirror(const StoreConnection& connection, QString path);

    /// Of a store that is mirrored: what is another in it than in a mirror of that state.
    MirrorNews newsFor(const MirrorState& mirror) const;

    /// None for what is no mirror.
    std::optional<Mark> mark() const;
    /// Whether nothing was ever written into it.
    bool isVacant() const;
    /// Reads all that a mirror holds.
    MirrorNews read() const;
    /// Puts news in the place of what they are about. Where the tasks in effect are those that the
    /// mirror has, they can be left as they are, and the insertions alone are written.
    void take(const MirrorNews& news, const QString& source, bool keepsTasks) const;

private:
    MirroredCatalogue readCatalogue() const;
    void writeEffect(const StoredEffect& effect, bool keepsTasks) const;
    void writeCatalogue(const MirroredCatalogue& catalogue) const;
    void writeMark(const Mark& mark) const;
    void countUp(const StoreRevision& former, const MirrorNews& news) const;

    const StoreConnection& m_connection;
    QString m_path;
};

} // namespace trel::mediadispatch
