#pragma once

#include <QColor>

namespace trel::desktop::look {

struct ThemeColours;

/// The colours by which a program is known wherever it is shown.
struct ProgramColours
{
    QColor ground; ///< Under texts, which reach a contrast of 4.5 to 1 on it.
    QColor text;
    QColor line; ///< Of edges and signs; reaches a contrast of 3 to 1 on the ground of the window.
};

/// The colours of a program by its index in the catalogue, in a theme. They hang on both alone, so
/// that a program keeps them from run to run, whatever else comes or goes. Programs that follow one
/// another are far apart. A program that has no index, below 0, has the colours of a plan.
ProgramColours programColours(int progIndex, const ThemeColours& theme);

} // namespace trel::desktop::look
