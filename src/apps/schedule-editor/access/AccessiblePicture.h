#pragma once

#include <QAccessibleWidget>
#include <QVector>

namespace trel::desktop::access {

class SpokenParts;

/// A widget with parts as a screen reader finds it: a list of them.
class AccessiblePicture : public QAccessibleWidget
{
public:
    /// The widget is one with parts.
    explicit AccessiblePicture(QWidget& widget);
    ~AccessiblePicture() override;
    Q_DISABLE_COPY(AccessiblePicture)

    int childCount() const override;
    QAccessibleInterface* child(int index) const override;
    int indexOfChild(const QAccessibleInterface* child) const override;
    QAccessibleInterface* childAt(int x, int y) const override;
    QAccessibleInterface* focusChild() const override;

private:
    const SpokenParts& parts() const;

    mutable QVector<QAccessible::Id> m_parts; ///< Of those that were asked for, by their place.
};

} // namespace trel::desktop::access
