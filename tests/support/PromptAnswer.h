#pragma once

#include <QEvent>
#include <QObject>
#include <QPointer>
#include <QStringList>
#include <QVector>

#include <deque>
#include <initializer_list>

namespace trel::widgets {
class TipDialog;
}

/// Answers the prompts that appear while it lives, through their own windows, and remembers what
/// they said. Each prompt takes the next answer.
///
/// A prompt never hangs a test: one that finds no answer left, or that stays open after its answer,
/// is closed and fails the test. An answer that no prompt has asked for fails the test as well,
/// when the object goes. Instances do not nest.
///
///     PromptAnswer answer(1);
///     QTest::mouseClick(deleteButton, Qt::LeftButton);
///     QCOMPARE(answer.texts(), QStringList{QStringLiteral("Delete this plan?")});
class PromptAnswer : public QObject
{
    Q_OBJECT

public:
    /// Beside the numbers 1 to 3, which click on the button at that place.
    enum Way {
        Enter = -1,  ///< Press Return.
        Escape = -2, ///< Press Escape.
        Close = -3,  ///< Click on the close button of the title bar.
    };

    /// No prompt is expected.
    PromptAnswer();
    explicit PromptAnswer(int answer);
    PromptAnswer(std::initializer_list<int> answers);
    ~PromptAnswer() override;

    /// Adds an answer for one prompt more.
    void expect(int answer);

    /// How many prompts have appeared.
    int count() const { return m_texts.size(); }
    /// What each prompt said, in order.
    QStringList texts() const { return m_texts; }
    /// The buttons that each prompt showed, such as "OK|Cancel".
    QStringList buttons() const { return m_buttons; }
    /// The kind of each prompt: 0 for a notice, 1 for a question.
    QVector<int> types() const { return m_types; }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void record(trel::widgets::TipDialog* prompt);
    void answer(trel::widgets::TipDialog* prompt);
    void closeIfOpen(const QPointer<trel::widgets::TipDialog>& prompt);

    std::deque<int> m_answers;
    QStringList m_texts;
    QStringList m_buttons;
    QVector<int> m_types;
};
