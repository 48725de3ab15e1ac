#pragma once

#include "Command.h"
#include "Database.h"
#include "screen/StoredScreen.h"

#include <functional>

namespace trel::console {

class Console;

/// What a command does with what is in effect in a store.
using EffectWork =
    std::function<ExitStatus(const Database& database, const trel::mediadispatch::MomentFormat&)>;

/// Opens the database of a command and does it; refused where the local time is not known.
ExitStatus onEffect(const Invocation& invocation, Database::Access access, Console& console,
                    const EffectWork& work);

/// Tells what a change has come to: the user where it was refused, in words and, where the results
/// are to be JSON, for machines.
ExitStatus tellOutcome(const trel::mediadispatch::StoreResult& result, const Invocation& invocation,
                       Console& console);

} // namespace trel::console
