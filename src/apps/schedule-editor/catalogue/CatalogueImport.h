#pragma once

#include <QObject>
#include <QStringList>

namespace trel::mediadispatch {
struct ImportScan;
} // namespace trel::mediadispatch

namespace trel::desktop {

class ImportJob;
class ImportProgress;
class PendingNotices;

/// The import of media into the catalogue: asks for files, shows progress with a way to cancel, and
/// reports what could not be taken. One import at a time.
class CatalogueImport : public QObject
{
    Q_OBJECT

public:
    /// Belongs to the window that its dialogs stand over. The notices outlive it.
    CatalogueImport(PendingNotices& notices, QWidget& window);

    /// Imports files, folders and addresses. Reports what could not be taken once no other prompt
    /// stands. While an import runs, another one is not begun. No paths: nothing happens.
    void run(const QStringList& paths);

    /// Asks for files, and imports them.
    void chooseFiles();
    /// Asks for a folder, and imports what is in it.
    void chooseFolder();

signals:
    /// What came of an import, in one line.
    void told(const QString& line);
    /// Another tenth of the files has been looked at: from 1 to 10.
    void tenthDone(int tenth);
    /// An import that was begun has ended, in whatever way.
    void ended();

private:
    void showProgress();
    void followJob();
    void finish();
    void countTenths(int done, int total);
    void report(const trel::mediadispatch::ImportScan& scan, int added, int updated);

    QWidget& m_window;
    PendingNotices& m_notices;
    ImportJob* m_job = nullptr;
    ImportProgress* m_progress = nullptr;
    int m_tenths = 0; ///< Told of.
};

} // namespace trel::desktop
