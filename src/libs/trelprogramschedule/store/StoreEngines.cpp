#include "StoreEngines.h"

#include "StoreAttempt.h"
#include "StorePlace.h"
#include "StoreRefusals.h"
#include "desks/DeskNotes.h"
#include "postgres/PostgresConnection.h"
#include "postgres/PostgresDeskNotes.h"
#include "postgres/PostgresSetup.h"
#include "postgres/PostgresStore.h"
#include "sqlite/SqliteConnection.h"
#include "sqlite/SqliteStore.h"

#include <algorithm>
#include <utility>

namespace trel::mediadispatch {

namespace {

Fault causeOf(StorePlace::Flaw flaw)
{
    switch (flaw) {
    case StorePlace::Flaw::Password:
        return {FaultCode::AddressPassword, {}};
    case StorePlace::Flaw::Name:
        return {FaultCode::ScheduleNameUnfit, {}};
    default:
        return faultOf(FaultCode::AddressUnfit,
                       QStringLiteral("postgresql://[user@]host[:port]/database?schedule=NAME"));
    }
}

bool isFlawless(const StorePlace& place)
{
    return place.flaw() == StorePlace::Flaw::None && place.isOnServer();
}

void expectFlawless(const StorePlace& place)
{
    if (!isFlawless(place)) {
        throw StoreError{refusal(StoreProblem::Other, StorePlace::scheme(), causeOf(place.flaw()))};
    }
}

std::chrono::milliseconds fitPatience(std::chrono::milliseconds patience)
{
    return patience.count() == 0 ? PostgresConnection::kPatience
                                 : std::max(patience, PostgresConnection::kLeastPatience);
}

} // namespace

Fault faultOfAddress(const QString& text)
{
    const StorePlace place(text);
    return isFlawless(place) ? Fault() : causeOf(place.flaw());
}

std::unique_ptr<StoreEngine> engineFor(const QString& place, StoreOpenMode mode,
                                       StoreEngine::Look look, std::chrono::milliseconds patience)
{
    if (!StorePlace::isAddress(place)) {
        return std::make_unique<SqliteStore>(place, mode, std::move(look));
    }
    const StorePlace server(place);
    expectFlawless(server);
    return std::make_unique<PostgresStore>(server, mode, std::move(look), fitPatience(patience));
}

std::unique_ptr<StoreConnection> readerFor(const QString& place, std::chrono::milliseconds patience)
{
    if (!StorePlace::isAddress(place)) {
        return std::make_unique<SqliteConnection>(place, SqliteConnection::Access::ReadOnly);
    }
    const StorePlace server(place);
    expectFlawless(server);
    return std::make_unique<PostgresConnection>(server, PostgresConnection::Access::ReadOnly,
                                                fitPatience(patience));
}

std::unique_ptr<DeskNoteBoard> deskNotesFor(const QString& place, const QString& desk)
{
    if (!StorePlace::isAddress(place)) {
        return std::make_unique<DeskNotes>(place, desk);
    }
    const StorePlace server(place);
    return server.flaw() == StorePlace::Flaw::None
               ? std::make_unique<PostgresDeskNotes>(server, desk)
               : nullptr;
}

StoreResult setUpStore(const QString& address)
{
    return attempt(StorePlace::scheme(), [&address] {
        const StorePlace server(address);
        expectFlawless(server);
        if (StoreResult made = PostgresSetup::run(server); !made) {
            throw StoreError{std::move(made)};
        }
    });
}

QString deskRole()
{
    return PostgresSetup::deskRole();
}

QString screenRole()
{
    return PostgresSetup::screenRole();
}

} // namespace trel::mediadispatch
