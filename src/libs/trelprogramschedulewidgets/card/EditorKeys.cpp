#include "EditorKeys.h"

#include "trelwidgets/PlainToolTip.h"

namespace trel::mediadispatch {

namespace {

constexpr Qt::KeyboardModifiers kPlan = Qt::ControlModifier;
constexpr Qt::KeyboardModifiers kCard = kPlan | Qt::ShiftModifier;

QKeySequence with(Qt::KeyboardModifiers modifiers, Qt::Key key)
{
    return {static_cast<int>(modifiers) + key};
}

} // namespace

// Control and S twice belongs to the delete button of a card, and a single Control and S would take
// its first half away. Control with the up and down keys steps a field by ten.
QList<QKeySequence> keysOf(EditorKey key)
{
    switch (key) {
    case EditorKey::NextCard:
        return {with(Qt::ControlModifier, Qt::Key_PageDown)};
    case EditorKey::PreviousCard:
        return {with(Qt::ControlModifier, Qt::Key_PageUp)};
    case EditorKey::Fold:
        return {Qt::Key_F3};
    case EditorKey::AddTask:
        return {with(kCard, Qt::Key_N)};
    case EditorKey::CopyTask:
        return {with(kCard, Qt::Key_D)};
    case EditorKey::DeleteTask:
        return {with(kCard, Qt::Key_Delete)};
    case EditorKey::AddPlan:
        return {with(kPlan, Qt::Key_N)};
    case EditorKey::CopyPlan:
        return {with(kPlan, Qt::Key_D)};
    case EditorKey::DeletePlan:
        return {with(kPlan, Qt::Key_Delete)};
    case EditorKey::ChoosePrograms:
        return {Qt::Key_F2};
    case EditorKey::Save:
        return {with(Qt::ControlModifier, Qt::Key_Return),
                with(Qt::ControlModifier, Qt::Key_Enter)};
    case EditorKey::Start:
        return {Qt::Key_F5};
    case EditorKey::Cancel:
        return {with(Qt::ControlModifier, Qt::Key_W)};
    }
    return {};
}

QString keyText(EditorKey key)
{
    return keysOf(key).value(0).toString(QKeySequence::NativeText);
}

QString withKey(const QString& text, EditorKey key)
{
    return widgets::plainToolTip(QStringLiteral("%1 (%2)").arg(text, keyText(key)));
}

} // namespace trel::mediadispatch
