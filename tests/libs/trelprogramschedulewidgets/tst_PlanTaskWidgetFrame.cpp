#include "OpenCard.h"

#include "LineEditDelegate.h"
#include "PlanStandardItemModel.h"
#include "ReadOnlyDelegate.h"
#include "support/MetaMethods.h"
#include "support/PromptAnswer.h"

#include <QBoxLayout>
#include <QDateEdit>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTableView>
#include <QToolTip>

using namespace trel::mediadispatch;

namespace {

RecordingService& service()
{
    return RecordingService::instance();
}

template <typename T>
T& named(const QWidget& card, const char* name)
{
    T* const found = card.findChild<T*>(QLatin1String(name));
    Q_ASSERT(found);
    return *found;
}

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

class tst_PlanTaskWidgetFrame : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void declaresItsMethodsInOrder();
    void registersTheTypeOfTheRowBoxes();
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
    void texts();
    void showsThePeriod();
    void datesThatDoNotParseLeaveTheEditors();
    void aTaskWithoutPlansIsNotStored();
    void eachPlanStoresTheTaskOnce();
    void foldsAndOpens();
    void foldingTwiceIsFoldingOnce();
    void foldingEditsNothing();
    void pointerOnATitleButtonShowsItsToolTip_data();
    void pointerOnATitleButtonShowsItsToolTip();
    void pointerOnTheTableShowsNoToolTip();
    void copyAsksNothing();
    void deleteAsks_data();
    void deleteAsks();
    void theTitleButtonsDoNotFold();
};

void tst_PlanTaskWidgetFrame::init()
{
    service().reset();
}

void tst_PlanTaskWidgetFrame::declaresItsMethodsInOrder()
{
    QCOMPARE(ownMethods(PlanTaskWidget::staticMetaObject, QMetaMethod::Signal),
             QStringList(
                 {QStringLiteral("signalDeleteTask(int)"), QStringLiteral("signalCopyTask(int)")}));
    QCOMPARE(ownMethods(PlanTaskWidget::staticMetaObject, QMetaMethod::Slot).join(QLatin1Char(' ')),
             QStringLiteral(
                 "slotFold(bool) onPushButtonAddClicked() slotAddRowPlan(PlayPlan,bool) "
                 "slotAddRowPlan(PlayPlan) slotAddRowPlan() slotAddProgram(int) "
                 "slotUpdateStartTimeDate(QDate) slotUpdateEndTimeDate(QDate) "
                 "slotCurrentIndexChangeSignal(int,ComBoxType,int) slotDeleteTask() "
                 "slotCopyTask() slotDeletePlan() slotCopyPlan() slotUpdateTime(int,int,QTime) "
                 "slotcurrentChanged(QStandardItem*) slotTimesChanged(int) "
                 "slotModeIndexChanged(int) slotEndActionIndexChanged(int) "
                 "slotEndTimeChanged(QTime) slotStartTimeChanged(QTime) "
                 "slotSelectedText(QStringList) slotUpdateEndTime() slotReflushConflict(int) "
                 "refreshEditorrow(int) slotTranslation()"));
}

void tst_PlanTaskWidgetFrame::registersTheTypeOfTheRowBoxes()
{
    const OpenCard open(taskWithPlans({}));
    QVERIFY(QMetaType::type("ComBoxType") != QMetaType::UnknownType);
}

void tst_PlanTaskWidgetFrame::card()
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

void tst_PlanTaskWidgetFrame::sizesOfTheForm_data()
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

void tst_PlanTaskWidgetFrame::sizesOfTheForm()
{
    const OpenCard open(taskWithPlans({}));
    QTEST(fixedSize(named<QWidget>(open.card, QTest::currentDataTag())), "size");
}

void tst_PlanTaskWidgetFrame::layouts()
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

void tst_PlanTaskWidgetFrame::spacers()
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

void tst_PlanTaskWidgetFrame::titleBar()
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

void tst_PlanTaskWidgetFrame::dateEditors()
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

void tst_PlanTaskWidgetFrame::table()
{
    const OpenCard open(taskWithPlans({}));
    const QTableView& table = open.rows.table();
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
    QCOMPARE(table.dragDropMode(), QAbstractItemView::InternalMove);
    QVERIFY(!table.dragEnabled());
    QVERIFY(!table.showDropIndicator());
    QCOMPARE(table.selectionBehavior(), QAbstractItemView::SelectRows);
    QVERIFY(!table.showGrid());
    QCOMPARE(int(table.editTriggers()), 31);
    QCOMPARE(table.focusPolicy(), Qt::NoFocus);
    QCOMPARE(table.lineWidth(), 0);
}

void tst_PlanTaskWidgetFrame::columns_data()
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

void tst_PlanTaskWidgetFrame::columns()
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

void tst_PlanTaskWidgetFrame::texts()
{
    const OpenCard open(taskWithPlans({}, 7));
    QCOMPARE(named<QPushButton>(open.card, "title").text(), QStringLiteral("zhPlayTaskStr7    "));
    QCOMPARE(named<QLabel>(open.card, "labelvalidTime").text(),
             QStringLiteral("zhEffectiveStrzhFromStr"));
    QCOMPARE(named<QLabel>(open.card, "labelTo").text(), QStringLiteral("zhToStr"));
    // The delayed tool tips come with the first change of language only.
    QCOMPARE(named<QPushButton>(open.card, "pbtCreatCopy").toolTip(), QString());
    QCOMPARE(named<QPushButton>(open.card, "pushButtonDelete").toolTip(), QString());
}

void tst_PlanTaskWidgetFrame::showsThePeriod()
{
    const OpenCard open(taskWithPlans({}));
    QCOMPARE(named<QDateEdit>(open.card, "dateEditVaildStartTime").date(), QDate(2024, 3, 1));
    QCOMPARE(named<QDateEdit>(open.card, "dateEditVaildEndTime").date(), QDate(2024, 3, 31));
}

void tst_PlanTaskWidgetFrame::datesThatDoNotParseLeaveTheEditors()
{
    PlayTask task = taskWithPlans({});
    task.startDate = "2024-03-01";
    task.endDate.clear();
    const OpenCard open(task);
    const QDate untouched = QDateEdit().date();
    QCOMPARE(named<QDateEdit>(open.card, "dateEditVaildStartTime").date(), untouched);
    QCOMPARE(named<QDateEdit>(open.card, "dateEditVaildEndTime").date(), untouched);
    QCOMPARE(open.rows.task(), task);
}

void tst_PlanTaskWidgetFrame::aTaskWithoutPlansIsNotStored()
{
    const PlanTaskWidget card(taskWithPlans({}), nullptr);
    QCOMPARE(service().log, QStringList());
    QCOMPARE(card.findChild<QTableView*>()->model()->rowCount(), 0);
}

void tst_PlanTaskWidgetFrame::eachPlanStoresTheTaskOnce()
{
    PlanTaskWidget card(
        taskWithPlans({timePlan(1, "08:00:00", "09:00:00"), timePlan(2, "08:30:00", "09:30:00"),
                       timePlan(3, "10:00:00", "11:00:00")}),
        nullptr);
    const QString task = QStringLiteral(
        "addTask(1 2024.03.01-2024.03.31 [id 1 time 08:00:00-09:00:00 x1 days 0 end 0 <>; "
        "id 2 time 08:30:00-09:30:00 x1 days 0 end 0 <> conflict; "
        "id 3 time 10:00:00-11:00:00 x1 days 0 end 0 <>])");
    QCOMPARE(service().edits(), QStringList({task, task, task}));
    QVERIFY(PlanTaskWidgetInspector(card).table().updatesEnabled());
}

void tst_PlanTaskWidgetFrame::foldsAndOpens()
{
    OpenCard open(taskWithPlans({}));
    const auto& arrow = named<QLabel>(open.card, "arrow");
    const auto& body = named<QWidget>(open.card, "widget");
    QVERIFY(!open.card.isFolded());
    QCOMPARE(arrow.property("labelImage").toString(), QStringLiteral("down"));
    QVERIFY(body.isVisible());

    click(named<QPushButton>(open.card, "title"));
    QVERIFY(open.card.isFolded());
    QCOMPARE(arrow.property("labelImage").toString(), QStringLiteral("right"));
    QVERIFY(!body.isVisible());
    QCOMPARE(open.card.height(), 32);

    open.card.setFolded(false);
    QVERIFY(!open.card.isFolded());
    QCOMPARE(arrow.property("labelImage").toString(), QStringLiteral("down"));
    QVERIFY(body.isVisible());
    QCOMPARE(open.card.height(), 292);
    QCOMPARE(open.card.width(), 1100);
}

void tst_PlanTaskWidgetFrame::foldingTwiceIsFoldingOnce()
{
    OpenCard open(taskWithPlans({}));
    QSignalSpy toggled(&named<QPushButton>(open.card, "title"), &QPushButton::toggled);
    QVERIFY(toggled.isValid());
    open.card.setFolded(true);
    open.card.setFolded(true);
    QCOMPARE(toggled.count(), 1);
    QVERIFY(open.card.isFolded());
}

void tst_PlanTaskWidgetFrame::foldingEditsNothing()
{
    OpenCard open(taskWithPlans({timePlan(1, "08:00:00", "09:00:00", "1,3")}));
    open.card.setFolded(true);
    open.card.setFolded(false);
    QCOMPARE(service().log, QStringList());
}

void tst_PlanTaskWidgetFrame::pointerOnATitleButtonShowsItsToolTip_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("pbtCreatCopy") << "zhCreateCopy";
    QTest::newRow("pushButtonDelete") << "szDeleteStr";
}

void tst_PlanTaskWidgetFrame::pointerOnATitleButtonShowsItsToolTip()
{
    const OpenCard open(taskWithPlans({}));
    auto& button = named<QPushButton>(open.card, QTest::currentDataTag());
    const QPoint spot = button.mapToGlobal(QPoint(3, 4));
    QEnterEvent enter(QPointF(3, 4), QPointF(), QPointF(spot));
    QVERIFY(QCoreApplication::sendEvent(&button, &enter));
    QTRY_VERIFY(QToolTip::isVisible());
    QTEST(QToolTip::text(), "text");
    QToolTip::hideText();
    QTRY_VERIFY(!QToolTip::isVisible());
}

void tst_PlanTaskWidgetFrame::pointerOnTheTableShowsNoToolTip()
{
    const OpenCard open(taskWithPlans({}));
    QEnterEvent enter(QPointF(3, 4), QPointF(), QPointF(3, 4));
    QCoreApplication::sendEvent(open.rows.table().viewport(), &enter);
    QVERIFY(!QToolTip::isVisible());
}

void tst_PlanTaskWidgetFrame::copyAsksNothing()
{
    const PromptAnswer noPrompt;
    const OpenCard open(taskWithPlans({timePlan(1, "08:00:00", "09:00:00")}, 7));
    QSignalSpy copied(&open.card, &PlanTaskWidget::signalCopyTask);
    QVERIFY(copied.isValid());
    click(named<QPushButton>(open.card, "pbtCreatCopy"));
    QCOMPARE(copied, QList<QVariantList>({{7}}));
    QCOMPARE(service().log, QStringList());
}

void tst_PlanTaskWidgetFrame::deleteAsks_data()
{
    QTest::addColumn<int>("answer");
    QTest::addColumn<bool>("isDeleted");
    QTest::newRow("confirm") << 1 << true;
    QTest::newRow("Enter") << int(PromptAnswer::Enter) << true;
    QTest::newRow("cancel") << 2 << false;
    QTest::newRow("Escape") << int(PromptAnswer::Escape) << false;
    QTest::newRow("close") << int(PromptAnswer::Close) << false;
}

void tst_PlanTaskWidgetFrame::deleteAsks()
{
    QFETCH(int, answer);
    QFETCH(bool, isDeleted);
    const OpenCard open(taskWithPlans({timePlan(1, "08:00:00", "09:00:00")}, 7));
    QSignalSpy deleted(&open.card, &PlanTaskWidget::signalDeleteTask);
    QVERIFY(deleted.isValid());
    const PromptAnswer prompt(answer);
    click(named<QPushButton>(open.card, "pushButtonDelete"));
    QCOMPARE(deleted, isDeleted ? QList<QVariantList>({{7}}) : QList<QVariantList>());
    QCOMPARE(prompt.texts(), QStringList(QStringLiteral("szDeleteTaskConfirmStr")));
    QCOMPARE(prompt.buttons(), QStringList(QStringLiteral("zhFixAct|zhCancelAct")));
    QCOMPARE(prompt.types(), QVector<int>{1});
    QCOMPARE(service().log, QStringList());
}

void tst_PlanTaskWidgetFrame::theTitleButtonsDoNotFold()
{
    const OpenCard open(taskWithPlans({}));
    click(named<QPushButton>(open.card, "pbtCreatCopy"));
    QVERIFY(!open.card.isFolded());
}

QTEST_MAIN(tst_PlanTaskWidgetFrame)
#include "tst_PlanTaskWidgetFrame.moc"
