#pragma once

#include "StoreConnection.h"
#include "StoreResult.h"

#include <QString>
#include <QtGlobal>

#include <functional>

namespace trel::mediadispatch {

/// What an engine does to keep a store at its place: it opens it, guards it against what else can
/// be done to that place, and gives the connection by which everything else is read and written.
///
/// No member throws StoreError; std::bad_alloc they may.
class StoreEngine
{
public:
    /// Reads, while a store is opened, what will be asked of it. Throws StoreError.
    using Look = std::function<void(const StoreConnection& connection)>;
    using Reading = std::function<void()>;

    StoreEngine() = default;
    virtual ~StoreEngine() = default;
    Q_DISABLE_COPY(StoreEngine)

    /// Where the store is, as messages name it.
    virtual QString path() const = 0;
    /// By what the store itself says which one it is, wherever it stands; empty where its file says
    /// that.
    virtual QString id() const { return {}; }
    /// Opens the store, or makes it. Nothing is written before the look has found it sound; a store
    /// that is refused stays as it is. To be called once.
    virtual StoreResult open() = 0;
    /// Opens what has taken the place of the store that was opened. Where that is refused it can be
    /// tried again.
    virtual StoreResult reopen() = 0;
    /// Null while nothing is open. Valid until the next call of reopen or read.
    virtual const StoreConnection* connection() const = 0;
    /// Whether the store that was opened is still the one at its place.
    virtual bool isInPlace() const = 0;
    /// Whether another program is about to commit. False for a store that is only read.
    virtual bool isBeingWritten() const = 0;
    /// Whether the store can be changed now.
    virtual StoreResult judgeChange() const = 0;
    /// Reads within one state of the store; carries the reading out once more where it was not.
    virtual StoreResult read(const Reading& reading) = 0;
};

} // namespace trel::mediadispatch
