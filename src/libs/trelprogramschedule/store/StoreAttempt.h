#pragma once

#include "StoreConnection.h"

#include <new>

namespace trel::mediadispatch {

/// Takes no memory itself.
inline StoreResult lackOfMemory(const QString& path)
{
    return {StoreProblem::Other, path, {FaultCode::NoMemory, {}}};
}

/// Turns the errors of the database within an action on a store into its result.
template <typename Action>
StoreResult attempt(const QString& path, const Action& action)
{
    try {
        action();
        return {};
    } catch (const StoreError& error) {
        return error.result;
    } catch (const std::bad_alloc&) {
        return lackOfMemory(path);
    }
}

} // namespace trel::mediadispatch
