#include "place/PlaceWords.h"

#include "common/DisplayText.h"
#include "trelprogramschedule/store/StorePlace.h"

#include <QFileInfo>

using trel::mediadispatch::StorePlace;

namespace trel::desktop::place {

QString placeName(const QString& place)
{
    const StorePlace parts(place);
    return parts.isOnServer() ? QStringLiteral("%1 (%2)").arg(hosts::printable(parts.schedule()),
                                                              hosts::printable(parts.host()))
                              : QFileInfo(place).fileName();
}

QString placeFileName(const QString& place)
{
    const StorePlace parts(place);
    if (!parts.isOnServer()) {
        return QFileInfo(place).completeBaseName();
    }
    QString name;
    const QString schedule = parts.schedule();
    for (const QChar character : schedule) {
        name += character.isLetterOrNumber() ? character : QLatin1Char('_');
    }
    return name;
}

QString placeFolder(const QString& place)
{
    return StorePlace::isAddress(place) ? QString() : QFileInfo(place).path();
}

} // namespace trel::desktop::place
