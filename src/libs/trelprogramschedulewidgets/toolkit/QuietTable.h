#pragma once

#include <QTableView>

namespace trel::mediadispatch {

/// A table whose rows a screen reader finds below it in another order than the toolkit's. That one
/// tells of a cell that becomes current, or is selected, by its number among all cells and headers,
/// which here is that of something else. This one does not: who makes a row current or selects it
/// tells of it.
///
/// It has no meta-object of its own, so that style sheets and qobject_cast take it for a plain
/// table.
class QuietTable : public QTableView
{
public:
    explicit QuietTable(QWidget* parent = nullptr);

protected:
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
    void selectionChanged(const QItemSelection& selected,
                          const QItemSelection& deselected) override;
};

} // namespace trel::mediadispatch
