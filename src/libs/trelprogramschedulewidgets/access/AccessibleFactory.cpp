#include "access/AccessibleFactory.h"

#include "MultiComboBox.h"
#include "PlanTaskWidget.h"
#include "ProgramChoose.h"
#include "access/AccessibleButton.h"
#include "access/AccessibleChoice.h"
#include "access/AccessibleDay.h"
#include "access/AccessibleDayList.h"
#include "access/AccessibleEditor.h"
#include "access/AccessibleField.h"
#include "access/AccessibleFoldBar.h"
#include "access/AccessiblePlanTable.h"
#include "access/AccessibleProgramTable.h"

#include <QAbstractItemView>
#include <QAbstractSpinBox>
#include <QAccessible>
#include <QComboBox>
#include <QLabel>
#include <QPushButton>
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

bool isInRow(const QWidget& widget)
{
    return planTableAbove(widget) != nullptr;
}

// A class is asked for before those that it is derived from. The answer looks at the object itself
// and is the same for all of them.
QAccessibleInterface* interfaceOf(const QString& /*className*/, QObject* object)
{
    auto* const widget = qobject_cast<QWidget*>(object);
    auto* const list = qobject_cast<QAbstractItemView*>(object);
    const MultiComboBox* const days = list ? boxOfDays(*list) : nullptr;
    if (days && isInCard(*days)) {
        return new AccessibleDayList(*list);
    }
    auto* const programs = qobject_cast<QTableView*>(object);
    if (programs && qobject_cast<ProgramChoose*>(programs->parentWidget())) {
        return new AccessibleProgramTable(*programs);
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
    auto* const button = qobject_cast<QPushButton*>(widget);
    if (button && isInRow(*button)) {
        return new AccessibleButton(*button);
    }
    if (button && button->isCheckable()) {
        return new AccessibleFoldBar(*button);
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
