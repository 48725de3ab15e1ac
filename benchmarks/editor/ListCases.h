#pragma once

namespace bench {

/// The list of cards, built again from the stored set.
void addListCases();

} // namespace bench
