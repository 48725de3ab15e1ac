#pragma once

#include <QItemDelegate>
#include <QTime>

namespace trel::mediadispatch {

/// Edits a time of day that its item holds as text in kTimeFormat.
class TimeDelegate : public QItemDelegate
{
    Q_OBJECT

public:
    explicit TimeDelegate(QObject* parent = nullptr);

    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const override;
    void setEditorData(QWidget* editor, const QModelIndex& index) const override;
    void setModelData(QWidget* editor, QAbstractItemModel* model,
                      const QModelIndex& index) const override;
    void updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                              const QModelIndex& index) const override;

signals:
    /// A time has been written to the model.
    void signalUpdataTime(int row, int col, QTime time) const;
};

} // namespace trel::mediadispatch
