#include "ShownEditor.h"

#include "LeftCheckNumDelegate.h"
#include "TitleBar.h"
#include "support/TestProgram.h"

#include <QLabel>
#include <QPushButton>
#include <QStandardItemModel>
#include <QTableView>
#include <QtTest>

using namespace trel::mediadispatch;

namespace {

/// The names of the parts of a bar from the left.
QStringList fromTheLeft(const QWidget& bar)
{
    QMap<int, QString> names;
    for (const QObject* child : bar.children()) {
        const auto* const part = qobject_cast<const QWidget*>(child);
        if (part && part->isVisible()) {
            names[part->x()] = part->objectName();
        }
    }
    return names.values();
}

QPushButton& barOf(const PlanTaskWidget& card)
{
    return *card.findChild<QPushButton*>(QStringLiteral("title"));
}

/// Where the darkest point of a line lies.
int inkAt(const QImage& picture, int line)
{
    int darkest = 0;
    for (int x = 1; x < picture.width(); ++x) {
        if (qGray(picture.pixel(x, line)) < qGray(picture.pixel(darkest, line))) {
            darkest = x;
        }
    }
    return darkest;
}

const QStringList kBar = {QStringLiteral("arrow"), QStringLiteral("pbtCreatCopy"),
                          QStringLiteral("pushButtonDelete")};
const QStringList kTurnedBar = {kBar.at(2), kBar.at(1), kBar.at(0)};

} // namespace

/// Where one reads from the right, the bars do so as well.
class tst_BarsFromTheRight : public QObject
{
    Q_OBJECT

private slots:
    void cleanup();
    void barsOfCardsFollow_data();
    void barsOfCardsFollow();
    void aCardFollowsItsWindow();
    void theArrowOfAFoldedCardPointsToTheLeft();
    void rowsBeginAtTheRight();
    void theTitleBarIsMirrored();
    void numbersStandInTheMiddleOfTheirCells();
};

void tst_BarsFromTheRight::cleanup()
{
    QGuiApplication::setLayoutDirection(Qt::LeftToRight);
}

void tst_BarsFromTheRight::barsOfCardsFollow_data()
{
    QTest::addColumn<bool>("isBefore");
    QTest::newRow("before") << true;
    QTest::newRow("while they are open") << false;
}

void tst_BarsFromTheRight::barsOfCardsFollow()
{
    QFETCH(const bool, isBefore);
    if (isBefore) {
        QGuiApplication::setLayoutDirection(Qt::RightToLeft);
    }
    ShownEditor editor;
    if (!isBefore) {
        QCOMPARE(fromTheLeft(barOf(editor.card(0))), kBar);
        QGuiApplication::setLayoutDirection(Qt::RightToLeft);
    }
    QCoreApplication::processEvents();
    for (const int card : {0, 1}) {
        QCOMPARE(fromTheLeft(barOf(editor.card(card))), kTurnedBar);
    }
    QGuiApplication::setLayoutDirection(Qt::LeftToRight);
    QCoreApplication::processEvents();
    for (const int card : {0, 1}) {
        QCOMPARE(fromTheLeft(barOf(editor.card(card))), kBar);
        QCOMPARE(barOf(editor.card(card)).layoutDirection(), Qt::LeftToRight);
    }
}

void tst_BarsFromTheRight::aCardFollowsItsWindow()
{
    ShownEditor editor;
    editor.dialog().setLayoutDirection(Qt::RightToLeft);
    QCoreApplication::processEvents();
    QCOMPARE(fromTheLeft(barOf(editor.card(0))), kTurnedBar);
    editor.panel().planList()->refreshPlanList();
    QCoreApplication::processEvents();
    QCOMPARE(fromTheLeft(barOf(editor.card(0))), kTurnedBar);
}

void tst_BarsFromTheRight::theArrowOfAFoldedCardPointsToTheLeft()
{
    ShownEditor editor;
    auto* const arrow = editor.card(1).findChild<QLabel*>(QStringLiteral("arrow"));
    const QImage right = drawn(*arrow);
    QGuiApplication::setLayoutDirection(Qt::RightToLeft);
    QCoreApplication::processEvents();
    const QImage left = drawn(*arrow);
    // The tip stands in the middle of the height, the ends above and below.
    QVERIFY(inkAt(right, right.height() / 2) > inkAt(right, right.height() / 2 - 3));
    QVERIFY(inkAt(left, left.height() / 2) < inkAt(left, left.height() / 2 - 3));
    QCOMPARE(arrow->property("labelImage").toString(), QStringLiteral("right"));
}

void tst_BarsFromTheRight::rowsBeginAtTheRight()
{
    QGuiApplication::setLayoutDirection(Qt::RightToLeft);
    ShownEditor editor;
    QCoreApplication::processEvents();
    const auto* const table = editor.card(0).findChild<QTableView*>();
    const int last = table->model()->columnCount() - 1;
    const QRect title = table->visualRect(table->model()->index(0, 0));
    const QRect remove = table->visualRect(table->model()->index(0, last));
    QVERIFY(title.left() > remove.right());
    // The buttons at the end of the row are in sight as a whole.
    QVERIFY(table->viewport()->rect().contains(remove));
}

void tst_BarsFromTheRight::theTitleBarIsMirrored()
{
    QWidget window;
    window.setLayoutDirection(Qt::RightToLeft);
    window.resize(600, 100);
    TitleBar bar(&window);
    bar.setTitleContent(QStringLiteral("Prompt"));
    bar.setButtonType(1);
    bar.resize(600, bar.height());
    window.show();
    window.grab();
    const auto x = [&bar](const char* name) {
        return bar.findChild<QWidget*>(QString::fromLatin1(name))->x();
    };
    QVERIFY(x("ButtonMin") < x("TitleLabel"));
    QVERIFY(x("ButtonMax") < x("ButtonMin"));
    QVERIFY(x("TitleLabel") < x("TitleIconLabel"));
}

void tst_BarsFromTheRight::numbersStandInTheMiddleOfTheirCells()
{
    QStandardItemModel model(1, 2);
    model.setData(model.index(0, 1), QStringLiteral("08"));
    QTableView table;
    table.setModel(&model);
    LeftCheckNumDelegate delegate;
    table.setItemDelegate(&delegate);
    table.show();
    const auto number = [&] {
        return table.viewport()->grab(table.visualRect(model.index(0, 1))).toImage();
    };
    const QImage fromLeft = number();
    table.setLayoutDirection(Qt::RightToLeft);
    QCoreApplication::processEvents();
    const QImage fromRight = number();
    // The line of the grid stands at the other side.
    const QRect inner = fromLeft.rect().adjusted(2, 0, -2, 0);
    QCOMPARE(fromRight.size(), fromLeft.size());
    const auto ink = [&inner](const QImage& image) {
        QRect found;
        for (int x = inner.left(); x <= inner.right(); ++x) {
            for (int y = 1; y < inner.height() - 2; ++y) {
                if (qGray(image.pixel(x, y)) < 200) {
                    found |= QRect(x, y, 1, 1);
                }
            }
        }
        return found;
    };
    const QRect seen = ink(fromRight);
    QVERIFY(!seen.isEmpty());
    QVERIFY2(qAbs(seen.center().x() - fromRight.rect().center().x()) <= 2,
             qPrintable(QString::number(seen.center().x())));
    QCOMPARE(seen.size(), ink(fromLeft).size());
}

TREL_TEST(tst_BarsFromTheRight, QApplication)
#include "tst_BarsFromTheRight.moc"
