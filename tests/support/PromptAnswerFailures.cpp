#include "support/PromptAnswer.h"
#include "trelwidgets/TipDialog.h"

#include <QtTest>

using trel::widgets::TipDialog;

namespace {

int runPrompt()
{
    auto* prompt = new TipDialog(TipDialog::Notice);
    prompt->setTipText(QStringLiteral("Refused"));
    prompt->setBtnText(QStringLiteral("OK"), QString(), QString());
    return prompt->run().button;
}

} // namespace

/// Every function here has to fail, and to come to an end; PromptAnswer's own test sees to it.
class PromptAnswerFailures : public QObject
{
    Q_OBJECT

private slots:
    void unexpectedPrompt()
    {
        const PromptAnswer answer;
        runPrompt();
    }

    void oneAnswerTooFew()
    {
        const PromptAnswer answer(1);
        runPrompt();
        runPrompt();
    }

    void promptThatNeverCame() { const PromptAnswer answer(1); }

    void buttonThatIsNotShown()
    {
        const PromptAnswer answer(2);
        runPrompt();
    }
};

QTEST_MAIN(PromptAnswerFailures)
#include "PromptAnswerFailures.moc"
