#pragma once

#include "StoreEngine.h"
#include "trelprogramschedule_export.h"

#include <chrono>
#include <memory>

namespace trel::mediadispatch {

class DeskNoteBoard;

/// The engine that keeps the store at a place. Throws StoreError where the place has a flaw; what
/// is thrown does not repeat the place then, since there may be a password in it. A server that
/// does not answer is given up after so long, three seconds at least, or after its usual time for
/// 0.
std::unique_ptr<StoreEngine> engineFor(const QString& place, StoreOpenMode mode,
                                       StoreEngine::Look look,
                                       std::chrono::milliseconds patience = {});

/// A connection that reads the store at a place beside the one that is open on it. Throws the same,
/// and waits as long.
std::unique_ptr<StoreConnection> readerFor(const QString& place,
                                           std::chrono::milliseconds patience = {});

/// Where desks leave their notes on the store at a place. Null where the place has a flaw.
std::unique_ptr<DeskNoteBoard> deskNotesFor(const QString& place, const QString& desk);

/// Why a text is no address of a store on a server; nothing where it is one. A password in it is
/// not repeated.
TRELPROGRAMSCHEDULE_EXPORT Fault faultOfAddress(const QString& text);

/// Makes what a store at an address needs on its server, or brings it up to this program; see
/// PostgresSetup. A place that is no address, or has a flaw, is refused with Other, and not
/// repeated.
TRELPROGRAMSCHEDULE_EXPORT StoreResult setUpStore(const QString& address);
/// The roles of a server whose members write all schedules there, and read them.
TRELPROGRAMSCHEDULE_EXPORT QString deskRole();
TRELPROGRAMSCHEDULE_EXPORT QString screenRole();

} // namespace trel::mediadispatch
