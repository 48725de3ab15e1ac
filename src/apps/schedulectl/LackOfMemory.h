#pragma once

namespace trel::console {

/// Makes the program say so and end with Refused where memory runs out and nothing else is there to
/// refuse, which is where an exception would leave main(). What was being written to the store is
/// then undone as after any sudden end.
void endWhereMemoryRunsOut();

} // namespace trel::console
