#include "LineEditDelegate.h"

#include "card/EditorGeometry.h"
#include "kCustomLineEdit.h"

namespace trel::mediadispatch {

LineEditDelegate::LineEditDelegate(QObject* parent)
    : QStyledItemDelegate(parent)
{}

QWidget* LineEditDelegate::createEditor(QWidget* parent, const QStyleOptionViewItem&,
                                        const QModelIndex& index) const
{
    auto* const field = new kCustomLineEdit(parent);
    field->setRow(index.row());
    m_fieldByRow[index.row()] = field;
    connect(field, &kCustomLineEdit::signalClicked, this, &LineEditDelegate::signalClicked);
    // No key or button was pressed yet, and the field knows that: this opens no chooser.
    field->slotClicked();
    return field;
}

void LineEditDelegate::setEditorData(QWidget* editor, const QModelIndex& index) const
{
    if (auto* const field = qobject_cast<kCustomLineEdit*>(editor)) {
        QString text = index.data(Qt::UserRole).toString();
        field->setText(text);
    }
}

void LineEditDelegate::setModelData(QWidget* editor, QAbstractItemModel* model,
                                    const QModelIndex& index) const
{
    const auto* const field = qobject_cast<const kCustomLineEdit*>(editor);
    if (field && model) {
        model->setData(index, field->text(), Qt::EditRole);
    }
}

void LineEditDelegate::updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                                            const QModelIndex&) const
{
    if (editor) {
        editor->setGeometry(planEditorRect(option.rect));
    }
}

void LineEditDelegate::removeRow(int row)
{
    m_fieldByRow.erase(row);
    std::map<int, QPointer<kCustomLineEdit>> remaining;
    for (const auto& [oldRow, field] : m_fieldByRow) {
        if (oldRow <= row) {
            remaining.emplace(oldRow, field);
        } else if (field) {
            field->setRow(oldRow - 1);
            remaining.emplace(oldRow - 1, field);
        }
    }
    m_fieldByRow = std::move(remaining);
}

} // namespace trel::mediadispatch
