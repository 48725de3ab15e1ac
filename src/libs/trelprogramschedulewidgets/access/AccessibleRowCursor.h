#pragma once

#include <QAccessibleWidget>

namespace trel::mediadispatch {

class RowCursor;

/// What has the focus in the place of a table of the chooser, and speaks as that table: it has its
/// name and its row of the keys. The rows themselves are the table's children, not its own.
class AccessibleRowCursor : public QAccessibleWidget
{
public:
    explicit AccessibleRowCursor(RowCursor& cursor);

    int childCount() const override { return 0; }
    QAccessibleInterface* child(int /*index*/) const override { return nullptr; }
    int indexOfChild(const QAccessibleInterface* /*child*/) const override { return -1; }
    QAccessibleInterface* focusChild() const override;
    QString text(QAccessible::Text kind) const override;

private:
    QAccessibleInterface* table() const;
};

} // namespace trel::mediadispatch
