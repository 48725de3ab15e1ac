#include "catalogue/CatalogueImport.h"

#include "HostPrompts.h"
#include "PendingNotices.h"
#include "ProblemWords.h"
#include "catalogue/ImportJob.h"
#include "catalogue/ImportProgress.h"
#include "catalogue/MediaFilters.h"
#include "trelprogramschedule/ScheduleHost.h"
#include "trelprogramschedule/catalogue/ShownAddress.h"
#include "trelprogramschedule/catalogue/StoredContents.h"

#include <QFileInfo>
#include <QLabel>

#include <algorithm>
#include <utility>

using namespace trel::mediadispatch;

namespace trel::desktop {

namespace {

/// What is told of a file or an address while it is imported.
QString shownName(const QString& path)
{
    return QFileInfo(shownAddress(path)).fileName();
}

/// What is told of one that was refused: of an address all, since its last part alone says nothing.
QString refusedName(const QString& path)
{
    constexpr int kLongest = 200;
    const QString address = shownAddress(path);
    if (!address.contains(QLatin1String("://"))) {
        return shownName(path);
    }
    return address.size() > kLongest ? address.left(kLongest) + QChar(0x2026) : address;
}

void showSearch(QProgressDialog& progress, int found)
{
    progress.setLabelText(CatalogueImport::tr("Looking for files: %n found", nullptr, found));
}

} // namespace

CatalogueImport::CatalogueImport(PendingNotices& notices, QWidget& window)
    : QObject(&window)
    , m_window(window)
    , m_notices(notices)
{}

void CatalogueImport::chooseFiles()
{
    run(prompts::openFileNames(&m_window, prompts::kMedia, tr("Import files"), mediaFilters()));
}

void CatalogueImport::chooseFolder()
{
    const QString folder = prompts::openFolder(&m_window, prompts::kMedia, tr("Import folder"));
    if (!folder.isEmpty()) {
        run({folder});
    }
}

void CatalogueImport::run(const QStringList& paths)
{
    if (paths.isEmpty() || m_job != nullptr) {
        return;
    }
    m_job = new ImportJob(paths, this, storedFileContents());
    showProgress();
    followJob();
    m_job->start();
}

void CatalogueImport::showProgress()
{
    m_progress = new ImportProgress(&m_window);
    auto* shown = new QLabel(m_progress);
    shown->setTextFormat(Qt::PlainText); // Names of files are no markup.
    m_progress->setLabel(shown);
    m_progress->setWindowTitle(tr("Importing"));
    m_progress->setCancelButtonText(tr("Cancel"));
    m_progress->setWindowModality(Qt::WindowModal);
    m_progress->setAutoReset(false);
    m_progress->setMinimumWidth(420);
    // A handful of files is done before anyone could read a dialog.
    m_progress->setMinimumDuration(300);
    // How many there are is not known before all have been found.
    m_progress->setMaximum(0);
    m_progress->setValue(0);
    showSearch(*m_progress, 0);
}

void CatalogueImport::followJob()
{
    connect(m_progress, &QProgressDialog::canceled, m_job, &ImportJob::cancel);
    connect(m_job, &ImportJob::searched, m_progress,
            [progress = m_progress](int found) { showSearch(*progress, found); });
    connect(m_job, &ImportJob::progressed, m_progress,
            [progress = m_progress](int done, int total, const QString& path) {
                if (progress->wasCanceled()) {
                    return;
                }
                progress->setLabelText(shownName(path));
                progress->setMaximum(total);
                progress->setValue(done);
            });
    m_tenths = 0;
    connect(m_job, &ImportJob::progressed, this, &CatalogueImport::countTenths);
    connect(m_job, &ImportJob::finished, this, &CatalogueImport::finish);
}

void CatalogueImport::countTenths(int done, int total)
{
    const int tenths = total > 0 ? static_cast<int>(qint64(done) * 10 / total) : 0;
    if (tenths > m_tenths) {
        m_tenths = tenths;
        emit tenthDone(tenths);
    }
}

void CatalogueImport::finish()
{
    // A prompt would take it for the window that it stands over.
    m_progress->end();
    m_progress->deleteLater();
    m_progress = nullptr;
    m_job->deleteLater();
    const bool isCancelled = m_job->isCancelled();
    const ImportScan scan = std::exchange(m_job, nullptr)->scan();
    if (isCancelled) {
        emit told(tr("The import was canceled; nothing was imported."));
    } else {
        const ImportResult result = ScheduleHost::instance().addPrograms(scan.sources);
        if (result.store) {
            report(scan, static_cast<int>(result.added.size()),
                   static_cast<int>(result.updated.size()));
        } else {
            m_notices.tell(problems::sentence(result.store));
        }
    }
    emit ended();
}

void CatalogueImport::report(const ImportScan& scan, int added, int updated)
{
    emit told(tr("Imported: %1, %2.")
                  .arg(tr("%n new", nullptr, added), tr("%n updated", nullptr, updated)));
    if (scan.refusals.empty()) {
        return;
    }
    constexpr std::size_t kShown = 8;
    QStringList lines;
    for (std::size_t i = 0; i < std::min(kShown, scan.refusals.size()); ++i) {
        lines.append(tr("%1: %2", "file and reason")
                         .arg(refusedName(scan.refusals[i].path),
                              problems::sentence(scan.refusals[i].fault)));
    }
    if (scan.refusals.size() > kShown) {
        lines.append(
            tr("… and %n more.", nullptr, static_cast<int>(scan.refusals.size() - kShown)));
    }
    m_notices.tell(tr("Some files could not be imported:") + QLatin1Char('\n') +
                   lines.join(QLatin1Char('\n')));
}

} // namespace trel::desktop
