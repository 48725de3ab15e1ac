#pragma once

#include "access/AccessibleEditor.h"

class QAbstractSpinBox;

namespace trel::mediadispatch {

/// A date, time or count field of a card. Its value is a number that can be read and set: days by
/// the Julian day number, times in seconds from midnight, counts as they are. A number out of its
/// range is brought into it, as by the toolkit; what the card refuses is put back after a prompt,
/// for which the caller does not wait.
class AccessibleField : public AccessibleEditor, public QAccessibleValueInterface
{
public:
    explicit AccessibleField(QAbstractSpinBox& field);

    void* interface_cast(QAccessible::InterfaceType type) override;
    QString text(QAccessible::Text kind) const override;
    QAccessible::State state() const override;

    QVariant currentValue() const override;
    void setCurrentValue(const QVariant& value) override;
    QVariant minimumValue() const override;
    QVariant maximumValue() const override;
    QVariant minimumStepSize() const override;

    QStringList actionNames() const override;
    void doAction(const QString& action) override;

private:
    QAbstractSpinBox& field() const;
};

} // namespace trel::mediadispatch
