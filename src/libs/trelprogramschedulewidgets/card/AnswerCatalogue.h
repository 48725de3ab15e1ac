#pragma once

#include "service/ScheduleRecords.h"

#include <map>
#include <optional>

class QObject;

namespace trel::mediadispatch {

/// The catalogue for one answer of a card, fetched from the service when it is first asked for.
///
/// Some signals go round all cards, those of the service among them, and to copy a long catalogue
/// costs more than the answer: one copy serves all cards of a round.
class AnswerCatalogue
{
public:
    /// Has each signal of the service begin a round. To be called before a card connects to it, as
    /// cards must not hear of the signal first.
    static void followService();
    /// A signal of sender begins to go round. The copy of the former round is given up.
    static void beginRound(const QObject& sender);

    /// For an answer to a signal of sender, or null for a call of another kind.
    explicit AnswerCatalogue(const QObject* sender);

    /// Stays as it is until the event loop runs, and until renew().
    const std::map<int, ProgramIten>& programs();
    /// Forgets what has been fetched for this answer alone. The copy of a round stays: a change of
    /// the catalogue begins another one.
    void renew();

private:
    bool m_isOfRound;
    std::optional<std::map<int, ProgramIten>> m_own;
};

} // namespace trel::mediadispatch
