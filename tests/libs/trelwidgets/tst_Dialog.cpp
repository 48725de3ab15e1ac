#include "trelwidgets/Dialog.h"

#include <QLabel>
#include <QPainter>
#include <QPointer>
#include <QPushButton>
#include <QScreen>
#include <QSignalSpy>
#include <QStandardItemModel>
#include <QTableView>
#include <QTemporaryDir>
#include <QTimer>
#include <QVBoxLayout>
#include <QWindow>
#include <QtTest>

using trel::widgets::Dialog;

namespace {

/// The parts of a dialog, as an operator takes hold of them.
struct Parts
{
    explicit Parts(const Dialog& dialog)
        : title(dialog.findChild<QWidget*>(QStringLiteral("dialogTitle")))
        , label(dialog.findChild<QLabel*>(QStringLiteral("TitleLabel")))
        , minimise(dialog.findChild<QPushButton*>(QStringLiteral("ButtonMin")))
        , scale(dialog.findChild<QPushButton*>(QStringLiteral("ButtonScale")))
        , close(dialog.findChild<QPushButton*>(QStringLiteral("ButtonClose")))
    {}

    QWidget* title;
    QLabel* label;
    QPushButton* minimise;
    QPushButton* scale;
    QPushButton* close;
};

void open(Dialog& dialog, const QPoint& position = QPoint(200, 150))
{
    dialog.setTitle(QStringLiteral("Play schedule"));
    dialog.move(position);
    dialog.resize(400, 300);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowActive(&dialog));
}

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
    QWidget* title = Parts(dialog).title;
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
    void cutsALongTitle();
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
    void acceptHandsInAnOpenEditor();
    void keysOfAnInnerDialogArrive();
    void hasNoScaleButtonByItself();
    void switchesItsScale();
    void switchesAFixedSize();
    void doubleClickSwitchesTheScale();
    void expandedSizeStaysOnTheScreen();
    void mirrorsForRightToLeft();
    void followsThePalette();
    void takesSignsFromAStyleSheet();
    void diesWhileItRuns();
};

void TestDialog::showsItsTitle()
{
    Dialog dialog;
    dialog.setTitle(QStringLiteral("播放排期"));
    QCOMPARE(dialog.windowTitle(), QStringLiteral("播放排期"));
    QCOMPARE(Parts(dialog).label->text(), QStringLiteral("播放排期"));
    dialog.setWindowTitle(QStringLiteral("Play schedule"));
    QCOMPARE(Parts(dialog).label->text(), QStringLiteral("Play schedule"));
}

void TestDialog::cutsALongTitle()
{
    Dialog dialog;
    open(dialog);
    dialog.setTitle(QStringLiteral("A title that never ends ").repeated(20));
    QCoreApplication::processEvents();
    const Parts parts(dialog);
    QCOMPARE(dialog.width(), 400);
    QVERIFY(parts.label->geometry().right() < parts.minimise->geometry().left());
    QVERIFY(parts.close->geometry().right() < parts.title->width());
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
    const Parts parts(dialog);
    QCOMPARE(content->size(), QSize(320, 200));
    QCOMPARE(content->window(), &dialog);
    QVERIFY(content->mapTo(&dialog, QPoint()).y() >= parts.title->height());
    QVERIFY(dialog.windowFlags() & Qt::FramelessWindowHint);
}

void TestDialog::movesByItsTitle()
{
    Dialog dialog;
    open(dialog);
    QCOMPARE(drag(dialog, QPoint(60, 44)), QPoint(260, 194));
    QCOMPARE(drag(dialog, QPoint(-100, -30)), QPoint(160, 164));
}

void TestDialog::movesByItsTitleOnly()
{
    Dialog dialog;
    open(dialog);
    QCOMPARE(drag(dialog, QPoint(60, 44), Qt::RightButton), QPoint(200, 150));

    Mouse content(dialog.dialogWidget());
    content.press(QPoint(300, 300));
    content.move(QPoint(340, 340));
    content.release(QPoint(340, 340));
    QCOMPARE(dialog.pos(), QPoint(200, 150));

    // The cursor wanders over the title with no press there.
    Mouse(Parts(dialog).title).move(QPoint(300, 160), Qt::NoButton);
    QCOMPARE(dialog.pos(), QPoint(200, 150));
}

void TestDialog::staysWithinReach()
{
    Dialog dialog;
    open(dialog);
    const QRect area = dialog.screen()->availableVirtualGeometry();
    QCOMPARE(drag(dialog, QPoint(0, -2000)).y(), area.top());
    drag(dialog, QPoint(5000, 5000));
    QVERIFY(area.intersects(QRect(Parts(dialog).title->mapToGlobal(QPoint()), QSize(48, 20))));
    drag(dialog, QPoint(-9000, 0));
    QVERIFY(dialog.geometry().right() >= area.left() + 40);
}

void TestDialog::staysStillOnAShortSlip()
{
    Dialog dialog;
    open(dialog);
    QCOMPARE(drag(dialog, QPoint(QApplication::startDragDistance() - 1, 0)), QPoint(200, 150));
}

void TestDialog::minimises()
{
    Dialog dialog;
    open(dialog);
    QTest::mouseClick(Parts(dialog).minimise, Qt::LeftButton);
    QVERIFY(dialog.isMinimized());
}

void TestDialog::minimisesTheWindowBelow()
{
    QWidget window;
    window.show();
    Dialog dialog(&window);
    open(dialog);
    QTest::mouseClick(Parts(dialog).minimise, Qt::LeftButton);
    QVERIFY(window.isMinimized());
    QVERIFY(!dialog.isMinimized());
}

void TestDialog::closesByItsButton()
{
    Dialog dialog;
    QSignalSpy rejected(&dialog, &QDialog::rejected);
    QVERIFY(rejected.isValid());
    QTimer::singleShot(0, &dialog,
                       [&dialog] { QTest::mouseClick(Parts(dialog).close, Qt::LeftButton); });
    QCOMPARE(dialog.exec(), int(QDialog::Rejected));
    QCOMPARE(rejected.count(), 1);
}

void TestDialog::closingHidesAndKeeps()
{
    Dialog dialog;
    open(dialog);
    QVERIFY(dialog.close());
    QVERIFY(dialog.isHidden());
    dialog.show();
    QVERIFY(dialog.isVisible());
}

void TestDialog::escapeRejects()
{
    Dialog dialog;
    open(dialog);
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
    open(dialog);
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
    open(dialog);
    QSignalSpy accepted(&dialog, &Dialog::signalAccept);
    QVERIFY(accepted.isValid());
    QTest::keyClick(&dialog, Qt::Key(key), Qt::KeyboardModifiers(modifiers));
    QCOMPARE(accepted.count(), signalled);
    QVERIFY(dialog.isVisible());
}

void TestDialog::acceptHandsInAnOpenEditor()
{
    Dialog dialog;
    QStandardItemModel model(1, 1);
    auto* view = new QTableView;
    view->setModel(&model);
    (new QVBoxLayout(dialog.dialogWidget()))->addWidget(view);
    open(dialog);
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
    auto* inner = new Inner;
    (new QVBoxLayout(dialog.dialogWidget()))->addWidget(inner);
    auto* button = new QPushButton(QStringLiteral("Cancel"));
    auto* table = new QTableView;
    auto* layout = new QVBoxLayout(inner);
    layout->addWidget(button);
    layout->addWidget(table);
    open(dialog);
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

void TestDialog::hasNoScaleButtonByItself()
{
    Dialog dialog;
    open(dialog);
    const Parts parts(dialog);
    QVERIFY(!parts.scale->isVisible());
    QVERIFY(parts.minimise->isVisible());
    QVERIFY(parts.close->isVisible());
    QTest::mouseDClick(parts.title, Qt::LeftButton, Qt::NoModifier, QPoint(30, 10));
    QCOMPARE(dialog.size(), QSize(400, 300));
}

void TestDialog::switchesItsScale()
{
    Dialog dialog;
    open(dialog);
    dialog.setScaleSwitch(QSize(300, 200), QSize(300, 500));
    const Parts parts(dialog);
    QCOMPARE(dialog.size(), QSize(300, 200));
    QVERIFY(parts.scale->isVisible());
    QCOMPARE(parts.scale->property("imageBtn").toString(), QStringLiteral("maximise"));
    QTest::mouseClick(parts.scale, Qt::LeftButton);
    QCOMPARE(dialog.size(), QSize(300, 500));
    QCOMPARE(parts.scale->property("imageBtn").toString(), QStringLiteral("restore"));
    QTest::mouseClick(parts.scale, Qt::LeftButton);
    QCOMPARE(dialog.size(), QSize(300, 200));
}

void TestDialog::switchesAFixedSize()
{
    Dialog dialog;
    dialog.setScaleSwitch(QSize(300, 200), QSize(300, 500));
    dialog.setFixedSize(300, 200);
    open(dialog);
    QCOMPARE(dialog.size(), QSize(300, 200));
    QTest::mouseClick(Parts(dialog).scale, Qt::LeftButton);
    QCOMPARE(dialog.size(), QSize(300, 500));
    QCOMPARE(dialog.minimumSize(), dialog.maximumSize());
}

void TestDialog::doubleClickSwitchesTheScale()
{
    Dialog dialog;
    open(dialog);
    dialog.setScaleSwitch(QSize(300, 200), QSize(300, 500));
    const Parts parts(dialog);
    QTest::mouseDClick(parts.title, Qt::RightButton, Qt::NoModifier, QPoint(30, 10));
    QCOMPARE(dialog.size(), QSize(300, 200));
    QTest::mouseDClick(parts.title, Qt::LeftButton, Qt::NoModifier, QPoint(30, 10));
    QCOMPARE(dialog.size(), QSize(300, 500));
    QTest::mouseDClick(parts.title, Qt::LeftButton, Qt::NoModifier, QPoint(30, 10));
    QCOMPARE(dialog.size(), QSize(300, 200));
}

void TestDialog::expandedSizeStaysOnTheScreen()
{
    Dialog dialog;
    open(dialog, QPoint(250, 300));
    const QRect area = dialog.screen()->availableGeometry();
    dialog.setScaleSwitch(QSize(300, 200), QSize(300, area.height() + 400));
    QCOMPARE(dialog.pos(), QPoint(250, 300));
    QTest::mouseClick(Parts(dialog).scale, Qt::LeftButton);
    QCOMPARE(dialog.geometry(), QRect(250, area.top(), 300, area.height()));
}

void TestDialog::mirrorsForRightToLeft()
{
    Dialog dialog;
    dialog.setLayoutDirection(Qt::RightToLeft);
    open(dialog);
    const Parts parts(dialog);
    QVERIFY(parts.close->geometry().left() < parts.minimise->geometry().left());
    QVERIFY(parts.minimise->geometry().right() < parts.label->geometry().left());
}

void TestDialog::followsThePalette()
{
    Dialog dialog;
    open(dialog);
    QPalette night;
    night.setColor(QPalette::ButtonText, Qt::yellow);
    dialog.setPalette(night);
    QImage sign(26, 26, QImage::Format_RGB32);
    sign.fill(Qt::black);
    QPainter painter(&sign);
    Parts(dialog).close->icon().paint(&painter, sign.rect());
    painter.end();
    QCOMPARE(sign.pixelColor(13, 13), QColor(Qt::yellow));
}

void TestDialog::takesSignsFromAStyleSheet()
{
    QTemporaryDir dir;
    const auto picture = [&dir](const char* name, Qt::GlobalColor color) {
        QImage image(16, 16, QImage::Format_RGB32);
        image.fill(color);
        const QString file = dir.filePath(QLatin1String(name));
        return image.save(file) ? file : QString();
    };
    Dialog dialog;
    open(dialog);
    dialog.setScaleSwitch(QSize(300, 200), QSize(300, 500));
    dialog.setStyleSheet(
        QStringLiteral("QPushButton[imageBtn=\"close\"] { qproperty-icon: url(%1); }"
                       "QPushButton[imageBtn=\"restore\"] { qproperty-icon: url(%2); }"
                       "QFrame#dialogFrame { border: 2px solid #0000ff; }")
            .arg(picture("close.png", Qt::red), picture("back.png", Qt::green)));
    const Parts parts(dialog);
    const auto colorAt = [&dialog](const QPoint& place) {
        return dialog.grab().toImage().pixelColor(place);
    };
    QCOMPARE(colorAt(parts.close->mapTo(&dialog, parts.close->rect().center())), QColor(Qt::red));
    QCOMPARE(colorAt(QPoint(0, 150)), QColor(Qt::blue));
    QTest::mouseClick(parts.scale, Qt::LeftButton);
    QCOMPARE(colorAt(parts.scale->mapTo(&dialog, parts.scale->rect().center())), QColor(Qt::green));
    QTest::mouseClick(parts.scale, Qt::LeftButton);
    QVERIFY(colorAt(parts.scale->mapTo(&dialog, parts.scale->rect().center())) !=
            QColor(Qt::green));
}

void TestDialog::diesWhileItRuns()
{
    auto* window = new QWidget;
    const QPointer<Dialog> dialog = new Dialog(window);
    QTimer::singleShot(0, window, [window] { delete window; });
    QCOMPARE(dialog->exec(), int(QDialog::Rejected));
    QVERIFY(dialog.isNull());
}

QTEST_MAIN(TestDialog)
#include "tst_Dialog.moc"
