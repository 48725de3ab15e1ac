#pragma once

#include <cstddef>
#include <cstdint>

class QByteArray;

namespace trust {

/// Whatever a draft holds, it is read as far as it can be, and only what is damaged is left out.
void tryDraft(const QByteArray& input);

/// Changes bytes, and mostly makes the checksums of the records fit again.
std::size_t mutateDraft(std::uint8_t* data, std::size_t size, std::size_t mostSize, unsigned seed);

} // namespace trust
