#pragma once

#include "Command.h"
#include "Database.h"
#include "ScreenReport.h"
#include "StoreWatch.h"
#include "common/StopSignals.h"

#include <QEventLoop>
#include <QObject>
#include <QString>
#include <QTimer>

#include <map>
#include <optional>

namespace trel::console {

class Console;

/// The schedule in effect on a terminal: a line for each event on the screen, until a signal ends
/// it. Where nothing is in effect at first, the saved schedule plays until something is. What other
/// programs save, start and end is taken over as it comes.
class ScheduleRun : public QObject
{
    Q_OBJECT

public:
    /// The database has to be open, and both have to live on.
    ScheduleRun(const Database& database, bool json, Console& console);

    /// Runs until a signal comes, or until what is written does not arrive any more.
    ExitStatus run();

private:
    void takeOver();
    void tellOfLoss(const trel::mediadispatch::StoreResult& result);
    void tellOfReturn();
    void tellOfEffect();
    void playSaved();
    void write(const trel::mediadispatch::ScreenState& state);
    trel::mediadispatch::Instant momentOf(const trel::mediadispatch::ScreenState& state) const;

    const Database& m_database;
    bool m_json;
    Console& m_console;
    QEventLoop m_loop;
    hosts::StopSignals m_signals;
    StoreWatch m_watch;
    QTimer m_nextLook; ///< At a store that cannot be read just now.
    QString m_loss;    ///< Why the store cannot be read; told once, and empty when it can.
    std::optional<std::map<int, trel::mediadispatch::ProgramIten>> m_programs;
    std::optional<trel::mediadispatch::ScreenState> m_last;
    std::optional<trel::mediadispatch::EffectStart> m_started; ///< As the user knows it.
};

} // namespace trel::console
