#include "access/AccessibleButton.h"

#include "card/PlanCells.h"
#include "card/PlanColumns.h"

#include <QPushButton>
#include <QTableView>

namespace trel::mediadispatch {

namespace {

/// A caption without the marks of its letter.
QString plain(QString caption)
{
    const QString both = QStringLiteral("&&");
    for (int at = caption.indexOf(QLatin1Char('&')); at >= 0;
         at = caption.indexOf(QLatin1Char('&'), at)) {
        at += caption.midRef(at, 2) == both ? 1 : 0;
        caption.remove(at, 1);
    }
    return caption.trimmed();
}

/// A tool tip often is the name with the key in brackets behind it. The key alone is new then.
QString withoutName(const QString& description, const QString& name)
{
    const int bracket = description.lastIndexOf(QLatin1String(" ("));
    const bool repeats = bracket > 0 && description.endsWith(QLatin1Char(')')) &&
                         name.endsWith(description.left(bracket));
    return repeats ? description.mid(bracket + 2).chopped(1) : description;
}

} // namespace

AccessibleButton::AccessibleButton(QPushButton& button)
    : AccessibleEditor(button, QAccessible::Button)
{}

QString AccessibleButton::text(QAccessible::Text kind) const
{
    QString own = AccessibleEditor::text(kind);
    if (kind == QAccessible::Name && own.isEmpty()) {
        return plain(button().text());
    }
    if (kind != QAccessible::Description) {
        return own;
    }
    const QString chosen = programs();
    return chosen.isEmpty() ? withoutName(own, text(QAccessible::Name))
                            : QStringLiteral("%1 (%2)").arg(chosen, own);
}

QAccessible::State AccessibleButton::state() const
{
    QAccessible::State state = AccessibleEditor::state();
    state.pressed = button().isDown();
    state.defaultButton = button().isDefault();
    return state;
}

QStringList AccessibleButton::actionNames() const
{
    QStringList names;
    if (widget()->isEnabled()) {
        names << pressAction();
    }
    return names << AccessibleEditor::actionNames();
}

void AccessibleButton::doAction(const QString& action)
{
    if (action == pressAction()) {
        later([](QWidget& editor) { static_cast<QPushButton&>(editor).click(); });
    } else {
        AccessibleEditor::doAction(action);
    }
}

QStringList AccessibleButton::keyBindingsForAction(const QString& action) const
{
    const QKeySequence keys = button().shortcut();
    return action == pressAction() && !keys.isEmpty() ? QStringList(keys.toString())
                                                      : QStringList();
}

QPushButton& AccessibleButton::button() const
{
    return *static_cast<QPushButton*>(object());
}

QString AccessibleButton::programs() const
{
    const QTableView* const table = planTableAbove(*widget());
    const QModelIndex cell = table ? cellOf(*table, widget()) : QModelIndex();
    return cell.column() == ProgramsColumn ? cell.data(ProgramTextRole).toString() : QString();
}

} // namespace trel::mediadispatch
