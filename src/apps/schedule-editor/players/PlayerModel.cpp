#include "players/PlayerModel.h"

#include "clock/Clock.h"
#include "common/DisplayText.h"
#include "look/ProgramSigns.h"
#include "players/PlayerWords.h"
#include "screen/ScreenFollower.h"
#include "trelwidgets/PlainToolTip.h"

#include <algorithm>
#include <utility>

using namespace trel::mediadispatch;

namespace trel::desktop::players {

namespace {

/// The program whose name stands in the table; -1 for none.
int namedProgram(const PlayerStatus& status)
{
    return status.shown.picture == ScreenPicture::Black ? -1 : status.shown.progIndex;
}

} // namespace

PlayerModel::PlayerModel(const ScreenFollower& clock, QObject* parent)
    : QAbstractTableModel(parent)
    , m_clock(clock)
{}

void PlayerModel::setPlayers(std::vector<PlayerStatus> players)
{
    const bool areTheSame =
        std::equal(players.begin(), players.end(), m_players.begin(), m_players.end(),
                   [](const PlayerStatus& one, const PlayerStatus& other) {
                       return one.screen == other.screen;
                   });
    if (areTheSame) {
        m_players = std::move(players);
        retranslate();
        return;
    }
    beginResetModel();
    m_players = std::move(players);
    endResetModel();
}

int PlayerModel::silent() const
{
    const Instant now = Clock::current().msecsSinceEpoch();
    return static_cast<int>(
        std::count_if(m_players.begin(), m_players.end(),
                      [now](const PlayerStatus& status) { return isSilent(status, now); }));
}

void PlayerModel::retranslate()
{
    emit headerDataChanged(Qt::Horizontal, 0, ColumnCount - 1);
    if (!m_players.empty()) {
        emit dataChanged(index(0, 0), index(rowCount() - 1, ColumnCount - 1));
    }
}

int PlayerModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_players.size());
}

int PlayerModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant PlayerModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid()) {
        return {};
    }
    const PlayerStatus& status = m_players[static_cast<std::size_t>(index.row())];
    if (role == look::kProgramsRole && index.column() == ShownColumn) {
        return QVariant::fromValue(look::ProgramIndexes{namedProgram(status)});
    }
    if (role != Qt::DisplayRole && role != Qt::ToolTipRole) {
        return {};
    }
    const QString shown = text(status, index.column());
    return role == Qt::DisplayRole ? shown : trel::widgets::plainToolTip(shown);
}

QString PlayerModel::text(const PlayerStatus& status, int column) const
{
    switch (column) {
    case ScreenColumn:
        return trel::hosts::printable(status.screen);
    case ShownColumn:
        return PlayerWords::shown(status);
    case HeardColumn:
        return PlayerWords::heard(status, Clock::current().msecsSinceEpoch(), m_clock);
    default:
        return PlayerWords::faults(status, m_clock);
    }
}

QVariant PlayerModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole) {
        return {};
    }
    switch (section) {
    case ScreenColumn:
        return tr("Screen");
    case ShownColumn:
        return tr("Shows");
    case HeardColumn:
        return tr("Heard", "when a player told of itself");
    case FaultColumn:
        return tr("Faults");
    default:
        return {};
    }
}

} // namespace trel::desktop::players
