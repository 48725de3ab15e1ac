#pragma once

#include "Samples.h"

namespace bench {

/// What the schedule service of this program answers with. It takes edits and forgets them, and
/// hands out copies as every service does, so that what is measured is the editor.
struct QuietService
{
    static QuietService& instance();

    ProgramMap programs;
    TaskMap tasks;
};

} // namespace bench
