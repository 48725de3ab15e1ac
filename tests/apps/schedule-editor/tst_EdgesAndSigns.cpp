#include "LookSupport.h"
#include "look/Themes.h"
#include "screen/PlayBar.h"
#include "support/TestProgram.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDockWidget>
#include <QMainWindow>
#include <QMenu>
#include <QRadioButton>
#include <QSlider>
#include <QSpinBox>
#include <QStyleOption>
#include <QTabBar>
#include <QTabWidget>
#include <QtTest>

#include <memory>

using namespace trel::desktop;

/// What tells parts of a window from each other, on the pixels, under every theme.
class tst_EdgesAndSigns : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void theTabInFrontIsMarked_data() { addThemes(); }
    void theTabInFrontIsMarked();
    void pagesOfTabsLieOnTheWindow_data() { addThemes(); }
    void pagesOfTabsLieOnTheWindow();
    void aSliderStandsOut_data() { addThemes(); }
    void aSliderStandsOut();
    void aSliderIsFilledUpToItsHandle_data() { addThemes(); }
    void aSliderIsFilledUpToItsHandle();
    void signsOfPanelsAreSharp_data() { addThemes(); }
    void signsOfPanelsAreSharp();
    void signsOfMessagesAreSharp_data() { addThemes(); }
    void signsOfMessagesAreSharp();
    void aMenuHasAnEdge_data() { addThemes(); }
    void aMenuHasAnEdge();
    void groupsOfAMenuAreApart_data() { addThemes(); }
    void groupsOfAMenuAreApart();
    void disabledArrowsAreWeaker_data() { addThemes(); }
    void disabledArrowsAreWeaker();
    void whatIsDoneOfAPlayStandsOut_data() { addThemes(); }
    void whatIsDoneOfAPlayStandsOut();
    void choicesAreLevelWithTheirTexts_data() { addThemes(); }
    void choicesAreLevelWithTheirTexts();

private:
    std::unique_ptr<Themes> m_themes;
};

namespace {

QImage drawn(QWidget& widget)
{
    widget.resize(widget.sizeHint());
    return widget.grab().toImage();
}

/// How much the arrows at the end of a field stand out.
double arrowsOf(QWidget& field)
{
    constexpr int kRoom = 16;
    const QImage picture = drawn(field);
    return lookAt(picture, QRect(picture.width() - kRoom, 3, kRoom - 3, picture.height() - 6))
        .contrast;
}

/// The middle of what is drawn between two columns, in the pixels of the widget. What is no ground
/// stands out.
double middleOf(const QImage& picture, int from, int to, double ratio)
{
    const QColor ground = lookAt(picture, picture.rect()).ground;
    int top = picture.height();
    int bottom = -1;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = from; x < to; ++x) {
            if (contrast(picture.pixelColor(x, y), ground) > 1.5) {
                top = qMin(top, y);
                bottom = qMax(bottom, y);
            }
        }
    }
    return (top + bottom + 1) / 2.0 / ratio;
}

/// How far the middle of the mark of a choice is below that of the letters beside it.
double dropOf(QAbstractButton& choice, double ratio)
{
    constexpr int kMark = 16;
    // Low letters and high ones: most texts have both.
    double letters = 0;
    double mark = 0;
    for (const char* text : {"xxxx", "HHHH"}) {
        choice.setText(QLatin1String(text));
        choice.resize(choice.sizeHint());
        QImage picture(choice.size() * ratio, QImage::Format_RGB32);
        picture.setDevicePixelRatio(ratio);
        choice.render(&picture);
        const int end = qRound(kMark * ratio);
        letters += middleOf(picture, end, picture.width(), ratio) / 2;
        mark = middleOf(picture, 0, end, ratio);
    }
    return mark - letters;
}

} // namespace

void tst_EdgesAndSigns::init()
{
    QFETCH(QString, theme);
    m_themes = std::make_unique<Themes>(*qApp);
    m_themes->select(theme);
}

void tst_EdgesAndSigns::cleanup()
{
    m_themes.reset();
}

void tst_EdgesAndSigns::theTabInFrontIsMarked()
{
    const QColor mark = m_themes->colours().accentLine;
    for (const QTabBar::Shape shape : {QTabBar::RoundedNorth, QTabBar::RoundedSouth,
                                       QTabBar::RoundedWest, QTabBar::RoundedEast}) {
        QTabBar bar;
        bar.setShape(shape);
        bar.addTab(QStringLiteral("In words"));
        bar.addTab(QStringLiteral("On the screen"));
        bar.setCurrentIndex(1);
        const QImage picture = drawn(bar);
        const auto edgeOf = [&](int tab) {
            const QRect rect = bar.tabRect(tab);
            switch (shape) {
            case QTabBar::RoundedNorth:
                return picture.pixelColor(rect.center().x(), rect.top() + 1);
            case QTabBar::RoundedSouth:
                return picture.pixelColor(rect.center().x(), rect.bottom() - 1);
            case QTabBar::RoundedWest:
                return picture.pixelColor(rect.left() + 1, rect.center().y());
            default:
                return picture.pixelColor(rect.right() - 1, rect.center().y());
            }
        };
        QCOMPARE(edgeOf(1), mark);
        QVERIFY(edgeOf(0) != mark);
        QVERIFY(contrast(mark, m_themes->colours().window) >= 3.0);
    }
}

/// What lies on a page is on one ground with what lies beside the tabs.
void tst_EdgesAndSigns::pagesOfTabsLieOnTheWindow()
{
    QTabWidget tabs;
    tabs.addTab(new QWidget, QStringLiteral("In words"));
    tabs.addTab(new QWidget, QStringLiteral("On the screen"));
    tabs.setCurrentIndex(1);
    tabs.resize(300, 200);
    tabs.show();
    const QImage picture = tabs.grab().toImage();
    const QColor window = m_themes->colours().window;
    const QRect page(tabs.currentWidget()->mapTo(&tabs, QPoint()), tabs.currentWidget()->size());
    QCOMPARE(picture.pixelColor(page.center()), window);
    // The tab in front belongs to it: no line between the two.
    const QRect tab = tabs.tabBar()->tabRect(1);
    const int x = tabs.tabBar()->mapTo(&tabs, tab.topLeft()).x() + 4;
    for (int y = tabs.tabBar()->mapTo(&tabs, tab.center()).y(); y < page.top() + 4; ++y) {
        QCOMPARE(picture.pixelColor(x, y), window);
    }
    // And an edge beside it.
    QVERIFY(picture.pixelColor(page.right() - 3, page.top() - 1) != window ||
            picture.pixelColor(page.right() - 3, page.top() - 2) != window);
}

void tst_EdgesAndSigns::aSliderStandsOut()
{
    for (const bool isEnabled : {true, false}) {
        QSlider slider(Qt::Horizontal);
        slider.setRange(0, 100);
        slider.setValue(isEnabled ? 50 : 0);
        slider.setEnabled(isEnabled);
        slider.resize(200, slider.sizeHint().height());
        const QImage picture = slider.grab().toImage();
        const QColor window = m_themes->colours().window;
        QStyleOptionSlider option;
        option.initFrom(&slider);
        option.minimum = slider.minimum();
        option.maximum = slider.maximum();
        option.sliderPosition = slider.sliderPosition();
        const QRect handle = slider.style()->subControlRect(QStyle::CC_Slider, &option,
                                                            QStyle::SC_SliderHandle, &slider);
        // The edges of handle and track.
        const QColor edge = picture.pixelColor(handle.center().x(), handle.top());
        QVERIFY2(contrast(edge, window) >= 3.0, qPrintable(edge.name()));
        const Seen track = lookAt(picture, QRect(150, 0, 40, picture.height()));
        QVERIFY2(track.contrast >= 3.0, qPrintable(track.text.name()));
    }
}

void tst_EdgesAndSigns::aSliderIsFilledUpToItsHandle()
{
    const QColor done = m_themes->colours().accentLine;
    for (const Qt::Orientation orientation : {Qt::Horizontal, Qt::Vertical}) {
        for (const Qt::LayoutDirection direction : {Qt::LeftToRight, Qt::RightToLeft}) {
            QSlider slider(orientation);
            slider.setLayoutDirection(direction);
            slider.setRange(0, 100);
            slider.setValue(30);
            const bool isFlat = orientation == Qt::Horizontal;
            const QSize hint = slider.sizeHint();
            slider.resize(isFlat ? QSize(200, hint.height()) : QSize(hint.width(), 200));
            const QImage picture = slider.grab().toImage();
            // A tenth and nine tenths of the way from the least value.
            const auto at = [&](int tenths) {
                const bool isFromTheEnd = isFlat ? direction == Qt::RightToLeft : true;
                const int along = (isFromTheEnd ? 10 - tenths : tenths) * 20;
                const QPoint middle = picture.rect().center();
                return isFlat ? picture.pixelColor(along, middle.y())
                              : picture.pixelColor(middle.x(), along);
            };
            QCOMPARE(at(1), done);
            QVERIFY(at(9) != done);
        }
    }
}

/// Of panels that are there while the theme changes.
void tst_EdgesAndSigns::signsOfPanelsAreSharp()
{
    QFETCH(QString, theme);
    m_themes->select(theme == QLatin1String("dark") ? QStringLiteral("light")
                                                    : QStringLiteral("dark"));
    QMainWindow window;
    auto* const panel = new QDockWidget(QStringLiteral("Problems"), &window);
    panel->setWidget(new QWidget);
    window.addDockWidget(Qt::LeftDockWidgetArea, panel);
    window.show();
    m_themes->select(theme);
    QCoreApplication::processEvents();
    for (const char* name : {"qt_dockwidget_floatbutton", "qt_dockwidget_closebutton"}) {
        const auto* const button = panel->findChild<QAbstractButton*>(QLatin1String(name));
        QTRY_VERIFY(lookAt(button->icon().pixmap(20, 20).toImage(), QRect(0, 0, 20, 20)).text ==
                    m_themes->colours().icon);
        // Drawn for each size, where a bitmap has its own.
        for (const int side : {10, 20, 40}) {
            QCOMPARE(button->icon().pixmap(side, side).toImage().size(), QSize(side, side));
        }
        // As small as it was.
        QVERIFY2(button->height() <= 16, qPrintable(QString::number(button->height())));
        QVERIFY(!faultOf(pictureOf(panel), button->geometry(), button->objectName(), 3.0).size());
    }
}

/// In lists, too, where they are small.
void tst_EdgesAndSigns::signsOfMessagesAreSharp()
{
    const std::pair<QStyle::StandardPixmap, QColor> signs[] = {
        {QStyle::SP_MessageBoxCritical, m_themes->colours().stateCollision},
        {QStyle::SP_MessageBoxInformation, m_themes->colours().accentLine},
    };
    for (const auto& [sign, colour] : signs) {
        const QIcon icon = QApplication::style()->standardIcon(sign);
        for (const int side : {16, 32, 64, 128}) {
            const QImage picture = icon.pixmap(side, side).toImage();
            QCOMPARE(picture.size(), QSize(side, side));
            QVERIFY(shareOf(picture, colour) > 0.05);
        }
        QVERIFY(contrast(colour, m_themes->colours().field) >= 3.0);
    }
}

void tst_EdgesAndSigns::aMenuHasAnEdge()
{
    QMenu menu;
    menu.addAction(QStringLiteral("Versions…"));
    const QImage picture = drawn(menu);
    const QColor line = m_themes->colours().fieldLine;
    const QPoint middle = picture.rect().center();
    QCOMPARE(picture.pixelColor(0, middle.y()), line);
    QCOMPARE(picture.pixelColor(picture.width() - 1, middle.y()), line);
    QCOMPARE(picture.pixelColor(middle.x(), 0), line);
    QCOMPARE(picture.pixelColor(middle.x(), picture.height() - 1), line);
}

void tst_EdgesAndSigns::groupsOfAMenuAreApart()
{
    QMenu menu;
    menu.addAction(QStringLiteral("Versions…"));
    QAction* const separator = menu.addSeparator();
    menu.addAction(QStringLiteral("New database…"));
    const QImage picture = drawn(menu);
    const QRect between = menu.actionGeometry(separator);
    QCOMPARE(picture.pixelColor(between.center()), m_themes->colours().line);
    // It ends before the edge does.
    QVERIFY(picture.pixelColor(between.left() + 1, between.center().y()) !=
            m_themes->colours().line);
}

void tst_EdgesAndSigns::disabledArrowsAreWeaker()
{
    QComboBox box;
    box.addItem(QStringLiteral("Time"));
    QSpinBox count;
    count.setRange(1, 1);
    QSpinBox free;
    for (QWidget* const field : std::initializer_list<QWidget*>{&box, &free}) {
        const double enabled = arrowsOf(*field);
        field->setEnabled(false);
        const double disabled = arrowsOf(*field);
        QVERIFY2(disabled > 1.5 && disabled < 0.5 * enabled, qPrintable(QString::number(disabled)));
        field->setEnabled(true);
    }
    // A step that is not possible looks the same.
    QVERIFY(arrowsOf(count) < 0.5 * arrowsOf(free));
}

void tst_EdgesAndSigns::whatIsDoneOfAPlayStandsOut()
{
    QWidget window;
    window.resize(240, 40);
    PlayBar bar(&window);
    bar.setGeometry(20, 10, 200, bar.sizeHint().height());
    bar.setPlay(1, 2);
    const QImage picture = window.grab().toImage();
    const int middle = bar.geometry().center().y();
    const QColor done = picture.pixelColor(70, middle);
    const QColor track = picture.pixelColor(170, middle);
    QVERIFY2(contrast(done, track) >= 3.0, qPrintable(done.name() + track.name()));
    const QColor edge = picture.pixelColor(170, bar.geometry().top());
    QVERIFY2(contrast(edge, picture.pixelColor(170, 2)) >= 3.0, qPrintable(edge.name()));
}

void tst_EdgesAndSigns::choicesAreLevelWithTheirTexts()
{
    QCheckBox box;
    QRadioButton circle;
    for (QAbstractButton* const choice : std::initializer_list<QAbstractButton*>{&box, &circle}) {
        for (const double ratio : {1.0, 2.0}) {
            const double drop = dropOf(*choice, ratio);
            QVERIFY2(qAbs(drop) <= 0.75, qPrintable(QString::number(drop)));
        }
        // Without a text it stands in the middle.
        choice->setText(QString());
        choice->resize(30, 31);
        QVERIFY(qAbs(middleOf(choice->grab().toImage(), 0, 16, 1.0) - 15.5) <= 1.0);
    }
}

TREL_TEST(tst_EdgesAndSigns, QApplication)
#include "tst_EdgesAndSigns.moc"
