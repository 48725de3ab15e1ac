#pragma once

#include "store/StoreResult.h"

namespace trel::mediadispatch {

class StorePlace;

/// Makes what a schedule on a server needs, or brings it up to the newest schema: its schema with
/// its tables, each step in a transaction, and the roles by which desks write it and screens read
/// it. What is there already stays. A role that connects is given its rights by making it a member
/// of one of these: GRANT schedule_desk TO somebody.
///
/// Needs a user who may make schemas in the database and, the first time on a server, roles.
class PostgresSetup
{
public:
    /// Foreign, Altered, Damaged or NewerSchema where something else is there under the name, which
    /// is left alone.
    static StoreResult run(const StorePlace& place);

    static QString deskRole();
    static QString screenRole();
};

} // namespace trel::mediadispatch
