#include "TrialProgram.h"

#include <QCoreApplication>
#include <QStringList>

#include <cstdio>

TrialProgram::TrialProgram(const char* target)
    : m_target(target)
{
    const QStringList arguments = QCoreApplication::arguments();
    const auto valueOf = [&arguments](const char* option) {
        const int place = arguments.indexOf(QLatin1String(option));
        return place < 0 ? QString() : arguments.value(place + 1);
    };
    if (const QString minutes = valueOf("--minutes"); !minutes.isEmpty()) {
        m_time = std::chrono::duration<double>(minutes.toDouble() * 60.0);
    }
    if (const QString seed = valueOf("--seed"); !seed.isEmpty()) {
        m_seed = seed.toUInt();
    }
    m_chance.seed(m_seed);
}

bool TrialProgram::goesOn() const
{
    return std::chrono::steady_clock::now() - m_begin < m_time;
}

void TrialProgram::fault(const QString& what)
{
    constexpr long mostTold = 20;
    if (++m_faults <= mostTold) {
        std::fprintf(stderr, "FAULT (%s, seed %u): %s\n", m_target, m_seed, qUtf8Printable(what));
    }
}

int TrialProgram::finish() const
{
    const std::chrono::duration<double> seconds = std::chrono::steady_clock::now() - m_begin;
    std::printf(R"({"target":"%s","seed":%u,"executions":%ld,"faults":%ld,"seconds":%.1f})"
                "\n",
                m_target, m_seed, m_executions, m_faults, seconds.count());
    return m_faults == 0 ? 0 : 1;
}
