#include "SecondBySecondCase.h"

#include "ScheduleWriting.h"
#include "StateWriting.h"

#include <QTimeZone>

using namespace trel::mediadispatch;

namespace secondbysecond {

QString differenceIn(const Case& tested, int number)
{
    const QTimeZone zone(tested.zone);
    if (!zone.isValid())
        return QStringLiteral("No zone of the name %1").arg(QLatin1String(tested.zone));
    const Window window = windowOf(
        tested.zone, momentFromText(QString::fromLatin1(tested.begin), zone), tested.minutes * 60);

    for (int i = 0; i < tested.schedules; ++i) {
        const auto seed = static_cast<std::uint32_t>(number * 100'000 + i);
        const RandomSchedule schedule = randomSchedule(seed, tested.drawing, window);
        const QString difference = firstDifference(schedule, window, zone);
        if (!difference.isEmpty()) {
            return QStringLiteral("%1, seed %2: %3\n%4")
                .arg(QLatin1String(tested.name))
                .arg(seed)
                .arg(difference, textOf(schedule, zone));
        }
    }
    return {};
}

} // namespace secondbysecond
