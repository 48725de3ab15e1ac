#pragma once

#include <QObject>

#include <functional>

class QAction;

namespace trel::mediadispatch {
class scheduleControlUI;
}

namespace trel::desktop {

class PendingNotices;

namespace air {

/// Puts the schedule on air from the window: asks first, saves what is unsaved, and starts what is
/// saved then, by the rules of the editor's own button. While two tasks share a day it says so
/// instead.
class StartAction : public QObject
{
    Q_OBJECT

public:
    /// How many problems the schedule has.
    using Count = std::function<int()>;

    /// All of these outlive it. The question names the number of problems; none is named for 0.
    StartAction(trel::mediadispatch::scheduleControlUI& editor, PendingNotices& notices,
                Count openProblems, QObject* parent);

    QAction* action() const { return m_action; }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void retranslate();
    void ask();
    void start();
    QString question() const;

    trel::mediadispatch::scheduleControlUI& m_editor;
    PendingNotices& m_notices;
    Count m_openProblems;
    QAction* m_action;
};

} // namespace air

} // namespace trel::desktop
