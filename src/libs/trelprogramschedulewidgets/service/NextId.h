#pragma once

#include <limits>
#include <optional>

namespace trel::mediadispatch {

/// The id that follows the largest one in use; none when there is no such number.
inline std::optional<int> idAfter(int largest)
{
    if (largest == std::numeric_limits<int>::max()) {
        return std::nullopt;
    }
    return largest + 1;
}

} // namespace trel::mediadispatch
