#include "HostFixture.h"
#include "catalogue/ProgramTableModel.h"
#include "screen/ElidedText.h"
#include "support/TestClock.h"
#include "support/TestProgram.h"
#include "week/WeekPage.h"
#include "week/WeekPanel.h"
#include "week/WeekView.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QDockWidget>
#include <QHeaderView>
#include <QScrollArea>
#include <QScrollBar>
#include <QTableView>
#include <QToolBar>

using namespace trel::desktop;
using namespace trel::mediadispatch;

namespace {

/// What a desktop leaves of a screen of 1366 by 768, and of one of 1024 by 768, beside its own bar
/// and the frame of the window.
constexpr QSize kUsual(1366, 706);
constexpr QSize kSmall(1024, 706);
/// Less than what is on screen takes when it has most to say.
constexpr int kLow = 540;

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

bool fits(const QSize& size, const QSize& room)
{
    return size.width() <= room.width() && size.height() <= room.height();
}

const ElidedText& textOf(const EditorWindow& window, const char* name)
{
    return *window.findChild<ElidedText*>(QLatin1String(name));
}

/// The controls around the week that are cut off or that lie over others.
QStringList faultsOf(const QWidget& panel)
{
    QStringList faults;
    QList<QWidget*> controls;
    const QList<QWidget*> all = panel.findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly);
    for (QWidget* widget : all) {
        if (widget->isVisible()) {
            controls.append(widget);
        }
    }
    for (QWidget* widget : qAsConst(controls)) {
        if (!panel.rect().contains(widget->geometry())) {
            faults.append(widget->objectName() + QStringLiteral(" is cut off"));
        }
        const auto* button = qobject_cast<QAbstractButton*>(widget);
        const bool isSign = button != nullptr && button->text().size() < 2;
        if (button != nullptr && !isSign && button->width() < button->minimumSizeHint().width()) {
            faults.append(widget->objectName() + QStringLiteral(" has no room for its text"));
        }
        if (qobject_cast<QComboBox*>(widget) != nullptr &&
            widget->width() < widget->sizeHint().width()) {
            faults.append(widget->objectName() + QStringLiteral(" has no room for its texts"));
        }
        for (QWidget* other : qAsConst(controls)) {
            if (other != widget && other->geometry().intersects(widget->geometry())) {
                faults.append(widget->objectName() + QStringLiteral(" lies over ") +
                              other->objectName());
            }
        }
    }
    return faults;
}

/// The time, before anything asks for it: a plan of the demonstration plays.
struct AtNoon
{
    TestClock clock{QDateTime(QDate(2026, 3, 11), QTime(12, 30))};
};

struct Window : AtNoon, HostFixture
{
    explicit Window(const QString& language)
    {
        languages.select(language);
        window.openDatabase(database, QStringLiteral(DEMONSTRATION));
        window.show();
        QCoreApplication::processEvents();
    }

    week::WeekPanel& panel() const { return *window.findChild<week::WeekPage*>()->panel(); }
};

} // namespace

/// The window fits onto the screens that stations have.
class tst_WindowSizes : public QObject
{
    Q_OBJECT

private slots:
    void fitsAUsualScreen_data() { addLanguages(); }
    void fitsAUsualScreen();
    void fitsASmallScreen_data() { addLanguages(); }
    void fitsASmallScreen();
    void fitsWhileItIsOnAir_data() { addLanguages(); }
    void fitsWhileItIsOnAir();
    void panelsCanBeRemembered();
};

void tst_WindowSizes::fitsAUsualScreen()
{
    QFETCH(QString, language);
    const Window fixture(language);
    QVERIFY(fits(fixture.window.size(), kUsual));
    QCOMPARE(faultsOf(fixture.panel()).join(QLatin1Char('\n')), QString());
    // Days that are wide enough for the hours of a plan, and hours high enough for a line.
    const week::WeekView& view = *fixture.panel().view();
    QVERIFY(view.viewport()->width() >= 7 * 90);
    QVERIFY(view.isFit());
    QVERIFY2(view.viewport()->height() >= 260,
             qPrintable(QString::number(view.viewport()->height())));
    // The folder of a program stands beside its name, as a whole.
    const auto* programs = fixture.window.findChild<QTableView*>(QStringLiteral("programTable"));
    const int folder = ProgramTableModel::FolderColumn;
    QVERIFY(programs->columnWidth(folder) >= 110);
    QTRY_COMPARE(programs->columnViewportPosition(folder) + programs->columnWidth(folder),
                 programs->viewport()->width());
    // More than one problem is seen at once.
    const auto* problems = fixture.window.findChild<QTableView*>(QStringLiteral("problemTable"));
    QTRY_VERIFY(problems->isVisible());
    const int row = problems->verticalHeader()->defaultSectionSize();
    QVERIFY2(problems->viewport()->height() >= 2 * row,
             qPrintable(QString::number(problems->viewport()->height())));
    // What to do before anything is on screen is said whole.
    QVERIFY(textOf(fixture.window, "nowReason").isWhole());
}

void tst_WindowSizes::fitsASmallScreen()
{
    QFETCH(QString, language);
    Window fixture(language);
    fixture.window.resize(kSmall);
    QCoreApplication::processEvents();
    QVERIFY2(fits(fixture.window.size(), kSmall),
             qPrintable(QString::number(fixture.window.width())));
    QCOMPARE(faultsOf(fixture.panel()).join(QLatin1Char('\n')), QString());
    const QList<QDockWidget*> panels = fixture.window.findChildren<QDockWidget*>();
    for (const QDockWidget* panel : panels) {
        QVERIFY2(!panel->isVisible() || fixture.window.rect().contains(panel->geometry()),
                 qPrintable(panel->objectName()));
    }
}

/// It has most to say when something is cut in, and when what is saved differs.
void tst_WindowSizes::fitsWhileItIsOnAir()
{
    QFETCH(QString, language);
    Window fixture(language);
    fixture.manager.slotOpen();
    PlayTask task = fixture.manager.getTask(1);
    PlayPlan inserted = task.plans[0];
    inserted.serviceFlagA = true;
    inserted.serviceFlagB = true;
    task.plans[0].weeks = "2";
    fixture.manager.addTask(task);
    QVERIFY(fixture.host.trySave());
    QVERIFY(fixture.host.insertPlan(1, inserted.id, inserted, false));
    const auto isShown = [&fixture](const char* name) {
        return !fixture.window.findChild<QWidget*>(QLatin1String(name))->isHidden();
    };
    QTRY_VERIFY(isShown("effectDiffering") && isShown("nowCutIn"));
    QCoreApplication::processEvents();
    QVERIFY(textOf(fixture.window, "nowCutIn").isWhole());
    QVERIFY(textOf(fixture.window, "nowReason").isWhole());
    fixture.window.resize(kSmall);
    QCoreApplication::processEvents();
    QVERIFY2(
        fits(fixture.window.size(), kSmall),
        qPrintable(
            QStringLiteral("%1 by %2").arg(fixture.window.width()).arg(fixture.window.height())));
    // With less room still, it scrolls: nothing that it says makes the window higher.
    fixture.window.resize(kSmall.width(), kLow);
    QCoreApplication::processEvents();
    QVERIFY2(fixture.window.height() <= kLow, qPrintable(QString::number(fixture.window.height())));
    const auto* area = fixture.window.findChild<QScrollArea*>(QStringLiteral("nowNextPanelArea"));
    QVERIFY(area != nullptr);
    const QScrollBar& bar = *area->verticalScrollBar();
    QVERIFY(bar.isVisible());
    QVERIFY(area->viewport()->height() + bar.maximum() >=
            area->widget()->minimumSizeHint().height());
}

void tst_WindowSizes::panelsCanBeRemembered()
{
    const Window fixture(QStringLiteral("en_US"));
    QSet<QString> names;
    const QList<QWidget*> widgets = fixture.window.findChildren<QWidget*>();
    for (const QWidget* widget : widgets) {
        if (qobject_cast<const QDockWidget*>(widget) || qobject_cast<const QToolBar*>(widget)) {
            QVERIFY(!widget->objectName().isEmpty());
            QVERIFY(!names.contains(widget->objectName()));
            names.insert(widget->objectName());
        }
    }
    QVERIFY(names.contains(QStringLiteral("catalogueDock")));
    QVERIFY(names.contains(QStringLiteral("airBar")));
}

TREL_TEST(tst_WindowSizes, QApplication)
#include "tst_WindowSizes.moc"
