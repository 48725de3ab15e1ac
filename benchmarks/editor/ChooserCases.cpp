#include "ChooserCases.h"

#include "Comparison.h"
#include "Fixture.h"
#include "PlainChooser.h"
#include "ProgramChoose.h"
#include "QuietService.h"
#include "trelwidgets/Dialog.h"

#include <QCoreApplication>
#include <QPushButton>
#include <QStandardItemModel>
#include <QTableView>
#include <QVBoxLayout>

#include <memory>
#include <optional>

using namespace trel::mediadispatch;

namespace bench {

namespace {

constexpr double kAgainstModel = 1.3;
constexpr double kTenthOfSecond = 0.1;
constexpr int kRows = 20000;

/// A chooser for a new plan, over a catalogue of a size.
class Chooser
{
public:
    explicit Chooser(int programs)
    {
        setLook(Look::Plain);
        if (static_cast<int>(QuietService::instance().programs.size()) != programs) {
            QuietService::instance().programs = samplePrograms(programs);
        }
        m_chooser.emplace(&m_task, m_task.id, 1, &m_parent, true);
    }

    ProgramChoose& operator*() { return *m_chooser; }
    ProgramChoose* operator->() { return &*m_chooser; }

    void show() { m_chooser->window()->show(); }

private:
    QWidget m_parent;
    PlayTask m_task;
    std::optional<ProgramChoose> m_chooser;
};

Lane opening(int programs, bool isShown)
{
    return [=] {
        QuietService::instance().programs = samplePrograms(programs);
        setLook(Look::Plain);
        QWidget parent;
        PlayTask task;
        std::optional<ProgramChoose> chooser;
        return processorSeconds([&] {
            chooser.emplace(&task, task.id, 1, &parent, true);
            if (isShown) {
                chooser->window()->show();
                QCoreApplication::processEvents();
            }
        });
    };
}

Lane fillingModel(int programs)
{
    return [sample = samplePrograms(programs)] {
        QStandardItemModel model(0, 3);
        return processorSeconds([&] { fillOffer(model, sample); });
    };
}

/// A window like that of the chooser, with the frame around it, whose tables stay empty; and a
/// model of its own that is filled.
Lane openingEmpty(int programs)
{
    return [sample = samplePrograms(programs)] {
        setLook(Look::Plain);
        QWidget parent;
        QStandardItemModel model(0, 3);
        return processorSeconds([&] {
            auto* const frame = new trel::widgets::Dialog(&parent);
            auto* const layout = new QVBoxLayout(frame->dialogWidget());
            layout->addWidget(new PlainChooser(ProgramMap()));
            fillOffer(model, sample);
        });
    };
}

Lane openingPlain(int programs)
{
    return [sample = samplePrograms(programs)] {
        setLook(Look::Plain);
        std::unique_ptr<PlainChooser> chooser;
        return processorSeconds([&] {
            chooser = std::make_unique<PlainChooser>(sample);
            chooser->show();
            QCoreApplication::processEvents();
        });
    };
}

void addOpening(int programs)
{
    const std::string size = count(programs, "programs");
    const int rounds = programs >= 20000 ? 9 : 31;
    // With fewer it is the window that counts, which a model has not got.
    if (programs >= 20000) {
        add({"Open the chooser, against a filled model", size, kAgainstModel,
             opening(programs, false), fillingModel(programs), rounds});
    }
    add({"Open the chooser, against an empty window and a filled model", size, kAgainstModel,
         opening(programs, false), openingEmpty(programs), rounds});
    add({"Open the chooser and show it, against plain widgets", size, kAgainstModel,
         opening(programs, true), openingPlain(programs), rounds});
}

/// Something that an operator does in an open chooser, after something else.
struct Move
{
    const char* name;
    void (*prepare)(ProgramChoose& chooser);
    void (*act)(ProgramChoose& chooser);
};

void checkAll(ProgramChoose& chooser)
{
    chooser.slotSelectAll(ProgramListCheck, true);
}

void choose(ProgramChoose& chooser)
{
    checkAll(chooser);
    chooser.slotChose();
}

void chooseAndCheck(ProgramChoose& chooser)
{
    choose(chooser);
    chooser.slotSelectAll(PlanListCheck, true);
}

constexpr Move kMoves[] = {
    {"Check all", [](ProgramChoose&) {}, checkAll},
    {"Clear all", checkAll,
     [](ProgramChoose& chooser) { chooser.slotSelectAll(ProgramListCheck, false); }},
    {"Uncheck one of all", checkAll,
     [](ProgramChoose& chooser) { chooser.slotChecked(ProgramListCheck, 0, false); }},
    {"Choose all", checkAll, [](ProgramChoose& chooser) { chooser.slotChose(); }},
    {"Delete all", chooseAndCheck, [](ProgramChoose& chooser) { chooser.slotDelete(); }},
    {"Step a count", choose,
     [](ProgramChoose& chooser) {
         const auto tables = chooser.findChildren<QTableView*>();
         chooser.onSpinBoxValueChanged(tables.at(1)->model()->index(0, 3), 2);
     }},
};

Lane moving(const Move& move, int rows)
{
    return [=] {
        Chooser chooser(rows);
        chooser.show();
        move.prepare(*chooser);
        QCoreApplication::processEvents();
        return processorSeconds([&] {
            move.act(*chooser);
            QCoreApplication::processEvents();
        });
    };
}

void addMove(const Move& move)
{
    add({std::string(move.name) + ", against a tenth of a second", count(kRows, "rows"), 1.0,
         moving(move, kRows), [] { return kTenthOfSecond; }, 7});
    add({std::string(move.name) + ", against fewer rows",
         count(kRows, "against ") + count(kRows / 10, "rows"), linear(10), moving(move, kRows),
         moving(move, kRows / 10), 7});
}

} // namespace

void addChooserCases()
{
    for (const int programs : {100, 1000, 20000, 100000}) {
        addOpening(programs);
    }
    for (const Move& move : kMoves) {
        addMove(move);
    }
}

} // namespace bench
