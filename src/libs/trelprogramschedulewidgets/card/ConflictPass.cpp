#include "ConflictPass.h"

#include "ScheduleText.h"
#include "access/SpokenNote.h"
#include "service/PlanCollisions.h"
#include "service/PlanConflicts.h"
#include "service/scheduleManage.h"

#include <QAccessible>
#include <QLabel>
#include <QVariant>

#include <algorithm>

namespace trel::mediadispatch {

namespace {

constexpr char kState[] = "state";

std::vector<PlanClaim> claimsOf(const std::vector<PlayPlan>& plans,
                                const CatalogueSource& catalogue)
{
    auto& service = scheduleManage::getInstance();
    const bool needsCatalogue = std::any_of(plans.begin(), plans.end(), [](const PlayPlan& plan) {
        return plan.mode == FrequencyMode;
    });
    static const std::map<int, ProgramIten> nothing;
    const auto hasNoDuration = [&service](int progIndex) {
        return service.isNoDurationType(progIndex);
    };
    return planClaims(plans, needsCatalogue ? catalogue() : nothing, hasNoDuration);
}

} // namespace

std::unordered_set<int> markConflicts(PlayTask& task)
{
    std::map<int, ProgramIten> fetched;
    return markConflicts(task, [&fetched]() -> const std::map<int, ProgramIten>& {
        fetched = scheduleManage::getInstance().getPrograms();
        return fetched;
    });
}

std::unordered_set<int> markConflicts(PlayTask& task, const CatalogueSource& catalogue)
{
    const std::vector<bool> collides = collidingClaims(claimsOf(task.plans, catalogue));
    std::unordered_set<int> colliding;
    for (std::size_t i = 0; i < task.plans.size(); ++i) {
        task.plans[i].isConflict = collides[i];
        if (collides[i]) {
            colliding.insert(task.plans[i].id);
        }
    }
    return colliding;
}

std::vector<int> firstCollisions(const std::vector<PlayPlan>& plans)
{
    std::map<int, ProgramIten> fetched;
    return firstCollisions(claimsOf(plans, [&fetched]() -> const std::map<int, ProgramIten>& {
        fetched = scheduleManage::getInstance().getPrograms();
        return fetched;
    }));
}

void tellStates(QWidget& card, const std::vector<QLabel*>& labels)
{
    if (!QAccessible::isActive()) {
        return;
    }
    for (QLabel* const label : labels) {
        QAccessibleEvent changed(label, QAccessible::DescriptionChanged);
        QAccessible::updateAccessibility(&changed);
    }
    if (!labels.empty() && labels.front()->isVisible()) {
        QAccessibleEvent alert(labels.front(), QAccessible::Alert);
        QAccessible::updateAccessibility(&alert);
        if (const QAccessibleInterface* const state = alert.accessibleInterface()) {
            SpokenNote::say(card, *state);
        }
    }
}

PlanStateLook::PlanStateLook()
    : m_normal{QStringLiteral("color:green; padding-left: 1px;"), scheduleText("zhnormalStr"),
               QStringLiteral("free")}
    , m_colliding{QStringLiteral("color:red; padding-left: 1px;"), scheduleText("zhconflictStr"),
                  QStringLiteral("collision")}
{}

bool PlanStateLook::show(QLabel& label, bool collides) const
{
    const State& state = collides ? m_colliding : m_normal;
    const State& other = collides ? m_normal : m_colliding;
    const bool isOther = label.styleSheet() == other.styleSheet;
    if (label.styleSheet() != state.styleSheet) {
        // First, for with the label's own sheet that of the application is looked at again.
        label.setProperty(kState, state.hook);
        label.setStyleSheet(state.styleSheet);
    }
    if (label.text() != state.text) {
        label.setText(state.text);
    }
    return isOther;
}

} // namespace trel::mediadispatch
