#include "CommandTable.h"

#include "catalogue/CatalogueCommands.h"
#include "language/LanguageCommands.h"
#include "schedule/ExchangeCommands.h"
#include "schedule/ScheduleCommands.h"
#include "screen/ScreenCommands.h"

const std::vector<Command>& allCommands()
{
    static const std::vector<Command> commands = {
        {"import", "PATH...", 1, Command::kAnyNumber, true,
         "Put media files and folders into the catalog",
         R"(Puts media into the catalog of programs. PATH is a media file, a folder, from
which every media file is taken with everything below it, or the address of a
live source such as rtsp://host/stream. A file that is in the catalog already
is read again and keeps its index, so importing a folder twice is harmless.
The database is made when it does not exist.

What cannot become a program is refused: it is listed on the standard error with
the reason, everything else is imported, and the exit status is 1. Files in a
folder whose names do not look like media are skipped silently. Nothing is
written until all paths have been looked at, so an import that is interrupted
leaves the catalog as it was.

Progress is shown only on a terminal.)",
         runImport},
        {"programs", "", 0, 0, true, "List the programs of the catalog",
         R"(Lists the programs with index, name, kind, length and file. A program whose file
is no longer there is marked as gone.)",
         runPrograms},
        {"remove-program", "INDEX...", 1, Command::kAnyNumber, false,
         "Take programs out of the catalog",
         R"(Takes the programs of these indexes out of the catalog; their files are left
alone. "schedulectl programs" shows the indexes. Plans that use the programs
keep their entries, which are marked as invalid from then on. The indexes are
never given out again.

All of them are removed, or none: where the catalog does not have one of them,
it is named on the standard error, and the exit status is 1.)",
         runRemoveProgram},
        {"show", "", 0, 0, true, "Show the tasks and their plans",
         R"(Shows every task with its plans, as they were last saved. The end of a plan that
plays a number of times is worked out from its programs. A plan that collides
with an earlier plan of its task is marked.)",
         runShow},
        {"check", "", 0, 0, true, "Find what a save would refuse, and plans that collide",
         R"(Looks at the saved schedule and lists
  - the tasks whose periods overlap: the editor refuses to save them,
  - the plans that collide with an earlier plan of their task,
  - remarks: dates and times that are not in their form, periods that end
    before they begin, days, modes and end actions that are none, lists that
    run less than once.

The exit status is 0 when there are neither overlaps nor collisions, and 1
otherwise. Remarks do not count.)",
         runCheck},
        {"now",
         "",
         0,
         0,
         true,
         "Show what is on screen, and what comes next",
         R"(Shows what the saved schedule has on screen at a moment: the program, with the
position in it, its entry, play and run, the plan, until when, and the rule that
makes it so; and the next program and the next plan with their moments.

A moment is a date and a time of day, such as "2024-03-31 08:00:00" or
2024-03-31T08:00; the seconds may be left out, and a time alone is one of today.
Times are local unless an offset such as +01:00, or Z, follows. A time that the
clock skips is taken as the first moment after the gap, one that occurs twice as
the first of the two; either is reported on standard error.)",
         runNow,
         true,
         {{"--at", "MOMENT", "The moment; defaults to now."}}},
        {"timeline",
         "",
         0,
         0,
         true,
         "List what is on screen from one moment to another",
         R"(Lists what the saved schedule has on screen from one moment to another: a line
for each time that a plan is on screen without a break, and one for each
stretch between. The first line starts when its state began, even before --from,
and the last line ends when its state ends.

Moments are written as for "schedulectl now"; a date alone is the start of that
day.)",
         runTimeline,
         true,
         {{"--from", "MOMENT", "The first moment.", true},
          {"--to", "MOMENT", "The moment before which the list ends.", true},
          {"--plays", "", "A line for each play of a program."}}},
        {"why",
         "PROGRAM",
         1,
         1,
         true,
         "Tell why a program plays, or what keeps it away",
         R"(Tells whether the saved schedule shows a program at a moment. If not, it names
for every plan that holds the program the rule that kept it away, and what is on
screen instead.

PROGRAM is an index, a name, or a part of a name that only one program has.
Moments are written as for "schedulectl now".)",
         runWhy,
         true,
         {{"--at", "MOMENT", "The moment; defaults to now."}}},
        {"run", "", 0, 0, true, "Execute the schedule on the terminal",
         R"(Puts the saved schedule into effect and writes a line for each event: when it
is, what is on screen, until when, and the rule that makes it so. What another
program saves meanwhile is taken over at once.

Sleeps between the events. Ends with status 0 when it is interrupted or told to
terminate (SIGINT, SIGTERM). With --json each line is an object by itself.)",
         runSchedule},
        {"export", "FILE", 1, 1, false, "Write the schedule to a JSON file",
         R"(Writes all tasks, with every field, to FILE as JSON; "-" is the standard output.
A file that exists is replaced, in one step. The same schedule always gives the
same bytes. The catalog is not part of the file.)",
         runExport},
        {"import-schedule", "FILE", 1, 1, false, "Replace the schedule by one from a JSON file",
         R"(Reads the schedule in FILE, in the form that "schedulectl export" writes, and
puts it in the place of the one in the database; "-" is the standard input. The
database is made when it does not exist.

The file is read as a whole or not at all: what is wrong in it is named with its
place, and the database is left as it was. A schedule with overlapping tasks is
taken, since it can be put right in the editor; "schedulectl check" finds them.
Entries of programs that the catalog does not have become invalid, so import
the programs first, in the order of their indexes.)",
         runImportSchedule},
        {"check-language", "FILE", 1, 1, true, "Find what is wrong in a translation",
         R"(Looks at the texts that a translator has written for the editor or for the
desktop host. FILE is a source file of the Linguist (.ts) or the compiled file
that is loaded (.qm); its contexts tell whose it is. Listed are
  - texts that are missing, empty, unfinished or there more than once,
  - texts that are not known,
  - words that the table of terms has another one for;
in a file of the editor
  - days, and entries of the chooser's menu, that are called the same, since the
    editor tells them apart by their texts,
  - characters that the editor takes for something else,
  - captions that are too long for their cells;
in a file of the host
  - places for numbers and names that are lost, or that the text does not have,
  - plurals that do not have the forms of their language,
  - entries of menus without a letter, or with that of another entry.

No font is loaded. Lengths are worked out from the letter widths of the font
that the editor is shipped with, on the safe side: what passes here is not cut.
Only captions in cells of a fixed size are looked at; the window gives way to
others.

The exit status is 0 when nothing is listed, and 1 otherwise.)",
         runCheckLanguage, false},
    };
    return commands;
}
