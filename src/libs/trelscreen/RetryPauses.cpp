#include "RetryPauses.h"

namespace trel::screen {

qint64 retryPause(int failures)
{
    constexpr qint64 kFirst = 250;
    constexpr qint64 kSecond = 500;
    constexpr qint64 kLater = 1000;
    return failures <= 1 ? kFirst : failures == 2 ? kSecond : kLater;
}

} // namespace trel::screen
