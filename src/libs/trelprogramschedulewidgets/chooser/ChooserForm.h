#pragma once

#include "ui_ProgramChoose.h"

namespace trel::mediadispatch {

/// The widgets of the chooser, and what can be said of them without knowing its tables.
///
/// Of the two messages below the tables, the tip and the warning of a total over a day, the one
/// that was raised last stands alone.
class ChooserForm : public Ui::ProgramChoose
{
public:
    /// Gives every control its text in the language of the moment, and a name for screen readers to
    /// those that show none.
    void translate();

    /// Has Control with Return or Enter click the confirm button, whatever has the focus. Nothing
    /// happens while that is disabled. Call it once, after setupUi().
    void confirmByKey();

    /// Shows the text of the key as tip, in place of the warning.
    void showTip(const char* key);
    void hideTip();
    /// Shows the total length, in milliseconds, and for more than a day the warning in place of the
    /// tip. Hides the warning otherwise, and leaves the tip.
    void showTotal(double totalMs);
};

} // namespace trel::mediadispatch
