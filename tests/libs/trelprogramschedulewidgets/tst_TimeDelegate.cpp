#include "TimeDelegate.h"
#include "support/TestProgram.h"

#include <QApplication>
#include <QSignalSpy>
#include <QStandardItemModel>
#include <QTableView>
#include <QTimeEdit>
#include <QtTest>

using namespace trel::mediadispatch;

class tst_TimeDelegate : public QObject
{
    Q_OBJECT

private slots:
    void look();
    void readsTheDisplayRole();
    void writesTheEditRole();
    void leavesRoomAboveTheEditor();
    void otherEditorsAreLeftAlone();
};

void tst_TimeDelegate::look()
{
    TimeDelegate delegate;
    QWidget parent;
    QWidget* const editor = delegate.createEditor(&parent, QStyleOptionViewItem(), QModelIndex());
    const auto* const timeEdit = qobject_cast<QTimeEdit*>(editor);
    QVERIFY(timeEdit);
    QCOMPARE(timeEdit->parentWidget(), &parent);
    QCOMPARE(timeEdit->minimumHeight(), 24);
    QCOMPARE(timeEdit->maximumHeight(), 24);
    QCOMPARE(timeEdit->displayFormat(), QStringLiteral("hh:mm:ss"));
    QVERIFY(timeEdit->calendarPopup());
    QCOMPARE(timeEdit->contextMenuPolicy(), Qt::NoContextMenu);
    QCOMPARE(parent.focusWidget(), editor);
}

void tst_TimeDelegate::readsTheDisplayRole()
{
    QStandardItemModel model(1, 1);
    model.setData(model.index(0, 0), QStringLiteral("08:30:05"), Qt::DisplayRole);
    TimeDelegate delegate;
    QTimeEdit editor;
    delegate.setEditorData(&editor, model.index(0, 0));
    QCOMPARE(editor.time(), QTime(8, 30, 5));

    model.setData(model.index(0, 0), QStringLiteral("soon"), Qt::DisplayRole);
    delegate.setEditorData(&editor, model.index(0, 0));
    QCOMPARE(editor.time(), QTime(8, 30, 5));
}

void tst_TimeDelegate::writesTheEditRole()
{
    QStandardItemModel model(3, 2);
    TimeDelegate delegate;
    QSignalSpy updates(&delegate, &TimeDelegate::signalUpdataTime);
    QVERIFY(updates.isValid());
    QTimeEdit editor(QTime(23, 5, 9));
    QString seen;
    connect(&delegate, &TimeDelegate::signalUpdataTime, this,
            [&](int row, int column) { seen = model.index(row, column).data().toString(); });

    delegate.setModelData(&editor, &model, model.index(2, 1));

    QCOMPARE(model.index(2, 1).data(Qt::EditRole), QVariant(QStringLiteral("23:05:09")));
    QCOMPARE(updates.count(), 1);
    QCOMPARE(updates.first(), (QList<QVariant>{2, 1, QTime(23, 5, 9)}));
    QCOMPARE(seen, QStringLiteral("23:05:09"));
}

void tst_TimeDelegate::leavesRoomAboveTheEditor()
{
    TimeDelegate delegate;
    QWidget parent;
    QWidget editor(&parent);
    QStyleOptionViewItem option;
    option.rect = QRect(5, 6, 88, 42);
    delegate.updateEditorGeometry(&editor, option, QModelIndex());
    QCOMPARE(editor.geometry(), QRect(5, 15, 88, 33));
}

void tst_TimeDelegate::otherEditorsAreLeftAlone()
{
    QStandardItemModel model(1, 1);
    TimeDelegate delegate;
    QSignalSpy updates(&delegate, &TimeDelegate::signalUpdataTime);
    QVERIFY(updates.isValid());
    QWidget other;
    delegate.setEditorData(&other, model.index(0, 0));
    delegate.setModelData(&other, &model, model.index(0, 0));
    QCOMPARE(updates.count(), 0);
    QVERIFY(!model.index(0, 0).data().isValid());
}

TREL_TEST(tst_TimeDelegate, QApplication)
#include "tst_TimeDelegate.moc"
