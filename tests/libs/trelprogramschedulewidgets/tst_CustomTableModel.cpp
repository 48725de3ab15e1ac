#include "CustomTableModel.h"
#include "support/TestProgram.h"

#include <QAbstractItemModelTester>
#include <QApplication>
#include <QtTest>

using trel::mediadispatch::CustomTableModel;

class tst_CustomTableModel : public QObject
{
    Q_OBJECT

private slots:
    void obeysTheRulesOfAModel();
    void onlyThePlayCountIsAlwaysEditable_data();
    void onlyThePlayCountIsAlwaysEditable();
    void keepsTheFlagsOfTheItems();
    void belongsToItsParent();
};

namespace {

QList<QStandardItem*> rowOf(int columns, Qt::ItemFlags flags)
{
    QList<QStandardItem*> row;
    for (int column = 0; column < columns; ++column) {
        row.append(new QStandardItem(QString::number(column)));
        row.last()->setFlags(flags);
    }
    return row;
}

} // namespace

void tst_CustomTableModel::obeysTheRulesOfAModel()
{
    CustomTableModel model;
    const QAbstractItemModelTester tester(&model,
                                          QAbstractItemModelTester::FailureReportingMode::QtTest);
    model.setColumnCount(4);
    for (int row = 0; row < 5; ++row) {
        model.appendRow(rowOf(6, Qt::ItemIsSelectable | Qt::ItemIsEnabled));
    }
    QCOMPARE(model.columnCount(), 6);
    model.insertRow(0, model.takeRow(3));
    model.removeRows(1, 2);
    model.setData(model.index(0, 3), 7);
    QCOMPARE(model.rowCount(), 3);
    QCOMPARE(model.index(0, 3).data().toInt(), 7);
}

void tst_CustomTableModel::onlyThePlayCountIsAlwaysEditable_data()
{
    QTest::addColumn<int>("column");
    QTest::addColumn<bool>("editable");
    QTest::newRow("check mark") << 0 << false;
    QTest::newRow("number") << 1 << false;
    QTest::newRow("name") << 2 << false;
    QTest::newRow("play count") << 3 << true;
    QTest::newRow("program") << 4 << false;
    QTest::newRow("new row") << 5 << false;
}

void tst_CustomTableModel::onlyThePlayCountIsAlwaysEditable()
{
    QFETCH(int, column);
    QFETCH(bool, editable);
    CustomTableModel model;
    const Qt::ItemFlags plain = Qt::ItemIsSelectable | Qt::ItemIsEnabled;
    model.appendRow(rowOf(6, plain));
    QCOMPARE(model.flags(model.index(0, column)), editable ? plain | Qt::ItemIsEditable : plain);
}

void tst_CustomTableModel::keepsTheFlagsOfTheItems()
{
    CustomTableModel model;
    model.appendRow(rowOf(4, Qt::NoItemFlags));
    QCOMPARE(model.flags(model.index(0, 2)), Qt::ItemFlags(Qt::NoItemFlags));
    QCOMPARE(model.flags(model.index(0, 3)), Qt::ItemFlags(Qt::ItemIsEditable));
}

void tst_CustomTableModel::belongsToItsParent()
{
    QObject parent;
    const CustomTableModel* model = new CustomTableModel(&parent);
    QCOMPARE(model->parent(), &parent);
}

TREL_TEST(tst_CustomTableModel, QApplication)

#include "tst_CustomTableModel.moc"
