#include "card/BoolCheckDelegate.h"
#include "support/TestProgram.h"

#include <QApplication>
#include <QListView>
#include <QSignalSpy>
#include <QStandardItemModel>
#include <QtTest>

using namespace trel::mediadispatch;

namespace {

class OpenDelegate : public BoolCheckDelegate
{
public:
    using BoolCheckDelegate::initStyleOption;
};

} // namespace

class tst_BoolCheckDelegate : public QObject
{
    Q_OBJECT

private slots:
    void everyRowHasAMark_data();
    void everyRowHasAMark();
    void spaceAsksForTheOtherState();
    void clicksChangeNothing();
};

void tst_BoolCheckDelegate::everyRowHasAMark_data()
{
    QTest::addColumn<QVariant>("data");
    QTest::addColumn<int>("state");
    QTest::newRow("true") << QVariant(true) << int(Qt::Checked);
    QTest::newRow("false") << QVariant(false) << int(Qt::Unchecked);
    QTest::newRow("never set") << QVariant() << int(Qt::Unchecked);
}

void tst_BoolCheckDelegate::everyRowHasAMark()
{
    QFETCH(QVariant, data);
    QFETCH(int, state);

    QStandardItemModel model(1, 1);
    model.setData(model.index(0, 0), data, Qt::CheckStateRole);
    const OpenDelegate delegate;
    QStyleOptionViewItem option;
    delegate.initStyleOption(&option, model.index(0, 0));
    QVERIFY(option.features.testFlag(QStyleOptionViewItem::HasCheckIndicator));
    QCOMPARE(int(option.checkState), state);
}

void tst_BoolCheckDelegate::spaceAsksForTheOtherState()
{
    QStandardItemModel model(3, 1);
    QListView view;
    BoolCheckDelegate delegate;
    view.setModel(&model);
    view.setItemDelegate(&delegate);
    view.setCurrentIndex(model.index(1, 0));
    QSignalSpy toggles(&delegate, &BoolCheckDelegate::toggleRequested);
    QVERIFY(toggles.isValid());

    QTest::keyClick(&view, Qt::Key_Space);
    QCOMPARE(toggles.count(), 1);
    QCOMPARE(toggles.first().first().toModelIndex(), model.index(1, 0));
    QTest::keyClick(&view, Qt::Key_A);
    QCOMPARE(toggles.count(), 1);
    QVERIFY(!model.index(1, 0).data(Qt::CheckStateRole).isValid());
}

void tst_BoolCheckDelegate::clicksChangeNothing()
{
    QStandardItemModel model(1, 1);
    QListView view;
    BoolCheckDelegate delegate;
    view.setModel(&model);
    view.setItemDelegate(&delegate);
    view.show();
    QSignalSpy toggles(&delegate, &BoolCheckDelegate::toggleRequested);
    QVERIFY(toggles.isValid());
    QTest::mouseClick(view.viewport(), Qt::LeftButton, {},
                      view.visualRect(model.index(0, 0)).center());
    QCOMPARE(toggles.count(), 0);
    QVERIFY(!model.index(0, 0).data(Qt::CheckStateRole).isValid());
}

TREL_TEST(tst_BoolCheckDelegate, QApplication)
#include "tst_BoolCheckDelegate.moc"
