#pragma once

#include "look/ProgramSigns.h"
#include "trelprogramschedule/dispatch/MomentFormat.h"
#include "versions/StateComparison.h"

#include <QAbstractTableModel>

#include <memory>

namespace trel::desktop::versions {

/// What differs on the screen in a week, stretch by stretch, a row for each.
class StretchModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column {
        FromColumn,
        ToColumn,
        FormerColumn,
        LaterColumn,
        ColumnCount,
    };

    explicit StretchModel(QObject* parent = nullptr);

    /// The stretches are those of the comparison. Null for none.
    void setStretches(std::shared_ptr<const StateComparison> comparison, WeekOnScreen week);
    void retranslate();

    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    int columnCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    QString text(const trel::mediadispatch::ScreenDifference& stretch, int column) const;
    bool isSameDay(const trel::mediadispatch::ScreenDifference& stretch) const;
    /// With the date as the editor writes it.
    QString momentText(trel::mediadispatch::Instant moment) const;
    QString screenText(const ComparedState& state,
                       const trel::mediadispatch::ScreenState& screen) const;

    look::ProgramIndexes programs(const ComparedState& state,
                                  const trel::mediadispatch::ScreenState& screen) const;

    std::shared_ptr<const StateComparison> m_comparison;
    std::vector<trel::mediadispatch::ScreenDifference> m_stretches;
    trel::mediadispatch::MomentFormat m_local;
};

} // namespace trel::desktop::versions
