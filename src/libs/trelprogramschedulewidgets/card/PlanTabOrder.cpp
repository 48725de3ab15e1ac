#include "PlanTabOrder.h"

#include "MultiComboBox.h"
#include "PlanRow.h"

#include "trelwidgets/ComboBox.h"

#include <QLineEdit>
#include <QSpinBox>
#include <QTimeEdit>

namespace trel::mediadispatch {

namespace {

/// The line inside a field stands in the order as well, and leads back to its field. Where it does
/// not come right behind that, Shift+Tab finds the field at the place of its line.
QWidget* lastPartOf(QWidget* field)
{
    auto* const line = field->findChild<QLineEdit*>(QString(), Qt::FindDirectChildrenOnly);
    return line ? static_cast<QWidget*>(line) : field;
}

QWidget* placeBehind(QWidget* before, QWidget* field)
{
    QWidget* const last = lastPartOf(field);
    QWidget::setTabOrder(before, field);
    if (last != field) {
        QWidget::setTabOrder(field, last);
    }
    return last;
}

} // namespace

void placeInTabOrder(const PlanRowEditors& editors, QWidget& before)
{
    QWidget* last = lastPartOf(&before);
    last = placeBehind(last, editors.mode);
    last = placeBehind(last, editors.startTime);
    last = placeBehind(last, editors.endTime);
    last = placeBehind(last, editors.times);
    last = placeBehind(last, editors.weeks);
    placeBehind(last, editors.endAction);
}

} // namespace trel::mediadispatch
