#include "memory/RememberedWindow.h"

#include "HostPrompts.h"
#include "catalogue/CataloguePanel.h"
#include "fit/ScreenRoom.h"
#include "memory/LastFolders.h"
#include "memory/RememberedParts.h"
#include "memory/WindowMemory.h"
#include "week/WeekGeometry.h"
#include "week/WeekView.h"

#include <QCoreApplication>
#include <QEvent>
#include <QMainWindow>
#include <QScreen>
#include <QSettings>

#include <cmath>

namespace trel::desktop {

namespace {

const QLatin1String kGeometry("window/geometry");
const QLatin1String kPanels("window/panels");
const QLatin1String kCatalogue("catalogue/order");
const QLatin1String kHour("week/hour");
const QLatin1String kFolders("folders");

/// Of the panels: with others than these, what was remembered is not taken.
constexpr int kPanelsVersion = 1;

} // namespace

RememberedWindow::RememberedWindow(QSettings& settings, QMainWindow& window)
    : QObject(&window)
    , m_settings(settings)
    , m_window(window)
{
    new WindowMemory(settings, window);
    restore();
    window.installEventFilter(this);
    connect(QCoreApplication::instance(), &QCoreApplication::aboutToQuit, this,
            &RememberedWindow::save);
}

bool RememberedWindow::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == &m_window && event->type() == QEvent::Close) {
        save();
    }
    return QObject::eventFilter(watched, event);
}

void RememberedWindow::restore()
{
    if (m_window.restoreGeometry(m_settings.value(kGeometry).toByteArray())) {
        fit::moveOntoScreen(m_window);
    } else {
        m_window.resize(m_window.size().boundedTo(m_window.screen()->availableGeometry().size()));
    }
    m_window.restoreState(m_settings.value(kPanels).toByteArray(), kPanelsVersion);
    RememberedParts(m_settings, m_window).restore();
    if (auto* const catalogue = m_window.findChild<CataloguePanel*>()) {
        catalogue->restoreState(m_settings.value(kCatalogue).toByteArray());
    }
    if (auto* const view = m_window.findChild<week::WeekView*>()) {
        restoreZoom(*view);
    }
    if (LastFolders* const folders = LastFolders::of(&m_window)) {
        restoreFolders(*folders);
    }
}

void RememberedWindow::restoreFolders(LastFolders& folders) const
{
    m_settings.beginGroup(kFolders);
    for (const char* const name : prompts::kKinds) {
        const QString kind = QLatin1String(name);
        folders.restore(kind, m_settings.value(kind).toString());
    }
    m_settings.endGroup();
}

void RememberedWindow::restoreZoom(week::WeekView& view) const
{
    bool isNumber = false;
    const double hour = m_settings.value(kHour).toDouble(&isNumber);
    if (isNumber && std::isfinite(hour) && hour >= week::WeekGeometry::kLeastHour &&
        hour <= week::WeekGeometry::kMostHour) {
        view.zoom(hour / view.hourHeight());
    }
}

void RememberedWindow::save()
{
    m_settings.setValue(kGeometry, m_window.saveGeometry());
    m_settings.setValue(kPanels, m_window.saveState(kPanelsVersion));
    RememberedParts(m_settings, m_window).save();
    if (const auto* const catalogue = m_window.findChild<CataloguePanel*>()) {
        m_settings.setValue(kCatalogue, catalogue->saveState());
    }
    if (const auto* const view = m_window.findChild<week::WeekView*>()) {
        // A whole day is as high as the window.
        m_settings.setValue(kHour, view->isFit() ? QVariant(0) : QVariant(view->hourHeight()));
    }
    if (const LastFolders* const folders = LastFolders::of(&m_window)) {
        m_settings.beginGroup(kFolders);
        for (auto folder = folders->all().begin(); folder != folders->all().end(); ++folder) {
            m_settings.setValue(folder.key(), folder.value());
        }
        m_settings.endGroup();
    }
}

} // namespace trel::desktop
