#include "asrun/AsRunWindow.h"

#include "../effect/EffectFixture.h"
#include "BidiText.h"
#include "asrun/AsRunModel.h"
#include "asrun/AsRunText.h"
#include "libs/trelprogramschedule/asrun/AsRunTampering.h"
#include "libs/trelprogramschedule/asrun/SimulatedPlayer.h"
#include "look/ProgramSigns.h"
#include "support/TestProgram.h"
#include "trelprogramschedule/asrun/AsRunDatabase.h"

#include <QApplication>
#include <QCalendarWidget>
#include <QCheckBox>
#include <QComboBox>
#include <QDateEdit>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QScrollBar>
#include <QTableView>

using namespace trel::desktop;
using namespace trel::mediadispatch;

namespace {

/// A Monday on which the clocks do not change.
const QDate kMonday(2024, 3, 4);

Instant at(const char* time, const QDate& day = kMonday)
{
    return QDateTime(day, QTime::fromString(QLatin1String(time), QStringLiteral("HH:mm:ss")))
        .toMSecsSinceEpoch();
}

/// The host's window, on a day at 08:00:30, and a screen that has played from 07:59:00 to then.
struct Played : EffectFixture
{
    explicit Played(const QDate& day = kMonday)
    {
        clock.set(QDateTime(day, QTime(8, 0, 30)));
        AsRunSchedule schedule;
        schedule.zone = clock.zone().id();
        schedule.start = EffectStart{at("07:59:00", day), 1, QStringLiteral("test")};
        schedule.tasks =
            scheduleFromText(QStringLiteral("1 2024.03.04-2024.12.31 / 08:00:00-08:01:00 A B I"));
        schedule.catalogue = lettersCatalogue();
        taken = takenSchedule(at("07:59:00", day), schedule);
        records = SimulatedPlayer({taken}, 1, 0).play(at("08:00:30", day));
    }

    void keep(const QString& screen = QStringLiteral("lobby"))
    {
        AsRunDatabase asRun;
        QVERIFY(asRun.open(AsRunDatabase::pathFor(database), StoreOpenMode::CreateIfMissing));
        QVERIFY(asRun.append(screen, screen.toUtf8(), 1, records, {taken.contents}));
    }

    /// The record of the picture that begins at a time.
    /// Without the marks that have a moment read from the left.
    static QString unmarked(QString text)
    {
        return text.remove(QChar(0x2066)).remove(QChar(0x2069));
    }
    AsRunRecord& record(const char* time)
    {
        const auto found =
            std::find_if(records.begin(), records.end(), [time](const AsRunRecord& one) {
                return one.kind == AsRunKind::Picture && one.begins == at(time);
            });
        return found == records.end() ? records.back() : *found;
    }

    /// Asks for the window in the menu, and waits until it has read.
    void ask()
    {
        menus().asRun()->trigger();
        waitUntilRead();
    }
    void waitUntilRead() const
    {
        QTRY_VERIFY(!summary().isEmpty() && summary() != QStringLiteral("Reading…"));
    }
    AsRunWindow& asRun() const { return *window.findChild<AsRunWindow*>(); }
    template <typename Part>
    Part& part(const char* name) const
    {
        return *asRun().findChild<Part*>(QLatin1String(name));
    }
    QString summary() const { return unmarked(part<QLabel>("asRunSummary").text()); }
    /// The rows of the table, their cells parted by bars.
    QStringList rows() const
    {
        const QAbstractItemModel& model = *part<QTableView>("asRunTable").model();
        QStringList rows;
        for (int row = 0; row < model.rowCount(); ++row) {
            QStringList cells;
            for (int column = 0; column < model.columnCount(); ++column) {
                cells.append(unmarked(model.index(row, column).data().toString()));
            }
            rows.append(cells.join(QStringLiteral(" | ")));
        }
        return rows;
    }
    QStringList recordedRows() const
    {
        QStringList found = rows();
        found.erase(std::remove_if(found.begin(), found.end(),
                                   [](const QString& row) {
                                       return row.contains(QLatin1String("No record"));
                                   }),
                    found.end());
        return found;
    }

    TakenSchedule taken;
    std::vector<AsRunRecord> records;
};

} // namespace

/// Has the toolkit write numbers in another language than the program's, as a system does.
class ForeignSystem
{
public:
    explicit ForeignSystem(const QString& language) { QLocale::setDefault(QLocale(language)); }
    ~ForeignSystem() { QLocale::setDefault(m_former); }
    Q_DISABLE_COPY(ForeignSystem)

private:
    const QLocale m_former;
};

/// A day of a screen beside its plan, in the host's window.
class tst_AsRunWindow : public QObject
{
    Q_OBJECT

private slots:
    void saysThatNothingIsRecorded();
    void showsADayBesideItsPlan();
    void programsHaveTheirSigns();
    void tellsTheOffsetWhereTheClockChanges();
    void tellsWhatStoodInAndWhy();
    void tellsWhatNoRecordExplains();
    void showsDeviationsAlone();
    void momentsAreReadFromTheLeft();
    void tellsOfAChangedChain();
    void stepsThroughDaysAndScreens();
    void refusesAForeignFile();
    void speaksTheLanguage();
    void numbersFollowTheLanguage_data();
    void numbersFollowTheLanguage();
    void isSeenWithContent_data();
    void isSeenWithContent();
    void calendarSpeaksTheLanguage_data();
    void calendarSpeaksTheLanguage();
    void followsTheDatabase();
};

void tst_AsRunWindow::saysThatNothingIsRecorded()
{
    Played fixture;
    fixture.ask();
    QCOMPARE(fixture.summary(),
             QStringLiteral("No player has recorded anything for this database."));
    QCOMPARE(fixture.rows(), QStringList());
    QVERIFY(!QFile::exists(AsRunDatabase::pathFor(fixture.database)));
}

void tst_AsRunWindow::showsADayBesideItsPlan()
{
    Played fixture;
    fixture.keep();
    fixture.ask();
    QCOMPARE(fixture.asRun().isVisible(), true);
    const QStringList rows = fixture.recordedRows();
    QCOMPARE(rows.value(0),
             QStringLiteral("07:59:00.000 | 08:00:00.000 | Black screen | Black screen | "));
    QCOMPARE(rows.value(1), QStringLiteral("08:00:00.000 | 08:00:10.000 | A | A | "));
    QCOMPARE(rows.value(2), QStringLiteral("08:00:10.000 | 08:00:14.000 | B | B | "));
    QCOMPARE(rows.value(3), QStringLiteral("08:00:14.000 | 08:00:30.000 | I | I | "));
    QCOMPARE(fixture.summary(),
             QStringLiteral("The screen was as planned, or a record tells why not. "
                            "Recorded until 08:00:30.000."));
    QCOMPARE(fixture.rows(), rows);
}

void tst_AsRunWindow::programsHaveTheirSigns()
{
    Played fixture;
    const int program = fixture.record("08:00:00").progIndex;
    QVERIFY(program >= 0);
    fixture.record("08:00:10").shown = AsRunShown::StandBy;
    const int planned = fixture.record("08:00:10").progIndex;
    fixture.keep();
    fixture.ask();
    const QAbstractItemModel& model = *fixture.part<QTableView>("asRunTable").model();
    const auto signs = [&model](int row, int column) {
        return look::signedPrograms(
            model.index(row, column).data(look::kProgramsRole).value<look::ProgramIndexes>());
    };
    // A black screen is no program, and neither is a stand-by picture.
    QCOMPARE(signs(0, AsRunModel::PlannedColumn), look::ProgramIndexes());
    QCOMPARE(signs(0, AsRunModel::ShownColumn), look::ProgramIndexes());
    QCOMPARE(signs(1, AsRunModel::PlannedColumn), look::ProgramIndexes{program});
    QCOMPARE(signs(1, AsRunModel::ShownColumn), look::ProgramIndexes{program});
    QCOMPARE(signs(1, AsRunModel::FromColumn), look::ProgramIndexes());
    QCOMPARE(signs(2, AsRunModel::PlannedColumn), look::ProgramIndexes{planned});
    QCOMPARE(signs(2, AsRunModel::ShownColumn), look::ProgramIndexes());
}

void tst_AsRunWindow::tellsTheOffsetWhereTheClockChanges()
{
    Played fixture(QDate(2024, 10, 27));
    fixture.keep();
    fixture.ask();
    QCOMPARE(fixture.rows().value(1),
             QStringLiteral("08:00:00.000 +01:00 | 08:00:10.000 +01:00 | A | A | "));
    QVERIFY2(fixture.summary().endsWith(QLatin1String("Recorded until 08:00:30.000 +01:00.")),
             qPrintable(fixture.summary()));
}

/// Also where the whole is read from the right: the table and the line above it.
void tst_AsRunWindow::momentsAreReadFromTheLeft()
{
    Played fixture(QDate(2024, 10, 27));
    fixture.keep();
    fixture.ask();
    const QAbstractItemModel& model = *fixture.part<QTableView>("asRunTable").model();
    for (const auto& [column, moment] : {std::pair(AsRunModel::FromColumn, "08:00:00.000 +01:00"),
                                         std::pair(AsRunModel::ToColumn, "08:00:10.000 +01:00")}) {
        const QString text = model.index(1, column).data().toString();
        QCOMPARE(text, leftToRight(QLatin1String(moment)));
    }
    const QString summary = fixture.part<QLabel>("asRunSummary").text();
    const QString until = leftToRight(QStringLiteral("08:00:30.000 +01:00"));
    QVERIFY2(summary.contains(until), qPrintable(summary));
}

void tst_AsRunWindow::tellsWhatStoodInAndWhy()
{
    Played fixture;
    AsRunRecord& missing = fixture.record("08:00:10");
    missing.shown = AsRunShown::StandBy;
    missing.why = QStringLiteral("<b>no such file</b>");
    fixture.keep();
    fixture.ask();
    QCOMPARE(fixture.recordedRows().value(2),
             QStringLiteral("08:00:10.000 | 08:00:14.000 | B | Stand-by picture | "
                            "<b>no such file</b>"));
    const QAbstractItemModel& model = *fixture.part<QTableView>("asRunTable").model();
    const QString tip = model.index(2, model.columnCount() - 1).data(Qt::ToolTipRole).toString();
    QVERIFY2(!tip.contains(QLatin1String("<b>no")), qPrintable(tip));
}

void tst_AsRunWindow::tellsWhatNoRecordExplains()
{
    Played fixture;
    fixture.record("08:00:10").program = QStringLiteral("Another");
    fixture.record("08:00:10").progIndex = fixture.record("08:00:00").progIndex;
    fixture.keep();
    fixture.ask();
    const QString row = fixture.rows().value(2);
    QVERIFY2(row.endsWith(QLatin1String("| B | Another | No record tells why")), qPrintable(row));
    QVERIFY2(
        fixture.summary().startsWith(QStringLiteral("Not as planned, and no record tells why: ")),
        qPrintable(fixture.summary()));
}

void tst_AsRunWindow::showsDeviationsAlone()
{
    Played fixture;
    fixture.record("08:00:10").shown = AsRunShown::StandBy;
    fixture.keep();
    fixture.ask();
    QVERIFY(fixture.recordedRows().size() > 3);
    QTest::mouseClick(&fixture.part<QCheckBox>("asRunOnlyDeviations"), Qt::LeftButton, {},
                      QPoint(6, fixture.part<QCheckBox>("asRunOnlyDeviations").height() / 2));
    QCOMPARE(fixture.recordedRows().size(), 1);
    QVERIFY(fixture.recordedRows().first().contains(QLatin1String("Stand-by picture")));
}

void tst_AsRunWindow::tellsOfAChangedChain()
{
    Played fixture;
    fixture.keep();
    tamper(AsRunDatabase::pathFor(fixture.database),
           {QStringLiteral("UPDATE record SET late = late + 1 WHERE number = 3")});
    fixture.ask();
    QVERIFY2(fixture.summary().startsWith(QStringLiteral("The records were changed")),
             qPrintable(fixture.summary()));
}

void tst_AsRunWindow::stepsThroughDaysAndScreens()
{
    Played fixture;
    fixture.keep(QStringLiteral("lobby"));
    fixture.keep(QStringLiteral("hall"));
    fixture.ask();
    auto& screens = fixture.part<QComboBox>("asRunScreens");
    QCOMPARE(screens.count(), 2);
    QCOMPARE(screens.currentText(), QStringLiteral("hall"));
    QTest::keyClick(&screens, Qt::Key_Down);
    QCOMPARE(screens.currentText(), QStringLiteral("lobby"));
    fixture.waitUntilRead();
    QCOMPARE(screens.currentText(), QStringLiteral("lobby"));
    QVERIFY(!fixture.recordedRows().isEmpty());

    QTest::mouseClick(&fixture.part<QPushButton>("asRunFormer"), Qt::LeftButton);
    fixture.waitUntilRead();
    QCOMPARE(fixture.part<QDateEdit>("asRunDate").date(), QDate(2024, 3, 3));
    QCOMPARE(fixture.recordedRows(), QStringList());
    QTest::mouseClick(&fixture.part<QPushButton>("asRunNext"), Qt::LeftButton);
    fixture.waitUntilRead();
    QVERIFY(!fixture.recordedRows().isEmpty());
    QCOMPARE(screens.currentText(), QStringLiteral("lobby"));
}

void tst_AsRunWindow::refusesAForeignFile()
{
    Played fixture;
    QFile foreign(AsRunDatabase::pathFor(fixture.database));
    QVERIFY(foreign.open(QIODevice::WriteOnly) && foreign.write("no database") > 0);
    foreign.close();
    fixture.ask();
    QVERIFY2(fixture.summary().startsWith(QStringLiteral("The records cannot be read: ")),
             qPrintable(fixture.summary()));
}

void tst_AsRunWindow::speaksTheLanguage()
{
    Played fixture;
    fixture.keep();
    fixture.ask();
    fixture.languages.select(QStringLiteral("de_DE"));
    QTRY_COMPARE(fixture.asRun().windowTitle(), QStringLiteral("Sendeprotokoll"));
    QVERIFY(fixture.recordedRows().value(0).contains(QStringLiteral("Schwarzbild")));
    QVERIFY2(fixture.summary().startsWith(QStringLiteral("Der Bildschirm zeigte das Geplante")),
             qPrintable(fixture.summary()));
    const QAbstractItemModel& model = *fixture.part<QTableView>("asRunTable").model();
    QCOMPARE(model.headerData(2, Qt::Horizontal).toString(), QStringLiteral("Geplant"));
    // The sentences of the line below follow one another as the language has it.
    QVERIFY2(fixture.summary().contains(QStringLiteral(". ")), qPrintable(fixture.summary()));
    for (const char* language : {"zh_CN", "zh_TW", "ja_JP"}) {
        fixture.languages.select(QLatin1String(language));
        QTRY_VERIFY2(fixture.summary().count(QChar(0x3002)) == 2, qPrintable(fixture.summary()));
        QVERIFY2(!fixture.summary().contains(QChar(0x3002) + QStringLiteral(" ")),
                 qPrintable(fixture.summary()));
    }
}

void tst_AsRunWindow::numbersFollowTheLanguage_data()
{
    QTest::addColumn<QString>("system");
    QTest::addColumn<QString>("late");
    QTest::addColumn<QString>("most");
    QTest::newRow("en_US") << QStringLiteral("de_DE") << QStringLiteral("1.3 s late")
                           << QStringLiteral("Only the first 100,000 lines of the day are shown.");
    QTest::newRow("de_DE") << QStringLiteral("en_US") << QStringLiteral("1,3 s zu spät")
                           << QStringLiteral(
                                  "Nur die ersten 100.000 Zeilen des Tages werden gezeigt.");
}

void tst_AsRunWindow::numbersFollowTheLanguage()
{
    QFETCH(QString, system);
    QFETCH(QString, most);
    const ForeignSystem foreign(system);
    Played fixture;
    fixture.record("08:00:10").late = 1300;
    fixture.keep();
    fixture.ask();
    // One of the two is a change of the language while the window is shown.
    fixture.languages.select(QStringLiteral("de_DE"));
    fixture.languages.select(QString::fromLatin1(QTest::currentDataTag()));
    QCoreApplication::processEvents();
    const QAbstractItemModel& model = *fixture.part<QTableView>("asRunTable").model();
    QTEST(model.index(2, AsRunModel::RemarkColumn).data().toString(), "late");
    AsRunDay day;
    day.isRecorded = true;
    day.isCut = true;
    day.until = 1;
    day.zone = QTimeZone::utc();
    const QString summary = AsRunText::summary(day, fixture.asRun().locale());
    QVERIFY2(summary.endsWith(most), qPrintable(summary));
}

void tst_AsRunWindow::isSeenWithContent_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("theme");
    const QStringList themes = Themes::names();
    for (const char* language : {"en_US", "de_DE", "zh_CN"}) {
        for (const QString& theme : themes) {
            QTest::addRow("%s, %s", language, qPrintable(theme))
                << QString::fromLatin1(language) << theme;
        }
    }
}

/// Leaves a picture of a day with all kinds of lines.
void tst_AsRunWindow::isSeenWithContent()
{
    QFETCH(QString, language);
    QFETCH(QString, theme);
    Played fixture;
    fixture.record("08:00:00").late = 1300;
    AsRunRecord& missing = fixture.record("08:00:10");
    missing.shown = AsRunShown::StandBy;
    missing.why = QStringLiteral("/srv/media/Summer sale.mp4: no such file");
    fixture.record("08:00:14").outcome = AsRunOutcome::CutByKill;
    fixture.keep();
    fixture.ask();
    fixture.themes.select(theme);
    fixture.languages.select(language);
    QCoreApplication::processEvents();
    const auto& table = fixture.part<QTableView>("asRunTable");
    const QHeaderView& columns = *table.horizontalHeader();
    for (int column = 0; column < columns.count(); ++column) {
        QVERIFY2(columns.sectionSizeHint(column) <= columns.sectionSize(column),
                 qPrintable(QString::number(column)));
    }
    // When it was is read whole.
    for (const int column : {AsRunModel::FromColumn, AsRunModel::ToColumn}) {
        const QString moment = table.model()->index(1, column).data().toString();
        QVERIFY(table.fontMetrics().horizontalAdvance(moment) < columns.sectionSize(column));
    }
    QCOMPARE(table.horizontalScrollBar()->maximum(), 0);
    QVERIFY(QDir().mkpath(QStringLiteral(PICTURES)));
    QVERIFY(fixture.asRun().grab().save(
        QStringLiteral(PICTURES "/as-run-%1-%2.png").arg(language, theme)));
    fixture.themes.select(Themes::names().first());
}

void tst_AsRunWindow::calendarSpeaksTheLanguage_data()
{
    QTest::addColumn<Qt::DayOfWeek>("firstDay");
    QTest::newRow("en_US") << Qt::Sunday;
    QTest::newRow("de_DE") << Qt::Monday;
    QTest::newRow("ru_RU") << Qt::Monday;
}

void tst_AsRunWindow::calendarSpeaksTheLanguage()
{
    QFETCH(Qt::DayOfWeek, firstDay);
    const QString language = QString::fromLatin1(QTest::currentDataTag());
    Played fixture;
    fixture.ask();
    for (const QString& chosen : {QStringLiteral("pt_BR"), language}) {
        fixture.languages.select(chosen);
        QTRY_COMPARE(fixture.part<QDateEdit>("asRunDate").locale().name(), chosen);
    }
    // The calendar comes when it is asked for, as a window over the field.
    auto& date = fixture.part<QDateEdit>("asRunDate");
    const QPoint arrow(date.width() - 5, date.height() / 2);
    QTest::mousePress(&date, Qt::LeftButton, {}, arrow);
    QTest::mouseRelease(&date, Qt::LeftButton, {}, arrow);
    QTRY_VERIFY(QApplication::activePopupWidget() != nullptr);
    const auto* const calendar = QApplication::activePopupWidget()->findChild<QCalendarWidget*>();
    QVERIFY(calendar != nullptr);
    QCOMPARE(calendar->locale().name(), language);
    QCOMPARE(calendar->firstDayOfWeek(), firstDay);
    QApplication::activePopupWidget()->close();
}

void tst_AsRunWindow::followsTheDatabase()
{
    Played fixture;
    fixture.keep();
    fixture.ask();
    QVERIFY(!fixture.recordedRows().isEmpty());
    QCOMPARE(fixture.window.openDatabase(fixture.folder.filePath(QStringLiteral("other.db"))),
             QString());
    fixture.waitUntilRead();
    QCOMPARE(fixture.summary(),
             QStringLiteral("No player has recorded anything for this database."));
    QCOMPARE(fixture.rows(), QStringList());
}

TREL_TEST(tst_AsRunWindow, QApplication)
#include "tst_AsRunWindow.moc"
