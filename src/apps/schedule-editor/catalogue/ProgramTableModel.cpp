#include "catalogue/ProgramTableModel.h"

#include "BidiText.h"
#include "catalogue/ProgramDrag.h"
#include "catalogue/ProgramWords.h"
#include "trelwidgets/PlainToolTip.h"

#include <QBrush>
#include <QGuiApplication>
#include <QPalette>

#include <algorithm>
#include <set>
#include <utility>

using namespace trel::mediadispatch;

namespace trel::desktop {

namespace {

/// Numbers stand under one another; everything else has the alignment of its view.
QVariant alignmentOf(int column)
{
    const bool isNumber =
        column == ProgramTableModel::IndexColumn || column == ProgramTableModel::LengthColumn;
    return isNumber ? QVariant(static_cast<int>(Qt::AlignRight | Qt::AlignVCenter)) : QVariant();
}

/// A path runs from left to right in every language. Without a mark its first slash would go to its
/// end where one reads from the right.
QString shownPath(const QString& path)
{
    return QGuiApplication::isRightToLeft() ? leftToRight(path) : path;
}

bool haveSameIndexes(const ProgramRows& a, const ProgramRows& b)
{
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [](const ProgramIten* one, const ProgramIten* other) {
                          return one->progIndex == other->progIndex;
                      });
}

/// What tells of a program in full. The name stands in front of it where it may have been cut.
QString toolTip(const ProgramIten& program, int column)
{
    const QString address = programwords::address(program);
    const QString told =
        program.isNull ? ProgramTableModel::tr("File not found: %1").arg(address) : address;
    return column == ProgramTableModel::NameColumn
               ? programwords::name(program) + QLatin1Char('\n') + told
               : told;
}

} // namespace

ProgramTableModel::ProgramTableModel(QObject* parent)
    : QAbstractTableModel(parent)
{}

int ProgramTableModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

int ProgramTableModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(ColumnCount);
}

QVariant ProgramTableModel::text(const ProgramIten& program, int column)
{
    switch (column) {
    case NameColumn:
        return programwords::name(program);
    case FolderColumn:
        return shownPath(programwords::folder(program));
    case KindColumn:
        return programwords::kind(program.kind);
    case LengthColumn:
        return programwords::length(program);
    case IndexColumn:
        return program.progIndex;
    default:
        return QVariant();
    }
}

QVariant ProgramTableModel::data(const QModelIndex& index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid)) {
        return QVariant();
    }
    const ProgramIten& program = this->program(index.row());
    switch (role) {
    case Qt::DisplayRole:
        return text(program, index.column());
    case Qt::ToolTipRole:
        return trel::widgets::plainToolTip(toolTip(program, index.column()));
    case Qt::TextAlignmentRole:
        return alignmentOf(index.column());
    case Qt::ForegroundRole:
        if (program.isNull) {
            return QGuiApplication::palette().brush(QPalette::Disabled, QPalette::Text);
        }
        return QVariant();
    case ProgramIndexRole:
        return program.progIndex;
    case MissingRole:
        return program.isNull;
    default:
        return QVariant();
    }
}

QVariant ProgramTableModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation == Qt::Horizontal && role == Qt::TextAlignmentRole) {
        return alignmentOf(section);
    }
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole) {
        return QAbstractTableModel::headerData(section, orientation, role);
    }
    switch (section) {
    case NameColumn:
        return tr("Program");
    case FolderColumn:
        return tr("Folder");
    case KindColumn:
        return tr("Kind");
    case LengthColumn:
        return tr("Length");
    case IndexColumn:
        return tr("No.");
    default:
        return QVariant();
    }
}

Qt::ItemFlags ProgramTableModel::flags(const QModelIndex& index) const
{
    const Qt::ItemFlags flags = QAbstractTableModel::flags(index);
    return index.isValid() ? flags | Qt::ItemIsDragEnabled : flags;
}

QStringList ProgramTableModel::mimeTypes() const
{
    return {programdrag::mimeType()};
}

QMimeData* ProgramTableModel::mimeData(const QModelIndexList& indexes) const
{
    std::set<int> rows;
    for (const QModelIndex& index : indexes) {
        rows.insert(index.row());
    }
    std::vector<int> programs;
    programs.reserve(rows.size());
    for (const int row : rows) {
        programs.push_back(program(row).progIndex);
    }
    return programdrag::make(programs);
}

Qt::DropActions ProgramTableModel::supportedDragActions() const
{
    return Qt::CopyAction;
}

void ProgramTableModel::show(const follow::SharedCatalogue& catalogue, const ProgramRows& rows)
{
    if (haveSameIndexes(rows, m_rows)) {
        // The operator keeps the selection and the place in the table.
        m_rows = rows;
        m_catalogue = catalogue;
        if (!m_rows.empty()) {
            emit dataChanged(index(0, 0), index(rowCount() - 1, ColumnCount - 1));
        }
        return;
    }
    beginResetModel();
    m_rows = rows;
    m_catalogue = catalogue;
    endResetModel();
}

const ProgramIten& ProgramTableModel::program(int row) const
{
    return *m_rows[static_cast<std::size_t>(row)];
}

void ProgramTableModel::retranslate()
{
    emit headerDataChanged(Qt::Horizontal, 0, ColumnCount - 1);
    if (!m_rows.empty()) {
        emit dataChanged(index(0, KindColumn), index(rowCount() - 1, KindColumn));
    }
}

} // namespace trel::desktop
