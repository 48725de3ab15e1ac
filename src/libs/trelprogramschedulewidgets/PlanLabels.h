#pragma once

#include <QString>
#include <QStringList>

#include <string>

namespace trel::mediadispatch {

// The words of a plan row, in the language now selected.

/// The label of a PlanMode; every value but TimeMode reads as FrequencyMode.
QString modeText(int mode);
/// The label of a PlanEndAction; every value but BlackScreen reads as FreezeCurrentFrame.
QString endActionText(int endAction);

/// The label of a day number; that of EveryDay for a number outside 0 to 7.
QString weekdayText(int number);
/// The day number of a label; EveryDay for a text that is no label of the language now selected.
int weekdayNumber(const QString& text);

/// The labels of a `weeks` text, in its order, joined with commas.
QString weekLabels(const std::string& weeks);
/// The `weeks` text of some labels, in their order. No label at all means every day.
std::string weeksFromLabels(const QStringList& labels);

/// The title of a plan's row when the row is built, and when it takes another language. The second
/// is set in by one blank more, so that a row shows which of the two it has been through.
QString planTitle(int planId);
QString retranslatedPlanTitle(int planId);

} // namespace trel::mediadispatch
