#include "SpinBoxDelegate.h"

#include "chooser/CountCell.h"
#include "toolkit/FocusedWheel.h"

#include <QSpinBox>

namespace trel::mediadispatch {

namespace {

constexpr QSize kBoxSize(80, 30);

} // namespace

SpinBoxDelegate::SpinBoxDelegate(QObject* parent)
    : QStyledItemDelegate(parent)
{}

QWidget* SpinBoxDelegate::createEditor(QWidget* parent, const QStyleOptionViewItem&,
                                       const QModelIndex& index) const
{
    auto* const box = new FocusedWheel<QSpinBox>(parent);
    box->setFixedSize(kBoxSize);
    box->setRange(kLeastCount, kMostCount);
    box->setFrame(false);
    box->setAccessibleName(countName(index));
    connect(
        box, QOverload<int>::of(&QSpinBox::valueChanged), this,
        [this, cell = QPersistentModelIndex(index)](int value) { emit valueChanged(cell, value); });
    return box;
}

void SpinBoxDelegate::setEditorData(QWidget* editor, const QModelIndex& index) const
{
    auto* const box = qobject_cast<QSpinBox*>(editor);
    if (box && index.model()) {
        box->setValue(index.data(Qt::EditRole).toInt());
    }
}

void SpinBoxDelegate::setModelData(QWidget* editor, QAbstractItemModel* model,
                                   const QModelIndex& index) const
{
    const auto* const box = qobject_cast<const QSpinBox*>(editor);
    if (box && model) {
        model->setData(index, box->value(), Qt::EditRole);
    }
}

void SpinBoxDelegate::takeOver(QSpinBox* box)
{
    box->interpretText();
    emit commitData(box);
}

} // namespace trel::mediadispatch
