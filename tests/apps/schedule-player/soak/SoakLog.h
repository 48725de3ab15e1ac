#pragma once

#include "trelprogramschedule/dispatch/MomentFormat.h"
#include "trelscreen/ScreenLog.h"

#include <QObject>
#include <QTextStream>

class FaultInjector;
class PlayedScreen;
class StreamServer;

/// Writes down what happens in a long run: the faults made, what the decks are given, who asks for
/// the stream, and what the screen tells.
class SoakLog : public QObject, public trel::screen::ScreenLog
{
    Q_OBJECT

public:
    /// All outlive it, but for the faults, which may be none. The screen has to be told of it.
    SoakLog(QTextStream& out, const PlayedScreen& screen, const FaultInjector* faults,
            const StreamServer& server);

    void note(const trel::screen::ScreenEvent& event) override;

private:
    void tell(const QString& what);

    QTextStream& m_out;
    const trel::mediadispatch::MomentFormat m_local;
};
