#pragma once

namespace bench {

/// What an operator waits for in the whole host, with the real service: changes of the catalogue,
/// a save, a start.
void addWaitCases();

} // namespace bench
