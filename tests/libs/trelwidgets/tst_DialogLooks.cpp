#include "DialogParts.h"
#include "support/TestProgram.h"

#include <QApplication>
#include <QPainter>
#include <QScreen>
#include <QTemporaryDir>
#include <QtTest>

using trel::widgets::Dialog;

/// What a dialog looks like, and the two sizes it can have.
class TestDialogLooks : public QObject
{
    Q_OBJECT

private slots:
    void cutsALongTitle();
    void hasNoScaleButtonByItself();
    void switchesItsScale();
    void switchesAFixedSize();
    void doubleClickSwitchesTheScale();
    void expandedSizeStaysOnTheScreen();
    void mirrorsForRightToLeft();
    void followsThePalette();
    void takesSignsFromAStyleSheet();
};

void TestDialogLooks::cutsALongTitle()
{
    Dialog dialog;
    QVERIFY(showAt(dialog));
    dialog.setTitle(QStringLiteral("A title that never ends ").repeated(20));
    QCoreApplication::processEvents();
    const DialogParts parts(dialog);
    QCOMPARE(dialog.width(), 400);
    QVERIFY(parts.label->geometry().right() < parts.minimise->geometry().left());
    QVERIFY(parts.close->geometry().right() < parts.title->width());
}

void TestDialogLooks::hasNoScaleButtonByItself()
{
    Dialog dialog;
    QVERIFY(showAt(dialog));
    const DialogParts parts(dialog);
    QVERIFY(!parts.scale->isVisible());
    QVERIFY(parts.minimise->isVisible());
    QVERIFY(parts.close->isVisible());
    QTest::mouseDClick(parts.title, Qt::LeftButton, Qt::NoModifier, QPoint(30, 10));
    QCOMPARE(dialog.size(), QSize(400, 300));
}

void TestDialogLooks::switchesItsScale()
{
    Dialog dialog;
    QVERIFY(showAt(dialog));
    dialog.setScaleSwitch(QSize(300, 200), QSize(300, 500));
    const DialogParts parts(dialog);
    QCOMPARE(dialog.size(), QSize(300, 200));
    QVERIFY(parts.scale->isVisible());
    QCOMPARE(parts.scale->property("imageBtn").toString(), QStringLiteral("maximise"));
    QTest::mouseClick(parts.scale, Qt::LeftButton);
    QCOMPARE(dialog.size(), QSize(300, 500));
    QCOMPARE(parts.scale->property("imageBtn").toString(), QStringLiteral("restore"));
    QTest::mouseClick(parts.scale, Qt::LeftButton);
    QCOMPARE(dialog.size(), QSize(300, 200));
}

void TestDialogLooks::switchesAFixedSize()
{
    Dialog dialog;
    dialog.setScaleSwitch(QSize(300, 200), QSize(300, 500));
    dialog.setFixedSize(300, 200);
    QVERIFY(showAt(dialog));
    QCOMPARE(dialog.size(), QSize(300, 200));
    QTest::mouseClick(DialogParts(dialog).scale, Qt::LeftButton);
    QCOMPARE(dialog.size(), QSize(300, 500));
    QCOMPARE(dialog.minimumSize(), dialog.maximumSize());
}

void TestDialogLooks::doubleClickSwitchesTheScale()
{
    Dialog dialog;
    QVERIFY(showAt(dialog));
    dialog.setScaleSwitch(QSize(300, 200), QSize(300, 500));
    const DialogParts parts(dialog);
    QTest::mouseDClick(parts.title, Qt::RightButton, Qt::NoModifier, QPoint(30, 10));
    QCOMPARE(dialog.size(), QSize(300, 200));
    QTest::mouseDClick(parts.title, Qt::LeftButton, Qt::NoModifier, QPoint(30, 10));
    QCOMPARE(dialog.size(), QSize(300, 500));
    QTest::mouseDClick(parts.title, Qt::LeftButton, Qt::NoModifier, QPoint(30, 10));
    QCOMPARE(dialog.size(), QSize(300, 200));
}

void TestDialogLooks::expandedSizeStaysOnTheScreen()
{
    Dialog dialog;
    QVERIFY(showAt(dialog, QPoint(250, 300)));
    const QRect area = dialog.screen()->availableGeometry();
    dialog.setScaleSwitch(QSize(300, 200), QSize(300, area.height() + 400));
    QCOMPARE(dialog.pos(), QPoint(250, 300));
    QTest::mouseClick(DialogParts(dialog).scale, Qt::LeftButton);
    QCOMPARE(dialog.geometry(), QRect(250, area.top(), 300, area.height()));
}

void TestDialogLooks::mirrorsForRightToLeft()
{
    Dialog dialog;
    dialog.setLayoutDirection(Qt::RightToLeft);
    QVERIFY(showAt(dialog));
    const DialogParts parts(dialog);
    QVERIFY(parts.close->geometry().left() < parts.minimise->geometry().left());
    QVERIFY(parts.minimise->geometry().right() < parts.label->geometry().left());
}

void TestDialogLooks::followsThePalette()
{
    Dialog dialog;
    QVERIFY(showAt(dialog));
    QPalette night;
    night.setColor(QPalette::ButtonText, Qt::yellow);
    dialog.setPalette(night);
    QImage sign(26, 26, QImage::Format_RGB32);
    sign.fill(Qt::black);
    QPainter painter(&sign);
    DialogParts(dialog).close->icon().paint(&painter, sign.rect());
    painter.end();
    QCOMPARE(sign.pixelColor(13, 13), QColor(Qt::yellow));
}

void TestDialogLooks::takesSignsFromAStyleSheet()
{
    QTemporaryDir dir;
    const auto picture = [&dir](const char* name, Qt::GlobalColor color) {
        QImage image(16, 16, QImage::Format_RGB32);
        image.fill(color);
        const QString file = dir.filePath(QLatin1String(name));
        return image.save(file) ? file : QString();
    };
    Dialog dialog;
    QVERIFY(showAt(dialog));
    dialog.setScaleSwitch(QSize(300, 200), QSize(300, 500));
    dialog.setStyleSheet(
        QStringLiteral("QPushButton[imageBtn=\"close\"] { qproperty-icon: url(%1); }"
                       "QPushButton[imageBtn=\"restore\"] { qproperty-icon: url(%2); }"
                       "QFrame#dialogFrame { border: 2px solid #0000ff; }")
            .arg(picture("close.png", Qt::red), picture("back.png", Qt::green)));
    const DialogParts parts(dialog);
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

TREL_TEST(TestDialogLooks, QApplication)
#include "tst_DialogLooks.moc"
