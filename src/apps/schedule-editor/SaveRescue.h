#pragma once

#include "trelprogramschedule/ScheduleHost.h"

#include <QObject>

class QWidget;

/// Stands by when a save fails.
///
/// The editor closes after a save, and its next refresh drops what was not stored. So the operator
/// is asked while the save still runs: try again, write the schedule to a file, or give it up. The
/// question comes back until one of the three has been done.
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

private:
    enum class Answer { TryAgain, WriteFile, GiveUp, None };

    void rescue(const trel::mediadispatch::StoreResult& reason);
    Answer ask(const QString& reason);
    /// True when the schedule stands in a file of the operator's choice.
    bool writeFile();

    trel::mediadispatch::ScheduleHost& m_host;
    QWidget* m_window;
};
