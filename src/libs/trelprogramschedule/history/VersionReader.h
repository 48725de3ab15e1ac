#pragma once

#include "service/ScheduleRecords.h"
#include "trelprogramschedule/history/ScheduleVersion.h"
#include "trelprogramschedule/store/StoreResult.h"
#include "trelprogramschedule_export.h"

#include <QString>
#include <QtGlobal>

#include <functional>
#include <map>
#include <vector>

namespace trel::mediadispatch {

/// Reads what was saved in any thread, beside ScheduleHost, which belongs to the one of the
/// interface. Each call has a connection of its own and reads one state of the store, the newest
/// that is complete; it waits for nobody who writes.
class TRELPROGRAMSCHEDULE_EXPORT VersionReader
{
public:
    /// The path of a store that ScheduleHost has open for writing in this process. Where it is
    /// closed meanwhile, reading is refused or goes on.
    explicit VersionReader(QString path);

    /// What is being read may become needless: once the function returns true, a call that reads
    /// tasks ends within some milliseconds and is refused. It is asked in the thread that reads;
    /// none is never asked.
    void endWhen(std::function<bool()> isNeedless);

    /// As ScheduleHost::versions.
    StoreResult versions(std::vector<ScheduleVersion>& versions) const;
    /// As ScheduleHost::versionTasks; kNoVersion stands for what is saved.
    StoreResult tasks(qint64 number, std::map<int, PlayTask>& tasks) const;

private:
    template <typename Reading>
    StoreResult read(const Reading& reading) const;

    QString m_path;
    std::function<bool()> m_isNeedless;
};

} // namespace trel::mediadispatch
