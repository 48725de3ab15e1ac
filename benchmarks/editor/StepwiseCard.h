#pragma once

#include "PlainCard.h"

#include <vector>

class QLabel;

namespace bench {

/// A card that is built the way its rules read: every row with a pass over all pairs of plans, and
/// with the whole catalogue fetched for each entry of each plan of each pair.
class StepwiseCard
{
public:
    explicit StepwiseCard(const trel::mediadispatch::PlayTask& task);

    /// Builds all rows, without the passes.
    void addRows();
    /// The pass that follows each row. All plans stand in the task from the start, so that one pass
    /// costs what any other does.
    void runPass();

private:
    trel::mediadispatch::PlayTask m_task;
    PlainCard m_card;
    std::vector<QLabel*> m_labels;
};

} // namespace bench
