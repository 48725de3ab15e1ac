#include "LineEditDelegate.h"

#include "kCustomLineEdit.h"
#include "support/RecordingService.h"
#include "support/TestProgram.h"

#include <QApplication>
#include <QHeaderView>
#include <QPushButton>
#include <QSignalSpy>
#include <QStandardItemModel>
#include <QTableView>
#include <QtTest>

using namespace trel::mediadispatch;

namespace {

constexpr int kColumn = 1;

/// A table of program fields, as a card has one.
class FieldTable
{
public:
    explicit FieldTable(int rows)
        : model(rows, 2)
    {
        view.setModel(&model);
        view.setItemDelegateForColumn(kColumn, &delegate);
        view.setColumnWidth(kColumn, 160);
        view.verticalHeader()->setDefaultSectionSize(42);
        for (int row = 0; row < rows; ++row) {
            model.setData(model.index(row, kColumn), QStringLiteral("program %1").arg(row),
                          Qt::UserRole);
            view.openPersistentEditor(model.index(row, kColumn));
        }
        view.resize(400, 400);
        view.show();
    }

    kCustomLineEdit* field(int row) const
    {
        return qobject_cast<kCustomLineEdit*>(view.indexWidget(model.index(row, kColumn)));
    }

    void removeRow(int row)
    {
        delegate.removeRow(row);
        model.removeRow(row);
    }

    /// The rows that the fields tell, from top to bottom.
    QString toldRows() const
    {
        QStringList rows;
        QSignalSpy clicked(&delegate, &LineEditDelegate::signalClicked);
        for (int row = 0; row < model.rowCount(); ++row) {
            field(row)->findChild<QPushButton*>(QStringLiteral("pushButton"))->click();
            rows.append(clicked.count() == 1 ? clicked.takeFirst().first().toString()
                                             : QStringLiteral("?"));
        }
        return rows.join(QLatin1Char(' '));
    }

    QStandardItemModel model;
    LineEditDelegate delegate;
    QTableView view;
};

} // namespace

class tst_LineEditDelegate : public QObject
{
    Q_OBJECT

private slots:
    void init() { RecordingService::instance().reset(); }

    void showsTheTextOfTheUserRole();
    void writesTheEditRole();
    void ampersandsComeAndGoAsTheyAre();
    void makingAFieldOpensNothing();
    void leavesRoomAboveTheField();
    void passesClicksOn();
    void fieldsMoveUp();
    void rowsRemovedInAnyOrder();
    void theLastRowCanGo();
    void forgetsWhatItNeverKnew();
    void forgetsFieldsThatAreGone();
    void anotherEditorIsLeftAlone();
};

void tst_LineEditDelegate::showsTheTextOfTheUserRole()
{
    FieldTable table(2);
    QCOMPARE(table.field(0)->text(), QStringLiteral("program 0"));
    QCOMPARE(table.field(1)->text(), QStringLiteral("program 1"));

    table.model.setData(table.model.index(1, kColumn), QStringLiteral("shown"), Qt::EditRole);
    QCOMPARE(table.field(1)->text(), QStringLiteral("program 1"));
    table.model.setData(table.model.index(1, kColumn), QStringLiteral("news"), Qt::UserRole);
    QCOMPARE(table.field(1)->text(), QStringLiteral("news"));
}

void tst_LineEditDelegate::writesTheEditRole()
{
    FieldTable table(1);
    const QModelIndex index = table.model.index(0, kColumn);
    const QString whole = QStringLiteral("A program whose name is far too long for the field");
    table.model.setData(index, whole, Qt::UserRole);

    table.delegate.setModelData(table.field(0), &table.model, index);

    QCOMPARE(index.data(Qt::EditRole).toString(), table.field(0)->text());
    QVERIFY(index.data(Qt::EditRole).toString().endsWith(QChar(0x2026)));
    QCOMPARE(index.data(Qt::UserRole).toString(), whole);
}

void tst_LineEditDelegate::ampersandsComeAndGoAsTheyAre()
{
    FieldTable table(1);
    const QModelIndex index = table.model.index(0, kColumn);
    const QString name = QStringLiteral("R&D && A & B");
    table.model.setData(index, name, Qt::UserRole);
    QCOMPARE(table.field(0)->text(), name);
    table.delegate.setModelData(table.field(0), &table.model, index);
    QCOMPARE(index.data(Qt::EditRole).toString(), name);
}

void tst_LineEditDelegate::makingAFieldOpensNothing()
{
    LineEditDelegate delegate;
    QSignalSpy clicked(&delegate, &LineEditDelegate::signalClicked);
    QVERIFY(clicked.isValid());
    QStandardItemModel model(3, 2);
    QWidget parent;
    QWidget* const editor =
        delegate.createEditor(&parent, QStyleOptionViewItem(), model.index(2, kColumn));
    const auto* const field = qobject_cast<kCustomLineEdit*>(editor);
    QVERIFY(field);
    QCOMPARE(field->parentWidget(), &parent);
    QCOMPARE(field->row(), 2);
    QCOMPARE(clicked.count(), 0);
    QCOMPARE(RecordingService::instance().log, QStringList());
}

void tst_LineEditDelegate::leavesRoomAboveTheField()
{
    LineEditDelegate delegate;
    QWidget parent;
    QWidget editor(&parent);
    QStyleOptionViewItem option;
    option.rect = QRect(10, 20, 150, 42);
    delegate.updateEditorGeometry(&editor, option, QModelIndex());
    QCOMPARE(editor.geometry(), QRect(10, 29, 150, 33));
}

void tst_LineEditDelegate::passesClicksOn()
{
    FieldTable table(3);
    QCOMPARE(table.toldRows(), QStringLiteral("0 1 2"));
}

void tst_LineEditDelegate::fieldsMoveUp()
{
    FieldTable table(3);
    kCustomLineEdit* const lowest = table.field(2);
    table.removeRow(1);
    QCOMPARE(table.field(1), lowest);
    QCOMPARE(lowest->row(), 1);
    QCOMPARE(table.toldRows(), QStringLiteral("0 1"));
}

void tst_LineEditDelegate::rowsRemovedInAnyOrder()
{
    FieldTable table(8);
    for (const int row : {3, 0, 5, 2, 2, 0}) {
        table.removeRow(row);
        QStringList expected;
        for (int left = 0; left < table.model.rowCount(); ++left) {
            expected.append(QString::number(left));
        }
        QCOMPARE(table.toldRows(), expected.join(QLatin1Char(' ')));
    }
}

void tst_LineEditDelegate::theLastRowCanGo()
{
    FieldTable table(1);
    table.removeRow(0);
    QCOMPARE(table.model.rowCount(), 0);
    table.model.insertRow(0);
    table.view.openPersistentEditor(table.model.index(0, kColumn));
    QCOMPARE(table.toldRows(), QStringLiteral("0"));
}

void tst_LineEditDelegate::forgetsWhatItNeverKnew()
{
    FieldTable table(2);
    table.delegate.removeRow(7);
    QCOMPARE(table.toldRows(), QStringLiteral("0 1"));
    table.delegate.removeRow(-1);
    QCOMPARE(table.field(0)->row(), -1);
    QCOMPARE(table.field(1)->row(), 0);
}

void tst_LineEditDelegate::forgetsFieldsThatAreGone()
{
    FieldTable table(3);
    table.view.closePersistentEditor(table.model.index(2, kColumn));
    QTRY_VERIFY(!table.field(2));
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    table.removeRow(0);
    QCOMPARE(table.field(0)->row(), 0);
}

void tst_LineEditDelegate::anotherEditorIsLeftAlone()
{
    LineEditDelegate delegate;
    QStandardItemModel model(1, 2);
    QWidget other;
    delegate.setEditorData(&other, model.index(0, kColumn));
    delegate.setModelData(&other, &model, model.index(0, kColumn));
    QVERIFY(!model.index(0, kColumn).data(Qt::EditRole).isValid());
}

TREL_TEST(tst_LineEditDelegate, QApplication)
#include "tst_LineEditDelegate.moc"
