#include "DraftFixture.h"
#include "support/TestProgram.h"

#include <QCoreApplication>

using namespace trel::mediadispatch;

namespace {

constexpr DraftHabits kHabits{std::chrono::milliseconds(0), std::chrono::milliseconds(20)};

} // namespace

/// Where drafts are kept of a store that has no folder; those of a file stay beside it. On both.
class tst_DraftsAside : public QObject
{
    Q_OBJECT

private slots:
    void areOfferedAgain();
    void anotherStoreHasItsOwn();
    void withoutAFolderNothingIsKept();
};

void tst_DraftsAside::areOfferedAgain()
{
    DraftFixture fixture;
    const bool isOnServer = !storeServer().isEmpty();
    const QTemporaryDir folder;
    const QString aside = folder.filePath(QStringLiteral("a/b"));
    const auto begin = [&] {
        fixture.journal = std::make_unique<DraftJournal>(fixture.desk, nullptr, kHabits);
        fixture.journal->keepAside(aside);
        fixture.journal->begin();
    };
    begin();
    fixture.edit(2, "2031.02.03");
    QTRY_COMPARE(fixture.journal->unsavedTasks(), std::vector<int>{2});
    QVERIFY(fixture.journal->flush());
    QCOMPARE(QDir(aside).entryList(QDir::Files).size(), isOnServer ? 1 : 0);
    QCOMPARE(fixture.files().size(), isOnServer ? 0 : 1);
    fixture.journal.reset();
    fixture.store.restart();
    begin();
    const std::vector<LeftDraft> left = fixture.journal->left();
    QCOMPARE(left.size(), std::size_t(1));
    QCOMPARE(DraftFixture::lineOf(left.front().draft), QStringLiteral("2"));
    QVERIFY(!left.front().isOfOtherStore);
    QVERIFY(!left.front().isOfOtherSave);
    QVERIFY(removeLeftDraft(left.front()));
    QVERIFY(fixture.journal->left().empty());
}

void tst_DraftsAside::anotherStoreHasItsOwn()
{
    DraftFixture fixture;
    const QTemporaryDir folder;
    fixture.journal->keepAside(folder.path());
    fixture.journal->begin();
    fixture.edit(2, "2031.02.03");
    QTRY_COMPARE(fixture.journal->unsavedTasks(), std::vector<int>{2});
    QVERIFY(fixture.journal->flush());
    fixture.journal->end();
    const QTemporaryDir other;
    QVERIFY(fixture.store.host.open(newPlace(other)));
    fixture.journal->begin();
    QVERIFY(fixture.journal->left().empty());
    QVERIFY(fixture.store.host.open(fixture.store.path));
    fixture.journal->begin();
    QCOMPARE(fixture.left(), QStringList{QStringLiteral("2")});
}

void tst_DraftsAside::withoutAFolderNothingIsKept()
{
    if (storeServer().isEmpty()) {
        return;
    }
    DraftFixture fixture;
    fixture.edit(2, "2031.02.03");
    QCoreApplication::processEvents();
    QVERIFY(!fixture.journal->isUnsaved());
    QVERIFY(fixture.journal->left().empty());
}

TREL_TEST(tst_DraftsAside, QCoreApplication)
#include "tst_DraftsAside.moc"
