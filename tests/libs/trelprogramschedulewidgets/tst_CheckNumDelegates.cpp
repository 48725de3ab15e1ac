#include "LeftCheckNumDelegate.h"
#include "RightCheckNumDelegate.h"
#include "support/TestProgram.h"

#include <QApplication>
#include <QHeaderView>
#include <QPainter>
#include <QStandardItemModel>
#include <QTableView>
#include <QtTest>

#include <memory>

using namespace trel::mediadispatch;

namespace {

constexpr int kNumberColumn = 1;
const QRect kCell(10, 10, 40, 20);

std::unique_ptr<QStyledItemDelegate> makeDelegate(bool isLeft)
{
    if (isLeft) {
        return std::make_unique<LeftCheckNumDelegate>();
    }
    return std::make_unique<RightCheckNumDelegate>();
}

/// Paints one cell over a ground of blue, with yellow as the colour to erase with.
QImage painted(const QStyledItemDelegate& delegate, const QModelIndex& index, bool isSelected)
{
    QImage image(60, 40, QImage::Format_RGB32);
    image.fill(Qt::blue);
    QPainter painter(&image);
    painter.setBackground(Qt::yellow);
    painter.setPen(Qt::cyan);
    QStyleOptionViewItem option;
    option.rect = kCell;
    option.state = QStyle::State_Enabled | QStyle::State_Active;
    option.state.setFlag(QStyle::State_Selected, isSelected);
    option.showDecorationSelected = true;
    option.palette.setColor(QPalette::Highlight, Qt::red);
    delegate.paint(&painter, option, index);
    [&painter] { QCOMPARE(painter.pen().color(), QColor(Qt::cyan)); }();
    return image;
}

/// The colours of a row of pixels within the cell, each once, in order of appearance.
QStringList colorsOfLine(const QImage& image, int y)
{
    QStringList colors;
    for (int x = kCell.left(); x <= kCell.right(); ++x) {
        const QString name = image.pixelColor(x, y).name();
        if (!colors.contains(name)) {
            colors.append(name);
        }
    }
    return colors;
}

int darkest(const QImage& image)
{
    int least = 255;
    for (int y = kCell.top(); y < kCell.bottom(); ++y) {
        for (int x = kCell.left(); x <= kCell.right(); ++x) {
            const QColor color = image.pixelColor(x, y);
            least = std::min(least, color.red());
        }
    }
    return least;
}

} // namespace

class tst_CheckNumDelegates : public QObject
{
    Q_OBJECT

private slots:
    void wipesAllButTheLowestLine_data() { sides(); }
    void wipesAllButTheLowestLine();
    void writesInGrey_data() { sides(); }
    void writesInGrey();
    void centresTheNumber_data() { sides(); }
    void centresTheNumber();
    void leavesOtherColumnsAlone_data() { sides(); }
    void leavesOtherColumnsAlone();
    void makesNoEditor_data() { sides(); }
    void makesNoEditor();

private:
    static void sides()
    {
        QTest::addColumn<bool>("isLeft");
        QTest::newRow("left") << true;
        QTest::newRow("right") << false;
    }
};

void tst_CheckNumDelegates::wipesAllButTheLowestLine()
{
    QFETCH(bool, isLeft);
    QStandardItemModel model(1, 3);
    const auto delegate = makeDelegate(isLeft);
    const QImage image = painted(*delegate, model.index(0, kNumberColumn), true);
    QCOMPARE(colorsOfLine(image, kCell.top()), QStringList{QStringLiteral("#ffff00")});
    QCOMPARE(colorsOfLine(image, kCell.bottom() - 1), QStringList{QStringLiteral("#ffff00")});
    QCOMPARE(colorsOfLine(image, kCell.bottom()), QStringList{QStringLiteral("#ff0000")});
}

void tst_CheckNumDelegates::writesInGrey()
{
    QFETCH(bool, isLeft);
    QStandardItemModel model(1, 3);
    model.setData(model.index(0, kNumberColumn), QStringLiteral("888"));
    const auto delegate = makeDelegate(isLeft);
    // The ground is full of red, so that the letters alone bring less of it.
    const QImage image = painted(*delegate, model.index(0, kNumberColumn), false);
    const int shade = darkest(image);
    QVERIFY2(shade >= 0x88 && shade < 0xc0, qPrintable(QString::number(shade)));
}

void tst_CheckNumDelegates::centresTheNumber()
{
    QFETCH(bool, isLeft);
    QStandardItemModel model(1, 3);
    model.setData(model.index(0, kNumberColumn), QStringLiteral("8"));
    const auto delegate = makeDelegate(isLeft);
    const QImage image = painted(*delegate, model.index(0, kNumberColumn), false);
    QRect written;
    for (int y = kCell.top(); y < kCell.bottom(); ++y) {
        for (int x = kCell.left(); x <= kCell.right(); ++x) {
            if (image.pixelColor(x, y) != QColor(Qt::yellow)) {
                written |= QRect(x, y, 1, 1);
            }
        }
    }
    QVERIFY(!written.isNull());
    QVERIFY(qAbs(written.center().x() - kCell.center().x()) <= 2);
    QVERIFY(qAbs(written.center().y() - kCell.center().y()) <= 4);
}

void tst_CheckNumDelegates::leavesOtherColumnsAlone()
{
    QFETCH(bool, isLeft);
    QStandardItemModel model(1, 3);
    model.setData(model.index(0, 2), QStringLiteral("name"));
    const auto delegate = makeDelegate(isLeft);
    QCOMPARE(painted(*delegate, model.index(0, 2), true),
             painted(QStyledItemDelegate(), model.index(0, 2), true));
}

void tst_CheckNumDelegates::makesNoEditor()
{
    QFETCH(bool, isLeft);
    QStandardItemModel model(1, 3);
    const auto delegate = makeDelegate(isLeft);
    QTableView view;
    view.setModel(&model);
    view.setItemDelegate(delegate.get());
    view.setEditTriggers(QAbstractItemView::AllEditTriggers);
    view.show();
    view.openPersistentEditor(model.index(0, kNumberColumn));
    QVERIFY(!view.indexWidget(model.index(0, kNumberColumn)));
    QVERIFY(!delegate->createEditor(&view, QStyleOptionViewItem(), model.index(0, 0)));
}

TREL_TEST(tst_CheckNumDelegates, QApplication)
#include "tst_CheckNumDelegates.moc"
