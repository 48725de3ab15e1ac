#include "EditorMenus.h"
#include "HostFixture.h"
#include "HostPrompts.h"
#include "card/PlanColumns.h"
#include "help/HelpMenu.h"
#include "support/PlatformNotes.h"
#include "support/TestProgram.h"

#include <QAbstractAnimation>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDockWidget>
#include <QLabel>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QMovie>
#include <QProgressDialog>
#include <QPushButton>
#include <QTimer>
#include <QTreeView>
#include <QVariantAnimation>

#include <array>
#include <functional>
#include <memory>

using namespace trel::desktop;
using namespace trel::mediadispatch;

/// Nothing in the windows moves of itself, whatever the system says of motion.
class tst_StillWindows : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void motionIsFound();
    void theEffectsOfTheToolkitAreOff();
    void theWindowIsStill();
    void theEditorIsStill();
    void theChooserIsStill();
    void promptsAreStill();
    void theProgressOfAnImportIsStill();
    void whatTheMenusOpenIsStill();

private:
    void lookAtModal(const std::function<void()>& open) const;
    void lookAtWhatOpens(QAction& entry) const;

    const NoPlatformNotes m_quiet;
    std::unique_ptr<HostFixture> m_host;
};

namespace {

constexpr std::array kEffects = {Qt::UI_AnimateMenu,    Qt::UI_FadeMenu,    Qt::UI_AnimateCombo,
                                 Qt::UI_AnimateTooltip, Qt::UI_FadeTooltip, Qt::UI_AnimateToolBox};

void setEffects(bool enable)
{
    QApplication::setEffectEnabled(Qt::UI_General, enable);
    for (const Qt::UIEffect effect : kEffects) {
        QApplication::setEffectEnabled(effect, enable);
    }
}

/// What moves of itself in a widget, or would as soon as something is opened or closed in it.
QString motionOf(const QWidget& widget)
{
    const QString name = QLatin1String(widget.metaObject()->className()) + QLatin1Char(' ') +
                         widget.objectName() + QLatin1Char(' ');
    QString found;
    const auto* const window = qobject_cast<const QMainWindow*>(&widget);
    const auto* const tree = qobject_cast<const QTreeView*>(&widget);
    if ((window && window->isAnimated()) || (tree && tree->isAnimated())) {
        found += name + QStringLiteral("is animated\n");
    }
    const auto* const label = qobject_cast<const QLabel*>(&widget);
    if (label && label->movie() && label->movie()->state() == QMovie::Running) {
        found += name + QStringLiteral("shows a film\n");
    }
    // Those of a style belong to the widget that they are for.
    const auto animations =
        widget.findChildren<QAbstractAnimation*>(QString(), Qt::FindDirectChildrenOnly);
    for (const QAbstractAnimation* const animation : animations) {
        if (animation->state() == QAbstractAnimation::Running) {
            found += name + QLatin1String(animation->metaObject()->className()) + QLatin1Char('\n');
        }
    }
    return found;
}

/// The same in all that is shown of a window, once it has been painted.
QString motionIn(QWidget& window)
{
    window.grab();
    QCoreApplication::processEvents();
    QString found = motionOf(window);
    const QList<QWidget*> widgets = window.findChildren<QWidget*>();
    for (const QWidget* const widget : widgets) {
        if (widget->isVisible()) {
            found += motionOf(*widget);
        }
    }
    return found;
}

void expectStill(QWidget& window)
{
    const QString motion = motionIn(window);
    QVERIFY2(motion.isEmpty(), qPrintable(motion));
}

QList<QWidget*> shownWindows()
{
    QList<QWidget*> windows;
    const QList<QWidget*> all = QApplication::topLevelWidgets();
    for (QWidget* const window : all) {
        if (window->isVisible()) {
            windows.append(window);
        }
    }
    return windows;
}

} // namespace

void tst_StillWindows::init()
{
    setEffects(true);
    m_host = std::make_unique<HostFixture>();
    m_host->showDemonstration();
}

void tst_StillWindows::cleanup()
{
    m_host.reset();
    setEffects(false);
}

/// Looks at the window that something opens and blocks in, and closes it.
void tst_StillWindows::lookAtModal(const std::function<void()>& open) const
{
    QString motion = QStringLiteral("no window");
    QTimer::singleShot(0, m_host->editor.get(), [&motion] {
        if (QWidget* const modal = QApplication::activeModalWidget()) {
            motion = motionIn(*modal);
            modal->close();
        }
    });
    open();
    QCoreApplication::processEvents();
    QVERIFY2(motion.isEmpty(), qPrintable(motion));
}

/// The same for a window that may block or not.
void tst_StillWindows::lookAtWhatOpens(QAction& entry) const
{
    QVERIFY2(entry.isEnabled(), qPrintable(entry.text()));
    const QList<QWidget*> former = shownWindows();
    QString motion;
    int seen = 0;
    const auto look = [&] {
        const QList<QWidget*> windows = shownWindows();
        for (QWidget* const window : windows) {
            if (!former.contains(window)) {
                ++seen;
                motion += motionIn(*window);
                window->close();
            }
        }
    };
    // Inside the call where it blocks, and behind it where it does not.
    QTimer::singleShot(0, m_host->editor.get(), look);
    entry.trigger();
    QCoreApplication::processEvents();
    look();
    QVERIFY2(seen > 0, qPrintable(entry.text()));
    QVERIFY2(motion.isEmpty(), qPrintable(entry.text() + QLatin1Char('\n') + motion));
}

/// In a window that does all of it.
void tst_StillWindows::motionIsFound()
{
    QMainWindow window;
    QTreeView tree(&window);
    tree.setAnimated(true);
    QLabel label(&window);
    QMovie film(QStringLiteral(LANGUAGE_SOURCE_DIR "/../images/refresh.gif"));
    label.setMovie(&film);
    film.start();
    QWidget slider(&window);
    QVariantAnimation animation(&slider);
    animation.setStartValue(0);
    animation.setEndValue(1);
    animation.setLoopCount(-1);
    animation.start();
    window.show();
    QCOMPARE(motionIn(window).count(QLatin1Char('\n')), 4);
    window.hide();
    window.setAnimated(false);
    QCOMPARE(motionIn(window), QString());
}

void tst_StillWindows::theEffectsOfTheToolkitAreOff()
{
    for (const Qt::UIEffect effect : kEffects) {
        QVERIFY2(!QApplication::isEffectEnabled(effect),
                 qPrintable(QString::number(static_cast<int>(effect))));
    }
    QApplication::setEffectEnabled(Qt::UI_General, true);
    QVERIFY(QApplication::isEffectEnabled(Qt::UI_AnimateMenu));
}

void tst_StillWindows::theWindowIsStill()
{
    m_host->window.show();
    const QList<QDockWidget*> panels = m_host->window.findChildren<QDockWidget*>();
    QVERIFY(panels.size() > 5);
    for (QDockWidget* const panel : panels) {
        panel->show();
        panel->raise();
        expectStill(m_host->window);
    }
    const QList<QAction*> menus = m_host->window.menuBar()->actions();
    for (const QAction* const entry : menus) {
        entry->menu()->popup(QPoint());
        expectStill(*entry->menu());
        entry->menu()->close();
    }
}

void tst_StillWindows::theEditorIsStill()
{
    expectStill(*m_host->editor);
    // Opened and closed, as an animation of the card would begin then.
    auto* const bar = m_host->firstCard()->findChild<QAbstractButton*>(QStringLiteral("title"));
    bar->click();
    expectStill(*m_host->editor);
    bar->click();
    for (const int column : {ModeColumn, WeeksColumn, EndActionColumn}) {
        auto* const box = m_host->cell(0, column)->findChild<QComboBox*>();
        // A list of days does not open right after the box has been made.
        const auto opens = [box] {
            box->showPopup();
            return box->view()->isVisible();
        };
        QVERIFY(QTest::qWaitFor(opens));
        expectStill(*box->view()->window());
        box->hidePopup();
    }
}

void tst_StillWindows::theChooserIsStill()
{
    lookAtModal([this] {
        m_host->cell(0, ProgramsColumn)
            ->findChild<QPushButton*>(QStringLiteral("pushButton"))
            ->click();
    });
}

void tst_StillWindows::promptsAreStill()
{
    lookAtModal([this] {
        m_host->firstCard()->findChild<QPushButton*>(QStringLiteral("pushButtonDelete"))->click();
    });
    lookAtModal([] { prompts::notice(QStringLiteral("The file could not be read.")); });
}

/// While it is not known how many files there are, a bar would run to and fro.
void tst_StillWindows::theProgressOfAnImportIsStill()
{
    m_host->window.show();
    m_host->window.importMedia({m_host->copyMedia(QStringLiteral("media"))});
    auto* const progress =
        m_host->window.findChild<QProgressDialog*>(QStringLiteral("importProgress"));
    QVERIFY(progress && progress->maximum() == 0);
    progress->show();
    expectStill(*progress);
    const QSignalSpy ended(&m_host->window, &EditorWindow::importEnded);
    QTRY_COMPARE_WITH_TIMEOUT(ended.count(), 1, 60000);
}

void tst_StillWindows::whatTheMenusOpenIsStill()
{
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    m_host->window.show();
    m_host->window.findChild<QTableView*>(QStringLiteral("programTable"))->selectRow(0);
    const auto& menus = *m_host->window.findChild<EditorMenus*>();
    const auto& help = *m_host->window.findChild<HelpMenu*>();
    for (QAction* const entry :
         {menus.openDatabase(), menus.newDatabase(), menus.importSchedule(), menus.exportSchedule(),
          menus.importFiles(), menus.importFolder(), menus.whereUsed(), menus.removePrograms(),
          menus.versions(), menus.asRun(), help.guide(), help.keys(), help.about()}) {
        lookAtWhatOpens(*entry);
    }
}

TREL_TEST(tst_StillWindows, QApplication)
#include "tst_StillWindows.moc"
