#include "memory/RememberedWindow.h"

#include "HostPrompts.h"
#include "memory/LastFolders.h"
#include "week/WeekGeometry.h"
#include "week/WeekView.h"

#include <QCoreApplication>
#include <QEvent>
#include <QHeaderView>
#include <QMainWindow>
#include <QScreen>
#include <QSettings>
#include <QTableView>

#include <algorithm>
#include <cmath>
#include <vector>

namespace trel::desktop {

namespace {

const QLatin1String kGeometry("window/geometry");
const QLatin1String kPanels("window/panels");
const QLatin1String kHour("week/hour");
const QLatin1String kFolders("folders");

/// Of the panels: with others than these, what was remembered is not taken.
constexpr int kPanelsVersion = 1;
/// What a column may be wide, in pixels.
constexpr int kNarrowest = 16;
constexpr int kWidest = 4000;

QString columnsOf(const QTableView& table)
{
    return QStringLiteral("columns/") + table.objectName();
}

QList<QTableView*> tablesOf(const QMainWindow& window)
{
    QList<QTableView*> tables = window.findChildren<QTableView*>();
    tables.erase(std::remove_if(tables.begin(), tables.end(),
                                [&window](const QTableView* table) {
                                    return table->objectName().isEmpty() ||
                                           table->window() != &window;
                                }),
                 tables.end());
    return tables;
}

} // namespace

RememberedWindow::RememberedWindow(QSettings& settings, QMainWindow& window)
    : QObject(&window)
    , m_settings(settings)
    , m_window(window)
{
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
    if (!m_window.restoreGeometry(m_settings.value(kGeometry).toByteArray())) {
        m_window.resize(m_window.size().boundedTo(m_window.screen()->availableGeometry().size()));
    }
    m_window.restoreState(m_settings.value(kPanels).toByteArray(), kPanelsVersion);
    const QList<QTableView*> tables = tablesOf(m_window);
    for (QTableView* table : tables) {
        restoreColumns(*table);
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

void RememberedWindow::restoreColumns(QTableView& table) const
{
    const QStringList texts = m_settings.value(columnsOf(table)).toStringList();
    QHeaderView& header = *table.horizontalHeader();
    std::vector<int> widths;
    for (const QString& text : texts) {
        bool isNumber = false;
        const int width = text.toInt(&isNumber);
        if (!isNumber || width < kNarrowest || width > kWidest) {
            return;
        }
        widths.push_back(width);
    }
    if (static_cast<int>(widths.size()) != header.count()) {
        return;
    }
    for (int column = 0; column < header.count(); ++column) {
        if (header.sectionResizeMode(column) == QHeaderView::Interactive) {
            header.resizeSection(column, widths[static_cast<std::size_t>(column)]);
        }
    }
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
    const QList<QTableView*> tables = tablesOf(m_window);
    for (const QTableView* table : tables) {
        const QHeaderView& header = *table->horizontalHeader();
        QStringList widths;
        for (int column = 0; column < header.count(); ++column) {
            widths.append(QString::number(header.sectionSize(column)));
        }
        m_settings.setValue(columnsOf(*table), widths);
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
