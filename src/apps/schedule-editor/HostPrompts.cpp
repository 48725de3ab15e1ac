#include "HostPrompts.h"

#include "trelwidgets/TipDialog.h"

#include <QCoreApplication>
#include <QFileDialog>

namespace trel::desktop {

using trel::widgets::TipDialog;

namespace prompts {

void notice(const QString& text)
{
    // A prompt frees itself after its run.
    auto* prompt = new TipDialog(TipDialog::Notice);
    prompt->setTipText(text);
    prompt->setBtnText(QCoreApplication::translate("HostPrompts", "OK"), QString(), QString());
    prompt->run();
}

int confirm(const QString& text, const QString& first, const QString& second, const QString& third)
{
    auto* prompt = new TipDialog(TipDialog::Confirmation);
    prompt->setTipText(text);
    prompt->setBtnText(first, second, third);
    return prompt->run().button;
}

bool confirmLoss(const QString& text, const QString& first, const QString& second)
{
    constexpr int kFirst = 1;
    constexpr int kSecond = 2;
    auto* prompt = new TipDialog(TipDialog::Confirmation);
    prompt->setTipText(text);
    prompt->setBtnText(first, second, QString());
    prompt->setEnterButton(kSecond);
    return prompt->run().button == kFirst;
}

QString saveFileName(QWidget* parent, const QString& title, const QString& filter,
                     const QString& suffix, Existing existing)
{
    QFileDialog dialog(parent, title, QString(), filter);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix(suffix);
    dialog.setOption(QFileDialog::DontConfirmOverwrite, existing == Existing::IsTold);
    if (dialog.exec() != QDialog::Accepted) {
        return QString();
    }
    return dialog.selectedFiles().value(0);
}

} // namespace prompts

} // namespace trel::desktop
