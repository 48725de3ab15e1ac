#include "OpenCard.h"

#include "MultiComboBox.h"
#include "ProgramSheduleWidgetTranslateManager.h"
#include "card/PlanRowTexts.h"
#include "resources/LanguageNames.h"
#include "support/TestClock.h"
#include "support/TestProgram.h"

#include "tstranslate/Translator.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QLineEdit>
#include <QTableView>

using namespace trel::mediadispatch;

namespace {

RecordingService& service()
{
    return RecordingService::instance();
}

void speak(const QString& language)
{
    ProgramSheduleWidgetTranslateManager::instance().translator().switchLanguage(language);
}

constexpr std::array<const char*, 6> kWeeks = {"0", "1", "2,4", "1,3,5", "6,7", "1,2,3,4,5,6,7"};

/// A row for each choice of days.
PlayTask oneRowForEachChoice()
{
    PlayTask task = taskWithPlans({});
    for (const char* weeks : kWeeks) {
        const int id = static_cast<int>(task.plans.size()) + 1;
        task.plans.push_back(timePlan(id, "08:00:00", "09:00:00", weeks));
    }
    return task;
}

/// "0|1|2,4" for the days that the service holds.
QString storedWeeks()
{
    QStringList texts;
    for (const PlayPlan& plan : service().working[1].plans) {
        texts.append(QString::fromStdString(plan.weeks));
    }
    return texts.join(QLatin1Char('|'));
}

QString expectedWeeks()
{
    QStringList texts;
    for (const char* weeks : kWeeks) {
        texts.append(QLatin1String(weeks));
    }
    return texts.join(QLatin1Char('|'));
}

} // namespace

/// Days that were chosen in one language and are looked at in another.
class tst_PlanTaskWidgetLanguages : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void daysSurviveEveryChange_data();
    void daysSurviveEveryChange();
    void daysSurviveManyChanges();
    void aClickAddsToTheDays();

private:
    /// Opens the list of each row with the mouse and closes it again.
    void openAndClose(OpenCard& open);

    TestClock m_clock{QDateTime(QDate(2024, 5, 6), QTime(1, 0))};
};

void tst_PlanTaskWidgetLanguages::initTestCase()
{
    QVERIFY(languages().size() > 2);
    auto& translator = ProgramSheduleWidgetTranslateManager::instance().translator();
    for (const QString& language : languages()) {
        QVERIFY(translator.load(QStringLiteral(LANGUAGE_DIR "/%1.qm").arg(language)));
    }
}

void tst_PlanTaskWidgetLanguages::init()
{
    service().reset();
    m_clock.set(QDateTime(QDate(2024, 5, 6), QTime(1, 0)));
}

void tst_PlanTaskWidgetLanguages::openAndClose(OpenCard& open)
{
    for (int row = 0; row < open.rows.rowCount(); ++row) {
        MultiComboBox& box = open.rows.weeks(row);
        m_clock.advance(100);
        open.rows.table().scrollTo(open.rows.table().model()->index(row, 0));
        QTest::mouseClick(&box, Qt::LeftButton, {}, box.lineEdit()->geometry().center());
        QVERIFY(box.view()->isVisible());
        QTest::keyClick(box.view(), Qt::Key_Escape);
        QTRY_VERIFY(!box.view()->isVisible());
    }
}

void tst_PlanTaskWidgetLanguages::daysSurviveEveryChange_data()
{
    QTest::addColumn<QString>("from");
    QTest::addColumn<QString>("to");
    for (const QString& from : languages()) {
        for (const QString& to : languages()) {
            QTest::addRow("%s to %s", qPrintable(from), qPrintable(to)) << from << to;
        }
    }
}

void tst_PlanTaskWidgetLanguages::daysSurviveEveryChange()
{
    QFETCH(QString, from);
    QFETCH(QString, to);
    speak(from);
    OpenCard open(oneRowForEachChoice());
    QStringList shown;
    for (int row = 0; row < open.rows.rowCount(); ++row) {
        shown.append(open.rows.weeks(row).toolTip());
    }
    speak(to);
    open.card.slotTranslation();
    for (int row = 0; row < open.rows.rowCount(); ++row) {
        QCOMPARE(open.rows.weeks(row).toolTip(), shown.at(row));
    }
    openAndClose(open);
    QCOMPARE(storedWeeks(), expectedWeeks());
    for (int row = 0; row < open.rows.rowCount(); ++row) {
        QCOMPARE(
            open.rows.weeks(row).toolTip(),
            PlanRowTexts(PlanRowTexts::NewRows).days(kWeeks.at(static_cast<std::size_t>(row))));
    }
}

// Some rows are opened now and then, so that their texts stand in different languages.
void tst_PlanTaskWidgetLanguages::daysSurviveManyChanges()
{
    speak(languages().first());
    OpenCard open(oneRowForEachChoice());
    int turn = 0;
    for (const QString& language : languages() + languages()) {
        speak(language);
        open.card.slotTranslation();
        MultiComboBox& box = open.rows.weeks(turn++ % open.rows.rowCount());
        m_clock.advance(100);
        box.showPopup();
        box.hidePopup();
        QCOMPARE(storedWeeks(), expectedWeeks());
    }
    openAndClose(open);
    QCOMPARE(storedWeeks(), expectedWeeks());
}

void tst_PlanTaskWidgetLanguages::aClickAddsToTheDays()
{
    speak(QStringLiteral("zh_CN"));
    OpenCard open(taskWithPlans({timePlan(1, "08:00:00", "09:00:00", "2,4")}));
    speak(QStringLiteral("en_US"));
    open.card.slotTranslation();
    MultiComboBox& box = open.rows.weeks(0);
    m_clock.advance(100);
    QTest::mouseClick(&box, Qt::LeftButton, {}, box.lineEdit()->geometry().center());
    const QModelIndex sunday = box.model()->index(7, box.modelColumn());
    QTest::mouseClick(box.view()->viewport(), Qt::LeftButton, {},
                      box.view()->visualRect(sunday).center());
    box.hidePopup();
    QCOMPARE(storedWeeks(), QStringLiteral("2,4,7"));
}

TREL_TEST(tst_PlanTaskWidgetLanguages, QApplication)
#include "tst_PlanTaskWidgetLanguages.moc"
