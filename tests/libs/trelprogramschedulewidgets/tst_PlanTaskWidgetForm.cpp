#include "OpenCard.h"
#include "support/TestProgram.h"

#include "LineEditDelegate.h"
#include "PlanStandardItemModel.h"
#include "ReadOnlyDelegate.h"

#include <QApplication>
#include <QBoxLayout>
#include <QDateEdit>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QScrollBar>
#include <QTableView>

using namespace trel::mediadispatch;

namespace {

QString margins(const QLayout& layout)
{
    const QMargins m = layout.contentsMargins();
    return QStringLiteral("%1 %2 %3 %4").arg(m.left()).arg(m.top()).arg(m.right()).arg(m.bottom());
}

/// The sizes that a widget is held to, "any" where it is free.
QString fixedSize(const QWidget& widget)
{
    const auto side = [](int least, int most) {
        return least == most ? QString::number(least) : QStringLiteral("any");
    };
    return side(widget.minimumWidth(), widget.maximumWidth()) + QLatin1Char('x') +
           side(widget.minimumHeight(), widget.maximumHeight());
}

/// The names of what stands in a layout, in order; "-" for a spacer.
QString contents(const QLayout& layout)
{
    QStringList names;
    for (int i = 0; i < layout.count(); ++i) {
        QLayoutItem* const item = layout.itemAt(i);
        const QObject* object = item->widget();
        if (!object) {
            object = item->layout();
        }
        names.append(object ? object->objectName() : QStringLiteral("-"));
    }
    return names.join(QLatin1Char(' '));
}

} // namespace

/// The widgets of a card, as style sheets know them and as operators see them.
class tst_PlanTaskWidgetForm : public QObject
{
    Q_OBJECT

private slots:
    void init() { RecordingService::instance().reset(); }
    void card();
    void sizesOfTheForm_data();
    void sizesOfTheForm();
    void layouts();
    void spacers();
    void titleBar();
    void dateEditors();
    void table();
    void columns_data();
    void columns();
};

void tst_PlanTaskWidgetForm::card()
{
    const OpenCard open(taskWithPlans({}));
    QCOMPARE(fixedSize(open.card), QStringLiteral("1100xany"));
    QVERIFY(open.card.testAttribute(Qt::WA_StyledBackground));
    QCOMPARE(open.card.property("style").toString(), QStringLiteral("BG1"));
    QCOMPARE(open.card.objectName(), QStringLiteral("PlanTaskWidget"));
    QCOMPARE(open.card.windowTitle(), QStringLiteral("PlanTaskWidget"));
    for (const QWidget* widget : open.card.findChildren<QWidget*>()) {
        QVERIFY2(widget->styleSheet().isEmpty(), qPrintable(widget->objectName()));
    }
}

void tst_PlanTaskWidgetForm::sizesOfTheForm_data()
{
    QTest::addColumn<QString>("size");
    QTest::newRow("title") << "anyx32";
    QTest::newRow("arrow") << "16x16";
    QTest::newRow("pbtCreatCopy") << "24x24";
    QTest::newRow("pushButtonDelete") << "24x24";
    QTest::newRow("widget") << "anyx260";
    QTest::newRow("labelvalidTime") << "anyx26";
    QTest::newRow("dateEditVaildStartTime") << "100x24";
    QTest::newRow("dateEditVaildEndTime") << "100x24";
    QTest::newRow("pushButtonAdd") << "24x24";
}

void tst_PlanTaskWidgetForm::sizesOfTheForm()
{
    const OpenCard open(taskWithPlans({}));
    QTEST(fixedSize(named<QWidget>(open.card, QTest::currentDataTag())), "size");
}

void tst_PlanTaskWidgetForm::layouts()
{
    const OpenCard open(taskWithPlans({}));
    const QLayout& outer = *open.card.layout();
    QCOMPARE(outer.objectName(), QStringLiteral("verticalLayout_2"));
    QVERIFY(qobject_cast<const QVBoxLayout*>(&outer));
    QCOMPARE(outer.spacing(), 0);
    QCOMPARE(margins(outer), QStringLiteral("0 0 0 0"));
    QCOMPARE(contents(outer), QStringLiteral("title widget"));

    const QLayout& title = *named<QPushButton>(open.card, "title").layout();
    QCOMPARE(title.objectName(), QStringLiteral("btnLayout"));
    QVERIFY(qobject_cast<const QHBoxLayout*>(&title));
    QCOMPARE(title.spacing(), 6);
    QCOMPARE(margins(title), QStringLiteral("8 0 8 0"));
    QCOMPARE(contents(title), QStringLiteral("arrow - pbtCreatCopy pushButtonDelete"));

    const QLayout& body = *named<QWidget>(open.card, "widget").layout();
    QCOMPARE(body.objectName(), QStringLiteral("verticalLayout"));
    QVERIFY(qobject_cast<const QVBoxLayout*>(&body));
    QCOMPARE(body.spacing(), 6);
    QCOMPARE(margins(body), QStringLiteral("11 11 11 11"));
    QCOMPARE(contents(body), QStringLiteral("horizontalLayout schedule"));

    const QLayout& dates = named<QHBoxLayout>(open.card, "horizontalLayout");
    QCOMPARE(dates.spacing(), 6);
    QCOMPARE(contents(dates), QStringLiteral("labelvalidTime dateEditVaildStartTime labelTo "
                                             "dateEditVaildEndTime pushButtonAdd -"));
}

void tst_PlanTaskWidgetForm::spacers()
{
    const OpenCard open(taskWithPlans({}));
    const QSpacerItem& inTitle =
        *named<QHBoxLayout>(open.card, "btnLayout").itemAt(1)->spacerItem();
    QCOMPARE(inTitle.sizeHint(), QSize(208, 29));
    QCOMPARE(inTitle.expandingDirections(), Qt::Orientations(Qt::Horizontal));
    const QSpacerItem& inDates =
        *named<QHBoxLayout>(open.card, "horizontalLayout").itemAt(5)->spacerItem();
    QCOMPARE(inDates.sizeHint(), QSize(40, 20));
    QCOMPARE(inDates.expandingDirections(), Qt::Orientations(Qt::Horizontal));
}

void tst_PlanTaskWidgetForm::titleBar()
{
    const OpenCard open(taskWithPlans({}));
    const auto& title = named<QPushButton>(open.card, "title");
    QVERIFY(title.isCheckable());
    QCOMPARE(title.width(), 1100);
    QCOMPARE(title.layoutDirection(), Qt::LeftToRight);
    QVERIFY(title.testAttribute(Qt::WA_SetLayoutDirection));
    QCOMPARE(title.focusPolicy(), Qt::NoFocus);

    const auto& copy = named<QPushButton>(open.card, "pbtCreatCopy");
    QCOMPARE(copy.property("imageBtn").toString(), QStringLiteral("projectSaveAs"));
    QCOMPARE(copy.iconSize(), QSize(24, 24));
    QCOMPARE(copy.focusPolicy(), Qt::NoFocus);
    QCOMPARE(copy.parent(), &title);

    const auto& remove = named<QPushButton>(open.card, "pushButtonDelete");
    QCOMPARE(remove.property("imageBtn").toString(), QStringLiteral("delete"));
    QCOMPARE(remove.iconSize(), QSize(24, 24));
    QCOMPARE(remove.focusPolicy(), Qt::NoFocus);
    QCOMPARE(remove.shortcut(), QKeySequence(QStringLiteral("Ctrl+S, Ctrl+S")));
    QCOMPARE(remove.parent(), &title);
}

void tst_PlanTaskWidgetForm::dateEditors()
{
    const OpenCard open(taskWithPlans({}));
    for (const char* name : {"dateEditVaildStartTime", "dateEditVaildEndTime"}) {
        const auto& editor = named<QDateEdit>(open.card, name);
        QCOMPARE(editor.displayFormat(), QStringLiteral("yyyy.MM.dd"));
        QCOMPARE(editor.contextMenuPolicy(), Qt::NoContextMenu);
    }
    QCOMPARE(named<QLabel>(open.card, "labelvalidTime").lineWidth(), 0);
    const auto& add = named<QPushButton>(open.card, "pushButtonAdd");
    QCOMPARE(add.iconSize(), QSize(32, 32));
    QCOMPARE(add.focusPolicy(), Qt::NoFocus);
}

void tst_PlanTaskWidgetForm::table()
{
    const OpenCard open(taskWithPlans({}));
    QTableView& table = open.rows.table();
    QVERIFY(qobject_cast<const PlanStandardItemModel*>(table.model()));
    QCOMPARE(table.model(), &open.rows.model());
    QCOMPARE(table.model()->columnCount(), 17);
    QVERIFY(table.horizontalHeader()->isHidden());
    QVERIFY(table.verticalHeader()->isHidden());
    QVERIFY(table.horizontalHeader()->sectionsMovable());
    QCOMPARE(table.verticalHeader()->sectionResizeMode(0), QHeaderView::Fixed);
    QCOMPARE(table.verticalHeader()->defaultSectionSize(), 44);
    QCOMPARE(table.verticalHeader()->defaultAlignment(), Qt::Alignment(Qt::AlignCenter));
    QCOMPARE(fixedSize(*table.verticalScrollBar()), QStringLiteral("8xany"));
    QCOMPARE(table.verticalScrollBar()->contextMenuPolicy(), Qt::NoContextMenu);
    QCOMPARE(table.horizontalScrollBarPolicy(), Qt::ScrollBarAlwaysOff);
    QVERIFY(!table.dragEnabled());
    // A view tells its mode by what it allows, and would be in this one if it allowed drags.
    table.setDragEnabled(true);
    QCOMPARE(table.dragDropMode(), QAbstractItemView::InternalMove);
    QVERIFY(!table.showDropIndicator());
    QCOMPARE(table.selectionBehavior(), QAbstractItemView::SelectRows);
    QVERIFY(!table.showGrid());
    QCOMPARE(int(table.editTriggers()), 31);
    QCOMPARE(table.focusPolicy(), Qt::NoFocus);
    QCOMPARE(table.lineWidth(), 0);
}

void tst_PlanTaskWidgetForm::columns_data()
{
    QTest::addColumn<int>("width");
    QTest::addColumn<QString>("delegate");
    const int widths[] = {60, 150, 50, 66, 45, 88, 24, 88, 50, 45, 40, 100, 64, 120, 60, 24, 24};
    for (int column = 0; column < 17; ++column) {
        const QString delegate = column == 1                       ? QStringLiteral("field")
                                 : column <= 14 && column % 2 == 0 ? QStringLiteral("read only")
                                                                   : QStringLiteral("none");
        QTest::addRow("%d", column) << widths[column] << delegate;
    }
}

void tst_PlanTaskWidgetForm::columns()
{
    const OpenCard open(taskWithPlans({}));
    const int column = QString::fromLatin1(QTest::currentDataTag()).toInt();
    QAbstractItemDelegate* const delegate = open.rows.table().itemDelegateForColumn(column);
    QTEST(open.rows.table().columnWidth(column), "width");
    QTEST(qobject_cast<ReadOnlyDelegate*>(delegate)   ? QStringLiteral("read only")
          : qobject_cast<LineEditDelegate*>(delegate) ? QStringLiteral("field")
                                                      : QStringLiteral("none"),
          "delegate");
    QCOMPARE(
        open.card.findChildren<ReadOnlyDelegate*>(QString(), Qt::FindDirectChildrenOnly).size(), 1);
    QCOMPARE(
        open.card.findChildren<LineEditDelegate*>(QString(), Qt::FindDirectChildrenOnly).size(), 1);
}

TREL_TEST(tst_PlanTaskWidgetForm, QApplication)
#include "tst_PlanTaskWidgetForm.moc"
