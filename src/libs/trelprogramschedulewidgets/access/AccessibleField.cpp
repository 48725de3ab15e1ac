#include "access/AccessibleField.h"

#include <QDateEdit>
#include <QLineEdit>
#include <QPointer>
#include <QSpinBox>
#include <QTimeEdit>

#include <algorithm>
#include <cmath>

namespace trel::mediadispatch {

namespace {

constexpr int kMSecsInSecond = 1000;

/// A field as a number and its range, whatever it shows.
struct Numbers
{
    double value = 0;
    double least = 0;
    double most = 0;
};

double numberOf(const QTime& time)
{
    return QTime(0, 0).secsTo(time);
}

double numberOf(const QDate& date)
{
    return static_cast<double>(date.toJulianDay());
}

Numbers numbersOf(const QAbstractSpinBox& field)
{
    if (const auto* const count = qobject_cast<const QSpinBox*>(&field)) {
        return {double(count->value()), double(count->minimum()), double(count->maximum())};
    }
    if (const auto* const time = qobject_cast<const QTimeEdit*>(&field)) {
        return {numberOf(time->time()), numberOf(time->minimumTime()),
                numberOf(time->maximumTime())};
    }
    if (const auto* const date = qobject_cast<const QDateEdit*>(&field)) {
        return {numberOf(date->date()), numberOf(date->minimumDate()),
                numberOf(date->maximumDate())};
    }
    return {};
}

void setNumber(QAbstractSpinBox& field, double number)
{
    if (auto* const count = qobject_cast<QSpinBox*>(&field)) {
        count->setValue(static_cast<int>(number));
    } else if (auto* const time = qobject_cast<QTimeEdit*>(&field)) {
        time->setTime(QTime::fromMSecsSinceStartOfDay(static_cast<int>(number) * kMSecsInSecond));
    } else if (auto* const date = qobject_cast<QDateEdit*>(&field)) {
        date->setDate(QDate::fromJulianDay(static_cast<qint64>(number)));
    }
}

} // namespace

AccessibleField::AccessibleField(QAbstractSpinBox& field)
    : AccessibleEditor(field, QAccessible::SpinBox)
{}

void* AccessibleField::interface_cast(QAccessible::InterfaceType type)
{
    if (type == QAccessible::ValueInterface) {
        return static_cast<QAccessibleValueInterface*>(this);
    }
    if (type == QAccessible::EditableTextInterface && !field().isReadOnly()) {
        return static_cast<QAccessibleEditableTextInterface*>(this);
    }
    if (type == QAccessible::TextInterface) {
        return static_cast<QAccessibleTextInterface*>(this);
    }
    return AccessibleEditor::interface_cast(type);
}

QString AccessibleField::text(QAccessible::Text kind) const
{
    return kind == QAccessible::Value ? field().text() : AccessibleEditor::text(kind);
}

QString AccessibleField::shownText() const
{
    return field().text();
}

int AccessibleField::cursorPosition() const
{
    return line() ? line()->cursorPosition() : 0;
}

void AccessibleField::setCursorPosition(int position)
{
    if (line()) {
        line()->setCursorPosition(position);
    }
}

void AccessibleField::selection(int selectionIndex, int* startOffset, int* endOffset) const
{
    AccessibleText::selection(selectionIndex, startOffset, endOffset);
    if (selectionIndex == 0 && selectionCount() > 0) {
        *startOffset = line()->selectionStart();
        *endOffset = line()->selectionEnd();
    }
}

int AccessibleField::selectionCount() const
{
    return line() && line()->hasSelectedText() ? 1 : 0;
}

void AccessibleField::setSelection(int selectionIndex, int startOffset, int endOffset)
{
    if (line() && selectionIndex == 0) {
        line()->setSelection(startOffset, endOffset - startOffset);
    }
}

void AccessibleField::setText(QAccessible::Text kind, const QString& text)
{
    if (kind == QAccessible::Value && line()) {
        replaceText(0, line()->text().size(), text);
    }
}

void AccessibleField::deleteText(int startOffset, int endOffset)
{
    replaceText(startOffset, endOffset, QString());
}

void AccessibleField::insertText(int offset, const QString& text)
{
    replaceText(offset, offset, text);
}

void AccessibleField::replaceText(int startOffset, int endOffset, const QString& text)
{
    const QPointer<QLineEdit> line(this->line());
    later([line, startOffset, endOffset, text](QWidget& editor) {
        const QPointer<QAbstractSpinBox> field(static_cast<QAbstractSpinBox*>(&editor));
        if (!line || field->isReadOnly()) {
            return;
        }
        QString whole = line->text();
        const int start = std::clamp(startOffset, 0, whole.size());
        whole.replace(start, std::clamp(endOffset, start, whole.size()) - start, text);
        line->setText(whole);
        if (field) {
            field->interpretText();
        }
    });
}

QAccessible::State AccessibleField::state() const
{
    QAccessible::State state = AccessibleEditor::state();
    state.editable = !field().isReadOnly();
    state.readOnly = field().isReadOnly();
    return state;
}

QVariant AccessibleField::currentValue() const
{
    return numbersOf(field()).value;
}

void AccessibleField::setCurrentValue(const QVariant& value)
{
    bool isNumber = false;
    const double number = std::round(value.toDouble(&isNumber));
    if (!isNumber || std::isnan(number)) {
        return;
    }
    later([number](QWidget& editor) {
        auto& field = static_cast<QAbstractSpinBox&>(editor);
        const Numbers numbers = numbersOf(field);
        setNumber(field, std::clamp(number, numbers.least, numbers.most));
    });
}

QVariant AccessibleField::minimumValue() const
{
    return numbersOf(field()).least;
}

QVariant AccessibleField::maximumValue() const
{
    return numbersOf(field()).most;
}

QVariant AccessibleField::minimumStepSize() const
{
    return 1.0;
}

QStringList AccessibleField::actionNames() const
{
    QStringList names = AccessibleEditor::actionNames();
    if (field().isEnabled()) {
        names << increaseAction() << decreaseAction();
    }
    return names;
}

void AccessibleField::doAction(const QString& action)
{
    const int step = action == increaseAction() ? 1 : action == decreaseAction() ? -1 : 0;
    if (step == 0) {
        AccessibleEditor::doAction(action);
        return;
    }
    later([step](QWidget& editor) { static_cast<QAbstractSpinBox&>(editor).stepBy(step); });
}

QLineEdit* AccessibleField::line() const
{
    return field().findChild<QLineEdit*>(QString(), Qt::FindDirectChildrenOnly);
}

QAbstractSpinBox& AccessibleField::field() const
{
    return *static_cast<QAbstractSpinBox*>(object());
}

} // namespace trel::mediadispatch
