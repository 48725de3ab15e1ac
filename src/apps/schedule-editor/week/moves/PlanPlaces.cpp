#include "week/moves/PlanPlaces.h"

#include "service/PlanTiming.h"
#include "week/WeekView.h"

#include <algorithm>

using namespace trel::mediadispatch;

namespace trel::desktop::week {

namespace {

constexpr int kLeastHeight = 3;

std::string endInForce(const PlayPlan& plan, const Programs& programs)
{
    return plan.mode == FrequencyMode ? plannedEnd(plan, programs, noDurationIn(programs))
                                      : plan.endTime;
}

} // namespace

QRect placeOfPlan(const WeekView& view, int day, const PlayPlan& plan, const Programs& programs)
{
    PlayPlan inForce = plan;
    inForce.endTime = endInForce(plan, programs);
    const std::optional<int> begin = beginOf(inForce);
    const std::optional<int> end = endOf(inForce);
    if (!begin || !end) {
        return {};
    }
    const WeekGeometry& geometry = view.geometryOfWeek();
    QRect place = geometry.inside(day);
    place.setTop(geometry.top(*begin));
    place.setHeight(std::max(geometry.top(*end) - place.top(), kLeastHeight));
    return place.translated(-view.offset());
}

} // namespace trel::desktop::week
