#include "SecondBySecond.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <limits>
#include <tuple>

using trel::mediadispatch::PlayPlan;
using trel::mediadispatch::PlayTask;
using trel::mediadispatch::ProgramIten;
using trel::mediadispatch::ProgramKind;
using trel::mediadispatch::struProgInfo;

namespace secondbysecond {

namespace {

using Micro = std::int64_t;
using Catalogue = std::map<int, ProgramIten>;

constexpr int kLastSecondOfDay = 86'399;
constexpr Micro kForGood = -1;

bool isWithoutLength(const ProgramIten& program)
{
    return program.kind == ProgramKind::Image || program.kind == ProgramKind::Live;
}

/// -1 for a text that names no time.
int secondOf(const std::string& text)
{
    int hour = 0;
    int minute = 0;
    int second = 0;
    if (text.size() != 8 || text[2] != ':' || text[5] != ':' ||
        std::sscanf(text.c_str(), "%2d:%2d:%2d", &hour, &minute, &second) != 3 || hour > 23 ||
        minute > 59 || second > 59) {
        return -1;
    }
    return hour * 3600 + minute * 60 + second;
}

bool isDate(const std::string& text)
{
    int year = 0;
    int month = 0;
    int day = 0;
    if (text.size() != 10 || std::sscanf(text.c_str(), "%4d.%2d.%2d", &year, &month, &day) != 3 ||
        month < 1 || month > 12 || day < 1) {
        return false;
    }
    const bool isLeap = (year % 4 == 0 && year % 100 != 0) || year % 400 == 0;
    const int lengths[] = {31, isLeap ? 29 : 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    return day <= lengths[month - 1];
}

bool fitsWeekday(const std::string& weeks, int weekday)
{
    std::string rest = weeks;
    for (;;) {
        const std::size_t comma = rest.find(',');
        const int number = std::atoi(rest.substr(0, comma).c_str());
        if (number == 0 || number == weekday) {
            return true;
        }
        if (comma == std::string::npos) {
            return false;
        }
        rest = rest.substr(comma + 1);
    }
}

/// The second of the day at which the plan ends; -1 when there is none.
int endSecond(const PlayPlan& plan, const Catalogue& catalogue)
{
    if (plan.mode != 1) {
        return secondOf(plan.endTime);
    }
    double total = 0.0;
    for (const struProgInfo& entry : plan.programs) {
        const auto program = catalogue.find(entry.progIndex);
        if (program == catalogue.end()) {
            continue;
        }
        if (isWithoutLength(program->second)) {
            return kLastSecondOfDay;
        }
        if (program->second.durationMs >= 0.0) {
            total += entry.playCount * program->second.durationMs;
        }
    }
    total *= plan.times;
    const int start = secondOf(plan.startTime);
    if (start < 0) {
        return total > 0.0 ? kLastSecondOfDay : -1;
    }
    if (total > (kLastSecondOfDay - start) * 1000.0) {
        return kLastSecondOfDay;
    }
    // Negative play counts carry the end back over midnight.
    constexpr std::int64_t day = 86'400'000;
    const auto whole = static_cast<std::int64_t>(std::max(total, -2'147'483'648.0));
    return static_cast<int>((((start * std::int64_t{1000} + whole) % day) + day) % day / 1000);
}

/// One play after the other, as they come in one run of a list.
struct Play
{
    int entry = 0;
    int progIndex = 0;
    int play = 0;
    Micro length = 0; ///< kForGood for a program without a length.
};

struct Run
{
    std::vector<Play> plays;
    Micro length = 0; ///< kForGood when one of the plays does not end.
    bool repeats = false;
    int times = 0;
    bool freezes = false;

    bool hasNothing() const { return plays.empty() || (!repeats && times <= 0); }
};

Run runOf(const PlayPlan& plan, const Catalogue& catalogue, bool once)
{
    Run run;
    run.repeats = plan.mode == 0 && !once;
    run.times = once ? 1 : plan.times;
    run.freezes = plan.endAction != 0;
    for (std::size_t i = 0; i < plan.programs.size(); ++i) {
        const struProgInfo& entry = plan.programs[i];
        const auto program = catalogue.find(entry.progIndex);
        if (entry.isInvalid || program == catalogue.end() || program->second.isNull) {
            continue;
        }
        const Micro length = isWithoutLength(program->second)
                                 ? kForGood
                                 : std::llround(program->second.durationMs * 1000.0);
        for (int play = 0; play < entry.playCount && (length > 0 || length == kForGood); ++play) {
            run.plays.push_back({static_cast<int>(i), entry.progIndex, play, length});
            if (length == kForGood) {
                run.length = kForGood;
                return run;
            }
            run.length += length;
        }
    }
    return run;
}

void showPlay(Shown& shown, const Play& play, int run, Micro position)
{
    shown.entry = play.entry;
    shown.progIndex = play.progIndex;
    shown.play = play.play;
    shown.run = run;
    shown.position = position / 1000;
}

/// What a list shows after a while; gives the rest of the play, kForGood when it does not end.
Micro showRun(Shown& shown, const Run& run, Micro elapsed)
{
    if (run.hasNothing()) {
        return kForGood;
    }
    const Micro whole = run.length == kForGood ? 0 : elapsed / run.length;
    if (!run.repeats && whole >= run.times) {
        shown.isFrozen = run.freezes;
        if (run.freezes) {
            showPlay(shown, run.plays.back(), run.times - 1, run.plays.back().length);
        }
        return kForGood;
    }
    Micro rest = run.length == kForGood ? elapsed : elapsed - whole * run.length;
    for (const Play& play : run.plays) {
        if (play.length == kForGood || rest < play.length) {
            shown.isPlaying = true;
            showPlay(shown, play, static_cast<int>(whole), rest);
            return play.length == kForGood ? kForGood : play.length - rest;
        }
        rest -= play.length;
    }
    std::abort();
}

struct Plan
{
    int taskId = 0;
    int planId = 0;
    int row = 0;
    std::string weeks;
    int start = -1;
    int end = -1;
    Run run;
};

struct Task
{
    std::string first;
    std::string last;
    std::vector<Plan> plans;
};

/// A plan that is cut in.
struct Cut
{
    int taskId = 0;
    int planId = 0;
    int row = -1;
    Run run;
    Instant begins = 0;
    Instant ends = 0;
};

class Walk
{
public:
    Walk(const Window& window, const std::map<int, PlayTask>& tasks, const Catalogue& catalogue)
        : m_window(window)
        , m_catalogue(catalogue)
    {
        for (const auto& [id, task] : tasks) {
            Task read = {task.startDate, task.endDate, {}};
            for (std::size_t i = 0; i < task.plans.size(); ++i) {
                const PlayPlan& plan = task.plans[i];
                read.plans.push_back({id, plan.id, static_cast<int>(i), plan.weeks,
                                      secondOf(plan.startTime), endSecond(plan, catalogue),
                                      runOf(plan, catalogue, false)});
            }
            m_tasks.push_back(read);
        }
        findHolders();
    }

    std::vector<Shown> run(const std::vector<Request>& requests)
    {
        std::vector<Shown> result;
        std::size_t next = 0;
        const Plan* last = nullptr;
        int lastSecond = 0;
        for (std::size_t i = 0; i < m_holders.size(); ++i) {
            if (m_holders[i]) {
                last = m_holders[i];
                lastSecond = m_window.seconds[i].second;
            }
            m_plain = {};
            m_plainRest = kForGood;
            if (m_holders[i]) {
                showHolder(i);
            } else if (last) {
                showLeft(*last, lastSecond);
            }
            while (next < requests.size() && requests[next].moment == instant(i)) {
                cutIn(requests[next], i);
                ++next;
            }
            result.push_back(shownAt(i, nullptr));
        }
        return result;
    }

private:
    Instant instant(std::size_t i) const { return m_window.begin + static_cast<Instant>(i) * 1000; }

    std::size_t secondHolding(Instant moment) const
    {
        return static_cast<std::size_t>((moment - m_window.begin) / 1000);
    }

    void findHolders()
    {
        const Task* task = nullptr;
        const std::vector<WallSecond>& seconds = m_window.seconds;
        std::vector<const Plan*> today;
        for (std::size_t i = 0; i < seconds.size(); ++i) {
            if (i == 0 || seconds[i].date != seconds[i - 1].date) {
                task = taskOn(seconds[i].date);
                today.clear();
                for (std::size_t p = 0; task && p < task->plans.size(); ++p) {
                    if (fitsWeekday(task->plans[p].weeks, seconds[i].weekday)) {
                        today.push_back(&task->plans[p]);
                    }
                }
            }
            const Plan* holder = nullptr;
            for (const Plan* plan : today) {
                if (plan->start >= 0 && plan->start <= seconds[i].second &&
                    seconds[i].second < plan->end) {
                    holder = plan;
                    break;
                }
            }
            m_holders.push_back(holder);
        }
    }

    const Task* taskOn(const std::string& date) const
    {
        for (const Task& task : m_tasks) {
            if (isDate(task.first) && isDate(task.last) && task.first <= date &&
                date <= task.last) {
                return &task;
            }
        }
        return nullptr;
    }

    void showHolder(std::size_t i)
    {
        const Plan& plan = *m_holders[i];
        m_plain.holder = Holder::Plan;
        m_plain.taskId = plan.taskId;
        m_plain.planId = plan.planId;
        m_plain.row = plan.row;
        m_plainRest =
            showRun(m_plain, plan.run, Micro{m_window.seconds[i].second - plan.start} * 1'000'000);
    }

    void showLeft(const Plan& plan, int lastSecond)
    {
        // The last millisecond of the plan's last second.
        const Micro elapsed = Micro{lastSecond - plan.start} * 1'000'000 + 999'000;
        Shown left;
        const Micro rest = showRun(left, plan.run, elapsed);
        m_plain.hasEnded = true;
        if (plan.run.freezes && (left.isPlaying || left.isFrozen)) {
            const bool isOver = left.isFrozen;
            m_plain = left;
            m_plain.hasEnded = true;
            m_plain.isPlaying = false;
            m_plain.isFrozen = true;
            if (!isOver) {
                // By the end of that millisecond the play may be over; else it has gone on by it.
                const Play& play = playOf(plan.run, left);
                const Micro played = play.length == kForGood ? 0 : play.length - rest;
                m_plain.position = play.length == kForGood
                                       ? left.position + 1
                                       : std::min(played + 1000, play.length) / 1000;
            }
        }
        m_plain.taskId = plan.taskId;
        m_plain.planId = plan.planId;
        m_plain.row = plan.row;
    }

    static const Play& playOf(const Run& run, const Shown& shown)
    {
        return *std::find_if(run.plays.begin(), run.plays.end(), [&](const Play& play) {
            return play.entry == shown.entry && play.play == shown.play;
        });
    }

    /// Of the cuts, the one that has the screen. Gives the end of the play, where it is asked for.
    Shown shownAt(std::size_t i, Instant* end) const
    {
        const Instant now = instant(i);
        for (const Cut& cut : m_cuts) {
            if (cut.begins <= now && now < cut.ends) {
                Shown shown;
                shown.holder = Holder::Insertion;
                shown.taskId = cut.taskId;
                shown.planId = cut.planId;
                shown.row = cut.row;
                const Micro elapsed = (now - cut.begins) * 1000;
                const Micro rest = showRun(shown, cut.run, elapsed);
                if (end) {
                    *end =
                        rest == kForGood ? cut.ends : std::min(cut.ends, now + (rest + 999) / 1000);
                }
                return shown;
            }
        }
        if (end) {
            *end = endOfPlay(i);
        }
        return m_plain;
    }

    /// Of a plan's play at a second: its own end, or the first second at which another has the
    /// screen or the clock does not show the next second.
    Instant endOfPlay(std::size_t i) const
    {
        const Instant own =
            m_plainRest == kForGood ? kBeyond : instant(i) + (m_plainRest + 999) / 1000;
        for (std::size_t j = i + 1; j < m_holders.size() && instant(j) < own; ++j) {
            if (m_holders[j] != m_holders[i] ||
                m_window.seconds[j].second != m_window.seconds[j - 1].second + 1) {
                return instant(j);
            }
        }
        return own < m_window.end() ? own : kBeyond;
    }

    void cutIn(const Request& request, std::size_t i)
    {
        const Instant now = instant(i);
        m_cuts.erase(
            std::remove_if(m_cuts.begin(), m_cuts.end(),
                           [now](const Cut& cut) { return now < cut.begins || cut.ends <= now; }),
            m_cuts.end());
        Cut cut;
        cut.taskId = request.taskId;
        cut.planId = request.planId;
        for (const Task& task : m_tasks) {
            for (const Plan& plan : task.plans) {
                if (cut.row < 0 && plan.taskId == cut.taskId && plan.planId == cut.planId) {
                    cut.row = plan.row;
                }
            }
        }
        cut.run = runOf(request.plan, m_catalogue, request.plan.serviceFlagB);
        cut.begins = now;
        if (request.isDelayed) {
            Instant end = now;
            if (shownAt(i, &end).isPlaying) {
                cut.begins = end;
            }
        }
        if (cut.begins < m_window.end()) {
            cut.ends = request.plan.serviceFlagB ? endOfOneRun(cut) : endOfSpan(cut, request.plan);
            for (Cut& former : m_cuts) {
                former.ends = std::min(former.ends, cut.begins);
            }
            m_cuts.push_back(cut);
        }
    }

    Instant endOfSpan(const Cut& cut, const PlayPlan& plan) const
    {
        const std::size_t first = secondHolding(cut.begins);
        const auto target =
            std::make_pair(m_window.seconds[first].date, endSecond(plan, m_catalogue));
        for (std::size_t i = first; i < m_window.seconds.size(); ++i) {
            if (std::make_pair(m_window.seconds[i].date, m_window.seconds[i].second) >= target) {
                return std::max(instant(i), cut.begins);
            }
        }
        return kBeyond;
    }

    Instant endOfOneRun(const Cut& cut) const
    {
        if (cut.run.hasNothing()) {
            return cut.begins;
        }
        if (cut.run.length != kForGood) {
            return cut.begins + (cut.run.length + 999) / 1000;
        }
        for (std::size_t i = secondHolding(cut.begins) + 1; i < m_holders.size(); ++i) {
            if (m_holders[i] && m_holders[i] != m_holders[i - 1]) {
                return instant(i);
            }
        }
        return kBeyond;
    }

    const Window& m_window;
    const Catalogue& m_catalogue;
    std::vector<Task> m_tasks;
    std::vector<const Plan*> m_holders; // Of each second.
    std::vector<Cut> m_cuts;
    Shown m_plain; // What the second shows without the cuts.
    Micro m_plainRest = kForGood;
};

} // namespace

bool Shown::operator==(const Shown& other) const
{
    return std::tie(holder, hasEnded, isPlaying, isFrozen, taskId, planId, row, entry, progIndex,
                    play, run, position) == std::tie(other.holder, other.hasEnded, other.isPlaying,
                                                     other.isFrozen, other.taskId, other.planId,
                                                     other.row, other.entry, other.progIndex,
                                                     other.play, other.run, other.position);
}

Window windowOf(const char* zone, Instant begin, int seconds)
{
    const char* const former = std::getenv("TZ");
    const std::string kept = former ? former : "";
    setenv("TZ", zone, 1);
    tzset();
    Window window;
    window.begin = begin;
    for (int i = 0; i < seconds; ++i) {
        const std::time_t now = begin / 1000 + i;
        std::tm local = {};
        localtime_r(&now, &local);
        char date[16] = {};
        std::strftime(date, sizeof date, "%Y.%m.%d", &local);
        window.seconds.push_back({date, local.tm_wday == 0 ? 7 : local.tm_wday,
                                  local.tm_hour * 3600 + local.tm_min * 60 + local.tm_sec});
    }
    setenv("TZ", kept.c_str(), 1);
    tzset();
    return window;
}

std::vector<Shown> walk(const Window& window, const std::map<int, PlayTask>& tasks,
                        const std::map<int, ProgramIten>& catalogue,
                        const std::vector<Request>& requests)
{
    return Walk(window, tasks, catalogue).run(requests);
}

} // namespace secondbysecond
