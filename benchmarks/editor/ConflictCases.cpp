#include "ConflictCases.h"

#include "Comparison.h"
#include "Fixture.h"
#include "PlanTaskWidget.h"

#include <cmath>
#include <memory>

using namespace trel::mediadispatch;

namespace bench {

namespace {

constexpr double kMillisecond = 1e-3;

/// Ends an edit, on a card that is built once and kept.
Lane editing(int plans, PlanMode mode)
{
    return [card = std::shared_ptr<PlanTaskWidget>(), plans, mode]() mutable {
        constexpr int kEdits = 20;
        if (!card) {
            card = std::make_shared<PlanTaskWidget>(sampleTask(1, plans, mode), nullptr);
        }
        return processorSeconds([&] {
                   for (int i = 0; i < kEdits; ++i) {
                       card->slotCurrentIndexChangeSignal(0, EndActionCombo, i % 2);
                   }
               }) /
               kEdits;
    };
}

double sorting(double count)
{
    return count * std::log2(count);
}

} // namespace

void addConflictCases()
{
    for (const PlanMode mode : {TimeMode, FrequencyMode}) {
        for (const auto& [few, many] : {std::pair(10, 100), std::pair(100, 1000)}) {
            add({"One conflict pass, against fewer plans",
                 count(many, "against ") + planCount(few, mode), sorting(many) / sorting(few),
                 editing(many, mode), editing(few, mode), 9});
        }
    }
    add({"One conflict pass, against a millisecond", planCount(300, FrequencyMode), 1.0,
         editing(300, FrequencyMode), [] { return kMillisecond; }, 15});
}

} // namespace bench
