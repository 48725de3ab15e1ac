#pragma once

#include <QAccessibleWidget>

class QComboBox;

namespace trel::desktop::access {

/// A box from which one entry is chosen, for screen readers: named by what it is for, with what is
/// chosen as its text. The toolkit's own takes what is chosen for the name. Its child is its list.
class AccessibleBox : public QAccessibleWidget, public QAccessibleTextInterface
{
public:
    /// A box that takes no typing.
    explicit AccessibleBox(QComboBox& box);

    void* interface_cast(QAccessible::InterfaceType type) override;
    int childCount() const override { return 1; }
    QAccessibleInterface* child(int index) const override;
    int indexOfChild(const QAccessibleInterface* child) const override;
    QString text(QAccessible::Text kind) const override;
    QAccessible::State state() const override;

    QStringList actionNames() const override;
    /// Opens the list, after the caller has its answer.
    void doAction(const QString& action) override;

    // The text is read, and neither selected nor walked through.
    void selection(int selection, int* start, int* end) const override;
    int selectionCount() const override { return 0; }
    void addSelection(int /*start*/, int /*end*/) override {}
    void removeSelection(int /*selection*/) override {}
    void setSelection(int /*selection*/, int /*start*/, int /*end*/) override {}
    int cursorPosition() const override { return 0; }
    void setCursorPosition(int /*position*/) override {}
    QString text(int start, int end) const override;
    int characterCount() const override;
    QRect characterRect(int offset) const override;
    int offsetAtPoint(const QPoint& point) const override;
    void scrollToSubstring(int /*start*/, int /*end*/) override {}
    QString attributes(int offset, int* start, int* end) const override;

private:
    QComboBox& box() const;
};

} // namespace trel::desktop::access
