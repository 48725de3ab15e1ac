#pragma once

#include "PlayedScreen.h"

#include <QObject>
#include <QTimer>

#include <random>

/// Breaks the file of a program every few seconds, in one of several ways, and mends it again.
class FaultInjector : public QObject
{
    Q_OBJECT

public:
    /// The programs outlive it.
    FaultInjector(const PlayedPrograms& programs, unsigned seed);
    /// Leaves the files whole.
    ~FaultInjector() override;

    qint64 made() const { return m_made; }

private:
    void breakOne();
    void mend();

    const PlayedPrograms& m_programs;
    std::mt19937 m_random;
    QTimer m_next;
    QTimer m_mending;
    QString m_broken; ///< Its path; empty while all are whole.
    qint64 m_made = 0;
};
