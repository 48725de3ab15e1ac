#pragma once

#include "versions/StateComparison.h"

#include <QAbstractTableModel>

#include <memory>

namespace trel::desktop::versions {

/// What differs between two states, task by task and field by field, a row for each. Words are
/// made for what is in sight.
class DifferenceModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column {
        TaskColumn,
        PlanColumn,
        DifferenceColumn,
        ColumnCount,
    };

    explicit DifferenceModel(QObject* parent = nullptr);

    /// Null for none.
    void setComparison(std::shared_ptr<const StateComparison> comparison);
    void retranslate();

    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    int columnCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    std::shared_ptr<const StateComparison> m_comparison;
};

} // namespace trel::desktop::versions
