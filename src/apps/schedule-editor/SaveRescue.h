#pragma once

#include "trelprogramschedule/ScheduleHost.h"

#include <QObject>

class QWidget;

namespace trel::desktop {

/// Stands by when a save fails.
///
/// The editor closes after a save, and its next refresh drops what was not stored. So the operator
/// is asked while the save still runs: try again, write the schedule to a file, or give it up. The
/// question comes back until one of the three has been done, or until the program is to end: when
/// it quits, when the window is closed or the session ends, the edits are kept in a file and
/// nothing is asked any more.
class SaveRescue : public QObject
{
    Q_OBJECT

public:
    /// Listens to the host from now on. Prompts stand over the window.
    SaveRescue(trel::mediadispatch::ScheduleHost& host, QWidget* window);

signals:
    /// The schedule was written to a file instead of the store.
    void written(const QString& file);
    /// The operator gave the schedule up.
    void givenUp();
    /// The program is to end; the schedule stands in this file. Empty where it could be kept
    /// nowhere. The file is named in the log as well.
    void kept(const QString& file);

protected:
    /// Sees the window being closed while it asks.
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    enum class Answer { TryAgain, WriteFile, GiveUp, None };

    void rescue(const trel::mediadispatch::StoreResult& reason);
    void askUntilDone(const trel::mediadispatch::StoreResult& reason);
    /// Ends the question, and with it the program.
    void leave();
    bool isLeaving() const;
    void keep();
    Answer ask(const QString& reason);
    /// True when the schedule stands in a file of the operator's choice.
    bool writeFile();

    trel::mediadispatch::ScheduleHost& m_host;
    QWidget* m_window;
    bool m_isAsking = false;
    bool m_isLeft = false;
};

} // namespace trel::desktop
