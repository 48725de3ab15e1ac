#include "VersionReader.h"

#include "PlanEnds.h"
#include "TaskSets.h"
#include "catalogue/ProgramCatalogue.h"
#include "store/StoreCatalogue.h"
#include "store/StoreContents.h"
#include "store/StoreDeadline.h"
#include "store/StoreEngines.h"
#include "store/StoreSchema.h"
#include "store/StoreTaskReader.h"
#include "store/StoreVersions.h"

#include <chrono>
#include <memory>
#include <new>
#include <utility>

namespace trel::mediadispatch {

namespace {

/// A file that needs longer was made to.
constexpr std::chrono::seconds kReadingTime{30};

} // namespace

VersionReader::VersionReader(QString path)
    : m_path(std::move(path))
{}

void VersionReader::endWhen(std::function<bool()> isNeedless)
{
    m_isNeedless = std::move(isNeedless);
}

/// Never opens the file by any other way than the database's: closing it would let go of the locks
/// that this process has on it.
template <typename Reading>
StoreResult VersionReader::read(const Reading& reading) const
try {
    const std::unique_ptr<StoreConnection> reader = readerFor(m_path);
    const StoreConnection& connection = *reader;
    const StoreDeadline deadline(connection, kReadingTime, m_isNeedless);
    StoreTransaction transaction(connection, StoreTransaction::Purpose::Read);
    // Another file may have taken the place of the one that was opened.
    StoreSchema::checkElements(connection, m_path);
    reading(connection, deadline);
    transaction.commit();
    return {};
} catch (const StoreError& error) {
    return error.result;
} catch (const std::bad_alloc&) {
    return {StoreProblem::Other, m_path, {FaultCode::NoMemory, {}}};
}

StoreResult VersionReader::versions(std::vector<ScheduleVersion>& versions) const
{
    return read([&](const StoreConnection& connection, const StoreDeadline&) {
        versions = StoreVersions(connection, m_path).list();
    });
}

StoreResult VersionReader::tasks(qint64 number, std::map<int, PlayTask>& tasks) const
{
    return read([&](const StoreConnection& connection, const StoreDeadline& deadline) {
        TaskMap found = number == kNoVersion
                            ? StoreTaskReader(connection, m_path).read()
                            : StoreVersions(connection, m_path).read(number, &deadline);
        StoreContents contents;
        StoreCatalogue(connection, m_path).read(contents);
        ProgramCatalogue catalogue;
        catalogue.assign(std::move(contents.programs), std::move(contents.removedNames));
        for (auto& [id, task] : found) {
            bringUpToDate(task, catalogue);
        }
        tasks = std::move(found);
    });
}

} // namespace trel::mediadispatch
