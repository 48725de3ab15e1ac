#include "Mouse.h"
#include "TitleBar.h"
#include "support/MessageLog.h"
#include "support/TestProgram.h"

#include <QApplication>
#include <QPushButton>
#include <QSignalSpy>
#include <QtTest>

#include <memory>

using trel::mediadispatch::TitleBar;

namespace {

constexpr int kWidth = 600;
const QPoint kHome(300, 200);
const QPoint kGrip(60, 15); ///< A free place of the bar.

/// The mouse events that a window gets because its title bar passed them on.
class MouseLog : public QObject
{
public:
    QStringList events;

    bool eventFilter(QObject*, QEvent* event) override
    {
        switch (event->type()) {
        case QEvent::MouseButtonPress:
            events << QStringLiteral("press");
            break;
        case QEvent::MouseButtonDblClick:
            events << QStringLiteral("double");
            break;
        case QEvent::MouseButtonRelease:
            events << QStringLiteral("release");
            break;
        case QEvent::MouseMove:
            events << QStringLiteral("move");
            break;
        default:
            break;
        }
        return false;
    }
};

} // namespace

class tst_TitleBarMouse : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void startsADragInsideItsEdges_data();
    void startsADragInsideItsEdges();
    void movesItsParentFromSixteenPixels_data();
    void movesItsParentFromSixteenPixels();
    void asksTheThresholdOfEveryStep();
    void dragsByItsTitle();
    void movesAParentInsideAnotherWidget();
    void endsADragAtARelease();
    void doesNotDragByTheRightButton();
    void aReleaseOfAnyButtonEndsADrag();
    void keepsTheRightButtonAndShortMovesToItself();
    void aDoubleClickSwitchesMaximiseAndRestore();
    void aDoubleClickOfTheRightButtonDoesNothing();
    void aDoubleClickLeavesOtherLayoutsAlone_data();
    void aDoubleClickLeavesOtherLayoutsAlone();
    void aDoubleClickBlocksDragsUntilARelease_data();
    void aDoubleClickBlocksDragsUntilARelease();
    void aDoubleClickThatIsSwitchedOffDoesNothing();
    void afterADoubleClickTheLayoutCountsAsMaximised();
    void aBarWithoutAParentStaysInItsPlace();

private:
    QPoint grip() const { return m_bar->mapToGlobal(kGrip); }
    QString shown() const;

    std::unique_ptr<QWidget> m_window;
    TitleBar* m_bar = nullptr;
};

void tst_TitleBarMouse::init()
{
    m_window = std::make_unique<QWidget>();
    m_window->setWindowFlags(Qt::FramelessWindowHint);
    m_window->setGeometry(QRect(kHome, QSize(kWidth, 200)));
    m_bar = new TitleBar(m_window.get());
    m_bar->setGeometry(0, 0, kWidth, m_bar->height());
    m_window->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
    QCOMPARE(m_window->pos(), kHome);
}

void tst_TitleBarMouse::cleanup()
{
    m_window.reset();
}

QString tst_TitleBarMouse::shown() const
{
    QStringList names;
    for (const char* name : {"ButtonMin", "ButtonRestore", "ButtonMax"}) {
        if (m_bar->findChild<QPushButton*>(QLatin1String(name))->isVisible())
            names << QString::fromLatin1(name).mid(6);
    }
    return names.join(QLatin1Char(' '));
}

void tst_TitleBarMouse::startsADragInsideItsEdges_data()
{
    QTest::addColumn<QPoint>("place");
    QTest::addColumn<bool>("drags");

    QTest::newRow("left edge") << QPoint(2, 15) << false;
    QTest::newRow("beside the left edge") << QPoint(3, 15) << true;
    QTest::newRow("top edge") << QPoint(60, 2) << false;
    QTest::newRow("below the top edge") << QPoint(60, 3) << true;
    QTest::newRow("right edge") << QPoint(kWidth - 2, 15) << false;
    QTest::newRow("beside the right edge") << QPoint(kWidth - 3, 15) << true;
    QTest::newRow("bottom edge") << QPoint(60, 29) << true;
    QTest::newRow("corner") << QPoint(1, 1) << false;
}

void tst_TitleBarMouse::startsADragInsideItsEdges()
{
    QFETCH(const QPoint, place);
    QFETCH(const bool, drags);
    Mouse mouse(m_window.get());
    mouse.press(m_bar->mapToGlobal(place));
    const QPoint way(place.x() > kWidth / 2 ? -40 : 40, 0);
    mouse.moveBy(way);
    QCOMPARE(m_window->pos(), drags ? kHome + way : kHome);
    mouse.release();
}

void tst_TitleBarMouse::movesItsParentFromSixteenPixels_data()
{
    QTest::addColumn<QPoint>("way");
    QTest::addColumn<bool>("moves");

    QTest::newRow("15 both ways") << QPoint(15, 15) << false;
    QTest::newRow("15 back both ways") << QPoint(-15, -15) << false;
    QTest::newRow("16 across") << QPoint(16, 0) << true;
    QTest::newRow("16 down") << QPoint(0, 16) << true;
    QTest::newRow("16 back") << QPoint(-16, 0) << true;
    QTest::newRow("16 up, with the way across") << QPoint(15, -16) << true;
    QTest::newRow("far") << QPoint(57, 21) << true;
}

void tst_TitleBarMouse::movesItsParentFromSixteenPixels()
{
    QFETCH(const QPoint, way);
    QFETCH(const bool, moves);
    QSignalSpy moved(m_bar, &TitleBar::signalMove);
    QVERIFY(moved.isValid());
    Mouse mouse(m_window.get());
    mouse.press(grip());
    mouse.moveBy(way);
    mouse.release();
    if (!moves) {
        QCOMPARE(m_window->pos(), kHome);
        QCOMPARE(moved.count(), 0);
        return;
    }
    const QPoint target = kHome + way;
    QCOMPARE(m_window->pos(), target);
    QCOMPARE(moved.count(), 1);
    QCOMPARE(moved.first(), QVariantList({target.x(), target.y()}));
}

void tst_TitleBarMouse::asksTheThresholdOfEveryStep()
{
    QSignalSpy moved(m_bar, &TitleBar::signalMove);
    QVERIFY(moved.isValid());
    QPoint whenTold;
    connect(m_bar, &TitleBar::signalMove, this, [&] { whenTold = m_window->pos(); });
    Mouse mouse(m_window.get());
    mouse.press(grip());
    mouse.moveBy({10, 0});
    mouse.moveBy({10, 5});
    QCOMPARE(m_window->pos(), kHome + QPoint(20, 5));
    QCOMPARE(whenTold, kHome + QPoint(20, 5));
    mouse.moveBy({15, 15});
    QCOMPARE(m_window->pos(), kHome + QPoint(20, 5));
    mouse.moveBy({1, 0});
    QCOMPARE(m_window->pos(), kHome + QPoint(36, 20));
    mouse.moveBy({-15, 0});
    QCOMPARE(m_window->pos(), kHome + QPoint(36, 20));
    mouse.release();
    QCOMPARE(moved.count(), 2);
}

void tst_TitleBarMouse::dragsByItsTitle()
{
    m_bar->setTitleContent(QStringLiteral("Week 12"));
    QCoreApplication::processEvents();
    Mouse mouse(m_window.get());
    mouse.press(m_bar->mapToGlobal(QPoint(kWidth / 2, 15)));
    mouse.moveBy({20, 0});
    mouse.release();
    QCOMPARE(m_window->pos(), kHome + QPoint(20, 0));
}

void tst_TitleBarMouse::movesAParentInsideAnotherWidget()
{
    QWidget pane(m_window.get());
    pane.setGeometry(10, 40, 400, 100);
    TitleBar bar(&pane);
    bar.setGeometry(0, 0, 400, bar.height());
    pane.show();
    QSignalSpy moved(&bar, &TitleBar::signalMove);
    QVERIFY(moved.isValid());
    Mouse mouse(m_window.get());
    mouse.press(bar.mapToGlobal(kGrip));
    mouse.moveBy({0, 20});
    mouse.release();
    QCOMPARE(pane.pos(), QPoint(10, 60));
    QCOMPARE(moved.first(), QVariantList({10, 60}));
    QCOMPARE(m_window->pos(), kHome);
}

void tst_TitleBarMouse::endsADragAtARelease()
{
    Mouse mouse(m_window.get());
    mouse.moveTo(grip());
    mouse.moveBy({30, 0});
    QCOMPARE(m_window->pos(), kHome);
    mouse.press(grip());
    mouse.release();
    mouse.moveBy({30, 0});
    QCOMPARE(m_window->pos(), kHome);
}

void tst_TitleBarMouse::doesNotDragByTheRightButton()
{
    QSignalSpy moved(m_bar, &TitleBar::signalMove);
    QVERIFY(moved.isValid());
    Mouse mouse(m_window.get());
    mouse.press(grip(), Qt::RightButton);
    mouse.moveBy({50, 50});
    mouse.release(Qt::RightButton);
    QCOMPARE(m_window->pos(), kHome);
    QCOMPARE(moved.count(), 0);

    mouse.press(grip(), Qt::MiddleButton);
    mouse.moveBy({50, 50});
    mouse.release(Qt::MiddleButton);
    QCOMPARE(m_window->pos(), kHome + QPoint(50, 50));
}

void tst_TitleBarMouse::aReleaseOfAnyButtonEndsADrag()
{
    Mouse mouse(m_window.get());
    mouse.press(grip());
    mouse.press(grip(), Qt::RightButton);
    mouse.moveBy({20, 0});
    QCOMPARE(m_window->pos(), kHome + QPoint(20, 0));
    mouse.release(Qt::RightButton);
    mouse.moveBy({30, 0});
    mouse.release();
    QCOMPARE(m_window->pos(), kHome + QPoint(20, 0));
}

void tst_TitleBarMouse::keepsTheRightButtonAndShortMovesToItself()
{
    MouseLog passedOn;
    m_window->installEventFilter(&passedOn);
    Mouse mouse(m_window.get());
    mouse.press(grip(), Qt::RightButton);
    QCOMPARE(passedOn.events, QStringList());
    mouse.release(Qt::RightButton);
    QCOMPARE(passedOn.events.join(QLatin1Char(' ')), QStringLiteral("release"));

    passedOn.events.clear();
    mouse.press(grip());
    mouse.moveBy({10, 0});
    mouse.moveBy({10, 0});
    mouse.release();
    QCOMPARE(passedOn.events.join(QLatin1Char(' ')), QStringLiteral("press move release"));
}

void tst_TitleBarMouse::aDoubleClickSwitchesMaximiseAndRestore()
{
    QStringList log;
    connect(m_bar, &TitleBar::signalButtonMaxClicked, this, [&] { log << QStringLiteral("max"); });
    connect(m_bar, &TitleBar::signalButtonRestoreClicked, this,
            [&] { log << QStringLiteral("restore"); });
    m_bar->setButtonType(TitleBar::NormalWindow);
    Mouse mouse(m_window.get());
    mouse.doubleClick(grip());
    QCOMPARE(shown(), QStringLiteral("Min Restore"));
    mouse.doubleClick(grip());
    QCOMPARE(shown(), QStringLiteral("Min Max"));
    mouse.doubleClick(grip());
    QCOMPARE(log.join(QLatin1Char(' ')), QStringLiteral("max restore max"));
    QCOMPARE(m_window->pos(), kHome);
}

void tst_TitleBarMouse::aDoubleClickOfTheRightButtonDoesNothing()
{
    QSignalSpy maximise(m_bar, &TitleBar::signalButtonMaxClicked);
    QVERIFY(maximise.isValid());
    m_bar->setButtonType(TitleBar::NormalWindow);
    Mouse mouse(m_window.get());
    mouse.doubleClickAndHold(grip(), Qt::RightButton);
    QCOMPARE(maximise.count(), 0);
    QCOMPARE(shown(), QStringLiteral("Min Max"));
    mouse.press(grip());
    mouse.moveBy({20, 0});
    QCOMPARE(m_window->pos(), kHome + QPoint(20, 0));
    mouse.release();
    mouse.release(Qt::RightButton);
}

void tst_TitleBarMouse::aDoubleClickLeavesOtherLayoutsAlone_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QString>("buttons");
    QTest::newRow("minimise only") << 0 << QStringLiteral("Min");
    QTest::newRow("close only") << 3 << QString();
    QTest::newRow("unknown") << 17 << QStringLiteral("Min");
}

void tst_TitleBarMouse::aDoubleClickLeavesOtherLayoutsAlone()
{
    QFETCH(const int, type);
    QFETCH(const QString, buttons);
    QSignalSpy maximise(m_bar, &TitleBar::signalButtonMaxClicked);
    QSignalSpy restore(m_bar, &TitleBar::signalButtonRestoreClicked);
    QVERIFY(maximise.isValid() && restore.isValid());
    m_bar->setButtonType(type);
    Mouse mouse(m_window.get());
    mouse.doubleClick(grip());
    QCOMPARE(shown(), buttons);
    QCOMPARE(maximise.count() + restore.count(), 0);
}

void tst_TitleBarMouse::aDoubleClickBlocksDragsUntilARelease_data()
{
    QTest::addColumn<int>("type");
    for (int type = 0; type <= 3; ++type)
        QTest::addRow("type %d", type) << type;
}

void tst_TitleBarMouse::aDoubleClickBlocksDragsUntilARelease()
{
    QFETCH(const int, type);
    m_bar->setButtonType(type);
    Mouse mouse(m_window.get());
    mouse.doubleClickAndHold(grip());
    mouse.moveBy({30, 0});
    // A further button presses the bar again while the first is held.
    mouse.press(grip(), Qt::MiddleButton);
    mouse.moveBy({30, 0});
    QCOMPARE(m_window->pos(), kHome);
    mouse.release(Qt::MiddleButton);
    mouse.release();

    mouse.press(grip());
    mouse.moveBy({30, 0});
    mouse.release();
    QCOMPARE(m_window->pos(), kHome + QPoint(30, 0));
}

void tst_TitleBarMouse::aDoubleClickThatIsSwitchedOffDoesNothing()
{
    QSignalSpy maximise(m_bar, &TitleBar::signalButtonMaxClicked);
    QVERIFY(maximise.isValid());
    m_bar->setButtonType(TitleBar::NormalWindow);
    m_bar->setDoubleClickEnabled(false);
    Mouse mouse(m_window.get());
    mouse.doubleClickAndHold(grip());
    QCOMPARE(maximise.count(), 0);
    QCOMPARE(shown(), QStringLiteral("Min Max"));
    mouse.press(grip(), Qt::MiddleButton);
    mouse.moveBy({30, 0});
    QCOMPARE(m_window->pos(), kHome + QPoint(30, 0));
    mouse.release(Qt::MiddleButton);
    mouse.release();

    m_bar->setDoubleClickEnabled(true);
    mouse.doubleClick(grip());
    QCOMPARE(maximise.count(), 1);
}

void tst_TitleBarMouse::afterADoubleClickTheLayoutCountsAsMaximised()
{
    QStringList log;
    connect(m_bar, &TitleBar::signalButtonMaxClicked, this, [&] {
        log << QStringLiteral("max");
        m_bar->setButtonType(TitleBar::NormalWindow);
    });
    connect(m_bar, &TitleBar::signalButtonRestoreClicked, this,
            [&] { log << QStringLiteral("restore"); });
    m_bar->setButtonType(TitleBar::NormalWindow);
    Mouse mouse(m_window.get());
    mouse.doubleClick(grip());
    QCOMPARE(shown(), QStringLiteral("Min Max"));
    mouse.doubleClick(grip());
    QCOMPARE(log.join(QLatin1Char(' ')), QStringLiteral("max restore"));
}

void tst_TitleBarMouse::aBarWithoutAParentStaysInItsPlace()
{
    const MessageLog messages;
    TitleBar bar(nullptr);
    bar.setGeometry(QRect(kHome, QSize(kWidth, bar.height())));
    bar.show();
    QVERIFY(QTest::qWaitForWindowExposed(&bar));
    QSignalSpy moved(&bar, &TitleBar::signalMove);
    QVERIFY(moved.isValid());
    Mouse mouse(&bar);
    mouse.press(bar.mapToGlobal(kGrip));
    mouse.moveBy({30, 0});
    mouse.release();
    QCOMPARE(bar.pos(), kHome);
    QCOMPARE(moved.count(), 0);
    QCOMPARE(messages.texts(), QStringList());
}

TREL_TEST(tst_TitleBarMouse, QApplication)

#include "tst_TitleBarMouse.moc"
