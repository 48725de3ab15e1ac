#include "EditorWaits.h"

#include "Comparison.h"
#include "HostWindows.h"
#include "Measurements.h"
#include "service/scheduleManage.h"
#include "trelprogramschedule/ScheduleHost.h"
#include "trelwidgets/TipDialog.h"

#include <QAbstractButton>
#include <QApplication>
#include <QEvent>
#include <QThread>

#include <memory>
#include <stdexcept>
#include <string>

using namespace trel::desktop;
using namespace trel::mediadispatch;

namespace bench {

namespace {

constexpr double kTenTimes = 11.67;
constexpr double kFrameSeconds = 0.016;
constexpr int kPlansOfTask = 5;
constexpr int kPrograms = 1000;
constexpr std::size_t kRounds = 3;
/// The list adds nothing in the first second after it was built.
constexpr int kAddLockMSecs = 1000;

/// What the waits take of the interface thread, in seconds.
struct Waits
{
    double refusal = 0.0; ///< Until the prompt is painted.
    double answer = 0.0;  ///< Until the prompt is gone.
    double add = 0.0;
    double theme = 0.0;
    double language = 0.0;
    double closedCatalogue = 0.0; ///< A program goes while the editor is closed.
};

/// Closes the prompt that comes up as soon as it has been painted.
class PaintedPrompt : public QObject
{
public:
    PaintedPrompt() { qApp->installEventFilter(this); }

    bool hasCome() const { return m_painted > 0.0; }
    /// The processor time of the thread when it had been painted.
    double painted() const { return m_painted; }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        auto* const prompt = event->type() == QEvent::Paint
                                 ? qobject_cast<trel::widgets::TipDialog*>(watched)
                                 : nullptr;
        if (prompt != nullptr && !hasCome()) {
            QMetaObject::invokeMethod(
                prompt,
                [this, prompt] {
                    m_painted = threadTime();
                    prompt->close();
                },
                Qt::QueuedConnection);
        }
        return false;
    }

private:
    double m_painted = 0.0;
};

/// The editor with a schedule of so many tasks, in which the last two overlap.
class Schedule
{
public:
    explicit Schedule(int tasks)
        : m_tasks(tasks)
    {}

    Waits waits()
    {
        return m_measured.next(kRounds, [this] { return measure(); });
    }

private:
    template <typename Action>
    static double seconds(const Action& action)
    {
        const double taken = threadSeconds([&action] {
            action();
            QCoreApplication::processEvents();
        });
        // What is left to later turns of the event loop is no wait, nor part of the next one.
        for (int turn = 0; turn < 100; ++turn) {
            QCoreApplication::processEvents();
        }
        return taken;
    }

    static void press(HostWindows& windows, const char* button)
    {
        windows.editor().findChild<QAbstractButton*>(QLatin1String(button))->click();
    }

    static void refuse(HostWindows& windows, Waits& waits)
    {
        const PaintedPrompt prompt;
        const double start = threadTime();
        const double whole = seconds([&windows] { press(windows, "pushButtonSave"); });
        if (!prompt.hasCome()) {
            throw std::runtime_error("No prompt has come.");
        }
        waits.refusal = prompt.painted() - start;
        waits.answer = whole - waits.refusal;
    }

    Waits measure() const
    {
        TaskMap tasks = sampleTasks(m_tasks, kPlansOfTask);
        tasks.at(m_tasks).startDate = tasks.at(m_tasks - 1).startDate;
        HostWindows windows;
        windows.fill(kPrograms, false, tasks);
        seconds([&windows] { windows.showEditor(); });
        Waits waits;
        refuse(windows, waits);
        waits.theme = seconds([&windows] { windows.themes().select(QStringLiteral("light")); });
        windows.themes().select(QStringLiteral("dark"));
        waits.language =
            seconds([&windows] { windows.languages().select(QStringLiteral("de_DE")); });
        QThread::msleep(kAddLockMSecs);
        const auto before = scheduleManage::getInstance().getAllTask().size();
        waits.add = seconds([&windows] { press(windows, "pushButtonAddTask"); });
        if (scheduleManage::getInstance().getAllTask().size() != before + 1) {
            throw std::runtime_error("No task was added.");
        }
        seconds([&windows] { windows.editor().close(); });
        waits.closedCatalogue = seconds([] { ScheduleHost::instance().removePrograms({1}); });
        return waits;
    }

    int m_tasks;
    Measurements<Waits> m_measured;
};

} // namespace

void addEditorWaits()
{
    const auto ten = std::make_shared<Schedule>(10);
    const auto hundred = std::make_shared<Schedule>(100);
    const auto thousand = std::make_shared<Schedule>(1000);
    const auto enter = [&](const std::string& what, double Waits::*wait) {
        add({what + ", against fewer tasks", "1,000 tasks of 5 plans against 100 tasks", kTenTimes,
             [=] { return thousand->waits().*wait; }, [=] { return hundred->waits().*wait; },
             static_cast<int>(kRounds), true, "waits in the editor"});
        add({what + ", against fewer tasks and a frame", "1,000 tasks of 5 plans against 10 tasks",
             1.0, [=] { return thousand->waits().*wait; },
             [=] { return ten->waits().*wait + kFrameSeconds; }, static_cast<int>(kRounds), true,
             "waits in the editor"});
    };
    enter("Refuse a save", &Waits::refusal);
    enter("Close the prompt of a refusal", &Waits::answer);
    enter("Add a task", &Waits::add);
    enter("Switch the theme", &Waits::theme);
    enter("Switch the language", &Waits::language);
    enter("Remove a program with the editor closed", &Waits::closedCatalogue);
}

} // namespace bench
