#pragma once

#include <QAccessibleWidget>

#include <functional>

class QTableView;

namespace trel::mediadispatch {

/// The plan table that a widget is in a cell of; null when it is in none.
QTableView* planTableAbove(const QWidget& widget);

/// What a screen reader is told of an editor of a card. One in a plan table stands below its row,
/// and its name begins with the task.
class AccessibleEditor : public QAccessibleWidget
{
public:
    AccessibleEditor(QWidget& editor, QAccessible::Role role);

    QAccessibleInterface* parent() const override;
    QString text(QAccessible::Text kind) const override;

protected:
    /// Does what changes the editor after the caller has its answer: what follows may ask the
    /// operator and wait. Nothing when the editor has gone or is disabled by then, or a prompt
    /// stands over its window.
    void later(std::function<void(QWidget&)> work) const;
};

} // namespace trel::mediadispatch
