#include "follow/ScheduleEdits.h"

namespace trel::desktop::follow {

namespace {

constexpr std::size_t kShort = 100;
/// Programs are only copied.
constexpr std::size_t kFewPrograms = 2'000;

} // namespace

void ScheduleEdits::add(const ScheduleEdits& later)
{
    if (later.isWhole) {
        isWhole = true;
        tasks = later.tasks;
    } else {
        for (const auto& [id, task] : later.tasks) {
            tasks.insert_or_assign(id, task);
        }
    }
    if (later.catalogue) {
        catalogue = later.catalogue;
    }
    size = later.size;
}

bool ScheduleEdits::isShort() const
{
    return size <= kShort && (!catalogue || catalogue->size() <= kFewPrograms);
}

} // namespace trel::desktop::follow
