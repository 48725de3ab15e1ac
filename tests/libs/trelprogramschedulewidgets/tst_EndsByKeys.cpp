#include "PromptInputs.h"

#include "card/EditorKeys.h"
#include "support/PromptAnswer.h"
#include "support/RecordingService.h"
#include "support/TestProgram.h"

#include <QApplication>
#include <QDateEdit>
#include <QTimeEdit>
#include <QWindow>

using namespace trel::mediadispatch;

namespace {

constexpr int kConfirm = 1;

void press(Stage& stage, QKeySequence keys)
{
    constexpr uint kModifiers = Qt::KeyboardModifierMask;
    const auto key = static_cast<uint>(keys[0]);
    const auto modifiers = static_cast<Qt::KeyboardModifiers>(key & kModifiers);
    QWindow* const window = stage.dialog().windowHandle();
    // The window may go with the press, and the release with it.
    const QPointer<QWindow> alive(window);
    QTest::keyPress(window, static_cast<Qt::Key>(key & ~kModifiers), modifiers);
    if (alive) {
        QTest::keyRelease(window, static_cast<Qt::Key>(key & ~kModifiers), modifiers);
    }
}

/// The keys of the editor that take the focus away or act on a card, and those of the toolkit.
const std::map<QString, QKeySequence>& focusKeys()
{
    static const std::map<QString, QKeySequence> keys = {
        {QStringLiteral("next card"), keysOf(EditorKey::NextCard).first()},
        {QStringLiteral("previous card"), keysOf(EditorKey::PreviousCard).first()},
        {QStringLiteral("fold"), keysOf(EditorKey::Fold).first()},
        {QStringLiteral("add task"), keysOf(EditorKey::AddTask).first()},
        {QStringLiteral("copy task"), keysOf(EditorKey::CopyTask).first()},
        {QStringLiteral("delete task"), keysOf(EditorKey::DeleteTask).first()},
        {QStringLiteral("copy plan"), keysOf(EditorKey::CopyPlan).first()},
        {QStringLiteral("delete plan"), keysOf(EditorKey::DeletePlan).first()},
        {QStringLiteral("save"), keysOf(EditorKey::Save).first()},
        {QStringLiteral("start"), keysOf(EditorKey::Start).first()},
        {QStringLiteral("cancel"), keysOf(EditorKey::Cancel).first()},
        {QStringLiteral("tab"), QKeySequence(Qt::Key_Tab)},
        {QStringLiteral("back tab"), QKeySequence(int(Qt::SHIFT) + Qt::Key_Tab)},
        {QStringLiteral("return"), QKeySequence(Qt::Key_Return)},
    };
    return keys;
}

} // namespace

/// The end of the card, the list, the panel and the window while a prompt is on screen that a key
/// has brought, with an hour half typed.
class tst_EndsByKeys : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void endInAPrompt_data();
    void endInAPrompt();
};

void tst_EndsByKeys::init()
{
    RecordingService::instance().reset();
    storeStageTasks();
}

void tst_EndsByKeys::endInAPrompt_data()
{
    QTest::addColumn<QKeySequence>("keys");
    QTest::addColumn<QString>("victim");
    for (const auto& [name, keys] : focusKeys()) {
        for (const char* victim : {"card", "task", "list", "panel", "dialog", "refresh"}) {
            QTest::newRow(qPrintable(name + QStringLiteral(", ") + QLatin1String(victim)))
                << keys << QString::fromLatin1(victim);
        }
    }
}

void tst_EndsByKeys::endInAPrompt()
{
    QFETCH(const QKeySequence, keys);
    QFETCH(const QString, victim);
    Stage stage(victim);
    typeHalfAnHour(stage);
    const PromptAnswer prompt(kConfirm);
    const EndOnPrompt end(stage);
    press(stage, keys);
    QCOMPARE(prompt.count(), 1);
    QVERIFY(stage.isCardGone());
    QTRY_VERIFY(stage.inUse().first().isNull());
}

TREL_TEST(tst_EndsByKeys, QApplication)

#include "tst_EndsByKeys.moc"
