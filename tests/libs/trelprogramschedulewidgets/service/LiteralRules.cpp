#include "LiteralRules.h"

#include <QString>
#include <QTime>

#include <cstdlib>
#include <limits>

using namespace trel::mediadispatch;

namespace literal {

std::vector<std::string> split(const std::string& text)
{
    std::vector<std::string> tokens(1);
    for (const char c : text) {
        if (c == ',') {
            tokens.emplace_back();
        } else {
            tokens.back() += c;
        }
    }
    return tokens;
}

bool parseWeeks(std::string weeks, std::vector<int>& numbers)
{
    if (weeks.empty()) {
        weeks = "0";
    }
    bool isEveryDay = false;
    for (const std::string& token : split(weeks)) {
        const int number = std::atoi(token.c_str());
        numbers.push_back(number);
        if (number == 0) {
            isEveryDay = true;
        }
    }
    return isEveryDay;
}

bool weeksOverlap(const std::string& a, const std::string& b)
{
    std::vector<int> numbersOfA;
    std::vector<int> numbersOfB;
    if (literal::parseWeeks(a, numbersOfA)) {
        return true;
    }
    if (literal::parseWeeks(b, numbersOfB)) {
        return true;
    }
    for (const int inA : numbersOfA) {
        for (const int inB : numbersOfB) {
            if (inA == inB) {
                return true;
            }
        }
    }
    return false;
}

std::string addDuration(const std::string& start, int seconds)
{
    const QString format = QStringLiteral("hh:mm:ss");
    const QTime startTime = QTime::fromString(QString::fromStdString(start), format);
    const QTime dayEnd = QTime::fromString(QStringLiteral("23:59:59"), format);
    std::string result = startTime.addSecs(seconds).toString(format).toStdString();
    if (startTime.hour() == dayEnd.hour() && dayEnd.minute() - startTime.minute() < 60) {
        result = "23:59:59";
    }
    return result;
}

Lookup lookupIn(const std::map<int, ProgramIten>& catalogue)
{
    return [&catalogue](int progIndex) {
        const auto found = catalogue.find(progIndex);
        return found == catalogue.end() ? std::nullopt : std::make_optional(found->second);
    };
}

std::string plannedEnd(const PlayPlan& plan, const Lookup& lookup,
                       const NoDurationTest& hasNoDuration)
{
    const QString format = QStringLiteral("hh:mm:ss");
    const QTime start = QTime::fromString(QString::fromStdString(plan.startTime), format);
    double total = 0.0;
    for (const struProgInfo& entry : plan.programs) {
        const std::optional<ProgramIten> program = lookup(entry.progIndex);
        if (!program) {
            continue;
        }
        if (hasNoDuration(entry.progIndex)) {
            return "23:59:59";
        }
        const double duration = program->durationMs;
        if (duration >= 0.0) {
            total += entry.playCount * duration;
        }
    }
    total *= plan.times;
    if (total > static_cast<double>(start.msecsTo(QTime(23, 59, 59, 0)))) {
        return "23:59:59";
    }
    // What lies outside the type has no conversion of its own; it counts as the lowest number.
    const double lowest = std::numeric_limits<int>::min();
    const int milliseconds =
        total >= lowest ? static_cast<int>(total) : std::numeric_limits<int>::min();
    return start.addMSecs(milliseconds).toString(format).toStdString();
}

std::vector<bool> collidingPlans(const std::vector<PlayPlan>& plans, const Lookup& lookup,
                                 const NoDurationTest& hasNoDuration)
{
    std::vector<bool> collides(plans.size(), false);
    for (std::size_t i = 0; i < plans.size(); ++i) {
        const std::string startA = plans[i].startTime;
        std::string endA = plans[i].endTime;
        if (plans[i].mode == 1) {
            endA = literal::plannedEnd(plans[i], lookup, hasNoDuration);
        }
        for (std::size_t j = i + 1; j < plans.size(); ++j) {
            const std::string startB = plans[j].startTime;
            std::string endB = plans[j].endTime;
            if (plans[j].mode == 1) {
                endB = literal::plannedEnd(plans[j], lookup, hasNoDuration);
            }
            if (!literal::weeksOverlap(plans[i].weeks, plans[j].weeks)) {
                continue;
            }
            if (endB < startB || endA < startA || (startA < endB && startB < endA)) {
                collides[j] = true;
            }
        }
    }
    return collides;
}

std::vector<std::pair<int, int>> taskOverlaps(const std::map<int, PlayTask>& tasks)
{
    std::vector<std::pair<int, int>> overlaps;
    for (auto a = tasks.begin(); a != tasks.end(); ++a) {
        for (auto b = std::next(a); b != tasks.end(); ++b) {
            if (b->second.id == a->second.id) {
                continue;
            }
            if (b->second.startDate <= a->second.endDate &&
                a->second.startDate <= b->second.endDate) {
                overlaps.emplace_back(a->second.id, b->second.id);
            }
        }
    }
    return overlaps;
}

} // namespace literal
