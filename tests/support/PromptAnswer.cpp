#include "support/PromptAnswer.h"

#include "trelwidgets/TipDialog.h"

#include <QApplication>
#include <QLabel>
#include <QPushButton>
#include <QTimer>
#include <QVariant>
#include <QtTest>

using trel::widgets::TipDialog;

namespace {

void fail(const QString& words)
{
    QTest::qFail(qPrintable(words), __FILE__, __LINE__);
}

QPushButton* buttonAt(const TipDialog& prompt, int number)
{
    return prompt.findChild<QPushButton*>(QStringLiteral("tipButton%1").arg(number));
}

QString textOf(const TipDialog& prompt)
{
    return prompt.findChild<QLabel*>(QStringLiteral("dialogTipLabel"))->text();
}

/// Where a key goes: a prompt without buttons has nothing in it to take the focus.
QWidget* keyTarget(TipDialog* prompt)
{
    return prompt->focusWidget() ? prompt->focusWidget() : prompt;
}

void click(QPushButton* button)
{
    QTest::mouseClick(button, Qt::LeftButton);
}

} // namespace

PromptAnswer::PromptAnswer()
{
    qApp->installEventFilter(this);
}

PromptAnswer::PromptAnswer(int answer)
    : PromptAnswer()
{
    expect(answer);
}

PromptAnswer::PromptAnswer(std::initializer_list<int> answers)
    : PromptAnswer()
{
    m_answers.assign(answers);
}

PromptAnswer::~PromptAnswer()
{
    if (!m_answers.empty()) {
        fail(QStringLiteral("%1 expected prompt(s) did not appear").arg(m_answers.size()));
    }
}

void PromptAnswer::expect(int answer)
{
    m_answers.push_back(answer);
}

bool PromptAnswer::eventFilter(QObject* watched, QEvent* event)
{
    auto* prompt = event->type() == QEvent::Show ? qobject_cast<TipDialog*>(watched) : nullptr;
    if (prompt) {
        record(prompt);
        // Its event loop is not running yet.
        QTimer::singleShot(0, prompt, [this, prompt] { answer(prompt); });
    }
    return QObject::eventFilter(watched, event);
}

void PromptAnswer::record(TipDialog* prompt)
{
    QStringList shown;
    for (int number = 1; number <= 3; ++number) {
        const QPushButton* button = buttonAt(*prompt, number);
        if (!button->isHidden()) {
            shown.append(button->text());
        }
    }
    const auto* icon = prompt->findChild<QLabel*>(QStringLiteral("dialogTipIcon"));
    m_texts.append(textOf(*prompt));
    m_buttons.append(shown.join(QLatin1Char('|')));
    m_types.append(icon->property("labelImage").toString() == QLatin1String("question") ? 1 : 0);
}

void PromptAnswer::answer(TipDialog* prompt)
{
    if (m_answers.empty()) {
        fail(QStringLiteral("a prompt that nobody expected: %1").arg(textOf(*prompt)));
        prompt->reject();
        return;
    }
    const int next = m_answers.front();
    m_answers.pop_front();
    const QPointer<TipDialog> open(prompt);
    switch (next) {
    case Enter:
        QTest::keyClick(keyTarget(prompt), Qt::Key_Return);
        break;
    case Escape:
        QTest::keyClick(keyTarget(prompt), Qt::Key_Escape);
        break;
    case Close:
        click(prompt->findChild<QPushButton*>(QStringLiteral("ButtonClose")));
        break;
    default:
        if (QPushButton* button = buttonAt(*prompt, next); button && button->isVisible()) {
            click(button);
        }
    }
    closeIfOpen(open);
}

void PromptAnswer::closeIfOpen(const QPointer<TipDialog>& prompt)
{
    if (prompt && prompt->isVisible()) {
        fail(QStringLiteral("the prompt did not take its answer: %1").arg(textOf(*prompt)));
        prompt->reject();
    }
}
