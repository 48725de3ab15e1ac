#pragma once

namespace bench {

/// What the host's panels do with each edit: the changes of the clocks and the picture of the week.
void addKeystrokeCases();

} // namespace bench
