#include "PopupPictures.h"

#include "EditorMenus.h"
#include "EditorWindow.h"
#include "PictureFiles.h"
#include "air/AirState.h"
#include "memory/RecentDatabases.h"
#include "scheduleControlUI.h"
#include "week/WeekLegend.h"
#include "week/WeekView.h"
#include "week/moves/CopyDayMenu.h"
#include "year/YearStrip.h"

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QDateEdit>
#include <QDialog>
#include <QHelpEvent>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QMouseEvent>
#include <QPushButton>
#include <QSettings>
#include <QTableView>
#include <QTemporaryDir>
#include <QTimer>
#include <QToolBar>
#include <QToolButton>
#include <QToolTip>

using namespace trel::desktop;

namespace trel::pictures {

namespace {

/// Of a block that can be taken in its middle.
constexpr int kHighEnough = 16;

void press(QWidget* widget, QEvent::Type type, const QPoint& place)
{
    const Qt::MouseButtons held =
        type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton;
    QMouseEvent event(type, place, widget->mapToGlobal(place),
                      type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton, held, {});
    QCoreApplication::sendEvent(widget, &event);
}

void giveUp(QWidget* widget)
{
    QKeyEvent escape(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
    QCoreApplication::sendEvent(widget, &escape);
    settle();
}

/// The tool tip that is shown; null for none.
QWidget* tip()
{
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget* window : windows) {
        if (window->windowType() == Qt::ToolTip && window->isVisible()) {
            return window;
        }
    }
    return nullptr;
}

} // namespace

PopupPictures::PopupPictures(EditorWindow& window, mediadispatch::scheduleControlUI& editor,
                             PictureFiles& files)
    : m_window(window)
    , m_editor(editor)
    , m_files(files)
    , m_menus(*window.findChild<EditorMenus*>())
    , m_week(*window.findChild<week::WeekView*>(QStringLiteral("weekView")))
{}

void PopupPictures::drawAll()
{
    drawCalendars();
    drawLists();
    drawMenus();
    drawCopyDay();
    drawDrag();
    drawTips();
    drawVersionName();
}

void PopupPictures::drawCalendars()
{
    m_files.saveDialog(m_window, QStringLiteral("popup-calendar-week"), [this] {
        m_window.findChild<QPushButton*>(QStringLiteral("weekTitle"))->click();
    });
    m_menus.asRun()->trigger();
    auto* const asRun = m_window.findChild<QDialog*>(QStringLiteral("asRunWindow"));
    auto* const date = asRun->findChild<QDateEdit*>(QStringLiteral("asRunDate"));
    const auto open = [](QWidget* field) {
        settle();
        const QPoint arrow(field->width() - 5, field->height() / 2);
        press(field, QEvent::MouseButtonPress, arrow);
        press(field, QEvent::MouseButtonRelease, arrow);
    };
    m_files.saveDialog(*asRun, QStringLiteral("popup-calendar-as-run"), [&] { open(date); });
    asRun->close();
}

/// Shows what stands on the first card.
void PopupPictures::unfold()
{
    m_editor.clearAndInitialize();
    m_editor.findChild<QAbstractButton*>(QStringLiteral("title"))->setChecked(false);
    settle();
}

void PopupPictures::drawLists()
{
    unfold();
    for (const char* const name : {"programKinds", "weekSource"}) {
        auto* const list = m_window.findChild<QComboBox*>(QLatin1String(name));
        m_files.saveDialog(m_window, QStringLiteral("popup-list-%1").arg(QLatin1String(name)),
                           [list] { list->showPopup(); });
        list->hidePopup();
    }
    const QList<QComboBox*> lists = m_editor.findChildren<QComboBox*>();
    int number = 0;
    for (QComboBox* list : lists) {
        if (list->isVisible() && number < 2) {
            m_files.saveDialog(m_editor, QStringLiteral("popup-list-editor-%1").arg(++number),
                               [list] { list->showPopup(); });
            list->hidePopup();
        }
    }
}

void PopupPictures::drawMenus()
{
    const auto draw = [this](QMenu& menu, const char* name) {
        menu.ensurePolished();
        menu.adjustSize();
        m_files.save(&menu, QLatin1String(name));
    };
    const QTemporaryDir folder;
    QSettings settings(folder.filePath(QStringLiteral("recent.ini")), QSettings::IniFormat);
    {
        RecentDatabases recent(settings, *m_menus.recentDatabases(), nullptr);
        recent.add(QStringLiteral("/home/operator/schedules/station.db"));
        recent.add(QStringLiteral("/srv/media/station/in the hall beside the river/hall & bar.db"));
        draw(*m_menus.recentDatabases(), "popup-menu-recent");
    }
    m_menus.recentDatabases()->clear();
    QMenu menu(&m_window);
    menu.addActions(m_window.findChild<QTableView*>(QStringLiteral("programTable"))->actions());
    draw(menu, "popup-menu-programs");
    m_files.saveDialog(m_window, QStringLiteral("popup-menu-day"), [this] {
        QWidget* const area = m_week.viewport();
        QContextMenuEvent event(QContextMenuEvent::Mouse, firstBlock(),
                                area->mapToGlobal(firstBlock()));
        QCoreApplication::sendEvent(area, &event);
    });
}

void PopupPictures::drawCopyDay()
{
    const week::WeekLayout& shown = m_week.layoutOfWeek();
    for (const week::WeekColumn& day : shown.days) {
        if (!day.blocks.empty()) {
            m_files.saveDialog(m_window, QStringLiteral("copy-day"), [this, &day] {
                m_week.findChild<week::CopyDayMenu*>()->ask(day.date);
            });
            return;
        }
    }
}

/// A plan under the mouse, and the plans of a day by their date.
void PopupPictures::drawDrag()
{
    QWidget* const area = m_week.viewport();
    const QPoint from = firstBlock();
    press(area, QEvent::MouseMove, from);
    press(area, QEvent::MouseButtonPress, from);
    press(area, QEvent::MouseMove, from + QPoint(30, 15));
    press(area, QEvent::MouseMove, from + QPoint(100, 40));
    settle();
    m_files.save(&m_window, QStringLiteral("window-drag-plan"));
    if (QWidget* words = tip()) {
        m_files.save(words, QStringLiteral("tip-drag-plan"));
    }
    giveUp(&m_week);
    press(area, QEvent::MouseButtonRelease, from);
    QWidget* const dates = m_week.dates();
    const QPoint date(from.x(), dates->height() / 2);
    press(dates, QEvent::MouseButtonPress, date);
    press(dates, QEvent::MouseMove, date + QPoint(50, 0));
    press(dates, QEvent::MouseMove, date + QPoint(100, 0));
    settle();
    m_files.save(&m_window, QStringLiteral("window-drag-day"));
    if (QWidget* words = tip()) {
        m_files.save(words, QStringLiteral("tip-drag-day"));
    }
    giveUp(&m_week);
    press(dates, QEvent::MouseButtonRelease, date);
    QToolTip::hideText();
    settle();
}

void PopupPictures::drawTips()
{
    auto* const year = m_window.findChild<year::YearStrip*>();
    drawTip(year, year->rect().center(), QStringLiteral("tip-year"));
    drawTip(m_week.viewport(), firstBlock(), QStringLiteral("tip-block"));
    auto* const legend = m_window.findChild<week::WeekLegend*>();
    drawTip(legend, QPoint(20, legend->height() / 2), QStringLiteral("tip-legend"));
    QWidget* const title = m_window.findChild<QWidget*>(QStringLiteral("weekTitle"));
    drawTip(title, title->rect().center(), QStringLiteral("tip-week-title"));
    auto* const bar = m_window.findChild<QToolBar*>(QStringLiteral("airBar"));
    int number = 0;
    const QList<QToolButton*> buttons = bar->findChildren<QToolButton*>();
    for (QToolButton* button : buttons) {
        drawTip(button, button->rect().center(), QStringLiteral("tip-bar-%1").arg(++number));
    }
    auto* const programs = m_window.findChild<QTableView*>(QStringLiteral("programTable"));
    drawTip(programs->viewport(), programs->visualRect(programs->model()->index(1, 0)).center(),
            QStringLiteral("tip-program"));
}

void PopupPictures::drawTip(QWidget* widget, const QPoint& place, const QString& name)
{
    QToolTip::hideText();
    waitUntil([] { return tip() == nullptr; });
    QHelpEvent help(QEvent::ToolTip, place, widget->mapToGlobal(place));
    QCoreApplication::sendEvent(widget, &help);
    settle();
    if (QWidget* words = tip()) {
        m_files.save(words, name);
    }
    QToolTip::hideText();
    waitUntil([] { return tip() == nullptr; });
}

void PopupPictures::drawVersionName()
{
    m_menus.versions()->trigger();
    auto* const list = m_window.findChild<QDialog*>(QStringLiteral("versionsWindow"));
    auto* const table = list->findChild<QTableView*>(QStringLiteral("versionTable"));
    waitUntil([table] { return table->model()->rowCount() > 0; });
    table->setCurrentIndex(table->model()->index(0, 0));
    settle();
    const auto name = [list] {
        list->findChild<QPushButton*>(QStringLiteral("versionNameButton"))->click();
    };
    m_files.saveDialog(*list, QStringLiteral("version-name"), name);
    m_files.saveDialog(*list, QStringLiteral("version-name-fault"), name, [](QWidget* dialog) {
        auto* const named = dialog->findChild<QLineEdit*>(QStringLiteral("versionName"));
        named->setText(QStringLiteral("Advent") + QChar(0x202e));
    });
    list->hide();
}

QPoint PopupPictures::firstBlock() const
{
    const week::WeekGeometry& geometry = m_week.geometryOfWeek();
    const QRect seen = m_week.viewport()->rect();
    int number = 0;
    for (const week::WeekColumn& day : m_week.layoutOfWeek().days) {
        for (const week::WeekBlock& block : day.blocks) {
            const QRect span = geometry.span(number, block.from, block.to);
            const QPoint middle = span.center() - m_week.offset();
            if (span.height() >= kHighEnough && seen.contains(middle)) {
                return middle;
            }
        }
        ++number;
    }
    return seen.center();
}

} // namespace trel::pictures
