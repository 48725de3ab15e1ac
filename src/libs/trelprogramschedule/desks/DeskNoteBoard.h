#pragma once

#include "trelprogramschedule/desks/DeskNote.h"

#include <QtGlobal>

#include <vector>

namespace trel::mediadispatch {

/// Where the programs that have a store open for editing leave a note each for the others. Whatever
/// goes wrong there is left out: no desk is ever in the way of another, or of a save. Any one
/// thread.
class DeskNoteBoard
{
public:
    DeskNoteBoard() = default;
    /// Takes the own note away.
    virtual ~DeskNoteBoard() = default;
    Q_DISABLE_COPY(DeskNoteBoard)

    /// Puts a note in the place of the former one. The desk is that of the board; of the tasks the
    /// first ones are told. False where it cannot be written: it can be tried again.
    virtual bool write(const DeskNote& note) = 0;
    /// Takes the own note away, if there is one.
    virtual void withdraw() = 0;
    /// To be called every few seconds while there is an own note. False where it is not there any
    /// more.
    virtual bool renew() = 0;
    /// Those of all other programs that run, in the order of their desks.
    virtual std::vector<DeskNote> others() const = 0;
};

} // namespace trel::mediadispatch
