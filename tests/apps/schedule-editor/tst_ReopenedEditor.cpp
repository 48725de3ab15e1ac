#include "HostFixture.h"

#include "card/PlanColumns.h"
#include "support/TestProgram.h"

#include <QAbstractButton>
#include <QTimer>

#ifdef __GLIBC__
#include <malloc.h>
#endif

using namespace trel::desktop;
using namespace trel::mediadispatch;

namespace {

constexpr int kTasks = 30;
constexpr int kWarmUp = 10;
constexpr int kRounds = 20;
/// What the toolkit's own tables may keep of each card and opening, in bytes. A single field of
/// which a style sheet keeps a record leaves three times as much.
constexpr double kMostBytes = 100.0;

/// What is in use of the heap, in bytes; 0 where the allocator does not tell.
double bytesInUse()
{
#ifdef __GLIBC__
    const struct mallinfo2 info = mallinfo2();
    return static_cast<double>(info.uordblks) + static_cast<double>(info.hblkhd);
#else
    return 0.0;
#endif
}

std::map<int, PlayTask> schedule()
{
    std::map<int, PlayTask> tasks;
    for (int id = 1; id <= kTasks; ++id) {
        PlayTask& task = tasks[id];
        task.id = id;
        task.startDate = "2024.01.01";
        task.endDate = "2024.12.31";
        for (int plan = 1; plan <= 3; ++plan) {
            PlayPlan& made = task.plans.emplace_back();
            made.id = plan;
            made.startTime = "08:00:00";
            made.endTime = "09:00:00";
            made.times = 1;
        }
    }
    return tasks;
}

void lookIntoNothing(HostFixture& /*fixture*/) {}

void unfoldACard(HostFixture& fixture)
{
    fixture.firstCard()->findChild<QAbstractButton*>(QStringLiteral("title"))->setChecked(false);
    QCoreApplication::processEvents();
}

void openAChooser(HostFixture& fixture)
{
    unfoldACard(fixture);
    bool isOpen = false;
    QTimer::singleShot(0, fixture.editor.get(), [&isOpen] {
        QWidget* const chooser = QApplication::activeModalWidget();
        isOpen = chooser != nullptr;
        chooser->close();
    });
    fixture.cell(0, ProgramsColumn)
        ->findChild<QAbstractButton*>(QStringLiteral("pushButton"))
        ->click();
    QVERIFY(isOpen);
}

using Look = void (*)(HostFixture&);

} // namespace

Q_DECLARE_METATYPE(Look)

/// What an editor leaves behind that is opened and closed all day long.
class tst_ReopenedEditor : public QObject
{
    Q_OBJECT

private slots:
    void isAsLargeAsBefore_data();
    void isAsLargeAsBefore();
};

void tst_ReopenedEditor::isAsLargeAsBefore_data()
{
    QTest::addColumn<Look>("look");
    QTest::newRow("as it opens") << Look(lookIntoNothing);
    QTest::newRow("with an unfolded card") << Look(unfoldACard);
    QTest::newRow("with a chooser") << Look(openAChooser);
}

void tst_ReopenedEditor::isAsLargeAsBefore()
{
#if defined(TREL_ADDRESS_SANITIZER) || defined(TREL_THREAD_SANITIZER)
    QSKIP("What is freed stays with the sanitizer for a while.");
#endif
    if (bytesInUse() == 0.0) {
        QSKIP("This allocator does not say what is in use.");
    }
    QFETCH(const Look, look);
    HostFixture fixture;
    QCOMPARE(fixture.window.openDatabase(fixture.database), QString());
    QVERIFY(fixture.host.replaceSchedule(schedule()));
    const auto bytesAfter = [&](int openings) {
        for (int opening = 0; opening < openings; ++opening) {
            fixture.showEditor();
            look(fixture);
            QCoreApplication::processEvents();
            fixture.editor->close();
            // The cards of this opening go as well.
            emit fixture.editor->sigclearPlanList();
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
            QCoreApplication::processEvents();
        }
        return bytesInUse();
    };
    const double before = bytesAfter(kWarmUp);
    const double left = (bytesAfter(kRounds) - before) / (kRounds * kTasks);
    QVERIFY2(left < kMostBytes, qPrintable(QString::number(left)));
}

TREL_TEST(tst_ReopenedEditor, QApplication)
#include "tst_ReopenedEditor.moc"
