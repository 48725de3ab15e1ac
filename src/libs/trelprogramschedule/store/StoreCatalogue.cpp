#include "StoreCatalogue.h"

#include "ScheduleLimits.h"
#include "StoreConnection.h"
#include "StoreProgramContents.h"
#include "StoreRefusals.h"
#include "StoreValues.h"
#include "catalogue/ProgramImporter.h"

#include <QStringList>

#include <algorithm>
#include <cmath>
#include <utility>

namespace trel::mediadispatch {

namespace {

/// Indexes stay below this, well away from those that refer to nothing.
constexpr int kIndexLimit = 65535;

/// Programs that are asked for with one statement.
constexpr std::size_t kMostAtOnce = 200;

/// A length as it can be stored: what is no number is not known.
double storedDuration(double durationMs)
{
    return std::isfinite(durationMs) ? durationMs : -1.0;
}

ProgramKind kindOf(const QVariant& number)
{
    const int kind = number.toInt();
    return kind >= 0 && kind <= static_cast<int>(ProgramKind::Other)
               ? static_cast<ProgramKind>(kind)
               : ProgramKind::Other;
}

void takeRow(const QSqlQuery& row, StoreContents& contents)
{
    const int index = row.value(0).toInt();
    if (row.value(5).toBool()) {
        contents.removedNames.emplace_hint(contents.removedNames.end(), index, utf8(row, 1));
        return;
    }
    ProgramIten program;
    program.progIndex = index;
    program.progName = utf8(row, 1);
    program.mediaPath = utf8(row, 2);
    program.durationMs = row.value(3).toDouble();
    program.kind = kindOf(row.value(4));
    contents.programs.emplace_hint(contents.programs.end(), index, std::move(program));
}

} // namespace

StoreCatalogue::StoreCatalogue(const StoreConnection& connection, QString path)
    : m_connection(connection)
    , m_path(std::move(path))
    , m_nextIndex(connection.value(QStringLiteral("SELECT next_prog_index FROM store")).toInt())
    , m_update(connection.prepare(QStringLiteral("UPDATE program SET name = CAST(? AS TEXT), "
                                                 "duration_ms = ?, kind = ? WHERE prog_index = ?")))
    , m_inserts(connection.inserts(
          QStringLiteral("INSERT INTO program (prog_index, name, media_path, duration_ms, kind)"
                         " VALUES (?, CAST(? AS TEXT), CAST(? AS TEXT), ?, ?)")))
{}

void StoreCatalogue::read(StoreContents& contents) const
{
    QSqlQuery row = m_connection.query(
        QStringLiteral("SELECT prog_index, name, media_path, duration_ms, kind, removed"
                       " FROM program ORDER BY prog_index"));
    for (int count = 1; m_connection.next(row); ++count) {
        if (count >= kIndexLimit) {
            throw StoreError{refusal(StoreProblem::TooLarge, m_path,
                                     faultOf(FaultCode::TooManyPrograms, kIndexLimit - 1))};
        }
        takeRow(row, contents);
    }
}

void StoreCatalogue::read(const std::vector<int>& indexes, StoreContents& contents) const
{
    for (std::size_t from = 0; from < indexes.size(); from += kMostAtOnce) {
        QStringList numbers;
        for (std::size_t i = from; i < std::min(indexes.size(), from + kMostAtOnce); ++i) {
            numbers.append(QString::number(indexes[i]));
        }
        QSqlQuery row = m_connection.query(
            QStringLiteral("SELECT prog_index, name, media_path, duration_ms, kind, removed"
                           " FROM program WHERE prog_index IN (%1) ORDER BY prog_index")
                .arg(numbers.join(QLatin1Char(','))));
        while (m_connection.next(row)) {
            takeRow(row, contents);
        }
    }
}

void StoreCatalogue::put(const std::vector<MediaSource>& sources, ImportResult& result)
{
    find(sources);
    for (const MediaSource& source : sources) {
        putOne(source, result);
    }
    m_inserts->finish();
    StoreProgramContents(m_connection).put(m_contents);
}

int StoreCatalogue::indexOf(const MediaSource& source) const
{
    return m_known.at(bytes(source.path)).index;
}

void StoreCatalogue::find(const std::vector<MediaSource>& sources)
{
    for (std::size_t from = 0; from < sources.size(); from += kMostAtOnce) {
        const std::size_t end = std::min(sources.size(), from + kMostAtOnce);
        // Each path by itself, so that each is looked up in the index: of many in one condition a
        // server may think that it is quicker to hash the paths of all programs for each of them.
        QStringList lookUps;
        for (std::size_t i = from; i < end; ++i) {
            lookUps.append(
                QStringLiteral("SELECT prog_index, media_path, name, duration_ms, kind FROM program"
                               " WHERE removed = 0 AND media_path = CAST(? AS TEXT)"));
        }
        QSqlQuery row = m_connection.prepare(lookUps.join(QLatin1String(" UNION ALL ")));
        for (std::size_t i = from; i < end; ++i) {
            expectToFit(sources[i]);
            bindFrom(static_cast<int>(i - from), row, bytes(sources[i].path));
        }
        m_connection.exec(row);
        while (m_connection.next(row)) {
            m_known.emplace(row.value(1).toByteArray(),
                            Known{row.value(0).toInt(), row.value(2).toByteArray(),
                                  row.value(3).toDouble(), row.value(4).toInt()});
        }
    }
}

void StoreCatalogue::putOne(const MediaSource& source, ImportResult& result)
{
    const int kind = static_cast<int>(source.kind);
    const double duration = storedDuration(source.durationMs);
    if (const auto known = m_known.find(bytes(source.path)); known != m_known.end()) {
        Known& program = known->second;
        const bool isOfThisImport = !m_done.insert(program.index).second;
        if (!isOfThisImport) {
            result.updated.push_back(program.index);
        }
        m_contents[program.index] = source.content;
        const Known now = {program.index, bytes(source.name), duration, kind};
        if (now == program) {
            return; // As most are when a folder is imported once more.
        }
        if (isOfThisImport) {
            // It may be on its way into the table.
            m_inserts->finish();
        }
        bindFrom(0, m_update, now.name, duration, kind, program.index);
        m_connection.exec(m_update);
        program = now;
        return;
    }
    const int index = giveOutIndex();
    m_inserts->put({index, bytes(source.name), bytes(source.path), duration, kind});
    m_known.emplace(bytes(source.path), Known{index, bytes(source.name), duration, kind});
    m_done.insert(index);
    m_contents[index] = source.content;
    result.added.push_back(index);
}

void StoreCatalogue::expectToFit(const MediaSource& source) const
{
    const auto longest = static_cast<int>(kLongestText);
    if (source.name.toUtf8().size() > longest || source.path.toUtf8().size() > longest) {
        throw StoreError{refusal(StoreProblem::TooLarge, m_path,
                                 faultOf(FaultCode::ProgramTextTooLong, longest))};
    }
}

int StoreCatalogue::giveOutIndex()
{
    if (m_nextIndex >= kIndexLimit) {
        throw StoreError{refusal(StoreProblem::Full, m_path,
                                 faultOf(FaultCode::NumbersUsedUp, kIndexLimit - 1))};
    }
    return m_nextIndex++;
}

void StoreCatalogue::finish() const
{
    m_connection.run(QStringLiteral("UPDATE store SET catalogue_revision = catalogue_revision + 1,"
                                    " next_prog_index = %1")
                         .arg(m_nextIndex));
}

bool StoreCatalogue::remove(const std::vector<int>& progIndexes)
{
    QSqlQuery removal = m_connection.prepare(
        QStringLiteral("UPDATE program SET removed = 1 WHERE prog_index = ? AND removed = 0"));
    bool isAnyRemoved = false;
    for (const int index : progIndexes) {
        bindFrom(0, removal, index);
        m_connection.exec(removal);
        isAnyRemoved = removal.numRowsAffected() > 0 || isAnyRemoved;
    }
    return isAnyRemoved;
}

} // namespace trel::mediadispatch
