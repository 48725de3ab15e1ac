#include "ChooserRows.h"

#include <QAbstractItemModel>

#include <algorithm>
#include <utility>

namespace trel::mediadispatch {

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

void removeEntries(std::vector<struProgInfo>& entries, const std::vector<int>& rows)
{
    std::size_t kept = 0;
    auto removed = rows.begin();
    for (std::size_t row = 0; row < entries.size(); ++row) {
        if (removed != rows.end() && static_cast<std::size_t>(*removed) == row) {
            ++removed;
            continue;
        }
        if (kept != row) {
            entries[kept] = std::move(entries[row]);
        }
        ++kept;
    }
    entries.resize(kept);
}

int moveTarget(const std::vector<int>& rows, bool up, int rowCount)
{
    const int lastRow = rowCount - 1;
    const int target = std::clamp(up ? rows.front() - 1 : rows.back() + 1, 0, lastRow);
    const bool endsTable = rows.back() == lastRow;
    return endsTable && target == lastRow ? rows.front() : target;
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
