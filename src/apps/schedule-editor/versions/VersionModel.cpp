#include "versions/VersionModel.h"

#include "common/DisplayText.h"
#include "trelwidgets/PlainToolTip.h"
#include "versions/VersionWords.h"

#include <algorithm>
#include <utility>

using namespace trel::mediadispatch;

namespace trel::desktop::versions {

VersionModel::VersionModel(QObject* parent)
    : QAbstractTableModel(parent)
    , m_zone(QTimeZone::utc())
{}

void VersionModel::setVersions(std::vector<ScheduleVersion> versions, const QTimeZone& zone)
{
    beginResetModel();
    m_versions = std::move(versions);
    m_zone = zone;
    endResetModel();
}

int VersionModel::rowOf(qint64 number) const
{
    const auto found =
        std::find_if(m_versions.begin(), m_versions.end(),
                     [number](const ScheduleVersion& one) { return one.number == number; });
    return found == m_versions.end() ? -1 : static_cast<int>(found - m_versions.begin());
}

void VersionModel::retranslate()
{
    emit headerDataChanged(Qt::Horizontal, 0, ColumnCount - 1);
    if (!m_versions.empty()) {
        emit dataChanged(index(0, 0), index(rowCount() - 1, ColumnCount - 1));
    }
}

int VersionModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_versions.size());
}

int VersionModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant VersionModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid() || (role != Qt::DisplayRole && role != Qt::ToolTipRole)) {
        return {};
    }
    const QString shown = text(m_versions[static_cast<std::size_t>(index.row())], index.column());
    return role == Qt::DisplayRole ? shown : trel::widgets::plainToolTip(shown);
}

QString VersionModel::text(const ScheduleVersion& version, int column) const
{
    switch (column) {
    case NumberColumn:
        return QString::number(version.number);
    case SavedColumn:
        return VersionWords::saved(version, m_zone);
    case ByColumn:
        return hosts::printable(version.by);
    case ChangeColumn:
        return VersionWords::change(version);
    case NameColumn:
        return hosts::printable(version.name);
    default:
        return hosts::escapedText(version.note);
    }
}

QVariant VersionModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole) {
        return {};
    }
    switch (section) {
    case NumberColumn:
        return tr("Version");
    case SavedColumn:
        return tr("Saved");
    case ByColumn:
        return tr("By");
    case ChangeColumn:
        return tr("Changes");
    case NameColumn:
        return tr("Name");
    default:
        return tr("Note");
    }
}

} // namespace trel::desktop::versions
