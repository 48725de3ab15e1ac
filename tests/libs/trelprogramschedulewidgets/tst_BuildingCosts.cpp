#include "MultiComboBox.h"
#include "PlanList.h"
#include "PlanTaskWidget.h"
#include "WidgetPlaces.h"
#include "support/RecordingService.h"
#include "support/TaskRecords.h"
#include "support/TestProgram.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QCompleter>
#include <QHeaderView>
#include <QItemSelectionModel>
#include <QLabel>
#include <QLineEdit>
#include <QProxyStyle>
#include <QTableView>
#include <QtTest>

#include <memory>

using namespace trel::mediadispatch;

namespace {

/// Counts how often somebody asks how large a combo box would like to be.
class MeasuringCount : public QProxyStyle
{
public:
    QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& size,
                           const QWidget* widget) const override
    {
        count += type == CT_ComboBox ? 1 : 0;
        return QProxyStyle::sizeFromContents(type, option, size, widget);
    }

    mutable int count = 0;
};

PlayTask taskOf(int id, int plans)
{
    PlayTask task = makeTask(id, "2024.01.01", "2024.01.02");
    for (int planId = 1; planId <= plans; ++planId) {
        PlayPlan plan;
        plan.id = planId;
        plan.startTime = "08:00:00";
        plan.endTime = "08:30:00";
        plan.weeks = std::to_string(planId % 7 + 1);
        task.plans.push_back(plan);
    }
    return task;
}

QStringList places(const PlanTaskWidget& card)
{
    return visiblePlaces(*card.findChild<QTableView*>()->viewport(), card);
}

} // namespace

/// What it takes to build cards and lists, counted: a thing that is done once too often for every
/// row, or that is looked for among those of all rows, shows with the first long schedule.
class tst_BuildingCosts : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void aBoxIsBuiltWithoutItsList();
    void theListOfABoxIsWatchedByWhomeverItIsMade();
    void aTableHasOneSelection();
    void rowsOfAHiddenCardAreNotMeasured();
    void rowsBuiltOutOfSightLieWhereOthersDo();
    void labelsOfAllRowsShareTheirTexts();
    void cardsHaveTheirLookAfterARefresh();
};

void tst_BuildingCosts::init()
{
    RecordingService::instance().reset();
}

void tst_BuildingCosts::aBoxIsBuiltWithoutItsList()
{
    QWidget window;
    auto* const box = new MultiComboBox(&window);
    box->addItem(QStringLiteral("every day"));
    box->addItem(QStringLiteral("Monday"));
    box->setShownText(QStringLiteral("Monday"));
    box->restoreCheckMarks();
    window.show();
    box->setEnabled(false);
    box->hide();
    QVERIFY(box->findChildren<QAbstractItemView*>().isEmpty());
    // Nor is there anything that would complete what cannot be typed.
    QVERIFY(box->findChildren<QCompleter*>().isEmpty());
    QVERIFY(!box->completer());
    QVERIFY(box->isEditable());
    QVERIFY(box->lineEdit()->isReadOnly());
}

void tst_BuildingCosts::theListOfABoxIsWatchedByWhomeverItIsMade()
{
    MultiComboBox box;
    box.addItem(QStringLiteral("every day"));
    box.addItem(QStringLiteral("Monday"));
    box.setShownText(QStringLiteral("every day"));
    box.restoreCheckMarks();
    // The list was not opened yet.
    QAbstractItemView* const list = box.view();
    const QPoint monday = list->visualRect(box.model()->index(1, 0)).center();
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, monday);
    QVERIFY(!box.itemData(0, Qt::CheckStateRole).toBool());
    QVERIFY(box.itemData(1, Qt::CheckStateRole).toBool());
}

void tst_BuildingCosts::aTableHasOneSelection()
{
    QWidget window;
    const PlanTaskWidget card(taskOf(1, 0), &window);
    const auto* const table = card.findChild<QTableView*>();
    const auto selections = card.findChildren<QItemSelectionModel*>();
    QCOMPARE(selections.size(), 1);
    QCOMPARE(table->selectionModel(), selections.constFirst());
    QCOMPARE(table->verticalHeader()->selectionModel(), selections.constFirst());
}

void tst_BuildingCosts::rowsOfAHiddenCardAreNotMeasured()
{
    auto* const style = new MeasuringCount;
    QApplication::setStyle(style);
    QWidget window;
    PlanTaskWidget card(taskOf(1, 10), &window);
    card.setFolded(true);
    QCOMPARE(style->count, 0);
    window.show();
    card.setFolded(false);
    QVERIFY(style->count > 0);
}

void tst_BuildingCosts::rowsBuiltOutOfSightLieWhereOthersDo()
{
    QWidget window;
    window.resize(1100, 700);
    auto* const early = new PlanTaskWidget(taskOf(1, 3), &window);
    window.show();
    QCoreApplication::processEvents();
    // Built while its card is on screen.
    auto* const late = new PlanTaskWidget(taskOf(2, 2), &window);
    late->show();
    late->slotAddRowPlan(taskOf(2, 3).plans.back(), true);
    QCoreApplication::processEvents();
    early->adjustSize();
    late->adjustSize();
    QTRY_COMPARE(places(*late), places(*early));
    QVERIFY(places(*early).size() > 30);
}

void tst_BuildingCosts::labelsOfAllRowsShareTheirTexts()
{
    QWidget window;
    PlanTaskWidget card(taskOf(1, 3), &window);
    QVector<const QChar*> texts;
    for (const QLabel* label : card.findChild<QTableView*>()->findChildren<QLabel*>()) {
        texts.append(label->text().constData());
    }
    QCOMPARE(texts, QVector<const QChar*>(3, texts.constFirst()));
}

void tst_BuildingCosts::cardsHaveTheirLookAfterARefresh()
{
    for (int id = 1; id <= 5; ++id) {
        RecordingService::instance().stored[id] = taskOf(id, 3);
    }
    QWidget window;
    auto* const list = new PlanList(&window);
    window.show();
    list->refreshPlanList();
    const auto cards = list->findChildren<PlanTaskWidget*>();
    QCOMPARE(cards.size(), 5);
    for (const PlanTaskWidget* card : cards) {
        QVERIFY(card->testAttribute(Qt::WA_WState_Polished));
    }
}

TREL_TEST(tst_BuildingCosts, QApplication)

#include "tst_BuildingCosts.moc"
