#include "DialogWidget.h"
#include "Mouse.h"
#include "TitleBar.h"
#include "support/MessageLog.h"
#include "support/TestProgram.h"

#include <QApplication>
#include <QLabel>
#include <QLayout>
#include <QPushButton>
#include <QSignalSpy>
#include <QTimer>
#include <QtTest>

#include <functional>
#include <memory>

using trel::mediadispatch::DialogWidget;
using trel::mediadispatch::TitleBar;

namespace {

/// The end of a run makes the layout of the centre give up a widget that no layout has.
const char* const kEndOfRun = "QLayout::removeWidget: Cannot remove a null widget.";

} // namespace

/// The dialog in its modal runs, answered by an operator.
class tst_DialogWidgetRun : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void answersTheButton_data();
    void answersTheButton();
    void aDialogClosedWithoutAButtonIsCancelled_data();
    void aDialogClosedWithoutAButtonIsCancelled();
    void aSecondRunKeepsTheFormerAnswer();
    void tellsBeforeItRecords_data();
    void tellsBeforeItRecords();
    void closeModeThreeStaysOpen_data();
    void closeModeThreeStaysOpen();
    void returnPressesTheButtonInFocus_data();
    void returnPressesTheButtonInFocus();
    void otherCloseModesClose_data();
    void otherCloseModesClose();
    void theCloseButtonOfTheBarCancels();
    void itsTitleBarMovesIt();
    void showsItsContentAgainInTheNextRun();
    void outlivesNoOwner();
    void saysNoMoreThanTheEndOfARunBrings();

private:
    QPushButton* button(const QString& name) const
    {
        return m_dialog->findChild<QPushButton*>(name);
    }
    /// Runs the dialog, lets the operator act once it shows, and gives its answer.
    int run(const std::function<void()>& act);
    void click(const QString& name) const;

    std::unique_ptr<DialogWidget> m_dialog;
    std::unique_ptr<MessageLog> m_messages;
    QStringList m_signals;
};

void tst_DialogWidgetRun::init()
{
    m_messages = std::make_unique<MessageLog>();
    m_dialog = std::make_unique<DialogWidget>();
    m_signals.clear();
    connect(m_dialog.get(), &DialogWidget::signalAccept, this,
            [this] { m_signals << QStringLiteral("accept"); });
    connect(m_dialog.get(), &DialogWidget::signalReject, this,
            [this] { m_signals << QStringLiteral("reject"); });
    connect(m_dialog.get(), &DialogWidget::signalCancel, this,
            [this] { m_signals << QStringLiteral("cancel"); });
}

void tst_DialogWidgetRun::cleanup()
{
    m_dialog.reset();
    QStringList texts = m_messages->texts();
    m_messages.reset();
    texts.removeAll(QLatin1String(kEndOfRun));
    QCOMPARE(texts, QStringList());
}

int tst_DialogWidgetRun::run(const std::function<void()>& act)
{
    QTimer::singleShot(0, m_dialog.get(), [&] {
        QVERIFY(QTest::qWaitForWindowExposed(m_dialog.get()));
        act();
    });
    return m_dialog->exec();
}

void tst_DialogWidgetRun::click(const QString& name) const
{
    QPushButton* target = button(name);
    Mouse(target->window()).click(target->mapToGlobal(target->rect().center()));
}

void tst_DialogWidgetRun::answersTheButton_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("answer");
    QTest::addColumn<QString>("told");
    QTest::newRow("accept") << QStringLiteral("dialogAcceptBtn") << 0 << QStringLiteral("accept");
    QTest::newRow("reject") << QStringLiteral("dialogRejectBtn") << 1 << QStringLiteral("reject");
    QTest::newRow("cancel") << QStringLiteral("dialogCancelBtn") << 2 << QStringLiteral("cancel");
}

void tst_DialogWidgetRun::answersTheButton()
{
    QFETCH(const QString, name);
    QFETCH(const int, answer);
    QFETCH(const QString, told);
    QCOMPARE(run([&] { click(name); }), answer);
    QCOMPARE(m_signals, QStringList(told));
    QVERIFY(!m_dialog->isVisible());
}

void tst_DialogWidgetRun::aDialogClosedWithoutAButtonIsCancelled_data()
{
    QTest::addColumn<int>("way");
    QTest::newRow("closed") << 0;
    QTest::newRow("Escape") << 1;
    QTest::newRow("accepted by the program") << 2;
}

void tst_DialogWidgetRun::aDialogClosedWithoutAButtonIsCancelled()
{
    QFETCH(const int, way);
    const int answer = run([&] {
        if (way == 0)
            m_dialog->close();
        else if (way == 1)
            QTest::keyClick(m_dialog.get(), Qt::Key_Escape);
        else
            m_dialog->accept();
    });
    QCOMPARE(answer, 2);
    QCOMPARE(m_signals, QStringList());
}

void tst_DialogWidgetRun::aSecondRunKeepsTheFormerAnswer()
{
    QCOMPARE(run([&] { click(QStringLiteral("dialogRejectBtn")); }), 1);
    QCOMPARE(run([&] { m_dialog->close(); }), 1);
    QCOMPARE(run([&] { click(QStringLiteral("dialogAcceptBtn")); }), 0);
    QCOMPARE(run([&] { QTest::keyClick(m_dialog.get(), Qt::Key_Escape); }), 0);
}

void tst_DialogWidgetRun::tellsBeforeItRecords_data()
{
    answersTheButton_data();
}

void tst_DialogWidgetRun::tellsBeforeItRecords()
{
    QFETCH(const QString, name);
    QFETCH(const int, answer);
    // The answer that a receiver would see: that of a run which it ends without a button.
    int seen = -1;
    const auto look = [&] {
        m_dialog->hide();
        seen = run([&] { m_dialog->close(); });
    };
    const int former = answer == 1 ? 0 : 1;
    const QString formerName =
        former == 1 ? QStringLiteral("dialogRejectBtn") : QStringLiteral("dialogAcceptBtn");
    QCOMPARE(run([&] { click(formerName); }), former);

    const QObject context;
    connect(m_dialog.get(), &DialogWidget::signalAccept, &context, look);
    connect(m_dialog.get(), &DialogWidget::signalReject, &context, look);
    connect(m_dialog.get(), &DialogWidget::signalCancel, &context, look);
    m_dialog->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_dialog.get()));
    button(name)->click();
    QCOMPARE(seen, former);
    disconnect(m_dialog.get(), nullptr, &context, nullptr);
    QCOMPARE(run([&] { m_dialog->close(); }), answer);
}

void tst_DialogWidgetRun::closeModeThreeStaysOpen_data()
{
    answersTheButton_data();
}

void tst_DialogWidgetRun::closeModeThreeStaysOpen()
{
    QFETCH(const QString, name);
    QFETCH(const int, answer);
    QFETCH(const QString, told);
    m_dialog->setCloseMode(3);
    bool open = false;
    const int result = run([&] {
        click(name);
        click(name);
        open = m_dialog->isVisible();
        m_dialog->close();
    });
    QVERIFY(open);
    QCOMPARE(m_signals, QStringList({told, told}));
    QCOMPARE(result, answer);
}

void tst_DialogWidgetRun::returnPressesTheButtonInFocus_data()
{
    QTest::addColumn<int>("tabs");
    QTest::addColumn<int>("answer");
    QTest::newRow("at once") << 0 << 0;
    QTest::newRow("after a tab") << 1 << 1;
    QTest::newRow("after two tabs") << 2 << 2;
}

void tst_DialogWidgetRun::returnPressesTheButtonInFocus()
{
    QFETCH(const int, tabs);
    QFETCH(const int, answer);
    QCOMPARE(run([&] {
                 for (int i = 0; i < tabs; ++i)
                     QTest::keyClick(m_dialog->windowHandle(), Qt::Key_Tab);
                 QTest::keyClick(m_dialog->windowHandle(), Qt::Key_Return);
                 m_dialog->close();
             }),
             answer);
}

void tst_DialogWidgetRun::otherCloseModesClose_data()
{
    QTest::addColumn<int>("mode");
    for (const int mode : {-3, 0, 1, 2, 4})
        QTest::addRow("mode %d", mode) << mode;
}

void tst_DialogWidgetRun::otherCloseModesClose()
{
    QFETCH(const int, mode);
    m_dialog->setCloseMode(3);
    m_dialog->setCloseMode(mode);
    QCOMPARE(run([&] { click(QStringLiteral("dialogAcceptBtn")); }), 0);
}

void tst_DialogWidgetRun::theCloseButtonOfTheBarCancels()
{
    auto* bar = m_dialog->findChild<TitleBar*>();
    bar->setCloseVisible(true);
    QPushButton* close = nullptr;
    const auto buttons = bar->findChildren<QPushButton*>();
    for (QPushButton* each : buttons) {
        if (each->property("imageBtn").isValid())
            close = each;
    }
    QVERIFY(close != nullptr);
    QCOMPARE(run([&] { click(QStringLiteral("dialogAcceptBtn")); }), 0);
    const int answer =
        run([&] { Mouse(m_dialog.get()).click(close->mapToGlobal(close->rect().center())); });
    QCOMPARE(answer, 2);
    QCOMPARE(m_signals, QStringList({QStringLiteral("accept"), QStringLiteral("cancel")}));
}

void tst_DialogWidgetRun::itsTitleBarMovesIt()
{
    auto* bar = m_dialog->findChild<TitleBar*>();
    QSignalSpy maximise(m_dialog.get(), &DialogWidget::signalMaxButtonCLicked);
    QVERIFY(maximise.isValid());
    QPoint from;
    QPoint to;
    run([&] {
        m_dialog->move(200, 150);
        QCoreApplication::processEvents();
        from = m_dialog->pos();
        Mouse mouse(m_dialog.get());
        const QPoint grip = bar->mapToGlobal(QPoint(60, 15));
        bar->setButtonType(TitleBar::NormalWindow);
        mouse.doubleClick(grip);
        mouse.press(grip);
        mouse.moveBy({40, 20});
        mouse.release();
        to = m_dialog->pos();
        m_dialog->close();
    });
    QCOMPARE(to - from, QPoint(40, 20));
    QCOMPARE(maximise.count(), 0);
}

void tst_DialogWidgetRun::showsItsContentAgainInTheNextRun()
{
    auto* content = new QLabel(QStringLiteral("content"));
    m_dialog->setContentWidget(content);
    for (int i = 0; i < 2; ++i) {
        bool visible = false;
        run([&] {
            visible = content->isVisible();
            m_dialog->close();
        });
        QVERIFY(visible);
        QVERIFY(content->parentWidget()->layout()->indexOf(content) >= 0);
    }
}

void tst_DialogWidgetRun::outlivesNoOwner()
{
    auto owner = std::make_unique<QWidget>();
    auto* dialog = new DialogWidget(owner.get());
    QTimer::singleShot(0, this, [&] { owner.reset(); });
    QCOMPARE(dialog->exec(), 2);
    QVERIFY(!owner);
}

void tst_DialogWidgetRun::saysNoMoreThanTheEndOfARunBrings()
{
    run([&] { click(QStringLiteral("dialogAcceptBtn")); });
    run([&] { m_dialog->close(); });
    QCOMPARE(m_messages->texts(),
             QStringList({QLatin1String(kEndOfRun), QLatin1String(kEndOfRun)}));
}

TREL_TEST(tst_DialogWidgetRun, QApplication)

#include "tst_DialogWidgetRun.moc"
