#include "ScheduleCheck.h"

#include "DisplayText.h"
#include "service/PlanConflicts.h"

#include <QDate>
#include <QTime>

using namespace trel::mediadispatch;

namespace {

constexpr int kTaskItself = -1;

/// The first claim before the given one that collides with it.
int firstCollidingRow(const std::vector<PlanClaim>& claims, std::size_t row)
{
    for (std::size_t earlier = 0; earlier < row; ++earlier) {
        if (collidingClaims({claims[earlier], claims[row]})[1]) {
            return static_cast<int>(earlier);
        }
    }
    return -1;
}

bool isDate(const std::string& text)
{
    const QDate date = QDate::fromString(QString::fromStdString(text), kDateFormat);
    return date.isValid() && date.toString(kDateFormat).toStdString() == text;
}

bool isTime(const std::string& text)
{
    const QTime time = QTime::fromString(QString::fromStdString(text), kTimeFormat);
    return time.isValid() && time.toString(kTimeFormat).toStdString() == text;
}

/// Gathers the remarks of one task after the other.
class Remarks
{
public:
    explicit Remarks(std::vector<ScheduleRemark>& remarks)
        : m_remarks(remarks)
    {}

    void lookAt(const PlayTask& task)
    {
        m_taskId = task.id;
        m_row = kTaskItself;
        const bool hasStart = expectDate(QStringLiteral("startDate"), task.startDate);
        const bool hasEnd = expectDate(QStringLiteral("endDate"), task.endDate);
        if (hasStart && hasEnd && task.endDate < task.startDate) {
            remark(QStringLiteral("endDate"),
                   QStringLiteral("%1 lies before the start date").arg(shown(task.endDate)));
        }
        for (const PlayPlan& plan : task.plans) {
            ++m_row;
            expectTime(QStringLiteral("startTime"), plan.startTime);
            expectTime(QStringLiteral("endTime"), plan.endTime);
        }
    }

private:
    static QString shown(const std::string& text) { return quoted(QString::fromStdString(text)); }

    bool expectDate(const QString& field, const std::string& text)
    {
        return isDate(text) ||
               remark(
                   field,
                   QStringLiteral("%1 is not a date in the form %2").arg(shown(text), kDateFormat));
    }

    bool expectTime(const QString& field, const std::string& text)
    {
        return isTime(text) ||
               remark(
                   field,
                   QStringLiteral("%1 is not a time in the form %2").arg(shown(text), kTimeFormat));
    }

    bool remark(const QString& field, const QString& sentence)
    {
        m_remarks.push_back({m_taskId, m_row, field, sentence});
        return false;
    }

    std::vector<ScheduleRemark>& m_remarks;
    int m_taskId = 0;
    int m_row = kTaskItself;
};

} // namespace

std::vector<PlanState> planStates(const std::vector<PlayPlan>& plans, const Catalogue& catalogue)
{
    const std::vector<PlanClaim> claims =
        planClaims(plans, catalogue.programs, catalogue.hasNoDuration);
    const std::vector<bool> colliding = collidingClaims(claims);
    std::vector<PlanState> states;
    states.reserve(claims.size());
    for (std::size_t row = 0; row < claims.size(); ++row) {
        states.push_back({claims[row].end, colliding[row] ? firstCollidingRow(claims, row) : -1});
    }
    return states;
}

ScheduleCheck checkSchedule(const std::map<int, PlayTask>& tasks, const Catalogue& catalogue)
{
    ScheduleCheck check;
    check.overlaps = allTaskOverlaps(tasks);
    Remarks remarks(check.remarks);
    for (const auto& [id, task] : tasks) {
        const std::vector<PlanState> states = planStates(task.plans, catalogue);
        for (std::size_t row = 0; row < states.size(); ++row) {
            if (states[row].collides()) {
                check.collisions.push_back(
                    {id, static_cast<int>(row), states[row].collidingRow, states[row].end});
            }
        }
        remarks.lookAt(task);
    }
    return check;
}
