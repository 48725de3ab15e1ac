#pragma once

#include <QString>
#include <QStringList>

namespace trel::mediadispatch {

/// Why something could not be done. Beside each stands what its words take, in this order. Numbers
/// are in plain digits, errors of the system are its numbers (errno), and paths are as given.
enum class FaultCode {
    None,

    // the machine
    System, ///< The number of the error.
    NoMemory,
    DiskFull,
    QuotaUsedUp,   ///< What the user may take of the disk.
    FileSizeLimit, ///< The system lets the program write no larger file.

    // the store
    FileReadOnly, ///< The file or its folder.
    OpenedForReading,
    ReadTooSlow,
    StoredTextTooLong, ///< The most bytes.
    Database,          ///< The database's code, its own words.
    DatabaseOnSystem,  ///< The database's code, its own words, the number of the error.
    DatabaseCheck,     ///< What the database's check of itself has found, in its own words.
    DiskError,
    RowMissing,
    OtherDriver,
    LogAlone, ///< The name of the log, whose file is missing or empty.
    NoPlaceForFile,
    ForeignLog, ///< The log, which belongs to another copy of the file.
    LogWithoutIndex,
    FileReplaced,       ///< It was removed or replaced since it was opened.
    ProgramTextTooLong, ///< The most bytes of a program's name or path.
    NumbersUsedUp,      ///< How many numbers for programs there are.
    PlansUnfitting,
    PartMissing, ///< The name of what the database lacks, and its kind, such as "table".
    PartUnknown, ///< The same of what it holds and should not.
    PartAltered, ///< The same of what it has in another form.
    StateMissing,
    SchemaOlder,       ///< A server is brought up to a newer schema by its setup alone.
    AddressPassword,   ///< Of a store on a server; the password is not told.
    AddressUnfit,      ///< The form of an address.
    ScheduleNameUnfit, ///< The name of a schedule on a server is missing, too long or hidden.
    AnswerLost,        ///< The way to the server was cut before it told what became of a change.
    ServerSilent,      ///< The server did not answer for longer than it takes for anything.

    // what a schedule may hold at most
    TooManyTasks,       ///< The most of them.
    TooManyPlans,       ///< The most of them.
    TooManyEntries,     ///< The most of them.
    TooManyListNumbers, ///< The most of them.
    TooManyPrograms,    ///< The most of them.
    TaskTextTooLong,    ///< The task's id, the most bytes.

    // the JSON form of a schedule
    JsonTooLarge,         ///< The most bytes.
    JsonTooManyValues,    ///< The most of them.
    JsonNameTooLong,      ///< The line, the most bytes.
    JsonStringTooLong,    ///< The line, the most bytes.
    NotJson,              ///< The line, the column, the parser's words.
    NotWholeNumber,       ///< The number.
    Beyond32Bits,         ///< The number.
    Beyond64Bits,         ///< The text.
    NumberTextUnreadable, ///< The text.
    OtherKind,            ///< The kind that belongs there, the kind that was found: jsonKindName().
    OtherKindThanWord,    ///< The words that may stand there, the kind that was found.
    UnknownWord,          ///< The words that may stand there, the text that was found.
    NotBase64,
    JsonTextTooLong, ///< Its bytes, the most bytes.
    KeyIsNotId,      ///< The key, the id.
    IdTaken,         ///< The id, the place of the task that has it, from 0.
    OtherFormat,     ///< The name that was found, the name that belongs there.
    NewerVersion,    ///< The version, the newest that is read.
    NoSuchVersion,   ///< The version.
    NoObject,        ///< The top of the JSON is none.
    NoFormat,        ///< The member that names the format is missing.
    MemberMissing,   ///< Its name.
    MemberUnknown,   ///< Its name.
    MemberTwice,     ///< Its name.

    // files that are read or written as a whole
    IsFolder,
    IsPipe,
    IsSocket,
    IsDevice,
    NotAFile,   ///< But a folder, a device or the like.
    PipeSilent, ///< For how many seconds.

    // media and addresses
    FileMissing,
    NoPermission,
    CannotOpen, ///< The number of the error.
    EmptyFile,
    ForeignName, ///< The name is not UTF-8.
    AddressNotPlayed,
    RemoteFile,
    NoMedia,
    FormatNotImported,
    ContentUnreadable,
    PictureUnreadable,
    NoPictureNorSound,
    LengthUnreadable,
    MediaTooSlow, ///< How many seconds it was given.
    ReaderCrashed,
    ReaderAnswersBadly,
    ReaderMissing,        ///< Where it was looked for.
    ReaderDoesNotStart,   ///< Its file, the number of the error.
    ReaderDoesNotAnswer,  ///< Its file.
    ReaderEndsAtOnce,     ///< Its file.
    ReaderOfOtherVersion, ///< Its file.

    // versions of the schedule
    VersionUnknown,     ///< The number that no version has, or has any more.
    VersionDamaged,     ///< The number of the version.
    VersionTextTooLong, ///< The most characters of a name or a note.
    VersionTextHidden,
};

/// How many codes there are; they count from 0.
constexpr int kFaultCodes = static_cast<int>(FaultCode::VersionTextHidden) + 1;

/// A reason as a code and what belongs into its words. It has no words of its own: hosts word it in
/// the operator's language, and FaultWords.h in English.
struct Fault
{
    FaultCode code = FaultCode::None; ///< What went wrong.
    QStringList arguments;            ///< As many as the code takes.

    /// True when there is a reason, which means that something went wrong.
    explicit operator bool() const { return code != FaultCode::None; }

    /// The argument at a place, from 0; empty when there is none.
    QString text(int place) const { return arguments.value(place); }
    /// The same as a number; 0 when it is none.
    int number(int place) const { return arguments.value(place).toInt(); }
};

/// A text as an argument of a fault.
inline QString faultArgument(const QString& text)
{
    return text;
}

/// A number as an argument of a fault.
template <typename Number>
QString faultArgument(Number number)
{
    return QString::number(number);
}

/// A reason from texts and numbers.
template <typename... Arguments>
Fault faultOf(FaultCode code, const Arguments&... arguments)
{
    return {code, {faultArgument(arguments)...}};
}

} // namespace trel::mediadispatch
