#pragma once

#include "trelprogramschedule/effect/EffectStart.h"

#include <QObject>

#include <functional>
#include <optional>

class QAction;

namespace trel::mediadispatch {
class scheduleControlUI;
}

namespace trel::desktop {

class DraftKeeper;
class PendingNotices;

namespace air {

/// Puts the schedule on air from the window: asks first, saves what is unsaved, and starts what is
/// saved then, by the rules of the editor's own button. What was canceled is not saved, and can
/// still be brought back then. While two tasks share a day it says so instead.
class StartAction : public QObject
{
    Q_OBJECT

public:
    /// How many problems the schedule has.
    using Count = std::function<int()>;

    /// All of these outlive it. The question names the number of problems; none is named for 0.
    StartAction(QAction& action, trel::mediadispatch::scheduleControlUI& editor,
                DraftKeeper& drafts, PendingNotices& notices, Count openProblems, QObject* parent);

signals:
    /// The schedule has been put on air here, by the editor's own button as well, which asks
    /// nothing: a sentence that names the number of problems.
    void told(const QString& line);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void retranslate();
    void ask();
    void followEditor();
    void tellOfStart();
    void start();
    QString sentence() const;
    QString question() const;

    QAction& m_action;
    trel::mediadispatch::scheduleControlUI& m_editor;
    DraftKeeper& m_drafts;
    PendingNotices& m_notices;
    Count m_openProblems;
    std::optional<trel::mediadispatch::EffectStart> m_before; ///< What was on air then.
};

} // namespace air

} // namespace trel::desktop
