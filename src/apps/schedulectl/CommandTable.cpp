#include "CommandTable.h"

#include "CatalogueCommands.h"
#include "ExchangeCommands.h"
#include "LanguageCommands.h"
#include "ScheduleCommands.h"

const std::vector<Command>& allCommands()
{
    static const std::vector<Command> commands = {
        {"import", "PATH...", 1, Command::kAnyNumber, true,
         "Put media files and folders into the catalogue",
         R"(Puts media into the catalogue of programs. PATH is a media file, a folder, from
which every media file is taken with everything below it, or the address of a
live source such as rtsp://host/stream. A file that is in the catalogue already
is read again and keeps its index, so importing a folder twice is harmless.
The database is made when it does not exist.

What cannot become a program is refused: it is listed on the standard error with
the reason, everything else is imported, and the exit status is 1. Files of a
folder that are not even named as media are passed over without a word. Nothing
is written until all paths have been looked at, so an import that is interrupted
leaves the catalogue as it was.

Progress is shown while a person watches.)",
         runImport},
        {"programs", "", 0, 0, true, "List the programs of the catalogue",
         R"(Lists the programs with index, name, kind, length and file. A program whose file
is no longer there is marked as gone.)",
         runPrograms},
        {"remove-program", "INDEX", 1, 1, false, "Take a program out of the catalogue",
         R"(Takes the program of this index out of the catalogue; its file is left alone.
"schedulectl programs" shows the indexes. Plans that use the program keep their
entries, which are marked as invalid from then on. The index is never given out
again.)",
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
    before they begin.

The exit status is 0 when there are neither overlaps nor collisions, and 1
otherwise. Remarks do not count.)",
         runCheck},
        {"export", "FILE", 1, 1, false, "Write the schedule to a JSON file",
         R"(Writes all tasks, with every field, to FILE as JSON; "-" is the standard output.
A file that exists is replaced, in one step. The same schedule always gives the
same bytes. The catalogue is not part of the file.)",
         runExport},
        {"import-schedule", "FILE", 1, 1, false, "Replace the schedule by one from a JSON file",
         R"(Reads the schedule in FILE, in the form that "schedulectl export" writes, and
puts it in the place of the one in the database; "-" is the standard input. The
database is made when it does not exist.

The file is read as a whole or not at all: what is wrong in it is named with its
place, and the database is left as it was. A schedule with overlapping tasks is
taken, since it can be put right in the editor; "schedulectl check" finds them.
Entries of programs that the catalogue does not have become invalid, so import
the programs first, in the order of their indexes.)",
         runImportSchedule},
        {"check-language", "FILE", 1, 1, true, "Find what is wrong in a translation of the editor",
         R"(Looks at the texts that a translator has written for the editor. FILE is a
source file of the Linguist (.ts) or the compiled file that the editor loads
(.qm). Listed are
  - texts that are missing, empty, unfinished or there more than once,
  - texts that the editor does not know,
  - days, and entries of the chooser's menu, that are called the same, since the
    editor tells them apart by their texts,
  - characters that the editor takes for something else,
  - captions that are too long for their cells.

No font is loaded. Lengths are worked out from the letter widths of the font
that the editor is shipped with, on the safe side: what passes here is not cut.
Only captions in cells of a fixed size are looked at; the window gives way to
others.

The exit status is 0 when nothing is listed, and 1 otherwise.)",
         runCheckLanguage, false},
    };
    return commands;
}
