#include "Prompts.h"

#include "ScheduleText.h"

#include "trelwidgets/TipDialog.h"

namespace trel::mediadispatch {

using widgets::TipDialog;

// A prompt frees itself when it has been answered.

void showRefusal(const QString& text)
{
    auto* const prompt = new TipDialog(TipDialog::Notice, nullptr);
    prompt->setTipText(text);
    prompt->setBtnText(scheduleText("zhFixAct"), QString(), QString());
    prompt->run();
}

bool askConfirmation(const QString& text)
{
    constexpr int firstButton = 1;
    auto* const prompt = new TipDialog(TipDialog::Confirmation, nullptr);
    prompt->setTipText(text);
    prompt->setBtnText(scheduleText("zhFixAct"), scheduleText("zhCancelAct"), QString());
    // What is asked about is gone afterwards: a key that was meant for something else leaves it.
    constexpr int secondButton = 2;
    prompt->setEnterButton(secondButton);
    return prompt->run().button == firstButton;
}

} // namespace trel::mediadispatch
