#include "problems/ProblemModel.h"

#include "common/ProblemText.h"
#include "trelwidgets/PlainToolTip.h"

#include <QApplication>
#include <QStyle>

#include <algorithm>

using namespace trel::hosts;
using namespace trel::mediadispatch;

namespace trel::desktop {

namespace {

/// So many lists at a time are cheaper to put in as a whole.
constexpr std::size_t kManyLists = 64;

bool isBefore(const ScheduleProblem* a, const ScheduleProblem* b)
{
    return comesBefore(*a, *b);
}

QIcon signOf(const ScheduleProblem& problem)
{
    switch (gravityOf(problem)) {
    case ProblemGravity::Refusal:
    case ProblemGravity::Error:
        return QApplication::style()->standardIcon(QStyle::SP_MessageBoxCritical);
    case ProblemGravity::Warning:
        return QApplication::style()->standardIcon(QStyle::SP_MessageBoxWarning);
    case ProblemGravity::Note:
        break;
    }
    return QApplication::style()->standardIcon(QStyle::SP_MessageBoxInformation);
}

} // namespace

ProblemModel::ProblemModel(QObject* parent)
    : QAbstractTableModel(parent)
{}

ProblemModel::~ProblemModel() = default;

int ProblemModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

int ProblemModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

const ScheduleProblem& ProblemModel::problem(int row) const
{
    return *m_rows[static_cast<std::size_t>(row)];
}

QVariant ProblemModel::data(const QModelIndex& index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid)) {
        return {};
    }
    const ScheduleProblem& problem = this->problem(index.row());
    const auto text = [&]() -> QString {
        switch (index.column()) {
        case PlaceColumn:
            return ProblemText::place(problem);
        case DateColumn:
            return ProblemText::date(problem);
        case WrongColumn:
            return ProblemText::wrong(problem, m_locale);
        default:
            return ProblemText::remedy(problem);
        }
    };
    switch (role) {
    case Qt::DisplayRole:
        return text();
    case Qt::ToolTipRole:
        return trel::widgets::plainToolTip(ProblemText::wrong(problem, m_locale) +
                                           QLatin1Char('\n') + ProblemText::remedy(problem));
    case Qt::AccessibleTextRole:
        return index.column() == PlaceColumn
                   ? gravityName(gravityOf(problem)) + QStringLiteral(" · ") + text()
                   : text();
    case Qt::DecorationRole:
        return index.column() == PlaceColumn ? QVariant(signOf(problem)) : QVariant();
    default:
        return {};
    }
}

QString ProblemModel::gravityName(ProblemGravity gravity)
{
    switch (gravity) {
    case ProblemGravity::Refusal:
    case ProblemGravity::Error:
        return tr("Error");
    case ProblemGravity::Warning:
        return tr("Warning");
    case ProblemGravity::Note:
        break;
    }
    return tr("Hint");
}

QVariant ProblemModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole) {
        return QAbstractTableModel::headerData(section, orientation, role);
    }
    switch (section) {
    case PlaceColumn:
        return tr("Place");
    case DateColumn:
        return tr("As of");
    case WrongColumn:
        return tr("What is wrong");
    case RemedyColumn:
        return tr("What to do");
    default:
        return {};
    }
}

void ProblemModel::take(const ProblemChanges& changes)
{
    if (changes.isWhole || changes.lists.size() > kManyLists) {
        takeWhole(changes);
        return;
    }
    for (const auto& [id, list] : changes.lists) {
        takeList(id, list);
    }
}

void ProblemModel::takeWhole(const ProblemChanges& changes)
{
    if (changes.isWhole && changes.lists.empty() && m_rows.empty()) {
        return;
    }
    beginResetModel();
    if (changes.isWhole) {
        m_lists.clear();
    }
    for (const auto& [id, list] : changes.lists) {
        if (list) {
            m_lists[id] = list;
        } else {
            m_lists.erase(id);
        }
    }
    m_rows.clear();
    for (const auto& [id, list] : m_lists) {
        for (const ScheduleProblem& problem : *list) {
            m_rows.push_back(&problem);
        }
    }
    std::stable_sort(m_rows.begin(), m_rows.end(), isBefore);
    endResetModel();
}

std::vector<ProblemModel::Row>::iterator ProblemModel::find(Row problem)
{
    const auto [first, last] = std::equal_range(m_rows.begin(), m_rows.end(), problem, isBefore);
    return std::find(first, last, problem);
}

void ProblemModel::insertRow(Row problem)
{
    const auto place = std::upper_bound(m_rows.begin(), m_rows.end(), problem, isBefore);
    const int row = static_cast<int>(place - m_rows.begin());
    beginInsertRows({}, row, row);
    m_rows.insert(place, problem);
    endInsertRows();
}

void ProblemModel::takeList(int taskId, const List& list)
{
    const List former = m_lists[taskId];
    std::vector<Row> added;
    for (std::size_t i = 0; list && i < list->size(); ++i) {
        added.push_back(&(*list)[i]);
    }
    for (std::size_t i = 0; former && i < former->size(); ++i) {
        const Row gone = &(*former)[i];
        const auto row = find(gone);
        // Both lists have one order.
        const auto candidates = std::equal_range(added.begin(), added.end(), gone, isBefore);
        const auto same = std::find_if(candidates.first, candidates.second,
                                       [gone](Row candidate) { return *candidate == *gone; });
        if (same != candidates.second) {
            *row = *same;
            added.erase(same);
            continue;
        }
        const int number = static_cast<int>(row - m_rows.begin());
        beginRemoveRows({}, number, number);
        m_rows.erase(row);
        endRemoveRows();
    }
    for (const Row problem : added) {
        insertRow(problem);
    }
    if (list) {
        m_lists[taskId] = list;
    } else {
        m_lists.erase(taskId);
    }
}

void ProblemModel::retranslate(const QLocale& locale)
{
    m_locale = locale;
    emit headerDataChanged(Qt::Horizontal, 0, ColumnCount - 1);
    if (!m_rows.empty()) {
        emit dataChanged(index(0, 0), index(rowCount() - 1, ColumnCount - 1));
    }
}

} // namespace trel::desktop
