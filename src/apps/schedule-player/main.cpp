#include "Player.h"
#include "PlayerOptions.h"
#include "PlayerScreen.h"
#include "asrun/AsRunKeeper.h"
#include "asrun/SpoolPlace.h"
#include "common/DefaultDatabase.h"
#include "common/StopSignals.h"
#include "common/VersionText.h"
#include "media/PictureRequest.h"
#include "system/FewArenas.h"
#include "system/ScreenLock.h"

#include <QFileInfo>
#include <QGuiApplication>
#include <QTextStream>

#include <atomic>
#include <csignal>
#include <cstdio>

using namespace trel::player;

namespace {

/// The largest picture that any screen shows.
const QSize kLargest(8192, 8192);

/// The toolkit words its help by the name of a running application, and the one with a window comes
/// only after the options.
PlayerOptionsResult readOptions(int& argc, char** argv)
{
    const QCoreApplication console(argc, argv);
    return readPlayerOptions(QCoreApplication::arguments());
}

int refuse(const QString& sentence)
{
    QTextStream(stderr) << "schedule-player: " << sentence << Qt::endl;
    return 1;
}

/// The toolkit ends the process where it finds no display, without a word on what to do.
bool hasDisplay()
{
    return qEnvironmentVariableIsSet("QT_QPA_PLATFORM") ||
           !qEnvironmentVariableIsEmpty("DISPLAY") ||
           !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY");
}

QString storePath(const PlayerOptions& options)
{
    const QString path =
        options.database.isEmpty() ? trel::hosts::defaultDatabasePath() : options.database;
    return QFileInfo(path).absoluteFilePath();
}

QImage standByPicture(const QString& path)
{
    if (path.isEmpty()) {
        return {};
    }
    const std::atomic<bool> isCancelled{false};
    const trel::mediadispatch::MediaPicture read = trel::mediadispatch::readPicture(
        QFileInfo(path).absoluteFilePath(), trel::mediadispatch::ProgramKind::Image, kLargest,
        isCancelled);
    // NOLINTNEXTLINE(cppcoreguidelines-pro-type-reinterpret-cast): as the picture takes its dots
    const auto* const dots = reinterpret_cast<const uchar*>(read.dots.data());
    return QImage(dots, read.size.width(), read.size.height(), QImage::Format_ARGB32).copy();
}

ScreenWishes wishesOf(const PlayerOptions& options)
{
    ScreenWishes wishes;
    wishes.isFullScreen = !options.inWindow;
    wishes.monitor = options.monitor;
    wishes.turned = options.turned;
    wishes.isMute = options.isMute;
    wishes.standBy = standByPicture(options.standBy);
    wishes.title = options.screen;
    return wishes;
}

AsRunPlace placeOf(const PlayerOptions& options, const QString& store)
{
    const QString folder = options.spool.isEmpty() ? defaultSpoolFolder() : options.spool;
    return {store, options.screen, spoolPath(folder, store, options.screen)};
}

int play(const PlayerOptions& options)
{
    const QString store = storePath(options);
    const ScreenLock lock(store, options.screen);
    if (!lock.isTaken()) {
        return refuse(lock.refusal());
    }
    const trel::hosts::StopSignals stopSignals;
    QObject::connect(&stopSignals, &trel::hosts::StopSignals::stopped, qApp,
                     &QCoreApplication::quit);
    const ScreenWishes wishes = wishesOf(options);
    PlayerScreen screen(wishes);
    if (options.inWindow) {
        QObject::connect(&screen, &PlayerScreen::closeAsked, qApp, &QCoreApplication::quit);
    }
    Player player(placeOf(options, store), screen.stage(), screen.firstDeck(), screen.secondDeck());
    if (!options.standBy.isEmpty() && wishes.standBy.isNull()) {
        player.tell(QStringLiteral("the stand-by picture cannot be read; black takes its place"));
    }
    if (!screen.hasItsMonitor()) {
        player.tell(QStringLiteral("the monitor is not there; the first one takes its place"));
    }
    return QCoreApplication::exec();
}

} // namespace

int main(int argc, char** argv)
{
    keepToFewArenas();
    // A log whose reader has gone is no reason to go dark.
    std::signal(SIGPIPE, SIG_IGN);
    const PlayerOptionsResult read = readOptions(argc, argv);
    if (read.next == PlayerOptionsResult::Next::Version) {
        QTextStream(stdout) << trel::hosts::versionText("schedule-player") << Qt::endl;
        return 0;
    }
    if (read.next != PlayerOptionsResult::Next::Start) {
        const bool misuse = read.next == PlayerOptionsResult::Next::Misuse;
        QTextStream(misuse ? stderr : stdout) << read.text << Qt::endl;
        return misuse ? 2 : 0;
    }
    if (!hasDisplay()) {
        return refuse(QStringLiteral("There is no display: neither DISPLAY nor WAYLAND_DISPLAY is "
                                     "set."));
    }
    QGuiApplication::setApplicationName(QStringLiteral("schedule-player"));
    QGuiApplication application(argc, argv);
    // A monitor that is pulled takes its window along.
    QGuiApplication::setQuitOnLastWindowClosed(false);
    return play(read.options);
}
