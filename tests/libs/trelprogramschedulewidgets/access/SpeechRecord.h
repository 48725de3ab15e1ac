#pragma once

#include "support/ActiveAccessibility.h"

#include <QAccessible>
#include <QString>
#include <QStringList>

/// What a screen reader would say while this lives, taken from what the windows tell it: what gets
/// the focus with its role, value, state and description, what changes in it, which window comes
/// up, what is to be said at once (!), and what shows up as a notification (*). One at a time.
///
/// Where the environment variable TREL_SPEECH_RECORD names a file, the record is appended to it.
class SpeechRecord
{
public:
    explicit SpeechRecord(const QString& title);
    ~SpeechRecord();
    Q_DISABLE_COPY(SpeechRecord)

    /// Writes down what the operator does.
    void doing(const QString& what);
    /// What was said so far.
    QStringList lines() const { return m_lines; }
    /// What was said since the last call.
    QStringList news();

    /// Something as it is said: name, role, value, states, and in brackets the description.
    static QString said(const QAccessibleInterface& what);

private:
    static void hear(QAccessibleEvent* event);
    void take(const QAccessibleEvent& event);
    void sayWindow();
    void say(const QString& line);

    ActiveAccessibility m_active;
    QAccessible::UpdateHandler m_former;
    QStringList m_lines;
    int m_read = 0;
    QString m_focused; ///< What was said last of what has the focus.
    QAccessible::Id m_focus = 0;
    const QWidget* m_window = nullptr; ///< Compared, and nothing else.
};
