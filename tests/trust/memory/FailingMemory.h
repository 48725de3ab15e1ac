#pragma once

/// Lets the allocations of this program fail: the n-th from now on, once or for good, whoever makes
/// it and by whatever function. Takes the place of malloc and its like, and so does not go together
/// with sanitizers. For the thread that calls it; all others get what they ask for.
class FailingMemory
{
public:
    enum class Lasting { Once, ForGood };
    enum class Kind {
        All,
        /// Those of C++ alone. The toolkit's driver for databases ends the program where the
        /// database itself lacks memory.
        Objects,
    };

    /// Begins to count.
    static void failAt(long nth, Lasting lasting, Kind kind = Kind::All);
    /// No allocation fails any more.
    static void heal();
    /// How many there have been since failAt.
    static long count();
    /// Whether one has failed since then.
    static bool hasFailed();
    /// The code that got no memory first, null before.
    static const void* refused();
};
