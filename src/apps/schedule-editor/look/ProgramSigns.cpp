#include "look/ProgramSigns.h"

#include "look/ProgramColours.h"
#include "look/ThemeColours.h"

#include <QPainter>

namespace trel::desktop::look {

namespace {

/// Nobody compares more of them, and the names need their room.
constexpr int kMost = 4;
constexpr int kBetween = 3;

} // namespace

void paintProgramSign(QPainter& painter, const QRect& place, int progIndex,
                      const ThemeColours& colours, bool isSelected)
{
    const ProgramColours program = programColours(progIndex, colours);
    painter.fillRect(place, program.ground);
    painter.setPen(isSelected ? colours.text : program.line);
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(place.adjusted(0, 0, -1, -1));
}

ProgramIndexes signedPrograms(const ProgramIndexes& programs)
{
    ProgramIndexes known;
    for (const int program : programs) {
        // Several plays of a program in a list have one sign.
        if (program >= 0 && known.size() < kMost && !known.contains(program)) {
            known.append(program);
        }
    }
    return known;
}

QSize programSignsSize(int programs)
{
    return {programs * (kProgramSign + kBetween) - kBetween, kProgramSign};
}

} // namespace trel::desktop::look
