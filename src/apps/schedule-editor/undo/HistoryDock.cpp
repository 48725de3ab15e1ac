#include "undo/HistoryDock.h"

#include "undo/EditHistory.h"
#include "undo/HistoryModel.h"

#include <QAction>
#include <QEvent>
#include <QListView>
#include <QSignalBlocker>

namespace trel::desktop::undo {

HistoryDock::HistoryDock(EditHistory& history, QWidget* parent)
    : QDockWidget(parent)
    , m_history(history)
    , m_model(new HistoryModel(history, this))
    , m_list(new QListView(this))
{
    setObjectName(QStringLiteral("historyDock"));
    m_list->setObjectName(QStringLiteral("historyList"));
    m_list->setModel(m_model);
    m_list->setUniformItemSizes(true);
    m_list->setTextElideMode(Qt::ElideMiddle);
    m_list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setWidget(m_list);
    connect(&history, &EditHistory::changed, this, &HistoryDock::update);
    connect(m_list->selectionModel(), &QItemSelectionModel::currentChanged, this,
            &HistoryDock::goToCurrent);
    update();
    retranslate();
    hide();
}

void HistoryDock::update()
{
    const QSignalBlocker quiet(m_list->selectionModel());
    const QModelIndex current = m_model->index(m_history.index());
    m_list->setCurrentIndex(current);
    m_list->scrollTo(current);
    m_list->viewport()->update();
    m_list->setEnabled(m_history.isAtWork());
}

void HistoryDock::goToCurrent()
{
    m_history.goTo(m_list->currentIndex().row());
    // Where it could not go there, the list says where it is.
    update();
}

void HistoryDock::retranslate()
{
    setWindowTitle(tr("History"));
    // The title becomes the text of the action, which has a letter besides.
    toggleViewAction()->setText(tr("&History"));
    m_list->setAccessibleName(tr("History"));
    m_model->update();
}

void HistoryDock::changeEvent(QEvent* event)
{
    QDockWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) {
        retranslate();
    }
}

} // namespace trel::desktop::undo
