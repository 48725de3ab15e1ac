#pragma once

#include <QAccessibleWidget>
#include <QVector>

class QAbstractItemView;

namespace trel::mediadispatch {

/// The list of a box of days. An entry is checked or not; which one is current says nothing of what
/// is chosen.
class AccessibleDayList : public QAccessibleWidget
{
public:
    explicit AccessibleDayList(QAbstractItemView& list);
    ~AccessibleDayList() override;
    Q_DISABLE_COPY(AccessibleDayList)

    QAccessibleInterface* parent() const override;
    int childCount() const override;
    QAccessibleInterface* child(int index) const override;
    int indexOfChild(const QAccessibleInterface* child) const override;
    QAccessibleInterface* childAt(int x, int y) const override;
    QString text(QAccessible::Text kind) const override;

private:
    mutable QVector<QAccessible::Id> m_days; ///< Of those that were asked for, by their place.
};

} // namespace trel::mediadispatch
