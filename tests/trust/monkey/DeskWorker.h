#pragma once

#include <QString>

/// An editor in a process of its own, which does on request what an operator does at it. Requests
/// are lines on standard input, and each is answered by one line of JSON on standard output:
///
///     refresh      Shows the stored set.
///     edit NUMBER  Edits a task or a plan in the cards; the number says which and how.
///     save         Saves. "result" is "saved", or the reason of the refusal.
///
/// "tasks" of the answer is the working set, as the text of a schedule's file. Ends with its input.
int runDeskWorker(const QString& database);
