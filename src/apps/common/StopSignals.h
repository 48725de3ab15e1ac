#pragma once

#include <QObject>

#include <csignal>

namespace trel::hosts {

/// Turns the signals that ask a program to end, SIGINT and SIGTERM, into a signal of the event
/// loop for as long as it lives. There can be one at a time.
class StopSignals : public QObject
{
    Q_OBJECT

public:
    StopSignals();
    ~StopSignals() override;

signals:
    void stopped();

private:
    void read();

    struct sigaction m_formerInterrupt = {};
    struct sigaction m_formerTerminate = {};
};

} // namespace trel::hosts
