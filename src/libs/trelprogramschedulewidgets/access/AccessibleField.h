#pragma once

#include "access/AccessibleEditor.h"
#include "access/AccessibleText.h"

class QAbstractSpinBox;
class QLineEdit;

namespace trel::mediadispatch {

/// A date, time or count field of a card. Its value is a number that can be read and set: days by
/// the Julian day number, times in seconds from midnight, counts as they are. A number out of its
/// range is brought into it, as by the toolkit; what the card refuses is put back after a prompt,
/// for which the caller does not wait.
///
/// Its text can be read as that of a line, and edited in the same way: what the text becomes is
/// taken at once, as at the end of typing, and put back where it is no value.
class AccessibleField : public AccessibleEditor,
                        public AccessibleText,
                        public QAccessibleEditableTextInterface,
                        public QAccessibleValueInterface
{
public:
    explicit AccessibleField(QAbstractSpinBox& field);

    void* interface_cast(QAccessible::InterfaceType type) override;
    using AccessibleText::text;
    QString text(QAccessible::Text kind) const override;
    /// The value, as a text; nothing else can be set.
    void setText(QAccessible::Text kind, const QString& text) override;
    QAccessible::State state() const override;

    int cursorPosition() const override;
    void setCursorPosition(int position) override;
    void selection(int selectionIndex, int* startOffset, int* endOffset) const override;
    int selectionCount() const override;
    void setSelection(int selectionIndex, int startOffset, int endOffset) override;

    void deleteText(int startOffset, int endOffset) override;
    void insertText(int offset, const QString& text) override;
    void replaceText(int startOffset, int endOffset, const QString& text) override;

    QVariant currentValue() const override;
    void setCurrentValue(const QVariant& value) override;
    QVariant minimumValue() const override;
    QVariant maximumValue() const override;
    QVariant minimumStepSize() const override;

    QStringList actionNames() const override;
    void doAction(const QString& action) override;

protected:
    QString shownText() const override;

private:
    QAbstractSpinBox& field() const;
    QLineEdit* line() const;
};

} // namespace trel::mediadispatch
