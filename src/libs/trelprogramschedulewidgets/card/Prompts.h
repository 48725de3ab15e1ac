#pragma once

class QString;

namespace trel::mediadispatch {

/// Tells the operator that something was refused, and waits for the answer.
void showRefusal(const QString& text);

/// Asks the operator whether something may go, and waits for the answer; true when it is yes. Enter
/// says no.
bool askConfirmation(const QString& text);

} // namespace trel::mediadispatch
