#include "Prompts.h"

#include "ScheduleText.h"

#include "trelwidgets/TipDialog.h"

namespace trel::mediadispatch {

using widgets::TipDialog;

namespace {

/// It frees itself when it has been answered. Its title is its own: under that of the editor it
/// would be taken for the editor by those who only hear it.
TipDialog* makePrompt(TipDialog::TipType type, const QString& text)
{
    auto* const prompt = new TipDialog(type, nullptr);
    prompt->setWindowTitle(scheduleText("zhtitleTip"));
    prompt->setTipText(text);
    return prompt;
}

} // namespace

void showRefusal(const QString& text)
{
    TipDialog* const prompt = makePrompt(TipDialog::Notice, text);
    prompt->setBtnText(scheduleText("zhFixAct"), QString(), QString());
    prompt->run();
}

bool askConfirmation(const QString& text)
{
    constexpr int firstButton = 1;
    TipDialog* const prompt = makePrompt(TipDialog::Confirmation, text);
    prompt->setBtnText(scheduleText("zhFixAct"), scheduleText("zhCancelAct"), QString());
    // What is asked about is gone afterwards: a key that was meant for something else leaves it.
    constexpr int secondButton = 2;
    prompt->setEnterButton(secondButton);
    return prompt->run().button == firstButton;
}

} // namespace trel::mediadispatch
