#include "CustomTableModel.h"
#include "chooser/ChooserCells.h"
#include "chooser/ChooserColumns.h"
#include "chooser/ChooserRows.h"
#include "support/AllocationCount.h"
#include "support/TestProgram.h"

#include <QAbstractItemModelTester>
#include <QApplication>
#include <QPointer>
#include <QSignalSpy>
#include <QTableView>
#include <QtTest>

#include <numeric>

using namespace trel::mediadispatch;

namespace {

/// A cell and what the toolkit keeps behind it.
constexpr int kObjectsOfCell = 2;
constexpr int kRows = 100;
/// To remove half of them one by one would take too long.
constexpr int kManyRows = 4000;

QString run(int first, int last)
{
    return QStringLiteral("%1-%2").arg(first).arg(last);
}

/// The index of the program of each row.
QString numbersOf(const QStandardItemModel& model)
{
    QStringList texts;
    for (int row = 0; row < model.rowCount(); ++row) {
        texts.append(QString::number(choiceIndexAt(model, row)));
    }
    return texts.join(QLatin1Char(' '));
}

std::vector<int> allRows(int count)
{
    std::vector<int> rows(static_cast<std::size_t>(count));
    std::iota(rows.begin(), rows.end(), 0);
    return rows;
}

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

    /// The rows of each removal, such as "1-1 4-6", as they were numbered then.
    QString removed() const
    {
        QStringList texts;
        for (const QList<QVariant>& removal : removals) {
            texts.append(run(removal.at(1).toInt(), removal.at(2).toInt()));
        }
        return texts.join(QLatin1Char(' '));
    }

    QString numbers() const { return numbersOf(model); }

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
    void rowsGoOneByOneFromTheFirst();
    void manyRowsGoByRunsOfNeighbours();
    void rowsThatStayAreNotTakenOut_data();
    void rowsThatStayAreNotTakenOut();
    void anOpenEditorStays_data();
    void anOpenEditorStays();
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

void tst_ChooserCells::rowsGoOneByOneFromTheFirst()
{
    WatchedModel watched;
    appendChoices(watched.model, choices(5));
    removeRows(watched.model, {1, 2, 4});
    QCOMPARE(watched.news(), QStringLiteral("+1 -3 ~0"));
    QCOMPARE(watched.removed(), QStringLiteral("1-1 1-1 2-2"));
    QCOMPARE(watched.numbers(), QStringLiteral("1 4"));

    // Neighbours too, as long as they are not very many.
    WatchedModel more;
    appendChoices(more.model, choices(kRows));
    removeRows(more.model, allRows(kRows));
    QCOMPARE(more.removals.size(), kRows);
    QCOMPARE(more.model.rowCount(), 0);
}

void tst_ChooserCells::manyRowsGoByRunsOfNeighbours()
{
    QStandardItemModel model;
    appendChoices(model, choices(kManyRows));
    QStringList removed;
    connect(&model, &QAbstractItemModel::rowsRemoved, this,
            [&](const QModelIndex&, int first, int last) { removed.append(run(first, last)); });
    // All but the first, two in the middle and the last.
    std::vector<int> rows = allRows(kManyRows);
    rows.pop_back();
    rows.erase(rows.begin() + 1000, rows.begin() + 1002);
    rows.erase(rows.begin());
    removeRows(model, rows);
    QCOMPARE(removed, (QStringList{run(1, 999), run(3, kManyRows - 1001)}));
    QCOMPARE(numbersOf(model), QStringLiteral("1 1001 1002 %1").arg(kManyRows));
}

void tst_ChooserCells::rowsThatStayAreNotTakenOut_data()
{
    QTest::addColumn<int>("rowCount");
    QTest::newRow("few rows") << kRows;
    QTest::newRow("many rows") << kManyRows;
}

void tst_ChooserCells::rowsThatStayAreNotTakenOut()
{
    QFETCH(int, rowCount);
    QStandardItemModel model;
    appendChoices(model, choices(rowCount));
    std::vector<int> rows;
    std::vector<const QStandardItem*> kept;
    std::vector<QPersistentModelIndex> indexes;
    for (int row = 0; row < rowCount; row += 2) {
        kept.push_back(model.item(row, ChoiceNameColumn));
        indexes.emplace_back(model.index(row, ChoiceNameColumn));
        rows.push_back(row + 1);
    }
    QSignalSpy insertions(&model, &QAbstractItemModel::rowsInserted);
    QVERIFY(insertions.isValid());
    removeRows(model, rows);
    QCOMPARE(insertions.size(), 0);
    QCOMPARE(model.rowCount(), rowCount / 2);
    for (int row = 0; row < model.rowCount(); ++row) {
        QCOMPARE(model.item(row, ChoiceNameColumn), kept[static_cast<std::size_t>(row)]);
        QCOMPARE(indexes[static_cast<std::size_t>(row)].row(), row);
    }
}

void tst_ChooserCells::anOpenEditorStays_data()
{
    rowsThatStayAreNotTakenOut_data();
}

void tst_ChooserCells::anOpenEditorStays()
{
    QFETCH(int, rowCount);
    QStandardItemModel model;
    appendChoices(model, choices(rowCount));
    QTableView view;
    view.setModel(&model);
    view.show();
    const QPersistentModelIndex edited = model.index(3, ChoiceCountColumn);
    view.setCurrentIndex(edited);
    view.edit(edited);
    const QPointer<QWidget> editor = view.indexWidget(edited);
    QVERIFY(editor);
    std::vector<int> rows = allRows(rowCount);
    rows.erase(rows.begin() + 3);
    removeRows(model, rows);
    QCOMPARE(model.rowCount(), 1);
    QVERIFY(editor && editor->isVisible());
    QCOMPARE(view.indexWidget(edited), editor.data());
    QCOMPARE(edited.row(), 0);
}

TREL_TEST(tst_ChooserCells, QApplication)

#include "tst_ChooserCells.moc"
