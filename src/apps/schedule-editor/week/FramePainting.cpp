#include "week/FramePainting.h"

#include "DateWords.h"
#include "look/ThemeColours.h"
#include "week/WeekScene.h"
#include "week/WeekWords.h"

#include <QPainter>
#include <QStyle>

#include <algorithm>

namespace trel::desktop::week {

namespace {

constexpr int kSpace = 4;

/// The name of a day and its date, or in less room the date alone.
QString headOf(const QDate& date, const QLocale& locale, const QFontMetrics& metrics, int width)
{
    const QString day = dayText(date);
    const QString whole =
        locale.dayName(date.dayOfWeek(), QLocale::ShortFormat) + QLatin1Char(' ') + day;
    return metrics.horizontalAdvance(whole) <= width ? whole : day;
}

/// Where the present time stands among the hours; invalid in another week.
QRect presentTag(const WeekScene& scene, const QRect& strip, int lineHeight)
{
    const qint64 day = scene.layout.first().daysTo(scene.now.date);
    if (day < 0 || day >= kDays) {
        return {};
    }
    const int y = scene.geometry.top(scene.now.second);
    return {strip.left(), std::max(y - lineHeight / 2 - 1, 0), strip.width(), lineHeight + 2};
}

} // namespace

int datesHeight(int lineHeight)
{
    return lineHeight * 2 + kSpace * 3;
}

void paintDates(QPainter& painter, const WeekScene& scene, const QRect& strip)
{
    const look::ThemeColours& colours = scene.colours;
    painter.fillRect(strip, colours.header);
    drawLine(painter, strip.bottomLeft(), strip.bottomRight(), colours.weekLine);
    const QFont plain = painter.font();
    QFont bold = plain;
    bold.setBold(true);
    const int lineHeight = painter.fontMetrics().height();
    for (int day = 0; day < kDays; ++day) {
        const WeekColumn& column = scene.layout.days[static_cast<std::size_t>(day)];
        QRect place = scene.geometry.column(day);
        place.setTop(strip.top());
        place.setHeight(strip.height());
        const bool isToday = column.date == scene.now.date;
        if (isToday) {
            painter.fillRect(place, colours.weekToday);
            painter.fillRect(QRect(place.left(), place.bottom() - 2, place.width(), 3),
                             colours.weekNow);
        }
        QRect text = place.adjusted(kSpace + 1, kSpace, -kSpace, 0);
        painter.setFont(bold);
        drawLabel(painter, text,
                  headOf(column.date, scene.locale, painter.fontMetrics(), text.width()),
                  colours.text);
        painter.setFont(plain);
        text.translate(0, lineHeight + kSpace / 2);
        text.setBottom(place.bottom());
        drawLabel(painter, text,
                  column.task ? Words::tr("Task %1").arg(*column.task) : Words::tr("No task"),
                  colours.faintText);
        if (day > 0) {
            const int x =
                scene.geometry.direction() == Qt::LeftToRight ? place.left() : place.right();
            drawLine(painter, {x, strip.top()}, {x, strip.bottom()}, colours.weekLine);
        }
    }
}

void paintHours(QPainter& painter, const WeekScene& scene, const QRect& strip)
{
    const look::ThemeColours& colours = scene.colours;
    painter.fillRect(strip, colours.header);
    const int lineHeight = painter.fontMetrics().height();
    const int step = labelStep(scene.geometry.hourHeight(), lineHeight) * 60;
    const int first = scene.geometry.secondAt(strip.top() - lineHeight) / step;
    const QRect tag = presentTag(scene, strip, lineHeight);
    const auto write = [&painter](const QRect& place, const QColor& colour, int second) {
        painter.setPen(colour);
        painter.drawText(place.adjusted(0, 0, -kSpace, 0),
                         Qt::AlignRight | Qt::AlignVCenter | Qt::AlignAbsolute, shortTime(second));
    };
    for (int second = first * step; second < kDaySeconds; second += step) {
        const int y = scene.geometry.top(second);
        if (y - lineHeight > strip.bottom()) {
            break;
        }
        // Midnight stands below its line, as there is nothing above.
        const int top = second == 0 ? 0 : y - lineHeight / 2;
        const QRect place(strip.left(), top, strip.width(), lineHeight);
        // Half of an hour above or below the present time could not be read.
        if (!place.intersects(tag)) {
            write(place, colours.faintText, second);
        }
    }
    if (tag.isValid()) {
        painter.fillRect(tag, colours.weekNow);
        write(tag, colours.weekNowText, scene.now.second / 60 * 60);
    }
}

} // namespace trel::desktop::week
