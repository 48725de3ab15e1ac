#include "HostFixture.h"
#include "HostPrompts.h"
#include "support/PromptAnswer.h"
#include "support/TestProgram.h"

#include <QApplication>
#include <QFileDialog>
#include <QLineEdit>
#include <QTimer>

#include <utility>

using namespace trel::desktop;

namespace {

/// Answers file dialogs one after another, each with a name, or by Escape for an empty one.
class FileDialogAnswers
{
public:
    explicit FileDialogAnswers(QStringList files)
        : m_files(std::move(files))
    {
        QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [this] { answer(); });
        m_timer.start(5);
    }

    /// What stood in each of them when it opened.
    QStringList names() const { return m_names; }

private:
    void answer()
    {
        auto* const dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
        if (dialog == nullptr) {
            return;
        }
        auto* const name = dialog->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
        m_names.append(QFileInfo(name->text()).fileName());
        const QString file = m_files.isEmpty() ? QString() : m_files.takeFirst();
        if (file.isEmpty()) {
            dialog->reject();
            return;
        }
        name->setText(file);
        QTest::keyClick(name, Qt::Key_Return);
    }

    QStringList m_files;
    QStringList m_names;
    QTimer m_timer;
};

/// A folder in which there is a file, and the question for a file to write.
struct Folder : HostFixture
{
    Folder()
    {
        window.show();
        QFile file(there());
        file.open(QIODevice::WriteOnly);
    }

    QString there() const { return folder.filePath(QStringLiteral("there.json")); }
    QString fresh() const { return folder.filePath(QStringLiteral("fresh.json")); }
    QString ask(prompts::Existing existing = prompts::Existing::IsAskedAbout)
    {
        return prompts::saveFileName(&window, QStringLiteral("Write"),
                                     QStringLiteral("Schedules (*.json)"), QStringLiteral("json"),
                                     existing);
    }
};

} // namespace

/// The name of a file to write, and what becomes of one that there is.
class tst_SaveFileName : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QApplication::setAttribute(Qt::AA_DontUseNativeDialogs); }
    void aNewFileIsNotAskedAbout();
    void aFileIsReplacedWhenThatIsMeant();
    void theSuffixCountsAsWell();
    void whoDeclinesChoosesAgain_data();
    void whoDeclinesChoosesAgain();
    void theCallerMayTellItself();
};

void tst_SaveFileName::aNewFileIsNotAskedAbout()
{
    Folder fixture;
    const PromptAnswer none;
    const FileDialogAnswers dialogs({fixture.fresh()});
    QCOMPARE(fixture.ask(), fixture.fresh());
    QCOMPARE(dialogs.names().size(), 1);
}

void tst_SaveFileName::aFileIsReplacedWhenThatIsMeant()
{
    Folder fixture;
    const PromptAnswer replace(1);
    const FileDialogAnswers dialogs({fixture.there()});
    QCOMPARE(fixture.ask(), fixture.there());
    QCOMPARE(replace.texts(),
             QStringList{QStringLiteral("The file there.json exists already. Replace it?")});
    QCOMPARE(replace.buttons(), QStringList{QStringLiteral("Replace|Cancel")});
}

void tst_SaveFileName::theSuffixCountsAsWell()
{
    Folder fixture;
    const PromptAnswer replace(1);
    const FileDialogAnswers dialogs({fixture.folder.filePath(QStringLiteral("there"))});
    QCOMPARE(fixture.ask(), fixture.there());
    QCOMPARE(replace.count(), 1);
}

void tst_SaveFileName::whoDeclinesChoosesAgain_data()
{
    QTest::addColumn<int>("answer");
    QTest::newRow("the other button") << 2;
    QTest::newRow("Enter") << int(PromptAnswer::Enter);
    QTest::newRow("Escape") << int(PromptAnswer::Escape);
    QTest::newRow("the title bar") << int(PromptAnswer::Close);
}

void tst_SaveFileName::whoDeclinesChoosesAgain()
{
    QFETCH(const int, answer);
    Folder fixture;
    {
        const PromptAnswer decline(answer);
        const FileDialogAnswers dialogs({fixture.there(), fixture.fresh()});
        QCOMPARE(fixture.ask(), fixture.fresh());
        // What was typed before can be changed.
        QCOMPARE(dialogs.names().value(1), QStringLiteral("there.json"));
    }
    const PromptAnswer decline(answer);
    const FileDialogAnswers dialogs({fixture.there(), QString()});
    QCOMPARE(fixture.ask(), QString());
    QCOMPARE(dialogs.names().size(), 2);
}

void tst_SaveFileName::theCallerMayTellItself()
{
    Folder fixture;
    const PromptAnswer none;
    const FileDialogAnswers dialogs({fixture.there()});
    QCOMPARE(fixture.ask(prompts::Existing::IsTold), fixture.there());
}

TREL_TEST(tst_SaveFileName, QApplication)
#include "tst_SaveFileName.moc"
