#include "FrameRecord.h"
#include "PlayerScreen.h"
#include "support/TestProgram.h"

#include <QGuiApplication>
#include <QProcess>
#include <QScreen>
#include <QtTest>

using trel::player::PlayerScreen;
using trel::player::ScreenWishes;

/// Monitors that come and go, on an X server with two of them in memory; see with-monitors.
class tst_PlayerMonitors : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void fillsTheMonitorOfItsName();
    void goesToTheFirstWhileItsOwnIsPulled();
    void comesToItsMonitorWhenThatIsPluggedIn();
    void followsResolutionAndPlace();
    void playsOnWhereTheFirstIsPulled();

private:
    static void xrandr(const char* arguments);
    static QRect monitor(const char* name);
    static ScreenWishes on(const char* monitor);
};

namespace {

const QRect kFirst(0, 0, 1024, 768);
const QRect kSecond(1024, 0, 800, 600);

} // namespace

void tst_PlayerMonitors::xrandr(const char* arguments)
{
    // Asked once more, the server looks at its outputs again, and tells what it finds.
    for (const char* words : {arguments, "--query"}) {
        QProcess tool;
        tool.start(QStringLiteral("xrandr"),
                   QString::fromLatin1(words).split(QLatin1Char(' '), Qt::SkipEmptyParts));
        QVERIFY(tool.waitForFinished());
        QVERIFY2(tool.exitCode() == 0, tool.readAllStandardError().constData());
    }
}

/// Null where there is no such monitor.
QRect tst_PlayerMonitors::monitor(const char* name)
{
    for (const QScreen* screen : QGuiApplication::screens()) {
        if (screen->name() == QLatin1String(name)) {
            return screen->geometry();
        }
    }
    return {};
}

ScreenWishes tst_PlayerMonitors::on(const char* monitor)
{
    ScreenWishes wishes;
    wishes.monitor = QLatin1String(monitor);
    wishes.isMute = true;
    return wishes;
}

void tst_PlayerMonitors::init()
{
    xrandr("--output DUMMY0 --mode 1024x768 --pos 0x0 --primary "
           "--output DUMMY1 --mode 800x600 --pos 1024x0");
    QTRY_COMPARE(monitor("DUMMY0"), kFirst);
    QTRY_COMPARE(monitor("DUMMY1"), kSecond);
}

void tst_PlayerMonitors::fillsTheMonitorOfItsName()
{
    const PlayerScreen second(on("DUMMY1"));
    QVERIFY(second.hasItsMonitor());
    QTRY_COMPARE(second.window().geometry(), kSecond);
    const PlayerScreen first(on(""));
    QTRY_COMPARE(first.window().geometry(), kFirst);
    const PlayerScreen byNumber(on("2"));
    QTRY_COMPARE(byNumber.window().geometry(), kSecond);
}

void tst_PlayerMonitors::goesToTheFirstWhileItsOwnIsPulled()
{
    PlayerScreen screen(on("DUMMY1"));
    FrameRecord record;
    screen.add(record);
    QTRY_COMPARE(screen.window().geometry(), kSecond);
    QTRY_COMPARE(record.lastPicture().size(), kSecond.size());
    for (int turn = 0; turn < 2; ++turn) {
        xrandr("--output DUMMY1 --off");
        QTRY_COMPARE(screen.window().geometry(), kFirst);
        QTRY_COMPARE(record.lastPicture().size(), kFirst.size());
        QVERIFY(screen.window().isVisible());
        QVERIFY(!screen.hasItsMonitor());
        xrandr("--output DUMMY1 --mode 800x600 --pos 1024x0");
        QTRY_COMPARE(screen.window().geometry(), kSecond);
        QTRY_COMPARE(record.lastPicture().size(), kSecond.size());
        QVERIFY(screen.window().isVisible());
        QVERIFY(screen.hasItsMonitor());
    }
}

void tst_PlayerMonitors::comesToItsMonitorWhenThatIsPluggedIn()
{
    xrandr("--output DUMMY1 --off");
    QTRY_VERIFY(monitor("DUMMY1").isNull());
    const PlayerScreen screen(on("DUMMY1"));
    QVERIFY(!screen.hasItsMonitor());
    QTRY_COMPARE(screen.window().geometry(), kFirst);
    xrandr("--output DUMMY1 --mode 800x600 --pos 1024x0");
    QTRY_COMPARE(screen.window().geometry(), kSecond);
}

void tst_PlayerMonitors::followsResolutionAndPlace()
{
    const PlayerScreen screen(on("DUMMY1"));
    QTRY_COMPARE(screen.window().geometry(), kSecond);
    xrandr("--output DUMMY1 --mode 640x480 --pos 1024x0");
    QTRY_COMPARE(screen.window().geometry(), QRect(1024, 0, 640, 480));
    xrandr("--output DUMMY1 --mode 640x480 --pos 1024x200");
    QTRY_COMPARE(screen.window().geometry(), QRect(1024, 200, 640, 480));
    xrandr("--output DUMMY1 --mode 640x480 --pos 0x768");
    QTRY_COMPARE(screen.window().geometry(), QRect(0, 768, 640, 480));
}

void tst_PlayerMonitors::playsOnWhereTheFirstIsPulled()
{
    const PlayerScreen screen(on(""));
    QTRY_COMPARE(screen.window().geometry(), kFirst);
    xrandr("--output DUMMY1 --primary --output DUMMY0 --off");
    QTRY_VERIFY(monitor("DUMMY0").isNull());
    QTRY_COMPARE(screen.window().geometry(), monitor("DUMMY1"));
    QVERIFY(screen.window().isVisible());
}

TREL_TEST(tst_PlayerMonitors, QGuiApplication)
#include "tst_PlayerMonitors.moc"
