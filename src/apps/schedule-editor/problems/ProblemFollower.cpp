#include "problems/ProblemFollower.h"

#include "clock/Clock.h"
#include "follow/EditedSchedule.h"

using namespace trel::mediadispatch;

namespace trel::desktop {

ProblemFollower::ProblemFollower(follow::EditedSchedule& edited, QObject* parent)
    : QObject(parent)
    , m_model(new ProblemModel(this))
    , m_search(std::make_shared<ProblemWork>())
{
    connect(&edited, &follow::EditedSchedule::edited, this, &ProblemFollower::take);
    take(edited.everything());
}

ProblemFollower::~ProblemFollower() = default;

void ProblemFollower::take(const follow::ScheduleEdits& edits)
{
    m_search->order(edits, Clock::current().zone(), Clock::current().today());
    const auto work = [this, search = m_search](const follow::Cancellation& cancellation) {
        const auto changes = search->find(cancellation);
        return follow::NewestWork::Outcome([this, search, changes] {
            search->taken(changes->number);
            m_model->take(*changes);
            emit found();
        });
    };
    if (edits.isShort() && !m_work.isBusy()) {
        m_work.carryOut(work);
    } else {
        m_work.start(work);
    }
}

} // namespace trel::desktop
