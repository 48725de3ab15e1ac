#pragma once

#include <cstddef>
#include <cstdint>

class QByteArray;

namespace trust {

/// A file is refused, and left as it is, or it is a store that can be read and written.
void tryStore(const QByteArray& input);

/// Changes bytes where a database keeps what its pages are made of.
std::size_t mutateStore(std::uint8_t* data, std::size_t size, std::size_t mostSize, unsigned seed);

} // namespace trust
