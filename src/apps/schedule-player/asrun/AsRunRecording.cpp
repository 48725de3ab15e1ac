#include "AsRunRecording.h"

#include "asrun/AsRunKeeper.h"
#include "log/EventWords.h"
#include "system/BootClock.h"
#include "trelscreen/Conductor.h"

#include <chrono>

using namespace std::chrono_literals;
using namespace trel::mediadispatch;
using namespace trel::screen;

namespace trel::player {

namespace {

/// How often it is told that a picture is still on. With the second until that is written, a power
/// cut loses three at most, and the time that a disk takes.
constexpr auto kRound = 2s;

} // namespace

AsRunRecording::AsRunRecording(const AsRunPlace& place)
    : m_mail(std::make_shared<AsRunMail>())
    , m_recorder(sinceBoot, faultSentence,
                 [this](const AsRunEntry& entry) {
                     m_mail->post(entry);
                     wakeKeeper();
                 })
    , m_keeper(std::make_unique<AsRunKeeper>(m_mail, place, bootId()))
{
    m_keeper->moveToThread(&m_thread);
    connect(m_keeper.get(), &AsRunKeeper::told, this, &AsRunRecording::told);
    connect(&m_round, &QTimer::timeout, this, &AsRunRecording::look);
    m_thread.start();
    QMetaObject::invokeMethod(
        m_keeper.get(),
        [keeper = m_keeper.get(), first = m_recorder.open()] { keeper->start(first); },
        Qt::QueuedConnection);
    m_round.start(kRound);
}

AsRunRecording::~AsRunRecording() = default;

void AsRunRecording::follow(const Conductor& conductor)
{
    m_conductor = &conductor;
}

void AsRunRecording::look()
{
    if (m_conductor != nullptr) {
        m_recorder.look(m_conductor->status().play);
    }
    m_mail->post(m_recorder.open());
    wakeKeeper();
}

void AsRunRecording::wakeKeeper()
{
    QMetaObject::invokeMethod(m_keeper.get(), &AsRunKeeper::workSoon, Qt::QueuedConnection);
}

void AsRunRecording::leave()
{
    m_round.stop();
    m_conductor = nullptr;
    m_mail->post(m_recorder.end());
    QMetaObject::invokeMethod(
        m_keeper.get(),
        [this] {
            m_keeper->stop();
            m_thread.quit();
        },
        Qt::QueuedConnection);
}

bool AsRunRecording::waitForEnd(int milliseconds)
{
    return m_thread.wait(static_cast<unsigned long>(milliseconds));
}

} // namespace trel::player
