#pragma once

#include "Database.h"
#include "service/ScheduleRecords.h"

#include <QString>

#include <map>
#include <optional>

namespace trel::console {

class Console;

/// One of the two states that are compared: a version, what is saved, or what is in effect.
struct ScheduleSide
{
    QString word; ///< As it is asked for: a number, "saved" or "effect".
    std::map<int, trel::mediadispatch::PlayTask> tasks;

    /// "version 12", "what is saved" or "what is in effect"
    QString text() const;
};

inline const QLatin1String kSavedSide("saved");
inline const QLatin1String kEffectSide("effect");

/// Whether a word stands for a state at all.
bool isSide(const QString& word);

/// Reads the state that a word stands for; none, and the user is told why, where there is none.
std::optional<ScheduleSide> readSide(const QString& word, const Database& database,
                                     const Invocation& invocation, Console& console);

} // namespace trel::console
