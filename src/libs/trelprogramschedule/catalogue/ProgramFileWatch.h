#pragma once

#include "ProgramFileScan.h"

#include <QObject>

#include <functional>
#include <memory>

class QThread;

namespace trel::mediadispatch {

/// Tells when the files of programs come and go. The files are looked at in a thread of its own, so
/// that neither a hundred thousand of them nor a server that does not answer keeps anybody waiting.
class ProgramFileWatch : public QObject
{
    Q_OBJECT

public:
    using Source = std::function<ProgramFiles()>;

    /// The source tells which files are to be watched and what is known of them. It has to live on.
    explicit ProgramFileWatch(Source source, FileScanHabits habits = {});
    /// Returns soon, also while the thread waits for a server.
    ~ProgramFileWatch() override;
    Q_DISABLE_COPY(ProgramFileWatch)

    /// To be called first, and whenever the source has something else to tell. It is asked when the
    /// event loop has its turn, once for all calls until then; what was found for the former files
    /// is not told any more.
    void renew();
    /// Looks at all files now, and not only at the next round. Returns at once.
    void look();

signals:
    /// These files have come or gone, against what the source and former signals told.
    void found(const trel::mediadispatch::ProgramFiles& files);

private:
    void passSoon();
    void pass();

    Source m_source;
    int m_generation = 0;
    bool m_isDue = false;
    bool m_isRenewed = false; ///< What is due is more than another look.
    std::unique_ptr<QThread> m_thread;
    ProgramFileScan* m_scan; ///< Lives in the thread, and goes with it.
};

} // namespace trel::mediadispatch
