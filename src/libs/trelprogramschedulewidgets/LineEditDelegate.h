#pragma once

#include <QPointer>
#include <QStyledItemDelegate>

#include <map>

namespace trel::mediadispatch {

class kCustomLineEdit;

/// Puts a program field into each cell of a column, and passes on their clicks.
///
/// A field takes its text from Qt::UserRole of the item and writes it to Qt::EditRole: the item
/// keeps the full text of its programs under the first, and a field only has the cut one to give.
/// The view owns the fields; the delegate knows them by row.
class LineEditDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    explicit LineEditDelegate(QObject* parent = nullptr);

    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const override;
    void setEditorData(QWidget* editor, const QModelIndex& index) const override;
    void setModelData(QWidget* editor, QAbstractItemModel* model,
                      const QModelIndex& index) const override;
    void updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                              const QModelIndex& index) const override;

    /// Forgets the field of a row that goes, and lets the fields below it move up by one row. Call
    /// it once for every row taken out of the model.
    void removeRow(int row);

signals:
    /// The field of a row has been clicked.
    void signalClicked(int row);

private:
    mutable std::map<int, QPointer<kCustomLineEdit>> m_fieldByRow;
};

} // namespace trel::mediadispatch
