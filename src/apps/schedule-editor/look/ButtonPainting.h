#pragma once

#include "ThemeColours.h"

class QPainter;
class QRect;
class QStyleOption;
class QWidget;

namespace look {

/// A filled box with a line of one pixel around it. A transparent colour leaves either out.
void paintBox(QPainter& painter, const QRect& rect, const QColor& ground, const QColor& line,
              qreal radius);

/// All of a button except its caption.
void paintButton(QPainter& painter, const ThemeColours& colours, const QStyleOption& option,
                 const QWidget* button);

/// The caption. False leaves it to the base style.
bool paintButtonLabel(QPainter& painter, const ThemeColours& colours, const QStyleOption& option,
                      const QWidget* button);

/// The ground of a program field.
void paintProgramField(QPainter& painter, const ThemeColours& colours, const QStyleOption& option);

void paintFocus(QPainter& painter, const ThemeColours& colours, const QStyleOption& option);

} // namespace look
