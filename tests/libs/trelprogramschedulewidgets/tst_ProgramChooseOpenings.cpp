#include "ChooserFixture.h"
#include "support/TestProgram.h"

#include "trelwidgets/Dialog.h"

#include <QApplication>
#include <QCoreApplication>
#include <QFile>
#include <QGuiApplication>
#include <QtTest>

#include <unistd.h>

using namespace trel::mediadispatch;
using trel::widgets::Dialog;

namespace {

void open(ChooserFixture& fixture, int times)
{
    for (int opening = 0; opening < times; ++opening) {
        fixture.openExisting([](ChooserWindow& chooser) { chooser.cancel(); });
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
}

int objectsUnder(const QObject& parent)
{
    return parent.findChildren<QObject*>().size();
}

/// The memory that the process has in use, in kilobytes.
long residentSize()
{
    QFile file(QStringLiteral("/proc/self/statm"));
    if (!file.open(QIODevice::ReadOnly)) {
        return -1;
    }
    return file.readAll().split(' ').value(1).toLong() * (sysconf(_SC_PAGESIZE) / 1024);
}

} // namespace

/// What a chooser leaves behind when it has gone and its caller is still there.
class tst_ProgramChooseOpenings : public QObject
{
    Q_OBJECT

private slots:
    void onlyTheFrameStays();
    void noWindowStays();
    void theProcessDoesNotGrow();
};

void tst_ProgramChooseOpenings::onlyTheFrameStays()
{
    ChooserFixture fixture;
    fixture.setPrograms({entry(1, "A")});
    open(fixture, 3);
    QCOMPARE(objectsUnder(fixture.caller), 3);
    for (Dialog* const frame : fixture.caller.findChildren<Dialog*>()) {
        QVERIFY(frame->isHidden());
        QVERIFY(frame->children().isEmpty());
        QVERIFY(!frame->dialogWidget());
    }
}

void tst_ProgramChooseOpenings::noWindowStays()
{
    ChooserFixture fixture;
    fixture.setPrograms({entry(1, "A")});
    open(fixture, 1);
    // The caller has got a window of its own by now.
    const auto windows = QGuiApplication::allWindows().size();
    open(fixture, 3);
    QCOMPARE(QGuiApplication::allWindows().size(), windows);
    for (const Dialog* const frame : fixture.caller.findChildren<Dialog*>()) {
        QVERIFY(!frame->windowHandle());
        QVERIFY(!frame->testAttribute(Qt::WA_WState_Created));
    }
}

void tst_ProgramChooseOpenings::theProcessDoesNotGrow()
{
#if defined(TREL_ADDRESS_SANITIZER) || defined(TREL_THREAD_SANITIZER)
    QSKIP("What is freed stays with the sanitizer for a while.");
#endif
    ChooserFixture fixture;
    fixture.setPrograms({entry(1, "A")});
    open(fixture, 10);
    const long before = residentSize();
    QVERIFY(before > 0);
    open(fixture, 190);
    const long grown = residentSize() - before;
    // An empty frame takes some three kilobytes. Its parts would take twenty more, and the picture
    // of its window, once painted, a thousand.
    QVERIFY2(grown < 3000, qPrintable(QString::number(grown)));
}

TREL_TEST(tst_ProgramChooseOpenings, QApplication)

#include "tst_ProgramChooseOpenings.moc"
