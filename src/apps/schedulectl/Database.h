#pragma once

#include "Command.h"
#include "schedule/ScheduleCheck.h"
#include "service/ScheduleRecords.h"
#include "trelprogramschedule/ScheduleHost.h"

#include <map>
#include <memory>

namespace trel::console {

class Console;

/// The store that a command works on: open from construction to the end of its life, unless it
/// could not be opened.
class Database
{
public:
    enum class Access {
        Read,   ///< The database has to exist, and is neither changed nor waited for.
        Change, ///< It has to exist.
        Follow, ///< As Change; one that cannot be written is only read.
        Write,  ///< It is made when it is missing.
    };

    /// How much of it is read when it is opened.
    enum class Part {
        All,
        Catalogue, ///< The schedule is read when tasks() asks for it.
    };

    Database(const Invocation& invocation, Access access, Part part);
    ~Database();
    Q_DISABLE_COPY(Database)

    explicit operator bool() const { return static_cast<bool>(m_result); }
    /// Why it could not be opened, as a sentence.
    QString error() const;
    /// The same for machines.
    const trel::mediadispatch::StoreResult& result() const { return m_result; }

    /// Absolute path.
    QString path() const;
    /// False for one that is only read.
    bool isWritable() const { return m_isWritable; }
    std::map<int, trel::mediadispatch::PlayTask> tasks() const;
    std::map<int, trel::mediadispatch::ProgramIten> programs() const;
    /// The name last known for an index, also of a program that was removed; empty for none.
    QString programName(int progIndex) const;
    Catalogue catalogue() const;
    trel::mediadispatch::ScheduleHost& host() const;

private:
    Access m_access;
    bool m_isWritable;
    trel::mediadispatch::StoreResult m_result;
};

/// Opens the database of a command. Null when that is not possible; the user is told why and, where
/// the results are to be JSON, a machine as well.
std::unique_ptr<Database> openDatabase(const Invocation& invocation, Database::Access access,
                                       Console& console, Database::Part part = Database::Part::All);

} // namespace trel::console
