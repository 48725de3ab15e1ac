#include "look/FrameDistance.h"

#include "look/Themes.h"
#include "support/TestProgram.h"

#include <QApplication>
#include <QComboBox>
#include <QDockWidget>
#include <QHeaderView>
#include <QListWidget>
#include <QMainWindow>
#include <QTableWidget>
#include <QtTest>

#include <memory>

using namespace trel::desktop;

namespace {

/// A letter leaves a little room before it.
constexpr int kBearing = 3;

/// How far from the edge where one begins to read something is seen in a part of a picture that has
/// one ground. As wide as the part where nothing is.
int distanceOf(const QImage& picture, const QRect& part, Qt::LayoutDirection direction)
{
    const bool isFromLeft = direction == Qt::LeftToRight;
    const QRgb ground =
        picture.pixel(isFromLeft ? part.left() + 1 : part.right() - 1, part.center().y());
    for (int distance = 0; distance < part.width(); ++distance) {
        const int x = isFromLeft ? part.left() + distance : part.right() - distance;
        for (int y = part.top(); y <= part.bottom(); ++y) {
            if (picture.pixel(x, y) != ground) {
                return distance;
            }
        }
    }
    return part.width();
}

/// Without the lines at its edges.
QRect insideOf(const QRect& cell)
{
    return cell.adjusted(0, 3, 0, -3);
}

bool isKept(int distance)
{
    return distance >= look::kFrameDistance && distance <= look::kFrameDistance + kBearing;
}

/// That is written in a direction. Where one reads from the right, titles stand where their own
/// letters begin.
QString title(Qt::LayoutDirection direction)
{
    return QString(3, direction == Qt::LeftToRight ? QChar(u'H') : QChar(0x05d4));
}

QTableWidget* makeTable(Qt::LayoutDirection direction)
{
    auto* const table = new QTableWidget(2, 2);
    // The keyboard would be at the first cell, with a frame around it.
    table->setFocusPolicy(Qt::NoFocus);
    for (int row = 0; row < 2; ++row) {
        for (int column = 0; column < 2; ++column) {
            table->setItem(row, column, new QTableWidgetItem(QStringLiteral("HHH")));
        }
    }
    table->setHorizontalHeaderLabels({title(direction), title(direction)});
    table->horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    table->horizontalHeader()->setHighlightSections(false);
    table->verticalHeader()->hide();
    table->setShowGrid(false);
    table->setLayoutDirection(direction);
    table->resize(260, 120);
    table->show();
    QCoreApplication::processEvents();
    return table;
}

} // namespace

/// Texts do not stick to the frames of what they stand in.
class tst_FrameDistance : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cellsKeepTheirs_data();
    void cellsKeepTheirs();
    void titlesOfColumnsKeepTheirs_data() { cellsKeepTheirs_data(); }
    void titlesOfColumnsKeepTheirs();
    void theColumnThatComesFirstHasIt();
    void rowsOfListsKeepTheirs_data() { cellsKeepTheirs_data(); }
    void rowsOfListsKeepTheirs();
    void theGroundGoesUpToTheFrame_data() { cellsKeepTheirs_data(); }
    void theGroundGoesUpToTheFrame();
    void textsKeepTheirRoom();
    void wrappedTextsAreWhole();
    void titlesOfPanelsKeepTheirs_data() { cellsKeepTheirs_data(); }
    void titlesOfPanelsKeepTheirs();
    void openListsStayAsTheyAre();

private:
    std::unique_ptr<Themes> m_themes;
};

void tst_FrameDistance::init()
{
    m_themes = std::make_unique<Themes>(*qApp);
}

void tst_FrameDistance::cellsKeepTheirs_data()
{
    QTest::addColumn<QString>("theme");
    QTest::addColumn<Qt::LayoutDirection>("direction");
    const QStringList themes = Themes::names();
    for (const QString& theme : themes) {
        QTest::addRow("%s, from the left", qPrintable(theme)) << theme << Qt::LeftToRight;
        QTest::addRow("%s, from the right", qPrintable(theme)) << theme << Qt::RightToLeft;
    }
}

void tst_FrameDistance::cellsKeepTheirs()
{
    QFETCH(QString, theme);
    QFETCH(Qt::LayoutDirection, direction);
    m_themes->select(theme);
    const std::unique_ptr<QTableWidget> table(makeTable(direction));
    const QImage picture = table->viewport()->grab().toImage();
    for (int row = 0; row < 2; ++row) {
        const int first =
            distanceOf(picture, insideOf(table->visualItemRect(table->item(row, 0))), direction);
        QVERIFY2(isKept(first), qPrintable(QString::number(first)));
        // The others stand beside a column, and not at the frame.
        const int second =
            distanceOf(picture, insideOf(table->visualItemRect(table->item(row, 1))), direction);
        QVERIFY2(second < look::kFrameDistance, qPrintable(QString::number(second)));
    }
}

void tst_FrameDistance::titlesOfColumnsKeepTheirs()
{
    QFETCH(QString, theme);
    QFETCH(Qt::LayoutDirection, direction);
    m_themes->select(theme);
    const std::unique_ptr<QTableWidget> table(makeTable(direction));
    QHeaderView& titles = *table->horizontalHeader();
    const QImage picture = titles.viewport()->grab().toImage();
    const QRect first(titles.sectionViewportPosition(0), 0, titles.sectionSize(0),
                      titles.viewport()->height());
    const int distance = distanceOf(picture, insideOf(first), direction);
    QVERIFY2(isKept(distance), qPrintable(QString::number(distance)));
}

/// Whichever it is.
void tst_FrameDistance::theColumnThatComesFirstHasIt()
{
    const std::unique_ptr<QTableWidget> table(makeTable(Qt::LeftToRight));
    table->horizontalHeader()->moveSection(1, 0);
    QCoreApplication::processEvents();
    const QImage picture = table->viewport()->grab().toImage();
    const auto distance = [&](int column) {
        return distanceOf(picture, insideOf(table->visualItemRect(table->item(0, column))),
                          Qt::LeftToRight);
    };
    QVERIFY2(isKept(distance(1)), qPrintable(QString::number(distance(1))));
    QVERIFY2(distance(0) < look::kFrameDistance, qPrintable(QString::number(distance(0))));
}

void tst_FrameDistance::rowsOfListsKeepTheirs()
{
    QFETCH(QString, theme);
    QFETCH(Qt::LayoutDirection, direction);
    m_themes->select(theme);
    QListWidget list;
    list.setFocusPolicy(Qt::NoFocus);
    list.addItems({QStringLiteral("HHH"), QStringLiteral("HHHHH")});
    list.setLayoutDirection(direction);
    list.resize(200, 100);
    list.show();
    QCoreApplication::processEvents();
    const QImage picture = list.viewport()->grab().toImage();
    for (int row = 0; row < 2; ++row) {
        const int distance =
            distanceOf(picture, insideOf(list.visualItemRect(list.item(row))), direction);
        QVERIFY2(isKept(distance), qPrintable(QString::number(distance)));
    }
}

/// That of what is selected, too.
void tst_FrameDistance::theGroundGoesUpToTheFrame()
{
    QFETCH(QString, theme);
    QFETCH(Qt::LayoutDirection, direction);
    m_themes->select(theme);
    QListWidget list;
    list.setFocusPolicy(Qt::NoFocus);
    list.setLayoutDirection(direction);
    list.addItems({QStringLiteral("HHH"), QStringLiteral("HHHHH")});
    list.resize(200, 100);
    list.show();
    list.item(1)->setSelected(true);
    QCoreApplication::processEvents();
    const QImage picture = list.viewport()->grab().toImage();
    const QRect row = list.visualItemRect(list.item(1));
    for (const int x : {row.left() + 2, row.right() - 2}) {
        QCOMPARE(picture.pixelColor(x, row.center().y()).rgb(),
                 m_themes->colours().selectedRow.rgb());
    }
}

/// Columns that are as wide as their contents have the distance besides.
void tst_FrameDistance::textsKeepTheirRoom()
{
    const std::unique_ptr<QTableWidget> table(makeTable(Qt::LeftToRight));
    const auto isMore = [](int more) { return more > 0 && more < look::kFrameDistance; };
    const QString longer(30, QChar(u'H'));
    table->setHorizontalHeaderLabels({longer, longer});
    const QHeaderView& titles = *table->horizontalHeader();
    QVERIFY(isMore(titles.sectionSizeHint(0) - titles.sectionSizeHint(1)));
    for (int column = 0; column < 2; ++column) {
        table->item(0, column)->setText(longer + longer);
    }
    table->resizeColumnsToContents();
    QVERIFY(isMore(table->columnWidth(0) - table->columnWidth(1)));
}

void tst_FrameDistance::wrappedTextsAreWhole()
{
    const QString text = QStringLiteral("One of many sentences that take some lines. ").repeated(4);
    QListWidget list;
    list.setWordWrap(true);
    list.setResizeMode(QListView::Adjust);
    list.setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    list.addItem(text);
    for (int width = 180; width < 260; width += 7) {
        list.resize(width, 300);
        list.show();
        QCoreApplication::processEvents();
        const QRect row = list.visualItemRect(list.item(0));
        const QRect room(0, 0, row.width() - look::kFrameDistance - 3, 1000);
        const int needed =
            list.fontMetrics().boundingRect(room, Qt::TextWordWrap, text.trimmed()).height();
        QVERIFY2(row.height() >= needed,
                 qPrintable(QStringLiteral("%1 of %2").arg(row.height()).arg(needed)));
    }
}

void tst_FrameDistance::titlesOfPanelsKeepTheirs()
{
    QFETCH(QString, theme);
    QFETCH(Qt::LayoutDirection, direction);
    m_themes->select(theme);
    QMainWindow window;
    window.setLayoutDirection(direction);
    auto* const panel = new QDockWidget(title(direction), &window);
    panel->setFeatures(QDockWidget::NoDockWidgetFeatures);
    panel->setWidget(new QWidget(panel));
    window.addDockWidget(Qt::LeftDockWidgetArea, panel);
    window.resize(300, 200);
    window.show();
    QCoreApplication::processEvents();
    const QImage picture = panel->grab().toImage();
    const QRect bar(0, 0, panel->width(), panel->widget()->y());
    const int distance = distanceOf(picture, insideOf(bar), direction);
    QVERIFY2(isKept(distance), qPrintable(QString::number(distance)));
}

void tst_FrameDistance::openListsStayAsTheyAre()
{
    QComboBox box;
    box.addItems({QStringLiteral("HHH"), QStringLiteral("HHHHH")});
    box.show();
    box.showPopup();
    QCoreApplication::processEvents();
    auto* const list = qobject_cast<QListView*>(box.view());
    QVERIFY(list != nullptr && list->isVisible());
    const QImage picture = list->viewport()->grab().toImage();
    const QRect row = list->visualRect(list->model()->index(1, 0));
    QVERIFY(distanceOf(picture, insideOf(row), Qt::LeftToRight) < look::kFrameDistance);
    box.hidePopup();
}

TREL_TEST(tst_FrameDistance, QApplication)
#include "tst_FrameDistance.moc"
