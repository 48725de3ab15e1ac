#include "OpenCard.h"
#include "support/TestProgram.h"

#include "MultiComboBox.h"
#include "PlanStandardItemModel.h"
#include "ProgramSheduleWidgetTranslateManager.h"
#include "ScheduleText.h"

#include "trelwidgets/ComboBox.h"
#include "tstranslate/Translator.h"

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

using namespace trel::mediadispatch;

namespace {

RecordingService& service()
{
    return RecordingService::instance();
}

void speak(const char* language)
{
    ProgramSheduleWidgetTranslateManager::instance().translator().switchLanguage(
        QLatin1String(language));
}

QStringList entries(const QComboBox& box)
{
    QStringList texts;
    for (int i = 0; i < box.count(); ++i) {
        texts.append(box.itemText(i));
    }
    return texts;
}

QStringList texts(const std::vector<const char*>& keys)
{
    QStringList found;
    for (const char* key : keys) {
        found.append(scheduleText(key));
    }
    return found;
}

QStringList days()
{
    return texts({"szEveryDayStr", "szMondayStr", "szTuesdayStr", "szWednesdayStr", "szThursdayStr",
                  "szFridayStr", "szSaturdayStr", "szSundayStr"});
}

PlayTask twoPlans()
{
    return taskWithPlans(
        {timePlan(3, "08:00:00", "09:00:00", "1,3"), timePlan(12, "08:00:00", "09:00:00", "0")}, 7);
}

} // namespace

/// A change of language while a card is open.
class tst_PlanTaskWidgetTranslation : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void theFrame();
    void theRows();
    void theBoxes();
    void theStates();
    void nothingChangesBeforeTheCardIsTold();
    void aCardThatIsBuiltLaterSpeaksTheNewLanguage();
    void theTitleOfARowMovesInByABlank();
    void daysShowTheirOldTextUntilTheyChange();
    void daysOfTheOldLanguageMeanEveryDay();
    void theTaskIsStoredOnce();
    void aCardWithoutRows();
    void toolTipsOfTheButtons();
};

void tst_PlanTaskWidgetTranslation::initTestCase()
{
    auto& translator = ProgramSheduleWidgetTranslateManager::instance().translator();
    for (const char* language : {"zh_CN", "en_US"}) {
        QVERIFY(
            translator.load(QStringLiteral(LANGUAGE_DIR "/%1.qm").arg(QLatin1String(language))));
    }
    speak("en_US");
    QCOMPARE(scheduleText("szMondayStr").isEmpty(), false);
    const QStringList english = days();
    speak("zh_CN");
    QVERIFY(days() != english);
}

void tst_PlanTaskWidgetTranslation::init()
{
    service().reset();
    speak("zh_CN");
}

void tst_PlanTaskWidgetTranslation::theFrame()
{
    OpenCard open(twoPlans());
    speak("en_US");
    open.card.slotTranslation();
    QCOMPARE(named<QPushButton>(open.card, "title").text(),
             scheduleText("zhPlayTaskStr") + QStringLiteral("7    "));
    QCOMPARE(named<QLabel>(open.card, "labelvalidTime").text(),
             scheduleText("zhEffectiveStr") + scheduleText("zhFromStr"));
    QCOMPARE(named<QLabel>(open.card, "labelTo").text(), scheduleText("zhToStr"));
}

void tst_PlanTaskWidgetTranslation::theRows()
{
    OpenCard open(twoPlans());
    speak("en_US");
    open.card.slotTranslation();
    for (int row = 0; row < 2; ++row) {
        QStringList captions;
        for (const PlanColumn column :
             {ModeCaptionColumn, StartTimeCaptionColumn, EndTimeCaptionColumn, TimesCaptionColumn,
              WeeksCaptionColumn, EndActionCaptionColumn}) {
            captions.append(open.rows.model().index(row, column).data(Qt::EditRole).toString());
        }
        QCOMPARE(captions, texts({"zhModeStr", "zhFromStr", "zhToStr", "zhfrequencyStr",
                                  "szDateStr", "zhEndActionStr"}));
        QCOMPARE(open.rows.cell(row, CopyColumn)->toolTip(), scheduleText("zhCreateCopy"));
        QCOMPARE(open.rows.cell(row, DeleteColumn)->toolTip(), scheduleText("szDeleteStr"));
    }
}

void tst_PlanTaskWidgetTranslation::theBoxes()
{
    OpenCard open(twoPlans());
    speak("en_US");
    open.card.slotTranslation();
    QCOMPARE(entries(open.rows.mode(1)), texts({"zhTimeStr", "zhfrequencyStr"}));
    QCOMPARE(entries(open.rows.endAction(1)), texts({"zhBlackScreen", "zhFreezeCurrentFrame"}));
    QCOMPARE(entries(open.rows.weeks(1)), days());
    QCOMPARE(open.rows.weeks(1).everyDayText(), scheduleText("szEveryDayStr"));
    QCOMPARE(open.rows.mode(1).currentText(), scheduleText("zhTimeStr"));
}

void tst_PlanTaskWidgetTranslation::theStates()
{
    OpenCard open(twoPlans());
    speak("en_US");
    open.card.slotTranslation();
    QCOMPARE(open.rows.states(), QStringLiteral("green red"));
    QCOMPARE(open.rows.state(0).text(), scheduleText("zhnormalStr"));
    QCOMPARE(open.rows.state(1).text(), scheduleText("zhconflictStr"));
}

void tst_PlanTaskWidgetTranslation::nothingChangesBeforeTheCardIsTold()
{
    const OpenCard open(twoPlans());
    const QStringList before = days();
    speak("en_US");
    QCOMPARE(entries(open.rows.weeks(0)), before);
}

void tst_PlanTaskWidgetTranslation::aCardThatIsBuiltLaterSpeaksTheNewLanguage()
{
    speak("en_US");
    const OpenCard open(twoPlans());
    QCOMPARE(entries(open.rows.weeks(0)), days());
    QCOMPARE(open.rows.weeks(0).toolTip(),
             texts({"szMondayStr", "szWednesdayStr"}).join(QLatin1Char(',')));
    QCOMPARE(open.rows.state(1).text(), scheduleText("zhconflictStr"));
}

void tst_PlanTaskWidgetTranslation::theTitleOfARowMovesInByABlank()
{
    const auto title = [](const char* blanks, const char* id) {
        return QLatin1String(blanks) + scheduleText("zhPlanTimeStr") + QLatin1String(id);
    };
    OpenCard open(twoPlans());
    QCOMPARE(open.rows.text(1, TitleColumn), title("  ", "12:"));
    open.card.slotTranslation();
    QCOMPARE(open.rows.text(1, TitleColumn), title("   ", "12:"));
    QCOMPARE(open.rows.text(0, TitleColumn), title("   ", "3:"));
}

void tst_PlanTaskWidgetTranslation::daysShowTheirOldTextUntilTheyChange()
{
    OpenCard open(twoPlans());
    const QString shown = open.rows.weeks(0).lineEdit()->text();
    const QString toolTip = open.rows.weeks(0).toolTip();
    const QString everyDay = open.rows.weeks(1).lineEdit()->text();
    QCOMPARE(toolTip, texts({"szMondayStr", "szWednesdayStr"}).join(QLatin1Char(',')));
    speak("en_US");
    open.card.slotTranslation();
    QCOMPARE(open.rows.weeks(0).lineEdit()->text(), shown);
    QCOMPARE(open.rows.weeks(0).toolTip(), toolTip);
    QCOMPARE(open.rows.weeks(1).lineEdit()->text(), everyDay);
    open.rows.weeks(0).applySelection(scheduleText("szFridayStr"));
    QCOMPARE(open.rows.weeks(0).toolTip(), scheduleText("szFridayStr"));
    QCOMPARE(service().working[7].plans.front().weeks, std::string("5"));
}

void tst_PlanTaskWidgetTranslation::daysOfTheOldLanguageMeanEveryDay()
{
    const OpenCard open(twoPlans());
    const QStringList oldLabels = texts({"szTuesdayStr", "szFridayStr"});
    speak("en_US");
    emit open.rows.weeks(0).signalSelectedText(oldLabels);
    QCOMPARE(service().working[7].plans.front().weeks, std::string("0,0"));
}

void tst_PlanTaskWidgetTranslation::theTaskIsStoredOnce()
{
    const PlayTask task = twoPlans();
    OpenCard open(task);
    const PlayTask before = open.rows.task();
    speak("en_US");
    open.card.slotTranslation();
    QCOMPARE(service().edits().size(), 1);
    QCOMPARE(open.stores(), 1);
    QCOMPARE(service().working[7], before);
    QCOMPARE(open.rows.disagreement(), QString());
}

void tst_PlanTaskWidgetTranslation::aCardWithoutRows()
{
    OpenCard open(taskWithPlans({}));
    open.card.slotTranslation();
    QCOMPARE(open.stores(), 1);
}

void tst_PlanTaskWidgetTranslation::toolTipsOfTheButtons()
{
    OpenCard open(twoPlans());
    open.card.slotTranslation();
    QCOMPARE(named<QPushButton>(open.card, "pbtCreatCopy").toolTip(), scheduleText("zhCreateCopy"));
    QCOMPARE(named<QPushButton>(open.card, "pushButtonDelete").toolTip(),
             scheduleText("szDeleteStr"));
    // In the rows the whole cell tells it.
    QCOMPARE(open.rows.copyButton(0).toolTip(), QString());
}

TREL_TEST(tst_PlanTaskWidgetTranslation, QApplication)
#include "tst_PlanTaskWidgetTranslation.moc"
