#pragma once

#include "PlayedScreen.h"
#include "StreamServer.h"

#include <QObject>
#include <QTimer>

#include <map>
#include <random>

/// Breaks what a screen plays, in one of several ways each and several of them at once, and mends
/// it again.
class FaultInjector : public QObject
{
    Q_OBJECT

public:
    enum class Way {
        // Of a file.
        Missing,
        Text,     ///< No film at all.
        CutShort, ///< Half of it is there.
        Emptied,  ///< Cut short in its place, while it may be open.
        Pipe,
        Folder,
        // Of the stream.
        Stalls,      ///< Nothing comes any more, on a line that stays.
        BreaksOff,   ///< The line ends, and each one made again ends soon.
        Unreachable, ///< Nothing answers there.
        Silent,      ///< It takes lines, and says nothing.
        Dead,        ///< The same, and nothing comes any more on those that it had, also later.
    };
    static constexpr int kFileWays = 6;
    static constexpr int kStreamWays = 5;

    /// The programs and the server outlive it. The server has the stream of the programs.
    FaultInjector(const PlayedPrograms& programs, StreamServer& server);
    /// Leaves all whole.
    ~FaultInjector() override;

    /// Breaks one that is whole.
    void breakNow(PlayedProgram program, Way way);
    /// Mends all that is broken.
    void mend();
    bool isBroken(PlayedProgram program) const { return m_broken.count(program) > 0; }

    /// From now on breaks one to all of them every few seconds, each in a way by chance, and mends
    /// them three seconds later.
    void goOn(unsigned seed);
    qint64 made() const { return m_made; }

signals:
    void broke(int program, int way);
    /// All is whole from now on.
    void mended();

private:
    void breakFile(const QString& path, Way way);
    void breakStream(Way way);
    void breakSome();

    const PlayedPrograms& m_programs;
    StreamServer& m_server;
    std::mt19937 m_random;
    QTimer m_next;
    QTimer m_mending;
    std::map<PlayedProgram, Way> m_broken;
    qint64 m_made = 0;
};
