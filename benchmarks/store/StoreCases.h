#pragma once

namespace bench {

/// Saving a schedule and opening it again.
void addStoreCases();

} // namespace bench
