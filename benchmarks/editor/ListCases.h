#pragma once

namespace bench {

/// The list of cards, built anew from the stored set.
void addListCases();

} // namespace bench
