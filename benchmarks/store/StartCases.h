#pragma once

namespace bench {

/// Starting the application until the demonstration schedule is painted.
void addStartCases();

} // namespace bench
