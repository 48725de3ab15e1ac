#pragma once

#include "changes/ChangesDialog.h"
#include "service/ScheduleRecords.h"

#include <QApplication>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPointer>
#include <QPushButton>
#include <QTimer>
#include <QtTest>

#include <deque>
#include <functional>
#include <initializer_list>

/// What is told of a task of one plan that the other desk has deleted. The demonstration begins
/// today, so that its dates are not the same tomorrow.
inline QString deletedLine(const trel::mediadispatch::PlayTask& task)
{
    return QStringLiteral("Task %1: deleted, was valid from %2 to %3, 1 plan")
        .arg(QString::number(task.id), QString::fromStdString(task.startDate),
             QString::fromStdString(task.endDate));
}

/// Answers the questions about changes that appear while it lives, through their windows, and
/// remembers what they said. Each takes the next answer: from 1 for the buttons, 0 for Escape. One
/// that finds no answer left is closed, and fails the test; so does an answer that nobody asked
/// for.
class ChangesAnswer : public QObject
{
public:
    ChangesAnswer(std::initializer_list<int> answers)
        : m_answers(answers)
    {
        connect(&m_timer, &QTimer::timeout, this, &ChangesAnswer::answer);
        m_timer.start(0);
    }
    explicit ChangesAnswer(int answer)
        : ChangesAnswer({answer})
    {}
    ~ChangesAnswer() override
    {
        if (!m_answers.empty()) {
            QTest::qFail("an answer was not asked for", __FILE__, __LINE__);
        }
    }
    Q_DISABLE_COPY(ChangesAnswer)

    int count() const { return m_texts.size(); }
    QStringList texts() const { return m_texts; }
    /// What each one told to differ, a line each.
    QStringList lists() const { return m_lists; }
    QStringList buttons() const { return m_buttons; }
    /// Is run on each one before it is answered.
    std::function<void(QDialog& dialog)> onEach;

private:
    void answer()
    {
        auto* dialog =
            qobject_cast<trel::desktop::changes::ChangesDialog*>(QApplication::activeModalWidget());
        if (dialog == nullptr || !dialog->isVisible() || dialog == m_last) {
            return;
        }
        m_last = dialog;
        m_texts.append(dialog->findChild<QLabel*>(QStringLiteral("changesText"))->text());
        m_lists.append(
            dialog->findChild<QPlainTextEdit*>(QStringLiteral("changesList"))->toPlainText());
        QStringList buttons;
        for (int i = 1;; ++i) {
            const auto* button = dialog->findChild<QPushButton*>(QStringLiteral("answer%1").arg(i));
            if (button == nullptr) {
                break;
            }
            buttons.append(button->text());
        }
        m_buttons.append(buttons.join(QLatin1Char('|')));
        if (onEach) {
            onEach(*dialog);
        }
        if (m_answers.empty()) {
            QTest::qFail("a question that nobody expected", __FILE__, __LINE__);
            dialog->reject();
            return;
        }
        const int answer = m_answers.front();
        m_answers.pop_front();
        if (answer == 0) {
            QTest::keyClick(dialog, Qt::Key_Escape);
        } else {
            QTest::mouseClick(
                dialog->findChild<QPushButton*>(QStringLiteral("answer%1").arg(answer)),
                Qt::LeftButton);
        }
    }

    QTimer m_timer;
    std::deque<int> m_answers;
    QPointer<QWidget> m_last;
    QStringList m_texts;
    QStringList m_lists;
    QStringList m_buttons;
};
