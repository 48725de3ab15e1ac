#include "access/AccessibleFactory.h"

#include "MultiComboBox.h"
#include "PlanTaskWidget.h"
#include "ProgramChoose.h"
#include "access/AccessibleButton.h"
#include "access/AccessibleChoice.h"
#include "access/AccessibleDay.h"
#include "access/AccessibleDayList.h"
#include "access/AccessibleDialog.h"
#include "access/AccessibleEditor.h"
#include "access/AccessibleField.h"
#include "access/AccessibleFoldBar.h"
#include "access/AccessiblePlanTable.h"
#include "access/AccessibleProgramTable.h"
#include "access/AccessibleRowCursor.h"
#include "access/SpokenNote.h"
#include "centerWidget.h"
#include "chooser/RowCursor.h"

#include "trelwidgets/Dialog.h"
#include "trelwidgets/TipDialog.h"

#include <QAbstractItemView>
#include <QAbstractSpinBox>
#include <QAccessible>
#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <QTableView>

namespace trel::mediadispatch {

namespace {

/// Whether a widget is a part of a card, but not one of a field or a box in it.
bool isInCard(const QWidget& widget)
{
    for (const QWidget* above = widget.parentWidget(); above; above = above->parentWidget()) {
        if (qobject_cast<const PlanTaskWidget*>(above)) {
            return true;
        }
        if (above->isWindow() || qobject_cast<const QAbstractSpinBox*>(above) ||
            qobject_cast<const QComboBox*>(above)) {
            return false;
        }
    }
    return false;
}

bool isTitleButton(const QPushButton& button)
{
    const QString name = button.objectName();
    return name == QLatin1String("ButtonMin") || name == QLatin1String("ButtonScale") ||
           name == QLatin1String("ButtonClose");
}

bool isInRow(const QWidget& widget)
{
    return planTableAbove(widget) != nullptr;
}

/// Whether a button is one of the panel or the chooser, or of the title bar over one of them.
bool isOfEditor(const QPushButton& button)
{
    for (const QWidget* above = button.parentWidget(); above; above = above->parentWidget()) {
        if (qobject_cast<const centerWidget*>(above) || qobject_cast<const ProgramChoose*>(above)) {
            return true;
        }
        if (above->isWindow()) {
            return isTitleButton(button) && (above->findChild<const centerWidget*>() ||
                                             above->findChild<const ProgramChoose*>());
        }
    }
    return false;
}

/// Whether an area is the one of the cards. It may not hold them yet.
bool isOfCards(const QScrollArea& area)
{
    for (const QWidget* above = area.parentWidget(); above; above = above->parentWidget()) {
        if (qobject_cast<const centerWidget*>(above)) {
            return !isInCard(area);
        }
    }
    return false;
}

QAccessibleInterface* interfaceOfFrame(QObject* object)
{
    auto* const dialog = qobject_cast<QDialog*>(object);
    if (qobject_cast<ProgramChoose*>(dialog)) {
        // The window around it is the dialog.
        return new QAccessibleWidget(dialog, QAccessible::Grouping);
    }
    if (qobject_cast<widgets::Dialog*>(dialog) || qobject_cast<widgets::TipDialog*>(dialog)) {
        return new AccessibleDialog(*dialog);
    }
    auto* const area = qobject_cast<QScrollArea*>(object);
    return area && isOfCards(*area) ? new QAccessibleWidget(area, QAccessible::Grouping) : nullptr;
}

// A class is asked for before those that it is derived from. The answer looks at the object itself
// and is the same for all of them.
QAccessibleInterface* interfaceOf(const QString& /*className*/, QObject* object)
{
    if (QAccessibleInterface* const frame = interfaceOfFrame(object)) {
        return frame;
    }
    auto* const widget = qobject_cast<QWidget*>(object);
    auto* const list = qobject_cast<QAbstractItemView*>(object);
    const MultiComboBox* const days = list ? boxOfDays(*list) : nullptr;
    if (days && isInCard(*days)) {
        return new AccessibleDayList(*list);
    }
    if (qobject_cast<SpokenNote*>(object)) {
        return new QAccessibleWidget(widget, QAccessible::Notification);
    }
    if (auto* const cursor = qobject_cast<RowCursor*>(object)) {
        return new AccessibleRowCursor(*cursor);
    }
    auto* const programs = qobject_cast<QTableView*>(object);
    if (programs && qobject_cast<ProgramChoose*>(programs->parentWidget())) {
        return new AccessibleProgramTable(*programs);
    }
    auto* const button = qobject_cast<QPushButton*>(object);
    if (button && !button->isCheckable() && isOfEditor(*button)) {
        return new AccessibleButton(*button);
    }
    if (!widget || !isInCard(*widget)) {
        return nullptr;
    }
    if (auto* const table = qobject_cast<QTableView*>(widget)) {
        return new AccessiblePlanTable(*table);
    }
    if (auto* const field = qobject_cast<QAbstractSpinBox*>(widget)) {
        return new AccessibleField(*field);
    }
    if (auto* const box = qobject_cast<QComboBox*>(widget)) {
        return new AccessibleChoice(*box);
    }
    if (button) {
        return button->isCheckable() ? new AccessibleFoldBar(*button)
                                     : new AccessibleButton(*button);
    }
    if (qobject_cast<QLabel*>(widget) && isInRow(*widget)) {
        return new AccessibleEditor(*widget, QAccessible::StaticText);
    }
    return nullptr;
}

} // namespace

void installAccessibleFactory()
{
    // A factory that is installed twice is asked twice.
    QAccessible::removeFactory(interfaceOf);
    QAccessible::installFactory(interfaceOf);
}

} // namespace trel::mediadispatch
