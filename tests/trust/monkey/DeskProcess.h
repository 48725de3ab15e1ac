#pragma once

#include "service/ScheduleRecords.h"

#include <QProcess>
#include <QString>

#include <map>
#include <memory>

/// The tasks of a schedule by their ids, without what follows from the catalogue: marks of entries
/// and collisions, and ends of plans that run so many times.
using Tasks = std::map<int, trel::mediadispatch::PlayTask>;
/// Ends the trial when the text is no schedule.
Tasks tasksOfJson(const QByteArray& json);

/// One editor of a trial, in a process of its own.
class DeskProcess
{
public:
    explicit DeskProcess(const QString& database);
    ~DeskProcess();

    struct Answer
    {
        QString result;
        Tasks tasks;
    };
    /// Asks, and waits for the answer.
    Answer ask(const QString& request);
    /// The two halves of it.
    void send(const QString& request);
    Answer answer();

    /// Ends the process as nothing can prepare for, and starts another one.
    void killAndRestart();

    /// The change of the store that its operator has seen last.
    int seen = 0;
    int seenWrites = 0;
    /// The working set as it was told last.
    Tasks tasks;
    /// What it was when it was read or saved last.
    Tasks base;
    bool isEdited() const { return tasks != base; }

private:
    void start();

    QString m_database;
    std::unique_ptr<QProcess> m_process;
};
