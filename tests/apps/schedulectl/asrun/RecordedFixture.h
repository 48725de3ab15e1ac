#pragma once

#include "CtlFixture.h"
#include "trelprogramschedule/asrun/AsRunDatabase.h"
#include "trelprogramschedule/asrun/AsRunSchedule.h"
#include "trelprogramschedule/dispatch/ScreenTimeline.h"

#include <QTimeZone>
#include <QtTest>

#include <sqlite3.h>

#include <string>
#include <vector>

inline const QString kHall = QStringLiteral("hall");

/// 2024-01-03 08:00:00 in Berlin.
inline constexpr trel::mediadispatch::Instant kStart = 1704265200000;

/// Two programs of ten seconds each that take turns, and what a player has shown of them.
class RecordedFixture : public CtlFixture
{
public:
    explicit RecordedFixture(const std::string& name = "News")
    {
        m_schedule.zone = "Europe/Berlin";
        m_schedule.start = trel::mediadispatch::EffectStart{kStart, 4, QStringLiteral("me@here")};
        trel::mediadispatch::PlayPlan plan =
            timePlan(3, "08:00:00", "09:00:00", "1,2,3,4,5,6,7", 1);
        plan.programs.push_back(plan.programs.front());
        plan.programs.back().progIndex = 2;
        m_schedule.tasks[1] = januaryTask(1, {plan});
        for (const int index : {1, 2}) {
            trel::mediadispatch::ProgramIten& program = m_schedule.catalogue[index];
            program.progIndex = index;
            program.progName = index == 1 ? name : "Weather";
            program.durationMs = 10'000;
            program.kind = trel::mediadispatch::ProgramKind::Video;
        }
        m_contents = trel::mediadispatch::asRunContents(m_schedule);
        trel::mediadispatch::AsRunRecord taken;
        taken.kind = trel::mediadispatch::AsRunKind::ScheduleTaken;
        taken.revision = 4;
        taken.schedule = trel::mediadispatch::asRunScheduleHash(m_contents);
        taken.begins = taken.ends = kStart;
        records.push_back(taken);
        const trel::mediadispatch::ScreenTimeline timeline(m_schedule.tasks, m_schedule.catalogue,
                                                           QTimeZone("Europe/Berlin"));
        timeline.visitPlays(kStart, kStart + 60'000, {},
                            [&](const trel::mediadispatch::ScreenState& state) {
                                add(state);
                                return true;
                            });
    }

    void hand(const QString& screen = kHall)
    {
        trel::mediadispatch::AsRunDatabase asRun;
        QVERIFY(asRun.open(trel::mediadispatch::AsRunDatabase::pathFor(database()),
                           trel::mediadispatch::StoreOpenMode::CreateIfMissing));
        QVERIFY(asRun.append(screen, screen.toUtf8(), 1, records, {m_contents}));
    }

    void tamper(const char* statement) const
    {
        sqlite3* handle = nullptr;
        const QString file = trel::mediadispatch::AsRunDatabase::pathFor(database());
        QCOMPARE(sqlite3_open(file.toUtf8().constData(), &handle), SQLITE_OK);
        QCOMPARE(sqlite3_exec(handle, statement, nullptr, nullptr, nullptr), SQLITE_OK);
        sqlite3_close(handle);
    }

    CtlResult asRun(const QStringList& options = {}) const
    {
        return onDatabase(QStringList{QStringLiteral("as-run")} + options);
    }

    std::vector<trel::mediadispatch::AsRunRecord> records;

private:
    void add(const trel::mediadispatch::ScreenState& state)
    {
        trel::mediadispatch::AsRunRecord record;
        record.revision = 4;
        record.schedule = trel::mediadispatch::asRunScheduleHash(m_contents);
        record.picture = state.picture;
        record.taskId = state.taskId;
        record.planId = state.planId;
        record.planRow = state.planRow;
        record.entry = state.entry;
        record.play = state.play;
        record.run = state.run;
        record.progIndex = state.progIndex;
        record.program = QString::fromStdString(m_schedule.catalogue.at(state.progIndex).progName);
        record.plannedBegin = state.since;
        record.plannedEnd = state.until;
        record.begins = state.since;
        record.ends = state.until;
        records.push_back(record);
    }

    trel::mediadispatch::AsRunSchedule m_schedule;
    QByteArray m_contents;
};
