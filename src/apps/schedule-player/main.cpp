#include "MirrorPlace.h"
#include "PlayerOptions.h"
#include "PlayerStart.h"
#include "asrun/AsRunKeeper.h"
#include "asrun/SpoolPlace.h"
#include "common/DefaultDatabase.h"
#include "common/StopSignals.h"
#include "common/VersionText.h"
#include "deck/PlaybackThreads.h"
#include "system/FewArenas.h"
#include "system/LastResort.h"
#include "trelprogramschedule/store/StorePlace.h"

#include <QFileInfo>
#include <QGuiApplication>
#include <QTextStream>

#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>

using namespace trel::player;

namespace {

/// When a player that was told to end is over at the latest; it has a second.
constexpr std::chrono::milliseconds kFarewell{800};

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
    const trel::mediadispatch::StorePlace place(options.database);
    if (place.isOnServer()) {
        // What stands beside a file stands beside the mirror.
        return options.mirror.isEmpty()
                   ? mirrorPath(defaultMirrorFolder(), place.text(), options.screen)
                   : mirrorPath(options.mirror);
    }
    const QString path =
        options.database.isEmpty() ? trel::hosts::defaultDatabasePath() : options.database;
    return QFileInfo(path).absoluteFilePath();
}

AsRunPlace placeOf(const PlayerOptions& options, const QString& store)
{
    const QString folder = options.spool.isEmpty() ? defaultSpoolFolder() : options.spool;
    return {store, options.screen, spoolPath(folder, store, options.screen)};
}

int play(const PlayerOptions& options)
{
    int status = EXIT_SUCCESS;
    const trel::hosts::StopSignals stopSignals;
    QObject::connect(&stopSignals, &trel::hosts::StopSignals::stopped, qApp,
                     &QCoreApplication::quit);
    QObject::connect(qApp, &QCoreApplication::aboutToQuit, qApp,
                     [&status] { endProcessAfter(kFarewell, status); });
    PlayerStart start(options, placeOf(options, storePath(options)));
    QObject::connect(&start, &PlayerStart::refused, qApp, [&status](const QString& sentence) {
        status = refuse(sentence);
        QCoreApplication::exit(status);
    });
    if (options.inWindow) {
        QObject::connect(&start, &PlayerStart::closeAsked, qApp, &QCoreApplication::quit);
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
    if (!read.options.timeZone.isEmpty()) {
        // Before there are threads, which may all ask for it.
        qputenv("TZ", read.options.timeZone.toUtf8());
    }
    QGuiApplication::setApplicationName(QStringLiteral("schedule-player"));
    QGuiApplication application(argc, argv);
    // A monitor that is pulled takes its window along.
    QGuiApplication::setQuitOnLastWindowClosed(false);
    const int status = play(read.options);
    if (PlaybackThreads::areLeft()) {
        // They may go on while the libraries are taken down, and what they used would be gone.
        std::_Exit(status);
    }
    return status;
}
