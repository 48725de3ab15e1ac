#include "toolkit/TypedValue.h"

#include <QAbstractSpinBox>
#include <QAccessible>
#include <QKeyEvent>

namespace trel::mediadispatch {

TypedValue::TypedValue(QAbstractSpinBox& field, const QKeyEvent& key)
{
    if (QAccessible::isActive() && !key.text().isEmpty()) {
        m_field = &field;
        m_formerText = field.text();
    }
}

void TypedValue::tell() const
{
    if (!m_field || m_field->text() == m_formerText || !m_field->hasAcceptableInput()) {
        return;
    }
    QAccessibleValueChangeEvent event(m_field, m_field->text());
    QAccessible::updateAccessibility(&event);
}

} // namespace trel::mediadispatch
