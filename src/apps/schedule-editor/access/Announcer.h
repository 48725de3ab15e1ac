#pragma once

#include <QWidget>

namespace trel::desktop::access {

/// Says to a screen reader what happens while the operator does something else: as an alert that
/// does not take the focus and interrupts nothing. It is part of its window, and not seen.
///
/// Checked with Qt 5.15.8: the toolkit passes no alerts on to the accessibility bus. There it is a
/// notification that shows up.
class Announcer : public QWidget
{
    Q_OBJECT

public:
    explicit Announcer(QWidget* window);

    /// Says a plain text, once: the same as the last one, or none, is not said.
    void say(const QString& text);

protected:
    /// What was said in another language is taken back.
    void changeEvent(QEvent* event) override;

private:
    QString m_said;
};

} // namespace trel::desktop::access
