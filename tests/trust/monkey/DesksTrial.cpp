#include "DeskWorker.h"
#include "Dice.h"
#include "FlightRecorder.h"
#include "SharedStore.h"
#include "TrialOptions.h"

#include <QApplication>

#include <chrono>

namespace {

constexpr int kFewestSteps = 40;
constexpr int kMostSteps = 200;

} // namespace

int main(int argc, char** argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    const QApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.value(1) == QLatin1String("--desk")) {
        return runDeskWorker(arguments.value(2));
    }
    const std::optional<TrialOptions> options = readTrialOptions(arguments);
    if (!options) {
        return 2;
    }
    FlightRecorder::start("trust_desks", *options);
    const auto start = std::chrono::steady_clock::now();
    const auto goesOn = [&] {
        return (options->actions == 0 || FlightRecorder::count() < options->actions) &&
               std::chrono::steady_clock::now() - start < options->time;
    };
    while (goesOn()) {
        Dice dice(options->seed, FlightRecorder::count());
        const int desks = dice.between(2, 3);
        FlightRecorder::note(QStringLiteral("%1 editors on a new store").arg(desks));
        SharedStore store(desks);
        for (int steps = dice.between(kFewestSteps, kMostSteps); steps > 0 && goesOn(); --steps) {
            Dice ofStep(options->seed, FlightRecorder::count());
            store.step(ofStep);
        }
    }
    FlightRecorder::finish();
    return 0;
}
