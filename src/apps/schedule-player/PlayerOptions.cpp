#include "PlayerOptions.h"

#include "common/DisplayText.h"
#include "trelprogramschedule/faults/FaultWords.h"
#include "trelprogramschedule/screens/PlayerStatusFolder.h"
#include "trelprogramschedule/store/StoreEngines.h"
#include "trelprogramschedule/store/StorePlace.h"
#include "trelscreen/media/MediaFetcher.h"

#include <QCommandLineParser>
#include <QSysInfo>
#include <QTimeZone>
#include <QUrl>

using trel::mediadispatch::PlayerStatusFolder;

namespace trel::player {

namespace {

PlayerOptionsResult ended(PlayerOptionsResult::Next next, const QString& text)
{
    PlayerOptionsResult result;
    result.next = next;
    result.text = text;
    return result;
}

PlayerOptionsResult misuse(const QString& sentence)
{
    return ended(PlayerOptionsResult::Next::Misuse, sentence + QStringLiteral("\nTry --help."));
}

/// One machine has one screen, where nothing else is said.
QString machineName()
{
    const QString name = QSysInfo::machineHostName();
    return PlayerStatusFolder::takesName(name) ? name : QStringLiteral("screen");
}

/// Why what is to be followed cannot be, as a sentence. An address is not repeated, since there may
/// be a password in it.
QString faultOfPlace(const QString& database, bool wantsMirror)
{
    if (mediadispatch::StorePlace::isAddress(database)) {
        return mediadispatch::englishSentence(mediadispatch::faultOfAddress(database));
    }
    return wantsMirror ? QStringLiteral("--mirror and --media go with a --database on a server.")
                       : QString();
}

/// The same of where files are fetched from.
QString faultOfMedia(const QString& media)
{
    const QUrl url(media, QUrl::StrictMode);
    if (!screen::MediaFetcher::isWeb(media)) {
        return {};
    }
    if (!url.userInfo().isEmpty()) {
        return QStringLiteral("--media takes no address with a user or a password.");
    }
    return url.isValid() && !url.host().isEmpty() && !url.hasQuery() && !url.hasFragment()
               ? QString()
               : QStringLiteral("--media takes a folder, or an address such as "
                                "https://server/media.");
}

} // namespace

PlayerOptionsResult readPlayerOptions(const QStringList& arguments)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral(
        "Shows on a screen what the schedule in effect says.\n\n"
        "It plays until it is told to end, by SIGTERM or, in a window, by closing it. "
        "What happens on the screen is written to the standard error."));
    const QCommandLineOption help = parser.addHelpOption();
    const QCommandLineOption version = parser.addVersionOption();
    const QCommandLineOption database(
        {QStringLiteral("d"), QStringLiteral("database")},
        QStringLiteral(
            "Follow the schedule in FILE instead of your own, or that of a server, by its address "
            "postgresql://[user@]host[:port]/database?schedule=NAME. It need not be there yet."),
        QStringLiteral("FILE"));
    const QCommandLineOption mirror(
        QStringLiteral("mirror"),
        QStringLiteral("Keep in this folder what the screen needs of a schedule on a server, so "
                       "that it goes on without one, instead of in a folder of your own."),
        QStringLiteral("FOLDER"));
    const QCommandLineOption media(
        QStringLiteral("media"),
        QStringLiteral("Fetch the files of programs from this folder, or from below this address "
                       "of a web server, where \"schedulectl media-folder\" has put them, and play "
                       "them from the mirror."),
        QStringLiteral("PLACE"));
    const QCommandLineOption mediaLimit(
        QStringLiteral("media-limit"),
        QStringLiteral("Keep no more than so many GiB of them, instead of all that the disk has "
                       "but one."),
        QStringLiteral("GIB"));
    const QCommandLineOption timeZone(
        QStringLiteral("time-zone"),
        QStringLiteral("Play by the time of this zone, such as Europe/Berlin, instead of the "
                       "machine's."),
        QStringLiteral("ZONE"));
    const QCommandLineOption screen(
        QStringLiteral("screen"),
        QStringLiteral("Play under this name, which \"schedulectl screens\" lists; the machine's "
                       "when it is left out."),
        QStringLiteral("NAME"));
    const QCommandLineOption window(QStringLiteral("window"), QStringLiteral("Play in a window."));
    const QCommandLineOption fullScreen(
        QStringLiteral("full-screen"),
        QStringLiteral("Fill the screen, which is so when nothing is said."));
    const QCommandLineOption monitor(
        QStringLiteral("on"),
        QStringLiteral("Play on this monitor, by the system's name such as HDMI-1, or by its "
                       "number, counted from 1."),
        QStringLiteral("SCREEN"));
    const QCommandLineOption mute(QStringLiteral("mute"), QStringLiteral("Play without sound."));
    const QCommandLineOption standBy(
        QStringLiteral("standby"),
        QStringLiteral("Show this image when there is no picture to show, instead of black."),
        QStringLiteral("IMAGE"));
    const QCommandLineOption rotate(
        QStringLiteral("rotate"),
        QStringLiteral("Turn the picture clockwise, by 0, 90, 180 or 270 degrees."),
        QStringLiteral("DEGREES"), QStringLiteral("0"));
    const QCommandLineOption spool(
        QStringLiteral("spool"),
        QStringLiteral("Keep the records of what was on the screen in this folder until they are "
                       "handed in, instead of a folder of your own."),
        QStringLiteral("FOLDER"));
    parser.addOptions({database, mirror, media, mediaLimit, screen, timeZone, window, fullScreen,
                       monitor, mute, standBy, rotate, spool});

    if (!parser.parse(arguments)) {
        return misuse(hosts::printable(parser.errorText()));
    }
    if (parser.isSet(help)) {
        return ended(PlayerOptionsResult::Next::Done, parser.helpText().trimmed());
    }
    if (parser.isSet(version)) {
        return ended(PlayerOptionsResult::Next::Version, {});
    }
    if (!parser.positionalArguments().isEmpty()) {
        return misuse(QStringLiteral("What is %1? The player takes options alone.")
                          .arg(hosts::inQuotes(hosts::printable(parser.positionalArguments()[0]))));
    }
    if (parser.isSet(window) && parser.isSet(fullScreen)) {
        return misuse(QStringLiteral("It is either --window or --full-screen."));
    }
    if (parser.isSet(window) && parser.isSet(monitor)) {
        return misuse(QStringLiteral("--on goes with --full-screen; a window can be moved."));
    }
    if (const QString wrong =
            faultOfPlace(parser.value(database), parser.isSet(mirror) || parser.isSet(media));
        !wrong.isEmpty()) {
        return misuse(wrong);
    }
    if (const QString wrong = faultOfMedia(parser.value(media)); !wrong.isEmpty()) {
        return misuse(wrong);
    }
    const int limit = parser.isSet(mediaLimit) ? parser.value(mediaLimit).toInt() : 0;
    if (parser.isSet(mediaLimit) && (limit <= 0 || !parser.isSet(media))) {
        return misuse(
            QStringLiteral("--media-limit takes a number of GiB, and goes with --media."));
    }
    if (parser.isSet(timeZone) &&
        !QTimeZone::isTimeZoneIdAvailable(parser.value(timeZone).toUtf8())) {
        return misuse(QStringLiteral("There is no time zone %1 on this machine.")
                          .arg(hosts::inQuotes(hosts::printable(parser.value(timeZone)))));
    }
    bool isNumber = false;
    const int turned = parser.value(rotate).toInt(&isNumber);
    if (!isNumber || turned < 0 || turned > 270 || turned % 90 != 0) {
        return misuse(QStringLiteral("--rotate takes 0, 90, 180 or 270, not %1.")
                          .arg(hosts::inQuotes(hosts::printable(parser.value(rotate)))));
    }
    const QString name = parser.isSet(screen) ? parser.value(screen) : machineName();
    if (!PlayerStatusFolder::takesName(name)) {
        return misuse(QStringLiteral("%1 cannot be the name of a screen: it is empty, too long, or "
                                     "has characters that are not shown.")
                          .arg(hosts::inQuotes(hosts::printable(name))));
    }

    PlayerOptionsResult result;
    result.options.database = parser.value(database);
    result.options.mirror = parser.value(mirror);
    result.options.media = parser.value(media);
    result.options.mediaLimit = limit;
    result.options.timeZone = parser.value(timeZone);
    result.options.screen = name;
    result.options.inWindow = parser.isSet(window);
    result.options.monitor = parser.value(monitor);
    result.options.isMute = parser.isSet(mute);
    result.options.standBy = parser.value(standBy);
    result.options.turned = turned;
    result.options.spool = parser.value(spool);
    return result;
}

} // namespace trel::player
