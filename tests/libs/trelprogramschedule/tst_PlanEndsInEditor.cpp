#include "PlanTaskWidget.h"
#include "StoreFixture.h"
#include "scheduleControlUI.h"
#include "support/PlanRecords.h"
#include "support/PlanTaskWidgetInspector.h"
#include "support/TestProgram.h"

#include <QApplication>
#include <QTimeEdit>
#include <QtTest>

using namespace trel::mediadispatch;

namespace {

/// The service with a film of a minute, a saved task that plays it twice, and the editor on it.
struct Editor : StoreFixture
{
    Editor()
    {
        import(60.0);
        PlayTask task = taskWithPlans({frequencyPlan(1, "08:00:00", 2, {entry(1)})});
        task.plans[0].endTime = "08:02:00";
        save({{1, task}});
        dialog.clearAndInitialize();
    }

    void import(double seconds)
    {
        QVERIFY(host.addPrograms({{QStringLiteral("film"), QStringLiteral("/films/1.mp4"),
                                   seconds * 1000.0, ProgramKind::Video}})
                    .store);
    }

    PlanTaskWidget& card() const { return *dialog.findChild<PlanTaskWidget*>(); }

    /// What the row shows, with its card unfolded.
    QString shownEnd() const
    {
        card().setFolded(false);
        return PlanTaskWidgetInspector(card()).endTime(0).text();
    }
    QString workingEnd() const
    {
        return QString::fromStdString(manager.getTask(1).plans.at(0).endTime);
    }

    scheduleControlUI dialog;
};

const QString kFormerEnd = QStringLiteral("08:02:00");
const QString kNewEnd = QStringLiteral("08:03:00");

} // namespace

/// A program that gets another length, and the editor on the real service.
class tst_PlanEndsInEditor : public QObject
{
    Q_OBJECT

private slots:
    void onScreen();
    void underAFoldedCard();
    void whileTheDialogIsClosed();
    void beforeThereIsAnEditor();
    void anEditThatIsNotSaved();
};

void tst_PlanEndsInEditor::onScreen()
{
    Editor editor;
    editor.dialog.show();
    QCOMPARE(editor.shownEnd(), kFormerEnd);
    editor.import(90.0);
    QCOMPARE(editor.shownEnd(), kNewEnd);
    QCOMPARE(editor.workingEnd(), kNewEnd);
    QVERIFY(!editor.host.hasUnsavedChanges());
}

void tst_PlanEndsInEditor::underAFoldedCard()
{
    Editor editor;
    editor.dialog.show();
    editor.import(90.0);
    QVERIFY(editor.card().isFolded());
    QCOMPARE(editor.workingEnd(), kNewEnd);
    QCOMPARE(editor.shownEnd(), kNewEnd);
}

void tst_PlanEndsInEditor::whileTheDialogIsClosed()
{
    Editor editor;
    editor.dialog.show();
    editor.dialog.close();
    editor.import(90.0);
    QCOMPARE(editor.workingEnd(), kNewEnd);
    editor.dialog.clearAndInitialize();
    QCOMPARE(editor.shownEnd(), kNewEnd);
    QCOMPARE(editor.workingEnd(), kNewEnd);
}

void tst_PlanEndsInEditor::beforeThereIsAnEditor()
{
    Editor editor;
    editor.dialog.close();
    editor.import(90.0);
    editor.restart();
    QCOMPARE(editor.workingEnd(), kNewEnd);
    editor.dialog.clearAndInitialize();
    QCOMPARE(editor.shownEnd(), kNewEnd);
}

void tst_PlanEndsInEditor::anEditThatIsNotSaved()
{
    Editor editor;
    editor.dialog.show();
    editor.card().setFolded(false);
    editor.card().slotCurrentIndexChangeSignal(0, EndActionCombo, FreezeCurrentFrame);
    editor.import(90.0);
    QCOMPARE(editor.shownEnd(), kNewEnd);
    QCOMPARE(editor.manager.getTask(1).plans[0].endAction, int(FreezeCurrentFrame));
    QVERIFY(editor.host.hasUnsavedChanges());
}

TREL_TEST(tst_PlanEndsInEditor, QApplication)
#include "tst_PlanEndsInEditor.moc"
