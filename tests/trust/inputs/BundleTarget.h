#pragma once

#include <cstddef>
#include <cstdint>

class QByteArray;

namespace trust {

/// Whatever a bundle holds, nothing leaves the folder of its media, and nothing gets there but what
/// has its hash.
void tryBundle(const QByteArray& input);

/// Changes bytes, and mostly makes the sums of the heads, and the hash of the schedule, fit again.
std::size_t mutateBundle(std::uint8_t* data, std::size_t size, std::size_t mostSize, unsigned seed);

} // namespace trust
