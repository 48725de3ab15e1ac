#pragma once

#include "CtlFixture.h"
#include "support/NumberedClip.h"
#include "trelprogramschedule/asrun/AsRunDatabase.h"
#include "trelprogramschedule/asrun/AsRunVerification.h"

#include <QProcess>
#include <QtTest>

#include <algorithm>
#include <csignal>
#include <vector>

inline constexpr int kPatience = 20000; // milliseconds, for programs that start on a busy machine
inline const QString kScreen = QStringLiteral("lobby");

/// A store with two films of 0.6 and 0.8 seconds, which play in turn round and round.
class PlayedFixture : public CtlFixture
{
public:
    PlayedFixture()
    {
        for (const int program : {1, 2}) {
            media::ClipOrder order;
            order.program = program;
            order.frames = 10 + 5 * program;
            QVERIFY(media::makeClip(film(program), order));
        }
        ctl({QStringLiteral("import"), film(1), film(2)});
        trel::mediadispatch::PlayTask task;
        task.id = 1;
        task.startDate = "2000.01.01";
        task.endDate = "2099.12.31";
        task.plans = {timePlan(1, "00:00:00", "23:59:59", "", 1)};
        task.plans.front().programs.emplace_back().progIndex = 2;
        store({{1, task}});
        ctl({QStringLiteral("start")});
    }

    QString film(int program) const { return path(QStringLiteral("film%1.mp4").arg(program)); }
    void ctl(const QStringList& arguments) const
    {
        const CtlResult result = onDatabase(arguments);
        QVERIFY2(result.status == 0, qPrintable(result.err));
    }

    std::vector<trel::mediadispatch::AsRunRecord> records(const QString& screen = kScreen) const
    {
        std::vector<trel::mediadispatch::AsRunRecord> records;
        trel::mediadispatch::AsRunDatabase asRun;
        if (asRun.open(trel::mediadispatch::AsRunDatabase::pathFor(database()),
                       trel::mediadispatch::StoreOpenMode::ReadOnly)) {
            asRun.visit(screen, {1, 1'000'000},
                        [&records](const trel::mediadispatch::AsRunRecord& record) {
                            records.push_back(record);
                            return true;
                        });
        }
        return records;
    }
    int count(trel::mediadispatch::AsRunKind kind, trel::mediadispatch::AsRunOutcome outcome) const
    {
        const std::vector<trel::mediadispatch::AsRunRecord> all = records();
        return static_cast<int>(
            std::count_if(all.begin(), all.end(), [&](const trel::mediadispatch::AsRunRecord& one) {
                return one.kind == kind && one.outcome == outcome;
            }));
    }
};

class PlayerProcess
{
public:
    explicit PlayerProcess(const PlayedFixture& fixture, const QStringList& options = {},
                           const QString& screen = kScreen)
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
        environment.insert(QStringLiteral("XDG_STATE_HOME"), fixture.path(QStringLiteral("state")));
        m_process.setProcessEnvironment(environment);
        m_process.setReadChannel(QProcess::StandardError);
        m_process.start(QStringLiteral(SCHEDULE_PLAYER),
                        QStringList({QStringLiteral("--database"), fixture.database(),
                                     QStringLiteral("--screen"), screen, QStringLiteral("--mute"),
                                     QStringLiteral("--window")}) +
                            options);
        m_process.waitForStarted();
    }
    ~PlayerProcess() { end(SIGKILL); }
    Q_DISABLE_COPY(PlayerProcess)

    bool isRunning() const { return m_process.state() != QProcess::NotRunning; }
    void end(int signal)
    {
        if (isRunning()) {
            ::kill(static_cast<pid_t>(m_process.processId()), signal);
            m_process.waitForFinished(kPatience);
        }
    }
    QString log()
    {
        m_log += QString::fromUtf8(m_process.readAllStandardError());
        return m_log;
    }
    QString howItEnded()
    {
        return QStringLiteral("status %1, code %2, error %3: %4")
            .arg(static_cast<int>(m_process.exitStatus()))
            .arg(m_process.exitCode())
            .arg(static_cast<int>(m_process.error()))
            .arg(log());
    }

private:
    QProcess m_process;
    QString m_log;
};

/// Each record begins where the one before has ended, and nothing is told twice.
inline void expectNoHole(const std::vector<trel::mediadispatch::AsRunRecord>& records)
{
    for (std::size_t at = 1; at < records.size(); ++at) {
        const trel::mediadispatch::AsRunRecord& former = records[at - 1];
        const trel::mediadispatch::AsRunRecord& next = records[at];
        const QString place = QStringLiteral("record %1").arg(next.number);
        QVERIFY2(next.number == former.number + 1, qPrintable(place));
        QVERIFY2(next.steadyBegin == former.steadyEnd, qPrintable(place));
        QVERIFY2(next.steadyEnd >= next.steadyBegin, qPrintable(place));
        QVERIFY2(next.steadyEnd > next.steadyBegin || next.kind != former.kind, qPrintable(place));
    }
}

inline QString textOf(const trel::mediadispatch::AsRunRecord& record)
{
    return QStringLiteral("\n  %1: kind %2, shown %3, outcome %4, %5 to %6, planned %7 to %8, late "
                          "%9, entry ")
               .arg(record.number)
               .arg(static_cast<int>(record.kind))
               .arg(static_cast<int>(record.shown))
               .arg(static_cast<int>(record.outcome))
               .arg(record.begins)
               .arg(record.ends)
               .arg(record.plannedBegin)
               .arg(record.plannedEnd)
               .arg(record.late) +
           QString::number(record.entry) + QLatin1Char(' ') + record.why;
}

/// What is not explained, with the records about it.
inline QString textOf(const trel::mediadispatch::AsRunVerdict& verdict,
                      trel::mediadispatch::AsRunDatabase& database)
{
    QString text = QStringLiteral("%1 breaks, %2 deviations on %3")
                       .arg(verdict.breakCount)
                       .arg(verdict.deviationCount)
                       .arg(verdict.screen.name);
    for (const trel::mediadispatch::AsRunDeviation& deviation : verdict.deviations) {
        text += QStringLiteral("\n kind %1, %2 to %3")
                    .arg(static_cast<int>(deviation.kind))
                    .arg(deviation.from)
                    .arg(deviation.to);
        database.visit(verdict.screen.name, {1, verdict.screen.lastNumber},
                       [&](const trel::mediadispatch::AsRunRecord& record) {
                           constexpr trel::mediadispatch::Instant about = 2000;
                           if (record.ends >= deviation.from - about &&
                               record.begins <= deviation.to + about) {
                               text += textOf(record);
                           }
                           return true;
                       });
    }
    return text;
}

/// The chains of all screens are whole, and explain all.
inline void expectVerified(const PlayedFixture& fixture)
{
    trel::mediadispatch::AsRunDatabase database;
    QVERIFY(database.open(trel::mediadispatch::AsRunDatabase::pathFor(fixture.database()),
                          trel::mediadispatch::StoreOpenMode::ReadOnly));
    std::vector<trel::mediadispatch::AsRunScreen> screens;
    QVERIFY(database.screens(screens));
    QVERIFY(!screens.empty());
    for (const trel::mediadispatch::AsRunScreen& screen : screens) {
        trel::mediadispatch::AsRunVerdict verdict;
        QVERIFY(trel::mediadispatch::verifyAsRun(database, screen, trel::mediadispatch::kEver,
                                                 trel::mediadispatch::kNever, verdict));
        QVERIFY2(verdict.isGood(), qPrintable(textOf(verdict, database)));
        QVERIFY(verdict.isWhole);
    }
}
