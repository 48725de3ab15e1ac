#include "EditorWindow.h"

#include "support/MessageLog.h"
#include "support/RecordingService.h"
#include "support/TaskRecords.h"
#include "support/TestProgram.h"

#include <QApplication>
#include <QtTest>

#include <memory>

using namespace trel::mediadispatch;

namespace {

RecordingService& service()
{
    return RecordingService::instance();
}

} // namespace

/// Two editors in one process, which has one working set.
class tst_SecondEditor : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void isNotShownBesideAnother();
    void isShownOnceTheOtherIsClosed();
    void isShownOnceTheOtherIsGone();
    void readsAgainBehindAnother();
    void clearsTheOneThatIsOpen();
    void aClearedOneCountsAsTheLast();
};

void tst_SecondEditor::init()
{
    service().reset();
    service().stored[1] = makeTask(1, "2024.01.01", "2024.12.31");
}

void tst_SecondEditor::isNotShownBesideAnother()
{
    ClockAfterStart clock;
    EditorWindow first;
    EditorWindow second;
    first.dialog.slotShow();
    first.dialog.showMinimized();
    service().working.at(1).endDate = "2099.01.01";
    service().clearLog();

    const MessageLog log;
    second.dialog.slotShow();
    QVERIFY(!second.dialog.isVisible());
    QCOMPARE(second.updates.count(), 0);
    QCOMPARE(service().log, QStringList());
    QCOMPARE(log.warnings().filter(QStringLiteral("another one of this process is open")).size(),
             1);
    QVERIFY(!first.dialog.isMinimized());
    QCOMPARE(service().working.at(1).endDate, std::string("2099.01.01"));
}

void tst_SecondEditor::isShownOnceTheOtherIsClosed()
{
    ClockAfterStart clock;
    EditorWindow first;
    EditorWindow second;
    first.dialog.slotShow();
    first.dialog.close();
    second.dialog.slotShow();
    QVERIFY(second.dialog.isVisible());
    QCOMPARE(second.updates.count(), 1);
}

void tst_SecondEditor::isShownOnceTheOtherIsGone()
{
    ClockAfterStart clock;
    auto first = std::make_unique<EditorWindow>();
    EditorWindow second;
    first->dialog.slotShow();
    first.reset();
    second.dialog.slotShow(false);
    QVERIFY(second.dialog.isVisible());
    // As the only editor there is, it does what it is told.
    QCOMPARE(second.updates.count(), 0);
}

void tst_SecondEditor::readsAgainBehindAnother()
{
    ClockAfterStart clock;
    EditorWindow first;
    EditorWindow second;
    first.dialog.slotShow();
    first.dialog.close();
    first.dialog.slotShow(false);
    QCOMPARE(first.updates.count(), 1);
    first.dialog.close();
    second.dialog.slotShow(false);
    QCOMPARE(second.updates.count(), 1);
    second.dialog.close();
    first.dialog.slotShow(false);
    QCOMPARE(first.updates.count(), 2);
}

void tst_SecondEditor::clearsTheOneThatIsOpen()
{
    ClockAfterStart clock;
    EditorWindow first;
    EditorWindow second;
    first.dialog.slotShow();
    second.dialog.clearAndInitialize();
    QCOMPARE(first.updates.count(), 2);
    QCOMPARE(second.updates.count(), 0);
}

void tst_SecondEditor::aClearedOneCountsAsTheLast()
{
    ClockAfterStart clock;
    EditorWindow first;
    EditorWindow second;
    first.dialog.slotShow();
    first.dialog.close();
    second.dialog.clearAndInitialize();
    QCOMPARE(second.updates.count(), 1);
    first.dialog.slotShow(false);
    QCOMPARE(first.updates.count(), 2);
}

TREL_TEST(tst_SecondEditor, QApplication)
#include "tst_SecondEditor.moc"
