#include "SliderPainting.h"

#include "BoxPainting.h"

#include <QPainter>

namespace trel::desktop::look {

namespace {

constexpr int kTrackWidth = 5;
constexpr qreal kTrackRadius = 2.0;
constexpr qreal kHandleRadius = 4.0;

/// The groove, as slim as the track.
QRect trackOf(const QStyleOptionSlider& option, const QRect& groove)
{
    QRect track = groove;
    if (option.orientation == Qt::Horizontal) {
        track.setHeight(kTrackWidth);
    } else {
        track.setWidth(kTrackWidth);
    }
    track.moveCenter(groove.center());
    return track;
}

/// What of the track is done: from the least value to the handle.
QRect doneOf(const QStyleOptionSlider& option, const QRect& track, const QRect& handle)
{
    QRect done = track;
    if (option.orientation == Qt::Horizontal) {
        if (option.upsideDown) {
            done.setLeft(handle.center().x());
        } else {
            done.setRight(handle.center().x());
        }
    } else if (option.upsideDown) {
        done.setTop(handle.center().y());
    } else {
        done.setBottom(handle.center().y());
    }
    return done;
}

} // namespace

void paintSlider(QPainter& painter, const ThemeColours& colours, const QStyleOptionSlider& option,
                 const QRect& groove, const QRect& handle)
{
    const QRect track = trackOf(option, groove);
    if ((option.state & QStyle::State_Enabled) == 0) {
        paintBox(painter, track, colours.disabledField, colours.iconDisabled, kTrackRadius);
        paintBox(painter, handle, colours.disabledField, colours.iconDisabled, kHandleRadius);
        return;
    }
    const bool isActive =
        (option.state & QStyle::State_MouseOver) != 0 || (option.state & QStyle::State_Sunken) != 0;
    paintBox(painter, track, colours.field, colours.fieldLine, kTrackRadius);
    paintBox(painter, doneOf(option, track, handle), colours.accentLine, colours.accentLine,
             kTrackRadius);
    paintBox(painter, handle, isActive ? colours.buttonHover : colours.button,
             isActive ? colours.fieldLineHover : colours.fieldLine, kHandleRadius);
    if ((option.state & QStyle::State_HasFocus) != 0) {
        paintFocusRing(painter, handle, colours.focus, kHandleRadius);
    }
}

} // namespace trel::desktop::look
