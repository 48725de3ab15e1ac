#include "ReadOnlyDelegate.h"
#include "support/TestProgram.h"

#include <QApplication>
#include <QStandardItemModel>
#include <QTableView>
#include <QtTest>

using namespace trel::mediadispatch;

class tst_ReadOnlyDelegate : public QObject
{
    Q_OBJECT

private slots:
    void nothingOpensAnEditor();
};

void tst_ReadOnlyDelegate::nothingOpensAnEditor()
{
    QStandardItemModel model(1, 2);
    const QModelIndex guarded = model.index(0, 0);
    const QModelIndex open = model.index(0, 1);
    QVERIFY(guarded.flags().testFlag(Qt::ItemIsEditable));
    ReadOnlyDelegate delegate;
    QTableView view;
    view.setModel(&model);
    view.setItemDelegateForColumn(0, &delegate);
    view.setEditTriggers(QAbstractItemView::AllEditTriggers);
    view.show();

    QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, view.visualRect(guarded).center());
    QTest::mouseDClick(view.viewport(), Qt::LeftButton, {}, view.visualRect(guarded).center());
    QTest::keyClicks(&view, QStringLiteral("text"));
    view.openPersistentEditor(guarded);
    QVERIFY(!view.indexWidget(guarded));
    QVERIFY(!guarded.data().isValid());

    view.openPersistentEditor(open);
    QVERIFY(view.indexWidget(open));
}

TREL_TEST(tst_ReadOnlyDelegate, QApplication)
#include "tst_ReadOnlyDelegate.moc"
