#pragma once

#include "ThemeColours.h"

#include <QStyleOption>

class QPainter;
class QWidget;

namespace trel::desktop::look {

/// True for the line that is part of a spin box or of a combo box.
bool isInsideField(const QWidget* widget);

void paintField(QPainter& painter, const ThemeColours& colours, const QStyleOption& option);

void paintSpinBox(QPainter& painter, const ThemeColours& colours, const QStyleOptionSpinBox& option,
                  const QRect& up, const QRect& down);
void paintComboBox(QPainter& painter, const ThemeColours& colours,
                   const QStyleOptionComboBox& option, const QRect& arrow);
void paintComboBoxLabel(QPainter& painter, const ThemeColours& colours,
                        const QStyleOptionComboBox& option, const QRect& room);

/// With its figure in the middle, in a colour of its own on what is done.
void paintProgressBar(QPainter& painter, const ThemeColours& colours,
                      const QStyleOptionProgressBar& option);

/// The text of a box that shows all that is chosen in it, cut to what has room.
void paintChoices(QPainter& painter, const ThemeColours& colours, const QStyleOption& option,
                  const QString& text);

/// The parts of a field, as they lie when text runs from left to right.
QRect spinBoxPart(const QStyleOptionSpinBox& option, QStyle::SubControl part);
QRect comboBoxPart(const QStyleOptionComboBox& option, QStyle::SubControl part);

} // namespace trel::desktop::look
