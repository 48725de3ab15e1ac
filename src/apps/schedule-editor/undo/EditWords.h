#pragma once

#include "undo/TaskEdit.h"

#include <QCoreApplication>
#include <QLocale>
#include <QString>

#include <set>
#include <string>

namespace trel::desktop::undo {

struct EditedField;

/// The names of the operator's steps, in the language in use.
class EditWords
{
    Q_DECLARE_TR_FUNCTIONS(EditWords)

public:
    /// "Task 1, plan 3: end 14:00:00 → 15:00:00". The edits may not be empty, and the field is
    /// theirs. Days are named as in the locale.
    static QString name(const EditedField& field, const TaskEdits& edits, const QLocale& locale);
    /// "1, 2, 3"; of many the first ones.
    static QString ids(const std::set<int>& tasks);

    /// The question whether what another program has saved in these tasks is to be taken back, and
    /// its answers.
    static QString takingBackOfOther(const std::set<int>& tasks);
    static QString takeBack();
    static QString leave();

private:
    static QString planName(const EditedField& field, const TaskEdit& edit, const QLocale& locale);
    static QString days(const std::string& weeks, const QLocale& locale);
};

} // namespace trel::desktop::undo
