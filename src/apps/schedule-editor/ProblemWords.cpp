#include "ProblemWords.h"

#include "trelprogramschedule/faults/Fault.h"
#include "trelprogramschedule/json/ScheduleJson.h"
#include "trelprogramschedule/store/StorePlace.h"
#include "trelprogramschedule/store/StoreResult.h"

#include <QCoreApplication>
#include <QDir>

#include <cerrno>
#include <iterator>

using namespace trel::mediadispatch;

namespace trel::desktop {

namespace {

constexpr const char* kContext = "ProblemWords";

/// A text with places for the arguments of a fault.
struct Pattern
{
    const char* text;
    int counted = -1; ///< The argument whose number decides between singular and plural.
};

/// In the order of the codes.
constexpr Pattern kFaults[] = {
    {""},
    {""}, // The errors of the system have words of their own.
    {QT_TRANSLATE_NOOP("ProblemWords", "There is not enough memory.")},
    {QT_TRANSLATE_NOOP("ProblemWords", "The disk is full.")},
    {QT_TRANSLATE_NOOP("ProblemWords", "Your share of the disk is used up.")},
    {QT_TRANSLATE_NOOP("ProblemWords",
                       "The system does not let this application write a larger file.")},

    {QT_TRANSLATE_NOOP("ProblemWords", "The file or its folder is read-only.")},
    {QT_TRANSLATE_NOOP("ProblemWords", "It was opened for reading only.")},
    {QT_TRANSLATE_NOOP("ProblemWords", "Reading it took too long.")},
    {QT_TRANSLATE_N_NOOP("ProblemWords", "A text in it is longer than %n bytes."), 0},
    {QT_TRANSLATE_NOOP("ProblemWords", "The database reports error %1.")},
    {QT_TRANSLATE_NOOP("ProblemWords", "The database reports error %1. %3")},
    {QT_TRANSLATE_NOOP("ProblemWords", "The database has failed its own check.")},
    {QT_TRANSLATE_NOOP("ProblemWords", "The disk reports a read or write error.")},
    {QT_TRANSLATE_NOOP("ProblemWords", "Data that must be there is missing.")},
    {QT_TRANSLATE_NOOP("ProblemWords",
                       "The database driver is not the one that this application was made for.")},
    {QT_TRANSLATE_NOOP("ProblemWords",
                       "The file is missing or empty, but its log %1 is still there.")},
    {QT_TRANSLATE_NOOP("ProblemWords", "No file can be created there.")},
    {QT_TRANSLATE_NOOP("ProblemWords",
                       "Its log %1 belongs to another copy of the file. Put back the file that it "
                       "belongs to, or move the log away to go on without it.")},
    {QT_TRANSLATE_NOOP("ProblemWords",
                       "Its log has no index, and none can be created in a read-only folder. Copy "
                       "both files to another folder.")},
    {QT_TRANSLATE_NOOP("ProblemWords", "It was removed or replaced after it was opened.")},
    {QT_TRANSLATE_N_NOOP("ProblemWords",
                         "The name or the path of a program is longer than %n bytes."),
     0},
    {QT_TRANSLATE_N_NOOP("ProblemWords", "All %n numbers for programs are used up."), 0},
    {QT_TRANSLATE_NOOP("ProblemWords", "Its plans do not fit together.")},
    {QT_TRANSLATE_NOOP("ProblemWords", "“%1” is missing.")},
    {QT_TRANSLATE_NOOP("ProblemWords", "It contains “%1”, which does not belong there.")},
    {QT_TRANSLATE_NOOP("ProblemWords", "“%1” has been changed.")},
    {QT_TRANSLATE_NOOP("ProblemWords", "It does not say which state it is in.")},
    {QT_TRANSLATE_NOOP("ProblemWords",
                       "It was created by an older version of this application. Set up the server "
                       "again.")},
    {QT_TRANSLATE_NOOP("ProblemWords",
                       "The address contains a password. Passwords belong in a password file.")},
    {QT_TRANSLATE_NOOP("ProblemWords", "The address of a schedule on a server has this form: %1")},
    {QT_TRANSLATE_NOOP(
        "ProblemWords",
        "The name of the schedule in the address is missing, too long or not readable.")},
    {QT_TRANSLATE_NOOP("ProblemWords", "The connection was lost before the server answered.")},
    {QT_TRANSLATE_NOOP("ProblemWords", "The server does not answer.")},

    {QT_TRANSLATE_N_NOOP("ProblemWords", "There are more than %n tasks."), 0},
    {QT_TRANSLATE_N_NOOP("ProblemWords", "There are more than %n plans."), 0},
    {QT_TRANSLATE_N_NOOP("ProblemWords", "There are more than %n entries."), 0},
    {QT_TRANSLATE_N_NOOP("ProblemWords", "There are more than %n numbers in the lists of plans."),
     0},
    {QT_TRANSLATE_N_NOOP("ProblemWords", "There are more than %n programs."), 0},
    {QT_TRANSLATE_N_NOOP("ProblemWords", "A text of task %1 is longer than %n bytes."), 1},

    {QT_TRANSLATE_N_NOOP("ProblemWords", "It is larger than %n bytes."), 0},
    {QT_TRANSLATE_N_NOOP("ProblemWords", "There are more than %n values."), 0},
    {QT_TRANSLATE_N_NOOP("ProblemWords", "A name in line %1 is longer than %n bytes."), 1},
    {QT_TRANSLATE_N_NOOP("ProblemWords", "A text in line %1 is longer than %n bytes."), 1},
    {QT_TRANSLATE_NOOP("ProblemWords", "It is not valid JSON (line %1, column %2).")},
    {QT_TRANSLATE_NOOP("ProblemWords", "“%1” is not a whole number.")},
    {QT_TRANSLATE_NOOP("ProblemWords", "“%1” is outside the permitted range.")},
    {QT_TRANSLATE_NOOP("ProblemWords", "“%1” is outside the permitted range.")},
    {QT_TRANSLATE_NOOP("ProblemWords", "“%1” is not a whole number.")},
    {QT_TRANSLATE_NOOP("ProblemWords", "Wrong kind of value: expected %1, found %2.")},
    {QT_TRANSLATE_NOOP("ProblemWords", "Wrong kind of value: expected %1 or a number, found %2.")},
    {QT_TRANSLATE_NOOP("ProblemWords", "“%2” is not known here. Expected: %1 or a number.")},
    {QT_TRANSLATE_NOOP("ProblemWords", "The text is not valid Base64.")},
    {QT_TRANSLATE_N_NOOP("ProblemWords", "The text is longer than %n bytes."), 1},
    {QT_TRANSLATE_NOOP("ProblemWords", "The key %1 is not the ID of the task, which is %2.")},
    {QT_TRANSLATE_NOOP("ProblemWords", "Another task already has the ID %1.")},
    {QT_TRANSLATE_NOOP("ProblemWords", "The format is “%1” instead of “%2”.")},
    {QT_TRANSLATE_NOOP(
        "ProblemWords",
        "Version %1 is newer than version %2, the newest that this application reads.")},
    {QT_TRANSLATE_NOOP("ProblemWords", "There is no version %1.")},
    {QT_TRANSLATE_NOOP("ProblemWords", "It is JSON of another kind, not a schedule.")},
    {QT_TRANSLATE_NOOP("ProblemWords", "It is not a schedule: “format” is missing.")},
    {QT_TRANSLATE_NOOP("ProblemWords", "“%1” is missing.")},
    {QT_TRANSLATE_NOOP("ProblemWords", "“%1” is not known here.")},
    {QT_TRANSLATE_NOOP("ProblemWords", "“%1” occurs twice here.")},

    {QT_TRANSLATE_NOOP("ProblemWords", "It is a folder.")},
    {QT_TRANSLATE_NOOP("ProblemWords", "It is a pipe, not a file.")},
    {QT_TRANSLATE_NOOP("ProblemWords", "It is a socket, not a file.")},
    {QT_TRANSLATE_NOOP("ProblemWords", "It is a device, not a file.")},
    {QT_TRANSLATE_NOOP("ProblemWords", "It is not a file.")},
    {QT_TRANSLATE_NOOP("ProblemWords", "Nothing comes through the pipe.")},

    {QT_TRANSLATE_NOOP("ProblemWords", "The file does not exist.")},
    {QT_TRANSLATE_NOOP("ProblemWords", "You do not have permission to read it.")},
    {QT_TRANSLATE_NOOP("ProblemWords", "It cannot be opened. %1")},
    {QT_TRANSLATE_NOOP("ProblemWords", "The file is empty.")},
    {QT_TRANSLATE_NOOP("ProblemWords", "Its name is not in UTF-8. Rename the file to import it.")},
    {QT_TRANSLATE_NOOP("ProblemWords", "Addresses of this kind cannot be played.")},
    {QT_TRANSLATE_NOOP("ProblemWords",
                       "It is a file on another computer. Copy it to this computer first.")},
    {QT_TRANSLATE_NOOP("ProblemWords", "It is not a media file, or it is damaged.")},
    {QT_TRANSLATE_NOOP("ProblemWords", "Files of this format cannot be imported.")},
    {QT_TRANSLATE_NOOP("ProblemWords", "Its content cannot be read.")},
    {QT_TRANSLATE_NOOP("ProblemWords", "The image in it cannot be read.")},
    {QT_TRANSLATE_NOOP("ProblemWords", "It contains neither picture nor sound.")},
    {QT_TRANSLATE_NOOP("ProblemWords", "Its length cannot be determined.")},
    {QT_TRANSLATE_NOOP("ProblemWords", "It could not be read in time.")},
    {QT_TRANSLATE_NOOP("ProblemWords", "The media reader crashed while reading it.")},
    {QT_TRANSLATE_NOOP("ProblemWords", "The media reader gave no valid answer about it.")},
    {QT_TRANSLATE_NOOP("ProblemWords", "Media cannot be read. The media reader is missing: %1")},
    {QT_TRANSLATE_NOOP("ProblemWords",
                       "Media cannot be read. The media reader %1 cannot be started. %2")},
    {QT_TRANSLATE_NOOP("ProblemWords",
                       "Media cannot be read. The media reader %1 does not answer.")},
    {QT_TRANSLATE_NOOP("ProblemWords",
                       "Media cannot be read. The media reader %1 exits immediately.")},
    {QT_TRANSLATE_NOOP("ProblemWords",
                       "Media cannot be read. The media reader %1 is of another version.")},

    {QT_TRANSLATE_NOOP("ProblemWords", "There is no version %1.")},
    {QT_TRANSLATE_NOOP("ProblemWords", "Version %1 is damaged.")},
    {QT_TRANSLATE_N_NOOP("ProblemWords",
                         "The name or the note of a version is longer than %n characters."),
     0},
    {QT_TRANSLATE_NOOP("ProblemWords",
                       "The name or the note of a version contains a character that is not "
                       "visible.")},
};
static_assert(std::size(kFaults) == kFaultCodes);

/// In the order of the problems. %1 is the file, %2 the cause.
constexpr Pattern kStoreProblemTexts[] = {
    {""},
    {QT_TRANSLATE_NOOP("ProblemWords", "No schedule file is open, so nothing can be saved.")},
    {QT_TRANSLATE_NOOP("ProblemWords", "%1 cannot be opened. Its folder does not exist.")},
    {QT_TRANSLATE_NOOP("ProblemWords", "%1 does not exist.")},
    {QT_TRANSLATE_NOOP("ProblemWords", "%1 is not a schedule database.")},
    {QT_TRANSLATE_NOOP("ProblemWords", "%1 is a database of another application.")},
    {QT_TRANSLATE_NOOP("ProblemWords", "%1 was written by a newer version of this application.")},
    {QT_TRANSLATE_NOOP(
        "ProblemWords",
        "%1 is in use by another application. Try again when that application is closed.")},
    {QT_TRANSLATE_NOOP("ProblemWords", "%1 cannot be written. %2")},
    {QT_TRANSLATE_NOOP("ProblemWords", "%1 is damaged. %2")},
    {QT_TRANSLATE_NOOP("ProblemWords", "%1 cannot be written. %2")},
    {QT_TRANSLATE_NOOP("ProblemWords",
                       "%1 has been saved by another application in the meantime. Saving now would "
                       "overwrite those changes.")},
    {QT_TRANSLATE_NOOP("ProblemWords", "%1 has no room for more programs. %2")},
    {QT_TRANSLATE_NOOP("ProblemWords", "%1 could not be read or written. %2")},
    {QT_TRANSLATE_NOOP("ProblemWords",
                       "%1 is not a schedule database as this application creates it. %2")},
    {QT_TRANSLATE_NOOP("ProblemWords", "%1 exceeds what a schedule can hold. %2")},
    {QT_TRANSLATE_NOOP(
        "ProblemWords",
        "%1 may not have been written. %2 The change is not visible in the file now, "
        "but may be there after a restart of the computer. Write the schedule to "
        "another disk, and check the current one before you go on.")},
};
static_assert(std::size(kStoreProblemTexts) == kStoreProblems);

/// Of a change on a server of which no answer came: another disk would help nobody there.
constexpr char kUnanswered[] = QT_TRANSLATE_NOOP(
    "ProblemWords",
    "It is not certain whether %1 has been written. %2 Once the server can be reached again, see "
    "whether the change is there before you go on.");

/// A schedule on a server is never made by opening it.
constexpr char kNotSetUp[] = QT_TRANSLATE_NOOP(
    "ProblemWords", "%1 does not exist. A schedule on a server is set up with “schedulectl "
                    "server-setup”.");

const char* patternOf(const StoreResult& result)
{
    if (result.problem == StoreProblem::FileMissing && StorePlace::isAddress(result.path)) {
        return kNotSetUp;
    }
    return result.cause.code == FaultCode::AnswerLost
               ? kUnanswered
               : kStoreProblemTexts[static_cast<int>(result.problem)].text;
}

QString translated(const char* text, int number = -1)
{
    return *text == '\0' ? QString() : QCoreApplication::translate(kContext, text, nullptr, number);
}

/// Puts texts into the places of a pattern. What looks like a place within a text stays as it is.
QString filled(const QString& pattern, const QStringList& texts)
{
    QString text;
    for (int at = 0; at < pattern.size(); ++at) {
        const int place = pattern.at(at) == QLatin1Char('%') && at + 1 < pattern.size()
                              ? pattern.at(at + 1).digitValue()
                              : -1;
        if (place >= 1) {
            text += texts.value(place - 1);
            ++at;
        } else {
            text += pattern.at(at);
        }
    }
    return text.trimmed();
}

/// What the system says of an error, in the language that was chosen instead of its own.
QString systemSentence(int error)
{
    switch (error) {
    case ENOMEM:
        return problems::sentence(Fault{FaultCode::NoMemory, {}});
    case ENOSPC:
        return problems::sentence(Fault{FaultCode::DiskFull, {}});
    case EDQUOT:
        return problems::sentence(Fault{FaultCode::QuotaUsedUp, {}});
    case EFBIG:
        return problems::sentence(Fault{FaultCode::FileSizeLimit, {}});
    case EIO:
        return problems::sentence(Fault{FaultCode::DiskError, {}});
    case EISDIR:
        return problems::sentence(Fault{FaultCode::IsFolder, {}});
    case EACCES:
    case EPERM:
        return translated(QT_TRANSLATE_NOOP("ProblemWords", "You do not have permission."));
    case ENOENT:
    case ENOTDIR:
        return translated(
            QT_TRANSLATE_NOOP("ProblemWords", "The file or a folder of its path does not exist."));
    case EROFS:
        return translated(QT_TRANSLATE_NOOP("ProblemWords", "The disk is read-only."));
    case ENAMETOOLONG:
        return translated(QT_TRANSLATE_NOOP("ProblemWords", "The name is too long."));
    case EMFILE:
    case ENFILE:
        return translated(QT_TRANSLATE_NOOP("ProblemWords", "Too many files are open."));
    case EBUSY:
    case ETXTBSY:
        return translated(QT_TRANSLATE_NOOP("ProblemWords", "The file is in use."));
    default:
        return translated(QT_TRANSLATE_NOOP("ProblemWords", "The system reports error %1."))
            .arg(error);
    }
}

/// A kind of value in JSON.
QString kindText(const QString& name)
{
    struct Kind
    {
        const char* name;
        const char* text;
    };
    static constexpr Kind kKinds[] = {
        {"boolean", QT_TRANSLATE_NOOP("ProblemWords", "true or false")},
        {"number", QT_TRANSLATE_NOOP("ProblemWords", "number")},
        {"text", QT_TRANSLATE_NOOP("ProblemWords", "text")},
        {"array", QT_TRANSLATE_NOOP("ProblemWords", "list")},
        {"object", QT_TRANSLATE_NOOP("ProblemWords", "object")},
        {"null", QT_TRANSLATE_NOOP("ProblemWords", "nothing")},
        {"wholeNumber", QT_TRANSLATE_NOOP("ProblemWords", "whole number")},
        {"wholeNumberText", QT_TRANSLATE_NOOP("ProblemWords", "whole number as text")},
        {"programNumber", QT_TRANSLATE_NOOP("ProblemWords", "program number that occurs once")},
        {"otherNumber", QT_TRANSLATE_NOOP("ProblemWords", "another number")},
        {"hash", QT_TRANSLATE_NOOP("ProblemWords", "SHA-256 hash")},
        {"otherText", QT_TRANSLATE_NOOP("ProblemWords", "another text")},
    };
    for (const Kind& kind : kKinds) {
        if (name == QLatin1String(kind.name)) {
            return translated(kind.text);
        }
    }
    return name;
}

/// The arguments in the language that was chosen.
QStringList wordedArguments(const Fault& fault)
{
    QStringList texts = fault.arguments;
    switch (fault.code) {
    case FaultCode::DatabaseOnSystem:
    case FaultCode::CannotOpen:
    case FaultCode::ReaderDoesNotStart:
        texts.last() = systemSentence(texts.last().toInt());
        break;
    case FaultCode::OtherKind:
        texts = QStringList{kindText(fault.text(0)), kindText(fault.text(1))};
        break;
    case FaultCode::OtherKindThanWord:
        texts.last() = kindText(fault.text(1));
        break;
    default:
        break;
    }
    return texts;
}

} // namespace

namespace problems {

QString sentence(const Fault& fault)
{
    if (fault.code == FaultCode::System) {
        return systemSentence(fault.number(0));
    }
    const Pattern& pattern = kFaults[static_cast<int>(fault.code)];
    const int number = pattern.counted < 0 ? -1 : fault.number(pattern.counted);
    return filled(translated(pattern.text, number), wordedArguments(fault));
}

QString sentence(const StoreResult& result)
{
    return filled(translated(patternOf(result)),
                  {QDir::toNativeSeparators(result.path), sentence(result.cause)});
}

QString unreadable(const QString& file, const Fault& fault)
{
    return filled(translated(QT_TRANSLATE_NOOP("ProblemWords", "%1 could not be read. %2")),
                  {QDir::toNativeSeparators(file), sentence(fault)});
}

QString unreadable(const QString& file, const ScheduleFromJson& schedule)
{
    return filled(translated(QT_TRANSLATE_NOOP("ProblemWords", "%1 could not be read. %2")),
                  {QDir::toNativeSeparators(file), sentence(schedule)});
}

QString sentence(const ScheduleFromJson& schedule)
{
    const QString reason = sentence(schedule.fault);
    return schedule.place.isEmpty()
               ? reason
               : filled(translated(QT_TRANSLATE_NOOP("ProblemWords", "Line %1, %2: %3")),
                        {QString::number(schedule.line), schedule.place, reason});
}

QString unwritable(const QString& file, const Fault& fault)
{
    return filled(translated(QT_TRANSLATE_NOOP("ProblemWords", "%1 cannot be written. %2")),
                  {QDir::toNativeSeparators(file), sentence(fault)});
}

} // namespace problems

} // namespace trel::desktop
