#include "HostWindows.h"

#include "trelprogramschedule/ScheduleHost.h"
#include "trelprogramschedule/faults/FaultWords.h"

#include <QApplication>
#include <QDockWidget>
#include <QFile>

#include <stdexcept>

using namespace trel::desktop;
using namespace trel::mediadispatch;

namespace bench {

namespace {

void expect(const StoreResult& result)
{
    if (!result) {
        throw std::runtime_error(englishText(result).toStdString());
    }
}

MediaSource file(const QString& path, int number)
{
    QFile(path).open(QIODevice::WriteOnly);
    return {QString::number(number), path, 1000.0, ProgramKind::Video};
}

MediaSource liveSource(int number)
{
    return {QString::number(number), QStringLiteral("rtsp://media/%1").arg(number), 0.0,
            ProgramKind::Live};
}

} // namespace

HostWindows::HostWindows()
    : m_languages(QStringLiteral(LANGUAGES), m_editor)
    , m_themes(*qApp)
    , m_window(m_editor, m_languages, m_themes)
{
    m_languages.select(QStringLiteral("en_US"));
}

HostWindows::~HostWindows()
{
    ScheduleHost::instance().watchFiles(false);
    ScheduleHost::instance().close();
}

void HostWindows::fill(int programs, bool areFiles, const TaskMap& tasks)
{
    std::vector<MediaSource> sources;
    for (int number = 1; number <= programs; ++number) {
        const QString path = m_folder.filePath(QStringLiteral("%1.mp4").arg(number));
        sources.push_back(areFiles ? file(path, number) : liveSource(number));
    }
    ScheduleHost& host = ScheduleHost::instance();
    expect(host.open(path()));
    expect(host.addPrograms(sources).store);
    expect(host.replaceSchedule(tasks));
    m_window.show();
    QCoreApplication::processEvents();
}

DraftJournal& HostWindows::journal() const
{
    return *m_window.findChild<DraftJournal*>();
}

void HostWindows::reopen()
{
    ScheduleHost::instance().close();
    if (const QString error = m_window.openDatabase(path()); !error.isEmpty()) {
        throw std::runtime_error(error.toStdString());
    }
}

void HostWindows::showEditor()
{
    m_editor.show();
    emit m_editor.signalUpdatePlanList();
    QCoreApplication::processEvents();
}

void HostWindows::showPanels()
{
    auto* panel = m_window.findChild<QDockWidget*>(QStringLiteral("clockChangeDock"));
    panel->setFloating(true);
    panel->resize(1000, 700);
    panel->show();
    QCoreApplication::processEvents();
}

} // namespace bench
