#include "ChooserRows.h"

#include "CheckOrder.h"

#include <QStandardItem>

#include <algorithm>

namespace trel::mediadispatch {

namespace {

/// So many rows are removed one by one; the views go through all rows for each of them.
constexpr std::size_t kFewRows = 16;

/// The pattern after which a model makes a cell that is missing: hands out the given cells, row by
/// row, instead of copies of itself.
class ReadyCells : public QStandardItem
{
public:
    explicit ReadyCells(const std::vector<QList<QStandardItem*>>& rows)
        : m_rows(rows)
    {}

    QStandardItem* clone() const override
    {
        const QList<QStandardItem*>& row = m_rows[m_row];
        QStandardItem* const cell = row.at(m_column);
        m_column = (m_column + 1) % row.size();
        m_row += m_column == 0 ? 1 : 0;
        return cell;
    }

private:
    const std::vector<QList<QStandardItem*>>& m_rows;
    mutable std::size_t m_row = 0;
    mutable int m_column = 0;
};

QList<QStandardItem*> takeCells(QStandardItemModel& model, int row)
{
    QList<QStandardItem*> cells;
    cells.reserve(model.columnCount());
    for (int column = 0; column < model.columnCount(); ++column) {
        cells.append(model.takeItem(row, column));
    }
    return cells;
}

QStandardItem* makeCentred(const QString& text)
{
    auto* item = new QStandardItem(text);
    item->setTextAlignment(Qt::AlignCenter);
    return item;
}

} // namespace

ChoiceRow choiceRowOf(const struProgInfo& entry, ProgramIten (*lookup)(int progIndex),
                      const QString& nullSuffix)
{
    ChoiceRow row;
    if (entry.isInvalid) {
        row.name = QString::fromStdString(entry.progName);
        row.foreground = QBrush(Qt::red);
    } else {
        const ProgramIten program = lookup(entry.progIndex);
        row.name = QString::fromStdString(program.progName);
        if (program.isNull) {
            row.name += nullSuffix;
            row.foreground = QBrush(Qt::yellow);
        }
    }
    row.toolTip = row.name;
    row.playCount = entry.playCount;
    row.progIndex = entry.progIndex;
    return row;
}

QList<QStandardItem*> makeOfferCells(const QString& name)
{
    auto* nameItem = new QStandardItem(name);
    nameItem->setToolTip(name);
    return {new QStandardItem, makeCentred(QString()), nameItem};
}

QList<QStandardItem*> makeChoiceCells(const ChoiceRow& row)
{
    auto* name = new QStandardItem(row.name);
    if (!row.toolTip.isEmpty()) {
        name->setToolTip(row.toolTip);
    }
    if (row.foreground.style() != Qt::NoBrush) {
        name->setForeground(row.foreground);
    }
    const QList<QStandardItem*> cells = {
        new QStandardItem,
        makeCentred(row.number > 0 ? formatRowNumber(row.number) : QString()),
        name,
        new QStandardItem(QString::number(row.playCount)),
        new QStandardItem(QString::number(row.progIndex)),
        new QStandardItem(row.isNew ? QStringLiteral("1") : QStringLiteral("0"))};
    for (QStandardItem* cell : cells) {
        cell->setFlags(Qt::ItemIsSelectable | Qt::ItemIsEnabled);
    }
    cells.at(ChoiceCountColumn)->setEditable(true);
    return cells;
}

bool isRowChecked(const QAbstractItemModel& model, int row)
{
    static_assert(int(OfferCheckColumn) == int(ChoiceCheckColumn));
    return model.index(row, ChoiceCheckColumn).data(kCheckRole).toBool();
}

void setRowChecked(QAbstractItemModel& model, int row, bool checked)
{
    model.setData(model.index(row, ChoiceCheckColumn), checked, kCheckRole);
}

std::vector<int> checkedRows(const QAbstractItemModel& model)
{
    std::vector<int> rows;
    for (int row = 0; row < model.rowCount(); ++row) {
        if (isRowChecked(model, row)) {
            rows.push_back(row);
        }
    }
    return rows;
}

int countCheckedRows(const QAbstractItemModel& model)
{
    int count = 0;
    for (int row = 0; row < model.rowCount(); ++row) {
        count += isRowChecked(model, row) ? 1 : 0;
    }
    return count;
}

struProgInfo choiceAt(const QAbstractItemModel& model, int row)
{
    struProgInfo entry;
    entry.progIndex = choiceIndexAt(model, row);
    entry.progName = model.index(row, ChoiceNameColumn).data().toString().toStdString();
    entry.playCount = choiceCountAt(model, row);
    return entry;
}

int choiceIndexAt(const QAbstractItemModel& model, int row)
{
    return model.index(row, ChoiceIndexColumn).data().toString().toInt();
}

int choiceCountAt(const QAbstractItemModel& model, int row)
{
    return model.index(row, ChoiceCountColumn).data().toString().toInt();
}

bool isNewChoice(const QAbstractItemModel& model, int row)
{
    return model.index(row, ChoiceNewColumn).data().toBool();
}

void appendRows(QStandardItemModel& model, const std::vector<QList<QStandardItem*>>& rows)
{
    if (rows.empty()) {
        return;
    }
    const int columns = rows.front().size();
    if (model.columnCount() < columns) {
        model.setColumnCount(columns);
    }
    const int first = model.rowCount();
    model.setItemPrototype(new ReadyCells(rows));
    model.insertRows(first, static_cast<int>(rows.size()));
    for (int row = first; row < model.rowCount(); ++row) {
        for (int column = 0; column < columns; ++column) {
            model.itemFromIndex(model.index(row, column));
        }
    }
    model.setItemPrototype(nullptr);
}

void removeRows(QStandardItemModel& model, const std::vector<int>& rows)
{
    if (rows.size() <= kFewRows) {
        // From the end, so that the numbers of the rows before stay right.
        std::for_each(rows.rbegin(), rows.rend(), [&model](int row) { model.removeRow(row); });
        return;
    }
    // With its place a cell also loses the knowledge of it, and would look for itself among all
    // cells at the next change; put in anew it knows.
    std::vector<QList<QStandardItem*>> kept;
    auto removed = rows.begin();
    for (int row = rows.front(); row < model.rowCount(); ++row) {
        const QList<QStandardItem*> cells = takeCells(model, row);
        if (removed != rows.end() && *removed == row) {
            ++removed;
            qDeleteAll(cells);
        } else {
            kept.push_back(cells);
        }
    }
    model.removeRows(rows.front(), model.rowCount() - rows.front());
    appendRows(model, kept);
}

void removeEntries(std::vector<struProgInfo>& entries, const std::vector<int>& rows)
{
    std::vector<struProgInfo> kept;
    kept.reserve(entries.size());
    auto removed = rows.begin();
    for (std::size_t row = 0; row < entries.size(); ++row) {
        if (removed != rows.end() && static_cast<std::size_t>(*removed) == row) {
            ++removed;
        } else {
            kept.push_back(std::move(entries[row]));
        }
    }
    entries = std::move(kept);
}

double totalDuration(const QAbstractItemModel& model, int editedRow, int editedCount,
                     double (*length)(int progIndex))
{
    double total = 0.0;
    for (int row = 0; row < model.rowCount(); ++row) {
        if (row != editedRow) {
            total += length(choiceIndexAt(model, row)) * choiceCountAt(model, row);
        }
    }
    if (editedRow >= 0 && editedCount > 0) {
        total += length(choiceIndexAt(model, editedRow)) * editedCount;
    }
    return total;
}

} // namespace trel::mediadispatch
