#include "PlanList.h"
#include "PlanTaskWidget.h"
#include "ProgramSheduleWidgetTranslateManager.h"
#include "ScheduleText.h"
#include "centerWidget.h"
#include "scheduleControlUI.h"
#include "support/RecordingService.h"
#include "support/RefusedConnections.h"
#include "support/TaskRecords.h"
#include "support/TestProgram.h"
#include "tstranslate/Translator.h"

#include <QApplication>
#include <QDir>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <QSet>
#include <QtTest>

using namespace trel::mediadispatch;

namespace {

const QString kChinese = QStringLiteral("zh_CN");
const QString kEnglish = QStringLiteral("en_US");

RecordingService& service()
{
    return RecordingService::instance();
}

/// The dialog with two cards, and the languages of the hosts.
struct Editor : RefusedConnections
{
    Editor()
    {
        const QString folder = QStringLiteral(LANGUAGE_DIR "/%1.qm");
        dialog.loadLanguageFiles({folder.arg(kEnglish), folder.arg(kChinese)});
        service().stored[1] = makeTask(1, "2024.01.01", "2024.01.31");
        service().stored[2] = makeTask(2, "2024.02.01", "2024.02.29");
        dialog.clearAndInitialize();
        dialog.translate();
    }

    /// Every text of the window, as it stands on the screen.
    QStringList texts() const
    {
        QStringList found = {dialog.windowTitle()};
        for (const char* name :
             {"pushButtonAddTask", "pushButtonClose", "pushButtonStart", "pushButtonSave"}) {
            found.append(dialog.findChild<QPushButton*>(QString::fromLatin1(name))->text());
        }
        const auto* area = dialog.findChild<centerWidget*>()->findChild<QScrollArea*>();
        found.append(area->findChild<QLabel*>(QString(), Qt::FindDirectChildrenOnly)->text());
        for (const PlanTaskWidget* card : dialog.findChildren<PlanTaskWidget*>()) {
            found.append(card->findChild<QPushButton*>(QStringLiteral("title"))->text().trimmed());
        }
        return found;
    }

    scheduleControlUI dialog;
};

/// What texts() is to say in the language now selected.
QStringList expectedTexts()
{
    const QString task = scheduleText("zhPlayTaskStr");
    return {scheduleText("zhSchedulePlayStr"),
            scheduleText("zhSchedulePlayStrAdd"),
            scheduleText("zhCancelAct"),
            scheduleText("zhEnable"),
            scheduleText("zhFixAct"),
            scheduleText("zhNoPlayTask"),
            QStringLiteral("%1%2").arg(task, QStringLiteral("1")).trimmed(),
            QStringLiteral("%1%2").arg(task, QStringLiteral("2")).trimmed()};
}

} // namespace

/// The road of a language from the host to the widgets, with the languages that hosts load.
class tst_LanguageChange : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void theLanguagesDiffer();
    void loadingSelectsTheDefaultLanguage();
    void switchingAloneChangesNoText();
    void translateReachesEveryText();
    void aCardBuiltAfterTheSwitchSpeaksTheNewLanguage();
    void aCardThatIsGoneIsNotAsked();
    void textsOfAHostTakeNoLanguagesPlace();
    void theFolderHoldsALanguageAFile();
};

void tst_LanguageChange::init()
{
    service().reset();
}

void tst_LanguageChange::theLanguagesDiffer()
{
    const Editor editor;
    const QStringList chinese = expectedTexts();
    editor.dialog.switchLanguage(kEnglish);
    const QStringList english = expectedTexts();
    for (int i = 0; i < chinese.size(); ++i) {
        QVERIFY2(chinese.at(i) != english.at(i), qPrintable(english.at(i)));
    }
}

void tst_LanguageChange::loadingSelectsTheDefaultLanguage()
{
    const Editor editor;
    QCOMPARE(ProgramSheduleWidgetTranslateManager::instance().translator().language(), kChinese);
    QCOMPARE(editor.texts(), expectedTexts());
}

void tst_LanguageChange::switchingAloneChangesNoText()
{
    const Editor editor;
    const QStringList chinese = editor.texts();
    editor.dialog.switchLanguage(kEnglish);
    QCOMPARE(editor.texts(), chinese);
}

void tst_LanguageChange::translateReachesEveryText()
{
    Editor editor;
    const QStringList chinese = editor.texts();
    editor.dialog.switchLanguage(kEnglish);
    editor.dialog.translate();
    QCOMPARE(editor.texts(), expectedTexts());
    editor.dialog.switchLanguage(kChinese);
    editor.dialog.translate();
    QCOMPARE(editor.texts(), chinese);
}

void tst_LanguageChange::aCardBuiltAfterTheSwitchSpeaksTheNewLanguage()
{
    Editor editor;
    const QStringList chinese = editor.texts();
    editor.dialog.switchLanguage(kEnglish);
    editor.dialog.clearAndInitialize();
    // The add button has been through a refresh, and the cards are new; the rest waits.
    const QStringList english = expectedTexts();
    QCOMPARE(editor.texts(),
             QStringList({chinese.at(0), english.at(1), chinese.at(2), chinese.at(3), chinese.at(4),
                          chinese.at(5), english.at(6), english.at(7)}));
}

void tst_LanguageChange::aCardThatIsGoneIsNotAsked()
{
    Editor editor;
    editor.dialog.findChild<PlanList*>()->slotDeleteTask(1);
    editor.dialog.switchLanguage(kEnglish);
    editor.dialog.translate();
    QStringList english = expectedTexts();
    english.removeAt(6);
    QCOMPARE(editor.texts(), english);
}

void tst_LanguageChange::textsOfAHostTakeNoLanguagesPlace()
{
    const Editor editor;
    editor.dialog.switchLanguage(kEnglish);
    const QStringList english = expectedTexts();
    const QString host = QStringLiteral(LANGUAGE_DIR "/../host-languages/schedule-editor_en_US.qm");
    QVERIFY(QFile::exists(host));
    editor.dialog.loadLanguageFiles({host});
    editor.dialog.switchLanguage(kEnglish);
    QCOMPARE(expectedTexts(), english);
}

void tst_LanguageChange::theFolderHoldsALanguageAFile()
{
    const QString folder = ProgramSheduleWidgetTranslateManager::languageFolder();
    QCOMPARE(QDir(folder).canonicalPath(), QDir(QStringLiteral(LANGUAGE_DIR)).canonicalPath());
    const QFileInfoList files = QDir(folder).entryInfoList(QDir::Files);
    QCOMPARE(files.size(), 10);
    tessark::trans::Translator& texts =
        ProgramSheduleWidgetTranslateManager::instance().translator();
    QSet<QString> titles;
    for (const QFileInfo& file : files) {
        QVERIFY2(texts.load(file.absoluteFilePath()), qPrintable(file.fileName()));
        texts.switchLanguage(file.completeBaseName());
        titles.insert(scheduleText("zhNoPlayTask"));
    }
    texts.switchLanguage(kChinese);
    QCOMPARE(titles.size(), files.size());
}

TREL_TEST(tst_LanguageChange, QApplication)

#include "tst_LanguageChange.moc"
