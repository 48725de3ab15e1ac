#include "undo/HistoryModel.h"

#include "trelwidgets/PlainToolTip.h"
#include "undo/EditHistory.h"

#include <QFont>

namespace trel::desktop::undo {

HistoryModel::HistoryModel(const EditHistory& history, QObject* parent)
    : QAbstractListModel(parent)
    , m_history(history)
    , m_count(history.count())
{
    connect(&history, &EditHistory::changed, this, &HistoryModel::update);
}

int HistoryModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : m_count + 1;
}

QVariant HistoryModel::data(const QModelIndex& index, int role) const
{
    // The history may have fewer steps than the views have heard of.
    if (!index.isValid() || index.row() > m_history.count()) {
        return QVariant();
    }
    const bool isDone = index.row() <= m_history.index();
    switch (role) {
    case Qt::DisplayRole:
        return text(index.row());
    case Qt::ToolTipRole:
        return widgets::plainToolTip(text(index.row()));
    case Qt::FontRole: {
        QFont font;
        font.setItalic(!isDone);
        return font;
    }
    case DoneRole:
        return isDone;
    default:
        return QVariant();
    }
}

QString HistoryModel::text(int steps) const
{
    const QString name = steps == 0 ? tr("Start") : m_history.name(steps - 1);
    const bool isSaved = m_history.isSaved(steps);
    if (m_history.isOpened(steps)) {
        return isSaved ? tr("%1 (saved; editor opened)", "a step").arg(name)
                       : tr("%1 (editor opened)", "a step").arg(name);
    }
    return isSaved ? tr("%1 (saved)", "a step").arg(name) : name;
}

void HistoryModel::update()
{
    const int count = m_history.count();
    if (count > m_count) {
        beginInsertRows(QModelIndex(), m_count + 1, count);
        m_count = count;
        endInsertRows();
    } else if (count < m_count) {
        beginRemoveRows(QModelIndex(), count + 1, m_count);
        m_count = count;
        endRemoveRows();
    }
    emit dataChanged(index(0), index(m_count));
}

} // namespace trel::desktop::undo
