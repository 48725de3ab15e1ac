#include "HostPrompts.h"

#include "trelwidgets/TipDialog.h"

#include <QCoreApplication>
#include <QFileDialog>

namespace trel::desktop {

using trel::widgets::TipDialog;

namespace {

/// Frees itself after its run. It has a title of its own: with that of the window behind it, nobody
/// who only hears the title would know that there is another window. Its sign says the same.
TipDialog* promptOf(TipDialog::TipType type, const QString& text)
{
    auto* prompt = new TipDialog(type);
    prompt->setTipText(text);
    prompt->setWindowTitle(type == TipDialog::Notice
                               ? QCoreApplication::translate("HostPrompts", "Message")
                               : QCoreApplication::translate("HostPrompts", "Question"));
    if (auto* sign = prompt->findChild<QWidget*>(QStringLiteral("dialogTipIcon"))) {
        sign->setAccessibleName(prompt->windowTitle());
    }
    return prompt;
}

} // namespace

namespace prompts {

void notice(const QString& text)
{
    TipDialog* const prompt = promptOf(TipDialog::Notice, text);
    prompt->setBtnText(QCoreApplication::translate("HostPrompts", "OK"), QString(), QString());
    prompt->run();
}

int confirm(const QString& text, const QString& first, const QString& second, const QString& third)
{
    TipDialog* const prompt = promptOf(TipDialog::Confirmation, text);
    prompt->setBtnText(first, second, third);
    return prompt->run().button;
}

bool confirmLoss(const QString& text, const QString& first, const QString& second)
{
    constexpr int kFirst = 1;
    constexpr int kSecond = 2;
    TipDialog* const prompt = promptOf(TipDialog::Confirmation, text);
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
