#include "StoreMirror.h"

#include "StoreCatalogue.h"
#include "StoreConnection.h"
#include "StoreEffect.h"
#include "StoreInserts.h"
#include "StoreProgramContents.h"
#include "StoreRevisions.h"
#include "StoreSchema.h"
#include "StoreTaskWriter.h"
#include "StoreValues.h"
#include "clock/Clock.h"

#include <QSqlQuery>
#include <QStringList>
#include <QVariant>

#include <algorithm>
#include <memory>
#include <utility>

namespace trel::mediadispatch {

namespace {

/// What the note of a mirror's version begins with.
const QString kMirror = QStringLiteral("mirror");

/// The lines of that note.
enum NoteLine { KindLine, SourceLine, IdentityLine, EffectLine, CatalogueLine, NoteLines };

/// The number that the next program would get: above all that were given out.
int nextIndexOf(const MirroredCatalogue& catalogue)
{
    int next = 1;
    if (!catalogue.programs.empty()) {
        next = std::max(next, catalogue.programs.rbegin()->first + 1);
    }
    if (!catalogue.removedNames.empty()) {
        next = std::max(next, catalogue.removedNames.rbegin()->first + 1);
    }
    return next;
}

} // namespace

StoreMirror::StoreMirror(const StoreConnection& connection, QString path)
    : m_connection(connection)
    , m_path(std::move(path))
{}

MirrorNews StoreMirror::newsFor(const MirrorState& mirror) const
{
    const StoreRevision now = revisionOf(m_connection);
    MirrorNews news;
    news.to.identity = m_connection.identity();
    news.to.effect = now.effect;
    news.to.catalogue = now.catalogue;
    const bool isOther = mirror.identity != news.to.identity;
    if (!isOther) {
        news.from = mirror;
    }
    if (isOther || mirror.effect != now.effect) {
        news.effect = StoreEffect(m_connection, m_path).read();
    }
    if (isOther || mirror.catalogue != now.catalogue) {
        news.catalogue = readCatalogue();
    }
    return news;
}

MirroredCatalogue StoreMirror::readCatalogue() const
{
    StoreContents contents;
    StoreCatalogue(m_connection, m_path).read(contents);
    MirroredCatalogue catalogue;
    catalogue.programs = std::move(contents.programs);
    catalogue.removedNames = std::move(contents.removedNames);
    catalogue.contents = StoreProgramContents(m_connection).read();
    return catalogue;
}

std::optional<StoreMirror::Mark> StoreMirror::mark() const
{
    if (!StoreSchema::hasHistory(m_connection)) {
        return std::nullopt;
    }
    QSqlQuery row =
        m_connection.query(QStringLiteral("SELECT note FROM version ORDER BY number DESC LIMIT 1"));
    if (!m_connection.next(row)) {
        return std::nullopt;
    }
    const QStringList lines =
        QString::fromUtf8(row.value(0).toByteArray()).split(QLatin1Char('\n'));
    if (lines.size() != NoteLines || lines[KindLine] != kMirror) {
        return std::nullopt;
    }
    Mark mark;
    mark.source = lines[SourceLine];
    mark.state.identity = lines[IdentityLine];
    mark.state.effect = lines[EffectLine].toLongLong();
    mark.state.catalogue = lines[CatalogueLine].toLongLong();
    return mark;
}

bool StoreMirror::isVacant() const
{
    const StoreRevision revision = revisionOf(m_connection);
    return revision.schedule == 0 && revision.catalogue == 0 && revision.effect == 0;
}

MirrorNews StoreMirror::read() const
{
    MirrorNews all;
    if (const std::optional<Mark> known = mark()) {
        all.to = known->state;
    }
    all.effect = StoreEffect(m_connection, m_path).read();
    all.catalogue = readCatalogue();
    return all;
}

void StoreMirror::take(const MirrorNews& news, const QString& source, bool keepsTasks) const
{
    const StoreRevision former = revisionOf(m_connection);
    if (news.effect) {
        writeEffect(*news.effect, keepsTasks);
    }
    if (news.catalogue) {
        writeCatalogue(*news.catalogue);
    }
    writeMark({source, news.to});
    countUp(former, news);
}

void StoreMirror::writeEffect(const StoredEffect& effect, bool keepsTasks) const
{
    const StoreEffect stored(m_connection, m_path);
    if (!keepsTasks) {
        // What is started is what is saved, and a mirror has nothing else saved.
        TaskEdits edits;
        edits.removesAll = true;
        for (const auto& [id, task] : effect.tasks) {
            edits.written.push_back(&task);
        }
        StoreTaskWriter(m_connection).write(edits);
        if (effect.start) {
            stored.start(*effect.start);
        } else {
            stored.stop();
        }
    }
    if (effect.start) {
        ScreenInsertions insertions = effect.insertions;
        stored.putInsertions(insertions);
    }
}

void StoreMirror::writeCatalogue(const MirroredCatalogue& catalogue) const
{
    m_connection.run(QStringLiteral("DELETE FROM program_content"));
    m_connection.run(QStringLiteral("DELETE FROM program"));
    const std::unique_ptr<StoreInserts> rows = m_connection.inserts(QStringLiteral(
        "INSERT INTO program (prog_index, name, media_path, duration_ms, kind, removed)"
        " VALUES (?, CAST(? AS TEXT), CAST(? AS TEXT), ?, ?, ?)"));
    for (const auto& [index, program] : catalogue.programs) {
        rows->put({index, bytes(program.progName), bytes(program.mediaPath), program.durationMs,
                   static_cast<int>(program.kind), number(false)});
    }
    for (const auto& [index, name] : catalogue.removedNames) {
        rows->put({index, bytes(name), QByteArray(""), -1.0, static_cast<int>(ProgramKind::Other),
                   number(true)});
    }
    rows->finish();
    StoreProgramContents(m_connection).put(catalogue.contents);
    m_connection.run(
        QStringLiteral("UPDATE store SET next_prog_index = %1").arg(nextIndexOf(catalogue)));
}

/// Each transaction counts one of the revisions up by one, by which the log of a program that was
/// killed is known to belong to its file.
void StoreMirror::countUp(const StoreRevision& former, const MirrorNews& news) const
{
    const qint64 effect = former.effect + (news.effect ? 1 : 0);
    const qint64 catalogue = former.catalogue + (news.effect ? 0 : 1);
    m_connection.run(QStringLiteral("UPDATE store SET effect_revision = %1,"
                                    " catalogue_revision = %2")
                         .arg(effect)
                         .arg(catalogue));
}

/// A store whose newest version has the number of its schedule is a sound one.
void StoreMirror::writeMark(const Mark& mark) const
{
    QStringList lines;
    lines << kMirror << mark.source << mark.state.identity << QString::number(mark.state.effect)
          << QString::number(mark.state.catalogue);
    m_connection.run(QStringLiteral("DELETE FROM version"));
    QSqlQuery row = m_connection.prepare(
        QStringLiteral("INSERT INTO version (number, saved_ms, saved_by, added, changed, removed,"
                       " task_ids, restored, name, note)"
                       " SELECT schedule_revision, ?, '', 0, 0, 0, '', -1, '', CAST(? AS TEXT)"
                       " FROM store"));
    bindFrom(0, row, Clock::current().msecsSinceEpoch(), bytes(lines.join(QLatin1Char('\n'))));
    m_connection.exec(row);
}

} // namespace trel::mediadispatch
