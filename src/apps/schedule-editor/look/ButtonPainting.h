#pragma once

#include "ThemeColours.h"

class QPainter;
class QStyleOption;
class QWidget;

namespace trel::desktop::look {

/// All of a button except its caption.
void paintButton(QPainter& painter, const ThemeColours& colours, const QStyleOption& option,
                 const QWidget* button);

/// The caption. False leaves it to the base style.
bool paintButtonLabel(QPainter& painter, const ThemeColours& colours, const QStyleOption& option,
                      const QWidget* button);

/// The ground of a program field.
void paintProgramField(QPainter& painter, const ThemeColours& colours, const QStyleOption& option);

void paintFocus(QPainter& painter, const ThemeColours& colours, const QStyleOption& option);

} // namespace trel::desktop::look
