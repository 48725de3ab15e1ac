#include "versions/StretchModel.h"

#include "BidiText.h"
#include "screen/ScreenWords.h"
#include "service/ScheduleRecords.h"
#include "trelwidgets/PlainToolTip.h"
#include "versions/DifferenceWords.h"
#include "versions/VersionWords.h"

#include <utility>

using namespace trel::mediadispatch;

namespace trel::desktop::versions {

StretchModel::StretchModel(QObject* parent)
    : QAbstractTableModel(parent)
    , m_local(QTimeZone::utc())
{}

void StretchModel::setStretches(std::shared_ptr<const StateComparison> comparison,
                                WeekOnScreen week)
{
    beginResetModel();
    m_comparison = std::move(comparison);
    m_stretches = std::move(week.stretches);
    if (week.zone.isValid()) {
        m_local = MomentFormat(week.zone);
    }
    endResetModel();
    emit headerDataChanged(Qt::Horizontal, 0, ColumnCount - 1);
}

void StretchModel::retranslate()
{
    emit headerDataChanged(Qt::Horizontal, 0, ColumnCount - 1);
    if (!m_stretches.empty()) {
        emit dataChanged(index(0, 0), index(rowCount() - 1, ColumnCount - 1));
    }
}

int StretchModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_stretches.size());
}

int StretchModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant StretchModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid()) {
        return {};
    }
    const ScreenDifference& stretch = m_stretches[static_cast<std::size_t>(index.row())];
    if (role == look::kProgramsRole && index.column() == FormerColumn) {
        return QVariant::fromValue(programs(m_comparison->former, stretch.former));
    }
    if (role == look::kProgramsRole && index.column() == LaterColumn) {
        return QVariant::fromValue(programs(m_comparison->later, stretch.later));
    }
    if (role != Qt::DisplayRole && role != Qt::ToolTipRole) {
        return {};
    }
    const QString shown = text(stretch, index.column());
    return role == Qt::DisplayRole ? shown : trel::widgets::plainToolTip(shown);
}

QString StretchModel::text(const ScreenDifference& stretch, int column) const
{
    switch (column) {
    case FromColumn:
        return momentText(stretch.from);
    case ToColumn:
        return isSameDay(stretch) ? m_local.text(stretch.to, stretch.from) : momentText(stretch.to);
    case FormerColumn:
        return screenText(m_comparison->former, stretch.former);
    default:
        return screenText(m_comparison->later, stretch.later);
    }
}

bool StretchModel::isSameDay(const ScreenDifference& stretch) const
{
    return isDated(stretch.from) && isDated(stretch.to) &&
           m_local.shownAt(stretch.from).date() == m_local.shownAt(stretch.to).date();
}

QString StretchModel::momentText(Instant moment) const
{
    // Beside itself a moment has its time alone.
    const QString time = m_local.text(moment, moment);
    return isDated(moment) ? leftToRight(m_local.shownAt(moment).date().toString(kDateFormat) +
                                         QLatin1Char(' ') + time)
                           : time;
}

QString StretchModel::screenText(const ComparedState& state, const ScreenState& screen) const
{
    const week::WeekSchedule& schedule = *state.picture.schedule;
    const PlayPlan* const plan = hasPlan(screen) ? schedule.plan(screen) : nullptr;
    if (plan == nullptr) {
        const std::string name = schedule.program(screen.progIndex).toStdString();
        return ScreenWords::program(screen.picture, DifferenceWords::shown(name));
    }
    return DifferenceWords::ofPlan(
        screen.taskId, screen.planId,
        DifferenceWords::programs(plan->programs, *m_comparison->catalogue));
}

/// Those that the words for a screen name.
look::ProgramIndexes StretchModel::programs(const ComparedState& state,
                                            const ScreenState& screen) const
{
    const PlayPlan* const plan = hasPlan(screen) ? state.picture.schedule->plan(screen) : nullptr;
    look::ProgramIndexes named;
    if (plan != nullptr) {
        for (const struProgInfo& entry : plan->programs) {
            named.append(entry.progIndex);
        }
    } else if (screen.picture != ScreenPicture::Black) {
        named.append(screen.progIndex);
    }
    return named;
}

QVariant StretchModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole) {
        return {};
    }
    switch (section) {
    case FromColumn:
        return tr("From");
    case ToColumn:
        return tr("To");
    case FormerColumn:
        return m_comparison ? VersionWords::state(m_comparison->former.state) : QString();
    default:
        return m_comparison ? VersionWords::state(m_comparison->later.state) : QString();
    }
}

} // namespace trel::desktop::versions
