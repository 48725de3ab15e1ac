#include "VersionThinning.h"

#include <algorithm>
#include <iterator>

namespace trel::mediadispatch {

namespace {

constexpr Instant kDay = 24LL * 60 * 60 * 1000;

/// Up to an age one version stays in each stretch of a length.
struct Stage
{
    Instant oldest;
    Instant stretch;
};

constexpr Stage kStages[] = {
    {31 * kDay, kDay},
    {366 * kDay, 7 * kDay},
    {3653 * kDay, 30 * kDay},
};

/// One stretch of a stage; its length is 0 for what is too old for all of them.
struct Stretch
{
    Instant length = 0;
    Instant number = 0;

    bool operator==(const Stretch& other) const
    {
        return length == other.length && number == other.number;
    }
};

Stretch stretchOf(Instant saved, Instant now)
{
    const auto* const stage =
        std::find_if(std::begin(kStages), std::end(kStages),
                     [age = now - saved](const Stage& one) { return age <= one.oldest; });
    return stage == std::end(kStages) ? Stretch{} : Stretch{stage->stretch, saved / stage->stretch};
}

} // namespace

std::vector<qint64> versionsToDrop(const std::vector<VersionAge>& newestFirst, Instant now)
{
    std::vector<qint64> dropped;
    Stretch taken;
    Instant saved = now;
    int place = 0;
    for (const VersionAge& version : newestFirst) {
        saved = version.saved > 0 ? version.saved : saved;
        if (place++ <= kRecentVersions || version.isNamed) {
            continue;
        }
        const Stretch stretch = stretchOf(saved, now);
        if (stretch.length == 0 || stretch == taken) {
            dropped.push_back(version.number);
        }
        taken = stretch;
    }
    std::reverse(dropped.begin(), dropped.end());
    return dropped;
}

} // namespace trel::mediadispatch
