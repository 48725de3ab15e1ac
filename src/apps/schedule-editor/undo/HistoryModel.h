#pragma once

#include <QAbstractListModel>

namespace trel::desktop::undo {

class EditHistory;

/// The states that the operator has been through, the first on top: how it was in the beginning,
/// and after each step. Those that were saved, or that the editor was opened with, say so.
class HistoryModel : public QAbstractListModel
{
    Q_OBJECT

public:
    enum Role {
        DoneRole = Qt::UserRole, ///< Whether the step is done, or has been taken back.
    };

    /// The history outlives the model.
    explicit HistoryModel(const EditHistory& history, QObject* parent = nullptr);

    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role) const override;

    /// Takes over what the history has now, in the language in use.
    void update();

private:
    QString text(int steps) const;

    const EditHistory& m_history;
    int m_count = 0; ///< Of the steps that views know.
};

} // namespace trel::desktop::undo
