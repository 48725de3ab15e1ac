#pragma once

#include <string>

namespace bench {

/// The machine and the tools that the figures belong to, as the end of a sentence.
std::string machineText();

} // namespace bench
