#include "catalogue/CataloguePanel.h"

#include "HostFixture.h"
#include "catalogue/ProgramDelegate.h"
#include "catalogue/ProgramTableModel.h"
#include "look/ProgramColours.h"
#include "support/TestProgram.h"
#include "trelprogramschedule/catalogue/ProgramImporter.h"

#include <QCheckBox>
#include <QComboBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>

using namespace trel::desktop;
using namespace trel::mediadispatch;

/// The catalogue as an operator works with it: searched, filtered and sorted.
class tst_CataloguePanel : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void typingFinds();
    void nothingFoundIsSaid();
    void filtersTogether();
    void unusedFollowsEdits();
    void missingFollowsFiles();
    void aClickOnAHeaderSorts();
    void theSelectionStaysWithThePrograms();
    void keysLeadFromTheSearchToTheTable();
    void programsHaveTheColoursOfTheWeek();
    void theStateComesBack();
    void aStateOfOthersChangesNothing();
    void numbersAreWrittenAsTheLanguageDoes();
    void manyProgramsComeFromAnotherThread();

private:
    template <typename Widget>
    Widget* find(const char* name) const
    {
        return m_fixture->window.findChild<Widget*>(QLatin1String(name));
    }
    CataloguePanel& panel() const { return *find<CataloguePanel>("cataloguePanel"); }
    QTableView& table() const { return *find<QTableView>("programTable"); }
    QLineEdit& search() const { return *find<QLineEdit>("programSearch"); }
    QHeaderView& header() const { return *table().horizontalHeader(); }

    void type(const QString& text) const
    {
        panel().focusSearch();
        QTest::keyClicks(&search(), text);
    }
    void clickHeader(int column) const
    {
        const int x = header().sectionViewportPosition(column) + header().sectionSize(column) / 2;
        QTest::mouseClick(header().viewport(), Qt::LeftButton, {},
                          {x, header().viewport()->height() / 2});
    }
    /// What stands in the rows, by its indexes.
    std::vector<int> shown() const
    {
        std::vector<int> indexes;
        for (int row = 0; row < table().model()->rowCount(); ++row) {
            indexes.push_back(
                table().model()->index(row, 0).data(ProgramTableModel::ProgramIndexRole).toInt());
        }
        return indexes;
    }

    std::unique_ptr<HostFixture> m_fixture;
};

void tst_CataloguePanel::init()
{
    m_fixture = std::make_unique<HostFixture>();
    QCOMPARE(m_fixture->window.openDatabase(m_fixture->database, QStringLiteral(DEMONSTRATION)),
             QString());
    m_fixture->window.show();
    QApplication::setActiveWindow(&m_fixture->window);
    QCOMPARE(shown(), (std::vector<int>{1, 2, 3, 4, 5, 6, 7, 8}));
}

void tst_CataloguePanel::cleanup()
{
    m_fixture.reset();
}

void tst_CataloguePanel::typingFinds()
{
    type(QStringLiteral("ENING"));
    QCOMPARE(shown(), (std::vector<int>{4, 6}));
    QCOMPARE(find<QLabel>("programCount")->text(), QStringLiteral("2 of 8"));
    type(QStringLiteral(" m"));
    QCOMPARE(find<QLineEdit>("programSearch")->text(), QStringLiteral(" m"));
    QTest::keyClick(&search(), Qt::Key_Escape);
    QCOMPARE(search().text(), QString());
    QCOMPARE(shown().size(), std::size_t(8));
    QCOMPARE(find<QLabel>("programCount")->text(), QStringLiteral("8 programs"));
}

void tst_CataloguePanel::nothingFoundIsSaid()
{
    const QImage full = table().viewport()->grab().toImage();
    type(QStringLiteral("no such thing"));
    QVERIFY(shown().empty());
    QVERIFY(table().isVisible());
    QVERIFY(find<QLabel>("programHint")->isHidden());
    QVERIFY(table().viewport()->grab().toImage() != full);
}

void tst_CataloguePanel::filtersTogether()
{
    auto* kinds = find<QComboBox>("programKinds");
    kinds->setCurrentIndex(kinds->findText(QStringLiteral("Image")));
    QCOMPARE(shown(), (std::vector<int>{3, 5}));
    type(QStringLiteral("lunch"));
    QCOMPARE(shown(), (std::vector<int>{5}));
    kinds->setCurrentIndex(0);
    QCOMPARE(shown(), (std::vector<int>{5}));
}

void tst_CataloguePanel::unusedFollowsEdits()
{
    auto* unused = find<QCheckBox>("programUnused");
    PlayTask none;
    QVERIFY(m_fixture->host.replaceSchedule({}));
    QCoreApplication::processEvents();
    unused->click();
    QCOMPARE(shown().size(), std::size_t(8));
    PlayPlan plan;
    plan.programs.resize(1);
    plan.programs[0].progIndex = 3;
    PlayTask task;
    task.id = 1;
    task.plans = {plan};
    m_fixture->manager.addTask(task);
    QTRY_COMPARE(shown(), (std::vector<int>{1, 2, 4, 5, 6, 7, 8}));
    unused->click();
    QCOMPARE(shown().size(), std::size_t(8));
}

void tst_CataloguePanel::missingFollowsFiles()
{
    find<QCheckBox>("programMissing")->click();
    QVERIFY(shown().empty());
    const QString media = m_fixture->copyMedia(QStringLiteral("media"));
    QVERIFY(m_fixture->host
                .addPrograms({{QStringLiteral("Own"), media + QStringLiteral("/Opening.mp4"),
                               12000.0, ProgramKind::Video}})
                .store);
    QTRY_COMPARE(m_fixture->manager.getPrograms().size(), std::size_t(9));
    QVERIFY(shown().empty());
    QVERIFY(QFile::remove(media + QStringLiteral("/Opening.mp4")));
    QTRY_COMPARE(shown(), (std::vector<int>{9}));
}

void tst_CataloguePanel::aClickOnAHeaderSorts()
{
    clickHeader(ProgramTableModel::NameColumn);
    QCOMPARE(shown(), (std::vector<int>{1, 2, 3, 4, 5, 6, 7, 8}));
    clickHeader(ProgramTableModel::NameColumn);
    QCOMPARE(shown(), (std::vector<int>{8, 7, 6, 5, 4, 3, 2, 1}));
    clickHeader(ProgramTableModel::KindColumn);
    // Audio, images, films; the names from the end among them, as was asked for before.
    QCOMPARE(shown(), (std::vector<int>{4, 5, 3, 8, 7, 6, 2, 1}));
    QVERIFY(header().isSortIndicatorShown());
    QCOMPARE(header().sortIndicatorSection(), static_cast<int>(ProgramTableModel::KindColumn));
}

void tst_CataloguePanel::theSelectionStaysWithThePrograms()
{
    table().selectRow(6);
    clickHeader(ProgramTableModel::LengthColumn);
    const auto selected = [this] {
        QStringList names;
        const QModelIndexList rows = table().selectionModel()->selectedRows();
        for (const QModelIndex& row : rows) {
            names.append(row.data().toString());
        }
        return names;
    };
    QCOMPARE(selected(), QStringList{QStringLiteral("Weather")});
    QCOMPARE(table().currentIndex().data().toString(), QStringLiteral("Weather"));
    QVERIFY(m_fixture->host.removeProgram(1));
    QCOMPARE(selected(), QStringList{QStringLiteral("Weather")});
    // What cannot be seen is not removed by a key either.
    type(QStringLiteral("opening"));
    QCOMPARE(selected(), QStringList());
}

void tst_CataloguePanel::keysLeadFromTheSearchToTheTable()
{
    type(QStringLiteral("we"));
    QVERIFY(search().hasFocus());
    // A thread that is still busy with an order before may have this one to do as well.
    QTRY_COMPARE(table().model()->index(0, 0).data().toString(), QStringLiteral("Weather"));
    QTest::keyClick(&search(), Qt::Key_Down);
    QVERIFY(table().hasFocus());
    QCOMPARE(table().currentIndex().data().toString(), QStringLiteral("Weather"));
    panel().focusSearch();
    QVERIFY(search().hasFocus());
    QCOMPARE(search().selectedText(), QStringLiteral("we"));
}

void tst_CataloguePanel::programsHaveTheColoursOfTheWeek()
{
    const QStringList names = Themes::names();
    for (const QString& name : names) {
        m_fixture->themes.select(name);
        table().selectRow(1);
        const QImage seen = table().viewport()->grab().toImage();
        const qreal dots = seen.devicePixelRatio();
        for (int row = 0; row < table().model()->rowCount(); ++row) {
            QStyleOptionViewItem option;
            option.rect = table().visualRect(table().model()->index(row, 0));
            option.direction = table().layoutDirection();
            if (!table().viewport()->rect().contains(option.rect.center())) {
                break;
            }
            const QPoint place = ProgramDelegate::edge(option).center() * dots;
            const int program = shown()[static_cast<std::size_t>(row)];
            QCOMPARE(seen.pixelColor(place).rgb(),
                     look::programColours(program, m_fixture->themes.colours()).line.rgb());
        }
    }
}

void tst_CataloguePanel::theStateComesBack()
{
    const QByteArray before = panel().saveState();
    clickHeader(ProgramTableModel::NameColumn);
    clickHeader(ProgramTableModel::NameColumn);
    header().resizeSection(ProgramTableModel::FolderColumn, 77);
    find<QComboBox>("programKinds")->setCurrentIndex(1);
    type(QStringLiteral("e"));
    const QByteArray after = panel().saveState();
    search().clear();
    const std::vector<int> found = shown();

    panel().restoreState(before);
    QCOMPARE(shown(), (std::vector<int>{1, 2, 3, 4, 5, 6, 7, 8}));
    QVERIFY(header().sectionSize(ProgramTableModel::FolderColumn) != 77);
    panel().restoreState(after);
    QCOMPARE(shown(), found);
    QCOMPARE(shown(), (std::vector<int>{8, 7, 6, 2, 1}));
    QCOMPARE(header().sectionSize(ProgramTableModel::FolderColumn), 77);
    QCOMPARE(search().text(), QString());
}

void tst_CataloguePanel::aStateOfOthersChangesNothing()
{
    clickHeader(ProgramTableModel::NameColumn);
    const QByteArray before = panel().saveState();
    for (const QByteArray& state :
         {QByteArray(), QByteArray("x"), QByteArray(200, '\0'), before.left(before.size() / 2),
          m_fixture->window.saveState()}) {
        panel().restoreState(state);
        QCOMPARE(panel().saveState(), before);
    }
}

void tst_CataloguePanel::numbersAreWrittenAsTheLanguageDoes()
{
    m_fixture->languages.select(QStringLiteral("de_DE"));
    QTRY_COMPARE(find<QLabel>("programCount")->text(), QStringLiteral("8 Programme"));
    QTRY_COMPARE(search().accessibleName(), QStringLiteral("Name und Ordner durchsuchen"));
    QCOMPARE(find<QComboBox>("programKinds")->itemText(3), QStringLiteral("Bild"));
}

void tst_CataloguePanel::manyProgramsComeFromAnotherThread()
{
    std::vector<MediaSource> sources;
    for (int i = 0; i < 3000; ++i) {
        sources.push_back({QStringLiteral("Item %1").arg(i),
                           QStringLiteral("rtsp://feed/%1").arg(i), 0.0, ProgramKind::Live});
    }
    QVERIFY(m_fixture->host.addPrograms(sources).store);
    QTRY_COMPARE(shown().size(), std::size_t(3008));
    clickHeader(ProgramTableModel::NameColumn);
    clickHeader(ProgramTableModel::NameColumn);
    type(QStringLiteral("item 299"));
    QTRY_COMPARE(shown().size(), std::size_t(13));
    QCOMPARE(table().model()->index(0, 0).data().toString(), QStringLiteral("Item 2999"));
    QCOMPARE(table().model()->index(12, 0).data().toString(), QStringLiteral("Item 299"));
    search().clear();
    QTRY_COMPARE(shown().size(), std::size_t(3008));
}

TREL_TEST(tst_CataloguePanel, QApplication)
#include "tst_CataloguePanel.moc"
