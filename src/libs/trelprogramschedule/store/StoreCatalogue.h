#pragma once

#include "StoreContents.h"
#include "StoreResult.h"

#include <QSqlQuery>

#include <set>
#include <vector>

namespace trel::mediadispatch {

class StoreConnection;
struct MediaSource;

/// The table of the programs, within a transaction. Members throw StoreError.
class StoreCatalogue
{
public:
    StoreCatalogue(const StoreConnection& connection, QString path);

    void read(StoreContents& contents) const;
    /// Reads some programs; an index that is not in the catalogue is passed over.
    void read(const std::vector<int>& indexes, StoreContents& contents) const;
    /// Updates the program of the same path or makes a new one.
    void put(const MediaSource& source, ImportResult& result);
    /// False when there is none of these programs.
    bool remove(const std::vector<int>& progIndexes);
    /// Keeps what was changed as a new revision.
    void finish() const;

private:
    void expectToFit(const MediaSource& source) const;
    int giveOutIndex();

    const StoreConnection& m_connection;
    QString m_path;
    int m_nextIndex;
    std::set<int> m_done; ///< What was put so far; a path may come twice.
    QSqlQuery m_find;
    QSqlQuery m_update;
    QSqlQuery m_insert;
};

} // namespace trel::mediadispatch
