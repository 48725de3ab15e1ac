#pragma once

#include "../dispatch/ScheduleWriting.h"
#include "AsRunSamples.h"
#include "SimulatedPlayer.h"
#include "trelprogramschedule/asrun/AsRunVerification.h"

#include <QString>
#include <QtTest>

#include <vector>

inline constexpr char kZone[] = "Europe/Berlin";

/// Noon of a day in March 2024, in Berlin.
inline constexpr trel::mediadispatch::Instant kNoon = 1709636400000;

/// The records of a screen, verified.
inline trel::mediadispatch::AsRunVerdict
verdictOf(const std::vector<trel::mediadispatch::AsRunRecord>& records,
          const std::vector<TakenSchedule>& schedules, AsRunFixture& fixture,
          trel::mediadispatch::Instant from = trel::mediadispatch::kEver,
          trel::mediadispatch::Instant to = trel::mediadispatch::kNever)
{
    std::vector<QByteArray> contents;
    for (const TakenSchedule& taken : schedules) {
        contents.push_back(taken.contents);
    }
    trel::mediadispatch::AsRunVerdict verdict;
    [&] {
        QVERIFY(fixture.database.append(QStringLiteral("hall"), "player", 1, records, contents));
        QVERIFY(trel::mediadispatch::verifyAsRun(fixture.database, fixture.screen(), from, to,
                                                 verdict));
    }();
    return verdict;
}

inline QString textOf(const trel::mediadispatch::AsRunVerdict& verdict)
{
    QString text;
    for (const trel::mediadispatch::AsRunDeviation& deviation : verdict.deviations) {
        text +=
            QStringLiteral("kind %1, record %2, from +%3 to +%4, planned %5 \"%6\", shown \"%7\"\n")
                .arg(static_cast<int>(deviation.kind))
                .arg(deviation.number)
                .arg(deviation.from - kNoon)
                .arg(deviation.to - kNoon)
                .arg(deviation.progIndex)
                .arg(deviation.plannedProgram, deviation.shownProgram);
    }
    return text;
}

/// One plan of A (10 s) and B (4 s), all day.
inline std::vector<TakenSchedule> plainSchedules()
{
    trel::mediadispatch::AsRunSchedule schedule;
    schedule.zone = kZone;
    schedule.start = trel::mediadispatch::EffectStart{kNoon, 1, QStringLiteral("test")};
    schedule.tasks =
        scheduleFromText(QStringLiteral("1 2024.03.05-2024.03.05 / 12:00:00-20:00:00 A B"));
    schedule.catalogue = lettersCatalogue();
    return {takenSchedule(kNoon, schedule)};
}

inline std::vector<trel::mediadispatch::AsRunRecord> plainRecords(qint64 length = 140'000)
{
    return SimulatedPlayer(plainSchedules(), 1, 0).play(kNoon + length);
}
