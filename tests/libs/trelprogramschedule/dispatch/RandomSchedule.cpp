#include "RandomSchedule.h"

#include "ScheduleWriting.h"
#include "StateWriting.h"

#include <algorithm>
#include <cstdio>

using namespace trel::mediadispatch;

namespace {

/// The same numbers on every machine.
class Draw
{
public:
    explicit Draw(std::uint32_t seed)
        : m_engine(seed)
    {}

    /// From 0 to one below the limit.
    int below(int limit) { return static_cast<int>(m_engine() % static_cast<unsigned>(limit)); }
    int between(int first, int last) { return first + below(last - first + 1); }
    bool oneIn(int number) { return below(number) == 0; }

    template <typename T>
    const T& of(const std::vector<T>& values)
    {
        return values[static_cast<std::size_t>(below(static_cast<int>(values.size())))];
    }

private:
    std::mt19937 m_engine;
};

std::string timeText(Draw& draw, const Drawing& drawing)
{
    if (draw.oneIn(40)) {
        return draw.of<std::string>({"", "24:00:00", "ab:cd:ef", "00:00:00", "23:59:59"});
    }
    static const std::vector<int> minutes = {0, 0, 15, 30, 30, 45, 59};
    static const std::vector<int> seconds = {0, 0, 0, 1, 30, 59};
    char text[16];
    std::snprintf(text, sizeof text, "%02d:%02d:%02d",
                  draw.between(drawing.firstHour, drawing.lastHour),
                  draw.oneIn(3) ? draw.below(60) : draw.of(minutes),
                  draw.oneIn(3) ? draw.below(60) : draw.of(seconds));
    return text;
}

std::vector<struProgInfo> entries(Draw& draw)
{
    static const std::string often = "AAAABBBCCHH";
    static const std::string seldom = "ILNUZQ";
    std::vector<struProgInfo> result(static_cast<std::size_t>(draw.below(5)));
    for (struProgInfo& entry : result) {
        const std::string& letters = draw.oneIn(4) ? seldom : often;
        entry.progIndex = programOf(QLatin1Char(
            letters[static_cast<std::size_t>(draw.below(static_cast<int>(letters.size())))]));
        entry.isInvalid = draw.oneIn(12);
        entry.playCount = draw.oneIn(15) ? draw.between(-1, 0) : draw.between(1, 3);
    }
    return result;
}

PlayPlan plan(Draw& draw, const Drawing& drawing)
{
    static const std::vector<std::string> weeks = {
        "0", "0", "", "1,2,3,4,5", "6,7", "7", "7,1", "2", "3", "abc", "8", "1,,5", "7 ,6x", "-1"};
    PlayPlan plan;
    plan.mode = draw.oneIn(25) ? draw.between(-1, 2) : draw.below(2);
    plan.startTime = timeText(draw, drawing);
    plan.endTime = timeText(draw, drawing);
    if (plan.endTime < plan.startTime && !draw.oneIn(8)) {
        std::swap(plan.startTime, plan.endTime);
    }
    plan.times = draw.oneIn(15)  ? draw.between(-1, 0)
                 : draw.oneIn(3) ? draw.between(1, 400)
                                 : draw.between(1, 9);
    plan.endAction = draw.oneIn(10) ? draw.between(-1, 2) : draw.below(2);
    plan.programs = entries(draw);
    plan.weeks = draw.of(weeks);
    return plan;
}

PlayTask task(Draw& draw, const Drawing& drawing, int id)
{
    PlayTask task;
    task.id = id;
    task.startDate = draw.of(drawing.dates);
    task.endDate = draw.of(drawing.dates);
    const int plans = draw.between(0, 6);
    for (int i = 1; i <= plans; ++i) {
        task.plans.push_back(plan(draw, drawing));
        task.plans.back().id = i;
    }
    return task;
}

secondbysecond::Request request(Draw& draw, const Drawing& drawing, const RandomSchedule& schedule,
                                const secondbysecond::Window& window)
{
    secondbysecond::Request request;
    request.moment =
        window.begin + 1000LL * draw.below(static_cast<int>(window.seconds.size()) - 1);
    request.isDelayed = draw.oneIn(2);
    request.taskId = draw.between(1, static_cast<int>(schedule.tasks.size()));
    request.planId = draw.between(1, 4);
    const std::vector<PlayPlan>& plans = schedule.tasks.at(request.taskId).plans;
    const auto row = static_cast<std::size_t>(request.planId - 1);
    request.plan = row < plans.size() ? plans[row] : plan(draw, drawing);
    request.plan.programs = entries(draw);
    request.plan.serviceFlagB = draw.oneIn(3);
    request.plan.endAction = draw.oneIn(4) ? 0 : 1;
    return request;
}

} // namespace

RandomSchedule randomSchedule(std::uint32_t seed, const Drawing& drawing,
                              const secondbysecond::Window& window)
{
    Draw draw(seed);
    RandomSchedule schedule;
    const int tasks = draw.between(1, 4);
    for (int id = 1; id <= tasks; ++id) {
        schedule.tasks[id] = task(draw, drawing, id);
    }
    const int requests = std::max(0, draw.between(-1, 4));
    for (int i = 0; i < requests; ++i) {
        schedule.requests.push_back(request(draw, drawing, schedule, window));
    }
    // Now and then one comes while the former still waits, or has just begun.
    for (std::size_t i = 1; i < schedule.requests.size(); ++i) {
        if (draw.oneIn(2)) {
            schedule.requests[i].moment = std::min<qint64>(
                schedule.requests[i - 1].moment + 1000LL * draw.below(8), window.end() - 1000);
        }
    }
    std::stable_sort(schedule.requests.begin(), schedule.requests.end(),
                     [](const auto& a, const auto& b) { return a.moment < b.moment; });
    return schedule;
}

QString textOf(const RandomSchedule& schedule, const QTimeZone& zone)
{
    QString text = textOf(schedule.tasks);
    for (const secondbysecond::Request& request : schedule.requests) {
        text += QStringLiteral("\n    %1 %2 for %3.%4%5: %6")
                    .arg(momentText(request.moment, zone),
                         QLatin1String(request.isDelayed ? "delayed" : "at once"))
                    .arg(request.taskId)
                    .arg(request.planId)
                    .arg(QLatin1String(request.plan.serviceFlagB ? " outside its span" : ""),
                         textOf(request.plan));
    }
    return text;
}
