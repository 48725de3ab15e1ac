#pragma once

namespace trel::mediadispatch {

/// The plays that somebody waits for: those of one program, or those of all others.
struct SoughtPlay
{
    int progIndex = -1;
    bool isOther = false;

    bool isOf(int program) const { return (program == progIndex) != isOther; }
};

} // namespace trel::mediadispatch
