#pragma once

#include "store/ScheduleDatabase.h"

#include <QtTest>

/// Another program on the same store.
class OtherProgram
{
public:
    using Instant = trel::mediadispatch::Instant;
    using StoredEffect = trel::mediadispatch::StoredEffect;

    explicit OtherProgram(const QString& path)
    {
        QVERIFY(m_database.open(path, trel::mediadispatch::StoreOpenMode::MustExist));
    }

    StoredEffect effect()
    {
        StoredEffect read;
        [&] { QVERIFY(m_database.readEffect(read)); }();
        return read;
    }
    void start(Instant since = 1, const QString& by = QStringLiteral("other@elsewhere"))
    {
        trel::mediadispatch::EffectStart start;
        start.since = since;
        start.by = by;
        StoredEffect effect;
        QVERIFY(m_database.startEffect(start, effect));
    }
    void stop()
    {
        StoredEffect effect;
        QVERIFY(m_database.stopEffect(effect));
    }
    trel::mediadispatch::StoreResult write(trel::mediadispatch::ScreenInsertions insertions,
                                           qint64 revision)
    {
        return m_database.writeInsertions(insertions, revision);
    }
    /// Replaces the whole schedule, seen before or not.
    void save(const trel::mediadispatch::TaskMap& tasks)
    {
        trel::mediadispatch::StoreContents contents;
        QVERIFY(m_database.read(trel::mediadispatch::StorePart::Schedule, contents));
        qint64 revision = contents.revision.schedule;
        QVERIFY(m_database.writeTasks(tasks, editsBetween(contents.tasks, tasks), revision));
    }
    trel::mediadispatch::ScheduleDatabase& database() { return m_database; }

private:
    trel::mediadispatch::ScheduleDatabase m_database;
};
