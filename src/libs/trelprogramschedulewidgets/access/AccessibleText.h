#pragma once

#include <QAccessibleInterface>

namespace trel::mediadispatch {

/// A text that is read. Nothing of it is selected, and no cursor stands in it.
class AccessibleText : public QAccessibleTextInterface
{
public:
    void selection(int selectionIndex, int* startOffset, int* endOffset) const override;
    int selectionCount() const override { return 0; }
    void addSelection(int /*startOffset*/, int /*endOffset*/) override {}
    void removeSelection(int /*selectionIndex*/) override {}
    void setSelection(int /*selectionIndex*/, int /*startOffset*/, int /*endOffset*/) override {}
    int cursorPosition() const override { return 0; }
    void setCursorPosition(int /*position*/) override {}

    /// What lies outside of the text is left out.
    QString text(int startOffset, int endOffset) const override;
    int characterCount() const override { return shownText().size(); }
    /// Characters have no places of their own.
    QRect characterRect(int /*offset*/) const override { return QRect(); }
    int offsetAtPoint(const QPoint& /*point*/) const override { return -1; }
    void scrollToSubstring(int /*startIndex*/, int /*endIndex*/) override {}
    QString attributes(int offset, int* startOffset, int* endOffset) const override;

protected:
    virtual QString shownText() const = 0;
};

} // namespace trel::mediadispatch
