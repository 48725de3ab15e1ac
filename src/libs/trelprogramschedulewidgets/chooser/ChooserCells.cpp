#include "ChooserCells.h"

#include "CheckOrder.h"
#include "ChooserColumns.h"
#include "trelwidgets/PlainToolTip.h"

#include <QStandardItem>

#include <algorithm>
#include <functional>
#include <utility>

namespace trel::mediadispatch {

namespace {

/// The work of removing rows one by one that takes about a tenth of a second.
constexpr double kMuchWork = 15e6;

/// Makes a cell of the rows that are being appended, counted from the first of them.
using CellMaker = std::function<QStandardItem*(std::size_t row, int column)>;

/// The pattern after which a model makes a cell that is missing: hands out the cells of new rows,
/// row by row from the left, instead of copies of itself.
class CellSource : public QStandardItem
{
public:
    CellSource(int columns, const CellMaker& make)
        : m_columns(columns)
        , m_make(make)
    {}

    QStandardItem* clone() const override
    {
        QStandardItem* const cell = m_make(m_row, m_column);
        m_column = (m_column + 1) % m_columns;
        m_row += m_column == 0 ? 1 : 0;
        return cell;
    }

private:
    int m_columns;
    const CellMaker& m_make;
    mutable std::size_t m_row = 0;
    mutable int m_column = 0;
};

/// The model owns the cells from here on.
void appendRows(QStandardItemModel& model, std::size_t rows, int columns, const CellMaker& make)
{
    if (rows == 0) {
        return;
    }
    if (model.columnCount() < columns) {
        model.setColumnCount(columns);
    }
    const int first = model.rowCount();
    model.insertRows(first, static_cast<int>(rows));
    model.setItemPrototype(new CellSource(columns, make));
    for (int row = first; row < model.rowCount(); ++row) {
        for (int column = 0; column < columns; ++column) {
            model.itemFromIndex(model.index(row, column));
        }
    }
    model.setItemPrototype(nullptr);
}

// Many cells are made after a pattern: what a cell holds is shared by all that are cloned from it,
// until one of them is given a value of its own.

QStandardItem* makeLike(const QStandardItem& pattern, const QString& text)
{
    QStandardItem* const cell = pattern.clone();
    cell->setText(text);
    return cell;
}

class OfferCells
{
public:
    explicit OfferCells(const std::vector<struProgInfo>& programs)
        : m_programs(programs)
    {
        m_order.setText(QString());
        m_order.setTextAlignment(Qt::AlignCenter);
    }

    QStandardItem* operator()(std::size_t row, int column) const
    {
        switch (column) {
        case OfferOrderColumn:
            return m_order.clone();
        case OfferNameColumn:
            return makeName(QString::fromStdString(m_programs[row].progName));
        default:
            return m_check.clone();
        }
    }

private:
    static QStandardItem* makeName(const QString& name)
    {
        auto* cell = new QStandardItem(name);
        cell->setToolTip(widgets::plainToolTip(name));
        return cell;
    }

    const std::vector<struProgInfo>& m_programs;
    QStandardItem m_check;
    QStandardItem m_order;
};

class ChoiceCells
{
public:
    explicit ChoiceCells(const std::vector<ChoiceRow>& rows)
        : m_rows(rows)
    {
        // Texts come first, so that a cell finds its place for one without another being made.
        for (QStandardItem* cell : {&m_number, &m_text, &m_count, &m_new, &m_known}) {
            cell->setText(QString());
        }
        m_number.setTextAlignment(Qt::AlignCenter);
        m_count.setText(QString::number(1));
        m_new.setText(QStringLiteral("1"));
        m_known.setText(QStringLiteral("0"));
        for (QStandardItem* cell : {&m_check, &m_number, &m_text, &m_count, &m_new, &m_known}) {
            cell->setFlags(Qt::ItemIsSelectable | Qt::ItemIsEnabled);
        }
        m_count.setEditable(true);
    }

    QStandardItem* operator()(std::size_t position, int column) const
    {
        const ChoiceRow& row = m_rows[position];
        switch (column) {
        case ChoiceNumberColumn:
            return makeLike(m_number, formatRowNumber(row.number));
        case ChoiceNameColumn:
            return makeName(row);
        case ChoiceCountColumn:
            return row.playCount == 1 ? m_count.clone()
                                      : makeLike(m_count, QString::number(row.playCount));
        case ChoiceIndexColumn:
            return makeLike(m_text, QString::number(row.progIndex));
        case ChoiceNewColumn:
            return row.isNew ? m_new.clone() : m_known.clone();
        default:
            return m_check.clone();
        }
    }

private:
    QStandardItem* makeName(const ChoiceRow& row) const
    {
        QStandardItem* const cell = makeLike(m_text, row.name);
        if (!row.toolTip.isEmpty()) {
            cell->setToolTip(widgets::plainToolTip(row.toolTip));
        }
        if (row.foreground.style() != Qt::NoBrush) {
            cell->setForeground(row.foreground);
        }
        return cell;
    }

    const std::vector<ChoiceRow>& m_rows;
    QStandardItem m_check;
    QStandardItem m_number;
    QStandardItem m_text;
    QStandardItem m_count;
    QStandardItem m_new;
    QStandardItem m_known;
};

/// For each removal, model and views go through all rows, and the model through the persistent
/// indexes of the removals that are still to come, which takes it some six times as long.
bool isMuchWork(std::size_t removals, int rowCount)
{
    const auto count = static_cast<double>(removals);
    return count * (rowCount + 6 * count) > kMuchWork;
}

void removeOneByOne(QStandardItemModel& model, const std::vector<int>& rows)
{
    std::vector<QPersistentModelIndex> indexes;
    indexes.reserve(rows.size());
    for (const int row : rows) {
        indexes.emplace_back(model.index(row, 0));
    }
    for (const QPersistentModelIndex& index : indexes) {
        if (index.isValid()) {
            model.removeRow(index.row());
        }
    }
}

void removeByRuns(QStandardItemModel& model, const std::vector<int>& rows)
{
    int removed = 0;
    for (auto run = rows.begin(); run != rows.end();) {
        auto end = run + 1;
        while (end != rows.end() && *end == *(end - 1) + 1) {
            ++end;
        }
        const auto length = static_cast<int>(end - run);
        model.removeRows(*run - removed, length);
        removed += length;
        run = end;
    }
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

ChoiceRow addedRowOf(const struProgInfo& program, int number)
{
    ChoiceRow row;
    row.number = number;
    row.name = QString::fromStdString(program.progName);
    row.progIndex = program.progIndex;
    row.isNew = true;
    return row;
}

void appendOffers(QStandardItemModel& model, const std::vector<struProgInfo>& programs)
{
    const OfferCells cells(programs);
    appendRows(model, programs.size(), OfferColumnCount, std::cref(cells));
}

void appendChoices(QStandardItemModel& model, const std::vector<ChoiceRow>& rows)
{
    const ChoiceCells cells(rows);
    appendRows(model, rows.size(), ChoiceColumnCount, std::cref(cells));
}

void removeRows(QStandardItemModel& model, const std::vector<int>& rows)
{
    if (isMuchWork(rows.size(), model.rowCount())) {
        removeByRuns(model, rows);
    } else {
        removeOneByOne(model, rows);
    }
}

} // namespace trel::mediadispatch
