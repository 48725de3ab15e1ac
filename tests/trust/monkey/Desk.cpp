#include "Desk.h"

#include "FlightRecorder.h"
#include "PlanList.h"
#include "trelprogramschedule/ScheduleHost.h"

#include <QApplication>
#include <QDir>
#include <QTimer>

using namespace trel::desktop;
using namespace trel::mediadispatch;

Desk::Desk(const QString& folder)
    : m_database(QDir(folder).filePath(QStringLiteral("screen.db")))
    , m_languages(QStringLiteral(LANGUAGES), m_editor)
    , m_themes(*qApp)
    , m_window(m_editor, m_languages, m_themes)
    , m_rescue(ScheduleHost::instance(), m_window.drafts(), &m_window)
{
    m_editor.setCheckBoxImagePath(QStringLiteral(":/qss/img/checked.png"),
                                  QStringLiteral(":/qss/img/unchecked.png"));
    m_languages.select(QStringLiteral("en_US"));
    const auto* const list = m_editor.findChild<PlanList*>();
    connect(list, &PlanList::sigShowProcess, this, [this] { m_isRefreshing = true; });
    connect(list, &PlanList::sigCloseProcess, this, [this] { m_isRefreshing = false; });
    const QString error = m_window.openDatabase(m_database, QStringLiteral(DEMONSTRATION));
    if (!error.isEmpty()) {
        FlightRecorder::fail(error);
    }
}

Desk::~Desk() = default;

void Desk::run()
{
    m_window.show();
    // Within the event loop, as the program does: what closes before it runs cannot end it.
    QTimer::singleShot(0, &m_window, [this] { m_window.showEditor(); });
    QApplication::exec();
    ScheduleHost::instance().close();
}
