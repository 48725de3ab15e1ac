#include "Desk.h"
#include "DeskRules.h"
#include "FlightRecorder.h"
#include "Monkey.h"
#include "TrialOptions.h"
#include "trelprogramschedule/media/MediaReading.h"

#include <QApplication>
#include <QTemporaryDir>

#include <chrono>

using namespace trel::mediadispatch;

namespace {

constexpr int kFewestActions = 50;
constexpr int kMostActions = 600;

bool isInTime(const TrialOptions& options, std::chrono::steady_clock::time_point start)
{
    const bool areActionsLeft = options.actions == 0 || FlightRecorder::count() < options.actions;
    return areActionsLeft && std::chrono::steady_clock::now() - start < options.time;
}

/// One desk from the first click to the end of its program.
void runDesk(const TrialOptions& options)
{
    const QTemporaryDir folder;
    TestClock clock(QDateTime(QDate(2024, 3, 10), QTime(12, 0)));
    clock.setElapsed(2000);
    Dice dice(options.seed, FlightRecorder::count());
    FlightRecorder::note(QStringLiteral("a new desk"));
    {
        Desk desk(folder.path());
        Monkey monkey(desk, clock, options, folder.path(),
                      dice.between(kFewestActions, kMostActions));
        monkey.start();
        desk.run();
    }
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    const QString broken = rules::brokenByRemains();
    if (!broken.isEmpty()) {
        FlightRecorder::fail(broken);
    }
}

} // namespace

int main(int argc, char** argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    QApplication application(argc, argv);
    const std::optional<TrialOptions> options = readTrialOptions(QCoreApplication::arguments());
    if (!options) {
        return 2;
    }
    MediaReading reading;
    reading.program = QStringLiteral(MEDIA_READER);
    setMediaReading(reading);
    FlightRecorder::start("trust_monkey", *options);
    const auto start = std::chrono::steady_clock::now();
    while (isInTime(*options, start)) {
        runDesk(*options);
    }
    FlightRecorder::finish();
    return 0;
}
