#pragma once

#include "trelprogramschedule/mirror/MirrorNews.h"
#include "trelprogramschedule/store/StoreResult.h"
#include "trelprogramschedule_export.h"

#include <QObject>
#include <QString>

#include <memory>
#include <optional>

namespace trel::mediadispatch {

class StoreEngine;
class StoreNotices;

/// Reads of a schedule on a server what a mirror of it has not, whenever the server tells that
/// there is something, and for as long as it takes where the server is away.
///
/// Lives in a thread of its own, since a server can keep one waiting for half a minute.
class TRELPROGRAMSCHEDULE_EXPORT MirrorSource : public QObject
{
    Q_OBJECT

public:
    /// The address is not asked before begin.
    explicit MirrorSource(QString address);
    ~MirrorSource() override;

    // In the thread that it lives in.

    /// The mirror is in that state. To be called first; end before the thread ends.
    void begin(const MirrorState& mirror);
    void end();
    /// The mirror did not take what was told last, and is in that state. It is read again after a
    /// pause of half a second or more.
    void restart(const MirrorState& mirror);

signals:
    /// What leads from the state that was told last, or from that of begin or restart, to the
    /// present one.
    void told(const trel::mediadispatch::MirrorNewsPointer& news);
    /// The server cannot be read. Comes again for another reason alone.
    void lost(const trel::mediadispatch::StoreResult& reason);
    /// It is read again.
    void found();

private:
    bool look();
    StoreResult read(MirrorNews& news);
    StoreResult open();
    StoreResult readOnce(MirrorNews& news) const;
    void note(const StoreResult& result);

    QString m_address;
    MirrorState m_mirror; ///< What it will hold once it has taken all that was told.
    QString m_identity;   ///< Of the schedule that was checked when it was opened.
    std::unique_ptr<StoreNotices> m_notices; ///< From begin to end.
    std::unique_ptr<StoreEngine> m_engine;   ///< Null until the server could be read.
    std::optional<StoreResult> m_loss;
};

} // namespace trel::mediadispatch
