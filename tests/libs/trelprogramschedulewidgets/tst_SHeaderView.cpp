#include "SHeaderView.h"
#include "support/TestProgram.h"

#include "CheckBoxImages.h"
#include "ScheduleText.h"

#include <QApplication>
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
constexpr QSize kUncheckedSize(7, 11);

/// Notes what a header has its style draw, and keeps the base class's own drawing out of the way.
class NotingStyle : public QProxyStyle
{
public:
    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override
    {
        if (element == CE_Header) {
            ++baseSections;
            return;
        }
        QProxyStyle::drawControl(element, option, painter, widget);
    }

    void drawItemText(QPainter* painter, const QRect& rect, int flags, const QPalette& palette,
                      bool enabled, const QString& text, QPalette::ColorRole role) const override
    {
        texts.append(
            QStringLiteral("%1 %2 %3x%4 role %5 align %6")
                .arg(text, painter->pen().color().name())
                .arg(rect.width())
                .arg(rect.height())
                .arg(role == QPalette::NoRole ? QStringLiteral("none") : QString::number(role))
                .arg(flags == Qt::AlignCenter ? QStringLiteral("centre") : QString::number(flags)));
        labels.append(text);
        QProxyStyle::drawItemText(painter, rect, flags, palette, enabled, text, role);
    }

    void drawItemPixmap(QPainter* painter, const QRect& rect, int alignment,
                        const QPixmap& pixmap) const override
    {
        pixmaps.append(pixmap.size());
        QProxyStyle::drawItemPixmap(painter, rect, alignment, pixmap);
    }

    mutable int baseSections = 0;
    mutable QStringList texts;
    mutable QStringList labels;
    mutable QVector<QSize> pixmaps;
};

/// A header whose sections a test can have painted one at a time.
class OpenHeader : public SHeaderView
{
public:
    using SHeaderView::paintSection;
    using SHeaderView::SHeaderView;
};

/// A table with an SHeaderView of its own.
class Table
{
public:
    explicit Table(int columns)
        : model(2, columns)
    {
        view.setModel(&model);
        header = new OpenHeader(PlanListCheck, Qt::Horizontal, &view);
        header->setStyle(&style);
        view.setHorizontalHeader(header);
        header->setMinimumSectionSize(20);
        header->resizeSections(QHeaderView::Fixed);
        for (int section = 0; section < columns; ++section) {
            view.setColumnWidth(section, 60);
        }
        view.resize(60 * columns + 40, 200);
        view.show();
        QTest::qWait(0);
        style.baseSections = 0;
        style.labels.clear();
        style.texts.clear();
        style.pixmaps.clear();
    }

    void press(int section)
    {
        QTest::mouseClick(header->viewport(), Qt::LeftButton, Qt::NoModifier,
                          QPoint(header->sectionViewportPosition(section) + 3, 5));
    }

    /// One section on a black ground.
    QImage painted(int section, const QSize& size = QSize(60, 30))
    {
        QImage image(size, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::black);
        QPainter painter(&image);
        header->paintSection(&painter, image.rect(), section);
        return image;
    }

    NotingStyle style;
    QStandardItemModel model;
    QTableView view;
    OpenHeader* header = nullptr;
};

QString saved(const QTemporaryDir& dir, const char* name, const QSize& size)
{
    QImage image(size, QImage::Format_ARGB32);
    image.fill(Qt::magenta);
    QString path = dir.filePath(QString::fromLatin1(name));
    image.save(path);
    return path;
}

} // namespace

class tst_SHeaderView : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanup();

    void pressesOnTheMarkAlternate();
    void pressesElsewhereDoNothing();
    void theWholeOfTheFirstSectionIsTheMark();
    void theSetterIsSilent();
    void theMarkIsPaintedAtTheSizeOfItsFile();
    void withoutImagesThePressStillWorks();
    void labels();
    void labelsAreColouredByThePen();
    void labelsAreFetchedOnEveryPaint();
    void separatorsStandBetweenSections_data();
    void separatorsStandBetweenSections();

private:
    QTemporaryDir m_dir;
    CheckBoxImagePaths m_images;
};

void tst_SHeaderView::initTestCase()
{
    QVERIFY(m_dir.isValid());
    m_images = {saved(m_dir, "checked.png", kCheckedSize),
                saved(m_dir, "unchecked.png", kUncheckedSize)};
    checkBoxImagePaths() = m_images;
    qRegisterMetaType<CheckType>("CheckType");
}

void tst_SHeaderView::cleanup()
{
    checkBoxImagePaths() = m_images;
}

void tst_SHeaderView::pressesOnTheMarkAlternate()
{
    Table table(4);
    QSignalSpy spy(table.header, &SHeaderView::signalSelectAll);
    QVERIFY(spy.isValid());
    table.press(0);
    table.press(0);
    QCOMPARE(spy.size(), 2);
    QCOMPARE(spy.at(0).at(0).value<CheckType>(), PlanListCheck);
    QCOMPARE(spy.at(0).at(1).toBool(), true);
    QCOMPARE(spy.at(1).at(1).toBool(), false);
}

void tst_SHeaderView::pressesElsewhereDoNothing()
{
    Table table(4);
    table.header->setSectionsClickable(true);
    QSignalSpy all(table.header, &SHeaderView::signalSelectAll);
    // The base class tells of a press that it sees.
    QSignalSpy base(table.header, &QHeaderView::sectionPressed);
    QVERIFY(all.isValid() && base.isValid());
    table.press(1);
    table.press(3);
    QCOMPARE(all.size(), 0);
    QCOMPARE(base.size(), 0);
    table.press(0);
    QCOMPARE(base.size(), 1);
}

void tst_SHeaderView::theWholeOfTheFirstSectionIsTheMark()
{
    Table table(3);
    QSignalSpy spy(table.header, &SHeaderView::signalSelectAll);
    QVERIFY(spy.isValid());
    const int bottom = table.header->height() - 1;
    int presses = 0;
    for (const QPoint& corner :
         {QPoint(1, 0), QPoint(59, 0), QPoint(0, bottom), QPoint(59, bottom)}) {
        QTest::mouseClick(table.header->viewport(), Qt::LeftButton, Qt::NoModifier, corner);
        QCOMPARE(spy.size(), ++presses);
    }
    QTest::mouseClick(table.header->viewport(), Qt::LeftButton, Qt::NoModifier, QPoint(60, 0));
    QCOMPARE(spy.size(), presses);
}

void tst_SHeaderView::theSetterIsSilent()
{
    Table table(3);
    QSignalSpy spy(table.header, &SHeaderView::signalSelectAll);
    QVERIFY(spy.isValid());
    table.header->setChecked(true);
    QTRY_VERIFY(table.style.pixmaps.contains(kCheckedSize));
    table.style.pixmaps.clear();
    table.header->setChecked(false);
    QTRY_VERIFY(table.style.pixmaps.contains(kUncheckedSize));
    QCOMPARE(spy.size(), 0);
    // The next press starts from what was set.
    table.header->setChecked(true);
    table.press(0);
    QCOMPARE(spy.at(0).at(1).toBool(), false);
}

void tst_SHeaderView::theMarkIsPaintedAtTheSizeOfItsFile()
{
    Table table(3);
    table.painted(0);
    table.header->setChecked(true);
    const QImage image = table.painted(0);
    table.painted(1);
    QCOMPARE(table.style.pixmaps, (QVector<QSize>{kUncheckedSize, kCheckedSize}));
    // In the middle of the section.
    const QRect mark(QPoint(24, 11), kCheckedSize);
    QCOMPARE(image.pixelColor(mark.center()), QColor(Qt::magenta));
    QCOMPARE(image.pixelColor(mark.topLeft()), QColor(Qt::magenta));
    QCOMPARE(image.pixelColor(mark.bottomRight()), QColor(Qt::magenta));
    QVERIFY(image.pixelColor(mark.topLeft() - QPoint(1, 1)) != QColor(Qt::magenta));
    QVERIFY(image.pixelColor(mark.bottomRight() + QPoint(1, 1)) != QColor(Qt::magenta));
}

void tst_SHeaderView::withoutImagesThePressStillWorks()
{
    checkBoxImagePaths() = {};
    Table table(3);
    QSignalSpy spy(table.header, &SHeaderView::signalSelectAll);
    QVERIFY(spy.isValid());
    table.press(0);
    table.painted(0);
    QCOMPARE(spy.size(), 1);
    QCOMPARE(table.style.pixmaps, (QVector<QSize>{QSize(0, 0)}));
}

void tst_SHeaderView::labels()
{
    Table table(6);
    for (int section = 0; section < 6; ++section) {
        table.painted(section);
    }
    QCOMPARE(table.style.labels,
             (QStringList{QString(), scheduleText("zhCheckNumber"), scheduleText("szProgramLstStr"),
                          scheduleText("zhPlayCounts"), QString(), QString()}));
}

void tst_SHeaderView::labelsAreColouredByThePen()
{
    Table table(4);
    table.painted(1, QSize(70, 40));
    QCOMPARE(table.style.texts,
             QStringList(scheduleText("zhCheckNumber") +
                         QStringLiteral(" #b6b6b6 70x36 role none align centre")));
}

void tst_SHeaderView::labelsAreFetchedOnEveryPaint()
{
    Table table(4);
    table.painted(3);
    table.painted(3);
    QCOMPARE(table.style.labels.size(), 2);
    QCOMPARE(table.style.baseSections, 2);
}

void tst_SHeaderView::separatorsStandBetweenSections_data()
{
    QTest::addColumn<int>("sections");
    QTest::newRow("left table") << 3;
    QTest::newRow("right table") << 4;
    QTest::newRow("one section") << 1;
}

void tst_SHeaderView::separatorsStandBetweenSections()
{
    QFETCH(int, sections);
    Table table(sections);
    QVector<int> found;
    for (int section = 0; section < sections; ++section) {
        // Against the same section with others behind it, and with none.
        const QImage image = table.painted(section, QSize(60, 40));
        table.model.setColumnCount(section + 1);
        const QImage last = table.painted(section, QSize(60, 40));
        table.model.setColumnCount(sections);
        const bool separated = image.pixelColor(59, 20) != last.pixelColor(59, 20);
        if (separated) {
            found.append(section);
            QVERIFY(image.pixelColor(59, 10) != last.pixelColor(59, 10));
            QCOMPARE(image.pixelColor(59, 5), last.pixelColor(59, 5));
            QCOMPARE(image.pixelColor(59, 35), last.pixelColor(59, 35));
        }
    }
    QVector<int> expected(sections - 1);
    std::iota(expected.begin(), expected.end(), 0);
    QCOMPARE(found, expected);
}

TREL_TEST(tst_SHeaderView, QApplication)

#include "tst_SHeaderView.moc"
