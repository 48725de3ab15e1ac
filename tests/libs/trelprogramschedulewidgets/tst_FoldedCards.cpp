#include "AnyPrompt.h"
#include "CardDescription.h"
#include "CardLines.h"
#include "KeptTasks.h"

#include "ProgramSheduleWidgetTranslateManager.h"
#include "support/PlanRecords.h"
#include "support/TestClock.h"
#include "support/TestProgram.h"
#include "tstranslate/Translator.h"

#include <QApplication>
#include <QStandardItem>
#include <QtTest>

#include <random>

using namespace trel::mediadispatch;

namespace {

constexpr int kSteps = 25;
constexpr int kPrograms = 6;

/// What is done to a list, at random but the same for the same seed.
class RandomSteps
{
public:
    RandomSteps(unsigned seed, bool isOpenAtOnce)
        : m_random(seed)
        , m_isOpenAtOnce(isOpenAtOnce)
        , m_clock(kNow)
    {
        speak("zh_CN");
        service().reset();
        for (int index = 1; index <= kPrograms; ++index) {
            service().addProgram(index, "film" + std::to_string(index), 1000.0 * 60 * below(90),
                                 below(8) == 0);
        }
        const int tasks = 1 + below(3);
        for (int id = 1; id <= tasks; ++id) {
            service().stored[id] = randomTask(id);
        }
        refresh();
    }

    void step()
    {
        const QList<PlanTaskWidget*> cards = cardsInOrder(m_list);
        PlanTaskWidget* const card = cards.isEmpty() ? nullptr : cards[below(cards.size())];
        switch (below(14)) {
        case 0: // The service's record changes under the cards.
            changeRecord();
            break;
        case 1:
            emit RecordingService::manager().signalReflushConflict(below(kPrograms));
            break;
        case 2:
            service().programs[1 + below(kPrograms)].durationMs = 1000.0 * 60 * below(90);
            emit RecordingService::manager().signalUpdatePlanEndTime();
            break;
        case 3:
            speak(below(2) == 0 ? "en_US" : "de_DE");
            break;
        case 4:
            emit m_list.sigTranslation();
            break;
        case 5:
            m_clock.advance(1000);
            m_list.slotAddOutput();
            break;
        case 6:
            refresh();
            break;
        case 7:
            if (card) {
                m_clock.advance(1000);
                button(*card, "pbtCreatCopy").click();
            }
            break;
        case 8:
            if (card && below(3) == 0) {
                button(*card, "pushButtonDelete").click();
            }
            break;
        case 9:
            if (card) {
                card->findChild<QDateEdit*>(QStringLiteral("dateEditVaildStartTime"))
                    ->setDate(QDate(2024, 3, 1 + below(31)));
            }
            break;
        default:
            if (card) {
                stepOfCard(*card);
            }
        }
    }

    QStringList cards()
    {
        QStringList lines;
        for (PlanTaskWidget* card : cardsInOrder(m_list)) {
            card->setFolded(false);
            lines += CardDescription(*card).lines();
        }
        return lines;
    }

    QStringList prompts() const { return m_prompt.texts; }

private:
    int below(int limit) { return static_cast<int>(m_random() % static_cast<unsigned>(limit)); }

    static void speak(const char* language)
    {
        ProgramSheduleWidgetTranslateManager::instance().translator().switchLanguage(
            QLatin1String(language));
    }

    static QPushButton& button(const PlanTaskWidget& card, const char* name)
    {
        return *card.findChild<QPushButton*>(QLatin1String(name));
    }

    std::string randomTime()
    {
        if (below(12) == 0) {
            return below(2) == 0 ? "" : "8:00";
        }
        return QTime(below(24), below(4) * 15).toString(QStringLiteral("hh:mm:ss")).toStdString();
    }

    PlayPlan randomPlan(int id)
    {
        static const std::vector<std::string> weeks = {"",    "0",   "1", "2,3",
                                                       "7,1", "abc", "8", "3,"};
        PlayPlan plan =
            timePlan(id, randomTime(), randomTime(), weeks[static_cast<std::size_t>(below(8))]);
        plan.mode = below(2);
        plan.times = below(4);
        plan.endAction = below(3);
        for (int i = below(4); i > 0; --i) {
            plan.programs.push_back(entry(1 + below(kPrograms + 1), 1 + below(2)));
        }
        return plan;
    }

    PlayTask randomTask(int id)
    {
        std::vector<PlayPlan> plans;
        for (int i = below(6); i > 0; --i) {
            // Some come twice, and some have none yet.
            plans.push_back(randomPlan(below(5) == 0 ? -1 : 1 + below(7)));
        }
        return taskWithPlans(plans, id);
    }

    void changeRecord()
    {
        for (auto& [id, task] : service().working) {
            if (below(2) == 0) {
                task = randomTask(id);
            }
        }
    }

    void refresh()
    {
        m_list.refreshPlanList();
        if (m_isOpenAtOnce) {
            for (PlanTaskWidget* card : cardsInOrder(m_list)) {
                card->setFolded(false);
            }
        }
    }

    void stepOfCard(PlanTaskWidget& card)
    {
        const int row = below(6);
        QStandardItem item(QString::number(below(1100)));
        switch (below(9)) {
        case 0:
            card.slotUpdateTime(row, StartTimeColumn, QTime(below(24), 0));
            break;
        case 1:
            card.slotUpdateTime(row, EndTimeColumn, QTime(below(24), 0));
            break;
        case 2:
            card.slotUpdateTime(row, TimesColumn, QTime());
            break;
        case 3:
            card.slotCurrentIndexChangeSignal(row, ModeCombo, below(2));
            break;
        case 4:
            card.slotCurrentIndexChangeSignal(row, EndActionCombo, below(2));
            break;
        case 5:
            card.slotcurrentChanged(&item);
            break;
        case 6:
            card.slotAddRowPlan(randomPlan(20 + below(30)), true);
            break;
        case 7:
            card.setFolded(below(2) == 0);
            break;
        default:
            editRow(card, row);
        }
    }

    void editRow(PlanTaskWidget& card, int row)
    {
        card.setFolded(false);
        const PlanTaskWidgetInspector rows(card);
        if (row >= rows.rowCount()) {
            return;
        }
        switch (below(3)) {
        case 0:
            rows.startTime(row).setTime(QTime(below(24), 0));
            break;
        case 1:
            rows.mode(row).setCurrentIndex(below(2));
            break;
        default:
            rows.copyButton(row).click();
        }
    }

    std::mt19937 m_random;
    bool m_isOpenAtOnce;
    TestClock m_clock;
    AnyPrompt m_prompt;
    PlanList m_list;
};

/// What came of the steps of one seed.
struct Outcome
{
    Outcome(unsigned seed, bool isOpenAtOnce)
    {
        RandomSteps steps(seed, isOpenAtOnce);
        for (int step = 0; step < kSteps; ++step) {
            steps.step();
            edits.append(QStringLiteral("step %1").arg(step));
            edits += service().log;
            service().clearLog();
        }
        prompts = steps.prompts();
        cards = steps.cards();
        callsOfOpening = service().log;
    }

    QStringList edits;
    QStringList prompts;
    QStringList cards;
    QStringList callsOfOpening;
};

} // namespace

/// A list whose cards build their rows late, held against one whose cards are opened at once: the
/// service hears the same, the operator is asked the same, and in the end the cards are the same.
class tst_FoldedCards : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void lateRowsAreThoseOfOpenCards_data();
    void lateRowsAreThoseOfOpenCards();
};

void tst_FoldedCards::initTestCase()
{
    auto& translator = ProgramSheduleWidgetTranslateManager::instance().translator();
    for (const char* language : {"zh_CN", "en_US", "de_DE"}) {
        QVERIFY(
            translator.load(QStringLiteral(LANGUAGE_DIR "/%1.qm").arg(QLatin1String(language))));
    }
}

void tst_FoldedCards::lateRowsAreThoseOfOpenCards_data()
{
    QTest::addColumn<unsigned>("first");
    for (unsigned first = 1; first <= 300; first += 30) {
        QTest::addRow("from %u", first) << first;
    }
}

void tst_FoldedCards::lateRowsAreThoseOfOpenCards()
{
    QFETCH(const unsigned, first);
    for (unsigned seed = first; seed < first + 30; ++seed) {
        const Outcome late(seed, false);
        const Outcome open(seed, true);
        QCOMPARE(late.edits, open.edits);
        QCOMPARE(late.prompts, open.prompts);
        QCOMPARE(late.cards, open.cards);
        QCOMPARE(late.callsOfOpening, QStringList());
    }
}

TREL_TEST(tst_FoldedCards, QApplication)

#include "tst_FoldedCards.moc"
