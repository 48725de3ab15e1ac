#include "look/ProgramSigns.h"

#include "LookSupport.h"
#include "look/ProgramColours.h"
#include "look/ProgramSignDelegate.h"
#include "look/Themes.h"
#include "screen/ProgramName.h"
#include "support/TestProgram.h"

#include <QApplication>
#include <QHeaderView>
#include <QStandardItemModel>
#include <QTableView>
#include <QtTest>

using namespace trel::desktop;

namespace {

constexpr int kWidth = 300;

/// Where a colour is seen in a part of a picture.
QRect placeOf(const QImage& picture, const QRect& part, const QColor& colour)
{
    QRect place;
    for (int y = part.top(); y <= part.bottom(); ++y) {
        for (int x = part.left(); x <= part.right(); ++x) {
            if (picture.pixelColor(x, y).rgb() == colour.rgb()) {
                place |= QRect(x, y, 1, 1);
            }
        }
    }
    return place;
}

/// A table in a theme, whose rows name these programs.
struct Table
{
    Table(const QString& theme, const std::vector<look::ProgramIndexes>& rows)
        : themes(*qApp)
        , signs(new look::ProgramSignDelegate(&view))
    {
        themes.select(theme);
        signs->setColours(themes.colours());
        for (const look::ProgramIndexes& programs : rows) {
            auto* const item = new QStandardItem(QStringLiteral("Name"));
            item->setData(QVariant::fromValue(programs), look::kProgramsRole);
            model.appendRow(item);
        }
        view.setModel(&model);
        view.setItemDelegate(signs);
        view.setSelectionBehavior(QAbstractItemView::SelectRows);
        view.setShowGrid(false);
        // The keyboard would be at the first row.
        view.setFocusPolicy(Qt::NoFocus);
        view.verticalHeader()->hide();
        view.horizontalHeader()->hide();
        view.setColumnWidth(0, kWidth);
        view.resize(kWidth + 20, 200);
        view.show();
        QCoreApplication::processEvents();
    }

    QRect cell(int row) const { return view.visualRect(model.index(row, 0)); }
    QImage picture() { return view.viewport()->grab().toImage(); }
    look::ProgramColours colours(int program) const
    {
        return look::programColours(program, themes.colours());
    }

    Themes themes;
    QStandardItemModel model;
    QTableView view;
    look::ProgramSignDelegate* signs;
};

} // namespace

/// The signs of programs beside their names.
class tst_ProgramSigns : public QObject
{
    Q_OBJECT

private slots:
    void standOut_data() { addThemes(); }
    void standOut();
    void oneForEachProgram();
    void standWhereTheTextBegins_data();
    void standWhereTheTextBegins();
    void severalFollowEachOther_data() { standWhereTheTextBegins_data(); }
    void severalFollowEachOther();
    void areSeenOnASelection_data() { addThemes(); }
    void areSeenOnASelection();
    void whatIsNotKnownHasNone();
    void aNameKeepsItsRoom_data() { standWhereTheTextBegins_data(); }
    void aNameKeepsItsRoom();
};

/// On every ground that rows have; on a selection their edges have the colour of the texts.
void tst_ProgramSigns::standOut()
{
    QFETCH(QString, theme);
    Themes themes(*qApp);
    themes.select(theme);
    const look::ThemeColours colours = themes.colours();
    for (int program = 0; program < 1000; ++program) {
        const QColor line = look::programColours(program, colours).line;
        for (const QColor& ground :
             {colours.window, colours.field, colours.alternateRow, colours.hoveredRow}) {
            QVERIFY2(contrast(line, ground) >= 3.0, qPrintable(QString::number(program)));
        }
    }
    QVERIFY(contrast(colours.text, colours.selectedRow) >= 3.0);
}

void tst_ProgramSigns::oneForEachProgram()
{
    QCOMPARE(look::signedPrograms({}), look::ProgramIndexes());
    QCOMPARE(look::signedPrograms({-1}), look::ProgramIndexes());
    QCOMPARE(look::signedPrograms({4, -1, 2, 4, 2}), (look::ProgramIndexes{4, 2}));
    QCOMPARE(look::signedPrograms({7, 6, 5, 4, 3, 2, 1}), (look::ProgramIndexes{7, 6, 5, 4}));
    const int one = look::programSignsSize(1).width();
    QCOMPARE(one, look::kProgramSign);
    QVERIFY(look::programSignsSize(4).width() > 4 * one);
}

void tst_ProgramSigns::standWhereTheTextBegins_data()
{
    QTest::addColumn<QString>("theme");
    QTest::addColumn<Qt::LayoutDirection>("direction");
    const QStringList themes = Themes::names();
    for (const QString& theme : themes) {
        QTest::addRow("%s, from the left", qPrintable(theme)) << theme << Qt::LeftToRight;
        QTest::addRow("%s, from the right", qPrintable(theme)) << theme << Qt::RightToLeft;
    }
}

void tst_ProgramSigns::standWhereTheTextBegins()
{
    QFETCH(QString, theme);
    QFETCH(Qt::LayoutDirection, direction);
    Table table(theme, {{3}, {4}});
    table.view.setLayoutDirection(direction);
    QCoreApplication::processEvents();
    const QImage picture = table.picture();
    for (int row = 0; row < 2; ++row) {
        const QRect cell = table.cell(row);
        const QRect ground = placeOf(picture, cell, table.colours(row + 3).ground);
        QCOMPARE(ground.size(), QSize(look::kProgramSign - 2, look::kProgramSign - 2));
        QVERIFY(qAbs(ground.center().y() - cell.center().y()) <= 1);
        const bool isAtBegin = direction == Qt::LeftToRight ? ground.right() < cell.left() + 30
                                                            : ground.left() > cell.right() - 30;
        QVERIFY2(isAtBegin, qPrintable(QString::number(ground.left())));
        QCOMPARE(picture.pixelColor(ground.left() - 1, ground.top()).rgb(),
                 table.colours(row + 3).line.rgb());
    }
}

void tst_ProgramSigns::severalFollowEachOther()
{
    QFETCH(QString, theme);
    QFETCH(Qt::LayoutDirection, direction);
    Table table(theme, {{3, 4, 3, 5}});
    table.view.setLayoutDirection(direction);
    QCoreApplication::processEvents();
    const QImage picture = table.picture();
    std::vector<int> places;
    for (const int program : {3, 4, 5}) {
        const QRect place = placeOf(picture, table.cell(0), table.colours(program).ground);
        QCOMPARE(place.width(), look::kProgramSign - 2);
        places.push_back(direction == Qt::LeftToRight ? place.left() : -place.left());
    }
    QVERIFY(places[0] < places[1] && places[1] < places[2]);
}

void tst_ProgramSigns::areSeenOnASelection()
{
    QFETCH(QString, theme);
    Table table(theme, {{3}});
    table.view.selectRow(0);
    QCoreApplication::processEvents();
    const QImage picture = table.picture();
    const QRect ground = placeOf(picture, table.cell(0), table.colours(3).ground);
    QCOMPARE(ground.size(), QSize(look::kProgramSign - 2, look::kProgramSign - 2));
    QCOMPARE(picture.pixelColor(ground.left() - 1, ground.top()).rgb(),
             table.themes.colours().text.rgb());
}

/// Its cell looks like one that names no program, and its text begins where all others do.
void tst_ProgramSigns::whatIsNotKnownHasNone()
{
    Table table(QStringLiteral("light"), {{}, {-1}, {5}});
    const QImage picture = table.picture();
    const QImage plain = picture.copy(table.cell(0));
    QCOMPARE(picture.copy(table.cell(1)), plain);
    QVERIFY(picture.copy(table.cell(2)) != plain);
}

void tst_ProgramSigns::aNameKeepsItsRoom()
{
    QFETCH(QString, theme);
    QFETCH(Qt::LayoutDirection, direction);
    Themes themes(*qApp);
    themes.select(theme);
    ProgramName name(nullptr);
    name.setColours(themes.colours());
    name.setText(QStringLiteral("A program of some length"));
    name.setLayoutDirection(direction);
    name.resize(name.sizeHint().width() + 4, name.sizeHint().height());
    name.show();
    QCoreApplication::processEvents();
    QVERIFY(name.sign().isEmpty());
    QVERIFY(name.isWhole());
    name.setProgram(7);
    // The sign takes its room from the text, on the side where that begins.
    QVERIFY(!name.isWhole());
    QVERIFY(!name.contentsRect().intersects(name.sign()));
    QVERIFY(name.rect().contains(name.sign()));
    QCOMPARE(name.sign().left() == 0, direction == Qt::LeftToRight);
    const QImage picture = name.grab().toImage();
    QCOMPARE(picture.pixelColor(name.sign().center()).rgb(),
             look::programColours(7, themes.colours()).ground.rgb());
    name.setProgram(-1);
    QVERIFY(name.sign().isEmpty());
    QVERIFY(name.isWhole());
}

TREL_TEST(tst_ProgramSigns, QApplication)
#include "tst_ProgramSigns.moc"
