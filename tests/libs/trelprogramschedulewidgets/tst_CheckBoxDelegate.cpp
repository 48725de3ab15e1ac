#include "CheckBoxDelegate.h"
#include "support/TestProgram.h"

#include "CheckBoxImages.h"

#include <QApplication>
#include <QHeaderView>
#include <QPainter>
#include <QProxyStyle>
#include <QSignalSpy>
#include <QStandardItemModel>
#include <QTableView>
#include <QTemporaryDir>
#include <QtTest>

using namespace trel::mediadispatch;

namespace {

constexpr QSize kCheckedSize(13, 9);
constexpr QSize kUncheckedSize(7, 20);
constexpr int kOtherColumn = 1;

/// Notes what a view has its style draw.
class NotingStyle : public QProxyStyle
{
public:
    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override
    {
        if (element == CE_ItemViewItem && (option->state & State_HasFocus)) {
            ++focusedCells;
        }
        if (element == CE_ItemViewItem) {
            ++cells;
        }
        QProxyStyle::drawControl(element, option, painter, widget);
    }

    void drawItemPixmap(QPainter* painter, const QRect& rect, int alignment,
                        const QPixmap& pixmap) const override
    {
        pixmaps.append(QStringLiteral("%1x%2%3")
                           .arg(pixmap.width())
                           .arg(pixmap.height())
                           .arg(QLatin1String(alignment == Qt::AlignCenter ? "" : " aside")));
        rects.append(rect);
        QProxyStyle::drawItemPixmap(painter, rect, alignment, pixmap);
    }

    mutable int cells = 0;
    mutable int focusedCells = 0;
    mutable QStringList pixmaps;
    mutable QVector<QRect> rects;
};

/// A table of two rows whose columns all have the delegate, as a chooser table has it in one.
class CheckTable
{
public:
    explicit CheckTable(CheckType type = ProgramListCheck)
        : delegate(type)
    {
        view.setStyle(&style);
        view.setModel(&model);
        view.setItemDelegate(&delegate);
        view.horizontalHeader()->hide();
        view.verticalHeader()->hide();
        view.resize(400, 200);
        view.show();
    }

    QPoint place(int row, int column) const
    {
        return view.visualRect(model.index(row, column)).center();
    }

    void press(int row, int column)
    {
        QTest::mousePress(view.viewport(), Qt::LeftButton, {}, place(row, column));
        QTest::mouseRelease(view.viewport(), Qt::LeftButton, {}, place(row, column));
    }

    QVariant mark(int row, int column = 0) const
    {
        return model.index(row, column).data(Qt::UserRole);
    }

    /// What the delegate has told since the last call, such as "0 row 1 on".
    QStringList told()
    {
        QStringList texts;
        for (const QList<QVariant>& emission : checked) {
            texts.append(QStringLiteral("%1 row %2 %3")
                             .arg(emission.at(0).value<CheckType>())
                             .arg(emission.at(1).toInt())
                             .arg(QLatin1String(emission.at(2).toBool() ? "on" : "off")));
        }
        checked.clear();
        return texts;
    }

    NotingStyle style;
    QStandardItemModel model{2, 2};
    CheckBoxDelegate delegate;
    QTableView view;
    QSignalSpy checked{&delegate, &CheckBoxDelegate::signalChecked};
};

class OpenDelegate : public CheckBoxDelegate
{
public:
    using CheckBoxDelegate::CheckBoxDelegate;
    using CheckBoxDelegate::editorEvent;
};

} // namespace

class tst_CheckBoxDelegate : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();

    void pressTurnsTheMarkOver();
    void tellsItsTable();
    void theModelHasTheMarkBeforeItIsTold();
    void theWholeCellIsTheMark();
    void anyButtonWillDo();
    void pressesElsewhereDoNothing();
    void otherEventsDoNothing_data();
    void otherEventsDoNothing();
    void aDoubleClickCountsOnce();
    void pressesOutsideTheCellDoNothing();
    void noEventReachesTheView();
    void imagesKeepTheirSize();
    void otherColumnsHaveNoMark();
    void noFocusFrame();
    void imagesAreTakenOnce();
    void withoutImagesThePressStillWorks();

private:
    QTemporaryDir m_dir;
};

void tst_CheckBoxDelegate::initTestCase()
{
    qRegisterMetaType<CheckType>("CheckType");
    QVERIFY(m_dir.isValid());
    QPixmap checked(kCheckedSize);
    checked.fill(Qt::green);
    QVERIFY(checked.save(m_dir.filePath(QStringLiteral("checked.png"))));
    QPixmap unchecked(kUncheckedSize);
    unchecked.fill(Qt::red);
    QVERIFY(unchecked.save(m_dir.filePath(QStringLiteral("unchecked.png"))));
}

void tst_CheckBoxDelegate::init()
{
    checkBoxImagePaths() = {m_dir.filePath(QStringLiteral("checked.png")),
                            m_dir.filePath(QStringLiteral("unchecked.png"))};
}

void tst_CheckBoxDelegate::pressTurnsTheMarkOver()
{
    CheckTable table;
    QVERIFY(table.checked.isValid());
    table.press(1, 0);
    QCOMPARE(table.mark(1), QVariant(true));
    QCOMPARE(table.told(), QStringList{QStringLiteral("0 row 1 on")});
    table.press(1, 0);
    QCOMPARE(table.mark(1), QVariant(false));
    QCOMPARE(table.told(), QStringList{QStringLiteral("0 row 1 off")});
    QVERIFY(!table.mark(0).isValid());
}

void tst_CheckBoxDelegate::tellsItsTable()
{
    CheckTable table(PlanListCheck);
    table.press(0, 0);
    QCOMPARE(table.told(), QStringList{QStringLiteral("1 row 0 on")});
}

void tst_CheckBoxDelegate::theModelHasTheMarkBeforeItIsTold()
{
    CheckTable table;
    QVariant seen;
    QObject::connect(&table.delegate, &CheckBoxDelegate::signalChecked, &table.view,
                     [&](CheckType, int row, bool) { seen = table.mark(row); });
    table.press(0, 0);
    QCOMPARE(seen, QVariant(true));
}

void tst_CheckBoxDelegate::theWholeCellIsTheMark()
{
    CheckTable table;
    const QRect cell = table.view.visualRect(table.model.index(0, 0));
    for (const QPoint& place : {cell.topLeft() + QPoint(1, 0), cell.bottomRight()}) {
        QTest::mouseClick(table.view.viewport(), Qt::LeftButton, {}, place);
    }
    QCOMPARE(table.told(),
             (QStringList{QStringLiteral("0 row 0 on"), QStringLiteral("0 row 0 off")}));
}

void tst_CheckBoxDelegate::anyButtonWillDo()
{
    CheckTable table;
    QTest::mouseClick(table.view.viewport(), Qt::RightButton, {}, table.place(0, 0));
    QCOMPARE(table.told(), QStringList{QStringLiteral("0 row 0 on")});
}

void tst_CheckBoxDelegate::pressesElsewhereDoNothing()
{
    CheckTable table;
    table.press(0, kOtherColumn);
    QVERIFY(!table.mark(0, kOtherColumn).isValid());
    QVERIFY(!table.mark(0).isValid());
    QCOMPARE(table.told(), QStringList());
}

void tst_CheckBoxDelegate::otherEventsDoNothing_data()
{
    QTest::addColumn<int>("type");
    QTest::newRow("release") << int(QEvent::MouseButtonRelease);
    QTest::newRow("move") << int(QEvent::MouseMove);
}

void tst_CheckBoxDelegate::otherEventsDoNothing()
{
    QFETCH(int, type);

    CheckTable table;
    QMouseEvent event(QEvent::Type(type), QPointF(table.place(0, 0)), Qt::LeftButton,
                      Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(table.view.viewport(), &event);
    QVERIFY(!table.mark(0).isValid());
    QCOMPARE(table.told(), QStringList());
}

void tst_CheckBoxDelegate::aDoubleClickCountsOnce()
{
    CheckTable table;
    table.press(0, 0);
    QTest::mouseDClick(table.view.viewport(), Qt::LeftButton, {}, table.place(0, 0));
    QCOMPARE(table.told(), QStringList{QStringLiteral("0 row 0 on")});
}

void tst_CheckBoxDelegate::pressesOutsideTheCellDoNothing()
{
    OpenDelegate delegate(ProgramListCheck);
    QStandardItemModel model(1, 1);
    QStyleOptionViewItem option;
    option.rect = QRect(10, 10, 20, 20);
    QMouseEvent event(QEvent::MouseButtonPress, QPointF(9, 15), Qt::LeftButton, Qt::LeftButton,
                      Qt::NoModifier);
    QVERIFY(delegate.editorEvent(&event, &model, option, model.index(0, 0)));
    QVERIFY(!model.index(0, 0).data(Qt::UserRole).isValid());
}

void tst_CheckBoxDelegate::noEventReachesTheView()
{
    OpenDelegate delegate(ProgramListCheck);
    QStandardItemModel model(1, 2);
    QStyleOptionViewItem option;
    option.rect = QRect(0, 0, 20, 20);
    const QPointF place(5, 5);
    for (const QEvent::Type type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease,
                                    QEvent::MouseButtonDblClick, QEvent::MouseMove}) {
        for (const int column : {0, 1}) {
            QMouseEvent event(type, place, Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
            QVERIFY(delegate.editorEvent(&event, &model, option, model.index(0, column)));
        }
    }
    QKeyEvent key(QEvent::KeyPress, Qt::Key_Space, Qt::NoModifier);
    QVERIFY(delegate.editorEvent(&key, &model, option, model.index(0, 0)));
    QCOMPARE(model.index(0, 0).data(Qt::UserRole), QVariant(true));

    // Not even an edit trigger that the view is set to gets through.
    CheckTable table;
    table.view.setEditTriggers(QAbstractItemView::AllEditTriggers);
    table.press(0, kOtherColumn);
    QTest::mouseDClick(table.view.viewport(), Qt::LeftButton, {}, table.place(0, kOtherColumn));
    QVERIFY(!table.view.viewport()->findChild<QWidget*>());
}

void tst_CheckBoxDelegate::imagesKeepTheirSize()
{
    CheckTable table;
    table.model.setData(table.model.index(1, 0), true, Qt::UserRole);
    table.style.pixmaps.clear();
    table.style.rects.clear();
    table.view.grab();
    QCOMPARE(table.style.pixmaps, (QStringList{QStringLiteral("7x20"), QStringLiteral("13x9")}));
    QCOMPARE(table.style.rects.at(1), table.view.visualRect(table.model.index(1, 0)));
}

void tst_CheckBoxDelegate::otherColumnsHaveNoMark()
{
    CheckTable table;
    table.view.hideColumn(0);
    table.model.setData(table.model.index(0, kOtherColumn), true, Qt::UserRole);
    table.style.cells = 0;
    table.style.pixmaps.clear();
    table.view.grab();
    QCOMPARE(table.style.cells, 2);
    QCOMPARE(table.style.pixmaps, QStringList());
}

void tst_CheckBoxDelegate::noFocusFrame()
{
    CheckTable table;
    table.view.activateWindow();
    table.view.setFocus();
    table.view.setCurrentIndex(table.model.index(0, 0));
    QTRY_VERIFY(table.view.hasFocus());
    QTest::keyClick(&table.view, Qt::Key_Down);
    QCOMPARE(table.view.currentIndex(), table.model.index(1, 0));

    table.style.cells = 0;
    table.style.focusedCells = 0;
    table.view.grab();
    QCOMPARE(table.style.cells, 4);
    QCOMPARE(table.style.focusedCells, 0);

    // The frame would have been there without the delegate.
    QStyledItemDelegate plain;
    table.view.setItemDelegate(&plain);
    table.view.grab();
    QCOMPARE(table.style.focusedCells, 1);
    table.view.setItemDelegate(&table.delegate);
}

void tst_CheckBoxDelegate::imagesAreTakenOnce()
{
    checkBoxImagePaths() = {};
    CheckTable table;
    init();
    table.style.pixmaps.clear();
    table.view.grab();
    QCOMPARE(table.style.pixmaps, (QStringList{QStringLiteral("0x0"), QStringLiteral("0x0")}));
}

void tst_CheckBoxDelegate::withoutImagesThePressStillWorks()
{
    checkBoxImagePaths() = {QStringLiteral("/no/such/file.png"), QString()};
    CheckTable table;
    table.press(0, 0);
    QCOMPARE(table.told(), QStringList{QStringLiteral("0 row 0 on")});
}

TREL_TEST(tst_CheckBoxDelegate, QApplication)
#include "tst_CheckBoxDelegate.moc"
