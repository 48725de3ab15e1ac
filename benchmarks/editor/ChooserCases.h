#pragma once

namespace bench {

/// Opening the chooser of programs, and the moves in its tables.
void addChooserCases();

} // namespace bench
