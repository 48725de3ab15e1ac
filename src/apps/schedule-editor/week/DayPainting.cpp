#include "week/DayPainting.h"

#include "BidiText.h"
#include "look/ThemeColours.h"
#include "screen/ScreenWords.h"
#include "trelprogramschedule/dispatch/ScreenState.h"
#include "week/BlockPainting.h"
#include "week/WeekScene.h"
#include "week/WeekWords.h"

#include <QPainter>

#include <algorithm>

using namespace trel::mediadispatch;

namespace trel::desktop::week {

namespace {

constexpr int kTextSpace = 5;
constexpr int kFrozenStep = 6;
constexpr int kClockStep = 8;

void paintPattern(QPainter& painter, const QRect& rect, const QColor& colour,
                  Qt::BrushStyle pattern)
{
    // The pattern hangs on the place and not on the picture, so that it does not swim in scrolling.
    painter.setBrushOrigin(rect.topLeft());
    painter.fillRect(rect, QBrush(colour, pattern));
    painter.setBrushOrigin(0, 0);
}

/// The text of a stretch, at its top or where its top has left the picture.
QRect labelPlace(const WeekScene& scene, const QRect& rect, int below)
{
    const int top = std::max(rect.top() + 2, scene.visible.top() + 2) + below;
    return QRect(QPoint(rect.left() + kTextSpace, top),
                 QPoint(rect.right() - kTextSpace, rect.bottom()));
}

QString labelOf(const WeekStretch& stretch)
{
    switch (stretch.kind) {
    case WeekStretch::Black:
        return ScreenWords::picture(trel::mediadispatch::ScreenPicture::Black);
    case WeekStretch::Frozen:
        return isolated(Words::tr("Frozen: %1").arg(isolated(stretch.program)));
    case WeekStretch::Inserted:
        break;
    }
    return isolated(Words::tr("Cut in: %1").arg(isolated(stretch.program)));
}

QColor groundOf(const WeekStretch& stretch, const look::ThemeColours& colours)
{
    return stretch.kind == WeekStretch::Black ? colours.weekBlack : colours.weekFrozen;
}

void paintGround(QPainter& painter, const WeekScene& scene, int day, const WeekStretch& stretch,
                 const QRect& exposed)
{
    const QRect part = scene.geometry.span(day, stretch.from, stretch.to, stretch.pass) & exposed;
    if (part.isEmpty()) {
        return;
    }
    painter.fillRect(part, groundOf(stretch, scene.colours));
    if (stretch.kind == WeekStretch::Black) {
        return;
    }
    for (int y = (part.top() / kFrozenStep + 1) * kFrozenStep; y <= part.bottom();
         y += kFrozenStep) {
        drawLine(painter, {part.left(), y}, {part.right(), y}, scene.colours.weekFrozenPattern);
    }
}

/// Above the grid, on a ground of its own, so that no line goes through the words.
void paintLabel(QPainter& painter, const WeekScene& scene, int day, const WeekStretch& stretch,
                const QRect& exposed)
{
    const QRect rect = scene.geometry.span(day, stretch.from, stretch.to, stretch.pass);
    if (!rect.intersects(exposed)) {
        return;
    }
    const look::ThemeColours& colours = scene.colours;
    const bool hasTask = scene.layout.days[static_cast<std::size_t>(day)].task.has_value();
    const int below = hasTask ? 0 : painter.fontMetrics().height() + 4;
    const QColor text =
        stretch.kind == WeekStretch::Black ? colours.weekBlackText : colours.weekFrozenText;
    drawLabel(painter, labelPlace(scene, rect, below), labelOf(stretch), text,
              groundOf(stretch, colours));
}

void paintGrid(QPainter& painter, const WeekScene& scene, const QRect& exposed)
{
    const WeekGeometry& geometry = scene.geometry;
    const int step = gridStep(geometry.hourHeight()) * 60;
    const int first = geometry.secondAt(exposed.top()) / step;
    const int last = geometry.secondAt(exposed.bottom()) / step + 1;
    for (int line = std::max(first, 1); line <= last && line * step < kDaySeconds; ++line) {
        const int y = geometry.top(line * step);
        const bool isHour = line * step % 3600 == 0;
        drawLine(painter, {exposed.left(), y}, {exposed.right(), y}, scene.colours.weekLine,
                 isHour ? Qt::SolidLine : Qt::DotLine);
    }
    for (int day = 0; day < kDays; ++day) {
        const QRect column = geometry.column(day);
        const int x = geometry.direction() == Qt::LeftToRight ? column.left() : column.right();
        if (day > 0) {
            drawLine(painter, {x, exposed.top()}, {x, exposed.bottom()}, scene.colours.weekLine);
        }
    }
}

void paintClockChange(QPainter& painter, const WeekScene& scene, int day, const ClockChange& change,
                      const QRect& exposed)
{
    const look::ThemeColours& colours = scene.colours;
    QRect rect = scene.geometry.span(day, change.begin, change.end);
    rect.setHeight(std::max(rect.height(), 2));
    if (!rect.intersects(exposed)) {
        return;
    }
    if (change.isLeftOut()) {
        painter.fillRect(rect, colours.weekClock);
        paintPattern(painter, rect, colours.weekClockPattern, Qt::BDiagPattern);
        drawLabel(painter, labelPlace(scene, rect, 0), isolated(Words::tr("Skipped")),
                  colours.weekClockText, colours.weekClock);
        return;
    }
    // What comes twice keeps its ground: two passes side by side, between two lines.
    const int middle = scene.geometry.span(day, change.begin, change.end, Pass::Second).left();
    const int half = scene.geometry.direction() == Qt::LeftToRight ? middle : rect.center().x();
    drawLine(painter, {half, rect.top()}, {half, rect.bottom()}, colours.weekClockPattern);
}

/// Says above the blocks that an hour comes twice.
void paintDoubled(QPainter& painter, const WeekScene& scene, int day, const ClockChange& change,
                  const QRect& exposed)
{
    const QRect rect = scene.geometry.span(day, change.begin, change.end);
    if (change.isLeftOut() || !rect.intersects(exposed)) {
        return;
    }
    const look::ThemeColours& colours = scene.colours;
    const int height = painter.fontMetrics().height();
    for (const int y : {rect.top(), rect.bottom()}) {
        for (int x = rect.left(); x < rect.right(); x += kClockStep) {
            painter.fillRect(QRect(x, y - 1, kClockStep / 2, 2), colours.weekClockText);
        }
    }
    if (rect.height() >= height * 2) {
        const QRect line(rect.left() + kTextSpace, rect.bottom() - height - 1,
                         rect.width() - 2 * kTextSpace, height);
        drawLabel(painter, line, isolated(Words::tr("Repeated")), colours.weekClockText,
                  colours.weekClock);
    }
}

void paintInsertion(QPainter& painter, const WeekScene& scene, int day, const WeekStretch& stretch,
                    const QRect& exposed)
{
    QRect rect = scene.geometry.span(day, stretch.from, stretch.to, stretch.pass);
    rect = rect.adjusted(2, 0, -2, 0);
    rect.setHeight(std::max(rect.height(), 2));
    if (!rect.intersects(exposed)) {
        return;
    }
    painter.fillRect(rect, scene.colours.weekInserted);
    drawLabel(painter, labelPlace(scene, rect, 0), labelOf(stretch),
              scene.colours.weekInsertedText);
}

void paintColumn(QPainter& painter, const WeekScene& scene, int day, const QRect& exposed)
{
    const WeekColumn& column = scene.layout.days[static_cast<std::size_t>(day)];
    for (const WeekStretch& stretch : column.stretches) {
        if (stretch.kind != WeekStretch::Inserted) {
            paintLabel(painter, scene, day, stretch, exposed);
        }
    }
    for (const ClockChange& change : column.changes) {
        paintClockChange(painter, scene, day, change, exposed);
    }
    paintBlocks(painter, scene, day, exposed);
    for (const WeekStretch& stretch : column.stretches) {
        if (stretch.kind == WeekStretch::Inserted) {
            paintInsertion(painter, scene, day, stretch, exposed);
        }
    }
    for (const ClockChange& change : column.changes) {
        paintDoubled(painter, scene, day, change, exposed);
    }
    paintMarks(painter, scene, day, exposed);
}

void paintEmptyDay(QPainter& painter, const WeekScene& scene, int day)
{
    if (!scene.layout.days[static_cast<std::size_t>(day)].task) {
        drawLabel(painter, labelPlace(scene, scene.geometry.column(day), 0),
                  Words::tr("No task is valid"), scene.colours.faintText, scene.colours.weekGround);
    }
}

void paintNow(QPainter& painter, const WeekScene& scene)
{
    const qint64 day = scene.layout.first().daysTo(scene.now.date);
    if (day < 0 || day >= kDays) {
        return;
    }
    const int y = scene.geometry.top(scene.now.second);
    const QRect column = scene.geometry.column(static_cast<int>(day));
    drawLine(painter, {0, y}, {scene.geometry.width(), y}, scene.colours.weekNow);
    painter.fillRect(QRect(column.left(), y - 1, column.width(), 3), scene.colours.weekNow);
}

} // namespace

void paintDays(QPainter& painter, const WeekScene& scene, const QRect& exposed)
{
    painter.fillRect(exposed, scene.colours.weekGround);
    const auto forExposedDays = [&](const auto& paint) {
        for (int day = 0; day < kDays; ++day) {
            const QRect column = scene.geometry.column(day);
            if (column.intersects(exposed)) {
                painter.save();
                painter.setClipRect(column & exposed);
                paint(day);
                painter.restore();
            }
        }
    };
    forExposedDays([&](int day) {
        for (const WeekStretch& stretch :
             scene.layout.days[static_cast<std::size_t>(day)].stretches) {
            if (stretch.kind != WeekStretch::Inserted) {
                paintGround(painter, scene, day, stretch, exposed);
            }
        }
    });
    paintGrid(painter, scene, exposed);
    forExposedDays([&](int day) {
        paintColumn(painter, scene, day, exposed);
        paintEmptyDay(painter, scene, day);
    });
    paintNow(painter, scene);
}

} // namespace trel::desktop::week
