#include "BareSleeper.h"
#include "FaultInjector.h"
#include "OffTimes.h"
#include "PlayedScreen.h"
#include "SoakLog.h"
#include "clock/Clock.h"
#include "system/FewArenas.h"

#include <QCommandLineParser>
#include <QFile>
#include <QGuiApplication>
#include <QTextStream>
#include <QTimer>

#include <algorithm>

using namespace trel::mediadispatch;

namespace {

/// What the screen shows at its very beginning is joined in the middle.
constexpr Instant kBeginning = 1000; // milliseconds

/// Films and sounds all day long, and in each minute a stream and an image, which have no end of
/// their own and would keep the screen.
std::map<int, PlayTask> dayOfAllKinds()
{
    std::vector<PlayPlan> plans;
    const auto add = [&plans](const QTime& start, const QTime& end,
                              const std::vector<int>& programs) {
        plans.push_back(playedPlan(static_cast<int>(plans.size()) + 1, start, end, programs));
    };
    for (int minute = 0; minute < 24 * 60; ++minute) {
        const QTime start(minute / 60, minute % 60);
        add(start.addSecs(20), start.addSecs(35), {Stream});
        add(start.addSecs(45), start.addSecs(52), {Still});
    }
    add(QTime(0, 0, 0), QTime(23, 59, 59), {Short, Middle, Long, Longer, Sound});
    return playedTask(std::move(plans));
}

/// What the process has of the memory, in MiB.
double residentMemory()
{
    QFile file(QStringLiteral("/proc/self/status"));
    if (file.open(QIODevice::ReadOnly)) {
        for (const QByteArray& line : file.readAll().split('\n')) {
            if (line.startsWith("VmRSS:")) {
                return line.mid(6).trimmed().split(' ').first().toDouble() / 1024.0;
            }
        }
    }
    return 0.0;
}

/// Plays for some time, looks at every picture that reaches the screen, and counts.
class Soak : public QObject
{
    Q_OBJECT

public:
    /// Breaks programs where a server of their stream is given.
    Soak(const PlayedPrograms& programs, Instant length, StreamServer* server, unsigned seed)
        : m_from(Clock::current().msecsSinceEpoch())
        , m_to(m_from + length)
        , m_offTimes(m_from)
        , m_screen(QStringLiteral("soak"),
                   server == nullptr ? playedAllDay({Short, Middle, Short, Long}) : dayOfAllKinds(),
                   programs.catalogue())
        , m_sleeper(moments())
    {
        if (server != nullptr) {
            m_faults = std::make_unique<FaultInjector>(programs, *server);
            m_faults->goOn(seed);
            connect(m_faults.get(), &FaultInjector::broke, this, [this] { setWhole(false); });
            connect(m_faults.get(), &FaultInjector::mended, this, [this] { setWhole(true); });
        }
        m_screen.addListener(m_offTimes);
        connect(&m_round, &QTimer::timeout, this, &Soak::look);
        m_round.start(1000);
    }

    /// Nothing wrong has been on the screen and, where no faults were made, everything came in
    /// time.
    bool isRight() const { return m_wrong == 0 && (m_faults || isPunctual()); }
    void tell(QTextStream& out) const;
    /// Tells from now on what happens, line by line.
    void follow(QTextStream& out, const StreamServer& server)
    {
        m_log = std::make_unique<SoakLog>(out, m_screen, m_faults.get(), server);
        m_screen.addListener(*m_log);
    }

signals:
    void over();

private:
    /// When the picture changes by the timeline, but for the beginning.
    std::vector<Instant> moments() const
    {
        std::vector<Instant> moments;
        for (const ScreenState& state : m_screen.plays(m_from + kBeginning, m_to)) {
            if (state.since > m_from + kBeginning) {
                moments.push_back(state.since);
            }
        }
        return moments;
    }

    /// Looks at what has come since the last time, and at what should have. A picture that stands
    /// tells nothing by itself.
    void look()
    {
        const Instant now = Clock::current().msecsSinceEpoch();
        for (const RecordedFrame& frame : m_screen.frames()) {
            if (frame.moment >= m_judged && frame.moment < now) {
                ++m_frames;
                judge(frame);
            }
        }
        const Instant from = std::max(m_judged, m_from + 2 * kBeginning) - kBeginning;
        for (const ScreenState& state : m_screen.plays(from, now - kBeginning)) {
            if (!m_screen.hasShown(state) && !m_screen.explains(state.since)) {
                tellWrong(state.since,
                          QStringLiteral("program %1 did not come").arg(state.progIndex));
            }
        }
        m_judged = now;
        m_screen.forgetFramesBefore(now - 5 * kBeginning);
        if (m_memoryAtFirst <= 0.0 && now >= m_from + (m_to - m_from) / 10) {
            m_memoryAtFirst = residentMemory();
        }
        if (now >= m_to) {
            m_round.stop();
            emit over();
        }
    }

    void setWhole(bool isWhole)
    {
        m_offTimes.setWhole(isWhole, Clock::current().msecsSinceEpoch());
    }

    void judge(const RecordedFrame& frame)
    {
        const QString fault =
            frame.moment < m_from + kBeginning ? QString() : m_screen.fault(frame);
        if (!fault.isEmpty()) {
            tellWrong(frame.moment, fault);
        }
    }

    void tellWrong(Instant moment, const QString& what)
    {
        ++m_wrong;
        QTextStream(stderr) << "after " << moment - m_from << " ms: " << what << Qt::endl;
    }

    /// What the player adds to what the machine allows.
    bool isPunctual() const
    {
        const trel::screen::ScreenTally& tally = m_screen.tally();
        return tally.lates() == 0 && tally.lateness(50) <= m_sleeper.lateness(50) + 2 &&
               tally.worstLateness() <= m_sleeper.lateness(100) + trel::screen::kFrame;
    }

    const Instant m_from;
    const Instant m_to;
    OffTimes m_offTimes;
    std::unique_ptr<SoakLog> m_log;
    PlayedScreen m_screen;
    BareSleeper m_sleeper;
    std::unique_ptr<FaultInjector> m_faults;
    QTimer m_round;
    qint64 m_frames = 0;
    qint64 m_wrong = 0;
    Instant m_judged = 0; ///< What came before has been looked at.
    double m_memoryAtFirst = 0.0;
};

void Soak::tell(QTextStream& out) const
{
    const trel::screen::ScreenTally& tally = m_screen.tally();
    const auto row = [&out](const char* what, const QString& figure) {
        out << QString::fromLatin1(what).leftJustified(44) << figure << Qt::endl;
    };
    const auto number = [](auto value) { return QString::number(value); };
    row("switches", number(tally.switches()));
    row("lateness in the middle, ms", number(tally.lateness(50)));
    row("  of a thread that only sleeps", number(m_sleeper.lateness(50)));
    row("lateness of 99 %, ms", number(tally.lateness(99)));
    row("  of a thread that only sleeps", number(m_sleeper.lateness(99)));
    row("worst lateness, ms", number(tally.worstLateness()));
    row("  of a thread that only sleeps", number(m_sleeper.lateness(100)));
    row("not ready at their moment", number(tally.lates()));
    row("pictures on the screen", number(m_frames));
    row("  wrong, stale or black between two plays", number(m_wrong));
    row("  dropped", number(m_screen.droppedFrames()));
    row("corrections by speed", number(tally.speedCorrections()));
    row("corrections by a seek", number(tally.seeks()));
    row("faults made", number(m_faults ? m_faults->made() : 0));
    row("faults met", number(tally.faults()));
    row("longest time off the timeline, ms", number(m_screen.conductor().longestOff()));
    row("  of it while all was whole, ms",
        number(m_offTimes.longest(Clock::current().msecsSinceEpoch())));
    row("memory after a tenth of the time, MiB", QString::number(m_memoryAtFirst, 'f', 1));
    row("memory at the end, MiB", QString::number(residentMemory(), 'f', 1));
}

} // namespace

int main(int argc, char** argv)
{
    trel::player::keepToFewArenas();
    QGuiApplication application(argc, argv);
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral(
        "Plays a schedule of short programs, holds every picture on the screen against "
        "it, and prints a table."));
    parser.addHelpOption();
    const QCommandLineOption minutes(QStringLiteral("minutes"), QStringLiteral("How long."),
                                     QStringLiteral("N"), QStringLiteral("10"));
    const QCommandLineOption faults(
        QStringLiteral("faults"),
        QStringLiteral("Breaks files and a stream while they are in use."));
    const QCommandLineOption seed(QStringLiteral("seed"), QStringLiteral("Which faults."),
                                  QStringLiteral("S"), QStringLiteral("1"));
    const QCommandLineOption log(QStringLiteral("log"),
                                 QStringLiteral("Tells all that happens, on the standard error."));
    parser.addOptions({minutes, faults, seed, log});
    parser.process(application);
    bool isNumber = false;
    const double length = parser.value(minutes).toDouble(&isNumber);
    QTextStream out(stdout);
    if (!isNumber || length <= 0.0 || length > 100000.0) {
        QTextStream(stderr) << "--minutes takes a number above 0." << Qt::endl;
        return 2;
    }
    StreamServer server;
    const bool hasFaults = parser.isSet(faults);
    const PlayedPrograms programs(hasFaults ? server.address() : QString());
    server.servePaced(QStringLiteral("/live"), programs.stream(), PlayedPrograms::kStreamLength);
    if (!programs.areMade()) {
        QTextStream(stderr) << "The clips cannot be made." << Qt::endl;
        return 1;
    }
    QTextStream errors(stderr);
    Soak soak(programs, static_cast<Instant>(length * 60000.0), hasFaults ? &server : nullptr,
              parser.value(seed).toUInt());
    if (parser.isSet(log)) {
        soak.follow(errors, server);
    }
    QObject::connect(&soak, &Soak::over, &application, &QCoreApplication::quit);
    QCoreApplication::exec();
    soak.tell(out);
    return soak.isRight() ? 0 : 1;
}

#include "SoakMain.moc"
