#pragma once

#include <QString>
#include <QStringList>

#include <string>

namespace trel::mediadispatch {

// The words of a plan row, in the language now selected.

/// The label of a PlanMode; every value but TimeMode reads as FrequencyMode.
QString modeText(int mode);
/// The label of a PlanEndAction; every value but BlackScreen reads as FreezeCurrentFrame.
QString endActionLabel(int endAction);

/// The label of a day number; that of EveryDay for a number outside 0 to 7.
QString weekdayText(int number);
/// The day number of a label; EveryDay for a text that is no label of the language now selected.
int weekdayNumber(const QString& text);

/// The `weeks` text of some labels, in their order. No label at all means every day.
std::string weeksFromLabels(const QStringList& labels);

} // namespace trel::mediadispatch
