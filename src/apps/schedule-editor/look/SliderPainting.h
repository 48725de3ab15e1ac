#pragma once

#include "ThemeColours.h"

#include <QStyleOption>

class QPainter;

namespace trel::desktop::look {

/// A slider: a track that stands out from every ground, filled up to the handle, and the handle.
void paintSlider(QPainter& painter, const ThemeColours& colours, const QStyleOptionSlider& option,
                 const QRect& groove, const QRect& handle);

} // namespace trel::desktop::look
