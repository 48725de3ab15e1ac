#pragma once

#include "support/ChooserWindow.h"
#include "support/PlatformNotes.h"

#include <QObject>

#include <deque>
#include <functional>

/// Operates the program choosers that open while it lives. Each takes the next list of steps, which
/// ends with confirming, cancelling or closing it.
///
/// A chooser never hangs a test: one that was not expected, or that is still open after its steps,
/// is closed and fails the test, and so does a chooser that was expected and did not open.
///
///     ChooserAnswer answer([](ChooserWindow& chooser) {
///         chooser.checkProgram(0);
///         chooser.choose();
///         chooser.confirm();
///     });
class ChooserAnswer : public QObject
{
    Q_OBJECT

public:
    using Steps = std::function<void(ChooserWindow&)>;

    ChooserAnswer();
    explicit ChooserAnswer(Steps steps);
    ~ChooserAnswer() override;

    /// Adds the steps for one chooser more.
    void expect(Steps steps);
    /// How many choosers have opened.
    int count() const { return m_count; }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void answer(QDialog* chooser);

    NoPlatformNotes m_quiet;
    std::deque<Steps> m_steps;
    int m_count = 0;
};
