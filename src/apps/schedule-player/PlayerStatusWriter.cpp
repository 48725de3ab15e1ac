#include "PlayerStatusWriter.h"

#include "trelprogramschedule/faults/FaultWords.h"

#include <utility>

using namespace trel::mediadispatch;

namespace trel::player {

PlayerStatusWriter::PlayerStatusWriter(const QString& store)
    : m_folder(store)
{}

void PlayerStatusWriter::write(const PlayerStatus& status)
{
    const QString reason = englishSentence(m_folder.write(status));
    if (std::exchange(m_reason, reason) != reason && !reason.isEmpty()) {
        emit failed(reason);
    }
}

void PlayerStatusWriter::remove(const QString& screen)
{
    m_folder.remove(screen);
}

} // namespace trel::player
