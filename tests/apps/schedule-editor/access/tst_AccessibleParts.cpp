#include "DateWords.h"
#include "HostFixture.h"
#include "access/AccessibleParts.h"
#include "access/Announcer.h"
#include "catalogue/CatalogueImport.h"
#include "screen/ComingPrograms.h"
#include "screen/NowNextPanel.h"
#include "screen/PreviewScreen.h"
#include "screen/ScreenNews.h"
#include "support/ActiveAccessibility.h"
#include "support/PlanRecords.h"
#include "support/TestClock.h"
#include "support/TestProgram.h"
#include "week/WeekView.h"
#include "year/YearStrip.h"

#include <QAccessible>
#include <QApplication>
#include <QComboBox>
#include <QFileDialog>
#include <QLabel>
#include <QScrollArea>
#include <QSignalSpy>

using namespace trel::desktop;
using namespace trel::mediadispatch;
using week::WeekView;
using year::YearStrip;

/// What the host paints, as a screen reader finds it, and what is said to it.
class tst_AccessibleParts : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();

    void theWeekIsAListOfItsBlocks();
    void aBlockSaysWhoHidesIt();
    void arrowsTellOfTheBlockTheyReach();
    void whereNobodyAnswersForAWidgetNothingIsTold();
    void pressingABlockLeadsToItsPlan();
    void aBlockThatHasGoneIsNotValid();
    void theYearIsAListOfItsTasks();
    void boxesAreNamedByWhatTheyAreFor();
    void boxesOfFileDialogsHaveNames();
    void labelsAreWhatTheyShow();
    void aChangeOfTheScreenIsSaidOnce();
    void anImportIsToldOfByTenths();

private:
    WeekView& week() const { return *m_host->window.findChild<WeekView*>(); }
    void showSchedule();
    void startPlays();

    std::unique_ptr<TestClock> m_clock;
    std::unique_ptr<HostFixture> m_host;
};

namespace {

QAccessibleInterface& spoken(QWidget& widget)
{
    return *QAccessible::queryAccessibleInterface(&widget);
}

/// What is said by the window beside its focus, while this lives.
class Heard
{
public:
    Heard()
        : m_former(QAccessible::installUpdateHandler(hear))
    {
        s_lines.clear();
    }
    ~Heard() { QAccessible::installUpdateHandler(m_former); }
    Q_DISABLE_COPY(Heard)

    static QStringList lines() { return s_lines; }

private:
    static void hear(QAccessibleEvent* event)
    {
        const bool isAlert = event->type() == QAccessible::Alert;
        const QAccessibleInterface* const what = isAlert || event->type() == QAccessible::ObjectShow
                                                     ? event->accessibleInterface()
                                                     : nullptr;
        if (what != nullptr && what->role() == QAccessible::Notification) {
            s_lines.append((isAlert ? QStringLiteral("alert ") : QStringLiteral("shown ")) +
                           what->text(QAccessible::Name));
        }
    }

    inline static QStringList s_lines;
    const ActiveAccessibility m_active;
    const QAccessible::UpdateHandler m_former;
};

/// The factory does not know this one by its name, so that the toolkit answers for it.
class UnknownParts : public QScrollArea, public access::SpokenParts
{
public:
    int spokenCount() const override { return 50; }
    QString spokenName(int /*index*/) const override { return QStringLiteral("part"); }
    QRect spokenPlace(int /*index*/) const override { return rect(); }
    int spokenCurrent() const override { return 40; }
};

} // namespace

void tst_AccessibleParts::initTestCase()
{
    access::installAccessibleParts();
}

void tst_AccessibleParts::init()
{
    m_clock = std::make_unique<TestClock>(QDateTime(QDate(2026, 3, 11), QTime(8, 0, 10)));
    m_host = std::make_unique<HostFixture>();
}

void tst_AccessibleParts::cleanup()
{
    m_host.reset();
    m_clock.reset();
}

void tst_AccessibleParts::showSchedule()
{
    QCOMPARE(m_host->window.openDatabase(m_host->database, QStringLiteral(DEMONSTRATION)),
             QString());
    m_host->window.show();
    QTRY_VERIFY(week().spokenCount() > 0);
}

void tst_AccessibleParts::theWeekIsAListOfItsBlocks()
{
    showSchedule();
    QAccessibleInterface& list = spoken(week());
    QCOMPARE(list.role(), QAccessible::List);
    QCOMPARE(list.childCount(), week().spokenCount());
    for (int i = 0; i < list.childCount(); ++i) {
        QAccessibleInterface* const block = list.child(i);
        QCOMPARE(block->role(), QAccessible::ListItem);
        QVERIFY2(
            block->text(QAccessible::Name)
                .contains(QRegularExpression(QStringLiteral(
                    "^\\w+, .2026\\.\\d\\d\\.\\d\\d., task 1\\. Plan \\d, \\d\\d:\\d\\d to "))),
            qPrintable(block->text(QAccessible::Name)));
        QCOMPARE(list.indexOfChild(block), i);
        QCOMPARE(block->parent(), &list);
        QVERIFY(block->rect().isEmpty() || list.rect().contains(block->rect()));
    }
    QVERIFY(list.child(-1) == nullptr);
    QVERIFY(list.child(list.childCount()) == nullptr);
}

void tst_AccessibleParts::aBlockSaysWhoHidesIt()
{
    showSchedule();
    QStringList reasons;
    QAccessibleInterface& list = spoken(week());
    for (int i = 0; i < list.childCount(); ++i) {
        reasons.append(list.child(i)->text(QAccessible::Description));
    }
    QVERIFY2(!reasons.filter(QStringLiteral("conflicts with a plan above")).isEmpty(),
             qPrintable(reasons.join(QLatin1Char('\n'))));
}

void tst_AccessibleParts::arrowsTellOfTheBlockTheyReach()
{
    showSchedule();
    m_host->window.activateWindow();
    week().setFocus();
    QTRY_VERIFY(week().hasFocus());
    for (int step = 0; step < 2; ++step) {
        QTest::keyClick(&week(), step == 0 ? Qt::Key_Down : Qt::Key_Right);
        const int reached = week().spokenCurrent();
        QVERIFY(reached >= 0);
        const QAccessibleInterface* const block = spoken(week()).child(reached);
        QVERIFY(block->state().focused && block->state().selected);
        const QString day = weekdayText(week().selected()->date, week().locale());
        QVERIFY2(block->text(QAccessible::Name).startsWith(day),
                 qPrintable(block->text(QAccessible::Name)));
        QCOMPARE(spoken(week()).focusChild(), block);
    }
}

void tst_AccessibleParts::whereNobodyAnswersForAWidgetNothingIsTold()
{
    UnknownParts widget;
    widget.show();
    widget.activateWindow();
    widget.setFocus();
    QTRY_VERIFY(widget.hasFocus());
    static int focused = 0;
    focused = 0;
    const auto former = QAccessible::installUpdateHandler(
        [](QAccessibleEvent* event) { focused += event->type() == QAccessible::Focus ? 1 : 0; });
    QAccessible::setActive(true);
    // The toolkit's own looks for the part among its few children, without a check.
    access::tellCurrentPart(widget);
    QAccessible::setActive(false);
    QAccessible::installUpdateHandler(former);
    QCOMPARE(focused, 0);
}

void tst_AccessibleParts::pressingABlockLeadsToItsPlan()
{
    showSchedule();
    const QSignalSpy asked(&week(), &WeekView::activated);
    QAccessibleInterface* const block = spoken(week()).child(1);
    block->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    // Whoever asks has the answer before anything opens.
    QVERIFY(asked.isEmpty());
    QTRY_COMPARE(asked.size(), 1);
    QCOMPARE(week().spokenCurrent(), 1);
}

void tst_AccessibleParts::aBlockThatHasGoneIsNotValid()
{
    showSchedule();
    QAccessibleInterface* const block = spoken(week()).child(week().spokenCount() - 1);
    QVERIFY(block->isValid());
    week().showWeekOf(QDate(2030, 1, 1));
    QCOMPARE(week().spokenCount(), 0);
    QVERIFY(!block->isValid());
    QCOMPARE(block->text(QAccessible::Name), QString());
}

void tst_AccessibleParts::theYearIsAListOfItsTasks()
{
    showSchedule();
    auto& strip = *m_host->window.findChild<YearStrip*>();
    QTRY_VERIFY(strip.spokenCount() > 0);
    QAccessibleInterface& list = spoken(strip);
    QCOMPARE(list.role(), QAccessible::List);
    QVERIFY(list.child(0)->text(QAccessible::Name).startsWith(QStringLiteral("Task 1 is valid")));
    QVERIFY(!list.child(0)->rect().isEmpty());
    const QSignalSpy days(&strip, &YearStrip::dayChosen);
    list.child(0)->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    QTRY_COMPARE(days.size(), 1);
    QCOMPARE(days.first().first().toDate(), strip.layoutOfYear().spans.front().first);
}

void tst_AccessibleParts::boxesAreNamedByWhatTheyAreFor()
{
    showSchedule();
    auto& kinds = *m_host->window.findChild<QComboBox*>(QStringLiteral("programKinds"));
    QAccessibleInterface& box = spoken(kinds);
    QCOMPARE(box.text(QAccessible::Name), QStringLiteral("Kind of program"));
    QCOMPARE(box.text(QAccessible::Value), QStringLiteral("All kinds"));
    kinds.setCurrentIndex(1);
    QAccessibleTextInterface* const text = box.textInterface();
    QCOMPARE(text->text(0, text->characterCount()), kinds.itemText(1));
}

void tst_AccessibleParts::boxesOfFileDialogsHaveNames()
{
    QFileDialog dialog;
    dialog.setOption(QFileDialog::DontUseNativeDialog);
    const QList<QComboBox*> boxes = dialog.findChildren<QComboBox*>();
    QSet<QString> names;
    for (QComboBox* const box : boxes) {
        names.insert(spoken(*box).text(QAccessible::Name));
    }
    QCOMPARE(names.size(), 2);
    QVERIFY(!names.contains(QString()));
}

void tst_AccessibleParts::startPlays()
{
    QCOMPARE(m_host->window.openDatabase(m_host->database, QStringLiteral(DEMONSTRATION)),
             QString());
    m_host->window.show();
    PlayPlan first = timePlan(1, "08:00:00", "08:01:00");
    first.programs.push_back(entry(1));
    PlayPlan second = timePlan(2, "08:01:00", "09:00:00");
    second.programs.push_back(entry(2));
    PlayTask task = taskWithPlans({first, second}, 1);
    task.startDate = "2020.01.01";
    task.endDate = "2099.12.31";
    const auto former = m_host->manager.getgTaskMap();
    for (const auto& known : former) {
        m_host->manager.deleteTask(known.first);
    }
    m_host->manager.addTask(task);
    m_host->manager.save();
    m_host->manager.slotOpen();
}

void tst_AccessibleParts::labelsAreWhatTheyShow()
{
    startPlays();
    auto& panel = *m_host->window.findChild<NowNextPanel*>();
    for (const char* name : {"nowProgram", "nowReason", "nextProgram", "nowPicture"}) {
        auto& label = *panel.findChild<QLabel*>(QLatin1String(name));
        QVERIFY(!label.text().isEmpty());
        QCOMPARE(spoken(label).text(QAccessible::Name), label.text());
        QVERIFY(!spoken(label).text(QAccessible::Description).isEmpty());
    }
    auto& preview = *m_host->window.findChild<PreviewScreen*>();
    QCOMPARE(spoken(preview).role(), QAccessible::Graphic);
    QVERIFY(spoken(preview).text(QAccessible::Name).startsWith(QStringLiteral("Playing: ")));
    auto& coming = *m_host->window.findChild<ComingPrograms*>();
    QCOMPARE(spoken(coming).childCount(), coming.spokenCount());
}

void tst_AccessibleParts::aChangeOfTheScreenIsSaidOnce()
{
    startPlays();
    const auto* const announcer = m_host->window.findChild<access::Announcer*>();
    const QSignalSpy news(m_host->window.findChild<ScreenNews*>(), &ScreenNews::told);
    const Heard heard;
    // The same program, second by second.
    for (int second = 0; second < 19; ++second) {
        m_clock->advance(1000);
    }
    QCOMPARE(news.size(), 0);
    m_clock->advance(60000);
    QCOMPARE(news.size(), 1);
    QVERIFY(news.first().first().toString().startsWith(QStringLiteral("Playing: ")));
    QCOMPARE(announcer->accessibleName(), news.first().first().toString());
    // As an alert, and as a notification for those who hear of no alerts.
    const QString said = announcer->accessibleName();
    QCOMPARE(heard.lines(),
             QStringList({QStringLiteral("alert ") + said, QStringLiteral("shown ") + said}));
    m_clock->advance(3600000);
    QCOMPARE(news.size(), 2);
    QCOMPARE(heard.lines().size(), 4);
}

void tst_AccessibleParts::anImportIsToldOfByTenths()
{
    QCOMPARE(m_host->window.openDatabase(m_host->database), QString());
    QStringList files;
    for (int number = 0; number < 40; ++number) {
        files.append(m_host->folder.filePath(QStringLiteral("%1.png").arg(number)));
        QVERIFY(QImage(2, 2, QImage::Format_RGB32).save(files.back()));
    }
    const QSignalSpy ended(&m_host->window, &EditorWindow::importEnded);
    const QSignalSpy tenths(m_host->window.findChild<CatalogueImport*>(),
                            &CatalogueImport::tenthDone);
    m_host->window.importMedia(files);
    QTRY_COMPARE_WITH_TIMEOUT(ended.size(), 1, 60000);
    QVERIFY(!tenths.isEmpty() && tenths.size() <= 10);
    int last = 0;
    for (const QList<QVariant>& tenth : tenths) {
        QVERIFY(tenth.first().toInt() > last);
        last = tenth.first().toInt();
    }
    QVERIFY(m_host->window.findChild<access::Announcer*>()->accessibleName().startsWith(
        QStringLiteral("Imported: 40 new")));
}

TREL_TEST(tst_AccessibleParts, QApplication)
#include "tst_AccessibleParts.moc"
