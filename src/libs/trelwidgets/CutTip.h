#pragma once

#include "PlainToolTip.h"

#include <QHelpEvent>
#include <QToolTip>
#include <QWidget>

namespace trel::widgets {

/// Shows the whole of a text that a widget had to cut, where the pointer rests on it.
inline void showCutTip(const QHelpEvent& event, QWidget& widget, const QString& text)
{
    QToolTip::showText(event.globalPos(), plainToolTip(text), &widget);
}

} // namespace trel::widgets
