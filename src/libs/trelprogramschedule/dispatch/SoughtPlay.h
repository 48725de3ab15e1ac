#pragma once

namespace trel::mediadispatch {

/// The plays that somebody waits for: those of one program, or those of all others.
struct SoughtPlay
{
    int progIndex = -1;   ///< The program.
    bool isOther = false; ///< Any other program is sought.

    /// Whether a play of this program is one that is sought.
    bool isOf(int program) const { return (program == progIndex) != isOther; }
};

} // namespace trel::mediadispatch
