#pragma once

#include "SecondBySecond.h"

#include <QString>
#include <QTimeZone>

#include <random>

/// A schedule as no sane operator would write it, and plans that are cut into it.
struct RandomSchedule
{
    std::map<int, trel::mediadispatch::PlayTask> tasks;
    std::vector<secondbysecond::Request> requests;
};

/// How the schedules of a window are drawn.
struct Drawing
{
    std::vector<std::string> dates; ///< First and last days; also such as are none.
    int firstHour = 0;              ///< Most times lie from here
    int lastHour = 23;              ///< to here.
};

RandomSchedule randomSchedule(std::uint32_t seed, const Drawing& drawing,
                              const secondbysecond::Window& window);

/// To be pasted into a case of the tables.
QString textOf(const RandomSchedule& schedule, const QTimeZone& zone);
