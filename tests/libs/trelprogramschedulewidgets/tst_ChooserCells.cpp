#include "ChooserCells.h"
#include "ChooserColumns.h"
#include "ChooserRows.h"
#include "CustomTableModel.h"
#include "support/AllocationCount.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>
#include <QtTest>

using namespace trel::mediadispatch;

namespace {

/// A cell and what the toolkit keeps behind it.
constexpr int kObjectsOfCell = 2;
constexpr int kRows = 100;

/// A model that is checked for consistency, with what it tells its views.
class WatchedModel
{
public:
    CustomTableModel model;
    QSignalSpy insertions{&model, &QAbstractItemModel::rowsInserted};
    QSignalSpy removals{&model, &QAbstractItemModel::rowsRemoved};
    QSignalSpy changes{&model, &QAbstractItemModel::dataChanged};

    WatchedModel()
    {
        QVERIFY(insertions.isValid());
        QVERIFY(removals.isValid());
        QVERIFY(changes.isValid());
    }

    /// Of the rows: "+2 -1 ~0" after two insertions, a removal and no change of a cell.
    QString news() const
    {
        return QStringLiteral("+%1 -%2 ~%3")
            .arg(insertions.size())
            .arg(removals.size())
            .arg(changes.size());
    }

private:
    QAbstractItemModelTester m_tester{&model,
                                      QAbstractItemModelTester::FailureReportingMode::QtTest};
};

std::vector<struProgInfo> programs(int count)
{
    std::vector<struProgInfo> list;
    for (int index = 1; index <= count; ++index) {
        list.push_back({index, false, "A program with a long name " + std::to_string(index), 1});
    }
    return list;
}

ChoiceRow choice(int number)
{
    ChoiceRow row;
    row.number = number;
    row.name = QStringLiteral("Program %1").arg(number);
    row.progIndex = number;
    return row;
}

std::vector<ChoiceRow> choices(int count)
{
    std::vector<ChoiceRow> rows;
    for (int number = 1; number <= count; ++number) {
        rows.push_back(choice(number));
    }
    return rows;
}

/// The cells of a row: "01!^ | A?", with a mark for a cell that cannot be edited, that has a tool
/// tip and that is centred.
QString rowLine(const QStandardItemModel& model, int row)
{
    QStringList cells;
    for (int column = 0; column < model.columnCount(); ++column) {
        const QStandardItem* const cell = model.item(row, column);
        QString line = cell->text();
        line += QLatin1String(cell->isEditable() ? "" : "!");
        line += QLatin1String(cell->toolTip().isEmpty() ? "" : "?");
        line += QLatin1String(cell->textAlignment() == Qt::AlignCenter ? "^" : "");
        cells.append(line);
    }
    return cells.join(QStringLiteral(" | "));
}

/// The objects that each of some rows brings with it, without those that come once for all.
template <typename Row>
std::size_t objectsOfRow(void (*append)(QStandardItemModel&, const std::vector<Row>&),
                         const std::vector<Row>& rows)
{
    QStandardItemModel model;
    const AllocationCount objects;
    append(model, rows);
    return objects.count() / rows.size();
}

} // namespace

/// The rows of the chooser's tables: what is in their cells, and what it takes to make many.
class tst_ChooserCells : public QObject
{
    Q_OBJECT

private slots:
    void offers();
    void choicesOfAllKinds();
    void rowsCloseUpToThoseThatAreThere();
    void noRowsChangeNothing();
    void anOfferIsThreeCells();
    void aChoiceIsSixCells();
    void alikeCellsShareWhatTheyHold();
    void aCellChangesForItselfAlone();
    void removingFewRows();
    void removingManyRowsKeepsTheCells();
};

void tst_ChooserCells::offers()
{
    WatchedModel watched;
    appendOffers(watched.model, {{7, false, "A", 1}, {9, false, "B", 1}});
    QCOMPARE(watched.news(), QStringLiteral("+1 -0 ~0"));
    QCOMPARE(rowLine(watched.model, 0), QStringLiteral(" | ^ | A?"));
    QCOMPARE(rowLine(watched.model, 1), QStringLiteral(" | ^ | B?"));
    QCOMPARE(watched.model.item(1, OfferNameColumn)->toolTip(), QStringLiteral("B"));
    QVERIFY(checkedRows(watched.model).empty());
}

void tst_ChooserCells::choicesOfAllKinds()
{
    ChoiceRow plain = choice(1);
    ChoiceRow full = choice(12);
    full.toolTip = QStringLiteral("a tip");
    full.foreground = QBrush(Qt::red);
    full.playCount = 3;
    full.progIndex = 65536;
    full.isNew = true;
    WatchedModel watched;
    appendChoices(watched.model, {plain, full});
    QCOMPARE(watched.news(), QStringLiteral("+1 -0 ~0"));
    QCOMPARE(rowLine(watched.model, 0), QStringLiteral("! | 01!^ | Program 1! | 1 | 1! | 0!"));
    QCOMPARE(rowLine(watched.model, 1),
             QStringLiteral("! | 12!^ | Program 12!? | 3 | 65536! | 1!"));
    QCOMPARE(watched.model.item(0, ChoiceNameColumn)->foreground().style(), Qt::NoBrush);
    QCOMPARE(watched.model.item(1, ChoiceNameColumn)->foreground(), QBrush(Qt::red));
    const Qt::ItemFlags flags = Qt::ItemIsSelectable | Qt::ItemIsEnabled;
    QCOMPARE(watched.model.item(0, ChoiceCheckColumn)->flags(), flags);
    QCOMPARE(watched.model.item(0, ChoiceCountColumn)->flags(), flags | Qt::ItemIsEditable);
    QVERIFY(!isNewChoice(watched.model, 0));
    QVERIFY(isNewChoice(watched.model, 1));
}

void tst_ChooserCells::rowsCloseUpToThoseThatAreThere()
{
    WatchedModel watched;
    watched.model.setColumnCount(ChoiceVisibleColumnCount);
    appendChoices(watched.model, choices(2));
    appendChoices(watched.model, {choice(3)});
    QCOMPARE(watched.news(), QStringLiteral("+2 -0 ~0"));
    QCOMPARE(watched.model.rowCount(), 3);
    QCOMPARE(watched.model.columnCount(), int(ChoiceColumnCount));
    QCOMPARE(watched.model.item(2, ChoiceNameColumn)->text(), QStringLiteral("Program 3"));
    QVERIFY(!watched.model.itemPrototype());
}

void tst_ChooserCells::noRowsChangeNothing()
{
    WatchedModel watched;
    watched.model.setColumnCount(ChoiceVisibleColumnCount);
    appendChoices(watched.model, {});
    appendOffers(watched.model, {});
    removeRows(watched.model, {});
    QCOMPARE(watched.news(), QStringLiteral("+0 -0 ~0"));
    QCOMPARE(watched.model.columnCount(), int(ChoiceVisibleColumnCount));
}

void tst_ChooserCells::anOfferIsThreeCells()
{
    QCOMPARE(objectsOfRow(appendOffers, programs(kRows)),
             std::size_t(OfferColumnCount * kObjectsOfCell));
}

void tst_ChooserCells::aChoiceIsSixCells()
{
    QCOMPARE(objectsOfRow(appendChoices, choices(kRows)),
             std::size_t(ChoiceColumnCount * kObjectsOfCell));
}

void tst_ChooserCells::alikeCellsShareWhatTheyHold()
{
    QStandardItemModel offers;
    appendOffers(offers, programs(1));
    const QStandardItem* const name = offers.item(0, OfferNameColumn);
    QCOMPARE(name->text().constData(), name->toolTip().constData());

    QStandardItemModel plan;
    appendChoices(plan, choices(2));
    for (const int column : {ChoiceCountColumn, ChoiceNewColumn}) {
        QCOMPARE(plan.item(0, column)->text().constData(),
                 plan.item(1, column)->text().constData());
    }
}

void tst_ChooserCells::aCellChangesForItselfAlone()
{
    QStandardItemModel model;
    appendChoices(model, choices(3));
    setRowChecked(model, 1, true);
    model.item(1, ChoiceCountColumn)->setText(QStringLiteral("5"));
    QCOMPARE(checkedRows(model), std::vector<int>{1});
    QCOMPARE(choiceCountAt(model, 0), 1);
    QCOMPARE(choiceCountAt(model, 1), 5);
    appendChoices(model, {choice(4)});
    QCOMPARE(choiceCountAt(model, 3), 1);
    QVERIFY(!isRowChecked(model, 3));
}

void tst_ChooserCells::removingFewRows()
{
    WatchedModel watched;
    appendChoices(watched.model, choices(5));
    removeRows(watched.model, {1, 3});
    QCOMPARE(watched.news(), QStringLiteral("+1 -2 ~0"));
    QCOMPARE(watched.model.rowCount(), 3);
    QCOMPARE(choiceIndexAt(watched.model, 1), 3);
    QCOMPARE(choiceIndexAt(watched.model, 2), 5);
}

void tst_ChooserCells::removingManyRowsKeepsTheCells()
{
    WatchedModel watched;
    appendChoices(watched.model, choices(kRows));
    std::vector<int> rows;
    for (int row = 1; row < kRows; row += 2) {
        rows.push_back(row);
    }
    std::vector<const QStandardItem*> kept;
    for (int row = 0; row < kRows; row += 2) {
        kept.push_back(watched.model.item(row, ChoiceNameColumn));
    }
    watched.insertions.clear();
    removeRows(watched.model, rows);
    QCOMPARE(watched.removals.size(), 1);
    QCOMPARE(watched.insertions.size(), 1);
    QCOMPARE(watched.model.rowCount(), kRows / 2);
    for (int row = 0; row < watched.model.rowCount(); ++row) {
        QCOMPARE(watched.model.item(row, ChoiceNameColumn), kept[static_cast<std::size_t>(row)]);
        QCOMPARE(watched.model.item(row, ChoiceNameColumn)->row(), row);
    }
}

QTEST_MAIN(tst_ChooserCells)

#include "tst_ChooserCells.moc"
