#include "faults/FaultWords.h"

#include <QDir>
#include <QMap>
#include <QStringList>

#include <iterator>

namespace trel::mediadispatch {

namespace {

struct Words
{
    const char* name;
    const char* english; ///< A part of a sentence; %1 and so on stand for the arguments.
};

/// In the order of the codes.
constexpr Words kWords[] = {
    {"", ""},
    {"system", "%1"},
    {"noMemory", "there is not enough memory"},
    {"diskFull", "the disk is full"},
    {"quotaUsedUp", "the user's share of the disk is used up"},
    {"fileSizeLimit", "the system lets this program write no larger file"},

    {"fileReadOnly", "the file or its folder is read-only"},
    {"openedForReading", "it was opened for reading only"},
    {"readTooSlow", "reading it took too long"},
    {"storedTextTooLong", "a text in it has more than %1 bytes"},
    {"database", "%2"},
    {"databaseOnSystem", "%2 (%3)"},
    {"databaseCheck", "%1"},
    {"diskError", "disk I/O error"},
    {"rowMissing", "a row that must be there is missing"},
    {"otherDriver", "the database driver is not the one that this program was made for"},
    {"logAlone", "it has gone or is empty, yet its log %1 is still there"},
    {"noPlaceForFile", "no file can be put there"},
    {"foreignLog", "its log %1 belongs to another copy of it; put the file that it belongs to "
                   "back, or move the log away to go on without it"},
    {"logWithoutIndex", "its log has no index, and where nothing can be written none can be made; "
                        "copy both to another folder"},
    {"fileReplaced", "it was removed or replaced since it was opened"},
    {"programTextTooLong", "the name or the path of a program has more than %1 bytes"},
    {"numbersUsedUp", "all %1 numbers for programs have been given out"},
    {"plansUnfitting", "its plans do not fit together"},
    {"partMissing", "its %2 \"%1\" is missing"},
    {"partUnknown", "it holds the %2 \"%1\""},
    {"partAltered", "its %2 \"%1\" is another one"},
    {"stateMissing", "it does not say which state it is in"},
    {"schemaOlder", "it was made by an older version of this program; set up the server again"},
    {"addressPassword", "the address contains a password; passwords belong in a password file"},
    {"addressUnfit", "the address of a schedule on a server has the form %1"},
    {"scheduleNameUnfit", "the name of the schedule in the address is missing, too long or not "
                          "readable"},
    {"answerLost", "the connection was lost before the server answered"},
    {"serverSilent", "the server does not answer"},

    {"tooManyTasks", "there are more than %1 tasks"},
    {"tooManyPlans", "there are more than %1 plans"},
    {"tooManyEntries", "there are more than %1 entries of programs"},
    {"tooManyListNumbers", "there are more than %1 numbers in the lists of plans"},
    {"tooManyPrograms", "there are more than %1 programs"},
    {"taskTextTooLong", "a text of task %1 has more than %2 bytes"},

    {"jsonTooLarge", "it has more than %1 bytes"},
    {"jsonTooManyValues", "there are more than %1 values"},
    {"jsonNameTooLong", "a name on line %1 has more than %2 bytes"},
    {"jsonStringTooLong", "a text on line %1 has more than %2 bytes"},
    {"notJson", "not JSON at line %1, column %2: %3"},
    {"notWholeNumber", "%1 is not written as a whole number"},
    {"beyond32Bits", "%1 does not fit into 32 bits"},
    {"beyond64Bits", "\"%1\" does not fit into 64 bits"},
    {"numberTextUnreadable", "\"%1\" is no whole number"},
    {"otherKind", "%1 is expected here, not %2"},
    {"otherKindThanWord", "%1 or a number is expected here, not %2"},
    {"unknownWord", "%1 or a number is expected here, not \"%2\""},
    {"notBase64", "this text is not in Base64"},
    {"jsonTextTooLong", "this text has %1 bytes, and %2 are the most"},
    {"keyIsNotId", "the key %1 is not the task's id, which is %2"},
    {"idTaken", "the id %1 is the one of tasks[%2] already"},
    {"otherFormat", "this is \"%1\", not \"%2\""},
    {"newerVersion", "%1 is newer than %2, the newest that this program reads"},
    {"noSuchVersion", "there is no version %1"},
    {"noObject", "the top of a schedule is an object; this is JSON of another kind"},
    {"noFormat", "the member \"format\" is missing; this is no schedule"},
    {"memberMissing", "the member \"%1\" is missing"},
    {"memberUnknown", "there is no member \"%1\" here"},
    {"memberTwice", "the member \"%1\" stands here for the second time"},

    {"isFolder", "it is a folder"},
    {"isPipe", "it is a pipe, not a regular file"},
    {"isSocket", "it is a socket, not a regular file"},
    {"isDevice", "it is a device, not a regular file"},
    {"notAFile", "it is not a file"},
    {"pipeSilent", "nothing came through the pipe for %1 seconds"},

    {"fileMissing", "there is no such file"},
    {"noPermission", "you do not have permission to read it"},
    {"cannotOpen", "it cannot be opened: %1"},
    {"emptyFile", "it is empty"},
    {"foreignName", "its name is not UTF-8; it can be imported under another one"},
    {"addressNotPlayed", "addresses of this kind are not played"},
    {"remoteFile", "it is a file on another machine; copy it here first"},
    {"noMedia", "it is not a media file, or it is damaged"},
    {"formatNotImported", "files of this format are not imported"},
    {"contentUnreadable", "its content cannot be read"},
    {"pictureUnreadable", "the picture in it cannot be read"},
    {"noPictureNorSound", "it holds neither picture nor sound"},
    {"lengthUnreadable", "its length cannot be read"},
    {"mediaTooSlow", "it could not be read within %1 seconds"},
    {"readerCrashed", "reading it made the media reader crash"},
    {"readerAnswersBadly", "the media reader gave no valid answer about it"},
    {"readerMissing", "media cannot be read, for a file of this program is missing: %1"},
    {"readerDoesNotStart", "media cannot be read, for a file of this program cannot be started: "
                           "%1: %2"},
    {"readerDoesNotAnswer", "media cannot be read, for a file of this program cannot be started: "
                            "%1: it does not answer"},
    {"readerEndsAtOnce", "media cannot be read, for a file of this program cannot be started: "
                         "%1: it ends at once"},
    {"readerOfOtherVersion", "media cannot be read, for a file of this program cannot be started: "
                             "%1: it is of another version"},

    {"versionUnknown", "it has no version %1"},
    {"versionDamaged", "its version %1 is damaged"},
    {"versionTextTooLong", "a name or a note of a version has more than %1 characters"},
    {"versionTextHidden", "a name or a note of a version has a character that does not show"},
};
static_assert(std::size(kWords) == kFaultCodes);

constexpr Words kStoreWords[] = {
    {"", ""},
    {"notOpen", "No schedule file is open, so nothing can be saved."},
    {"folderMissing", "%1 cannot be opened: its folder does not exist."},
    {"fileMissing", "%1 does not exist."},
    {"notADatabase", "%1 is not a schedule database."},
    {"foreign", "%1 is a database of another program."},
    {"newerSchema", "%1 was written by a newer version of this program."},
    {"locked", "%1 is in use by another program; try again when that program has closed."},
    {"readOnly", "%1 cannot be written: %2."},
    {"damaged", "%1 is damaged: %2."},
    {"diskFull", "%1 cannot be written: %2."},
    {"movedOn", "%1 has been saved by another program since it was read; saving now would "
                "overwrite those changes."},
    {"full", "%1 has no room for so many programs: %2."},
    {"other", "%1 could not be read or written: %2."},
    {"altered", "%1 is not as this program makes a schedule database: %2."},
    {"tooLarge", "%1 would hold, or holds, more than a schedule may: %2."},
    {"unclear", "%1 could not be written for certain: %2. The change is not to be seen in the file "
                "now, yet it may be there after the machine has stopped. Write what you have to "
                "another disk, and look at this one before you go on."},
};
static_assert(std::size(kStoreWords) == kStoreProblems);

/// Of a change on a server of which no answer came: another disk would help nobody there.
constexpr char kUnanswered[] =
    "%1 may have been written, or not: %2. Once the server can be reached again, see whether the "
    "change is there before you go on.";

const char* patternOf(const StoreResult& result)
{
    return result.cause.code == FaultCode::AnswerLost
               ? kUnanswered
               : kStoreWords[static_cast<int>(result.problem)].english;
}

const Words& wordsOf(FaultCode code)
{
    return kWords[static_cast<int>(code)];
}

/// Puts texts into the places of a pattern. What looks like a place within a text stays as it is.
QString filled(const char* pattern, const QStringList& texts)
{
    QString text;
    for (const char* next = pattern; *next != '\0'; ++next) {
        if (*next == '%' && next[1] >= '1' && next[1] <= '9') {
            ++next;
            text += texts.value(*next - '1');
        } else {
            text += QLatin1Char(*next);
        }
    }
    return text;
}

/// A kind of value in JSON, by its name.
QString kindText(const QString& name)
{
    static const QMap<QString, QString> texts = {
        {QStringLiteral("null"), QStringLiteral("null")},
        {QStringLiteral("boolean"), QStringLiteral("true or false")},
        {QStringLiteral("number"), QStringLiteral("a number")},
        {QStringLiteral("text"), QStringLiteral("a text")},
        {QStringLiteral("array"), QStringLiteral("an array")},
        {QStringLiteral("object"), QStringLiteral("an object")},
        {QStringLiteral("wholeNumber"), QStringLiteral("a whole number")},
        {QStringLiteral("wholeNumberText"), QStringLiteral("a whole number written as a text")},
        {QStringLiteral("programNumber"),
         QStringLiteral("a number from 0 to 65535 that no other program has")},
        {QStringLiteral("otherNumber"), QStringLiteral("another number")},
        {QStringLiteral("hash"),
         QStringLiteral("a SHA-256 in 64 small hexadecimal digits, or an empty text")},
        {QStringLiteral("otherText"), QStringLiteral("another text")},
        {QStringLiteral("size"), QStringLiteral("a size in bytes above 0")},
    };
    return texts.value(name);
}

void wordSystemError(QString& argument)
{
    argument = qt_error_string(argument.toInt());
}

/// The arguments as the English words take them.
QStringList wordedArguments(const Fault& fault)
{
    QStringList texts = fault.arguments;
    switch (fault.code) {
    case FaultCode::System:
    case FaultCode::DatabaseOnSystem:
    case FaultCode::CannotOpen:
    case FaultCode::ReaderDoesNotStart:
        wordSystemError(texts.last());
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

QString faultName(FaultCode code)
{
    return QLatin1String(wordsOf(code).name);
}

QString storeProblemName(StoreProblem problem)
{
    return QLatin1String(kStoreWords[static_cast<int>(problem)].name);
}

QString englishClause(const Fault& fault)
{
    return filled(wordsOf(fault.code).english, wordedArguments(fault));
}

QString englishSentence(const Fault& fault)
{
    QString text = englishClause(fault);
    if (!text.isEmpty()) {
        text[0] = text.at(0).toUpper();
        text += QLatin1Char('.');
    }
    return text;
}

QString englishText(const StoreResult& result)
{
    return filled(patternOf(result),
                  {QDir::toNativeSeparators(result.path), englishClause(result.cause)});
}

QString englishText(const ScheduleFromJson& schedule)
{
    const QString reason = englishClause(schedule.fault);
    return schedule.place.isEmpty()
               ? reason
               : filled("%1 (line %2): %3",
                        {schedule.place, QString::number(schedule.line), reason});
}

} // namespace trel::mediadispatch
