#include "AnyPrompt.h"
#include "CardDescription.h"
#include "CardLines.h"
#include "KeptTasks.h"

#include "support/PlanRecords.h"
#include "support/TestProgram.h"

#include <QApplication>
#include <QEventLoop>
#include <QScrollArea>
#include <QStyleFactory>
#include <QtTest>

using namespace trel::mediadispatch;

namespace {

/// The list in a window, with the cards of two tasks.
class ListWindow
{
public:
    explicit ListWindow(int plans = 3)
        : list(new PlanList)
    {
        service().reset();
        for (const int id : {1, 2}) {
            std::vector<PlayPlan> itsPlans;
            for (int plan = 1; plan <= plans; ++plan) {
                itsPlans.push_back(timePlan(plan, "08:00:00", "09:00:00", "1,3"));
            }
            service().stored[id] = taskWithPlans(itsPlans, id);
        }
        m_area.setWidgetResizable(true);
        m_area.setWidget(list);
        // The room that the panel has for it.
        m_area.resize(1140, 516);
        m_area.show();
        QCoreApplication::processEvents();
    }

    /// The cards, folded as a refresh makes them.
    void refresh()
    {
        list->refreshPlanList();
        QCoreApplication::processEvents();
        service().clearLog();
    }

    PlanTaskWidget& card(int place) const { return *cardsInOrder(*list).at(place); }
    int editors() const { return list->findChildren<QTimeEdit*>().size(); }

    PlanList* list;

private:
    QScrollArea m_area;
};

QPushButton& titleOf(const PlanTaskWidget& card)
{
    return *card.findChild<QPushButton*>(QStringLiteral("title"));
}

/// What a card of the same task shows that has never been folded.
QStringList openCard(int id)
{
    PlanTaskWidget card(service().stored[id], nullptr);
    return CardDescription(card).lines();
}

/// The pointers that a widget has been given, by their shapes, while it lives.
class PointersOver : public QObject
{
public:
    explicit PointersOver(QWidget& widget)
        : m_widget(widget)
    {
        widget.installEventFilter(this);
    }

    QVector<Qt::CursorShape> shapes;

protected:
    bool eventFilter(QObject*, QEvent* event) override
    {
        if (event->type() == QEvent::CursorChange) {
            shapes.append(m_widget.cursor().shape());
        }
        return false;
    }

private:
    QWidget& m_widget;
};

} // namespace

/// When the rows of a folded card are built, and what may go on meanwhile.
class tst_FoldedCardMoments : public QObject
{
    Q_OBJECT

private slots:
    void nothingThatReachesAFoldedCardBuildsItsRows();
    void unfoldingBuildsThemOnce();
    void whoeverAsksForTheRowsGetsThem_data();
    void whoeverAsksForTheRowsGetsThem();
    void aCardMayBeUnfoldedWhileAPromptStands();
    void aCardMayGoInThePromptInWhichItWasUnfolded();
    void aCardMayBeUnfoldedDuringARefresh();
    void aCardMayBeUnfoldedWhileTheServiceSignals();
    void aCardMayBeUnfoldedInANestedEventLoop();
    void aFoldedCardMayGo();
    void theBarStaysUnderThePointer();
    void aLongCardShowsTheBusyPointer_data();
    void aLongCardShowsTheBusyPointer();
    void aPointerOfTheHostComesBack();
};

void tst_FoldedCardMoments::nothingThatReachesAFoldedCardBuildsItsRows()
{
    ListWindow window;
    window.refresh();
    QCOMPARE(window.editors(), 0);
    emit RecordingService::manager().signalReflushConflict(1);
    emit RecordingService::manager().signalUpdatePlanEndTime();
    emit window.list->sigTranslation();
    titleOf(window.card(0)).toggled(true);
    window.card(0).findChild<QDateEdit*>()->setDate(QDate(2024, 3, 2));
    for (const char* style : {"windows", "fusion"}) {
        QApplication::setStyle(QStyleFactory::create(QLatin1String(style)));
    }
    qApp->setStyleSheet(QStringLiteral("QPushButton { color: red; }"));
    qApp->setStyleSheet(QString());
    QApplication::setFont(QFont(QStringLiteral("Monospace"), 9));
    QEvent language(QEvent::LanguageChange);
    QCoreApplication::sendEvent(window.list->window(), &language);
    window.list->window()->resize(1200, 700);
    QCoreApplication::processEvents();
    window.list->window()->grab();
    QCOMPARE(window.editors(), 0);
    QVERIFY(!service().log.isEmpty());
}

void tst_FoldedCardMoments::unfoldingBuildsThemOnce()
{
    ListWindow window;
    window.refresh();
    PlanTaskWidget& card = window.card(0);
    titleOf(card).click();
    QCOMPARE(window.editors(), 6);
    const auto editors = card.findChildren<QTimeEdit*>();
    QCOMPARE(CardDescription(card).lines(), openCard(1));
    titleOf(card).click();
    titleOf(card).click();
    QCOMPARE(card.findChildren<QTimeEdit*>(), editors);
    QCOMPARE(service().edits().filter(QStringLiteral("addTask(2")), QStringList());
}

void tst_FoldedCardMoments::whoeverAsksForTheRowsGetsThem_data()
{
    QTest::addColumn<int>("way");
    QTest::newRow("how many there are") << 0;
    QTest::newRow("whether there are any") << 1;
    QTest::newRow("for one of them") << 2;
    QTest::newRow("for the widget in one") << 3;
}

void tst_FoldedCardMoments::whoeverAsksForTheRowsGetsThem()
{
    QFETCH(const int, way);
    ListWindow window;
    window.refresh();
    const auto& table = *window.card(1).findChild<QTableView*>();
    switch (way) {
    case 0:
        QCOMPARE(table.model()->rowCount(), 3);
        break;
    case 1:
        QVERIFY(table.model()->hasChildren());
        break;
    case 2:
        QVERIFY(table.model()->index(2, ProgramsColumn).isValid());
        break;
    default:
        QVERIFY(table.indexWidget(table.model()->index(2, ModeColumn)) != nullptr);
    }
    QVERIFY(window.card(1).isFolded());
    QCOMPARE(window.editors(), 6);
    QCOMPARE(service().log, QStringList());
    QCOMPARE(CardDescription(window.card(1)).lines(), openCard(2));
}

void tst_FoldedCardMoments::aCardMayBeUnfoldedWhileAPromptStands()
{
    ListWindow window;
    window.refresh();
    PlanTaskWidget& card = window.card(0);
    AnyPrompt prompt;
    prompt.meanwhile = [&card] { titleOf(card).click(); };
    // A first day behind the last one is refused.
    card.findChild<QDateEdit*>(QStringLiteral("dateEditVaildStartTime"))
        ->setDate(QDate(2024, 4, 30));
    QCOMPARE(prompt.texts.size(), 1);
    QVERIFY(!card.isFolded());
    QCOMPARE(CardDescription(card).lines(), openCard(1));
}

void tst_FoldedCardMoments::aCardMayGoInThePromptInWhichItWasUnfolded()
{
    ListWindow window;
    window.refresh();
    AnyPrompt prompt;
    prompt.meanwhile = [&window] {
        titleOf(window.card(0)).click();
        titleOf(window.card(1)).click();
    };
    window.card(0).findChild<QPushButton*>(QStringLiteral("pushButtonDelete"))->click();
    QCOMPARE(cardsInOrder(*window.list).size(), 1);
    QCOMPARE(CardDescription(window.card(0)).lines(), openCard(2));
}

void tst_FoldedCardMoments::aCardMayBeUnfoldedDuringARefresh()
{
    ListWindow window;
    QStringList duringTheRefresh;
    QObject::connect(window.list, &PlanList::sigGetMapCount, [&](int count) {
        if (count > 0) {
            PlanTaskWidget& card = window.card(count - 1);
            card.setFolded(false);
            duringTheRefresh += CardDescription(card).lines();
        }
    });
    window.refresh();
    QCOMPARE(duringTheRefresh, openCard(1) + openCard(2));
    QCOMPARE(foldLine(*window.list), QStringLiteral("open open"));
    QVERIFY(window.card(1).findChild<QTimeEdit*>()->isVisible());
}

void tst_FoldedCardMoments::aCardMayBeUnfoldedWhileTheServiceSignals()
{
    ListWindow window;
    QObject context;
    const auto unfoldAll = [&window] {
        for (PlanTaskWidget* card : cardsInOrder(*window.list)) {
            card->setFolded(false);
        }
    };
    // In front of the cards, which are connected when they are made.
    QObject::connect(&RecordingService::manager(), &scheduleManage::signalReflushConflict, &context,
                     unfoldAll);
    window.refresh();
    QObject::connect(&RecordingService::manager(), &scheduleManage::signalUpdatePlanEndTime,
                     &window.card(0), unfoldAll);
    emit RecordingService::manager().signalUpdatePlanEndTime();
    QCOMPARE(window.editors(), 12);
    QCOMPARE(service().count(QStringLiteral("addTask")), 2);
    QCOMPARE(CardDescription(window.card(1)).lines(), openCard(2));
    window.refresh();
    emit RecordingService::manager().signalReflushConflict(1);
    QCOMPARE(window.editors(), 12);
    QCOMPARE(service().count(QStringLiteral("addTask")), 2);
    QCOMPARE(CardDescription(window.card(0)).lines(), openCard(1));
}

void tst_FoldedCardMoments::aCardMayBeUnfoldedInANestedEventLoop()
{
    ListWindow window;
    window.refresh();
    QEventLoop loop;
    const auto unfold = [&] {
        titleOf(window.card(0)).click();
        QCoreApplication::processEvents();
        loop.quit();
    };
    // Inside a call that the event loop hands out.
    QMetaObject::invokeMethod(
        window.list,
        [&] {
            QTimer::singleShot(0, window.list, unfold);
            loop.exec();
        },
        Qt::QueuedConnection);
    QCoreApplication::processEvents();
    QCOMPARE(CardDescription(window.card(0)).lines(), openCard(1));
}

void tst_FoldedCardMoments::aFoldedCardMayGo()
{
    ListWindow window;
    window.refresh();
    const QPointer<QTableView> table(window.card(0).findChild<QTableView*>());
    window.list->slotclearPlanList();
    QVERIFY(table.isNull());
}

void tst_FoldedCardMoments::theBarStaysUnderThePointer()
{
    ListWindow window(30);
    window.refresh();
    // What is free at the end of the list makes up for what unfolds above it.
    for (const int place : {1, 0}) {
        QPushButton& title = titleOf(window.card(place));
        const QPoint before = title.mapToGlobal(QPoint(0, 0));
        QTest::mouseClick(&title, Qt::LeftButton, {}, QPoint(60, 10));
        QCOMPARE(title.mapToGlobal(QPoint(0, 0)), before);
        QCoreApplication::processEvents();
        QCOMPARE(title.mapToGlobal(QPoint(0, 0)), before);
        QVERIFY(window.card(place).findChild<QTimeEdit*>()->isVisible());
    }
}

void tst_FoldedCardMoments::aLongCardShowsTheBusyPointer_data()
{
    QTest::addColumn<int>("plans");
    QTest::addColumn<QVector<Qt::CursorShape>>("pointers");
    QTest::newRow("a short card") << 10 << QVector<Qt::CursorShape>();
    QTest::newRow("a long card") << 100
                                 << QVector<Qt::CursorShape>{Qt::WaitCursor, Qt::ArrowCursor};
}

void tst_FoldedCardMoments::aLongCardShowsTheBusyPointer()
{
    QFETCH(const int, plans);
    ListWindow window(plans);
    window.refresh();
    PlanTaskWidget& card = window.card(0);
    const PointersOver pointers(card);
    titleOf(card).click();
    QTEST(pointers.shapes, "pointers");
    titleOf(card).click();
    titleOf(card).click();
    // There is nothing left to be built.
    QTEST(pointers.shapes, "pointers");
    QVERIFY(QGuiApplication::overrideCursor() == nullptr);
}

void tst_FoldedCardMoments::aPointerOfTheHostComesBack()
{
    ListWindow window(100);
    window.refresh();
    window.card(0).setCursor(Qt::PointingHandCursor);
    titleOf(window.card(0)).click();
    QCOMPARE(window.card(0).cursor().shape(), Qt::PointingHandCursor);
    titleOf(window.card(1)).click();
    QVERIFY(!window.card(1).testAttribute(Qt::WA_SetCursor));
}

TREL_TEST(tst_FoldedCardMoments, QApplication)

#include "tst_FoldedCardMoments.moc"
