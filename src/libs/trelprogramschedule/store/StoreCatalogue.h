#pragma once

#include "StoreContents.h"
#include "StoreInserts.h"
#include "StoreResult.h"
#include "catalogue/ProgramContent.h"

#include <QByteArray>
#include <QSqlQuery>
#include <QString>

#include <map>
#include <memory>
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
    /// Updates the programs of the same paths or makes new ones, with what their files hold; a path
    /// may come twice.
    void put(const std::vector<MediaSource>& sources, ImportResult& result);
    /// The program that a source has been put into.
    int indexOf(const MediaSource& source) const;
    /// False when there is none of these programs.
    bool remove(const std::vector<int>& progIndexes);
    /// Keeps what was changed as a new revision.
    void finish() const;

private:
    /// What the table has of a program, or is about to have.
    struct Known
    {
        int index = -1;
        QByteArray name;
        double durationMs = 0.0;
        int kind = 0;

        bool operator==(const Known& other) const
        {
            return index == other.index && name == other.name && durationMs == other.durationMs &&
                   kind == other.kind;
        }
    };

    /// Finds the programs that are there already.
    void find(const std::vector<MediaSource>& sources);
    void putOne(const MediaSource& source, ImportResult& result);
    void expectToFit(const MediaSource& source) const;
    int giveOutIndex();

    const StoreConnection& m_connection;
    QString m_path;
    int m_nextIndex;
    std::map<QByteArray, Known> m_known; ///< By the paths that are put.
    std::set<int> m_done;                ///< What was put so far; a path may come twice.
    ProgramContents m_contents;          ///< Of what was put, also of what holds nothing known.
    QSqlQuery m_update;
    std::unique_ptr<StoreInserts> m_inserts;
};

} // namespace trel::mediadispatch
