#pragma once

#include "QuickFolder.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <map>
#include <vector>

/// A command of the console that writes, and what it finds when it begins.
struct WritingCommand
{
    const char* name;
    QStringList words;     ///< Behind the program's name; "@" stands for the folder of the trial.
    const char* start;     ///< The state of the folder, one of those of TrialFolder.
    bool isExport = false; ///< It writes out.json, and not the store.
};

const std::vector<WritingCommand>& writingCommands();

/// A folder that is put into one of a few states again and again, and is judged by what stands in
/// it.
class TrialFolder
{
public:
    /// Makes the states with the console itself.
    explicit TrialFolder(QString console);

    /// Not within a link, and without the files of the states.
    QString path() const;
    QStringList argumentsOf(const WritingCommand& command) const;

    /// Puts everything back to how a command begins.
    void reset(const WritingCommand& command) const;

    /// What a command is about, in words that are the same for the same contents. Opens the store
    /// as a program does that goes on with it, and closes it. An empty store is as good as none.
    /// Begins with "!" where there is neither the one nor the other.
    QByteArray contents(const WritingCommand& command) const;

    /// What is there and should not be, now that all programs have ended.
    QStringList leftovers() const;

private:
    QString filePath(const char* name) const;
    void keepState(const char* name);
    bool runConsole(const QStringList& words) const;
    QByteArray storeContents() const;

    QString m_console;
    QuickFolder m_folder;
    std::map<QString, std::map<QString, QByteArray>> m_states;
};
