#include "CardCases.h"

#include "Comparison.h"
#include "Fixture.h"
#include "PlainCard.h"
#include "PlanTaskWidget.h"
#include "StepwiseCard.h"

#include <QCoreApplication>

#include <memory>

using namespace trel::mediadispatch;

namespace bench {

namespace {

constexpr PlanMode kModes[] = {TimeMode, FrequencyMode};
constexpr int kPlanCounts[] = {0, 1, 10, 100, 300};

constexpr double kAgainstPlain = 1.15;
constexpr double kAgainstPlainMemory = 1.1;
constexpr double kAgainstSteps = 1.0 / 50;
constexpr double kUnderTheme = 2.0;
constexpr double kAgainstOpen = 1.1;

std::unique_ptr<QWidget> buildCard(const PlayTask& task)
{
    auto card = std::make_unique<PlanTaskWidget>(task, nullptr);
    card->setFolded(true);
    return card;
}

std::unique_ptr<QWidget> buildPlain(const PlayTask& task)
{
    auto card = std::make_unique<PlainCard>(task, nullptr);
    card->addRows(task);
    card->fold();
    return card;
}

using Builder = std::unique_ptr<QWidget> (*)(const PlayTask& task);

Lane building(Builder build, const PlayTask& task, Look look)
{
    return [=] {
        setLook(look);
        std::unique_ptr<QWidget> card;
        return processorSeconds([&] { card = build(task); });
    };
}

Lane destroying(Builder build, const PlayTask& task)
{
    return [=] {
        setLook(Look::Plain);
        std::unique_ptr<QWidget> card = build(task);
        return processorSeconds([&] { card.reset(); });
    };
}

/// The bytes that a card of these plans takes more than one without.
Lane filling(Builder build, const PlayTask& task, const PlayTask& without)
{
    return [=] {
        setLook(Look::Plain);
        std::unique_ptr<QWidget> card;
        const auto bytes = [&](const PlayTask& of) {
            const double taken = heapBytes([&] { card = build(of); });
            card.reset();
            return taken;
        };
        // What is made once for all cards is there before anything is counted.
        bytes(task);
        return bytes(task) - (without.id == task.id ? bytes(without) : 0.0);
    };
}

int roundsOf(int plans)
{
    return plans >= 100 ? 9 : 45;
}

void addBuilding(int plans, PlanMode mode)
{
    const PlayTask task = sampleTask(1, plans, mode);
    const std::string size = planCount(plans, mode);
    add({"Build a card, against plain widgets", size, kAgainstPlain,
         building(buildCard, task, Look::Plain), building(buildPlain, task, Look::Plain),
         roundsOf(plans)});
    add({"Build a card under the theme, against no theme", size, kUnderTheme,
         building(buildCard, task, Look::Theme), building(buildCard, task, Look::Plain),
         roundsOf(plans)});
    add({"Build a card under the theme, against plain widgets under it", size, kAgainstPlain,
         building(buildCard, task, Look::Theme), building(buildPlain, task, Look::Theme),
         roundsOf(plans)});
}

void addSteps()
{
    const PlayTask task = sampleTask(1, 100, FrequencyMode);
    const auto stepwise = [task] {
        setLook(Look::Plain);
        StepwiseCard card(task);
        const double rows = processorSeconds([&] { card.addRows(); });
        const double pass = processorSeconds([&] { card.runPass(); });
        return rows + pass * static_cast<double>(task.plans.size());
    };
    add({"Build a card, against its rules step by step", planCount(100, FrequencyMode),
         kAgainstSteps, building(buildCard, task, Look::Plain), stepwise, 3});
}

void addDestroying(PlanMode mode)
{
    for (const auto& [few, many] : {std::pair(10, 100), std::pair(100, 300)}) {
        add({"Destroy a card, against fewer plans",
             std::to_string(many) + " against " + planCount(few, mode),
             linear(static_cast<double>(many) / few),
             destroying(buildCard, sampleTask(1, many, mode)),
             destroying(buildCard, sampleTask(1, few, mode)), 9});
    }
}

void addMemory()
{
    const PlayTask empty = sampleTask(1, 0, TimeMode);
    const PlayTask full = sampleTask(1, 100, TimeMode);
    PlayTask nothing;
    add({"Memory, against plain widgets", "a card", kAgainstPlainMemory,
         filling(buildCard, empty, nothing), filling(buildPlain, empty, nothing), 3});
    add({"Memory, against plain widgets", "a row", kAgainstPlainMemory,
         filling(buildCard, full, empty), filling(buildPlain, full, empty), 3});
}

/// A window on show with a card in it, and what follows in the event loop.
class CardWindow
{
public:
    CardWindow()
    {
        setLook(Look::Plain);
        m_window.resize(1140, 600);
        m_window.show();
        QCoreApplication::processEvents();
    }

    template <typename Action>
    double seconds(const Action& action)
    {
        return processorSeconds([&] {
            action();
            QCoreApplication::processEvents();
        });
    }

    PlanTaskWidget& addFolded(const PlayTask& task)
    {
        PlanTaskWidget* const card = PlanTaskWidget::makeFolded(task, &m_window);
        card->show();
        QCoreApplication::processEvents();
        return *card;
    }

    void addOpen(const PlayTask& task)
    {
        auto* const card = new PlanTaskWidget(task, &m_window);
        card->adjustSize();
        card->show();
    }

private:
    QWidget m_window;
};

Lane unfolding(const PlayTask& task)
{
    return [=] {
        CardWindow window;
        PlanTaskWidget& card = window.addFolded(task);
        return window.seconds([&] { card.setFolded(false); });
    };
}

/// The second time, with all rows there already.
Lane unfoldingAgain(const PlayTask& task)
{
    return [=] {
        CardWindow window;
        PlanTaskWidget& card = window.addFolded(task);
        window.seconds([&] { card.setFolded(false); });
        window.seconds([&] { card.setFolded(true); });
        return window.seconds([&] { card.setFolded(false); });
    };
}

Lane buildingOpen(const PlayTask& task)
{
    return [=] {
        CardWindow window;
        return window.seconds([&] { window.addOpen(task); });
    };
}

void addUnfolding()
{
    for (const int plans : {1, 10, 100, 300}) {
        const PlayTask task = sampleTask(1, plans, TimeMode);
        add({"Unfold a card, against building it open", planCount(plans, TimeMode), kAgainstOpen,
             unfolding(task), buildingOpen(task), roundsOf(plans)});
    }
    add({"Unfold a card again, against fewer plans", "300 against 30 plans, TimeMode", linear(10),
         unfoldingAgain(sampleTask(1, 300, TimeMode)), unfoldingAgain(sampleTask(1, 30, TimeMode)),
         9});
}

} // namespace

void addCardCases()
{
    for (const PlanMode mode : kModes) {
        for (const int plans : kPlanCounts) {
            addBuilding(plans, mode);
        }
    }
    addSteps();
    for (const PlanMode mode : kModes) {
        addDestroying(mode);
    }
    addMemory();
    addUnfolding();
}

} // namespace bench
