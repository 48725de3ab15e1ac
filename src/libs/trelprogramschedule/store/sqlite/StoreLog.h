#pragma once

#include "store/StoreContents.h"

#include <QByteArray>
#include <QFile>
#include <QString>
#include <QtGlobal>

#include <vector>

namespace trel::mediadispatch {

/// The write-ahead log of a store, read as a file, for telling whether it belongs to the database
/// that it stands beside. The database cannot tell: it works in whatever log it finds under the
/// name, and a copy that was put in the place of the file would be mixed with the changes of
/// another.
///
/// Only for a log that no program works with.
class StoreLog
{
public:
    explicit StoreLog(const QString& path);

    /// Whether the log can follow a state of the store. Every commit counts one of the revisions up
    /// by one, so that the file is in the state before the first commit or, where a part of the log
    /// has been worked in, in that of one of them. The page is the root of the table with the
    /// revisions.
    bool follows(const StoreRevision& revision, quint32 page);

private:
    bool readHeader();
    std::vector<StoreRevision> revisions(quint32 page);
    void addToChecksum(const QByteArray& bytes);
    quint32 word(const QByteArray& bytes, int place) const;

    QFile m_file;
    int m_pageSize = 0;
    QByteArray m_salt;
    bool m_isBigEndian = false; ///< Of the words that the checksums are made of.
    quint32 m_first = 0;        ///< The two halves of the checksum so far.
    quint32 m_second = 0;
};

} // namespace trel::mediadispatch
