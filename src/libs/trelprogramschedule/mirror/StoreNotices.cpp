#include "StoreNotices.h"

#include <QRandomGenerator>

#include <algorithm>
#include <utility>

namespace trel::mediadispatch {

namespace {

/// How often it is asked whether the connection is there.
constexpr StoreNotices::Time kRound{1000};

} // namespace

StoreNotices::Habits::Habits()
    : random([] { return QRandomGenerator::global()->generateDouble(); })
    , now([] {
        return std::chrono::duration_cast<Time>(
            std::chrono::steady_clock::now().time_since_epoch());
    })
{}

StoreNotices::StoreNotices(Look look, IsConnected isConnected, Habits habits)
    : m_look(std::move(look))
    , m_isConnected(std::move(isConnected))
    , m_habits(std::move(habits))
    , m_times(m_habits.random)
    , m_turn(this)
{
    m_turn.setSingleShot(true);
    m_turn.setTimerType(Qt::PreciseTimer);
    connect(&m_turn, &QTimer::timeout, this, &StoreNotices::turn);
}

void StoreNotices::begin()
{
    m_isOn = true;
    m_isRead = false;
    m_times.begin(m_habits.now());
    waitForTurn();
}

void StoreNotices::end()
{
    m_isOn = false;
    m_turn.stop();
}

void StoreNotices::hear()
{
    if (m_isOn) {
        m_times.hear(m_habits.now());
        waitForTurn();
    }
}

void StoreNotices::refuse()
{
    if (m_isOn) {
        m_times.look(m_habits.now(), false);
        waitForTurn();
    }
}

void StoreNotices::turn()
{
    if (m_isRead && !m_isConnected()) {
        m_isRead = false;
        m_times.lose(m_habits.now());
    }
    if (m_habits.now() >= m_times.due()) {
        m_isRead = m_look();
        m_times.look(m_habits.now(), m_isRead);
    }
    waitForTurn();
}

void StoreNotices::waitForTurn()
{
    if (m_isOn) {
        m_turn.start(std::clamp(m_times.due() - m_habits.now(), Time(0), kRound));
    }
}

} // namespace trel::mediadispatch
