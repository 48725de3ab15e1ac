#pragma once

namespace bench {

/// Reading and verifying what was on a screen for a year, and a day of it.
void addAsRunCases();

} // namespace bench
