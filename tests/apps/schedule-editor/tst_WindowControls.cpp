#include "CutTexts.h"
#include "FocusWalk.h"
#include "HostFixture.h"
#include "HostWindows.h"
#include "LookSupport.h"
#include "support/PlatformNotes.h"
#include "support/TestClock.h"
#include "support/TestProgram.h"

#include <QAbstractItemView>
#include <QAccessible>
#include <QApplication>
#include <QDockWidget>
#include <QHeaderView>
#include <QStatusBar>
#include <QStyle>
#include <QTableView>

using namespace trel::desktop;
using namespace trel::mediadispatch;

namespace {

/// The time, before anything asks for it: a plan of the demonstration plays.
struct AtNoon
{
    TestClock clock{QDateTime(QDate(2026, 3, 11), QTime(12, 30))};
};

/// The window on air, with all of its panels to be looked at.
struct OnAir : AtNoon, HostFixture
{
    OnAir()
    {
        window.openDatabase(database, QStringLiteral(DEMONSTRATION));
        QVERIFY(host.startSchedule());
        window.show();
        QCoreApplication::processEvents();
    }

    /// Does something to the host's own window with each panel in sight, and to the others.
    template <typename Look>
    void forEachWindow(Look look)
    {
        const QList<QDockWidget*> panels = window.findChildren<QDockWidget*>();
        for (QDockWidget* panel : panels) {
            panel->show();
            panel->raise();
            QCoreApplication::processEvents();
            look(*panel, panel->objectName());
        }
        look(*window.centralWidget(), QStringLiteral("middle"));
        look(*window.statusBar(), QStringLiteral("status"));
        const QStringList names = hostWindows();
        for (const QString& name : names) {
            QWidget* const shown = openHostWindow(window, name);
            QVERIFY2(shown != nullptr, qPrintable(name));
            QCoreApplication::processEvents();
            look(*shown, name);
            shown->close();
        }
    }

    const NoPlatformNotes quiet;
};

void addLanguages()
{
    QTest::addColumn<QString>("language");
    const QStringList files =
        QDir(QStringLiteral(LANGUAGES)).entryList({QStringLiteral("??_??.qm")});
    QCOMPARE(files.size(), 10);
    for (const QString& file : files) {
        QTest::newRow(qPrintable(file.left(5))) << file.left(5);
    }
}

/// As far as a scroll area shows it.
bool isInSight(const QWidget& widget)
{
    for (const QWidget* at = widget.parentWidget(); at != nullptr; at = at->parentWidget()) {
        const QRect place(widget.mapTo(at, QPoint()), widget.size());
        if (!at->rect().contains(place)) {
            return false;
        }
        if (at->isWindow()) {
            break;
        }
    }
    return true;
}

/// Whether a screen reader has something to call a control by.
bool hasName(QWidget& control)
{
    const QAccessibleInterface* const spoken = QAccessible::queryAccessibleInterface(&control);
    const QString name = spoken == nullptr ? QString() : spoken->text(QAccessible::Name);
    return !name.isEmpty() && name == name.trimmed();
}

QString faultsOfHeader(QHeaderView& header)
{
    QString faults;
    const QImage picture = pictureOf(header.viewport());
    for (int section = 0; section < header.count(); ++section) {
        const QRect part(header.sectionViewportPosition(section), 0, header.sectionSize(section),
                         header.height());
        const QRect inner = part.adjusted(4, 3, -4, -3);
        const QString text = header.model()->headerData(section, header.orientation()).toString();
        if (!header.isSectionHidden(section) && !text.isEmpty() && picture.rect().contains(inner)) {
            faults += faultOf(picture, inner, QStringLiteral("heading ") + text);
        }
    }
    return faults;
}

QString faultsOfCells(QAbstractItemView& view, const QString& state)
{
    QString faults;
    const QImage picture = pictureOf(view.viewport());
    const QAbstractItemModel& model = *view.model();
    for (int row = 0; row < qMin(model.rowCount(), 6); ++row) {
        for (int column = 0; column < model.columnCount(); ++column) {
            const QModelIndex index = model.index(row, column);
            const QRect cell = view.visualRect(index).adjusted(0, 2, 0, -2);
            const QString text = index.data().toString();
            if (!text.trimmed().isEmpty() && picture.rect().contains(cell)) {
                faults += faultOf(picture, cell, text + state);
            }
        }
    }
    return faults;
}

QString faultsOfView(QAbstractItemView& view)
{
    QString faults = faultsOfCells(view, QString());
    if (view.selectionMode() != QAbstractItemView::NoSelection && view.model()->rowCount() > 0) {
        const QModelIndex former = view.currentIndex();
        view.setCurrentIndex(view.model()->index(0, 0));
        faults += faultsOfCells(view, QStringLiteral(", selected"));
        view.setCurrentIndex(former);
    }
    return faults;
}

QString faultsOfTitle(QDockWidget& panel)
{
    const int height = panel.style()->pixelMetric(QStyle::PM_TitleBarHeight, nullptr, &panel);
    constexpr int kButtons = 40;
    const QRect title(2, 2, panel.width() - kButtons, qMin(height, panel.widget()->y()) - 2);
    return faultOf(pictureOf(&panel), title, QStringLiteral("title ") + panel.windowTitle());
}

QString faultsOfWindow(QWidget& window)
{
    QString faults;
    if (auto* panel = qobject_cast<QDockWidget*>(&window)) {
        faults += faultsOfTitle(*panel);
    }
    const QList<QWidget*> widgets = visibleIn(window);
    for (QWidget* const widget : widgets) {
        if (auto* header = qobject_cast<QHeaderView*>(widget)) {
            faults += faultsOfHeader(*header);
        } else if (auto* view = qobject_cast<QAbstractItemView*>(widget)) {
            faults += faultsOfView(*view);
        } else if (!textOf(*widget).isEmpty() && isInSight(*widget)) {
            // The thin strokes of a sign do not fill a pixel, as those of a word do.
            faults += faultsOf(widget, textOf(*widget).size() < 2 ? 3.0 : kLeastContrast);
        }
    }
    return faults;
}

} // namespace

/// All controls of the host's windows: their captions in every language, their names for a screen
/// reader, and their contrast in every theme.
class tst_WindowControls : public QObject
{
    Q_OBJECT

private slots:
    void captionsAreWholeAndControlsNamed_data() { addLanguages(); }
    void captionsAreWholeAndControlsNamed();
    void textsStandOut_data() { addThemes(); }
    void textsStandOut();
};

void tst_WindowControls::captionsAreWholeAndControlsNamed()
{
    QFETCH(QString, language);
    OnAir fixture;
    fixture.languages.select(language);
    QCoreApplication::processEvents();
    QStringList faults;
    int texts = 0;
    int controls = 0;
    fixture.forEachWindow([&](QWidget& window, const QString& name) {
        // What other threads find out takes its place a moment later.
        static_cast<void>(QTest::qWaitFor([&window] { return cutIn(window).isEmpty(); }));
        QStringList found = cutIn(window);
        const QList<QWidget*> widgets = visibleIn(window);
        for (QWidget* const widget : widgets) {
            texts += textOf(*widget).isEmpty() ? 0 : 1;
            if (takesTab(*widget)) {
                ++controls;
                found += hasName(*widget) ? QStringList() : namesOf({widget});
            }
        }
        for (const QString& line : qAsConst(found)) {
            faults.append(name + QStringLiteral(", ") + line);
        }
    });
    QVERIFY2(faults.isEmpty(), qPrintable(faults.join(QLatin1Char('\n'))));
    QVERIFY2(texts > 40, qPrintable(QString::number(texts)));
    QVERIFY2(controls > 30, qPrintable(QString::number(controls)));
}

void tst_WindowControls::textsStandOut()
{
    QFETCH(QString, theme);
    OnAir fixture;
    fixture.themes.select(theme);
    QCoreApplication::processEvents();
    QString faults;
    fixture.forEachWindow([&faults](QWidget& window, const QString& name) {
        const QString found = faultsOfWindow(window);
        faults += found.isEmpty() ? found : name + QLatin1Char('\n') + found;
    });
    QVERIFY2(faults.isEmpty(), qPrintable(faults));
}

TREL_TEST(tst_WindowControls, QApplication)
#include "tst_WindowControls.moc"
