#pragma once

namespace bench {

/// Saving with the state before kept, against saving without.
void addVersionCases();

} // namespace bench
