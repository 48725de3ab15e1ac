#pragma once

namespace bench {

/// What a player costs the machine, and how punctual many of them are.
void addPlayCases();

} // namespace bench
