#pragma once

#include <QStyledItemDelegate>

class QSpinBox;

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

    /// Has the view write the value of an open box into the model. The box stays open. What has
    /// been typed and is no count gives way to the last one. Nothing when the view does not know
    /// the box, or no longer.
    void takeOver(QSpinBox* box);

signals:
    /// The box of a cell has another value, at every step and before the model has it; also when
    /// the box takes over a value of the model, and when a screen reader has set one. index is the
    /// cell where it stands now; rows above it may have gone since its box was made.
    void valueChanged(QModelIndex index, int value) const;
};

} // namespace trel::mediadispatch
