#include "FollowCases.h"

#include "Comparison.h"
#include "Samples.h"
#include "service/scheduleManage.h"
#include "trelprogramschedule/ScheduleHost.h"
#include "trelprogramschedule/faults/FaultWords.h"

#include <QEventLoop>
#include <QTemporaryDir>
#include <QTimer>

#include <chrono>
#include <memory>
#include <stdexcept>

using namespace trel::mediadispatch;

namespace bench {

namespace {

using std::chrono::seconds;

/// A look is a reading of one row, beside the waking itself.
constexpr double kAgainstWaking = 10.0;
constexpr seconds kRest{4};
constexpr int kRounds = 5;
constexpr int kTasks = 1000;
constexpr int kPlans = 5;

void rest()
{
    QEventLoop loop;
    QTimer::singleShot(kRest, Qt::PreciseTimer, &loop, &QEventLoop::quit);
    loop.exec();
}

double wakeOnly()
{
    QTimer second;
    second.setTimerType(Qt::PreciseTimer);
    second.start(seconds(1));
    return processorSeconds(&rest);
}

/// A schedule in effect that nobody changes.
class StoreAtRest
{
public:
    StoreAtRest()
    {
        ScheduleHost& host = ScheduleHost::instance();
        const StoreResult results[] = {host.open(m_folder.filePath(QStringLiteral("station.db"))),
                                       host.replaceSchedule(sampleTasks(kTasks, kPlans)),
                                       host.startSchedule()};
        for (const StoreResult& result : results) {
            if (!result) {
                throw std::runtime_error(englishText(result).toStdString());
            }
        }
    }
    ~StoreAtRest() { ScheduleHost::instance().close(); }
    Q_DISABLE_COPY(StoreAtRest)

    double follow() const
    {
        ScheduleHost::instance().followStore();
        // What follows from the opening is no rest.
        rest();
        const double cost = processorSeconds(&rest);
        ScheduleHost::instance().followStore(false);
        return cost;
    }

private:
    QTemporaryDir m_folder;
};

} // namespace

void addFollowCases()
{
    const auto store = std::make_shared<std::unique_ptr<StoreAtRest>>();
    const auto follow = [store] {
        if (!*store) {
            *store = std::make_unique<StoreAtRest>();
        }
        return (*store)->follow();
    };
    add({"Follow a store at rest, against waking once a second", "1,000 tasks of 5 plans",
         kAgainstWaking, follow, wakeOnly, kRounds});
}

} // namespace bench
