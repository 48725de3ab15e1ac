#pragma once

namespace trel::console {

/// Makes the program say so and end with Refused where memory runs out and nothing else is there to
/// refuse: where an exception would leave main(), and where the database gets no memory, since the
/// toolkit's driver dereferences what the database could not give it. What was being written to the
/// store is then undone as after any sudden end. To be called before the database is used.
void endWhereMemoryRunsOut();

} // namespace trel::console
