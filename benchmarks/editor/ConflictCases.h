#pragma once

namespace bench {

/// The pass over the plans of a card that follows every edit.
void addConflictCases();

} // namespace bench
