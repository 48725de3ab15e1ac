#pragma once

#include <QString>

namespace trel::mediadispatch {
struct Fault;
struct ScheduleFromJson;
struct StoreResult;
} // namespace trel::mediadispatch

/// What the service and its files report, in the language of the host. Everything is one or more
/// whole sentences; file names stand in them as the operator knows them.
namespace trel::desktop::problems {

/// Why something could not be done; empty when there is no reason.
QString sentence(const trel::mediadispatch::Fault& fault);

/// How a call of the store ended; empty when all went well.
QString sentence(const trel::mediadispatch::StoreResult& result);

/// Why a file could not be read. The second says where in the file the schedule has its fault.
QString unreadable(const QString& file, const trel::mediadispatch::Fault& fault);
QString unreadable(const QString& file, const trel::mediadispatch::ScheduleFromJson& schedule);

/// Why a schedule has a fault, and where.
QString sentence(const trel::mediadispatch::ScheduleFromJson& schedule);

/// Why a file could not be written.
QString unwritable(const QString& file, const trel::mediadispatch::Fault& fault);

} // namespace trel::desktop::problems
