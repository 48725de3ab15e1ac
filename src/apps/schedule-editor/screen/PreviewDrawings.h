#pragma once

#include "service/ScheduleRecords.h"

class QPainter;
class QRect;

namespace trel::desktop {

/// Stands for a program that has no picture of its own, or none that can be read: a note for sound,
/// waves for a live source, a strip of film or a sheet for the rest. On black.
void paintPlaceholder(QPainter& painter, const QRect& room, trel::mediadispatch::ProgramKind kind);

/// Two bars in a ring: the picture stands still.
void paintPause(QPainter& painter, const QRect& room);

} // namespace trel::desktop
