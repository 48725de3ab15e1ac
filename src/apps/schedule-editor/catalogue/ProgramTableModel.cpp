#include "catalogue/ProgramTableModel.h"

#include "BidiText.h"
#include "catalogue/ProgramDrag.h"
#include "service/scheduleManage.h"
#include "trelprogramschedule/catalogue/ShownAddress.h"
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

/// A length as hours, minutes and seconds; hours may pass 24.
QString lengthText(double durationMs)
{
    const auto seconds = static_cast<qint64>(durationMs / 1000.0);
    return QStringLiteral("%1:%2:%3")
        .arg(seconds / 3600, 2, 10, QLatin1Char('0'))
        .arg(seconds / 60 % 60, 2, 10, QLatin1Char('0'))
        .arg(seconds % 60, 2, 10, QLatin1Char('0'));
}

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

bool haveSameIndexes(const std::vector<ProgramIten>& a, const std::vector<ProgramIten>& b)
{
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [](const ProgramIten& one, const ProgramIten& other) {
                          return one.progIndex == other.progIndex;
                      });
}

bool hasLength(const ProgramIten& program)
{
    return hasOwnLength(program) && program.durationMs >= 0.0;
}

} // namespace

ProgramTableModel::ProgramTableModel(QObject* parent)
    : QAbstractTableModel(parent)
{}

int ProgramTableModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_programs.size());
}

int ProgramTableModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(ColumnCount);
}

QVariant ProgramTableModel::text(const ProgramIten& program, int column) const
{
    switch (column) {
    case IndexColumn:
        return program.progIndex;
    case NameColumn:
        return QString::fromStdString(program.progName);
    case KindColumn:
        switch (program.kind) {
        case ProgramKind::Video:
            return tr("Video");
        case ProgramKind::Audio:
            return tr("Audio");
        case ProgramKind::Image:
            return tr("Image");
        case ProgramKind::Live:
            return tr("Live");
        case ProgramKind::Other:
            return tr("Other");
        }
        return QVariant();
    case LengthColumn:
        return hasLength(program) ? lengthText(program.durationMs) : QString();
    case PathColumn:
        return shownPath(shownAddress(QString::fromStdString(program.mediaPath)));
    default:
        return QVariant();
    }
}

QVariant ProgramTableModel::data(const QModelIndex& index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid)) {
        return QVariant();
    }
    const ProgramIten& program = m_programs[static_cast<std::size_t>(index.row())];
    switch (role) {
    case Qt::DisplayRole:
        return text(program, index.column());
    case Qt::ToolTipRole: {
        const QString address = shownAddress(QString::fromStdString(program.mediaPath));
        return trel::widgets::plainToolTip(program.isNull ? tr("File not found: %1").arg(address)
                                                          : address);
    }
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
    case IndexColumn:
        return tr("No.");
    case NameColumn:
        return tr("Program");
    case KindColumn:
        return tr("Kind");
    case LengthColumn:
        return tr("Length");
    case PathColumn:
        return tr("File");
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
    for (const int row : rows) {
        programs.push_back(index(row, 0).data(ProgramIndexRole).toInt());
    }
    return programdrag::make(programs);
}

Qt::DropActions ProgramTableModel::supportedDragActions() const
{
    return Qt::CopyAction;
}

void ProgramTableModel::reload()
{
    std::vector<ProgramIten> programs;
    for (auto& [index, program] : scheduleManage::getInstance().getPrograms()) {
        programs.push_back(std::move(program));
    }
    if (haveSameIndexes(programs, m_programs)) {
        // The operator keeps the selection and the place in the table.
        m_programs = std::move(programs);
        if (!m_programs.empty()) {
            emit dataChanged(index(0, 0), index(rowCount() - 1, ColumnCount - 1));
        }
        return;
    }
    beginResetModel();
    m_programs = std::move(programs);
    endResetModel();
}

void ProgramTableModel::retranslate()
{
    emit headerDataChanged(Qt::Horizontal, 0, ColumnCount - 1);
    if (!m_programs.empty()) {
        emit dataChanged(index(0, KindColumn), index(rowCount() - 1, KindColumn));
    }
}

} // namespace trel::desktop
