#include "../EditorRun.h"
#include "../FileDialogAnswer.h"
#include "../follow/HeldPool.h"
#include "EditorMenus.h"
#include "look/ProgramSigns.h"
#include "support/PlanRecords.h"
#include "support/PlatformNotes.h"
#include "support/PromptAnswer.h"
#include "support/TestProgram.h"
#include "trelprogramschedule/json/ScheduleJson.h"
#include "versions/DifferenceModel.h"
#include "versions/StretchModel.h"
#include "versions/VersionsWindow.h"
#include "week/WeekView.h"

#include <QAction>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QProcess>
#include <QRegularExpression>
#include <QScrollBar>
#include <QTabWidget>
#include <QTimer>

using namespace trel::desktop;
using namespace trel::mediadispatch;

namespace {

using Tasks = std::map<int, PlayTask>;

/// Programs 1 and 2 of the demonstration every day from eight to the end.
Tasks daily(const char* end, int playCount = 1)
{
    PlayPlan plan = timePlan(4, "08:00:00", end);
    plan.programs = {entry(1, playCount), entry(2)};
    plan.programs[0].progName = "First";
    PlayTask task = taskWithPlans({plan}, 1);
    task.startDate = "2000.01.01";
    task.endDate = "2099.12.31";
    return {{1, task}};
}

/// What a table shows, a line for each row.
QStringList linesOf(const QTableView& table, int firstColumn = 0)
{
    QStringList lines;
    for (int row = 0; row < table.model()->rowCount(); ++row) {
        QStringList cells;
        for (int column = firstColumn; column < table.model()->columnCount(); ++column) {
            cells.append(table.model()->index(row, column).data().toString());
        }
        lines.append(cells.join(QLatin1Char('|')));
    }
    return lines;
}

/// The host on the demonstration with three saves more, of which the last is what is saved, and the
/// window of the versions.
class Desk : public HostFixture
{
public:
    Desk()
    {
        if (!window.openDatabase(database, QStringLiteral(DEMONSTRATION)).isEmpty()) {
            qFatal("no database");
        }
        window.show();
        for (const Tasks& tasks : {daily("09:00:00"), daily("10:00:00"), daily("10:00:00", 2)}) {
            if (!host.replaceSchedule(tasks)) {
                qFatal("not saved");
            }
        }
        std::vector<ScheduleVersion> versions;
        host.versions(versions);
        newest = versions.front().number;
    }

    void open()
    {
        action().trigger();
        QTRY_COMPARE(table().model()->rowCount(), static_cast<int>(newest) + 1);
        settle();
    }

    /// Waits for the comparison that is on its way.
    void settle() const
    {
        QTRY_COMPARE(label("versionSummary"), QString());
        QTRY_VERIFY(label("versionHeadline") != QStringLiteral("Comparing…"));
        QTRY_VERIFY(label("stretchSummary") != QStringLiteral("Comparing…"));
    }

    /// Chooses the version so many before the newest.
    void choose(int row) const
    {
        table().selectRow(row);
        settle();
    }

    QAction& action() const { return *window.findChild<EditorMenus*>()->versions(); }
    versions::VersionsWindow& list() const
    {
        return *window.findChild<versions::VersionsWindow*>();
    }
    template <typename Widget>
    Widget& part(const char* name) const
    {
        auto* const found = list().findChild<Widget*>(QLatin1String(name));
        if (found == nullptr) {
            qFatal("no %s", name);
        }
        return *found;
    }
    QTableView& table() const { return part<QTableView>("versionTable"); }
    QStringList differences() const { return linesOf(part<QTableView>("differenceTable")); }
    QStringList stretches() const { return linesOf(part<QTableView>("stretchTable"), 2); }
    QString label(const char* name) const { return part<QLabel>(name).text(); }
    QComboBox& other() const { return part<QComboBox>("versionOther"); }
    void click(const char* button) const
    {
        QTest::mouseClick(&part<QPushButton>(button), Qt::LeftButton);
    }

    QString version(qint64 number) const { return QStringLiteral("Version %1").arg(number); }

    Tasks saved() const
    {
        Tasks tasks;
        std::vector<ScheduleVersion> versions;
        host.versions(versions);
        host.versionTasks(versions.front().number, tasks);
        return tasks;
    }

    qint64 newest = 0;

private:
    NoPlatformNotes m_quiet;
};

/// Does something with the dialog of the name once it stands.
void onNameDialog(const std::function<void(QDialog& dialog)>& act)
{
    auto* timer = new QTimer(qApp);
    QObject::connect(timer, &QTimer::timeout, timer, [timer, act] {
        auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        if (dialog != nullptr && dialog->objectName() == QLatin1String("versionNameDialog")) {
            timer->deleteLater();
            act(*dialog);
            // Also where an expectation in it has failed.
            if (dialog->isVisible()) {
                dialog->reject();
            }
        }
    });
    timer->start(0);
}

const QString kMarkup = QStringLiteral("<b>x</b><img src=\"file:///nowhere\">&amp;");

} // namespace

/// The states that were saved, through the host's windows.
class tst_VersionsWindow : public QObject
{
    Q_OBJECT

private slots:
    void listsEachSave();
    void tellsWhatDiffersFromWhatIsSaved();
    void programsHaveTheirSigns();
    void comparesAnyTwo();
    void comparesWithWhatIsInEffect();
    void tellsWhatDiffersOnTheScreen();
    void bothWeeksGoInStep();
    void givesNamesAndNotes();
    void refusesNamesThatWouldNotShow();
    void restoresWhatIsMeant();
    void restoresIntoAnOpenEditor();
    void savesFirstWhatIsNotSaved();
    void whatWasNotSavedCanBeBroughtBack();
    void tellsWhatTheCatalogHasLost();
    void writesAVersionToAFile();
    void followsOtherPrograms();
    void supersededWorkDoesNotShow();
    void speaksTheLanguageInUse();
    void titlesAreWholeInEveryLanguage();
    void showsAllTextsPlain();
    void followsTheStoreThatIsOpen();
    void tellsWhatCannotBeRead();
};

void tst_VersionsWindow::listsEachSave()
{
    Desk desk;
    desk.open();
    const QStringList lines = linesOf(desk.table());
    QVERIFY2(lines[0].startsWith(QString::number(desk.newest) + QLatin1Char('|')),
             qPrintable(lines[0]));
    QVERIFY2(lines[0].endsWith(QLatin1String("|changed: 1 (tasks 1)||")), qPrintable(lines[0]));
    QVERIFY2(lines[0].contains(QSysInfo::machineHostName()), qPrintable(lines[0]));
    QVERIFY2(lines[2].contains(QLatin1String("deleted: ")), qPrintable(lines[2]));
    QVERIFY2(lines.last().contains(QLatin1String("|not known|")), qPrintable(lines.last()));
    // From the newest, which is what is saved, nothing can differ.
    QCOMPARE(desk.list().chosen(), std::make_optional(desk.newest - 1));
}

void tst_VersionsWindow::tellsWhatDiffersFromWhatIsSaved()
{
    Desk desk;
    desk.open();
    QCOMPARE(desk.label("versionHeadline"),
             desk.version(desk.newest - 1) + QStringLiteral(" → What is saved: 1 difference"));
    QVERIFY2(desk.differences().value(0).endsWith(QStringLiteral("plays in a row 1 → 2")),
             qPrintable(desk.differences().join(QLatin1Char('\n'))));
    desk.choose(2);
    QCOMPARE(desk.differences().size(), 2);
    QCOMPARE(desk.differences()[0], QStringLiteral("1|4|end 09:00:00 → 10:00:00"));
    desk.choose(0);
    QCOMPARE(desk.label("versionHeadline"),
             desk.version(desk.newest) + QStringLiteral(" → What is saved: Nothing differs."));
    QCOMPARE(desk.differences(), QStringList());
    // The empty schedule before the first save.
    desk.choose(static_cast<int>(desk.newest));
    QCOMPARE(desk.differences(),
             QStringList{QStringLiteral("1||added, valid from 2000.01.01 to 2099.12.31, 1 plan")});
}

void tst_VersionsWindow::programsHaveTheirSigns()
{
    Desk desk;
    desk.open();
    const auto signs = [&desk](const char* table, int column) {
        const QModelIndex index = desk.part<QTableView>(table).model()->index(0, column);
        return look::signedPrograms(index.data(look::kProgramsRole).value<look::ProgramIndexes>());
    };
    const int difference = versions::DifferenceModel::DifferenceColumn;
    // An entry has changed, and then the times of the plan.
    QCOMPARE(signs("differenceTable", difference), look::ProgramIndexes{1});
    QCOMPARE(signs("differenceTable", 0), look::ProgramIndexes());
    desk.choose(2);
    QCOMPARE(signs("differenceTable", difference), look::ProgramIndexes());
    // The plan that has the hour more plays two programs.
    QTRY_VERIFY(!desk.stretches().isEmpty());
    QCOMPARE(signs("stretchTable", versions::StretchModel::LaterColumn),
             (look::ProgramIndexes{1, 2}));
}

void tst_VersionsWindow::comparesAnyTwo()
{
    Desk desk;
    desk.open();
    desk.choose(2);
    desk.other().setCurrentIndex(3); // The one after the newest.
    desk.settle();
    QCOMPARE(desk.differences(), QStringList{QStringLiteral("1|4|end 09:00:00 → 10:00:00")});
    desk.click("versionSwapButton");
    desk.settle();
    QCOMPARE(desk.differences(), QStringList{QStringLiteral("1|4|end 10:00:00 → 09:00:00")});
    QCOMPARE(desk.label("versionHeadline"), desk.version(desk.newest - 1) + QStringLiteral(" → ") +
                                                desk.version(desk.newest - 2) +
                                                QStringLiteral(": 1 difference"));
}

void tst_VersionsWindow::comparesWithWhatIsInEffect()
{
    Desk desk;
    desk.open();
    desk.other().setCurrentIndex(1);
    desk.settle();
    QCOMPARE(desk.label("versionHeadline"), QStringLiteral("Nothing is in effect."));
    QCOMPARE(desk.differences(), QStringList());
    QVERIFY(desk.host.startSchedule());
    QTRY_COMPARE(desk.differences().size(), 1);
    QVERIFY(desk.label("versionHeadline").contains(QLatin1String("What is in effect")));
    QVERIFY(desk.host.stopSchedule());
    QTRY_COMPARE(desk.label("versionHeadline"), QStringLiteral("Nothing is in effect."));
    QCOMPARE(desk.differences(), QStringList());
}

void tst_VersionsWindow::tellsWhatDiffersOnTheScreen()
{
    Desk desk;
    desk.open();
    desk.choose(2);
    desk.other().setCurrentIndex(3);
    desk.part<QTabWidget>("versionTabs").setCurrentIndex(1);
    desk.settle();
    // One more hour each day; before it black is to be seen, or what was on before.
    QTRY_COMPARE(desk.stretches().size(), 7);
    QVERIFY2(desk.stretches()[0].contains(QLatin1String("|Task 1, plan 4: ")),
             qPrintable(desk.stretches()[0]));
    QCOMPARE(desk.label("stretchSummary"),
             QStringLiteral("7 stretches of this week differ on the screen:"));
    // Dates as everywhere, and once where both ends are on one day.
    const QString line = linesOf(desk.part<QTableView>("stretchTable")).first();
    const QRegularExpression dated(
        QStringLiteral("^\\x{2066}\\d{4}\\.\\d\\d\\.\\d\\d "
                       "\\d\\d:\\d\\d:\\d\\d\\x{2069}\\|\\d\\d:\\d\\d:\\d\\d\\|"));
    QVERIFY2(dated.match(line).hasMatch(), qPrintable(line));
    desk.other().setCurrentIndex(0);
    desk.table().selectRow(0);
    QTRY_COMPARE(desk.label("stretchSummary"),
                 QStringLiteral("Nothing differs on the screen in this week."));
    QCOMPARE(desk.stretches(), QStringList());
}

void tst_VersionsWindow::bothWeeksGoInStep()
{
    Desk desk;
    desk.open();
    desk.part<QTabWidget>("versionTabs").setCurrentIndex(1);
    auto& former = desk.part<week::WeekView>("formerWeek");
    auto& later = desk.part<week::WeekView>("laterWeek");
    QCoreApplication::processEvents();
    QCOMPARE(former.firstDay(), later.firstDay());
    const QDate first = former.firstDay();
    desk.click("pairNext");
    QCOMPARE(former.firstDay(), first.addDays(7));
    QCOMPARE(later.firstDay(), first.addDays(7));
    later.stepWeeks(-3);
    QCOMPARE(former.firstDay(), first.addDays(-14));
    desk.choose(2);
    QCOMPARE(later.firstDay(), first.addDays(-14));
    desk.click("pairToday");
    QCOMPARE(later.firstDay(), first);

    later.zoom(3);
    QVERIFY(!former.isFit());
    QCOMPARE(former.hourHeight(), later.hourHeight());
    for (auto* const one : {&former, &later}) {
        auto* const another = one == &former ? &later : &former;
        one->verticalScrollBar()->setValue(one->verticalScrollBar()->maximum() / 3);
        QCOMPARE(another->verticalScrollBar()->value(), one->verticalScrollBar()->value());
        one->verticalScrollBar()->setValue(0);
        QCOMPARE(another->verticalScrollBar()->value(), 0);
    }
    former.zoomToFit();
    QVERIFY(later.isFit());
    // Each shows its own state.
    const auto lastEnd = [](const week::WeekView& view) {
        return view.layoutOfWeek().days[0].blocks.at(0).to;
    };
    QCOMPARE(lastEnd(former), 9 * 3600);
    QCOMPARE(lastEnd(later), 10 * 3600);
}

void tst_VersionsWindow::givesNamesAndNotes()
{
    Desk desk;
    desk.open();
    onNameDialog([](QDialog& dialog) {
        dialog.findChild<QLineEdit*>(QStringLiteral("versionName"))->setText(kMarkup);
        dialog.findChild<QLineEdit*>(QStringLiteral("versionNote"))
            ->setText(QStringLiteral("agreed"));
        dialog.accept();
    });
    desk.click("versionNameButton");
    QTRY_VERIFY(linesOf(desk.table())[1].endsWith(kMarkup + QLatin1String("|agreed")));
    desk.settle();
    QCOMPARE(desk.list().chosen(), std::make_optional(desk.newest - 1));
    QVERIFY(desk.other().itemText(3).endsWith(kMarkup));
    // What was given stands there to be changed; turned away, it stays.
    onNameDialog([](QDialog& dialog) {
        auto* const name = dialog.findChild<QLineEdit*>(QStringLiteral("versionName"));
        QCOMPARE(name->text(), kMarkup);
        name->setText(QStringLiteral("other"));
        dialog.reject();
    });
    desk.click("versionNameButton");
    std::vector<ScheduleVersion> versions;
    QVERIFY(desk.host.versions(versions));
    QCOMPARE(versions[1].name, kMarkup);
    QCOMPARE(versions[1].note, QStringLiteral("agreed"));
}

void tst_VersionsWindow::refusesNamesThatWouldNotShow()
{
    Desk desk;
    desk.open();
    onNameDialog([](QDialog& dialog) {
        auto* const name = dialog.findChild<QLineEdit*>(QStringLiteral("versionName"));
        auto* const button = dialog.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok);
        auto* const fault = dialog.findChild<QLabel*>(QStringLiteral("versionNameFault"));
        name->setText(QStringLiteral("a\u202Eb"));
        QVERIFY(!button->isEnabled());
        QVERIFY2(fault->text().contains(QLatin1String("not visible")), qPrintable(fault->text()));
        name->setText(QString(5'000, QLatin1Char('x')));
        QCOMPARE(name->text().size(), kLongestVersionName);
        QVERIFY(button->isEnabled());
        QCOMPARE(fault->text(), QString());
        dialog.reject();
    });
    desk.click("versionNameButton");
    std::vector<ScheduleVersion> versions;
    QVERIFY(desk.host.versions(versions));
    QCOMPARE(versions[1].name, QString());
}

void tst_VersionsWindow::restoresWhatIsMeant()
{
    Desk desk;
    desk.open();
    desk.choose(2);
    {
        PromptAnswer answer(2);
        desk.click("versionRestoreButton");
        QCOMPARE(answer.buttons(), QStringList{QStringLiteral("Restore|Cancel")});
    }
    {
        PromptAnswer answer(PromptAnswer::Escape);
        desk.click("versionRestoreButton");
    }
    QCOMPARE(desk.saved().at(1).plans[0].endTime, std::string("10:00:00"));
    PromptAnswer answer(1);
    desk.click("versionRestoreButton");
    QCOMPARE(desk.saved().at(1).plans[0].endTime, std::string("09:00:00"));
    QTRY_COMPARE(desk.table().model()->rowCount(), static_cast<int>(desk.newest) + 2);
    desk.settle();
    QVERIFY2(linesOf(desk.table())[0].contains(
                 QStringLiteral("version %1 restored: changed: 1 (tasks 1)").arg(desk.newest - 2)),
             qPrintable(linesOf(desk.table())[0]));
    // The one that was chosen stays so, and does not differ any more.
    QCOMPARE(desk.list().chosen(), std::make_optional(desk.newest - 2));
    QCOMPARE(desk.differences(), QStringList());
    // It can be undone: what was saved before is a version.
    desk.choose(1);
    answer.expect(1);
    desk.click("versionRestoreButton");
    QCOMPARE(desk.saved().at(1).plans[0].endTime, std::string("10:00:00"));
}

void tst_VersionsWindow::restoresIntoAnOpenEditor()
{
    Desk desk;
    desk.showEditor();
    desk.open();
    desk.choose(static_cast<int>(desk.newest) - 1);
    PromptAnswer answer(1);
    desk.click("versionRestoreButton");
    QCOMPARE(desk.editor->findChildren<QWidget*>(QStringLiteral("PlanTaskWidget")).size(),
             static_cast<int>(desk.saved().size()));
    QVERIFY(desk.saved().size() > 1);
    QVERIFY(!desk.host.hasUnsavedChanges());
}

void tst_VersionsWindow::savesFirstWhatIsNotSaved()
{
    Desk desk;
    desk.showEditor();
    desk.open();
    PlayTask edited = desk.host.workingSet().at(1);
    edited.endDate = "2050.01.01";
    desk.manager.addTask(edited);
    QVERIFY(desk.host.hasUnsavedChanges());
    desk.choose(2);
    PromptAnswer answer(3);
    desk.click("versionRestoreButton");
    QCOMPARE(answer.buttons(),
             QStringList{QStringLiteral("Save, then restore|Restore without saving|Cancel")});
    QVERIFY2(answer.texts()[0].contains(QLatin1String("not saved")), qPrintable(answer.texts()[0]));
    QVERIFY(desk.host.hasUnsavedChanges());
    answer.expect(1);
    desk.click("versionRestoreButton");
    QCOMPARE(desk.saved().at(1).endDate, std::string("2099.12.31"));
    Tasks kept;
    QVERIFY(desk.host.versionTasks(desk.newest + 1, kept));
    QCOMPARE(kept.at(1).endDate, std::string("2050.01.01"));
}

void tst_VersionsWindow::whatWasNotSavedCanBeBroughtBack()
{
    Desk desk;
    desk.showEditor();
    desk.open();
    QCoreApplication::processEvents();
    PlayTask edited = desk.host.workingSet().at(1);
    edited.endDate = "2050.01.01";
    desk.manager.addTask(edited);
    desk.choose(2);
    PromptAnswer answer(2);
    desk.click("versionRestoreButton");
    QCOMPARE(desk.host.workingSet().at(1).endDate, std::string("2099.12.31"));
    QCOMPARE(desk.host.workingSet().at(1).plans[0].endTime, std::string("09:00:00"));
    QVERIFY(!desk.host.hasUnsavedChanges());
    QCoreApplication::processEvents();
    desk.window.findChild<EditorMenus*>()->undo()->trigger();
    QCOMPARE(desk.host.workingSet().at(1).endDate, std::string("2050.01.01"));
    QCOMPARE(desk.host.workingSet().at(1).plans[0].endTime, std::string("10:00:00"));
}

void tst_VersionsWindow::tellsWhatTheCatalogHasLost()
{
    Desk desk;
    desk.open();
    QVERIFY(desk.host.removeProgram(1));
    desk.choose(2);
    PromptAnswer answer(2);
    desk.click("versionRestoreButton");
    QVERIFY2(
        answer.texts()[0].contains(QLatin1String("1 of its programs is no longer in the catalog")),
        qPrintable(answer.texts()[0]));
    QVERIFY2(answer.texts()[0].endsWith(QLatin1String(": First")), qPrintable(answer.texts()[0]));
}

void tst_VersionsWindow::writesAVersionToAFile()
{
    Desk desk;
    desk.open();
    desk.choose(2);
    const QString file = desk.folder.filePath(QStringLiteral("former.json"));
    answerFileDialog(file);
    desk.click("versionWriteButton");
    QFile written(file);
    QVERIFY(written.open(QIODevice::ReadOnly));
    const ScheduleFromJson read = scheduleFromJson(written.readAll());
    QVERIFY(!read.fault);
    QCOMPARE(read.tasks.at(1).plans[0].endTime, std::string("09:00:00"));
    QVERIFY(desk.label("versionSummary").contains(file));
    // Turned away, nothing is written; a folder that is not there is told.
    answerFileDialog(QString());
    desk.click("versionWriteButton");
    QVERIFY(desk.saved().at(1).plans[0].endTime == "10:00:00");
}

void tst_VersionsWindow::followsOtherPrograms()
{
    Desk desk;
    desk.open();
    QProcess console;
    console.start(QStringLiteral(SCHEDULECTL),
                  {QStringLiteral("restore"), QString::number(desk.newest - 2),
                   QStringLiteral("--database"), desk.database});
    QVERIFY(console.waitForFinished());
    QCOMPARE(console.exitCode(), 0);
    QTRY_COMPARE_WITH_TIMEOUT(desk.table().model()->rowCount(), static_cast<int>(desk.newest) + 2,
                              20'000);
    desk.settle();
    QVERIFY(linesOf(desk.table())[0].contains(QLatin1String("schedulectl@")));
    // What is saved now is what is compared with.
    desk.choose(3);
    QCOMPARE(desk.differences(), QStringList());
}

void tst_VersionsWindow::supersededWorkDoesNotShow()
{
    Desk desk;
    desk.open();
    QStringList seen;
    auto& headline = desk.part<QLabel>("versionHeadline");
    {
        HeldPool held;
        for (const int row : {2, static_cast<int>(desk.newest), 1, 2, 0}) {
            desk.table().selectRow(row);
            // Nothing of the former choice stays beside the new one.
            QCOMPARE(desk.differences(), QStringList());
            QCOMPARE(headline.text(), QStringLiteral("Comparing…"));
        }
        held.release();
        QTRY_VERIFY(headline.text() != QStringLiteral("Comparing…"));
        QVERIFY2(headline.text().startsWith(desk.version(desk.newest) + QLatin1Char(' ')),
                 qPrintable(headline.text()));
    }
    {
        // Closed in the middle of it, and gone with all of the host.
        HeldPool held;
        desk.table().selectRow(2);
        desk.list().close();
        desk.list().readAgain();
        delete &desk.list();
        held.release();
    }
    QCoreApplication::processEvents();
}

void tst_VersionsWindow::speaksTheLanguageInUse()
{
    Desk desk;
    desk.open();
    desk.choose(2);
    desk.languages.select(QStringLiteral("de_DE"));
    QCOMPARE(desk.list().windowTitle(), QStringLiteral("Versionen"));
    QCOMPARE(desk.label("versionHeadline"),
             desk.version(desk.newest - 2) +
                 QStringLiteral(" → Gespeicherter Stand: 2 Unterschiede"));
    QCOMPARE(desk.differences()[0], QStringLiteral("1|4|Ende 09:00:00 → 10:00:00"));
    QVERIFY(linesOf(desk.table())[0].contains(QStringLiteral("geändert: 1 (Aufträge 1)")));
    QCOMPARE(desk.other().currentText(), QStringLiteral("Gespeicherter Stand"));
    QCOMPARE(desk.list().chosen(), std::make_optional(desk.newest - 2));
    // The week begins on another day, and is compared anew.
    QTRY_COMPARE(desk.stretches().size(), 14);
    QVERIFY(desk.stretches()[0].contains(QLatin1String("Auftrag 1, Plan 4")));
    desk.languages.select(QStringLiteral("en_US"));
}

void tst_VersionsWindow::titlesAreWholeInEveryLanguage()
{
    Desk desk;
    desk.open();
    const QHeaderView& header = *desk.table().horizontalHeader();
    const int last = header.count() - 1;
    // With more rows than there is room for.
    const int bar = desk.table().style()->pixelMetric(QStyle::PM_ScrollBarExtent);
    for (const QString& language : desk.languages.names()) {
        desk.languages.select(language);
        QTRY_COMPARE(desk.list().locale().name(), language);
        QCoreApplication::processEvents();
        for (int column = 0; column <= last; ++column) {
            const int room = header.sectionSize(column) - (column == last ? bar : 0);
            QVERIFY2(room >= header.sectionSizeHint(column),
                     qPrintable(QStringLiteral("%1: %2 needs %3, has %4")
                                    .arg(language)
                                    .arg(column)
                                    .arg(header.sectionSizeHint(column))
                                    .arg(room)));
        }
    }
}

void tst_VersionsWindow::showsAllTextsPlain()
{
    Desk desk;
    Tasks hostile = daily("11:00:00");
    PlayPlan& plan = hostile.at(1).plans[0];
    plan.programs.push_back({9, true, kMarkup.toStdString(), 1});
    plan.weeks = kMarkup.toStdString();
    plan.startTime = kMarkup.toStdString();
    hostile.at(1).startDate = kMarkup.toStdString();
    QVERIFY(desk.host.replaceSchedule(hostile));
    ++desk.newest;
    desk.open();
    QVERIFY(desk.differences().join(QLatin1Char('\n')).contains(kMarkup));
    const QList<QWidget*> widgets = desk.list().findChildren<QWidget*>();
    for (const QWidget* widget : widgets) {
        const auto* const label = qobject_cast<const QLabel*>(widget);
        QVERIFY2(label == nullptr || label->text().isEmpty() ||
                     label->textFormat() == Qt::PlainText,
                 qPrintable(widget->objectName()));
        QVERIFY(!widget->toolTip().contains(kMarkup));
        const auto* const table = qobject_cast<const QTableView*>(widget);
        for (int row = 0; table != nullptr && row < table->model()->rowCount(); ++row) {
            for (int column = 0; column < table->model()->columnCount(); ++column) {
                const QModelIndex index = table->model()->index(row, column);
                QVERIFY(!index.data(Qt::ToolTipRole).toString().contains(kMarkup));
            }
        }
    }
}

void tst_VersionsWindow::followsTheStoreThatIsOpen()
{
    Desk desk;
    desk.open();
    QCOMPARE(desk.window.openDatabase(desk.folder.filePath(QStringLiteral("other.db"))), QString());
    // The empty schedule alone.
    QTRY_COMPARE(desk.table().model()->rowCount(), 1);
    desk.settle();
    QCOMPARE(desk.label("versionHeadline"),
             QStringLiteral("Version 0 → What is saved: Nothing differs."));
    QVERIFY(desk.host.replaceSchedule(daily("09:00:00")));
    QTRY_COMPARE(desk.table().model()->rowCount(), 2);
    desk.settle();
    desk.host.close();
    desk.list().readAgain();
    QTRY_COMPARE(desk.table().model()->rowCount(), 0);
    QCOMPARE(desk.label("versionSummary"), QStringLiteral("No versions are kept yet."));
    QCOMPARE(desk.label("versionHeadline"), QString());
    QVERIFY(!desk.part<QPushButton>("versionRestoreButton").isEnabled());
}

void tst_VersionsWindow::tellsWhatCannotBeRead()
{
    Desk desk;
    desk.open();
    // Gone behind the window's back.
    desk.host.close();
    desk.table().selectRow(2);
    QTRY_VERIFY(desk.label("versionHeadline") != QStringLiteral("Comparing…"));
    QCOMPARE(desk.differences(), QStringList());
    QVERIFY(!desk.label("versionHeadline").isEmpty());
    QVERIFY2(!desk.label("versionHeadline").contains(QStringLiteral("What is saved")),
             qPrintable(desk.label("versionHeadline")));
    QVERIFY(!desk.part<QTabWidget>("versionTabs").isEnabled());
}

TREL_TEST(tst_VersionsWindow, QApplication)
#include "tst_VersionsWindow.moc"
