#include "EditorOptions.h"

#include "DatabaseArgument.h"
#include "common/DisplayText.h"
#include "trelprogramschedule/faults/FaultWords.h"
#include "trelprogramschedule/store/StoreEngines.h"
#include "trelprogramschedule/store/StorePlace.h"

#include <QCommandLineParser>

using namespace trel::mediadispatch;

namespace trel::desktop {

namespace {

EditorOptionsResult ended(EditorOptionsResult::Next next, const QString& text)
{
    EditorOptionsResult result;
    result.next = next;
    result.text = text;
    return result;
}

/// What may have a password in it is not repeated.
QString shown(const QString& place)
{
    return StorePlace::isAddress(place) && faultOfAddress(place) ? StorePlace::scheme() : place;
}

} // namespace

EditorOptionsResult readEditorOptions(const QStringList& arguments)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("Edits the play schedule of media screens.\n\n"
                       "With no display the program runs off screen, writes a picture of its "
                       "editor and prints a summary of the schedule."));
    const QCommandLineOption help = parser.addHelpOption();
    const QCommandLineOption version = parser.addVersionOption();
    const QCommandLineOption database(
        {QStringLiteral("d"), QStringLiteral("database")},
        QStringLiteral("Open the schedule in FILE instead of the one that was open last, or of "
                       "your own at first; made if it is missing. Or one on a server: "
                       "postgresql://[user@]host[:port]/database?schedule=NAME."),
        QStringLiteral("FILE"));
    const QCommandLineOption demonstration(
        QStringLiteral("demonstration"),
        QStringLiteral("Fill a database that does not exist yet from FOLDER."),
        QStringLiteral("FOLDER"));
    const QCommandLineOption screenshot(
        QStringLiteral("screenshot"),
        QStringLiteral("Write a picture of the editor with its first task to FILE, print a summary "
                       "and end."),
        QStringLiteral("FILE"));
    const QCommandLineOption edit(QStringLiteral("edit"),
                                  QStringLiteral("Open the editor at once."));
    const QCommandLineOption language(QStringLiteral("language"),
                                      QStringLiteral("Start in this language, such as en_US."),
                                      QStringLiteral("NAME"));
    const QCommandLineOption theme(
        QStringLiteral("theme"),
        QStringLiteral("Start in this theme: dark, light or high-contrast."),
        QStringLiteral("NAME"));
    parser.addOptions({database, demonstration, screenshot, edit, language, theme});
    parser.addPositionalArgument(QStringLiteral("DATABASE"),
                                 QStringLiteral("A schedule to open, as with --database."),
                                 QStringLiteral("[DATABASE]"));
    parser.addPositionalArgument(QStringLiteral("MEDIA"),
                                 QStringLiteral("Files and folders to import as programs."),
                                 QStringLiteral("[MEDIA...]"));

    if (!parser.parse(arguments)) {
        return ended(EditorOptionsResult::Next::Misuse,
                     parser.errorText() + QStringLiteral("\nTry --help."));
    }
    if (parser.isSet(help)) {
        return ended(EditorOptionsResult::Next::Done, parser.helpText().trimmed());
    }
    if (parser.isSet(version)) {
        return ended(EditorOptionsResult::Next::Version, {});
    }

    EditorOptionsResult result;
    result.options.database = parser.value(database);
    result.options.demonstration = parser.value(demonstration);
    result.options.screenshot = parser.value(screenshot);
    result.options.edit = parser.isSet(edit);
    result.options.language = parser.value(language);
    result.options.theme = parser.value(theme);
    const QStringList files = parser.positionalArguments();
    for (const QString& file : files) {
        if (!StorePlace::isAddress(file) && !isDatabaseFile(file)) {
            result.options.imports.append(file);
        } else if (result.options.database.isEmpty()) {
            result.options.database = file;
        } else {
            return ended(EditorOptionsResult::Next::Misuse,
                         QStringLiteral("Only one schedule can be opened: %1 is another one.")
                             .arg(hosts::inQuotes(hosts::printable(shown(file)))));
        }
    }
    const QString place = result.options.database;
    if (StorePlace::isAddress(place)) {
        if (const Fault fault = faultOfAddress(place)) {
            return ended(EditorOptionsResult::Next::Misuse,
                         englishSentence(fault) + QStringLiteral("\nTry --help."));
        }
        result.options.database = StorePlace(place).text();
    }
    return result;
}

} // namespace trel::desktop
