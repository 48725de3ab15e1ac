#pragma once

namespace bench {

/// Building and destroying one card, and the memory that it takes.
void addCardCases();

} // namespace bench
