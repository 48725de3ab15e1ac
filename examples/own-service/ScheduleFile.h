#pragma once

#include <service/ScheduleRecords.h>

#include <QString>

#include <map>

/// A schedule and the programs that it can name, in one JSON file that people can write:
///
///     { "programs": [ { "index": 1, "name": "Opening", "seconds": 12 } ],
///       "tasks": [ { "id": 1, "from": "2026.01.01", "to": "2026.12.31", "plans": [
///         { "id": 1, "mode": "time", "start": "08:00:00", "end": "18:00:00", "runs": 0,
///           "days": "1,2,3,4,5", "atEnd": "black",
///           "programs": [ { "index": 1, "name": "Opening", "plays": 2 } ] } ] } ] }
///
/// A program without "seconds" has no length of its own.
class ScheduleFile
{
public:
    using Programs = std::map<int, trel::mediadispatch::ProgramIten>;
    using Tasks = std::map<int, trel::mediadispatch::PlayTask>;

    /// Reads a file. Returns why that failed; empty where it did not. Changes nothing then.
    QString open(const QString& path);
    /// Writes the programs as they are and other tasks, whole or not at all. Returns why that
    /// failed.
    QString save(const Tasks& tasks);

    const Programs& programs() const { return m_programs; }
    const Tasks& tasks() const { return m_tasks; }

private:
    QString m_path;
    Programs m_programs;
    Tasks m_tasks;
};
