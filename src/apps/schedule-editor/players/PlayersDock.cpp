#include "players/PlayersDock.h"

#include "look/ProgramSignDelegate.h"
#include "players/PlayerModel.h"
#include "players/PlayerWords.h"
#include "screen/ScreenFollower.h"
#include "trelprogramschedule/ScheduleHost.h"
#include "trelprogramschedule/screens/PlayerStatusFolder.h"
#include "trelprogramschedule/store/StorePlace.h"
#include "trelwidgets/PlainToolTip.h"

#include <QAction>
#include <QEvent>
#include <QHeaderView>
#include <QLabel>
#include <QScrollArea>
#include <QStatusBar>
#include <QTableView>
#include <QToolButton>
#include <QVBoxLayout>

#include <utility>

using namespace trel::mediadispatch;

namespace trel::desktop::players {

namespace {

/// Half of the time after which a player tells of itself again.
constexpr int kSeconds = 5;
constexpr int kAroundHint = 8;

} // namespace

PlayersDock::PlayersDock(ScreenFollower& follower, QStatusBar& bar, QWidget* parent)
    : QDockWidget(parent)
    , m_model(new PlayerModel(follower, this))
    , m_table(new QTableView(this))
    , m_signs(new look::ProgramSignDelegate(m_table))
    , m_hint(new QLabel(this))
    , m_hintArea(new QScrollArea(this))
    , m_number(new QToolButton(&bar))
{
    setObjectName(QStringLiteral("playersDock"));
    buildTable();
    m_hint->setObjectName(QStringLiteral("playerHint"));
    m_hint->setTextFormat(Qt::PlainText);
    m_hint->setAlignment(Qt::AlignCenter);
    m_hint->setWordWrap(true);
    m_hint->setMargin(kAroundHint);
    auto* content = new QWidget(this);
    auto* layout = new QVBoxLayout(content);
    layout->setContentsMargins(0, 0, 0, 0);
    // Low as the panel is, all of it can be read.
    m_hintArea->setFrameShape(QFrame::NoFrame);
    m_hintArea->setFocusPolicy(Qt::NoFocus);
    m_hintArea->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_hintArea->setWidgetResizable(true);
    m_hintArea->setWidget(m_hint);
    layout->addWidget(m_hintArea);
    layout->addWidget(m_table);
    setWidget(content);
    m_number->setObjectName(QStringLiteral("playerNumber"));
    m_number->setAutoRaise(true);
    m_number->setFocusPolicy(Qt::TabFocus);
    bar.addPermanentWidget(m_number);
    m_number->hide();
    hide();
    connect(m_number, &QToolButton::clicked, this, &PlayersDock::reveal);
    connect(&follower, &ScreenFollower::ticked, this, &PlayersDock::tick);
    retranslate();
}

PlayersDock::~PlayersDock() = default;

void PlayersDock::buildTable()
{
    m_table->setObjectName(QStringLiteral("playerTable"));
    m_table->setModel(m_model);
    m_table->setItemDelegate(m_signs);
    m_table->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_table->setSelectionMode(QAbstractItemView::SingleSelection);
    m_table->setTabKeyNavigation(false);
    m_table->setAlternatingRowColors(true);
    m_table->setShowGrid(false);
    m_table->verticalHeader()->hide();
    m_table->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    QHeaderView* const columns = m_table->horizontalHeader();
    columns->setHighlightSections(false);
    columns->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    columns->setStretchLastSection(true);
    columns->resizeSection(PlayerModel::ScreenColumn, 120);
    columns->resizeSection(PlayerModel::ShownColumn, 240);
    columns->resizeSection(PlayerModel::HeardColumn, 180);
}

void PlayersDock::setColours(const look::ThemeColours& colours)
{
    m_signs->setColours(colours);
    m_table->viewport()->update();
}

void PlayersDock::look()
{
    m_seconds = 0;
    const QString store = ScheduleHost::instance().path();
    // What players tell of themselves stands beside a file.
    if (store.isEmpty() || StorePlace::isAddress(store)) {
        take(store, {});
        return;
    }
    m_reading.start([this, store](const follow::Cancellation&) -> follow::NewestWork::Outcome {
        return [this, store, players = PlayerStatusFolder(store).read()] { take(store, players); };
    });
}

void PlayersDock::tick()
{
    // A player that tells nothing becomes silent.
    tellNumber();
    // The folder of a server that does not answer is asked once.
    if (++m_seconds >= kSeconds && !m_reading.isBusy()) {
        look();
    }
}

void PlayersDock::take(const QString& store, std::vector<PlayerStatus> players)
{
    // Those of another database that has been closed meanwhile are of no use.
    if (store == ScheduleHost::instance().path()) {
        m_model->setPlayers(std::move(players));
        showPlayers();
    }
}

void PlayersDock::showPlayers()
{
    const bool areThere = m_model->rowCount() > 0;
    m_hintArea->setVisible(!areThere);
    m_table->setVisible(areThere);
    tellNumber();
}

void PlayersDock::tellNumber()
{
    m_number->setText(PlayerWords::number(m_model->rowCount(), m_model->silent()));
    m_number->setVisible(m_model->rowCount() > 0);
}

void PlayersDock::reveal()
{
    show();
    raise();
    m_table->setFocus();
}

void PlayersDock::retranslate()
{
    setWindowTitle(tr("Players"));
    m_table->setAccessibleName(windowTitle());
    // The title becomes the text of the action, which has a letter besides.
    toggleViewAction()->setText(tr("Pla&yers"));
    m_number->setToolTip(trel::widgets::plainToolTip(tr("Show what the players show")));
    m_hint->setText(tr("No player follows this database. Start schedule-player with it where the "
                       "screen is."));
    m_model->retranslate();
    showPlayers();
}

void PlayersDock::changeEvent(QEvent* event)
{
    QDockWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) {
        retranslate();
    }
}

} // namespace trel::desktop::players
