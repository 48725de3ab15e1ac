#include "EffectFixture.h"
#include "support/TestProgram.h"

#include <QApplication>

using namespace trel::mediadispatch;

/// Another schedule comes while the editor is hidden, which keeps the cards of the former one.
class tst_ReplacedBehindEditor : public QObject
{
    Q_OBJECT

private slots:
    void anotherDatabaseIsLeftAlone();
    void aFileThatIsReadIsLeftAlone();
};

namespace {

std::set<int> ids(const std::map<int, PlayTask>& tasks)
{
    std::set<int> ids;
    for (const auto& [id, task] : tasks) {
        ids.insert(id);
    }
    return ids;
}

} // namespace

void tst_ReplacedBehindEditor::anotherDatabaseIsLeftAlone()
{
    EffectFixture fixture;
    fixture.showEditor();
    fixture.editor->close();
    QCOMPARE(fixture.window.openDatabase(fixture.folder.filePath(QStringLiteral("other.db"))),
             QString());
    // As when a length changes, or the schedule is followed.
    emit fixture.manager.signalUpdatePlanEndTime();
    emit fixture.manager.signalReflushConflict(-1);
    QVERIFY(fixture.manager.getAllTask().empty());
    QVERIFY(!fixture.host.hasUnsavedChanges());
}

void tst_ReplacedBehindEditor::aFileThatIsReadIsLeftAlone()
{
    EffectFixture fixture;
    fixture.showEditor();
    fixture.editor->close();
    fixture.save(QStringLiteral("7 2024.03.04-2024.03.10 / 08:00:00-08:01:00 A"));
    emit fixture.manager.signalReflushConflict(-1);
    QCOMPARE(ids(fixture.manager.getAllTask()), std::set<int>{7});
}

TREL_TEST(tst_ReplacedBehindEditor, QApplication)
#include "tst_ReplacedBehindEditor.moc"
