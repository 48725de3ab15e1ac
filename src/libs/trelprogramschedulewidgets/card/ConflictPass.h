#pragma once

#include "service/ScheduleRecords.h"

#include <QString>

#include <functional>
#include <map>
#include <unordered_set>
#include <vector>

class QLabel;
class QWidget;

namespace trel::mediadispatch {

/// Sets isConflict of every plan of the task afresh and returns the ids of the plans that collide
/// with an earlier one. Ends that follow from programs are worked out on the service's catalogue,
/// which is fetched once; the endTime of the plans stays as it is.
std::unordered_set<int> markConflicts(PlayTask& task);
/// The same on a catalogue that is at hand, which is asked for only when an end follows from it.
using CatalogueSource = std::function<const std::map<int, ProgramIten>&()>;
std::unordered_set<int> markConflicts(PlayTask& task, const CatalogueSource& catalogue);

/// For each plan, in order, the place of the first one above it that it collides with; -1 where
/// there is none. Fetches the service's catalogue if an end follows from it.
std::vector<int> firstCollisions(const std::vector<PlayPlan>& plans);

/// Tells a screen reader of the labels of a card whose state has come or gone: of each that it has
/// changed, and of the first that it is to be said.
void tellStates(QWidget& card, const std::vector<QLabel*>& labels);

/// What the state labels of the rows show, in the language of the moment. Made once for the labels
/// of all rows: they share its texts, and to look up a text costs more than the label itself.
class PlanStateLook
{
public:
    PlanStateLook();

    /// Shows in the label of a row whether its plan collides with an earlier one. Costs next to
    /// nothing when the label shows it already. True when it has shown the other state until now.
    bool show(QLabel& label, bool collides) const;

private:
    struct State
    {
        QString styleSheet;
        QString text;
        QString hook; ///< The property "state", for style sheets.
    };

    State m_normal;
    State m_colliding;
};

} // namespace trel::mediadispatch
