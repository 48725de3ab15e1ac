#pragma once

#include "trelprogramschedule/screens/PlayerStatus.h"

#include <QAbstractTableModel>

#include <vector>

namespace trel::desktop {

class ScreenFollower;

namespace players {

/// The players that follow the schedule, a row for each screen.
class PlayerModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column {
        ScreenColumn,
        ShownColumn,
        HeardColumn,
        FaultColumn,
        ColumnCount,
    };

    /// The follower, whose clock tells the moments, outlives the model.
    explicit PlayerModel(const ScreenFollower& clock, QObject* parent = nullptr);

    /// The same screens as before stay where they are, selected or not.
    void setPlayers(std::vector<trel::mediadispatch::PlayerStatus> players);
    /// How many of them are silent at the moment.
    int silent() const;
    void retranslate();

    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    int columnCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    QString text(const trel::mediadispatch::PlayerStatus& status, int column) const;

    const ScreenFollower& m_clock;
    std::vector<trel::mediadispatch::PlayerStatus> m_players;
};

} // namespace players
} // namespace trel::desktop
