#pragma once

#include <QStyledItemDelegate>

namespace trel::mediadispatch {

/// Edits the play count of a program, 1 to 999, in the right table of the chooser.
class SpinBoxDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    explicit SpinBoxDelegate(QObject* parent = nullptr);

    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const override;
    void setEditorData(QWidget* editor, const QModelIndex& index) const override;
    void setModelData(QWidget* editor, QAbstractItemModel* model,
                      const QModelIndex& index) const override;

signals:
    /// The box of a cell has another value, at every step and before the model has it; also when
    /// the box takes over a value of the model. index is the cell as it stood when its box was
    /// made.
    void valueChanged(QModelIndex index, int value) const;
};

} // namespace trel::mediadispatch
