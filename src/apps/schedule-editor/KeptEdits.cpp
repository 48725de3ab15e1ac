#include "KeptEdits.h"

#include "clock/Clock.h"
#include "common/DefaultDatabase.h"
#include "exchange/ScheduleFile.h"
#include "place/PlaceWords.h"
#include "trelprogramschedule/store/StorePlace.h"

#include <QDateTime>
#include <QDir>
#include <QFileInfo>

using namespace trel::mediadispatch;

namespace trel::desktop {

namespace {

QString freshName(const QDir& folder, const QString& store)
{
    const QDateTime now = QDateTime::fromMSecsSinceEpoch(Clock::current().msecsSinceEpoch());
    const QString start =
        QStringLiteral("%1.not-saved-%2")
            .arg(place::placeFileName(store), now.toString(QStringLiteral("yyyyMMdd-hhmmss")));
    QString name = start;
    for (int number = 2; folder.exists(name + QStringLiteral(".json")); ++number) {
        name = QStringLiteral("%1-%2").arg(start, QString::number(number));
    }
    return folder.filePath(name + QStringLiteral(".json"));
}

} // namespace

KeptEdits keepEdits(const std::map<int, PlayTask>& tasks, const QString& store)
{
    KeptEdits kept;
    for (const QString& beside : {store, hosts::makeDefaultDatabaseFolder()}) {
        if (beside.isEmpty() || StorePlace::isAddress(beside)) {
            continue;
        }
        const QString file = freshName(QFileInfo(beside).absoluteDir(), store);
        kept.fault = writeSchedule(file, tasks, FileHashes::LeaveOut);
        if (!kept.fault) {
            kept.file = file;
            break;
        }
    }
    return kept;
}

} // namespace trel::desktop
