#include "DialogParts.h"
#include "support/TestProgram.h"

#include <QApplication>
#include <QPointer>
#include <QScreen>
#include <QSignalSpy>
#include <QStandardItemModel>
#include <QTableView>
#include <QTimer>
#include <QVBoxLayout>
#include <QtTest>

using trel::widgets::Dialog;

namespace {

/// Sends mouse events as the platform does, by the cursor's place on the screen.
class Mouse
{
public:
    explicit Mouse(QWidget* widget)
        : m_widget(widget)
    {}

    void press(const QPoint& global, Qt::MouseButton button = Qt::LeftButton)
    {
        send(QEvent::MouseButtonPress, global, button, button);
    }
    void move(const QPoint& global, Qt::MouseButtons buttons = Qt::LeftButton)
    {
        send(QEvent::MouseMove, global, Qt::NoButton, buttons);
    }
    void release(const QPoint& global, Qt::MouseButton button = Qt::LeftButton)
    {
        send(QEvent::MouseButtonRelease, global, button, Qt::NoButton);
    }

private:
    void send(QEvent::Type type, const QPoint& global, Qt::MouseButton button,
              Qt::MouseButtons buttons)
    {
        QMouseEvent event(type, m_widget->mapFromGlobal(global), global, button, buttons,
                          Qt::NoModifier);
        QCoreApplication::sendEvent(m_widget, &event);
    }

    QWidget* m_widget;
};

QPoint drag(const Dialog& dialog, const QPoint& way, Qt::MouseButton button = Qt::LeftButton)
{
    QWidget* title = DialogParts(dialog).title;
    const QPoint start = title->mapToGlobal(QPoint(30, 10));
    Mouse mouse(title);
    mouse.press(start, button);
    mouse.move(start + way / 2, button);
    mouse.move(start + way, button);
    mouse.release(start + way, button);
    return dialog.pos();
}

} // namespace

class TestDialog : public QObject
{
    Q_OBJECT

private slots:
    void showsItsTitle();
    void holdsTheClientUnderTheTitle();
    void movesByItsTitle();
    void movesByItsTitleOnly();
    void staysWithinReach();
    void staysStillOnAShortSlip();
    void minimisesTheWindowBelow();
    void minimises();
    void closesByItsButton();
    void closingHidesAndKeeps();
    void escapeRejects();
    void returnPressesNothing();
    void controlReturnAccepts_data();
    void controlReturnAccepts();
    void nothingAcceptsUnlessAskedFor();
    void acceptHandsInAnOpenEditor();
    void keysOfAnInnerDialogArrive();
    void staysWithoutItsPartsWhenDismantled();
    void diesWhileItRuns();
};

void TestDialog::showsItsTitle()
{
    Dialog dialog;
    dialog.setTitle(QStringLiteral("播放排期"));
    QCOMPARE(dialog.windowTitle(), QStringLiteral("播放排期"));
    QCOMPARE(DialogParts(dialog).label->text(), QStringLiteral("播放排期"));
    dialog.setWindowTitle(QStringLiteral("Play schedule"));
    QCOMPARE(DialogParts(dialog).label->text(), QStringLiteral("Play schedule"));
}

void TestDialog::holdsTheClientUnderTheTitle()
{
    Dialog dialog;
    auto* layout = new QVBoxLayout(dialog.dialogWidget());
    layout->setContentsMargins(0, 0, 0, 0);
    auto* content = new QWidget;
    content->setFixedSize(320, 200);
    layout->addWidget(content);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    const DialogParts parts(dialog);
    QCOMPARE(content->size(), QSize(320, 200));
    QCOMPARE(content->window(), &dialog);
    QVERIFY(content->mapTo(&dialog, QPoint()).y() >= parts.title->height());
    QVERIFY(dialog.windowFlags() & Qt::FramelessWindowHint);
}

void TestDialog::movesByItsTitle()
{
    Dialog dialog;
    QVERIFY(showAt(dialog));
    QCOMPARE(drag(dialog, QPoint(60, 44)), QPoint(260, 194));
    QCOMPARE(drag(dialog, QPoint(-100, -30)), QPoint(160, 164));
}

void TestDialog::movesByItsTitleOnly()
{
    Dialog dialog;
    QVERIFY(showAt(dialog));
    QCOMPARE(drag(dialog, QPoint(60, 44), Qt::RightButton), QPoint(200, 150));

    Mouse content(dialog.dialogWidget());
    content.press(QPoint(300, 300));
    content.move(QPoint(340, 340));
    content.release(QPoint(340, 340));
    QCOMPARE(dialog.pos(), QPoint(200, 150));

    // The cursor wanders over the title with no press there.
    Mouse(DialogParts(dialog).title).move(QPoint(300, 160), Qt::NoButton);
    QCOMPARE(dialog.pos(), QPoint(200, 150));
}

void TestDialog::staysWithinReach()
{
    Dialog dialog;
    QVERIFY(showAt(dialog));
    const QRect area = dialog.screen()->availableVirtualGeometry();
    QCOMPARE(drag(dialog, QPoint(0, -2000)).y(), area.top());
    drag(dialog, QPoint(5000, 5000));
    QVERIFY(
        area.intersects(QRect(DialogParts(dialog).title->mapToGlobal(QPoint()), QSize(48, 20))));
    drag(dialog, QPoint(-9000, 0));
    QVERIFY(dialog.geometry().right() >= area.left() + 40);
}

void TestDialog::staysStillOnAShortSlip()
{
    Dialog dialog;
    QVERIFY(showAt(dialog));
    QCOMPARE(drag(dialog, QPoint(QApplication::startDragDistance() - 1, 0)), QPoint(200, 150));
}

void TestDialog::minimises()
{
    Dialog dialog;
    QVERIFY(showAt(dialog));
    QTest::mouseClick(DialogParts(dialog).minimise, Qt::LeftButton);
    QVERIFY(dialog.isMinimized());
}

void TestDialog::minimisesTheWindowBelow()
{
    QWidget window;
    window.show();
    Dialog dialog(&window);
    QVERIFY(showAt(dialog));
    QTest::mouseClick(DialogParts(dialog).minimise, Qt::LeftButton);
    QVERIFY(window.isMinimized());
    QVERIFY(!dialog.isMinimized());
}

void TestDialog::closesByItsButton()
{
    Dialog dialog;
    QSignalSpy rejected(&dialog, &QDialog::rejected);
    QVERIFY(rejected.isValid());
    QTimer::singleShot(0, &dialog,
                       [&dialog] { QTest::mouseClick(DialogParts(dialog).close, Qt::LeftButton); });
    QCOMPARE(dialog.exec(), int(QDialog::Rejected));
    QCOMPARE(rejected.count(), 1);
}

void TestDialog::closingHidesAndKeeps()
{
    Dialog dialog;
    QVERIFY(showAt(dialog));
    QVERIFY(dialog.close());
    QVERIFY(dialog.isHidden());
    dialog.show();
    QVERIFY(dialog.isVisible());
}

void TestDialog::escapeRejects()
{
    Dialog dialog;
    QVERIFY(showAt(dialog));
    QTest::keyClick(&dialog, Qt::Key_Escape);
    QVERIFY(dialog.isHidden());
    QCOMPARE(dialog.result(), int(QDialog::Rejected));
}

void TestDialog::returnPressesNothing()
{
    Dialog dialog;
    auto* layout = new QVBoxLayout(dialog.dialogWidget());
    auto* button = new QPushButton(QStringLiteral("Cancel"));
    auto* other = new QTableView;
    layout->addWidget(button);
    layout->addWidget(other);
    QSignalSpy clicked(button, &QPushButton::clicked);
    QSignalSpy accepted(&dialog, &Dialog::signalAccept);
    QVERIFY(clicked.isValid() && accepted.isValid());
    QVERIFY(showAt(dialog));
    button->setFocus();
    other->setFocus();
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter}) {
        QTest::keyClick(other, key);
        QTest::keyClick(&dialog, key);
    }
    QCOMPARE(clicked.count(), 0);
    QCOMPARE(accepted.count(), 0);
    QVERIFY(dialog.isVisible());
    QVERIFY(!dialog.isMinimized());
}

void TestDialog::controlReturnAccepts_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("modifiers");
    QTest::addColumn<int>("signalled");
    QTest::newRow("control return") << int(Qt::Key_Return) << int(Qt::ControlModifier) << 1;
    QTest::newRow("control enter")
        << int(Qt::Key_Enter) << int(Qt::ControlModifier | Qt::KeypadModifier) << 1;
    QTest::newRow("shift return") << int(Qt::Key_Return) << int(Qt::ShiftModifier) << 0;
    QTest::newRow("control shift return")
        << int(Qt::Key_Return) << int(Qt::ControlModifier | Qt::ShiftModifier) << 0;
    QTest::newRow("control space") << int(Qt::Key_Space) << int(Qt::ControlModifier) << 0;
}

void TestDialog::controlReturnAccepts()
{
    QFETCH(int, key);
    QFETCH(int, modifiers);
    QFETCH(int, signalled);
    Dialog dialog;
    dialog.setAcceptsByKey(true);
    QVERIFY(showAt(dialog));
    QSignalSpy accepted(&dialog, &Dialog::signalAccept);
    QVERIFY(accepted.isValid());
    QTest::keyClick(&dialog, Qt::Key(key), Qt::KeyboardModifiers(modifiers));
    QCOMPARE(accepted.count(), signalled);
    QVERIFY(dialog.isVisible());
}

void TestDialog::nothingAcceptsUnlessAskedFor()
{
    Dialog dialog;
    QVERIFY(!dialog.acceptsByKey());
    QVERIFY(showAt(dialog));
    QSignalSpy accepted(&dialog, &Dialog::signalAccept);
    QVERIFY(accepted.isValid());
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter}) {
        QTest::keyClick(&dialog, key, Qt::ControlModifier);
    }
    QCOMPARE(accepted.count(), 0);
    dialog.setAcceptsByKey(true);
    QVERIFY(dialog.acceptsByKey());
    QTest::keyClick(&dialog, Qt::Key_Return, Qt::ControlModifier);
    QCOMPARE(accepted.count(), 1);
    dialog.setAcceptsByKey(false);
    QTest::keyClick(&dialog, Qt::Key_Return, Qt::ControlModifier);
    QCOMPARE(accepted.count(), 1);
    QVERIFY(dialog.isVisible());
}

void TestDialog::acceptHandsInAnOpenEditor()
{
    Dialog dialog;
    dialog.setAcceptsByKey(true);
    QStandardItemModel model(1, 1);
    auto* view = new QTableView;
    view->setModel(&model);
    (new QVBoxLayout(dialog.dialogWidget()))->addWidget(view);
    QVERIFY(showAt(dialog));
    view->setFocus();
    view->edit(model.index(0, 0));
    QWidget* editor = QApplication::focusWidget();
    QVERIFY(editor != view);
    QString handedIn;
    connect(&dialog, &Dialog::signalAccept, this,
            [&] { handedIn = model.index(0, 0).data().toString(); });
    QTest::keyClicks(editor, QStringLiteral("12"));
    QTest::keyClick(&dialog, Qt::Key_Return, Qt::ControlModifier);
    QCOMPARE(handedIn, QStringLiteral("12"));
}

void TestDialog::keysOfAnInnerDialogArrive()
{
    class Inner : public QDialog
    {
    protected:
        // Leaves Return and Escape to the frame, as a dialog placed in a frame does.
        void keyPressEvent(QKeyEvent* event) override
        {
            QWidget::keyPressEvent(event); // NOLINT(bugprone-parent-virtual-call)
        }
    };
    Dialog dialog;
    dialog.setAcceptsByKey(true);
    auto* inner = new Inner;
    (new QVBoxLayout(dialog.dialogWidget()))->addWidget(inner);
    auto* button = new QPushButton(QStringLiteral("Cancel"));
    auto* table = new QTableView;
    auto* layout = new QVBoxLayout(inner);
    layout->addWidget(button);
    layout->addWidget(table);
    QVERIFY(showAt(dialog));
    QSignalSpy accepted(&dialog, &Dialog::signalAccept);
    QSignalSpy clicked(button, &QPushButton::clicked);
    QVERIFY(accepted.isValid() && clicked.isValid());
    button->setFocus();
    table->setFocus();
    QTest::keyClick(table, Qt::Key_Return);
    QCOMPARE(clicked.count(), 0);
    QTest::keyClick(table, Qt::Key_Return, Qt::ControlModifier);
    QCOMPARE(accepted.count(), 1);
    QVERIFY(dialog.isVisible());
    QTest::keyClick(table, Qt::Key_Escape);
    QVERIFY(dialog.isHidden());
}

void TestDialog::staysWithoutItsPartsWhenDismantled()
{
    Dialog dialog;
    dialog.setScaleSwitch(QSize(300, 200), QSize(300, 400));
    const QPointer<QWidget> client = dialog.dialogWidget();
    const QPointer<QWidget> content = new QWidget;
    (new QVBoxLayout(client))->addWidget(content);
    QVERIFY(showAt(dialog));
    dialog.dismantle();
    QVERIFY(dialog.isHidden());
    QVERIFY(!dialog.windowHandle());
    QVERIFY(!dialog.dialogWidget());
    QVERIFY(client && content);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(!client && !content);
    QVERIFY(dialog.children().isEmpty());
    dialog.dismantle();
    dialog.setScaleSwitch(QSize(300, 200), QSize(300, 400));
    dialog.setTitle(QStringLiteral("Gone"));
    QCOMPARE(dialog.windowTitle(), QStringLiteral("Gone"));
}

void TestDialog::diesWhileItRuns()
{
    auto* window = new QWidget;
    const QPointer<Dialog> dialog = new Dialog(window);
    QTimer::singleShot(0, window, [window] { delete window; });
    QCOMPARE(dialog->exec(), int(QDialog::Rejected));
    QVERIFY(dialog.isNull());
}

TREL_TEST(TestDialog, QApplication)
#include "tst_Dialog.moc"
