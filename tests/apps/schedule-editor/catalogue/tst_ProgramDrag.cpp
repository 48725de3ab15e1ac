#include "catalogue/ProgramDrag.h"

#include "HostFixture.h"
#include "support/TestProgram.h"

#include <QDataStream>
#include <QMimeData>

using namespace trel::desktop;

/// Programs that are dragged out of the catalogue, and what somebody else might drop in their name.
class tst_ProgramDrag : public QObject
{
    Q_OBJECT

private slots:
    void comesBackInItsOrder();
    void theTableHandsOutItsRowsOnce();
    void strangersNameNothing_data();
    void strangersNameNothing();
};

void tst_ProgramDrag::comesBackInItsOrder()
{
    const std::vector<int> programs{7, 3, 40000};
    const std::unique_ptr<QMimeData> data(programdrag::make(programs));
    QCOMPARE(data->formats(), QStringList{programdrag::mimeType()});
    QCOMPARE(programdrag::programs(data.get()), programs);
    QCOMPARE(programdrag::programs(nullptr), std::vector<int>());
}

void tst_ProgramDrag::theTableHandsOutItsRowsOnce()
{
    HostFixture fixture;
    fixture.window.openDatabase(fixture.database, QStringLiteral(DEMONSTRATION));
    auto* table = fixture.window.findChild<QTableView*>(QStringLiteral("programTable"));
    QVERIFY(table->dragEnabled());
    const QAbstractItemModel* model = table->model();
    QVERIFY(model->supportedDragActions() == Qt::CopyAction);
    QVERIFY(model->flags(model->index(0, 0)).testFlag(Qt::ItemIsDragEnabled));
    table->selectRow(2);
    table->selectionModel()->select(model->index(0, 0),
                                    QItemSelectionModel::Select | QItemSelectionModel::Rows);
    const std::unique_ptr<QMimeData> data(
        model->mimeData(table->selectionModel()->selectedIndexes()));
    QCOMPARE(programdrag::programs(data.get()), (std::vector<int>{1, 3}));
}

void tst_ProgramDrag::strangersNameNothing_data()
{
    QTest::addColumn<QByteArray>("bytes");
    const auto bytes = [](qint64 process, qint32 count, std::initializer_list<qint32> programs) {
        QByteArray bytes;
        QDataStream out(&bytes, QIODevice::WriteOnly);
        out << process << count;
        for (const qint32 program : programs) {
            out << program;
        }
        return bytes;
    };
    const qint64 own = QCoreApplication::applicationPid();
    QTest::newRow("nothing") << QByteArray();
    QTest::newRow("text") << QByteArray("1,2,3");
    QTest::newRow("another process") << bytes(own + 1, 1, {1});
    QTest::newRow("too few") << bytes(own, 2, {1});
    QTest::newRow("too many") << bytes(own, 1, {1, 2});
    QTest::newRow("less than none") << bytes(own, -1, {});
    QTest::newRow("no end") << bytes(own, 2000000000, {1, 2});
}

void tst_ProgramDrag::strangersNameNothing()
{
    QFETCH(QByteArray, bytes);
    QMimeData data;
    data.setData(programdrag::mimeType(), bytes);
    QCOMPARE(programdrag::programs(&data), std::vector<int>());
}

TREL_TEST(tst_ProgramDrag, QApplication)
#include "tst_ProgramDrag.moc"
