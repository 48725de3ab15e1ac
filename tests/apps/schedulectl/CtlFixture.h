#pragma once

#include "service/ScheduleRecords.h"

#include <QByteArray>
#include <QJsonObject>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

#include <map>

class QProcess;

/// How a run of the program ended and what it said.
struct CtlResult
{
    int status = -1; ///< -1 when it did not end by itself.
    QByteArray out;
    QString err;

    QString text() const { return QString::fromUtf8(out); }
    /// The lines of the standard output, the last line feed apart.
    QStringList lines() const;
    QJsonObject json() const;
};

/// A folder with a database, and the real program that works on it. The program runs in the folder,
/// and takes it for the user's home.
class CtlFixture
{
public:
    using Schedule = std::map<int, trel::mediadispatch::PlayTask>;

    CtlFixture();

    /// Absolute path of a file in the folder.
    QString path(const QString& name) const { return m_folder.filePath(name); }
    QString database() const { return path(QStringLiteral("test.db")); }

    /// Runs the program with exactly these arguments.
    CtlResult run(const QStringList& arguments, const QByteArray& input = {}) const;
    /// Runs a command on the database of the fixture.
    CtlResult onDatabase(const QStringList& arguments, const QByteArray& input = {}) const;
    /// Runs the program with its standard output going to a file of the system.
    CtlResult runInto(const QString& outputFile, const QStringList& arguments) const;
    /// Runs the program with a terminal as its standard error; err is what the terminal got.
    CtlResult runWatched(const QStringList& arguments) const;

    /// Starts a command on the database of the fixture and does not wait for it.
    void start(QProcess& process, const QStringList& arguments) const;

    /// Puts a schedule into the database, by import-schedule.
    void store(const Schedule& schedule) const;
    QByteArray exported() const;

    void writeFile(const QString& name, const QByteArray& content) const;
    QByteArray fileContent(const QString& name) const;
    /// Writes an audio file of this length; folders in between are made.
    void writeClip(const QString& name, int milliseconds) const;
    /// Files below the folder, sorted.
    QStringList files() const;

private:
    QTemporaryDir m_folder;
};

/// A task of the whole January of 2024.
trel::mediadispatch::PlayTask
januaryTask(int id, const std::vector<trel::mediadispatch::PlayPlan>& plans = {});

/// A plan of one program in TimeMode.
trel::mediadispatch::PlayPlan timePlan(int id, const char* start, const char* end,
                                       const char* weeks, int progIndex);
