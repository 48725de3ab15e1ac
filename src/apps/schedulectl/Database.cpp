#include "Database.h"

#include "common/DefaultDatabase.h"
#include "service/scheduleManage.h"
#include "text/Console.h"
#include "text/FaultReport.h"
#include "trelprogramschedule/faults/FaultWords.h"
#include "trelprogramschedule/store/StorePlace.h"

namespace trel::console {

using trel::mediadispatch::ScheduleHost;
using trel::mediadispatch::scheduleManage;
using trel::mediadispatch::StorePlace;
using trel::mediadispatch::StoreProblem;
using trel::mediadispatch::StoreResult;

namespace {

QString fileOf(const Invocation& invocation, Database::Access access)
{
    if (!invocation.database.isEmpty()) {
        return invocation.database;
    }
    return access == Database::Access::Write ? hosts::makeDefaultDatabaseFolder()
                                             : hosts::defaultDatabasePath();
}

ScheduleHost::OpenMode modeOf(Database::Access access)
{
    switch (access) {
    case Database::Access::Read:
        return ScheduleHost::OpenMode::ReadOnly;
    case Database::Access::Change:
    case Database::Access::Follow:
        return ScheduleHost::OpenMode::MustExist;
    case Database::Access::Write:
        break;
    }
    return ScheduleHost::OpenMode::CreateIfMissing;
}

StoreResult openPart(Database::Part part, const QString& file, ScheduleHost::OpenMode mode)
{
    ScheduleHost& host = ScheduleHost::instance();
    return part == Database::Part::All ? host.open(file, mode) : host.openCatalogue(file, mode);
}

} // namespace

Database::Database(const Invocation& invocation, Access access, Part part)
    : m_access(access)
    , m_isWritable(access != Access::Read)
    , m_result(openPart(part, fileOf(invocation, access), modeOf(access)))
{
    if (access == Access::Follow && m_result.problem == StoreProblem::ReadOnly) {
        m_isWritable = false;
        m_result = openPart(part, fileOf(invocation, access), modeOf(Access::Read));
    }
}

Database::~Database()
{
    ScheduleHost::instance().close();
}

QString Database::error() const
{
    if (m_result.problem == StoreProblem::FileMissing && StorePlace::isAddress(m_result.path)) {
        return englishText(m_result) + QStringLiteral(" \"schedulectl server-setup\" makes one.");
    }
    const bool isMissing = m_result.problem == StoreProblem::FileMissing ||
                           m_result.problem == StoreProblem::FolderMissing;
    return isMissing && m_access != Access::Write
               ? englishText(m_result) + QStringLiteral(" \"schedulectl import\" makes a database.")
               : englishText(m_result);
}

QString Database::path() const
{
    return ScheduleHost::instance().path();
}

std::map<int, trel::mediadispatch::PlayTask> Database::tasks() const
{
    return scheduleManage::getInstance().getgTaskMap();
}

std::map<int, trel::mediadispatch::ProgramIten> Database::programs() const
{
    return scheduleManage::getInstance().getPrograms();
}

QString Database::programName(int progIndex) const
{
    return QString::fromStdString(
        scheduleManage::getInstance().getProgramNameByProgIndex(progIndex));
}

Catalogue Database::catalogue() const
{
    return {programs(), [](int progIndex) {
                return scheduleManage::getInstance().isNoDurationType(progIndex);
            }};
}

ScheduleHost& Database::host() const
{
    return ScheduleHost::instance();
}

std::unique_ptr<Database> openDatabase(const Invocation& invocation, Database::Access access,
                                       Console& console, Database::Part part)
{
    auto database = std::make_unique<Database>(invocation, access, part);
    if (!*database) {
        console.tell(database->error());
        if (invocation.json) {
            console.writeJson(refusalJson(database->result()));
        }
        return nullptr;
    }
    return database;
}

} // namespace trel::console
