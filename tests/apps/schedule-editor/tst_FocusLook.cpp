#include "HostFixture.h"
#include "HostPrompts.h"
#include "LookSupport.h"
#include "support/TestProgram.h"

#include "card/PlanColumns.h"

#include <QAbstractScrollArea>
#include <QApplication>
#include <QDockWidget>
#include <QFileDialog>
#include <QLayout>
#include <QProgressDialog>
#include <QPushButton>
#include <QTabBar>
#include <QTableView>
#include <QTimer>

#include <functional>

using namespace trel::desktop;
using namespace trel::mediadispatch;

/// What has the focus shows it, on the pixels, on every control of every window.
class tst_FocusLook : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void controlsOfTheEditor_data() { addThemes(); }
    void controlsOfTheEditor();
    void barsOfCards_data() { addThemes(); }
    void barsOfCards();
    void controlsOfTheChooser_data() { addThemes(); }
    void controlsOfTheChooser();
    void controlsOfTheHost_data() { addThemes(); }
    void controlsOfTheHost();
    void controlsOfPrompts_data() { addThemes(); }
    void controlsOfPrompts();
    void controlsOfAnImport_data() { addThemes(); }
    void controlsOfAnImport();
    void controlsOfAFileDialog_data() { addThemes(); }
    void controlsOfAFileDialog();

private:
    std::unique_ptr<HostFixture> m_host;
};

namespace {

/// The least that the look of a focus has to differ from the look without it, dot by dot.
constexpr double kLeastDifference = 3.0;

bool takesFocus(const QWidget* widget)
{
    return widget->focusPolicy() != Qt::NoFocus && widget->focusProxy() == nullptr &&
           widget->isEnabled() && widget->isVisible() && !widget->isWindow();
}

/// The viewport of a scroll area leaves nothing but the edge of it. A panel behind another one of
/// its tabs stands outside its window.
bool isAllSeen(const QWidget* widget)
{
    const QRect inWindow(widget->mapTo(widget->window(), QPoint()), widget->size());
    return widget->window()->rect().contains(inWindow) &&
           (qobject_cast<const QAbstractScrollArea*>(widget) != nullptr ||
            widget->visibleRegion().boundingRect() == widget->rect());
}

int dotsApart(const QImage& first, const QImage& second)
{
    int dots = 0;
    for (int y = 0; y < first.height(); ++y) {
        for (int x = 0; x < first.width(); ++x) {
            const QRgb one = first.pixel(x, y);
            const QRgb other = second.pixel(x, y);
            if (one != other && contrast(QColor(one), QColor(other)) >= kLeastDifference) {
                ++dots;
            }
        }
    }
    return dots;
}

/// What the focus is shown around: of tabs the one in front.
QSize focusSize(const QWidget* widget)
{
    const auto* tabs = qobject_cast<const QTabBar*>(widget);
    return tabs ? tabs->tabRect(tabs->currentIndex()).size() : widget->size();
}

/// Gives the control the focus and takes it away again. Without a selection of its text, which
/// would be seen whatever is around it.
QString focusFaultOf(QWidget* widget)
{
    widget->clearFocus();
    QCoreApplication::processEvents();
    const QImage without = pictureOf(widget);
    widget->setFocus(Qt::MouseFocusReason);
    QCoreApplication::processEvents();
    if (QApplication::focusWidget() != widget) {
        return QStringLiteral("%1 \"%2\" does not take the focus\n")
            .arg(QLatin1String(widget->metaObject()->className()), widget->objectName());
    }
    const QImage with = pictureOf(widget);
    // Half of a line around it.
    const int least = focusSize(widget).width() + focusSize(widget).height();
    const int dots = dotsApart(without, with);
    return dots >= least
               ? QString()
               : QStringLiteral("%1 \"%2\": %3 dots of %4\n")
                     .arg(QLatin1String(widget->metaObject()->className()), widget->objectName())
                     .arg(dots)
                     .arg(least);
}

/// A window above another one is told of as active before the toolkit has given it the focus.
bool becomesActive(QWidget* window)
{
    window->activateWindow();
    return QTest::qWaitFor([window] { return QApplication::activeWindow() == window; });
}

/// A line for each control of a window whose focus is not seen.
QString focusFaultsIn(QWidget* window, int leastControls)
{
    if (!becomesActive(window)) {
        return QStringLiteral("the window is not active");
    }
    QString faults;
    int controls = 0;
    const QList<QWidget*> widgets = window->findChildren<QWidget*>();
    for (QWidget* widget : widgets) {
        if (widget->window() != window || !takesFocus(widget) || !isAllSeen(widget)) {
            continue;
        }
        ++controls;
        faults += focusFaultOf(widget);
    }
    return controls >= leastControls
               ? faults
               : faults + QStringLiteral("no more than %1 controls\n").arg(controls);
}

void keepPicture(QWidget* window, const char* name)
{
    QDir().mkpath(QStringLiteral(PICTURES));
    window->grab().save(QStringLiteral(PICTURES "/focus-%1-%2.png")
                            .arg(QLatin1String(name), QLatin1String(QTest::currentDataTag())));
}

/// Does this in the modal window that something opens.
void inModalWindow(QObject* context, const std::function<void(QWidget*)>& look,
                   const std::function<void()>& open)
{
    QTimer::singleShot(0, context, [&look] { look(QApplication::activeModalWidget()); });
    open();
}

} // namespace

void tst_FocusLook::init()
{
    m_host = std::make_unique<HostFixture>();
    QFETCH(QString, theme);
    m_host->themes.select(theme);
    m_host->showDemonstration();
}

void tst_FocusLook::cleanup()
{
    m_host.reset();
}

void tst_FocusLook::controlsOfTheEditor()
{
    // The area, two days and the rows of the first card.
    const QString faults = focusFaultsIn(m_host->editor.get(), 3 + 2 * 4);
    QWidget* holder = m_host->cell(1, StartTimeColumn);
    holder->layout()->itemAt(0)->widget()->setFocus(Qt::TabFocusReason);
    QCoreApplication::processEvents();
    keepPicture(m_host->editor.get(), "editor");
    QVERIFY2(faults.isEmpty(), qPrintable(faults));
}

void tst_FocusLook::barsOfCards()
{
    QVERIFY(becomesActive(m_host->editor.get()));
    auto* bar = m_host->firstCard()->findChild<QPushButton*>(QStringLiteral("title"));
    const QString faults = focusFaultOf(bar);
    keepPicture(m_host->editor.get(), "bar");
    QVERIFY2(faults.isEmpty(), qPrintable(faults));
}

void tst_FocusLook::controlsOfTheChooser()
{
    QString faults = QStringLiteral("no chooser");
    const auto look = [&faults](QWidget* chooser) {
        faults = focusFaultsIn(chooser, 5);
        const auto tables = chooser->findChildren<QTableView*>(QStringLiteral("schedule"));
        for (QTableView* table : tables) {
            if (table->editTriggers() != QAbstractItemView::NoEditTriggers) {
                table->edit(table->model()->index(0, 3));
            }
        }
        // The editor of a count goes with its focus: what is around it is looked at.
        QWidget* count = QApplication::focusWidget();
        const QImage picture = pictureOf(count);
        const QColor ring = QColor(picture.pixel(picture.width() / 2, 0));
        const QColor ground = QColor(picture.pixel(picture.width() / 2, 4));
        if (!count->inherits("QSpinBox") || contrast(ring, ground) < kLeastDifference) {
            faults += QStringLiteral("the play count\n");
        }
        keepPicture(chooser, "chooser");
        chooser->close();
    };
    inModalWindow(m_host->editor.get(), look, [this] {
        QWidget* field = m_host->cell(1, ProgramsColumn);
        field->findChild<QPushButton*>(QStringLiteral("pushButton"))->click();
    });
    QVERIFY2(faults.isEmpty(), qPrintable(faults));
}

void tst_FocusLook::controlsOfTheHost()
{
    // Panels take their places at once.
    m_host->window.setAnimated(false);
    m_host->window.show();
    const QList<QDockWidget*> panels = m_host->window.findChildren<QDockWidget*>();
    QString faults;
    for (QDockWidget* panel : panels) {
        panel->show();
        panel->raise();
        QTRY_VERIFY(!panel->visibleRegion().isEmpty());
        faults += focusFaultsIn(&m_host->window, 2);
    }
    auto* programs = m_host->window.findChild<QTableView*>(QStringLiteral("programTable"));
    programs->setFocus();
    programs->setCurrentIndex(programs->model()->index(2, 1));
    QCoreApplication::processEvents();
    keepPicture(&m_host->window, "window");
    QVERIFY2(faults.isEmpty(), qPrintable(faults));
}

void tst_FocusLook::controlsOfPrompts()
{
    QString faults;
    int prompts = 0;
    const auto look = [this, &faults, &prompts](QWidget* prompt) {
        ++prompts;
        faults += becomesActive(prompt) ? QString() : QStringLiteral("not active\n");
        // The button that Return presses has it from the start.
        auto* first = prompt->findChild<QPushButton*>(QStringLiteral("tipButton1"));
        if (!first->hasFocus()) {
            faults += QStringLiteral("no first button\n");
        }
        faults += focusFaultsIn(prompt, 1);
        first->setFocus();
        const QImage picture = pictureOf(first);
        if (picture.pixelColor(picture.width() / 2, 0) != m_host->themes.colours().focus) {
            faults += QStringLiteral("no edge in the color of the focus\n");
        }
        keepPicture(prompt, prompts == 1 ? "question" : "notice");
        prompt->close();
    };
    inModalWindow(m_host->editor.get(), look, [] {
        prompts::confirm(QStringLiteral("The schedule has changes that are not saved."),
                         QStringLiteral("Save"), QStringLiteral("Discard"), QStringLiteral("Stay"));
    });
    inModalWindow(m_host->editor.get(), look,
                  [] { prompts::notice(QStringLiteral("The file could not be read.")); });
    QCOMPARE(prompts, 2);
    QVERIFY2(faults.isEmpty(), qPrintable(faults));
}

void tst_FocusLook::controlsOfAnImport()
{
    QProgressDialog progress(QStringLiteral("News.mp4"), QStringLiteral("Cancel"), 0, 4,
                             &m_host->window);
    progress.setValue(2);
    progress.show();
    const QString faults = focusFaultsIn(&progress, 1);
    QVERIFY2(faults.isEmpty(), qPrintable(faults));
}

void tst_FocusLook::controlsOfAFileDialog()
{
    QFileDialog dialog(&m_host->window, QStringLiteral("Open"), m_host->folder.path());
    dialog.setOption(QFileDialog::DontUseNativeDialog);
    dialog.resize(900, 600);
    dialog.show();
    const QString faults = focusFaultsIn(&dialog, 6);
    keepPicture(&dialog, "files");
    QVERIFY2(faults.isEmpty(), qPrintable(faults));
}

TREL_TEST(tst_FocusLook, QApplication)
#include "tst_FocusLook.moc"
