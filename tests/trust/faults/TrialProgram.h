#pragma once

#include <QString>

#include <chrono>
#include <random>

/// What the programs of trials have in common: how long they go on, from which seed they draw, and
/// the line about it at their end.
class TrialProgram
{
public:
    /// Reads "--minutes N --seed S" of the application's arguments, both of which may be left out.
    explicit TrialProgram(const char* target);

    /// Whether there is time left.
    bool goesOn() const;
    std::mt19937& chance() { return m_chance; }

    /// One thing was tried.
    void count() { ++m_executions; }
    /// Something did not hold. The first few are told in full.
    void fault(const QString& what);
    bool hasFaults() const { return m_faults > 0; }

    /// Writes the line and gives the exit status.
    int finish() const;

private:
    const char* m_target;
    std::chrono::steady_clock::time_point m_begin = std::chrono::steady_clock::now();
    std::chrono::duration<double> m_time{60.0};
    unsigned m_seed = 1;
    std::mt19937 m_chance;
    long m_executions = 0;
    long m_faults = 0;
};
