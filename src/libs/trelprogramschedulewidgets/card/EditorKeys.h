#pragma once

#include <QKeySequence>
#include <QList>
#include <QString>

namespace trel::mediadispatch {

/// What in the editor has a key of its own, beside what Tab reaches. A key with Shift is about the
/// whole card, the same key without it about one plan.
enum class EditorKey {
    NextCard,
    PreviousCard,
    Fold,
    AddTask,
    CopyTask,
    DeleteTask,
    AddPlan,
    CopyPlan,
    DeletePlan,
    ChoosePrograms,
    Save,
    Start,
    Cancel
};

/// The keys, each of which does it.
QList<QKeySequence> keysOf(EditorKey key);

/// The first of them as the platform writes it.
QString keyText(EditorKey key);

/// A text with that behind it, in brackets, as a tool tip has to get it.
QString withKey(const QString& text, EditorKey key);

} // namespace trel::mediadispatch
