#include "asrun/AsRunModel.h"

#include "asrun/AsRunText.h"
#include "look/ProgramSigns.h"
#include "trelwidgets/PlainToolTip.h"

#include <utility>

using namespace trel::mediadispatch;

namespace trel::desktop {

namespace {

/// The program that stands in a column; -1 for none.
int program(const AsRunLine& line, int column)
{
    if (column == AsRunModel::PlannedColumn) {
        return line.isPlanKnown && line.planned != ScreenPicture::Black ? line.plannedIndex : -1;
    }
    const bool isShown = column == AsRunModel::ShownColumn && line.isRecorded &&
                         line.record.kind == AsRunKind::Picture;
    const bool isNamed =
        line.record.shown == AsRunShown::LastFrame ||
        (line.record.shown == AsRunShown::AsPlanned && line.record.picture != ScreenPicture::Black);
    return isShown && isNamed ? line.record.progIndex : -1;
}

} // namespace

AsRunModel::AsRunModel(QObject* parent)
    : QAbstractTableModel(parent)
    , m_local(QTimeZone::utc())
{}

void AsRunModel::setDay(std::vector<AsRunLine> lines, const QDate& date, const QTimeZone& zone)
{
    beginResetModel();
    m_lines = std::move(lines);
    m_date = date;
    m_local = MomentFormat(zone);
    choose();
    endResetModel();
}

void AsRunModel::setOnlyDeviations(bool isOnly)
{
    beginResetModel();
    m_isOnlyDeviations = isOnly;
    choose();
    endResetModel();
}

void AsRunModel::choose()
{
    m_rows.clear();
    for (std::size_t i = 0; i < m_lines.size(); ++i) {
        if (!m_isOnlyDeviations || !m_lines[i].isAsPlanned()) {
            m_rows.push_back(i);
        }
    }
}

void AsRunModel::retranslate(const QLocale& locale)
{
    m_locale = locale;
    emit headerDataChanged(Qt::Horizontal, 0, ColumnCount - 1);
    if (!m_rows.empty()) {
        emit dataChanged(index(0, 0), index(rowCount() - 1, ColumnCount - 1));
    }
}

int AsRunModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

int AsRunModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant AsRunModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid()) {
        return QVariant();
    }
    const AsRunLine& line = m_lines[m_rows[static_cast<std::size_t>(index.row())]];
    if (role == look::kProgramsRole) {
        return QVariant::fromValue(look::ProgramIndexes{program(line, index.column())});
    }
    if (role != Qt::DisplayRole && role != Qt::ToolTipRole) {
        return QVariant();
    }
    const QString shown = text(line, index.column());
    return role == Qt::DisplayRole ? shown : trel::widgets::plainToolTip(shown);
}

QString AsRunModel::text(const AsRunLine& line, int column) const
{
    switch (column) {
    case FromColumn:
        return AsRunText::moment(line.from, m_date, m_local);
    case ToColumn:
        return AsRunText::moment(line.to, m_date, m_local);
    case PlannedColumn:
        return AsRunText::planned(line);
    case ShownColumn:
        return AsRunText::shown(line);
    default:
        return AsRunText::remark(line, m_locale);
    }
}

QVariant AsRunModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole) {
        return QVariant();
    }
    switch (section) {
    case FromColumn:
        return tr("From");
    case ToColumn:
        return tr("To");
    case PlannedColumn:
        return tr("Planned");
    case ShownColumn:
        return tr("On screen");
    default:
        return tr("Remark");
    }
}

} // namespace trel::desktop
