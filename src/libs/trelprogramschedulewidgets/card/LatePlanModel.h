#pragma once

#include "PlanStandardItemModel.h"

#include <functional>

namespace trel::mediadispatch {

/// The plan model of a card whose rows are left until they are needed. A caller that asks for a
/// row, or how many there are, gets all of them: they are put in before the answer.
class LatePlanModel : public PlanStandardItemModel
{
public:
    explicit LatePlanModel(QObject* parent = nullptr);

    /// Has fill called by the first that asks, once. It puts rows into the model and need not mind
    /// that it asks itself. An empty function takes back one that has not been called.
    void fillWhenAsked(std::function<void()> fill);

    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    bool hasChildren(const QModelIndex& parent = QModelIndex()) const override;
    QModelIndex index(int row, int column,
                      const QModelIndex& parent = QModelIndex()) const override;

private:
    void fill() const;

    mutable std::function<void()> m_fill;
};

} // namespace trel::mediadispatch
