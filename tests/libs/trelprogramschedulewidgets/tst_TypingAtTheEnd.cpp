#include "EndStage.h"
#include "support/PlanRecords.h"
#include "support/PromptAnswer.h"
#include "support/RecordingService.h"
#include "support/TestProgram.h"

#include <QPushButton>
#include <QTimeEdit>
#include <QTimer>

using namespace trel::mediadispatch;

namespace {

constexpr int kConfirm = 1;

RecordingService& service()
{
    return RecordingService::instance();
}

/// Leaves an hour half typed: with the 0 of 08 or 09 it reads as an hour past midnight.
void typeZero(QTimeEdit& editor)
{
    editor.setFocus();
    editor.setSelectedSection(QDateTimeEdit::HourSection);
    QTest::keyClick(&editor, Qt::Key_0);
}

/// The changes of the first card and the calls that follow them, by name.
QStringList callsSince()
{
    QStringList names;
    for (const QString& call : service().calls(
             {QStringLiteral("addTask"), QStringLiteral("save"), QStringLiteral("slotOpen")})) {
        names.append(call.section(QLatin1Char('('), 0, 0));
    }
    return names;
}

} // namespace

/// What becomes of a time that is half typed when the work on it ends.
class tst_TypingAtTheEnd : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void isSaved_data();
    void isSaved();
    void stopsTheSaveWhenRefused_data();
    void stopsTheSaveWhenRefused();
    void anUntouchedEditorFilesNothing();
    void isTakenOverBeforeTheWindowHides();
    void isDroppedWithTheWindow();
    void isRefusedBeforeTheQuestion();
};

void tst_TypingAtTheEnd::init()
{
    service().reset();
    storeStageTasks();
    // Nothing overlaps here.
    service().stored.erase(2);
}

void tst_TypingAtTheEnd::isSaved_data()
{
    QTest::addColumn<QString>("button");
    QTest::addColumn<QStringList>("calls");
    const QString add = QStringLiteral("addTask");
    const QString save = QStringLiteral("save");
    QTest::newRow("save") << QStringLiteral("pushButtonSave") << QStringList{add, save};
    QTest::newRow("start") << QStringLiteral("pushButtonStart")
                           << QStringList{add, save, QStringLiteral("slotOpen")};
}

void tst_TypingAtTheEnd::isSaved()
{
    QFETCH(const QString, button);
    QFETCH(const QStringList, calls);
    const PromptAnswer noPrompt;
    const Stage stage(QStringLiteral("nothing"));
    typeZero(stage.rows().startTime(kPlainRow));
    service().clearLog();
    QTest::mouseClick(stage.dialog().findChild<QPushButton*>(button), Qt::LeftButton);
    QCOMPARE(callsSince(), calls);
    QCOMPARE(service().stored.at(1).plans.at(kPlainRow).startTime, std::string("00:00:00"));
}

void tst_TypingAtTheEnd::stopsTheSaveWhenRefused_data()
{
    QTest::addColumn<QString>("button");
    QTest::newRow("save") << QStringLiteral("pushButtonSave");
    QTest::newRow("start") << QStringLiteral("pushButtonStart");
}

void tst_TypingAtTheEnd::stopsTheSaveWhenRefused()
{
    QFETCH(const QString, button);
    const PromptAnswer prompt(kConfirm);
    const Stage stage(QStringLiteral("nothing"));
    QTimeEdit& end = stage.rows().endTime(kPlainRow);
    typeZero(end);
    service().clearLog();
    QTest::mouseClick(stage.dialog().findChild<QPushButton*>(button), Qt::LeftButton);
    QCOMPARE(prompt.count(), 1);
    QCOMPARE(service().count(QStringLiteral("save")), 0);
    QVERIFY(stage.dialog().isVisible());
    QCOMPARE(end.time(), QTime(8, 30));
    // Asked for once more, what stands there is saved.
    QTest::mouseClick(stage.dialog().findChild<QPushButton*>(button), Qt::LeftButton);
    QCOMPARE(service().count(QStringLiteral("save")), 1);
}

void tst_TypingAtTheEnd::anUntouchedEditorFilesNothing()
{
    const PromptAnswer noPrompt;
    const Stage stage(QStringLiteral("nothing"));
    stage.rows().startTime(kPlainRow).setFocus();
    service().clearLog();
    QTest::mouseClick(stage.dialog().findChild<QPushButton*>(QStringLiteral("pushButtonSave")),
                      Qt::LeftButton);
    QCOMPARE(callsSince(), QStringList{QStringLiteral("save")});
}

void tst_TypingAtTheEnd::isTakenOverBeforeTheWindowHides()
{
    const PromptAnswer prompt(kConfirm);
    const Stage stage(QStringLiteral("nothing"));
    typeZero(stage.rows().endTime(kPlainRow));
    bool wasVisible = false;
    QTimer::singleShot(0, [&] { wasVisible = stage.dialog().isVisible(); });
    QTest::mouseClick(stage.dialog().findChild<QPushButton*>(QStringLiteral("pushButtonClose")),
                      Qt::LeftButton);
    QCOMPARE(prompt.count(), 1);
    QVERIFY(wasVisible);
    QVERIFY(!stage.dialog().isVisible());
    QCOMPARE(service().count(QStringLiteral("save")), 0);
}

// The program may have ended already, and a question would wait for ever.
void tst_TypingAtTheEnd::isDroppedWithTheWindow()
{
    const PromptAnswer noPrompt;
    const Stage stage(QStringLiteral("dialog"));
    typeZero(stage.rows().endTime(kPlainRow));
    delete &stage.dialog();
    QCOMPARE(noPrompt.count(), 0);
}

// Both at once would lie over each other.
void tst_TypingAtTheEnd::isRefusedBeforeTheQuestion()
{
    constexpr int kRefuse = 2;
    const PromptAnswer prompts{kConfirm, kRefuse};
    const Stage stage(QStringLiteral("nothing"));
    typeZero(stage.rows().endTime(kPlainRow));
    QTest::keyClick(stage.dialog().windowHandle(), Qt::Key_Delete,
                    Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(prompts.texts(), QStringList({QStringLiteral("zhStartVaildTimeError"),
                                           QStringLiteral("szDeleteTaskConfirmStr")}));
}

TREL_TEST(tst_TypingAtTheEnd, QApplication)

#include "tst_TypingAtTheEnd.moc"
