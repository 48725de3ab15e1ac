#pragma once

#include "trelwidgets/TipDialog.h"

#include <QApplication>
#include <QLabel>
#include <QPushButton>
#include <QStringList>
#include <QTimer>

#include <functional>

/// Answers every prompt that appears while it lives with its first button, and keeps what each
/// said. Something can be done before, while the prompt stands.
class AnyPrompt : public QObject
{
public:
    AnyPrompt() { qApp->installEventFilter(this); }

    QStringList texts;
    std::function<void()> meanwhile;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        auto* const prompt = event->type() == QEvent::Show
                                 ? qobject_cast<trel::widgets::TipDialog*>(watched)
                                 : nullptr;
        if (prompt) {
            texts.append(prompt->findChild<QLabel*>(QStringLiteral("dialogTipLabel"))->text());
            QTimer::singleShot(0, prompt, [this, prompt] {
                if (meanwhile) {
                    meanwhile();
                }
                prompt->findChild<QPushButton*>(QStringLiteral("tipButton1"))->click();
            });
        }
        return false;
    }
};
