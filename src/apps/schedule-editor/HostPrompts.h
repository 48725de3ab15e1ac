#pragma once

#include <QString>

class QWidget;

namespace trel::desktop {

/// The few questions that the host asks, in the editor's own prompt. All block until answered.
namespace prompts {

/// Tells the operator something.
void notice(const QString& text);

/// Asks; the result is 1, 2 or 3 for the buttons in order, and 0 for any other way out.
int confirm(const QString& text, const QString& first, const QString& second,
            const QString& third = QString());

/// Asks before something is taken away; true when the first button was pressed. Enter presses the
/// second one.
bool confirmLoss(const QString& text, const QString& first, const QString& second);

/// What becomes of a file that exists when its name is chosen: the operator is asked whether it may
/// be written over, or the caller tells that it may not.
enum class Existing { IsAskedAbout, IsTold };

/// Asks for a file to write; empty when the operator thinks better of it. The suffix is added to a
/// name without one.
QString saveFileName(QWidget* parent, const QString& title, const QString& filter,
                     const QString& suffix, Existing existing = Existing::IsAskedAbout);

} // namespace prompts

} // namespace trel::desktop
