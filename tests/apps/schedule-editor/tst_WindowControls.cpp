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
#include <QComboBox>
#include <QDockWidget>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
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

/// What a widget shows to be read, of its own.
QString textOf(const QWidget& widget)
{
    if (const auto* box = qobject_cast<const QComboBox*>(&widget)) {
        return box->currentText();
    }
    if (const auto* bar = qobject_cast<const QProgressBar*>(&widget);
        bar != nullptr && !bar->isTextVisible()) {
        return {};
    }
    const QString text = widget.property("text").toString();
    return text.isEmpty() ? widget.property("placeholderText").toString() : text;
}

QList<QWidget*> visibleIn(QWidget& window)
{
    QList<QWidget*> visible;
    const QList<QWidget*> widgets = window.findChildren<QWidget*>();
    for (QWidget* const widget : widgets) {
        if (widget->isVisible() && widget->window() == window.window()) {
            visible.append(widget);
        }
    }
    return visible;
}

/// Whether a label or button has less room than its text takes. Where dots stand for what is left
/// out, a tool tip has it all; a sign is no text.
bool isCut(const QWidget& widget)
{
    const auto* label = qobject_cast<const QLabel*>(&widget);
    const bool isMeasured =
        label != nullptr || qobject_cast<const QAbstractButton*>(&widget) != nullptr;
    if (!isMeasured || textOf(widget).size() < 2 || widget.inherits("trel::desktop::ElidedText")) {
        return false;
    }
    return label != nullptr && label->wordWrap()
               ? label->heightForWidth(label->width()) > label->height()
               : widget.minimumSizeHint().width() > widget.width();
}

QStringList cutIn(QWidget& window)
{
    QStringList lines;
    const QList<QWidget*> widgets = visibleIn(window);
    for (const QWidget* const widget : widgets) {
        if (isCut(*widget)) {
            lines.append(QStringLiteral("%1: %2 needs %3 px of %4")
                             .arg(widget->objectName(), textOf(*widget))
                             .arg(widget->minimumSizeHint().width())
                             .arg(widget->width()));
        }
    }
    return lines;
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
    void captionsAreWhole_data() { addLanguages(); }
    void captionsAreWhole();
    void controlsHaveNames_data() { addLanguages(); }
    void controlsHaveNames();
    void textsStandOut_data() { addThemes(); }
    void textsStandOut();
};

void tst_WindowControls::captionsAreWhole()
{
    QFETCH(QString, language);
    OnAir fixture;
    fixture.languages.select(language);
    QCoreApplication::processEvents();
    QStringList cut;
    int texts = 0;
    fixture.forEachWindow([&](QWidget& window, const QString& name) {
        // What other threads find out takes its place a moment later.
        static_cast<void>(QTest::qWaitFor([&window] { return cutIn(window).isEmpty(); }));
        const QStringList found = cutIn(window);
        for (const QString& line : found) {
            cut.append(name + QStringLiteral(", ") + line);
        }
        const QList<QWidget*> widgets = visibleIn(window);
        for (const QWidget* const widget : widgets) {
            texts += textOf(*widget).isEmpty() ? 0 : 1;
        }
    });
    QVERIFY2(cut.isEmpty(), qPrintable(cut.join(QLatin1Char('\n'))));
    QVERIFY2(texts > 40, qPrintable(QString::number(texts)));
}

void tst_WindowControls::controlsHaveNames()
{
    QFETCH(QString, language);
    OnAir fixture;
    fixture.languages.select(language);
    QCoreApplication::processEvents();
    QStringList nameless;
    int controls = 0;
    fixture.forEachWindow([&](QWidget& window, const QString& where) {
        const QList<QWidget*> widgets = visibleIn(window);
        for (QWidget* const widget : widgets) {
            if (!takesTab(*widget)) {
                continue;
            }
            ++controls;
            const QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(widget);
            const QString name = spoken == nullptr ? QString() : spoken->text(QAccessible::Name);
            if (name.isEmpty() || name != name.trimmed()) {
                nameless.append(where + QStringLiteral(": ") + namesOf({widget}).first());
            }
        }
    });
    QVERIFY2(nameless.isEmpty(), qPrintable(nameless.join(QLatin1Char('\n'))));
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
