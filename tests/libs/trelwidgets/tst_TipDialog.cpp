#include "support/PromptAnswer.h"
#include "support/TestProgram.h"
#include "trelwidgets/Dialog.h"
#include "trelwidgets/TipDialog.h"

#include <QApplication>
#include <QIcon>
#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <QScreen>
#include <QTimer>
#include <QVector>
#include <QtTest>

#include <algorithm>
#include <memory>
#include <vector>

using trel::widgets::Dialog;
using trel::widgets::TipDialog;

namespace {

TipDialog* makePrompt(int type = TipDialog::Confirmation, QWidget* parent = nullptr)
{
    auto* prompt = new TipDialog(type, parent);
    prompt->setTipText(QStringLiteral("Delete this plan?"));
    prompt->setBtnText(QStringLiteral("OK"), QStringLiteral("Cancel"), QString());
    return prompt;
}

QString nameOfPicture(const TipDialog& prompt)
{
    return prompt.findChild<QLabel*>(QStringLiteral("dialogTipIcon"))->accessibleName();
}

QPushButton* button(const TipDialog* prompt, int number)
{
    return prompt->findChild<QPushButton*>(QStringLiteral("tipButton%1").arg(number));
}

/// Runs the prompt; does something to it as soon as its event loop turns.
template <typename Action>
int runAnd(TipDialog* prompt, Action action)
{
    QTimer::singleShot(0, prompt, action);
    return prompt->run().button;
}

void sendKey(QWidget* target, Qt::Key key, bool autoRepeat)
{
    QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, QString(), autoRepeat);
    QCoreApplication::sendEvent(target, &press);
}

} // namespace

class TestTipDialog : public QObject
{
    Q_OBJECT

private slots:
    void answers_data();
    void answers();
    void showsOnlyButtonsWithText_data();
    void showsOnlyButtonsWithText();
    void tellsTheKindApart_data();
    void tellsTheKindApart();
    void showsTheSignThatItWasGiven();
    void freesItselfBeforeRunReturns();
    void outlivesNoParent();
    void endsWithTheApplication();
    void theFirstButtonEndsTheRow_data();
    void theFirstButtonEndsTheRow();
    void tabGoesAlongTheRow();
    void enterPressesWhatTabHasReached();
    void enterPressesTheFirstShownButton();
    void enterPressesTheButtonThatWasChosen_data();
    void enterPressesTheButtonThatWasChosen();
    void heldKeyAnswersNothing();
    void withoutButtonsEscapeEndsIt();
    void runsInsideAnotherPrompt();
    void runsInsideAModalDialog();
    void isModalToTheApplication();
    void standsOverTheActiveWindow();
    void standsOverTheYoungestWindowWhenNoneIsActive();
    void staysOnTheScreen();
    void belongsToAnotherWindowWhenTheOneBelowEnds();
    void takesTheTitleOfTheWindowBelow();
    void itsOwnTitleNamesThePicture();
    void growsWithItsText();
    void showsMarkupAsItStands();
};

void TestTipDialog::answers_data()
{
    QTest::addColumn<int>("way");
    QTest::addColumn<int>("expected");
    QTest::newRow("first button") << 1 << 1;
    QTest::newRow("second button") << 2 << 2;
    QTest::newRow("third button") << 3 << 3;
    QTest::newRow("enter") << int(PromptAnswer::Enter) << 1;
    QTest::newRow("escape") << int(PromptAnswer::Escape) << 0;
    QTest::newRow("close") << int(PromptAnswer::Close) << 0;
}

void TestTipDialog::answers()
{
    QFETCH(int, way);
    QFETCH(int, expected);
    PromptAnswer answer(way);
    TipDialog* prompt = makePrompt();
    prompt->setBtnText(QStringLiteral("Yes"), QStringLiteral("No"), QStringLiteral("Never"));
    QCOMPARE(prompt->run().button, expected);
    QCOMPARE(answer.texts(), QStringList{QStringLiteral("Delete this plan?")});
    QCOMPARE(answer.buttons(), QStringList{QStringLiteral("Yes|No|Never")});
}

void TestTipDialog::showsOnlyButtonsWithText_data()
{
    QTest::addColumn<QStringList>("texts");
    QTest::addColumn<QString>("shown");
    const QString none;
    QTest::newRow("one") << QStringList{QStringLiteral("OK"), none, none} << QStringLiteral("OK");
    QTest::newRow("two") << QStringList{QStringLiteral("OK"), QStringLiteral("Cancel"), none}
                         << QStringLiteral("OK|Cancel");
    QTest::newRow("a gap") << QStringList{QStringLiteral("OK"), none, QStringLiteral("Help")}
                           << QStringLiteral("OK|Help");
    QTest::newRow("none") << QStringList{none, none, none} << none;
}

void TestTipDialog::showsOnlyButtonsWithText()
{
    QFETCH(QStringList, texts);
    QFETCH(QString, shown);
    PromptAnswer answer(PromptAnswer::Close);
    TipDialog* prompt = makePrompt();
    prompt->setBtnText(texts[0], texts[1], texts[2]);
    QCOMPARE(prompt->run().button, 0);
    QCOMPARE(answer.buttons(), QStringList{shown});
}

void TestTipDialog::tellsTheKindApart_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<int>("shown");
    QTest::newRow("notice") << 0 << 0;
    QTest::newRow("confirmation") << 1 << 1;
    QTest::newRow("unknown") << 7 << 0;
    QTest::newRow("negative") << -1 << 0;
}

void TestTipDialog::tellsTheKindApart()
{
    QFETCH(int, type);
    QFETCH(int, shown);
    PromptAnswer answer(1);
    TipDialog* prompt = makePrompt(type);
    bool hasPicture = false;
    runAnd(prompt, [prompt, &hasPicture] {
        const auto* icon = prompt->findChild<QLabel*>(QStringLiteral("dialogTipIcon"));
        hasPicture = icon->pixmap(Qt::ReturnByValue).width() >= 16;
    });
    QVERIFY(hasPicture);
    QCOMPARE(answer.types(), QVector<int>{shown});
}

void TestTipDialog::showsTheSignThatItWasGiven()
{
    PromptAnswer answer({1, 1});
    QPixmap sign(64, 64);
    sign.fill(Qt::green);
    std::vector<QColor> seen;
    for (const QIcon& icon : {QIcon(sign), QIcon()}) {
        TipDialog* prompt = makePrompt(TipDialog::Notice);
        prompt->setSignIcon(icon);
        runAnd(prompt, [prompt, &seen] {
            const auto* label = prompt->findChild<QLabel*>(QStringLiteral("dialogTipIcon"));
            const QImage picture = label->pixmap(Qt::ReturnByValue).toImage();
            seen.push_back(picture.pixelColor(picture.rect().center()));
        });
    }
    QCOMPARE(seen.size(), std::size_t(2));
    QCOMPARE(seen[0], QColor(Qt::green));
    QVERIFY(seen[1] != QColor(Qt::green));
    // It is a notice all the same.
    QCOMPARE(answer.types(), (QVector<int>{0, 0}));
}

void TestTipDialog::freesItselfBeforeRunReturns()
{
    PromptAnswer answer(1);
    const QPointer<TipDialog> prompt = makePrompt();
    prompt->run();
    QVERIFY(prompt.isNull());
}

void TestTipDialog::outlivesNoParent()
{
    auto* parent = new QWidget;
    const QPointer<TipDialog> prompt = makePrompt(TipDialog::Confirmation, parent);
    QCOMPARE(runAnd(prompt, [parent] { delete parent; }), 0);
    QVERIFY(prompt.isNull());
}

void TestTipDialog::endsWithTheApplication()
{
    const QPointer<TipDialog> prompt = makePrompt();
    int answered = -1;
    QTimer::singleShot(0, this, [&] {
        QTimer::singleShot(0, prompt, [] { QCoreApplication::quit(); });
        answered = prompt->run().button;
    });
    QCoreApplication::exec();
    QCOMPARE(answered, 0);
    QVERIFY(prompt.isNull());
}

void TestTipDialog::theFirstButtonEndsTheRow_data()
{
    QTest::addColumn<bool>("isRightToLeft");
    QTest::newRow("from the left") << false;
    QTest::newRow("from the right") << true;
}

void TestTipDialog::theFirstButtonEndsTheRow()
{
    QFETCH(bool, isRightToLeft);
    TipDialog* prompt = makePrompt();
    prompt->setLayoutDirection(isRightToLeft ? Qt::RightToLeft : Qt::LeftToRight);
    prompt->setBtnText(QStringLiteral("Yes"), QStringLiteral("No"), QStringLiteral("Never"));
    QVector<int> places;
    runAnd(prompt, [prompt, &places] {
        for (const int number : {3, 2, 1}) {
            const auto* button =
                prompt->findChild<QWidget*>(QStringLiteral("tipButton%1").arg(number));
            places.append(button->x());
        }
        prompt->close();
    });
    QVector<int> sorted = places;
    std::sort(sorted.begin(), sorted.end());
    if (isRightToLeft) {
        std::reverse(sorted.begin(), sorted.end());
    }
    QCOMPARE(places, sorted);
    QVERIFY(places.first() != places.last());
}

void TestTipDialog::tabGoesAlongTheRow()
{
    TipDialog* prompt = makePrompt();
    prompt->setBtnText(QStringLiteral("Yes"), QStringLiteral("No"), QStringLiteral("Never"));
    QStringList reached;
    runAnd(prompt, [prompt, &reached] {
        for (int press = 0; press < 4; ++press) {
            reached.append(prompt->focusWidget()->objectName());
            QTest::keyClick(prompt->focusWidget(), Qt::Key_Tab);
        }
        prompt->close();
    });
    QCOMPARE(reached, (QStringList{QStringLiteral("tipButton1"), QStringLiteral("tipButton3"),
                                   QStringLiteral("tipButton2"), QStringLiteral("tipButton1")}));
}

void TestTipDialog::enterPressesWhatTabHasReached()
{
    TipDialog* prompt = makePrompt();
    QCOMPARE(runAnd(prompt,
                    [prompt] {
                        QTest::keyClick(prompt->focusWidget(), Qt::Key_Tab);
                        QTest::keyClick(prompt->focusWidget(), Qt::Key_Return);
                    }),
             2);
}

void TestTipDialog::enterPressesTheFirstShownButton()
{
    PromptAnswer answer(PromptAnswer::Enter);
    TipDialog* prompt = makePrompt();
    prompt->setBtnText(QString(), QStringLiteral("Second"), QStringLiteral("Third"));
    QCOMPARE(prompt->run().button, 2);
}

void TestTipDialog::enterPressesTheButtonThatWasChosen_data()
{
    QTest::addColumn<int>("number");
    QTest::addColumn<int>("expected");
    QTest::newRow("second") << 2 << 2;
    QTest::newRow("third, which is not shown") << 3 << 1;
    QTest::newRow("none") << 0 << 1;
    QTest::newRow("one too many") << 4 << 1;
}

void TestTipDialog::enterPressesTheButtonThatWasChosen()
{
    QFETCH(int, number);
    PromptAnswer answer(PromptAnswer::Enter);
    TipDialog* prompt = makePrompt();
    prompt->setBtnText(QStringLiteral("First"), QStringLiteral("Second"), QString());
    prompt->setEnterButton(number);
    QTEST(prompt->run().button, "expected");
}

void TestTipDialog::heldKeyAnswersNothing()
{
    TipDialog* prompt = makePrompt();
    bool stayedOpen = false;
    QCOMPARE(runAnd(prompt,
                    [prompt, &stayedOpen] {
                        for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Escape, Qt::Key_Space}) {
                            sendKey(prompt->focusWidget(), key, true);
                        }
                        stayedOpen = prompt->isVisible();
                        sendKey(prompt->focusWidget(), Qt::Key_Enter, false);
                    }),
             1);
    QVERIFY(stayedOpen);
}

void TestTipDialog::withoutButtonsEscapeEndsIt()
{
    auto* prompt = new TipDialog(TipDialog::Notice);
    QCOMPARE(runAnd(prompt,
                    [prompt] {
                        QTest::keyClick(prompt, Qt::Key_Return);
                        QTest::keyClick(prompt, Qt::Key_Escape);
                    }),
             0);
}

void TestTipDialog::runsInsideAnotherPrompt()
{
    TipDialog* outer = makePrompt();
    int inner = -1;
    QCOMPARE(runAnd(outer,
                    [outer, &inner] {
                        TipDialog* second = makePrompt();
                        inner = runAnd(second, [second] { button(second, 2)->click(); });
                        QVERIFY(outer->isVisible());
                        button(outer, 1)->click();
                    }),
             1);
    QCOMPARE(inner, 2);
}

void TestTipDialog::runsInsideAModalDialog()
{
    Dialog dialog;
    int answered = -1;
    bool shownAfterwards = false;
    QTimer::singleShot(0, &dialog, [&] {
        PromptAnswer answer(PromptAnswer::Escape);
        answered = makePrompt()->run().button;
        shownAfterwards = dialog.isVisible();
        dialog.accept();
    });
    QCOMPARE(dialog.exec(), int(QDialog::Accepted));
    QCOMPARE(answered, 0);
    QVERIFY(shownAfterwards);
}

void TestTipDialog::isModalToTheApplication()
{
    QWidget other;
    other.show();
    TipDialog* prompt = makePrompt();
    Qt::WindowModality modality = Qt::NonModal;
    QWidget* modal = nullptr;
    runAnd(prompt, [&] {
        modality = prompt->windowModality();
        modal = QApplication::activeModalWidget();
        prompt->close();
    });
    QCOMPARE(modality, Qt::ApplicationModal);
    QVERIFY(modal != nullptr);
}

void TestTipDialog::standsOverTheActiveWindow()
{
    QWidget window;
    window.setGeometry(100, 120, 600, 500);
    window.show();
    window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    TipDialog* prompt = makePrompt();
    QRect placed;
    QWindow* below = nullptr;
    runAnd(prompt, [&] {
        placed = prompt->frameGeometry();
        below = prompt->windowHandle()->transientParent();
        prompt->close();
    });
    QVERIFY((placed.center() - window.frameGeometry().center()).manhattanLength() <= 2);
    QCOMPARE(below, window.windowHandle());
}

void TestTipDialog::standsOverTheYoungestWindowWhenNoneIsActive()
{
    QWidget first;
    first.show();
    QWidget window;
    window.show();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    // As right after a dialog has closed.
    QApplication::setActiveWindow(nullptr);
    TipDialog* prompt = makePrompt();
    QWindow* below = nullptr;
    runAnd(prompt, [&] {
        below = prompt->windowHandle()->transientParent();
        prompt->close();
    });
    QCOMPARE(below, window.windowHandle());
}

void TestTipDialog::belongsToAnotherWindowWhenTheOneBelowEnds()
{
    QWidget window;
    window.show();
    auto progress = std::make_unique<QDialog>(&window);
    progress->setWindowModality(Qt::WindowModal);
    progress->show();
    auto later = std::make_unique<QDialog>(&window);
    QVERIFY(QTest::qWaitForWindowExposed(progress.get()));
    TipDialog* prompt = makePrompt();
    std::vector<QWindow*> below;
    runAnd(prompt, [&] {
        below.push_back(prompt->windowHandle()->transientParent());
        later->show();
        progress.reset();
        below.push_back(prompt->windowHandle()->transientParent());
        later.reset();
        below.push_back(prompt->windowHandle()->transientParent());
        prompt->close();
    });
    QCOMPARE(below.size(), std::size_t(3));
    QVERIFY(below[0] != nullptr && below[0] != window.windowHandle());
    QVERIFY(below[1] != nullptr && below[1] != window.windowHandle());
    QCOMPARE(below[2], window.windowHandle());
}

void TestTipDialog::staysOnTheScreen()
{
    QWidget window;
    window.setGeometry(-300, -200, 320, 210);
    window.show();
    TipDialog* prompt = makePrompt(TipDialog::Notice, &window);
    QRect placed;
    runAnd(prompt, [&] {
        placed = prompt->geometry();
        prompt->close();
    });
    QVERIFY(window.screen()->availableGeometry().contains(placed));
}

void TestTipDialog::takesTheTitleOfTheWindowBelow()
{
    QWidget window;
    window.setWindowTitle(QStringLiteral("Play schedule"));
    window.show();
    TipDialog* prompt = makePrompt(TipDialog::Notice, &window);
    QString title;
    QString picture;
    runAnd(prompt, [&] {
        title = prompt->findChild<QLabel*>(QStringLiteral("TitleLabel"))->text();
        picture = nameOfPicture(*prompt);
        prompt->close();
    });
    QCOMPARE(title, QStringLiteral("Play schedule"));
    QCOMPARE(picture, QString());
}

void TestTipDialog::itsOwnTitleNamesThePicture()
{
    QWidget window;
    window.setWindowTitle(QStringLiteral("Play schedule"));
    window.show();
    TipDialog* prompt = makePrompt(TipDialog::Notice, &window);
    prompt->setWindowTitle(QStringLiteral("Note"));
    QString picture;
    runAnd(prompt, [&] {
        // Another look shows the picture anew.
        QEvent change(QEvent::StyleChange);
        QCoreApplication::sendEvent(prompt, &change);
        picture = nameOfPicture(*prompt);
        prompt->close();
    });
    QCOMPARE(picture, QStringLiteral("Note"));
}

void TestTipDialog::growsWithItsText()
{
    TipDialog* prompt = makePrompt();
    prompt->setTipText(QStringLiteral("The validity periods overlap. ").repeated(20));
    bool wholeTextShows = false;
    runAnd(prompt, [&] {
        const auto* label = prompt->findChild<QLabel*>(QStringLiteral("dialogTipLabel"));
        wholeTextShows = label->height() >= label->heightForWidth(label->width()) &&
                         label->width() < 500 && prompt->rect().contains(label->geometry());
        prompt->close();
    });
    QVERIFY(wholeTextShows);
}

void TestTipDialog::showsMarkupAsItStands()
{
    TipDialog* prompt = makePrompt();
    prompt->setTipText(QStringLiteral("<b>1</b> & 2"));
    QCOMPARE(prompt->findChild<QLabel*>(QStringLiteral("dialogTipLabel"))->textFormat(),
             Qt::PlainText);
    PromptAnswer answer(1);
    prompt->run();
    QCOMPARE(answer.texts(), QStringList{QStringLiteral("<b>1</b> & 2")});
}

TREL_TEST(TestTipDialog, QApplication)
#include "tst_TipDialog.moc"
