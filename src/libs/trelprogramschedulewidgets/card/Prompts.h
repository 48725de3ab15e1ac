#pragma once

class QString;

namespace trel::mediadispatch {

/// Tells the operator that something was refused, and waits for the answer.
void showRefusal(const QString& text);

/// Asks the operator, and waits for the answer; true when it is yes.
bool askConfirmation(const QString& text);

} // namespace trel::mediadispatch
