#pragma once

#include <QRect>
#include <QVector>

class QPainter;

namespace trel::desktop::look {

struct ThemeColours;

/// The boxes by which programs are known beside their names, in the colours that they have in the
/// week.
using ProgramIndexes = QVector<int>;

/// In the models of tables: the programs that a cell names, in the order in which it does so.
constexpr int kProgramsRole = Qt::UserRole + 64;

constexpr int kProgramSign = 10;      ///< A sign is a square of this side.
constexpr int kBesideProgramSign = 6; ///< Between a sign and the name.

/// Paints the sign of a program, which has an index in the catalogue. On the ground of a selection
/// its edge has the colour of the texts, since the colours of programs do not stand out there.
void paintProgramSign(QPainter& painter, const QRect& place, int progIndex,
                      const ThemeColours& colours, bool isSelected = false);

/// Of these programs those that have a sign, as many as are shown in front of one text.
ProgramIndexes signedPrograms(const ProgramIndexes& programs);
/// The room that the signs of so many programs take beside each other.
QSize programSignsSize(int programs);

} // namespace trel::desktop::look
