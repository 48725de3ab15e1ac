#include "HostFixture.h"
#include "HostPrompts.h"
#include "LookSupport.h"
#include "support/TestProgram.h"

#include "card/PlanColumns.h"
#include "place/AddressDialog.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QDateEdit>
#include <QEnterEvent>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QProgressDialog>
#include <QPushButton>
#include <QTableView>
#include <QTimer>
#include <QToolTip>

#include <functional>

using namespace trel::desktop;
using namespace trel::mediadispatch;

/// Every text against its ground, on the pixels of what opens over the windows for a moment.
class tst_PromptContrast : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void questionOfTheEditor_data() { addThemes(); }
    void questionOfTheEditor();
    void refusalOfTheEditor_data() { addThemes(); }
    void refusalOfTheEditor();
    void questionOfTheHost_data() { addThemes(); }
    void questionOfTheHost();
    void noticeOfTheHost_data() { addThemes(); }
    void noticeOfTheHost();
    void addressOfAServer_data() { addThemes(); }
    void addressOfAServer();
    void progressOfAnImport_data() { addThemes(); }
    void progressOfAnImport();
    void toolTips_data() { addThemes(); }
    void toolTips();

private:
    void lookAtPrompt(int buttons, const std::function<void()>& open) const;

    std::unique_ptr<HostFixture> m_host;
};

namespace {

QWidget* shownToolTip()
{
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget* window : windows) {
        if (window->inherits("QTipLabel") && window->isVisible()) {
            return window;
        }
    }
    return nullptr;
}

QString faultsOfToolTip(const QString& text)
{
    QWidget* tip = shownToolTip();
    if (tip == nullptr || tip->property("text").toString() != text) {
        return QStringLiteral("no tool tip \"%1\"\n").arg(text);
    }
    return faultOf(pictureOf(tip), tip->rect().adjusted(2, 2, -2, -2), text);
}

void askForToolTip(QWidget* widget)
{
    const QPoint place = widget->rect().center();
    QHelpEvent help(QEvent::ToolTip, place, widget->mapToGlobal(place));
    QCoreApplication::sendEvent(widget, &help);
}

} // namespace

void tst_PromptContrast::init()
{
    m_host = std::make_unique<HostFixture>();
    QFETCH(QString, theme);
    m_host->themes.select(theme);
    m_host->showDemonstration();
}

void tst_PromptContrast::cleanup()
{
    m_host.reset();
}

void tst_PromptContrast::lookAtPrompt(int buttons, const std::function<void()>& open) const
{
    QString faults = QStringLiteral("no prompt");
    QTimer::singleShot(0, m_host->editor.get(), [&faults, buttons] {
        QWidget* prompt = QApplication::activeModalWidget();
        faults.clear();
        QStringList names{QStringLiteral("TitleLabel"), QStringLiteral("dialogTipLabel")};
        for (int number = 1; number <= buttons; ++number) {
            names.append(QStringLiteral("tipButton%1").arg(number));
        }
        for (const QString& name : qAsConst(names)) {
            auto* part = prompt->findChild<QWidget*>(name);
            faults += part->isVisible() ? faultsOf(part) : name + QStringLiteral(" is hidden\n");
        }
        // The sign beside the text, which says whether it asks or refuses.
        auto* icon = prompt->findChild<QLabel*>(QStringLiteral("dialogTipIcon"));
        faults += faultOf(pictureOf(icon), icon->rect(), QStringLiteral("icon"), 3.0);
        prompt->close();
    });
    open();
    QVERIFY2(faults.isEmpty(), qPrintable(faults));
}

void tst_PromptContrast::questionOfTheEditor()
{
    lookAtPrompt(2, [this] {
        m_host->firstCard()->findChild<QPushButton*>(QStringLiteral("pushButtonDelete"))->click();
    });
}

void tst_PromptContrast::refusalOfTheEditor()
{
    lookAtPrompt(1, [this] {
        auto* first =
            m_host->firstCard()->findChild<QDateEdit*>(QStringLiteral("dateEditVaildStartTime"));
        auto* last =
            m_host->firstCard()->findChild<QDateEdit*>(QStringLiteral("dateEditVaildEndTime"));
        first->setDate(last->date().addDays(1));
    });
}

void tst_PromptContrast::questionOfTheHost()
{
    lookAtPrompt(3, [] {
        prompts::confirm(QStringLiteral("The schedule has changes that are not saved."),
                         QStringLiteral("Save"), QStringLiteral("Discard"), QStringLiteral("Stay"));
    });
}

void tst_PromptContrast::noticeOfTheHost()
{
    lookAtPrompt(1, [] { prompts::notice(QStringLiteral("The file could not be read.")); });
}

/// With a button that cannot be pressed, and with one that can.
void tst_PromptContrast::addressOfAServer()
{
    QString faults;
    for (const char* const address : {"", "postgresql://desk/shows?schedule=hall"}) {
        place::AddressDialog dialog(QLatin1String(address), &m_host->window);
        dialog.show();
        QCoreApplication::processEvents();
        const QList<QWidget*> parts = dialog.findChildren<QWidget*>();
        for (QWidget* part : parts) {
            if ((qobject_cast<QLabel*>(part) && !part->property("text").toString().isEmpty()) ||
                qobject_cast<QLineEdit*>(part) || qobject_cast<QPushButton*>(part)) {
                faults += faultsOf(part);
            }
        }
    }
    QVERIFY2(faults.isEmpty(), qPrintable(faults));
}

void tst_PromptContrast::progressOfAnImport()
{
    QSignalSpy ended(&m_host->window, &EditorWindow::importEnded);
    QVERIFY(ended.isValid());
    m_host->window.importMedia({m_host->copyMedia(QStringLiteral("media"))});
    auto* progress = m_host->window.findChild<QProgressDialog*>(QStringLiteral("importProgress"));
    QVERIFY(progress != nullptr);
    progress->setLabelText(QStringLiteral("News.mp4"));
    progress->setMaximum(4);
    // Some of it done, all of it done: the figure stands on either ground.
    QString faults;
    for (const int done : {0, 2, 4}) {
        progress->setValue(done);
        progress->show();
        const QList<QWidget*> parts = progress->findChildren<QWidget*>();
        for (QWidget* part : parts) {
            if (qobject_cast<QLabel*>(part) || qobject_cast<QPushButton*>(part)) {
                faults += faultsOf(part);
            } else if (qobject_cast<QProgressBar*>(part) && done != 2) {
                faults += faultOf(pictureOf(part), part->rect().adjusted(4, 4, -4, -4),
                                  QStringLiteral("bar at %1 of 4").arg(done));
            }
        }
    }
    QTRY_COMPARE(ended.count(), 1);
    QVERIFY2(faults.isEmpty(), qPrintable(faults));
}

void tst_PromptContrast::toolTips()
{
    QString faults;
    auto* copy = m_host->firstCard()->findChild<QPushButton*>(QStringLiteral("pbtCreatCopy"));
    const QPointF place = copy->rect().center();
    QEnterEvent enter(place, copy->mapTo(copy->window(), place.toPoint()),
                      copy->mapToGlobal(place.toPoint()));
    QCoreApplication::sendEvent(copy, &enter);
    faults += faultsOfToolTip(QStringLiteral("Make a copy"));

    askForToolTip(m_host->cell(0, DeleteColumn));
    faults += faultsOfToolTip(QStringLiteral("Delete"));
    QWidget* days = m_host->cell(0, WeeksColumn)->findChild<QComboBox*>();
    askForToolTip(days);
    faults += faultsOfToolTip(days->toolTip());

    // One that is open while the theme changes.
    m_host->themes.select(m_host->themes.current() == QLatin1String("dark")
                              ? QStringLiteral("light")
                              : QStringLiteral("dark"));
    faults += faultsOfToolTip(days->toolTip());
    QToolTip::hideText();
    QVERIFY2(faults.isEmpty(), qPrintable(faults));
}

TREL_TEST(tst_PromptContrast, QApplication)
#include "tst_PromptContrast.moc"
