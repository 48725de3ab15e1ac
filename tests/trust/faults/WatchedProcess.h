#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <chrono>
#include <functional>

/// What a program asks the system to do with the files of a folder.
enum class FileCall {
    Open,
    Read,
    Write,
    Sync,
    Truncate,
    Rename,
    Remove,
    Map,
    Lock,
    Look, ///< At size, kind and the like.
    Mode, ///< Of access.
};
constexpr int kFileCalls = int(FileCall::Mode) + 1;

const char* nameOf(FileCall call);

/// What becomes of a call.
struct CallFate
{
    enum Kind { Passes, Fails, Kills } kind = Passes;
    int systemError = 0; ///< For one that fails; it is not carried out.
};

/// How a program ended.
struct ProcessEnd
{
    int status = -1;     ///< Its exit status; -1 where a signal ended it.
    int signal = 0;      ///< The signal that ended it.
    bool isLate = false; ///< It had to be ended.
    QByteArray output;
    QByteArray errors;
};

/// Runs a program and decides about every call by which it touches a folder or what lies in it,
/// before the call is carried out. All calls of the process are seen, whichever library makes them,
/// those of the programs that it starts included. Takes a system that tells of calls to another
/// process, which Linux does from 5.5 on.
class WatchedProcess
{
public:
    using Decide = std::function<CallFate(FileCall)>;

    /// The folder is an absolute path without links, and the program names its files by it.
    /// A program that has not ended when the patience is over is killed.
    WatchedProcess(QString program, QString folder,
                   std::chrono::seconds patience = std::chrono::seconds(30));

    /// Whether this system can do it.
    static bool isPossible();

    /// Runs it to its end, or kills it after a delay, where one is given.
    ProcessEnd run(const QStringList& arguments, const Decide& decide,
                   std::chrono::microseconds killAfter = {}) const;

private:
    QString m_program;
    QString m_folder;
    std::chrono::seconds m_patience;
};
