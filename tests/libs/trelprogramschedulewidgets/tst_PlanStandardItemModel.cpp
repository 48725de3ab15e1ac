#include "PlanStandardItemModel.h"
#include "support/TestProgram.h"

#include <QAbstractItemModelTester>
#include <QCoreApplication>
#include <QMimeData>
#include <QtTest>

#include <memory>

using trel::mediadispatch::PlanStandardItemModel;

namespace {

constexpr int kColumns = 3;

void fill(PlanStandardItemModel& model, const QStringList& names)
{
    for (const QString& name : names) {
        QList<QStandardItem*> items;
        for (int column = 0; column < kColumns; ++column) {
            items.append(new QStandardItem(name + QString::number(column)));
        }
        model.appendRow(items);
    }
}

/// The first cells of all rows, such as "a0 b0 c0".
QString rows(const PlanStandardItemModel& model)
{
    QStringList texts;
    for (int row = 0; row < model.rowCount(); ++row) {
        texts.append(model.index(row, 0).data().toString());
    }
    return texts.join(QLatin1Char(' '));
}

} // namespace

class tst_PlanStandardItemModel : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void mimeDataNamesTheRowOfTheFirstIndex();
    void mimeDataKeepsWhatTheBasePutsIn();
    void mimeDataOfNothingIsNull();
    void aMovePutsTheRowAtItsTarget_data();
    void aMovePutsTheRowAtItsTarget();
    void aMoveTakesTheWholeRow();
    void aDropIsRefused_data();
    void aDropIsRefused();
    void supportsMoving();
    void flagsOfAnIndex();
    void flagsOfAnInvalidIndex();

private:
    std::unique_ptr<PlanStandardItemModel> m_model;
    std::unique_ptr<QAbstractItemModelTester> m_tester;
};

void tst_PlanStandardItemModel::init()
{
    m_tester.reset();
    m_model = std::make_unique<PlanStandardItemModel>();
    m_tester = std::make_unique<QAbstractItemModelTester>(
        m_model.get(), QAbstractItemModelTester::FailureReportingMode::QtTest);
    fill(*m_model,
         {QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("c"), QStringLiteral("d")});
}

void tst_PlanStandardItemModel::mimeDataNamesTheRowOfTheFirstIndex()
{
    const std::unique_ptr<QMimeData> data(
        m_model->mimeData({m_model->index(2, 1), m_model->index(0, 0)}));
    QCOMPARE(data->data(QStringLiteral("row")), QByteArray("2"));
}

void tst_PlanStandardItemModel::mimeDataKeepsWhatTheBasePutsIn()
{
    const std::unique_ptr<QMimeData> data(m_model->mimeData({m_model->index(1, 0)}));
    QVERIFY(data->hasFormat(QStringLiteral("application/x-qstandarditemmodeldatalist")));
    QVERIFY(data->hasFormat(QStringLiteral("row")));
}

void tst_PlanStandardItemModel::mimeDataOfNothingIsNull()
{
    QVERIFY(!m_model->mimeData({}));
}

void tst_PlanStandardItemModel::aMovePutsTheRowAtItsTarget_data()
{
    QTest::addColumn<QByteArray>("source");
    QTest::addColumn<int>("target");
    QTest::addColumn<QString>("result");
    QTest::newRow("up") << QByteArray("3") << 1 << "a0 d0 b0 c0";
    QTest::newRow("down, not adjusted for the gap") << QByteArray("0") << 2 << "b0 c0 a0 d0";
    QTest::newRow("to the last row") << QByteArray("1") << 3 << "a0 c0 d0 b0";
    QTest::newRow("onto itself") << QByteArray("2") << 2 << "a0 b0 c0 d0";
    QTest::newRow("no number means the first row") << QByteArray("x") << 1 << "b0 a0 c0 d0";
}

void tst_PlanStandardItemModel::aMovePutsTheRowAtItsTarget()
{
    QFETCH(QByteArray, source);
    QFETCH(int, target);
    QMimeData data;
    data.setData(QStringLiteral("row"), source);
    // The row and the column of a gap are not read.
    QVERIFY(m_model->dropMimeData(&data, Qt::MoveAction, 77, 88, m_model->index(target, 1)));
    QTEST(rows(*m_model), "result");
}

void tst_PlanStandardItemModel::aMoveTakesTheWholeRow()
{
    QMimeData data;
    data.setData(QStringLiteral("row"), "3");
    QVERIFY(m_model->dropMimeData(&data, Qt::MoveAction, -1, -1, m_model->index(0, 0)));
    QCOMPARE(m_model->rowCount(), 4);
    QCOMPARE(m_model->columnCount(), kColumns);
    for (int column = 0; column < kColumns; ++column) {
        QCOMPARE(m_model->index(0, column).data().toString(), QStringLiteral("d%1").arg(column));
    }
}

void tst_PlanStandardItemModel::aDropIsRefused_data()
{
    QTest::addColumn<bool>("hasData");
    QTest::addColumn<Qt::DropAction>("action");
    QTest::addColumn<int>("target");
    QTest::newRow("no data") << false << Qt::MoveAction << 1;
    QTest::newRow("copy") << true << Qt::CopyAction << 1;
    QTest::newRow("link") << true << Qt::LinkAction << 1;
    QTest::newRow("no action") << true << Qt::IgnoreAction << 1;
    QTest::newRow("on no row") << true << Qt::MoveAction << -1;
}

void tst_PlanStandardItemModel::aDropIsRefused()
{
    QFETCH(bool, hasData);
    QFETCH(Qt::DropAction, action);
    QFETCH(int, target);
    QMimeData data;
    data.setData(QStringLiteral("row"), "0");
    QVERIFY(
        !m_model->dropMimeData(hasData ? &data : nullptr, action, 2, 0, m_model->index(target, 0)));
    QCOMPARE(rows(*m_model), QStringLiteral("a0 b0 c0 d0"));
}

void tst_PlanStandardItemModel::supportsMoving()
{
    const QStandardItemModel base;
    QCOMPARE(m_model->supportedDropActions(), base.supportedDropActions() | Qt::MoveAction);
}

void tst_PlanStandardItemModel::flagsOfAnIndex()
{
    m_model->item(1, 1)->setFlags(Qt::ItemIsEnabled);
    QCOMPARE(m_model->flags(m_model->index(1, 1)),
             Qt::ItemIsEnabled | Qt::ItemIsDragEnabled | Qt::ItemIsDropEnabled);
}

void tst_PlanStandardItemModel::flagsOfAnInvalidIndex()
{
    m_model->invisibleRootItem()->setFlags(Qt::ItemIsEnabled);
    QCOMPARE(m_model->flags(QModelIndex()), Qt::ItemFlags(Qt::ItemIsEnabled));
}

TREL_TEST(tst_PlanStandardItemModel, QCoreApplication)
#include "tst_PlanStandardItemModel.moc"
